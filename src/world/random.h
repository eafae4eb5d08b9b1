#pragma once
// The game's one random source. A draw is a single in [0, 1); a random whole
// number between two bounds, both included, is the low bound plus the whole
// part of draw times the width. Seeded from the clock by the desktop game,
// explicitly by tests and trovane-sim, and then a whole game repeats exactly.
#include <cstdint>
#include <random>

namespace trovane {

class Random {
public:
    explicit Random(uint64_t seed = 1) : engine_(seed) {}

    void seed(uint64_t s) { engine_.seed(s); }

    float draw() {
        // 24 random bits: every value is an exact single below 1.
        return static_cast<float>(engine_() >> 40) / 16777216.0f;
    }

    // A random whole number from low to high, both included.
    int32_t between(int32_t low, int32_t high) {
        double width = static_cast<double>(high) - static_cast<double>(low) + 1.0;
        return low + static_cast<int32_t>(static_cast<double>(draw()) * width);
    }

private:
    std::mt19937_64 engine_;
};

}  // namespace trovane
