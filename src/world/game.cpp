#include "world/game.h"

namespace trovane {

Game::Game(std::filesystem::path dataFolder, uint64_t seed)
    : dataDir(std::move(dataFolder)), rng(seed), clock([] {
          return std::chrono::duration_cast<std::chrono::milliseconds>(
                     std::chrono::steady_clock::now().time_since_epoch())
              .count();
      }) {}

}  // namespace trovane
