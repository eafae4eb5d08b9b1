#include "talent/retirement.h"

#include <algorithm>
#include <map>

#include "floor/grammar.h"
#include "floor/news_post.h"
#include "label/scouting.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "talent/band_creation.h"
#include "talent/band_functions.h"
#include "talent/contract_progress.h"
#include "world/artist_sets.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/strings.h"

namespace trovane {

namespace {

std::string nameOf(const ArtistRecord& a) { return trim(trim(a.forename.value) + " " + trim(a.surname.value)); }

std::string jobTitle(Game& g, const ArtistRecord& a) {
    if (a.job < 1 || a.job >= g.job.recordCount()) return {};
    g.job.read(a.job);
    return trim(a.male != kFalse ? g.job->title.value : g.job->titleFemale.value);
}

double fameOf(const ArtistRecord& a) {
    const auto& r = a.reputation;
    return (8.0 * r[0] + 10.0 * r[1] + 7.0 * r[2] + 5.0 * r[3] + 3.0 * r[4]) / 33.0;
}

int memberIndex(const BandRecord& b, int32_t artist) {
    for (int i = 0; i < 10; ++i)
        if (b.members[static_cast<std::size_t>(i)] == artist && artist > 0) return i;
    return -1;
}

void fileEntry(Game& g, ScheduleType type, double date, int16_t band, int16_t artist, int16_t artist2) {
    ScheduleRecord e{};
    e.type = static_cast<uint8_t>(type);
    e.date = date;
    e.band = band;
    e.artist = artist;
    e.artist2 = artist2;
    addSchedule(g, e);
}

bool isBand(Game& g, int32_t band) { return band >= 1 && band < g.band.recordCount(); }
bool isArtist(Game& g, int32_t artist) { return artist >= 1 && artist < g.artist.recordCount(); }

void announceBandRetirementOf(Game& g, int16_t band) {
    if (!isBand(g, band)) return;
    g.band.read(band);
    if (g.band->retired != kFalse) return;
    const double end = g.gameDate + 365;
    g.band->contractEnd = end;
    g.band.write();
    if (bandOfInterest(g)) {
        const std::string name = trim(g.band->name.value);
        const std::string they = grammarWord(g, 1, false);
        const std::string are = grammarWord(g, 0, false);
        const std::string their = grammarWord(g, 5, false);
        const std::string s = grammarWord(g, 2, false);
        g.band.read(band);
        postNews(g, {.date = g.gameDate + 1,
                     .title = name + " announce" + s + " planned retirement.",
                     .text = name + " announced " + they + " " + are +
                             " planning to retire from the industry in 12 months time. Although " + they +
                             " confirmed " + they +
                             " will continue to honour their commitments up until then all "
                             "activities after " +
                             their + " retirement date will be cancelled."});
    }
    fileEntry(g, ScheduleType::bandRetires, end, band, 0, 0);
}

}  // namespace

bool bandOfInterest(Game& g) {
    if (bandRating(g) > 60) return true;
    const int16_t player = g.player.playerLabel;
    if (player > 0 && g.band->label == player) return true;
    if (player <= 0) return false;
    const int16_t band = g.band->id;
    BandRecord held = g.band.rec;
    auto list = playerShortlist(g);
    g.band.rec = held;
    return std::find(list.begin(), list.end(), band) != list.end();
}

void considerRetirement(Game& g) {
    const BandRecord b = g.band.rec;
    if (b.retired != kFalse) return;
    g.style.read(b.style);
    if (g.style->lifeSpan == 0) return;
    const int agePercent = roundTo<int>(b.age * 100.0 / g.style->lifeSpan);
    if (agePercent <= 50) return;
    const int chance = std::clamp((agePercent - 50) * 2, 0, 100);
    if (g.rng.between(0, 99) < chance)
        fileEntry(g, ScheduleType::bandRetirementNotice, g.gameDate + 7 + g.rng.between(0, 13), b.id, 0, 0);
}

void announceBandRetirement(Game& g) { announceBandRetirementOf(g, g.schedule->band); }

void retireBand(Game& g, bool now) {
    if (!now) {
        if (!isBand(g, g.schedule->band)) return;
        g.band.read(g.schedule->band);
    }
    if (g.band->retired != kFalse) return;
    const int16_t band = g.band->id;
    const bool tellPlayer = (!now || g.band->monthsUnsigned != 10) && bandOfInterest(g);
    g.band.read(band);
    g.band->retired = kTrue;
    g.band.write();
    const BandRecord b = g.band.rec;
    for (int16_t m : b.members) {
        if (m < 1) continue;
        g.artist.read(m);
        if (g.artist->band != band) continue;
        g.artist->band = 0;
        g.artist.write(m);
    }
    g.band.read(band);
    if (g.band->label > 0) releaseBand(g, 0, true);
    g.band.read(band);
    if (tellPlayer) {
        const std::string name = trim(g.band->name.value);
        const std::string they = grammarWord(g, 1, false);
        const std::string have = grammarWord(g, 7, false);
        g.band.read(band);
        postNews(g, {.date = g.gameDate,
                     .title = name + " retire.",
                     .text = "Following completion of all agreed commitments " + name + " announced that " + they +
                             " " + have + " officially retired."});
    }
    createBand(g);
    g.band.read(band);
}

void bandFails(Game& g, const std::string& name) {
    const int16_t band = g.band->id;
    if (bandOfInterest(g)) {
        g.band.read(band);
        const std::string bandName = trim(g.band->name.value);
        postNews(g, {.date = g.gameDate,
                     .title = bandName + " call it a day.",
                     .text = bandName +
                             " have shocked the music press today by announcing that, due to being unable to find a "
                             "replacement for " +
                             name +
                             " they are going to retire, effective immediately. Although the news has come as huge "
                             "shock the band stressed that they have not rushed into the decision and all fully "
                             "intend to continue working in the music business for the foresseable future."});
    }
    g.band.read(band);
    retireBand(g, true);
}

namespace {

// Whether the artist of these bytes has the job and one of the styles, read
// without decoding the record, so the search decodes only its candidates.
bool mayReplace(std::span<const uint8_t> bytes, uint8_t job, const std::set<int>& styles) {
    static const std::size_t jobAt = offsetIn<ArtistRecord>("job");
    static const std::size_t styleAt = offsetIn<ArtistRecord>("style");
    return bytes[jobAt] == job && styles.contains(bytes[styleAt]);
}

}  // namespace

int32_t findReplacement(Game& g, int16_t leaver, int16_t band, const std::set<int32_t>& chosen) {
    g.band.read(band);
    const BandRecord b = g.band.rec;
    const double wanted = std::max<int32_t>(bandRating(g), 1);
    const int main = bandMainMarket(g).market - 1;
    g.artist.read(leaver);
    const ArtistRecord out = g.artist.rec;
    const double myRep = std::max<int>(out.reputation[static_cast<std::size_t>(main)], 1);
    const double leaverAbility = std::max<int>(out.ability, 1);
    std::set<int> styles{b.style};
    for (int32_t n = 1; n < g.assstyle.recordCount(); ++n) {
        g.assstyle.read(n);
        if (g.assstyle->a == b.style) styles.insert(g.assstyle->b);
    }
    std::map<int16_t, int32_t> ratings;
    int32_t best = 0;
    double bestScore = 0;
    for (int32_t n : activeArtists(g)) {  // a retired artist is never the one
        if (!mayReplace(g.artist.bytesOf(n), out.job, styles)) continue;
        g.artist.read(n);
        const ArtistRecord& a = g.artist.rec;
        if (a.retired != kFalse || a.retirementDate > kNoDate || a.job != out.job || n == leaver || a.band == band)
            continue;
        if (!styles.contains(a.style) || chosen.contains(n)) continue;
        const double sum = 100.0 * a.reputation[static_cast<std::size_t>(main)] / myRep + 100.0 * fameOf(a) / wanted +
                           200.0 * a.ability / leaverAbility;
        const double score = roundHalfEven(sum) / 4;
        if (score < 70 || score > 130 || score <= bestScore) continue;
        if (a.band > 0) {
            const uint8_t stamina = a.stamina;
            const int16_t other = a.band;
            if (!ratings.contains(other)) {
                g.band.read(other);
                ratings[other] = bandRating(g);
            }
            if (100 - stamina < 100 - ratings[other] / wanted * 100) continue;
        }
        best = n;
        bestScore = score;
    }
    const int32_t last = g.artist.recordCount() - 1;
    if (last >= 1) g.artist.read(last);  // the buffer as a walk of them all leaves it
    g.band.read(band);
    return best;
}

void fileReplacementChain(Game& g, int32_t replacement, double date, std::set<int32_t> chosen) {
    while (replacement != 0) {
        chosen.insert(replacement);
        g.artist.read(replacement);
        const int16_t old = g.artist->band;
        if (old < 1) return;
        g.band.read(old);
        if (g.band->memberCount == 1) {
            g.band->contractEnd = date;
            g.band.write();
            fileEntry(g, ScheduleType::bandRetires, date, old, 0, 0);
            return;
        }
        const int32_t next = findReplacement(g, narrow<int16_t>(replacement), old, chosen);
        fileEntry(g, ScheduleType::memberLeaves, date, old, narrow<int16_t>(replacement), narrow<int16_t>(next));
        replacement = next;
    }
}

void announceArtistRetirement(Game& g) {
    const int16_t artist = g.schedule->artist;
    if (!isArtist(g, artist)) return;
    g.artist.read(artist);
    if (g.artist->retired != kFalse || g.artist->retirementDate > kNoDate) return;
    const int16_t band = g.artist->band;
    const double tomorrow = g.gameDate + 1;
    if (band > 0) {
        g.band.read(band);
        if (g.band->retired == kFalse && g.band->memberCount == 1) {
            announceBandRetirementOf(g, band);
            return;
        }
    }
    int32_t replacement = 0;
    if (band > 0) {
        g.band.read(band);
        const ArtistRecord a = g.artist.rec;
        if (bandOfInterest(g)) {
            const std::string name = nameOf(a);
            const std::string he = personWord(0, a.male != kFalse);
            postNews(g, {.date = tomorrow,
                         .title = name + " announces forthcoming retirement.",
                         .text = name + " has announced " + he +
                                 " is planning to retire from the industry in 12 months time. Although " + he +
                                 " will continue to be a member of " + trim(g.band->name.value) +
                                 " up until then the band have confirmed they will spend this time looking for a "
                                 "suitable replacement."});
        }
        replacement = findReplacement(g, artist, band);
    }
    g.artist.read(artist);
    g.artist->retirementDate = tomorrow;
    g.artist.write();
    fileEntry(g, ScheduleType::artistRetires, tomorrow, band, artist, narrow<int16_t>(replacement));
    fileReplacementChain(g, replacement, tomorrow, {artist});
}

namespace {

// Puts replacement in leaver's place in the current band; both artists written.
void swapIn(Game& g, int32_t leaver, int32_t replacement) {
    const int16_t band = g.band->id;
    int i = memberIndex(g.band.rec, leaver);
    g.band->members[static_cast<std::size_t>(i)] = narrow<int16_t>(replacement);
    g.band.write();
    g.artist.read(replacement);
    g.artist->band = band;
    g.artist.write();
    g.artist.read(leaver);
    if (g.artist->band == band) {
        g.artist->band = 0;
        g.artist.write();
    }
    g.band.read(band);
}

bool usableReplacement(Game& g, int32_t replacement) {
    if (!isArtist(g, replacement)) return false;
    g.artist.read(replacement);
    return g.artist->retired == kFalse;
}

// The leaver is out of the current band with nobody to take the place.
void leaveWithoutReplacement(Game& g, int32_t leaver, const std::string& name) {
    const int16_t band = g.band->id;
    if (g.band->memberCount <= 1) {
        g.artist.read(leaver);
        if (g.artist->band == band) {
            g.artist->band = 0;
            g.artist.write();
        }
        g.band.read(band);
        retireBand(g, true);
        return;
    }
    bandFails(g, name);
}

}  // namespace

void retireArtist(Game& g, int mode, int16_t artist) {
    static_cast<void>(mode);
    if (!isArtist(g, artist)) return;
    g.artist.read(artist);
    if (g.artist->retired != kFalse) return;
    g.artist->retired = kTrue;
    g.artist.write();
    const ArtistRecord a = g.artist.rec;
    const int16_t band = a.band;
    const int32_t replacement = g.schedule->artist == artist ? g.schedule->artist2 : 0;
    if (band > 0) {
        g.band.read(band);
        if (g.band->retired == kFalse && memberIndex(g.band.rec, artist) >= 0) {
            const std::string name = nameOf(a);
            if (g.band->memberCount > 1 && usableReplacement(g, replacement)) {
                const std::string replacementName = nameOf(g.artist.rec);
                g.band.read(band);
                swapIn(g, artist, replacement);
                if (bandOfInterest(g)) {
                    g.band.read(band);
                    const std::string bandName = trim(g.band->name.value);
                    postNews(g, {.date = g.gameDate,
                                 .title = name + " retires.",
                                 .text = name + " has announced that as of today " + personWord(0, a.male != kFalse) +
                                         " has officially retired from " + bandName + ".  " +
                                         "The band revealed to assembled journalists that " + name +
                                         " will be replaced immediately by " + replacementName +
                                         ", although the decision was made some time ago " + bandName +
                                         " revealed they didn't want to make the announcement until they were "
                                         "certain " +
                                         trim(a.forename.value) + " was definitely going to leave the band."});
                }
            } else {
                g.band.read(band);
                leaveWithoutReplacement(g, artist, name);
            }
        }
    }
    g.artist.read(artist);
    if (g.artist->band != 0) {
        g.artist->band = 0;
        g.artist.write();
    }
    createArtist(g, 1);
}

void memberLeaves(Game& g) {
    const ScheduleRecord e = g.schedule.rec;
    if (!isBand(g, e.band) || !isArtist(g, e.artist)) return;
    g.band.read(e.band);
    if (g.band->retired != kFalse || memberIndex(g.band.rec, e.artist) < 0) return;
    g.artist.read(e.artist);
    const ArtistRecord a = g.artist.rec;
    const std::string name = nameOf(a);
    if (g.band->memberCount > 1 && usableReplacement(g, e.artist2)) {
        const ArtistRecord r = g.artist.rec;
        std::string oldBand;
        if (r.band > 0 && r.band != e.band) {
            g.band.read(r.band);
            oldBand = trim(g.band->name.value) + "'s ";
        }
        const std::string job = jobTitle(g, r);
        g.band.read(e.band);
        swapIn(g, e.artist, e.artist2);
        if (bandOfInterest(g)) {
            g.band.read(e.band);
            const std::string bandName = trim(g.band->name.value);
            postNews(g, {.date = g.gameDate,
                         .title = name + " leaves " + bandName + ".",
                         .text = bandName + " have confirmed that " + name +
                                 " has left the band. They added that the departure was very amicable, they praised " +
                                 trim(a.forename.value) +
                                 "'s decision to give plenty of warning, allowing time to find a suitable "
                                 "replacement. The replacement was unveiled today as " +
                                 oldBand + job + " " + nameOf(r) + ". " + trim(r.forename.value) + " announced " +
                                 personWord(0, r.male != kFalse) +
                                 " was very much looking forward to being a part of " + bandName + "."});
        }
        return;
    }
    g.band.read(e.band);
    leaveWithoutReplacement(g, e.artist, name);
}

}  // namespace trovane
