// Pressing a disc: the forecast the assistants give, the plant's bill and
// the weeks of pressing.
#include <algorithm>

#include "floor/formats.h"
#include "floor/news_post.h"
#include "floor/number_helpers.h"
#include "label/finances.h"
#include "production/businesses.h"
#include "production/disc_release.h"
#include "production/weekly_sales.h"
#include "schedule/schedule.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

std::size_t at(int v) { return static_cast<std::size_t>(v); }

constexpr std::array<const char*, 5> kLines = {
    "- UK : ", "- US : ", "- Europe : ", "- Oceania : ", "- Other Territories : "};

double reputationFactor(int reputation) {
    if (reputation >= 91) return 1.5;
    if (reputation >= 81) return 1.4;
    if (reputation >= 71) return 1.25;
    if (reputation >= 50) return 1.1;
    return 1.0;
}

}  // namespace

int32_t forecastSales(Game& g, int t) {
    int64_t forecast = firstWeekSales(g, t);
    int32_t running = static_cast<int32_t>(forecast);
    int hype = g.disc->hype[at(t)];
    for (;;) {
        int hypeNow = toLong(hype * 0.8);
        int hypeLast = hype;
        int32_t next = nextWeekSales(g, running, hypeNow, hypeLast);
        hype = hypeNow;
        forecast += next;
        running = next;
        if (next < 500) break;
    }
    int32_t figure = narrow<int32_t>(forecast);
    roundToMoneyStep(figure);
    return toLong(figure * 1.5);
}

PressForecast pressForecast(Game& g) {
    PressForecast out;
    g.band.read(g.disc->band);
    const BandRecord band = g.band.rec;
    out.text = "You must now choose how many records to press, you assitants believe " + trim(band.name.value) +
               " should expect to sell the following quantities :-";
    for (int t = 0; t < 5; ++t) {
        if (g.disc->releaseDate[at(t)] <= kNoDate) continue;
        const DiscRecord before = g.disc.rec;
        auto hype = static_cast<uint8_t>(releaseHype(g, band.reputation[at(t)]));
        g.disc.rec = before;
        g.disc->promotion[at(t)] = hype;
        g.disc->hype[at(t)] = hype;
        const DiscRecord disc = g.disc.rec;
        int32_t forecast = forecastSales(g, t);
        g.disc.rec = disc;
        g.band.rec = band;
        // The rest of the world is judged by the band's standing in Oceania.
        int reputation = band.reputation[at(t == 4 ? 3 : t)];
        int32_t figure = toLong(toLong(forecast * reputationFactor(reputation)) * 2.0);
        out.figure[at(t)] = roundToMoneyStep(figure);
        out.text += "\n" + std::string(kLines[at(t)]) + formatNumber(figure, "###,###,##0");
    }
    return out;
}

float pressingCostPerUnit(int32_t copies) { return 100.0f / (static_cast<float>(copies) / 10.0f * 0.8f) + 0.75f; }

Money pressingCost(int32_t copies) {
    if (copies <= 0) return 0;
    double unit = pressingCostPerUnit(copies);
    return moneyUnits(static_cast<int64_t>(roundHalfEven(unit * copies)));
}

std::string pressDiscsRefusal(Game& g, int16_t disc, int16_t plant, const std::array<int32_t, 5>& copies) {
    if (disc < 1 || disc >= g.disc.recordCount()) return "There is no such disc.";
    g.disc.read(disc);
    std::string title = trim(g.disc->title.value);
    if (g.player.playerLabel < 1 || g.disc->label != g.player.playerLabel)
        return title + " is not a disc of your label.";
    if (g.disc->trackCount == 0 || g.disc->tracksRecorded < g.disc->trackCount)
        return title + " has not been recorded yet.";
    int64_t total = 0;
    for (int t = 0; t < 5; ++t) {
        if (copies[at(t)] <= 0) continue;
        if (g.disc->releaseDate[at(t)] <= kNoDate)
            return title + " has no release date in " + kTerritoryKeys[at(t)] + ": set one before pressing.";
        total += copies[at(t)];
    }
    if (total == 0) return "No copies have been chosen.";
    if (plant < 1 || plant >= g.business.recordCount()) return "There is no such plant.";
    g.business.read(plant);
    if (g.business->kind != 1 || g.business->open != -1)
        return trim(g.business->name.value) + " is not a manufacturing plant open for business.";
    return "";
}

