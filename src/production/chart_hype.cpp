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

int16_t keyOf(const Row& row, int mode) { return mode == 0 ? row.label : mode == 1 ? row.band : row.id; }

// What a rise over the open chart, number `chart`, needs of its rows: from
// the copy kept of them when it still stands, or read anew into it.
ChartRowKeys::Chart& rowsOfChart(Game& g, int chart) {
    ChartRowKeys& keys = g.chartRowKeys;
    if (!keys.watching) {
        g.disc.watchWrites(&keys,
                           [&keys](int32_t, std::span<const uint8_t> before, std::span<const uint8_t>) {
                               if (!before.empty()) ++keys.keysVersion;  // an added disc is caught by the count
                           },
                           {{kDiscId, sizeof(DiscRecord::id)},
                            {kDiscLabel, sizeof(DiscRecord::label)},
                            {kDiscBand, sizeof(DiscRecord::band)}});
        g.chart.watchWrites(
            &keys, [&keys](int32_t, std::span<const uint8_t>, std::span<const uint8_t>) { ++keys.chartWrites; },
            {{kRowDisc, sizeof(ChartRow::disc)}});
        keys.watching = true;
    }
    ChartRowKeys::Chart& c = keys.charts[static_cast<std::size_t>(chart)];
    const int32_t rows = std::max(g.chart.recordCount() - 1, 0);
    const int32_t discs = g.disc.recordCount();
    bool stands = c.discGeneration == g.disc.generation() && c.keysVersion == keys.keysVersion &&
                  c.named.size() == static_cast<std::size_t>(rows) && discs >= c.discCount &&
                  (!c.namesPastTheEnd || discs == c.discCount);
    // Within one opening of the chart with no row changed since, the rows were compared already.
    const bool compared = c.checkedOpen == g.chart.generation() && c.checkedWrites == keys.chartWrites;
    for (int32_t n = 1; stands && !compared && n <= rows; ++n)
        stands =
            c.named[static_cast<std::size_t>(n - 1)] == fieldAt<decltype(ChartRow::disc)>(g.chart.bytesOf(n), kRowDisc);
    c.checkedOpen = g.chart.generation();
    c.checkedWrites = keys.chartWrites;
    if (stands) return c;
    c.named.resize(static_cast<std::size_t>(rows));
    c.discCount = discs;
    c.namesPastTheEnd = false;
    c.lastDisc = 0;
    c.rows.clear();
    for (auto& by : c.discsBy) by.clear();
    c.risesBy.fill(0);
    for (int32_t n = 1; n <= rows; ++n) {
        const auto named = fieldAt<decltype(ChartRow::disc)>(g.chart.bytesOf(n), kRowDisc);
        c.named[static_cast<std::size_t>(n - 1)] = named;
        if (named >= discs) c.namesPastTheEnd = true;
        const Row row = rowFromBytes(g, n);
        if (row.disc == 0) continue;
        c.lastDisc = row.disc;
        c.rows.push_back(row);
    }
    c.discGeneration = g.disc.generation();
    c.keysVersion = keys.keysVersion;
    return c;
}

// The number of the chart open in the chart table, or -1 when it was not
// opened by openChart.
int openChartNumber(const Game& g) {
    return g.chart.isOpen() && g.chart.generation() == g.openedChartGeneration ? g.openedChart : -1;
}

// The discs of the open chart's rows that belong to `who`, in row order, and
// the disc of the last row that names one.
void discsOfChart(Game& g, int chart, int mode, int32_t who, std::vector<int16_t>& out, int16_t& lastDisc) {
    out.clear();
    lastDisc = 0;
    if (chart < 0 || mode < 0 || mode > 2) {
        for (int32_t n = 1; n < g.chart.recordCount(); ++n) {
            const Row row = rowFromBytes(g, n);
            if (row.disc == 0) continue;
            lastDisc = row.disc;
            if (mode >= 0 && mode <= 2 && keyOf(row, mode) == who) out.push_back(row.disc);
        }
        return;
    }
    ChartRowKeys::Chart& c = rowsOfChart(g, chart);
    lastDisc = c.lastDisc;
    const auto m = static_cast<std::size_t>(mode);
    // A copy that serves one rise by a key is walked; one that serves more is sorted by it.
    if (c.risesBy[m] < 2) ++c.risesBy[m];
    auto& by = c.discsBy[m];
    if (c.risesBy[m] < 2) {
        for (const Row& row : c.rows)
            if (keyOf(row, mode) == who) out.push_back(row.disc);
        return;
    }
    if (by.empty() && !c.rows.empty()) {
        by.reserve(c.rows.size());
        for (const Row& row : c.rows) by.emplace_back(keyOf(row, mode), row.disc);
        // The order of a key's discs does not matter: each rise is its own.
        std::sort(by.begin(), by.end());
    }
    auto it = std::lower_bound(by.begin(), by.end(), who, [](auto e, int32_t k) { return e.first < k; });
    for (; it != by.end() && it->first == who; ++it) out.push_back(it->second);
}

// Leaves the chart and disc buffers at the last row and disc it looked at,
// as a walk reading each of them would.
void spreadInChart(Game& g, int chart, int mode, int t, int32_t who, int rise) {
    static thread_local std::vector<int16_t> discs;
    int16_t lastDisc = 0;
    discsOfChart(g, chart, mode, who, discs, lastDisc);
    for (int16_t disc : discs)
        patchField<uint8_t>(g.disc, disc, kDiscHype + static_cast<std::size_t>(t),
                            [&](uint8_t hype) { return static_cast<uint8_t>(std::clamp(hype + rise, 1, 100)); });
    const int32_t rows = g.chart.recordCount() - 1;
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
