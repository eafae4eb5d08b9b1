#include "production/chart_hype.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <span>
#include <string>
#include <vector>

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

using Row = ChartRowKeys::Row;

bool belongs(const Row& d, int mode, int32_t who) {
    switch (mode) {
    case 0: return d.label == who;
    case 1: return d.band == who;
    case 2: return d.id == who;
    default: return false;
    }
}

// Row n of the open chart, its disc's fields read from the disc's bytes.
Row rowFromBytes(const Game& g, int32_t n) {
    const auto disc = fieldAt<decltype(ChartRow::disc)>(g.chart.bytesOf(n), kRowDisc);
    if (disc < 1 || disc >= g.disc.recordCount()) return {};
    const auto d = g.disc.bytesOf(disc);
    return {.disc = disc,
            .id = fieldAt<decltype(DiscRecord::id)>(d, kDiscId),
            .label = fieldAt<decltype(DiscRecord::label)>(d, kDiscLabel),
            .band = fieldAt<decltype(DiscRecord::band)>(d, kDiscBand)};
}

// The rows of the open chart, number `chart`, from the copy kept of them when
// it still stands, or read anew into it.
const std::vector<Row>& rowsOfChart(Game& g, int chart) {
    ChartRowKeys& keys = g.chartRowKeys;
    if (!keys.watching) {
        g.disc.watchWrites(&keys,
                           [&keys](int32_t, std::span<const uint8_t>, std::span<const uint8_t>) { ++keys.keysVersion; },
                           {{kDiscId, sizeof(DiscRecord::id)},
                            {kDiscLabel, sizeof(DiscRecord::label)},
                            {kDiscBand, sizeof(DiscRecord::band)}});
        keys.watching = true;
    }
    ChartRowKeys::Chart& c = keys.charts[static_cast<std::size_t>(chart)];
    const auto rows = static_cast<std::size_t>(std::max(g.chart.recordCount() - 1, 0));
    bool stands =
        c.discGeneration == g.disc.generation() && c.keysVersion == keys.keysVersion && c.named.size() == rows;
    for (std::size_t n = 1; stands && n <= rows; ++n)
        stands =
            c.named[n - 1] == fieldAt<decltype(ChartRow::disc)>(g.chart.bytesOf(static_cast<int32_t>(n)), kRowDisc);
    if (stands) return c.rows;
    c.named.resize(rows);
    c.rows.resize(rows);
    for (std::size_t n = 1; n <= rows; ++n) {
        c.named[n - 1] = fieldAt<decltype(ChartRow::disc)>(g.chart.bytesOf(static_cast<int32_t>(n)), kRowDisc);
        c.rows[n - 1] = rowFromBytes(g, static_cast<int32_t>(n));
    }
    c.discGeneration = g.disc.generation();
    c.keysVersion = keys.keysVersion;
    return c.rows;
}

// The number of the chart open in the chart table, from its file's name
// ("chart3.vel"), or -1.
int openChartNumber(const Game& g) {
    const std::string stem = g.chart.path().stem().string();
    if (stem.size() != 6 || stem.compare(0, 5, "chart") != 0 || stem[5] < '0' || stem[5] > '9') return -1;
    return stem[5] - '0';
}

// Leaves the chart and disc buffers at the last row and disc it looked at,
// as a walk reading each of them would.
void spreadInChart(Game& g, int chart, int mode, int t, int32_t who, int rise) {
    const int32_t rows = g.chart.recordCount() - 1;
    const std::vector<Row>* kept = chart >= 0 ? &rowsOfChart(g, chart) : nullptr;
    int16_t lastDisc = 0;
    for (int32_t n = 1; n <= rows; ++n) {
        const Row row = kept != nullptr ? (*kept)[static_cast<std::size_t>(n - 1)] : rowFromBytes(g, n);
        if (row.disc == 0) continue;
        lastDisc = row.disc;
        if (!belongs(row, mode, who)) continue;
        patchField<uint8_t>(g.disc, row.disc, kDiscHype + static_cast<std::size_t>(t),
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
        spreadInChart(g, wasOpen ? openChartNumber(g) : chart, mode, t, who, rise);
        if (!wasOpen) closeChart(g);
        if (wasOpen) break;  // an open file is the caller's one chart
    }
}

}  // namespace trovane
