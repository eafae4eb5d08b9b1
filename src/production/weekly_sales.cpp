#include "production/weekly_sales.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "events/scores.h"
#include "floor/news_post.h"
#include "floor/number_helpers.h"
#include "label/finances.h"
#include "production/businesses.h"
#include "production/chart_history.h"
#include "production/charts.h"
#include "talent/band_functions.h"
#include "world/record_bytes.h"
#include "world/record_store.h"
#include "world/shortlist_lookups.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr std::array<int, 5> kMarketDivisor = {3, 1, 2, 6, 1};
constexpr std::array<Thresholds, 5> kThresholds = {{
    {60000, 100000, 300000},
    {50000000, 500000, 1000000},
    {50000000, 50000000, 1000000},
    {50000000, 35000, 70000},
    {60000, 100000, 300000},
}};
constexpr std::array<const char*, 5> kBodyPrefix = {"A representative of the British Phonographic Industry",
                                                    "A representative of the Recording Industry Association of America",
                                                    "One of your employees", "One of your employees",
                                                    "One of your employees"};
constexpr std::array<const char*, 5> kWhere = {"in the United Kingdom.", "in the United States.", "in Europe.",
                                               "in Oceania.", "worldwide."};

std::size_t at(int t) { return static_cast<std::size_t>(t); }

// The money of the week's sales; the disc and band are written only when writeBack.
void payIncome(Game& g, int chart, bool writeBack);
// limitAndCertify, the disc written only when writeDisc or by a certification.
void limitAndCertify(Game& g, int32_t sales, int chart, bool writeDisc);

// The week's spread: up to a tenth of the figure either way.
double spread(Game& g, double v) {
    double r1 = g.rng.draw();
    double r2 = g.rng.draw();
    return v + intFloor(v / 10 * r1) - intFloor(v / 10 * r2);
}

bool playerHearsOf(Game& g) {
    int16_t player = g.player.playerLabel;
    if (player < 1) return false;
    if (g.disc->label == player || g.band->label == player) return true;
    int16_t band = g.band->id;
    return findShortlistPair(g, band, player) != 0;
}

void certify(Game& g, int t, const std::string& certification, int32_t points) {
    addDiscPoints(g, t, points);
    std::string kind = g.disc->isSingle ? "single" : "album";
    std::string disc = trim(g.disc->title.value);
    std::string band = trim(g.band->name.value);
    addAchievement(g, 0, disc + " (" + kind + ") achieves " + certification + kWhere[at(t)]);
    if (!playerHearsOf(g)) return;
    postNews(g, {.date = g.gameDate,
                 .title = band + "'s " + kind + " gets" + certification,
                 .text = std::string(kBodyPrefix[at(t)]) + " has informed you that " + band + "'s " + kind + " " +
                         disc + " has qualified for" + certification + kWhere[at(t)]});
}

int32_t weeklyCapacity(Game& g, int16_t distributor) {
    if (distributor < 1) return 0;
    g.business.read(distributor);
    return 7 * distributorDailyCapacity(g);
}

void sellRow(Game& g, int chart, int32_t position) {
    const ChartRow row = g.chart.rec;
    g.disc.read(row.disc);
    g.band.read(g.disc->band);
    int t = chart - 5 * g.disc->isSingle;
    auto ti = at(t);
    int32_t sales;
    if (g.disc->totalSales[ti] == 0) {
        sales = firstWeekSales(g, t);
    } else {
        int hypeNow = g.disc->hype[ti];
        int hypeLast = row.lastHype;
        sales = nextWeekSales(g, g.disc->weekSales[ti], hypeNow, hypeLast);
        g.disc->hype[ti] = static_cast<uint8_t>(hypeNow);
        g.chart->lastHype = static_cast<uint8_t>(hypeLast);
    }
    // The disc and band are written once, below, with the week's totals (a
    // certification writes the disc as it stands when it comes).
    limitAndCertify(g, sales, chart, false);
    payIncome(g, chart, false);

    int32_t week = g.disc->weekSales[ti];
    g.disc->totalSales[ti] = narrow<int32_t>(int64_t{g.disc->totalSales[ti]} + week);
    g.disc->lifetimeSales[ti] = narrow<int32_t>(int64_t{g.disc->lifetimeSales[ti]} + week);
    auto pair = static_cast<std::size_t>(salesTotalIndex(t, g.disc->isSingle != 0));
    g.band->salesTotals[pair] = narrow<int32_t>(int64_t{g.band->salesTotals[pair]} + week);
    g.band.write();
    if (const int16_t label = g.disc->label; label > 0) {
        static const std::size_t kLabelSales = offsetIn<LabelRecord>("salesTotals");
        patchField<int32_t>(g.label, label, kLabelSales + pair * sizeof(int32_t),
                            [&](int32_t total) { return narrow<int32_t>(int64_t{total} + week); });
        g.label.read(label);  // the buffer holds the label as written
    }
    uint8_t hypeBefore = g.disc->hype[ti];
    g.disc->hype[ti] = narrow<uint8_t>(std::clamp(toLong(hypeBefore * 0.8), 1, 100));
    g.disc->promotion[ti] = narrow<uint8_t>(std::clamp(toLong(g.disc->promotion[ti] * 0.8), 1, 100));
    g.disc.write();
    g.chart.rec = row;
    g.chart->lastHype = hypeBefore;
    g.chart.write(position);
}

}  // namespace

