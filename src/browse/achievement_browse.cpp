#include "browse/achievement_browse.h"

#include <algorithm>

#include "world/game.h"
#include "world/strings.h"

namespace trovane {

std::vector<AchievementRow> achievementsOf(Game& g, int kind, int16_t who) {
    std::vector<AchievementRow> rows;
    for (int32_t n = 1; n < g.achieve.recordCount(); ++n) {
        g.achieve.read(n);
        if (g.achieve->kind != kind || g.achieve->who != who) continue;
        rows.push_back({g.achieve->date, kind, who, trim(g.achieve->text.value)});
    }
    // Written in date order, so the table read backwards is newest first.
    std::reverse(rows.begin(), rows.end());
    std::stable_sort(rows.begin(), rows.end(),
                     [](const AchievementRow& a, const AchievementRow& b) { return a.date > b.date; });
    return rows;
}

}  // namespace trovane
