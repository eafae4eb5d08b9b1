#pragma once
// The one way the game tells the player anything: a new item in the news table.
#include <cstdint>
#include <string_view>

namespace trovane {

class Game;

// Appends a news item and returns its record number. Texts longer than their
// fields are cut. Overwrites the news buffer, so a caller walking the news
// must read its record again.
int32_t postNews(Game& g, double date, std::string_view title, std::string_view text, uint8_t kind,
                 int32_t scheduleLink, int16_t eventLink, bool mustReply, std::string_view extra);

}  // namespace trovane