const char* awardLetter(int t, int32_t sales) {
    static thread_local std::string text;
    Thresholds th = kThresholds[at(t)];
    if (sales >= th.platinum) {
        int32_t n = sales / th.platinum;
        text = n == 1 ? "P" : "P(" + std::to_string(n) + ")";
        return text.c_str();
    }
    if (sales >= th.gold) return "G";
    if (sales >= th.silver) return "S";
    return "";
}

int32_t firstWeekSales(Game& g, int t) {
    auto ti = at(t);
    const DiscRecord& d = g.disc.rec;
    g.band.read(d.band);
    const BandRecord band = g.band.rec;
    g.style.read(band.style);
    int members = std::min<int>(band.memberCount, static_cast<int>(band.members.size()));
    int64_t imageSum = 0;
    for (int i = 0; i < members; ++i) {
        int16_t who = band.members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        g.artist.read(who);
        imageSum += g.artist->imageRating;
    }
    double image = members > 0 ? roundHalfEven(static_cast<double>(imageSum) / members) : 0;
    double b = g.style->abilityWeight;
    double appeal = roundHalfEven(((100 - b) * image + b * band.ability) / 100);
    double song = roundHalfEven((d.commerciality * 3.0 + d.quality) / 4);
    double worth = roundHalfEven((appeal * 2 + song) / 3);
    double h = std::clamp(roundHalfEven(d.hype[ti] * worth / 100), 1.0, 100.0);
    double f = band.reputation[ti];
    double p = d.promotion[ti];
    double y = g.style->popularity[ti];
    double base = roundHalfEven(((std::pow(worth, 4) / 2000 * (1 + h / 10) * (1 + p / 100)) + f * f * 4) /
                                kMarketDivisor[ti] * y / 100);
    double result = roundHalfEven(spread(g, base));
    if (d.isSingle) result = roundHalfEven(result / 5);
    return narrow<int32_t>(result);
}

int32_t nextWeekSales(Game& g, int32_t lastSales, int& hypeNow, int& hypeLastWeek) {
    double v = roundHalfEven(lastSales - lastSales / 10.0);
    hypeNow = std::clamp(hypeNow, 1, 100);
    hypeLastWeek = std::clamp(hypeLastWeek, 1, 100);
    float ratio = static_cast<float>(hypeNow) / static_cast<float>(hypeLastWeek) - 1.0f;
    v = roundHalfEven(static_cast<double>(ratio) * v + v);
    return narrow<int32_t>(roundHalfEven(spread(g, v)));
}

namespace {

void limitAndCertify(Game& g, int32_t sales, int chart, bool writeDisc) {
    int t = chart - 5 * g.disc->isSingle;
    auto ti = at(t);
    const int32_t stock = g.disc->stock[ti];
    const int64_t oldTotal = g.disc->totalSales[ti];
    int32_t capacity = weeklyCapacity(g, g.disc->distributor[ti]);  // reads only the firm
    sales = std::min({sales, capacity, stock});
    sales = std::max(sales, 0);
    g.disc->weekSales[ti] = sales;
    g.disc->stock[ti] = stock - sales;
    if (writeDisc) g.disc.write();

    int64_t newTotal = oldTotal + sales;
    Thresholds th = kThresholds[ti];
    // 50000000 marks a level the territory never awards.
    auto reaches = [&](int64_t level) { return level < 50000000 && oldTotal < level && newTotal >= level; };
    if (reaches(th.silver)) certify(g, t, " silver certification ", 100);
    if (reaches(th.gold)) certify(g, t, " gold certification ", 250);
    if (newTotal >= th.platinum) {
        for (int64_t m = oldTotal / th.platinum + 1; m <= newTotal / th.platinum; ++m)
            certify(g, t,
                    m == 1 ? std::string(" platinum certification ")
                           : " " + std::to_string(m) + " x platinum certification ",
                    500);
    }
}

}  // namespace