void pressDiscs(Game& g, int16_t disc, int16_t plant, const std::array<int32_t, 5>& copies) {
    g.disc.read(disc);
    g.band.read(g.disc->band);
    // The press form set the territories' hype and promotion as it opened.
    for (int t = 0; t < 5; ++t) {
        if (g.disc->releaseDate[at(t)] <= kNoDate) continue;
        const DiscRecord before = g.disc.rec;
        auto hype = static_cast<uint8_t>(releaseHype(g, g.band->reputation[at(t)]));
        g.disc.rec = before;
        g.disc->hype[at(t)] = hype;
        g.disc->promotion[at(t)] = hype;
    }
    int64_t total = 0;
    for (int t = 0; t < 5; ++t) {
        if (copies[at(t)] <= 0) continue;
        g.disc->pressingOrder[at(t)] = narrow<int32_t>(int64_t{g.disc->pressingOrder[at(t)]} + copies[at(t)]);
        total += copies[at(t)];
    }
    g.disc.write();
    const DiscRecord rec = g.disc.rec;
    Money cost = pressingCost(narrow<int32_t>(total));
    g.band.read(rec.band);
    if (g.band->label > 0) {
        g.label.read(g.band->label);
        addExpense(g, cost, ledgerManufacture);
    }
    g.business.read(plant);
    int16_t owner = g.business->owner;
    int32_t capacity = plantDailyCapacity(g);
    if (owner > 0) {
        g.label.read(owner);
        addIncome(g, cost, ledgerBusinesses);
    }
    int weeks = 100;
    if (capacity > 0) {
        double days = roundHalfEven(static_cast<double>(total) / capacity);
        weeks = std::clamp(toLong(days / 7 + 1), 1, 100);
    }
    for (int w = 1; w <= weeks; ++w) {
        ScheduleRecord e{};
        e.type = 25;
        e.date = g.gameDate + 7.0 * w;
        e.disc = rec.id;
        e.band = rec.band;
        e.label = rec.label;
        e.business = plant;
        addSchedule(g, e);
    }
    g.disc.rec = rec;
}

void pressWeek(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (entry.disc < 1 || entry.disc >= g.disc.recordCount()) return;
    g.disc.read(entry.disc);
    int open = static_cast<int>(
        std::count_if(g.disc->pressingOrder.begin(), g.disc->pressingOrder.end(), [](int32_t o) { return o > 0; }));
    if (open == 0) return;
    if (entry.business < 1 || entry.business >= g.business.recordCount()) return;
    g.business.read(entry.business);
    double output = 7.0 * plantDailyCapacity(g);
    double share = roundHalfEven(output / open);
    for (int t = 0; t < 5; ++t) {
        int32_t& order = g.disc->pressingOrder[at(t)];
        if (order <= 0) continue;
        --open;
        int32_t& stock = g.disc->stock[at(t)];
        if (share <= order) {
            auto s = static_cast<int32_t>(share);
            order -= s;
            stock = narrow<int32_t>(int64_t{stock} + s);
        } else {
            // What a small order leaves over goes to the territories after it.
            int32_t done = order;
            stock = narrow<int32_t>(int64_t{stock} + done);
            order = 0;
            if (open > 0) share += roundHalfEven((share - done) / open);
        }
    }
    g.disc.write();
    bool finished =
        std::all_of(g.disc->pressingOrder.begin(), g.disc->pressingOrder.end(), [](int32_t o) { return o <= 0; });
    if (!finished || g.player.playerLabel < 1 || g.disc->label != g.player.playerLabel) return;
    const DiscRecord disc = g.disc.rec;
    std::string plant = trim(g.business->name.value);
    g.band.read(disc.band);
    postNews(g, {.date = g.gameDate,
                 .title = plant + " complete work on " + trim(disc.title.value),
                 .text = "You have been informed that " + plant + " have finished pressing copies of " +
                         trim(g.band->name.value) + "'s " + trim(disc.title.value) + "."});
}

}  // namespace trovane
