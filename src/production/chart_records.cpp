// The record holders of each chart: biggest sellers, longest runs, most
// points, the youngest and oldest solo acts at number one, the largest shares.
#include <algorithm>
#include <map>

#include "production/charts.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane {

namespace {

enum Holder : std::size_t {
    bandSales = 0,
    discSales = 1,
    discWeek = 2,
    bandNumberOnes = 3,
    discLifetime = 4,
    discWeeksAll = 5,
    discWeeksPublished = 6,
    bandWeeks = 7,
    labelWeeks = 8,
    discPointsAll = 9,
    discPointsPublished = 10,
    bandPoints = 11,
    labelPoints = 12,
    youngestTopper = 13,
    oldestTopper = 14,
    labelSales = 15,
    labelWeek = 16,
    bandShare = 17,
    discShare = 18,
    labelShare = 19,
};

// A holder is replaced only by a strictly greater value.
void offer(ChartRecords& r, Holder h, int64_t value, int32_t who, const std::string& text) {
    ChartHolder& holder = r.holder[h];
    if (value <= holder.value) return;
    holder.value = narrow<int32_t>(value);
    holder.who = who;
    holder.text = text;
}

std::size_t at(int v) { return static_cast<std::size_t>(v); }

}  // namespace

void updateChartRecords(Game& g, int chart) {
    int t = chart % 5;
    bool single = chart >= 5;
    int length = publishedLength(chart);
    auto pair = at(t * 2 + (single ? 0 : 1));
    auto counter = at(t + 4 * (single ? 1 : 0));
    while (g.chartrecs.recordCount() < chart + 2) {
        g.chartrecs.rec = ChartRecords{};
        g.chartrecs.write(g.chartrecs.recordCount());
    }
    g.chartrecs.read(chart + 1);
    ChartRecords rec = g.chartrecs.rec;
    rec.labelSales.fill(0);

    std::map<int16_t, int64_t> bandWeekSales;
    int64_t bestDiscWeek = 0;
    int32_t bestDisc = 0;
    std::string bestDiscText;
    for (int32_t i = 1; i < g.chart.recordCount(); ++i) {
        g.chart.read(i);
        g.disc.read(g.chart->disc);
        const DiscRecord disc = g.disc.rec;
        if (disc.band < 1) continue;
        g.band.read(disc.band);
        const BandRecord band = g.band.rec;
        std::string text = trim(disc.title.value) + " by " + trim(band.name.value);
        int16_t weeks = t < 4 ? disc.weeksOnChart[at(t)] : int16_t{0};
        int32_t week = disc.weekSales[at(t)];
        if (i == 1 && chart < 4) {
            offer(rec, bandNumberOnes, band.chartPeaks[at(t * 4)], band.id, trim(band.name.value));
            if (band.memberCount == 1 && band.members[0] > 0) {
                g.artist.read(band.members[0]);
                auto age = static_cast<int32_t>(g.gameDate - g.artist->birthDate);
                ChartHolder& young = rec.holder[youngestTopper];
                if (age > 0 && (young.value == 0 || age < young.value)) {
                    young.value = age;
                    young.who = band.id;
                    young.text = trim(band.name.value);
                }
                offer(rec, oldestTopper, age, band.id, trim(band.name.value));
            }
        }
        if (i <= length) {
            offer(rec, discSales, disc.totalSales[at(t)], disc.id, text);
            offer(rec, discWeeksPublished, weeks, disc.id, text);
            offer(rec, discPointsPublished, disc.chartPoints[at(t)], disc.id, text);
            if (disc.label > 0) {
                auto slot = at(99);
                bool found = false;
                for (std::size_t s = 0; s < 100; ++s) {
                    if (rec.labelSlot[s] == disc.label) {
                        slot = s;
                        found = true;
                        break;
                    }
                }
                if (!found) {
                    for (std::size_t s = 0; s < 100; ++s) {
                        if (rec.labelSlot[s] == 0) {
                            slot = s;
                            rec.labelSlot[s] = disc.label;
                            found = true;
                            break;
                        }
                    }
                }
                if (found) rec.labelSales[slot] = narrow<int32_t>(int64_t{rec.labelSales[slot]} + week);
            }
            rec.labelSales[100] = narrow<int32_t>(int64_t{rec.labelSales[100]} + week);
            bandWeekSales[band.id] += week;
            if (week > bestDiscWeek) {
                bestDiscWeek = week;
                bestDisc = disc.id;
                bestDiscText = text;
            }
        }
        offer(rec, discWeek, week, disc.id, text);
        offer(rec, discLifetime, disc.lifetimeSales[at(t)], disc.id, text);
        offer(rec, discWeeksAll, weeks, disc.id, text);
        offer(rec, discPointsAll, disc.chartPoints[at(t)], disc.id, text);
    }

    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        g.band.read(n);
        std::string name = trim(g.band->name.value);
        offer(rec, bandSales, g.band->salesTotals[pair], g.band->id, name);
        if (t < 4) offer(rec, bandWeeks, g.band->chartCounts[counter], g.band->id, name);
        offer(rec, bandPoints, g.band->bandPoints[at(t)], g.band->id, name);
    }
    for (int32_t n = 1; n < g.label.recordCount(); ++n) {
        g.label.read(n);
        std::string name = trim(g.label->name.value);
        offer(rec, labelSales, g.label->salesTotals[pair], g.label->id, name);
        if (t < 4) offer(rec, labelWeeks, g.label->chartCounts[counter], g.label->id, name);
        offer(rec, labelPoints, g.label->points[at(t)], g.label->id, name);
    }
    int64_t bestLabelWeek = 0;
    int16_t bestLabel = 0;
    for (std::size_t s = 0; s < 100; ++s) {
        if (rec.labelSlot[s] != 0 && rec.labelSales[s] > bestLabelWeek) {
            bestLabelWeek = rec.labelSales[s];
            bestLabel = rec.labelSlot[s];
        }
    }
    std::string bestLabelName;
    if (bestLabel > 0) {
        g.label.read(bestLabel);
        bestLabelName = trim(g.label->name.value);
        offer(rec, labelWeek, bestLabelWeek, bestLabel, bestLabelName);
    }

    // Shares in hundredths of a percent; an empty week has none.
    int64_t total = rec.labelSales[100];
    if (total > 0) {
        auto share = [&](int64_t part) { return part * 10000 / total; };
        int16_t bestBand = 0;
        int64_t bestBandWeek = 0;
        for (auto [band, sales] : bandWeekSales) {
            if (sales > bestBandWeek) {
                bestBandWeek = sales;
                bestBand = band;
            }
        }
        if (bestBand > 0) {
            g.band.read(bestBand);
            offer(rec, bandShare, share(bestBandWeek), bestBand, trim(g.band->name.value));
        }
        if (bestDisc > 0) offer(rec, discShare, share(bestDiscWeek), bestDisc, bestDiscText);
        if (bestLabel > 0) offer(rec, labelShare, share(bestLabelWeek), bestLabel, bestLabelName);
    }
    g.chartrecs.rec = rec;
    g.chartrecs.write(chart + 1);
}

}  // namespace trovane
