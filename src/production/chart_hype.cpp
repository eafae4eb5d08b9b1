#include "production/chart_hype.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <span>

#include "world/fatal_error.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/record_store.h"

namespace trovane {

namespace {

const std::size_t kRowDisc = offsetIn<ChartRow>("disc");
const std::size_t kDiscLabel = offsetIn<DiscRecord>("label");
const std::size_t kDiscBand = offsetIn<DiscRecord>("band");
const std::size_t kDiscId = offsetIn<DiscRecord>("id");
const std::size_t kDiscHype = offsetIn<DiscRecord>("hype");

// Tests the disc's own bytes, so that only the discs that rise are decoded.
bool belongs(std::span<const uint8_t> d, int mode, int32_t who) {
    switch (mode) {
    case 0: return fieldAt<decltype(DiscRecord::label)>(d, kDiscLabel) == who;
    case 1: return fieldAt<decltype(DiscRecord::band)>(d, kDiscBand) == who;
    case 2: return fieldAt<decltype(DiscRecord::id)>(d, kDiscId) == who;
    default: return false;
    }
}

// Leaves the chart and disc buffers at the last row and disc it looked at,
// as a walk reading each of them would.
void spreadInChart(Game& g, int mode, int t, int32_t who, int rise) {
    const int32_t rows = g.chart.recordCount() - 1;
    int16_t lastDisc = 0;
    for (int32_t n = 1; n <= rows; ++n) {
        const auto disc = fieldAt<decltype(ChartRow::disc)>(g.chart.bytesOf(n), kRowDisc);
        if (disc < 1 || disc >= g.disc.recordCount()) continue;
        lastDisc = disc;
        if (!belongs(g.disc.bytesOf(disc), mode, who)) continue;
        patchField<uint8_t>(g.disc, disc, kDiscHype + static_cast<std::size_t>(t),
                            [&](uint8_t hype) { return static_cast<uint8_t>(std::clamp(hype + rise, 1, 100)); });
    }
    if (rows >= 1) g.chart.read(rows);
    if (lastDisc != 0) g.disc.read(lastDisc);
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
