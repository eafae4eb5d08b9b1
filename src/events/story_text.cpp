#include "events/story_text.h"

#include "world/game.h"

namespace trovane {

// Not built yet: tags stay as written and answers change nothing until story
// events are written.
std::string expandMacros(Game& g, std::string_view text, int16_t firstArtist, int16_t secondArtist) {
    static_cast<void>(g);
    static_cast<void>(firstArtist);
    static_cast<void>(secondArtist);
    return std::string(text);
}

void applyStoryReply(Game& g, int choice) {
    static_cast<void>(g);
    static_cast<void>(choice);
}

}  // namespace trovane
