#include "production/recording.h"

#include <fmt/format.h>
#include <algorithm>

#include "floor/formats.h"
#include "floor/grammar.h"
#include "floor/news_post.h"
#include "label/finances.h"
#include "production/businesses.h"
#include "production/songwriting.h"
#include "rivals/rival_albums.h"
#include "schedule/band_calendar.h"
#include "schedule/schedule.h"
#include "talent/contract_progress.h"
#include "world/band_lookups.h"
#include "world/cp1252.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr uint8_t kRecordingType = 7;

std::string bandName(const Game& g) { return trim(g.band->name.value); }
std::string word(Game& g, int code, bool capital = false) { return grammarWord(g, code, capital); }
std::string kindOf(const Game& g) { return g.disc->isSingle != 0 ? "single" : "album"; }

bool isPlayers(const Game& g) { return g.player.playerLabel > 0 && g.band->label == g.player.playerLabel; }

// The band's label pays the studio; the studio's owner, whoever it is, earns it.
void chargeStudio(Game& g, int16_t label, int16_t owner, Money amount) {
    if (label > 0 && g.label.readIfPresent(label)) addExpense(g, amount, ledgerStudioFees);
    if (owner > 0 && g.label.readIfPresent(owner)) addIncome(g, amount, ledgerBusinesses);
}

ScheduleRecord recordingEntry(const Game& g, double date) {
    ScheduleRecord e{};
    e.type = kRecordingType;
    e.date = date;
    e.band = g.band->id;
    e.label = g.band->label;
    e.disc = g.disc->id;
    e.business = g.disc->studio;
    return e;
}

void recordingFinished(Game& g) {
    const int16_t band = g.band->id;
    const int16_t disc = g.disc->id;
    const bool album = g.disc->isSingle == 0;
    if (isPlayers(g)) {
        const std::string name = bandName(g);
        const std::string kind = kindOf(g);
        const std::string title = trim(g.disc->title.value);
        std::string text =
            name + " informed you " + word(g, 1) + " " + word(g, 7) + " finished recording the new " + kind +
            (album ? ". As a result the second installment of " + word(g, 5) + " advance has been paid." : ".");
        postNews(g, {.date = g.gameDate + 1,
                     .title = name + " complete" + " the recording of " + word(g, 5) + " new " + kind + ".",
                     .text = text,
                     .extra = "As recording is now you complete you can set a release date for the disc, to do this "
                              "go into " +
                              name + "'s discography and select the relevant disc (" + title +
                              ".) You will notice a button in the sidebar marked disc options, upon clicking this "
                              "you will have the option to set a release date."});
        g.band.read(band);
    }
    if (album) {
        payAdvanceThird(g);
        g.band.read(band);
        g.band->albumStatus = 3;
        g.band.write();
    }
    if (g.band->label > 0 && !isPlayers(g)) {
        g.disc.read(disc);
        rivalRecordingComplete(g);
    }
}

}  // namespace

std::string checkWorkOnAlbum(Game& g, int16_t band) {
    if (!g.band.readIfPresent(band)) return "There is no such band.";
    if (!isPlayers(g)) return bandName(g) + " " + word(g, 0) + " not signed to your label.";
    if (g.band->albumStatus >= 1 && g.band->albumStatus <= 3)
        return bandName(g) + " " + word(g, 0) + " already working on an album.";
    return {};
}

void workOnAlbum(Game& g, int16_t band, int budget) {
    g.band.read(band);
    g.band->materialBudget = narrow<uint8_t>(std::clamp(budget, 0, 4));
    g.band->albumStatus = 1;
    g.band.write();
}

std::string workOnAlbumText(Game& g, int16_t band) {
    g.band.read(band);
    std::string text = "Are you sure you want " + bandName(g) + " to dedicate all " + word(g, 5) +
                       " free time to working on material for a new album?";
    const int32_t n = g.band->songsWritten;
    if (n > 0) {
        const std::string they = word(g, 1);
        const std::string have = word(g, 7);
        text += " So far, although " + they + " " + have + " written " + std::to_string(n) + " track" +
                (n != 1 ? "s" : "") + " " + they + " " + have + " not been working full-time on material.";
    }
    return text;
}

std::string materialBudgetText(Game& g, int16_t band) {
    g.band.read(band);
    return bandName(g) +
           " may wish to use material not written by themselves for this album. What budget will you allow for this?";
}

