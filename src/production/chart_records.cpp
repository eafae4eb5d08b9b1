// The record holders of each chart: biggest sellers, longest runs, most
// points, the youngest and oldest solo acts at number one, the largest shares.
#include <algorithm>
#include <array>
#include <map>
#include <vector>

#include "production/charts.h"
#include "world/record_bytes.h"
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

std::array<int32_t, 3> heldByBands(const ChartRecords& r) {
    return {r.holder[bandSales].value, r.holder[bandWeeks].value, r.holder[bandPoints].value};
}

const std::size_t kRowDisc = offsetIn<ChartRow>("disc");
const std::size_t kDiscId = offsetIn<DiscRecord>("id");
const std::size_t kDiscBand = offsetIn<DiscRecord>("band");
const std::size_t kDiscLabel = offsetIn<DiscRecord>("label");
const std::size_t kDiscTitle = offsetIn<DiscRecord>("title");
const std::size_t kDiscWeeks = offsetIn<DiscRecord>("weeksOnChart");
const std::size_t kDiscWeekSales = offsetIn<DiscRecord>("weekSales");
const std::size_t kDiscTotals = offsetIn<DiscRecord>("totalSales");
const std::size_t kDiscLifetime = offsetIn<DiscRecord>("lifetimeSales");
const std::size_t kDiscPoints = offsetIn<DiscRecord>("chartPoints");
const std::size_t kBandId = offsetIn<BandRecord>("id");
const std::size_t kBandName = offsetIn<BandRecord>("name");
const std::size_t kBandMemberCount = offsetIn<BandRecord>("memberCount");
const std::size_t kBandMembers = offsetIn<BandRecord>("members");
const std::size_t kBandSales = offsetIn<BandRecord>("salesTotals");
const std::size_t kBandCounts = offsetIn<BandRecord>("chartCounts");
const std::size_t kBandPoints = offsetIn<BandRecord>("bandPoints");
const std::size_t kBandPeaks = offsetIn<BandRecord>("chartPeaks");
const std::size_t kLabelId = offsetIn<LabelRecord>("id");
const std::size_t kLabelName = offsetIn<LabelRecord>("name");
const std::size_t kLabelSales = offsetIn<LabelRecord>("salesTotals");
const std::size_t kLabelCounts = offsetIn<LabelRecord>("chartCounts");
const std::size_t kLabelPoints = offsetIn<LabelRecord>("points");

// Element i of an array field that starts at byte offset base.
template <class T>
T element(std::span<const uint8_t> bytes, std::size_t base, int i) {
    return fieldAt<T>(bytes, base + static_cast<std::size_t>(i) * sizeof(T));
}

std::string bandName(std::span<const uint8_t> b) { return textAt<decltype(BandRecord::name)>(b, kBandName); }

constexpr uint16_t kEveryChart = (1U << 10) - 1;

// Marks each band whose sales totals, chart counts or points a write changes
// (or that a write adds) for every chart to look at again.
void watchBandFigures(Game& g) {
    ChangedBands& changed = g.changedBands;
    if (changed.watching) return;
    g.band.watchWrites(&changed,
                       [&g, &changed](int32_t n, std::span<const uint8_t>, std::span<const uint8_t>) {
                           if (changed.generation != g.band.generation()) return;
                           const auto k = static_cast<std::size_t>(n);
                           if (changed.marks.size() <= k) changed.marks.resize(k + 1, 0);
                           if (changed.marks[k] == 0) changed.listed.push_back(n);
                           changed.marks[k] = kEveryChart;
                       },
                       {{kBandSales, sizeof(BandRecord::salesTotals)},
                        {kBandCounts, sizeof(BandRecord::chartCounts)},
                        {kBandPoints, sizeof(BandRecord::bandPoints)}});
    changed.watching = true;
}

