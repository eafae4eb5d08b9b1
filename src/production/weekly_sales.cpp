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
#include "world/record_store.h"
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
    for (int32_t n = 1; n < g.shortlist.recordCount(); ++n) {
        g.shortlist.read(n);
        if (g.shortlist->label == player && g.shortlist->band == band) return true;
    }
    return false;
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
    limitAndCertify(g, sales, chart);
    payDiscIncome(g, chart);

    int32_t week = g.disc->weekSales[ti];
    g.disc->totalSales[ti] = narrow<int32_t>(int64_t{g.disc->totalSales[ti]} + week);
    g.disc->lifetimeSales[ti] = narrow<int32_t>(int64_t{g.disc->lifetimeSales[ti]} + week);
    auto pair = static_cast<std::size_t>(salesTotalIndex(t, g.disc->isSingle != 0));
    g.band->salesTotals[pair] = narrow<int32_t>(int64_t{g.band->salesTotals[pair]} + week);
    g.band.write();
    if (g.disc->label > 0) {
        g.label.read(g.disc->label);
        g.label->salesTotals[pair] = narrow<int32_t>(int64_t{g.label->salesTotals[pair]} + week);
        g.label.write();
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

Thresholds certificationThresholds(int t) { return kThresholds[at(t)]; }

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

void limitAndCertify(Game& g, int32_t sales, int chart) {
    int t = chart - 5 * g.disc->isSingle;
    auto ti = at(t);
    const DiscRecord before = g.disc.rec;
    int32_t capacity = weeklyCapacity(g, before.distributor[ti]);
    sales = std::min({sales, capacity, before.stock[ti]});
    sales = std::max(sales, 0);
    g.disc->weekSales[ti] = sales;
    g.disc->stock[ti] = before.stock[ti] - sales;
    g.disc.write();

    int64_t oldTotal = before.totalSales[ti];
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

void payDiscIncome(Game& g, int chart) {
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
    g.disc.write();
    g.band.write();
    if (toArtists > 0) {
        const BandRecord band = g.band.rec;
        payArtists(g, toArtists);
        g.band.rec = band;
    }
}

void sortChartBySales(Game& g) {
    std::vector<ChartRow> rows;
    std::vector<int32_t> sales;
    for (int32_t n = 1; n < g.chart.recordCount(); ++n) {
        g.chart.read(n);
        rows.push_back(g.chart.rec);
        g.disc.read(g.chart->disc);
        sales.push_back(g.disc->weekSales[at(g.chart->territory % 5)]);
    }
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

void updateBestSellers(Game& g) {
    auto discTotal = [&](int32_t disc) -> int64_t {
        if (disc < 1 || disc >= g.disc.recordCount()) return 0;
        g.disc.read(disc);
        int64_t s = 0;
        for (int32_t v : g.disc->totalSales) s += v;
        return s;
    };
    for (int32_t n = 1; n < g.disc.recordCount(); ++n) {
        g.disc.read(n);
        const DiscRecord d = g.disc.rec;
        if (d.band < 1 || d.label < 1) continue;
        int64_t week = 0, total = 0;
        for (int t = 0; t < 5; ++t) {
            week += d.weekSales[at(t)];
            total += d.totalSales[at(t)];
        }
        bool single = d.isSingle != 0;
        g.band.read(d.band);
        BandRecord band = g.band.rec;
        int32_t& biggest = single ? band.biggestSingle : band.biggestAlbum;
        int32_t& bestWeek = single ? band.bestWeekSingle : band.bestWeekAlbum;
        int32_t& bestWeekCopies = single ? band.bestWeekSingleCopies : band.bestWeekAlbumCopies;
        if ((biggest < 1 && total > 0) || (biggest > 0 && discTotal(biggest) < total)) biggest = d.id;
        if ((bestWeek < 1 && week > 0) || (bestWeek > 0 && bestWeekCopies < week)) {
            bestWeek = d.id;
            bestWeekCopies = narrow<int32_t>(week);
        }
        g.band.rec = band;
        g.band.write();

        g.label.read(d.label);
        LabelRecord label = g.label.rec;
        int16_t& lBiggest = single ? label.biggestSingle : label.biggestAlbum;
        int16_t& lBestWeek = single ? label.bestWeekSingle : label.bestWeekAlbum;
        int32_t& lBestWeekCopies = single ? label.bestWeekSingleCopies : label.bestWeekAlbumCopies;
        if ((lBiggest < 1 && total > 0) || (lBiggest > 0 && discTotal(lBiggest) < total)) lBiggest = d.id;
        if ((lBestWeek < 1 && week > 0) || (lBestWeek > 0 && lBestWeekCopies < week)) {
            lBestWeek = d.id;
            lBestWeekCopies = narrow<int32_t>(week);
        }
        g.label.rec = label;
        g.label.write();
    }
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
