#pragma once
// The achievements of one band, artist, label or staff member, newest first.
#include <cstdint>
#include <string>
#include <vector>

namespace trovane {

class Game;

struct AchievementRow {
    double date = 0;
    int kind = 0;  // 0 band, 1 artist, 2 label, 3 staff
    int16_t who = 0;
    std::string text;
};

// Rows of the kind naming `who`; the later row first among those of one date.
std::vector<AchievementRow> achievementsOf(Game& g, int kind, int16_t who);

}  // namespace trovane
