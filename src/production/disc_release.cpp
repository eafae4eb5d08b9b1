#include "production/disc_release.h"

#include "talent/contract_progress.h"

#include <algorithm>
#include <vector>

#include "events/scores.h"
#include "floor/formats.h"
#include "floor/grammar.h"
#include "floor/news_post.h"
#include "label/finances.h"
#include "production/businesses.h"
#include "production/charts.h"
#include "production/weekly_sales.h"
#include "schedule/band_calendar.h"
#include "schedule/schedule.h"
#include "talent/retirement.h"
#include "world/band_lookups.h"
#include "world/dates.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kMarketing = 3;
std::size_t at(int v) { return static_cast<std::size_t>(v); }
bool isSet(double date) { return date > kNoDate; }

std::string dayText(double date) {
    return std::to_string(dayOf(date)) + "/" + std::to_string(monthOf(date)) + "/" + std::to_string(yearOf(date));
}

void fileEntry(Game& g, uint8_t type, double date, const DiscRecord& disc, int16_t business = 0) {
    ScheduleRecord e{};
    e.type = type;
    e.date = date;
    e.disc = disc.id;
    e.band = disc.band;
    e.label = disc.label;
    e.business = business;
    addSchedule(g, e);
}

// A single of a rival's band, once out everywhere, brings the next single
// from its album six to nine weeks on.
void fileFollowUpSingle(Game& g, const DiscRecord& disc) {
    if (!disc.isSingle || disc.tracks[0] < 1) return;
    if (g.band->label > 0 && g.band->label == g.player.playerLabel) return;
    for (double date : disc.releaseDate)
        if (date > g.gameDate) return;
    g.song.read(disc.tracks[0]);
    uint16_t album = g.song->disc;
    if (album == 0 || album >= 65534 || album == static_cast<uint16_t>(disc.id)) return;
    double date = g.gameDate + (intFloor(g.rng.draw() * 4) + 6) * 7;
    if (isSet(g.band->contractEnd) && date - 60 > g.band->contractEnd) return;
    ScheduleRecord e{};
    e.type = 20;
    e.date = date;
    e.disc = album;
    e.band = disc.band;
    e.label = g.band->label;
    addSchedule(g, e);
}

void payFinalInstallment(Game& g) {
    Money advance = g.band->advanceToPay;
    if (g.band->label > 0 && g.band->label == g.player.playerLabel) {
        std::string band = trim(g.band->name.value);
        std::string their = grammarWord(g, 5, false);
        auto third = static_cast<Money>(roundHalfEven(static_cast<double>(advance) / 3));
        postNews(g,
                 {.date = g.gameDate,
                  .title = band + " paid the final installment of " + their + " advance.",
                  .text = "The final installment of " + band + "'s advance (" + formatMoney(g, third, "###,###,##0") +
                          ") has been paid into " + their + " account today."});
    }
    // The whole advance comes off the disc's takings, not a third of it.
    g.disc->income -= advance;
}

}  // namespace

int releaseHype(Game& g, int reputation) {
    double d = 0;
    if (g.band->label > 0) {
        const BandRecord band = g.band.rec;
        g.label.read(band.label);
        d = g.label->department[kMarketing].rating;
    }
    double x = roundHalfEven(d / 2 * d);
    double y = roundHalfEven(x / 200);
    return std::clamp(static_cast<int>(reputation + y), 1, 100);
}

double earliestReleaseDate(Game& g, int t) {
    const DiscRecord disc = g.disc.rec;
    double earliest = g.gameDate + 42;
    double gap = disc.isSingle ? 45 : 180;
    DiscRecord other{};
    for (int32_t n : discsOfBand(g, disc.band)) {
        if (n == disc.id) continue;
        decodeRecord(g.disc.bytesOf(n).data(), other);
        if (other.isSingle != disc.isSingle) continue;
        double date = other.releaseDate[at(t)];
        if (isSet(date)) earliest = std::max(earliest, date + gap);
    }
    g.disc.rec = disc;
    return earliest;
}