std::string materialBudgetCaption(const Game& g, int budget) {
    return fmt::format("Quality {}%, {} a song", materialQualityBase(budget),
                       formatMoney(g, moneyUnits(materialPrice(budget)), "###,###,##0"));
}

std::vector<int32_t> songsInHand(Game& g, int16_t band) { return unusedSongsOf(g, band); }

std::string albumProgressText(Game& g, int16_t band) {
    const auto n = songsInHand(g, band).size();
    g.band.read(band);
    return bandName(g) + " " + word(g, 7) + " written the following " + std::to_string(n) +
           " songs to appear on a future album.";
}

std::string checkFinaliseAlbum(Game& g, int16_t band, const std::vector<int32_t>& tracks) {
    if (!g.band.readIfPresent(band)) return "There is no such band.";
    if (!isPlayers(g)) return bandName(g) + " " + word(g, 0) + " not signed to your label.";
    g.band.read(band);
    if (g.band->albumStatus >= 2 || discAwaitingStudio(g, band) > 0)
        return "The album of " + trim(g.band->name.value) + " has already been finalised.";
    if (tracks.empty()) return "Please choose at least one song for the album.";
    if (tracks.size() > kMaxTracks) return "An album can have at most 20 tracks.";
    const std::vector<int32_t> inHand = songsInHand(g, band);
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        if (std::find(inHand.begin(), inHand.end(), tracks[i]) == inHand.end())
            return fmt::format("Song {} is not one of the songs in hand.", tracks[i]);
        if (std::find(tracks.begin(), tracks.begin() + static_cast<std::ptrdiff_t>(i), tracks[i]) !=
            tracks.begin() + static_cast<std::ptrdiff_t>(i))
            return fmt::format("Song {} is marked twice.", tracks[i]);
    }
    return {};
}

int16_t finaliseAlbum(Game& g, int16_t band, const std::vector<int32_t>& tracks) {
    g.band.read(band);
    DiscRecord d{};
    d.coverImage = std::string("none.jpg");
    d.isSingle = 0;
    d.band = band;
    d.label = g.band->label;
    d.trackCount = narrow<uint8_t>(tracks.size());
    for (std::size_t i = 0; i < tracks.size(); ++i) d.tracks[i] = tracks[i];
    d.releaseDate.fill(kNoDate);
    d.recordingDue = kNoDate;
    g.disc.rec = d;
    const auto disc = narrow<int16_t>(g.disc.append());
    computeDiscRatings(g);
    g.disc.write();
    for (int32_t s : tracks) {
        g.song.read(s);
        g.song->disc = static_cast<uint16_t>(disc);
        g.song.write();
    }
    holdBandSongs(g, band);
    g.disc.read(disc);
    return disc;
}

void computeDiscRatings(Game& g) {
    DiscRecord& d = g.disc.rec;
    if (d.isSingle != 0) {
        g.song.read(d.tracks[0]);
        d.quality = g.song->quality;
        d.commerciality = g.song->commerciality;
        return;
    }
    double quality = 0, commerciality = 0;
    const int count = std::min<int>(d.trackCount, kMaxTracks);
    for (int i = 0; i < count; ++i) {
        g.song.read(d.tracks[static_cast<std::size_t>(i)]);
        quality += g.song->quality;
        commerciality += g.song->commerciality;
    }
    if (count == 0) return;
    d.quality = toByte(quality / count);
    d.commerciality = toByte(commerciality / count);
}

int16_t discAwaitingStudio(Game& g, int16_t band) {
    for (int32_t n = g.disc.recordCount() - 1; n >= 1; --n) {
        g.disc.read(n);
        if (g.disc->band == band && g.disc->isSingle == 0 && g.disc->studio == 0 && g.disc->tracksRecorded == 0 &&
            g.disc->trackCount > 0 && g.disc->releaseDate[0] <= kNoDate)
            return narrow<int16_t>(n);
    }
    return 0;
}

std::string finaliseAlbumText(const std::string& suggestion) {
    return "Now the tracklist has been finalised the album is ready to be recorded, firstly a title for the album "
           "must be chosen. Your assistants suggest " +
           suggestion + ".";
}

std::string checkDiscTitle(const std::string& title) {
    if (trim(title).empty()) return "Please enter a title for the album.";
    if (utf8ToCp1252(title).size() > 50) return "The title can be at most 50 characters long.";
    return {};
}

void setDiscTitle(Game& g, int16_t disc, const std::string& title) {
    g.disc.read(disc);
    g.disc->title = trim(title);
    g.disc.write();
}