void limitAndCertify(Game& g, int32_t sales, int chart) { limitAndCertify(g, sales, chart, true); }

void payDiscIncome(Game& g, int chart) { payIncome(g, chart, true); }

namespace {

void payIncome(Game& g, int chart, bool writeBack) {
    int t = chart - 5 * g.disc->isSingle;
    double price = g.disc->isSingle ? 2.0 : 7.5;
    Money gross = moneyUnits(static_cast<int64_t>(roundHalfEven(g.disc->weekSales[at(t)] * price)));
    Money artistShare = static_cast<Money>(roundHalfEven(static_cast<double>(g.band->royaltyRate) * gross / 100));
    Money labelShare = gross - artistShare;
    int16_t label = g.disc->label;
    auto book = [&](Money amount, int category) {
        g.disc->income = addMoney(g.disc->income, amount);
        if (label < 1 || amount == 0) return;
        g.label.read(label);
        addIncome(g, amount, category);
    };
    book(labelShare, ledgerRecordSales);

    Money toArtists = artistShare;
    double gap = intFloor(moneyToDouble(g.band->grossIncome - g.band->costs));
    if (gap < 0) {
        // The band has not yet earned back what was spent on it.
        Money remaining = moneyUnits(static_cast<int64_t>(-gap));
        if (remaining >= artistShare) {
            book(artistShare, ledgerRecoupedAdvances);
            g.band->grossIncome = addMoney(g.band->grossIncome, artistShare);
            toArtists = 0;
        } else {
            book(remaining, ledgerRecoupedAdvances);
            g.band->grossIncome = addMoney(g.band->grossIncome, artistShare - remaining);
            toArtists = artistShare - remaining;
        }
    }
    if (writeBack) {
        g.disc.write();
        g.band.write();
    }
    // The members are paid from the disc's and band's buffers; neither table is read.
    if (toArtists > 0) payArtists(g, toArtists);
}

}  // namespace

void sortChartBySales(Game& g) {
    static const std::size_t kRowDisc = offsetIn<ChartRow>("disc");
    static const std::size_t kRowTerritory = offsetIn<ChartRow>("territory");
    static const std::size_t kDiscWeekSales = offsetIn<DiscRecord>("weekSales");
    std::vector<ChartRow> rows;
    std::vector<int32_t> sales;
    const int32_t count = g.chart.recordCount() - 1;
    rows.reserve(static_cast<std::size_t>(std::max(count, 0)));
    sales.reserve(rows.capacity());
    int16_t lastDisc = 0;
    for (int32_t n = 1; n <= count; ++n) {
        g.chart.read(n);
        rows.push_back(g.chart.rec);
        const auto row = g.chart.bytesOf(n);
        lastDisc = fieldAt<int16_t>(row, kRowDisc);
        const auto territory = static_cast<std::size_t>(fieldAt<uint8_t>(row, kRowTerritory) % 5);
        sales.push_back(fieldAt<int32_t>(g.disc.bytesOf(lastDisc), kDiscWeekSales + territory * sizeof(int32_t)));
    }
    // The disc buffer ends on the last row's disc, as if each had been read.
    if (lastDisc != 0) g.disc.read(lastDisc);
    // A stable sort is the exchange sort that swaps neighbours only when the
    // left one sold strictly less.
    std::vector<std::size_t> order(rows.size());
    for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return sales[a] > sales[b]; });
    for (std::size_t i = 0; i < order.size(); ++i) {
        g.chart.rec = rows[order[i]];
        g.chart.write(static_cast<int32_t>(i + 1));
    }
}