namespace {

// The rules a date must meet, without the earliest-date message.
bool dateAllowed(Game& g, int t, double date, double earliest) {
    if (weekdayOf(date) != 2 || date < earliest) return false;
    if (isSet(g.band->contractEnd) && date > g.band->contractEnd) return false;
    const DiscRecord disc = g.disc.rec;
    const BandRecord band = g.band.rec;
    int32_t busy = bandEngagement(g, 1, date);
    bool ok = busy == 0;
    if (!ok) {
        g.schedule.read(busy);
        ok = g.schedule->type == 15 && g.schedule->disc == disc.id;
    }
    g.disc.rec = disc;
    g.band.rec = band;
    static_cast<void>(t);
    return ok;
}

}  // namespace

double firstOfferedReleaseDate(Game& g, int t) {
    double earliest = earliestReleaseDate(g, t);
    double first = std::ceil(earliest);
    while (weekdayOf(first) != 2) first += 1;
    for (int week = 0; week < 104; ++week)
        if (dateAllowed(g, t, first + week * 7, earliest)) return first + week * 7;
    return 0;
}

std::string releaseDateRefusal(Game& g, int t, double date) {
    double earliest = earliestReleaseDate(g, t);
    if (dateAllowed(g, t, date, earliest)) return "";
    double offered = firstOfferedReleaseDate(g, t);
    std::string where = std::string(kTerritoryKeys[at(t)]);
    if (offered == 0) return "There is no date on which the disc can be released in " + where + ".";
    return formatDate(date, "dd/mm/yyyy") + " is not a release date that can be chosen in " + where +
           ". The earliest date offered is " + formatDate(offered, "dd/mm/yyyy") + ".";
}

void scheduleRelease(Game& g) {
    const DiscRecord disc = g.disc.rec;
    std::vector<double> handled;
    for (double date : disc.releaseDate) {
        if (!isSet(date) || date <= g.gameDate) continue;
        if (std::find(handled.begin(), handled.end(), date) != handled.end()) continue;
        fileEntry(g, 15, date, disc);
        fileEntry(g, 26, date - 7, disc);
        handled.push_back(date);
    }
}

std::string setReleaseDatesRefusal(Game& g, int16_t disc, const std::array<double, 5>& dates) {
    if (disc < 1 || disc >= g.disc.recordCount()) return "There is no such disc.";
    g.disc.read(disc);
    if (g.player.playerLabel < 1 || g.disc->label != g.player.playerLabel)
        return trim(g.disc->title.value) + " is not a disc of your label.";
    if (g.disc->trackCount == 0 || g.disc->tracksRecorded < g.disc->trackCount)
        return trim(g.disc->title.value) + " has not been recorded yet.";
    for (double d : g.disc->releaseDate)
        if (isSet(d) && d <= g.gameDate)
            return trim(g.disc->title.value) + " is already on sale: its dates can no longer be changed.";
    g.band.read(g.disc->band);
    bool any = false;
    for (int t = 0; t < 5; ++t) {
        if (!isSet(dates[at(t)])) continue;
        any = true;
        std::string refusal = releaseDateRefusal(g, t, dates[at(t)]);
        if (!refusal.empty()) return refusal;
    }
    if (!any) return "No territory has been chosen.";
    return "";
}

void setReleaseDates(Game& g, int16_t disc, const std::array<double, 5>& dates) {
    // Earlier release and distributor entries of the disc are cancelled.
    for (int32_t n = 1; n < g.schedule.recordCount(); ++n) {
        g.schedule.read(n);
        if ((g.schedule->type == 15 || g.schedule->type == 26) && g.schedule->disc == disc &&
            g.schedule->date >= g.gameDate) {
            g.schedule->type = 255;
            g.schedule.write();
        }
    }
    g.disc.read(disc);
    for (int t = 0; t < 5; ++t) g.disc->releaseDate[at(t)] = isSet(dates[at(t)]) ? dates[at(t)] : 0.0;
    g.disc.write();
    const DiscRecord rec = g.disc.rec;
    if (rec.isSingle && rec.tracks[0] > 0) {
        g.song.read(rec.tracks[0]);
        for (int t = 0; t < 5; ++t)
            if (isSet(dates[at(t)])) g.song->singleDisc[at(t)] = rec.id;
        g.song.write();
    }
    g.band.read(rec.band);
    scheduleRelease(g);
}

