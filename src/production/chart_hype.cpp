#include "production/chart_hype.h"

#include <algorithm>

#include "world/game.h"
#include "world/record_store.h"

namespace trovane {

namespace {

bool belongs(const DiscRecord& d, int mode, int32_t who) {
    switch (mode) {
    case 0: return d.label == who;
    case 1: return d.band == who;
    case 2: return d.id == who;
    default: return false;
    }
}

void spreadInChart(Game& g, int mode, int t, int32_t who, int rise) {
    for (int32_t n = 1; n < g.chart.recordCount(); ++n) {
        g.chart.read(n);
        const int16_t disc = g.chart->disc;
        if (disc < 1 || disc >= g.disc.recordCount()) continue;
        g.disc.read(disc);
        if (!belongs(g.disc.rec, mode, who)) continue;
        auto& hype = g.disc->hype[static_cast<std::size_t>(t)];
        hype = static_cast<uint8_t>(std::clamp(hype + rise, 1, 100));
        g.disc.write(disc);
    }
}

}  // namespace

void spreadHypeRise(Game& g, int mode, int t, int32_t who, int rise) {
    for (int chart : {t, t + 5}) {
        const bool wasOpen = g.chart.isOpen();
        if (!wasOpen) openChart(g, chart);
        spreadInChart(g, mode, t, who, rise);
        if (!wasOpen) closeChart(g);
        if (wasOpen) break;  // an open file is the caller's one chart
    }
}

}  // namespace trovane