namespace {

const std::size_t kDiscId = offsetIn<DiscRecord>("id");
const std::size_t kDiscBand = offsetIn<DiscRecord>("band");
const std::size_t kDiscLabel = offsetIn<DiscRecord>("label");
const std::size_t kDiscSingle = offsetIn<DiscRecord>("isSingle");
const std::size_t kDiscTotals = offsetIn<DiscRecord>("totalSales");
const std::size_t kDiscWeeks = offsetIn<DiscRecord>("weekSales");

int64_t sumOf5(const uint8_t* record, std::size_t at) {
    int64_t s = 0;
    for (std::size_t t = 0; t < 5; ++t) s += fieldAt<int32_t>(record, at + t * sizeof(int32_t));
    return s;
}

// The best-seller fields of a band or label record, by their offsets.
struct BestFields {
    std::size_t biggest, bestWeek, copies;
};

// Moves an act's or label's biggest disc and best week to disc id when it
// beats them; discTotal gives a disc's sales to date. Only the fields that
// change are written.
template <class Id, class R, class DiscTotal>
void offerBest(Table<R>& table, int32_t n, BestFields f, int16_t id, int64_t week, int64_t total,
               DiscTotal&& discTotal) {
    const uint8_t* r = table.bytesOf(n).data();
    const Id biggest = fieldAt<Id>(r, f.biggest);
    const bool biggestMoves = (biggest < 1 && total > 0) || (biggest > 0 && discTotal(biggest) < total);
    const Id bestWeek = fieldAt<Id>(r, f.bestWeek);
    const bool bestWeekMoves = (bestWeek < 1 && week > 0) || (bestWeek > 0 && fieldAt<int32_t>(r, f.copies) < week);
    if (biggestMoves) putFieldIn<Id>(table, n, f.biggest, id);
    if (bestWeekMoves) {
        putFieldIn<Id>(table, n, f.bestWeek, id);
        putFieldIn<int32_t>(table, n, f.copies, narrow<int32_t>(week));
    }
}

}  // namespace

void updateBestSellers(Game& g) {
    static const BestFields kBand[2] = {{offsetIn<BandRecord>("biggestAlbum"), offsetIn<BandRecord>("bestWeekAlbum"),
                                         offsetIn<BandRecord>("bestWeekAlbumCopies")},
                                        {offsetIn<BandRecord>("biggestSingle"), offsetIn<BandRecord>("bestWeekSingle"),
                                         offsetIn<BandRecord>("bestWeekSingleCopies")}};
    static const BestFields kLabel[2] = {
        {offsetIn<LabelRecord>("biggestAlbum"), offsetIn<LabelRecord>("bestWeekAlbum"),
         offsetIn<LabelRecord>("bestWeekAlbumCopies")},
        {offsetIn<LabelRecord>("biggestSingle"), offsetIn<LabelRecord>("bestWeekSingle"),
         offsetIn<LabelRecord>("bestWeekSingleCopies")}};
    // The records are changed in their bytes; each buffer ends on the last
    // record a walk reading them whole would have read.
    int32_t lastDisc = 0;
    int16_t lastBand = 0, lastLabel = 0;
    auto discTotal = [&](int32_t disc) -> int64_t {
        if (disc < 1 || disc >= g.disc.recordCount()) return 0;
        lastDisc = disc;
        return sumOf5(g.disc.bytesOf(disc).data(), kDiscTotals);
    };
    const int32_t discs = g.disc.recordCount() - 1;
    for (int32_t n = 1; n <= discs; ++n) {
        const uint8_t* d = g.disc.bytesOf(n).data();
        lastDisc = n;
        const auto band = fieldAt<int16_t>(d, kDiscBand);
        const auto label = fieldAt<int16_t>(d, kDiscLabel);
        if (band < 1 || label < 1) continue;
        const int64_t week = sumOf5(d, kDiscWeeks);
        const int64_t total = sumOf5(d, kDiscTotals);
        const std::size_t single = fieldAt<uint8_t>(d, kDiscSingle) != 0 ? 1 : 0;
        const auto id = fieldAt<int16_t>(d, kDiscId);
        offerBest<int32_t>(g.band, band, kBand[single], id, week, total, discTotal);
        lastBand = band;
        offerBest<int16_t>(g.label, label, kLabel[single], id, week, total, discTotal);
        lastLabel = label;
    }
    if (lastDisc > 0) g.disc.read(lastDisc);
    if (lastBand > 0) g.band.read(lastBand);
    if (lastLabel > 0) g.label.read(lastLabel);
}

void calculateWeeklySales(Game& g) {
    for (int chart = 0; chart <= 9; ++chart) {
        openChart(g, chart);
        int32_t count = g.chart.recordCount();
        for (int32_t i = 1; i < count; ++i) {
            g.chart.read(i);
            g.chart->previousPosition = static_cast<uint8_t>(i < 200 ? i : 0);
            g.chart.write(i);
            sellRow(g, chart, i);
        }
        sortChartBySales(g);
        awardChartPoints(g, chart);
        recordChartWeek(g, chart);
        closeChart(g);
    }
    updateBestSellers(g);
}

}  // namespace trovane