// An entry whose disc is not in the table (a damaged schedule) does nothing.
namespace {
bool entryDiscExists(Game& g, int32_t disc) { return disc >= 1 && disc < g.disc.recordCount(); }
}  // namespace

void releaseDay(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (!entryDiscExists(g, entry.disc)) return;
    g.disc.read(entry.disc);
    g.band.read(g.disc->band);
    if (g.band->additionalAdvanceCount + g.band->offerStage == g.band->optionsRemaining) {
        g.band->optionMonthsLeft = 100;
        g.band.write();
    }
    {
        const DiscRecord disc = g.disc.rec;
        addAchievement(
            g, 0,
            trim(disc.title.value) + (disc.isSingle ? " (single)" : " (album)") + " released " + dayText(g.gameDate));
        g.disc.rec = disc;
    }
    bool earliestDay = std::none_of(g.disc->releaseDate.begin(), g.disc->releaseDate.end(),
                                    [&](double d) { return isSet(d) && d < g.gameDate; });
    if (!g.disc->isSingle && earliestDay) {
        payFinalInstallment(g);
        // The album sets the date of the contract's next option.
        const DiscRecord disc = g.disc.rec;
        g.band.read(disc.band);
        scheduleContractPoint(g, g.gameDate);
        g.disc.rec = disc;
        g.band.read(disc.band);
    }

    for (int t = 0; t < 5; ++t) {
        if (g.disc->releaseDate[at(t)] != g.gameDate) continue;
        if (g.disc->distributor[at(t)] < 1) {
            const DiscRecord disc = g.disc.rec;
            int16_t firm = rivalChooseDistributor(g, t);
            g.disc.rec = disc;
            g.disc->distributor[at(t)] = firm;
        }
        int hype = releaseHype(g, g.band->reputation[at(t)]);
        g.disc->hype[at(t)] = static_cast<uint8_t>(hype);
        g.disc->promotion[at(t)] = static_cast<uint8_t>(std::clamp(g.disc->promotion[at(t)] + hype, 1, 100));
        g.disc.write();
        const DiscRecord disc = g.disc.rec;
        openChart(g, t + 5 * disc.isSingle);
        g.chart.rec = ChartRow{};
        g.chart->disc = disc.id;
        g.chart->territory = static_cast<uint8_t>(t);
        addChartRow(g);
        closeChart(g);
        g.disc.rec = disc;
    }
    g.disc.write();
    const DiscRecord disc = g.disc.rec;
    fileFollowUpSingle(g, disc);
    if (!disc.isSingle) {
        g.band.read(disc.band);
        considerRetirement(g);
    }
}

Money distributionCost(int32_t copies, int quality, bool single) {
    float price = single ? 2.0f : 7.5f;
    float p = price * (static_cast<float>(quality) / 2100.0f + 0.15f);
    return moneyUnits(static_cast<int64_t>(roundHalfEven(static_cast<double>(p) * copies)));
}

int16_t rivalChooseDistributor(Game& g, int t) {
    const DiscRecord disc = g.disc.rec;
    int32_t required = toLong(firstWeekSales(g, t) * 2.0 / 7);
    g.disc.rec = disc;
    int16_t label = disc.label;
    int32_t count = g.business.recordCount();
    for (int32_t n = 1; n < count && label > 0; ++n) {
        g.business.read(n);
        if (g.business->kind == 2 && g.business->open == -1 && g.business->owner == label &&
            distributorDailyCapacity(g) > required)
            return g.business->id;
    }
    int16_t last = 0;
    for (int draw = 0; draw < 1001 && count > 1; ++draw) {
        g.business.read(g.rng.between(1, count - 1));
        if (g.business->kind != 2) continue;
        last = g.business->id;
        if (g.business->open == -1 && distributorDailyCapacity(g) > required) return last;
    }
    return last;
}

void rivalAssignDistributors(Game& g) {
    for (int t = 0; t < 5; ++t) {
        if (g.disc->releaseDate[at(t)] != g.gameDate + 7 || g.disc->distributor[at(t)] > 0) continue;
        const DiscRecord disc = g.disc.rec;
        int16_t firm = rivalChooseDistributor(g, t);
        g.disc.rec = disc;
        g.disc->distributor[at(t)] = firm;
    }
    g.disc.write();
}

