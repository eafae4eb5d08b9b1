#pragma once
// The text of story events: macro tags and the effect of the player's answer.
#include <cstdint>
#include <string>
#include <string_view>

namespace trovane {

class Game;

// Replaces the tags of a story text ("<ap1>" ...) for its two participants.
std::string expandMacros(Game& g, std::string_view text, int16_t firstArtist, int16_t secondArtist);
// What the player's answer (0 defend, 1 condemn) to the story in the event
// buffer does; the story's entry is in the schedule buffer.
void applyStoryReply(Game& g, int choice);

}  // namespace trovane