std::string chooseStudioText(Game& g, int16_t disc) {
    g.disc.read(disc);
    g.band.read(g.disc->band);
    return "Please choose a studio for " + bandName(g) + " to record the " + kindOf(g) + " in from the list below.";
}

Money studioCost(const Game& g, int days) { return moneyUnits(static_cast<int64_t>(days) * studioDayCost(g)); }

std::string checkBookStudio(Game& g, int16_t disc, int16_t studio) {
    if (!g.disc.readIfPresent(disc)) return "There is no such disc.";
    if (g.disc->studio != 0) return "This disc has already been booked into a studio.";
    if (!g.business.readIfPresent(studio) || g.business->kind != kStudio || g.business->open != kFirmOpen)
        return "Please choose an open studio from the list.";
    return {};
}

StudioBooking bookStudio(Game& g, int16_t disc, int16_t studio) {
    g.business.read(studio);
    const int16_t owner = g.business->owner;
    g.disc.read(disc);
    g.disc->studio = studio;
    g.disc.write();
    StudioBooking b;
    b.sessions = g.disc->trackCount * 2;
    b.cost = studioCost(g, b.sessions);
    g.band.read(g.disc->band);
    const int16_t band = g.band->id;
    const int16_t label = g.band->label;
    g.band.read(band);
    const std::vector<double> days = nextFreeDates(g, g.gameDate + 14, b.sessions);
    if (!days.empty()) b.firstDay = days.front();
    g.disc.read(disc);
    g.band.read(band);
    std::vector<ScheduleRecord> entries;
    for (double day : days) entries.push_back(recordingEntry(g, day));
    addSchedules(g, entries);
    b.recordingDue = g.gameDate + 13 + b.sessions;
    g.disc.read(disc);
    g.disc->recordingDue = b.recordingDue;
    g.disc.write();
    g.band.read(band);
    if (g.disc->isSingle == 0) {
        g.band->songsWritten = disc;
        g.band->albumStatus = 2;
        g.band.write();
    }
    chargeStudio(g, label, owner, b.cost);
    g.disc.read(disc);
    g.band.read(band);
    return b;
}

void recordingDay(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (!g.disc.readIfPresent(entry.disc) || !g.band.readIfPresent(g.disc->band)) return;
    if (g.disc->tracksRecorded >= g.disc->trackCount) return;
    if (g.rng.between(0, 99) < g.band->stamina) {
        ++g.disc->tracksRecorded;
        g.disc.write();
    }
    if (g.disc->tracksRecorded == g.disc->trackCount) {
        recordingFinished(g);
        return;
    }
    if (g.gameDate >= g.disc->recordingDue) {
        g.schedule.rec = entry;
        extendBooking(g);
    }
}

void extendBooking(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (!g.disc.readIfPresent(entry.disc) || !g.band.readIfPresent(g.disc->band)) return;
    if (g.disc->tracksRecorded >= g.disc->trackCount || g.gameDate < g.disc->recordingDue) return;
    const int16_t disc = g.disc->id;
    const int16_t label = g.band->label;
    const double next = nextFreeDate(g, g.gameDate + 1);
    g.disc.read(disc);
    g.disc->recordingDue = next;
    g.disc.write();
    ScheduleRecord again = entry;
    again.date = next;
    addSchedule(g, again);
    if (!g.business.readIfPresent(g.disc->studio)) return;
    chargeStudio(g, label, g.business->owner, studioCost(g, 1));
    g.disc.read(disc);
}

std::string recordingProgressTitle(Game& g, int16_t disc) {
    g.disc.read(disc);
    return g.disc->isSingle != 0 ? "Single Progress" : "Album Progress";
}

std::string recordingProgressText(Game& g, int16_t disc) {
    g.disc.read(disc);
    const DiscRecord d = g.disc.rec;
    std::string studio = g.business.readIfPresent(d.studio) ? trim(g.business->name.value) : std::string();
    g.band.read(d.band);
    const std::string kind = d.isSingle != 0 ? "single" : "album";
    return bandName(g) + " " + word(g, 0) + " currently in " + studio + " recording " + word(g, 5) + " forthcoming " +
           kind + ". So far " + word(g, 1) + " " + word(g, 7) + " completed recording on " +
           std::to_string(d.tracksRecorded) + " of a total of " + std::to_string(d.trackCount) + " tracks.";
}

}  // namespace trovane