void chargeDistribution(Game& g, int daysAhead) {
    const DiscRecord disc = g.disc.rec;
    Money bill = 0;
    for (int t = 0; t < 5; ++t) {
        if (disc.releaseDate[at(t)] != g.gameDate + daysAhead || disc.distributor[at(t)] < 1) continue;
        g.business.read(disc.distributor[at(t)]);
        Money charge = distributionCost(disc.stock[at(t)], g.business->quality, disc.isSingle != 0);
        bill = addMoney(bill, charge);
        if (g.business->owner > 0) {
            g.label.read(g.business->owner);
            addIncome(g, charge, ledgerBusinesses);
        }
    }
    g.band.read(disc.band);
    if (g.band->label > 0) {
        g.label.read(g.band->label);
        addExpense(g, bill, ledgerOtherExpense);
    }
    g.disc.rec = disc;
}

void distributorNeeded(Game& g) {
    g.schedule->date += 7;
    g.schedule.write();
    const ScheduleRecord entry = g.schedule.rec;
    if (!entryDiscExists(g, entry.disc)) return;
    g.disc.read(entry.disc);
    g.band.read(g.disc->band);
    bool players = g.player.playerLabel > 0 && g.disc->label == g.player.playerLabel;
    if (!players) {
        rivalAssignDistributors(g);
        chargeDistribution(g, 7);
        return;
    }
    static constexpr std::array<const char*, 5> kListed = {"Uk,", "US,", "Europe,", "Oceania,", "Other Territories,"};
    std::string list;
    int count = 0;
    for (int t = 0; t < 5; ++t) {
        if (g.disc->releaseDate[at(t)] != entry.date) continue;
        list += kListed[at(t)];
        ++count;
    }
    if (count == 5) list = "worldwide,";
    if (!list.empty()) list.pop_back();
    std::string kind = g.disc->isSingle ? "single" : "album";
    std::string title = trim(g.disc->title.value);
    std::string band = trim(g.band->name.value);
    postNews(g, {.date = g.gameDate,
                 .title = "Distributor required for " + kind + " " + title,
                 .text = band + "'s " + kind + " is released in the following territories : " + list +
                         " next week, as a result a distributor must be chosen for these territories.",
                 .scheduleLink = entry.id});
}

std::string distributorsRefusal(Game& g, int16_t disc, const std::array<int16_t, 5>& firms) {
    if (disc < 1 || disc >= g.disc.recordCount()) return "There is no such disc.";
    g.disc.read(disc);
    if (g.player.playerLabel < 1 || g.disc->label != g.player.playerLabel)
        return trim(g.disc->title.value) + " is not a disc of your label.";
    bool any = false;
    for (int t = 0; t < 5; ++t) {
        double d = g.disc->releaseDate[at(t)];
        bool due = isSet(d) && d >= g.gameDate && d <= g.gameDate + 7;
        any = any || due;
        int16_t firm = firms[at(t)];
        if (firm == 0) continue;
        if (!due) return std::string("No release is due within the week in ") + kTerritoryKeys[at(t)] + ".";
        if (firm >= g.business.recordCount() || firm < 0) return "There is no such firm.";
        g.business.read(firm);
        if (g.business->kind != 2 || g.business->open != -1)
            return trim(g.business->name.value) + " is not a distribution firm open for business.";
    }
    if (!any) return trim(g.disc->title.value) + " has no release due within the week.";
    return "";
}

void chooseDistributors(Game& g, int16_t disc, const std::array<int16_t, 5>& firms) {
    g.disc.read(disc);
    g.band.read(g.disc->band);
    for (int t = 0; t < 5; ++t) {
        double d = g.disc->releaseDate[at(t)];
        if (!isSet(d) || d < g.gameDate || d > g.gameDate + 7) continue;
        if (firms[at(t)] > 0) {
            g.disc->distributor[at(t)] = firms[at(t)];
        } else if (g.disc->distributor[at(t)] < 1) {
            const DiscRecord rec = g.disc.rec;
            int16_t firm = rivalChooseDistributor(g, t);
            g.disc.rec = rec;
            g.disc->distributor[at(t)] = firm;
        }
    }
    g.disc.write();
    chargeDistribution(g, 6);
}

}  // namespace trovane