// The bands chart `chart` must test against its band holders, in record
// order: every band when it has not looked at all of them since the band
// table was opened, or when its holders are not those it left; otherwise
// those changed since it last looked. The chart's marks are taken off.
std::vector<int32_t> bandsToTest(Game& g, int chart, const std::array<int32_t, 3>& held) {
    watchBandFigures(g);
    ChangedBands& changed = g.changedBands;
    if (changed.generation != g.band.generation()) {
        changed.generation = g.band.generation();
        changed.marks.clear();
        changed.listed.clear();
        for (auto& c : changed.charts) c.looked = false;
    }
    auto& c = changed.charts[at(chart)];
    const bool every = !c.looked || c.held != held;
    const auto bit = static_cast<uint16_t>(1U << chart);
    std::vector<int32_t> out;
    if (every) {
        out.resize(static_cast<std::size_t>(std::max(g.band.recordCount() - 1, 0)));
        for (std::size_t i = 0; i < out.size(); ++i) out[i] = static_cast<int32_t>(i + 1);
    } else {
        for (int32_t n : changed.listed)
            if ((changed.marks[at(n)] & bit) != 0) out.push_back(n);
        std::sort(out.begin(), out.end());
    }
    for (int32_t n : changed.listed) changed.marks[at(n)] &= static_cast<uint16_t>(~bit);
    std::erase_if(changed.listed, [&](int32_t n) { return changed.marks[at(n)] == 0; });
    c.looked = true;
    return out;
}

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
    const int32_t rows = g.chart.recordCount() - 1;
    int16_t lastDisc = 0;
    for (int32_t i = 1; i <= rows; ++i) {
        const int16_t discNo = fieldAt<int16_t>(g.chart.bytesOf(i), kRowDisc);
        const auto d = g.disc.bytesOf(discNo);
        lastDisc = discNo;
        const int16_t bandNo = fieldAt<int16_t>(d, kDiscBand);
        if (bandNo < 1) continue;
        const auto b = g.band.bytesOf(bandNo);
        const int16_t discId = fieldAt<int16_t>(d, kDiscId);
        const int16_t bandId = fieldAt<int16_t>(b, kBandId);
        // The text is spelt out only for a row that takes a record.
        std::string text;
        auto textOf = [&]() -> const std::string& {
            if (text.empty()) text = textAt<decltype(DiscRecord::title)>(d, kDiscTitle) + " by " + bandName(b);
            return text;
        };
        auto offerDisc = [&](Holder h, int64_t value) {
            if (value > rec.holder[h].value) offer(rec, h, value, discId, textOf());
        };
        int16_t weeks = t < 4 ? element<int16_t>(d, kDiscWeeks, t) : int16_t{0};
        int32_t week = element<int32_t>(d, kDiscWeekSales, t);
        int16_t points = element<int16_t>(d, kDiscPoints, t);
        if (i == 1 && chart < 4) {
            int32_t numberOnes = element<uint8_t>(b, kBandPeaks, t * 4);
            if (numberOnes > rec.holder[bandNumberOnes].value)
                offer(rec, bandNumberOnes, numberOnes, bandId, bandName(b));
            const int16_t solo = element<int16_t>(b, kBandMembers, 0);
            if (fieldAt<uint8_t>(b, kBandMemberCount) == 1 && solo > 0) {
                g.artist.read(solo);
                auto age = static_cast<int32_t>(g.gameDate - g.artist->birthDate);
                ChartHolder& young = rec.holder[youngestTopper];
                if (age > 0 && (young.value == 0 || age < young.value)) {
                    young.value = age;
                    young.who = bandId;
                    young.text = bandName(b);
                }
                if (age > rec.holder[oldestTopper].value) offer(rec, oldestTopper, age, bandId, bandName(b));
            }
        }
        if (i <= length) {
            offerDisc(discSales, element<int32_t>(d, kDiscTotals, t));
            offerDisc(discWeeksPublished, weeks);
            offerDisc(discPointsPublished, points);
            const int16_t label = fieldAt<int16_t>(d, kDiscLabel);
            if (label > 0) {
                auto slot = at(99);
                bool found = false;
                for (std::size_t s = 0; s < 100; ++s) {
                    if (rec.labelSlot[s] == label) {
                        slot = s;
                        found = true;
                        break;
                    }
                }
                if (!found) {
                    for (std::size_t s = 0; s < 100; ++s) {
                        if (rec.labelSlot[s] == 0) {
                            slot = s;
                            rec.labelSlot[s] = label;
                            found = true;
                            break;
                        }
                    }
                }
                if (found) rec.labelSales[slot] = narrow<int32_t>(int64_t{rec.labelSales[slot]} + week);
            }
            rec.labelSales[100] = narrow<int32_t>(int64_t{rec.labelSales[100]} + week);
            bandWeekSales[bandId] += week;
            if (week > bestDiscWeek) {
                bestDiscWeek = week;
                bestDisc = discId;
                bestDiscText = textOf();
            }
        }
        offerDisc(discWeek, week);
        offerDisc(discLifetime, element<int32_t>(d, kDiscLifetime, t));
        offerDisc(discWeeksAll, weeks);
        offerDisc(discPointsAll, points);
    }
    // The chart and disc buffers end where a walk reading each row would leave them.
    if (rows >= 1) g.chart.read(rows);
    if (lastDisc != 0) g.disc.read(lastDisc);

    const int32_t bands = g.band.recordCount() - 1;
    for (int32_t n : bandsToTest(g, chart, heldByBands(rec))) {
        const auto b = g.band.bytesOf(n);
        const int16_t id = fieldAt<int16_t>(b, kBandId);
        std::string name;
        auto offerBand = [&](Holder h, int64_t value) {
            if (value <= rec.holder[h].value) return;
            if (name.empty()) name = bandName(b);
            offer(rec, h, value, id, name);
        };
        offerBand(bandSales, element<int32_t>(b, kBandSales, static_cast<int>(pair)));
        if (t < 4) offerBand(bandWeeks, element<int16_t>(b, kBandCounts, static_cast<int>(counter)));
        offerBand(bandPoints, element<int32_t>(b, kBandPoints, t));
    }
    const int32_t labels = g.label.recordCount() - 1;
    for (int32_t n = 1; n <= labels; ++n) {
        const auto l = g.label.bytesOf(n);
        const int16_t id = fieldAt<int16_t>(l, kLabelId);
        std::string name;
        auto offerLabel = [&](Holder h, int64_t value) {
            if (value <= rec.holder[h].value) return;
            if (name.empty()) name = textAt<decltype(LabelRecord::name)>(l, kLabelName);
            offer(rec, h, value, id, name);
        };
        offerLabel(labelSales, element<int32_t>(l, kLabelSales, static_cast<int>(pair)));
        if (t < 4) offerLabel(labelWeeks, element<int16_t>(l, kLabelCounts, static_cast<int>(counter)));
        offerLabel(labelPoints, element<int32_t>(l, kLabelPoints, t));
    }
    if (bands >= 1) g.band.read(bands);
    if (labels >= 1) g.label.read(labels);
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
    g.changedBands.charts[at(chart)].held = heldByBands(rec);
    g.chartrecs.rec = rec;
    g.chartrecs.write(chart + 1);
}

}  // namespace trovane
