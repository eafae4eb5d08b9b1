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

thread_local HeldChartRows* heldRows = nullptr;

bool belongs(const HeldChartRows::Row& d, int mode, int32_t who) {
    switch (mode) {
    case 0: return d.label == who;
    case 1: return d.band == who;
    case 2: return d.id == who;
    default: return false;
    }
}

// Leaves the chart and disc buffers at the last row and disc it looked at,
// as a walk reading each of them would.
void spreadInChart(Game& g, int mode, int t, int32_t who, int rise) {
    const int32_t rows = g.chart.recordCount() - 1;
    const std::vector<HeldChartRows::Row>* held = HeldChartRows::of(g);
    int16_t lastDisc = 0;
    auto raise = [&](int16_t disc) {
        patchField<uint8_t>(g.disc, disc, kDiscHype + static_cast<std::size_t>(t),
                            [&](uint8_t hype) { return static_cast<uint8_t>(std::clamp(hype + rise, 1, 100)); });
    };
    for (int32_t n = 1; n <= rows; ++n) {
        if (held != nullptr) {
            const HeldChartRows::Row& row = (*held)[static_cast<std::size_t>(n)];
            if (row.disc == 0) continue;
            lastDisc = row.disc;
            if (belongs(row, mode, who)) raise(row.disc);
            continue;
        }
        const auto disc = fieldAt<decltype(ChartRow::disc)>(g.chart.bytesOf(n), kRowDisc);
        if (disc < 1 || disc >= g.disc.recordCount()) continue;
        lastDisc = disc;
        if (belongs(g.disc.bytesOf(disc), mode, who)) raise(disc);
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

HeldChartRows::HeldChartRows(Game& g) : g_(g), chartGeneration_(g.chart.generation()), outer_(heldRows) {
    const int32_t rows = g.chart.recordCount() - 1;
    rows_.resize(static_cast<std::size_t>(std::max(rows, 0)) + 1);
    for (int32_t n = 1; n <= rows; ++n) {
        const auto disc = fieldAt<decltype(ChartRow::disc)>(g.chart.bytesOf(n), kRowDisc);
        if (disc < 1 || disc >= g.disc.recordCount()) continue;
        const auto d = g.disc.bytesOf(disc);
        rows_[static_cast<std::size_t>(n)] = {.disc = disc,
                                              .id = fieldAt<decltype(DiscRecord::id)>(d, kDiscId),
                                              .label = fieldAt<decltype(DiscRecord::label)>(d, kDiscLabel),
                                              .band = fieldAt<decltype(DiscRecord::band)>(d, kDiscBand)};
    }
    heldRows = this;
}

HeldChartRows::~HeldChartRows() { heldRows = outer_; }

const std::vector<HeldChartRows::Row>* HeldChartRows::of(const Game& g) {
    const HeldChartRows* h = heldRows;
    if (h == nullptr || &h->g_ != &g || !g.chart.isOpen() || h->chartGeneration_ != g.chart.generation() ||
        static_cast<int32_t>(h->rows_.size()) != std::max(g.chart.recordCount(), 1))
        return nullptr;
    return &h->rows_;
}

}  // namespace trovane
