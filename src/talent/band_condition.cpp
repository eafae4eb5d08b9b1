#include "talent/band_condition.h"

#include <algorithm>
#include <cmath>

#include "floor/grammar.h"
#include "floor/news_post.h"
#include "schedule/band_calendar.h"
#include "talent/reputation.h"
#include "world/artist_sets.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/strings.h"

namespace trovane {

namespace {

const std::size_t kBandReputation = offsetIn<BandRecord>("reputation");
const std::size_t kBandHype = offsetIn<BandRecord>("hype");
const std::size_t kBandMemberCount = offsetIn<BandRecord>("memberCount");
const std::size_t kBandMembers = offsetIn<BandRecord>("members");
const std::size_t kBandComplaints = offsetIn<BandRecord>("complaints");
const std::size_t kArtistEnergy = offsetIn<ArtistRecord>("energy");
constexpr int kMemberSlots = 10;
constexpr std::size_t kComplaintSlots = 3;

constexpr uint8_t kWantsABreak = 1;
constexpr int kIdleDaysOfConcern = 60;
constexpr int kActivityLines = 10;

int memberSlots(const BandRecord& b) { return std::min<int>(b.memberCount, static_cast<int>(b.members.size())); }

// The member numbers of the current band, in order, without empty slots.
std::vector<int16_t> membersOf(const BandRecord& b) {
    std::vector<int16_t> out;
    for (int i = 0; i < memberSlots(b); ++i)
        if (b.members[static_cast<std::size_t>(i)] > 0) out.push_back(b.members[static_cast<std::size_t>(i)]);
    return out;
}

// One member's month: past the middle of a career the potential declines,
// and the ability climbs (or falls) toward it by whole points, the rest kept
// in abilityProgress.
void developArtist(Game& g, int bandAge) {
    ArtistRecord& a = g.artist.rec;
    g.style.read(a.style);
    const int lifeSpan = g.style->lifeSpan;
    if (lifeSpan < 1) return;  // a style without a career length gives no measure
    const int agePercent = roundTo<int>(bandAge * 100.0 / lifeSpan);
    if (agePercent > 50) {
        const auto decline = roundTo<uint8_t>(roundHalfEven((50 - lifeSpan) / 2.0) / 12.0);
        a.potential = static_cast<uint8_t>(std::clamp(a.potential - decline, 20, 100));
    }
    double v = (a.potential - a.ability) / 2.0 * 10 / lifeSpan / 12 * 100 + a.abilityProgress;
    const double k = std::trunc(v / 100);
    if (k != 0) {
        v -= k * 100;
        a.ability = static_cast<uint8_t>(std::clamp(a.ability + static_cast<int>(k), 0, 100));
    }
    a.abilityProgress = toInteger(v);
}

// Days the current band has had nothing on, counted back from today to the
// first day the news file knows of, stopping at the first busy day. Counting
// stops once the band is past the mark of concern.
int daysIdle(Game& g, double firstDay) {
    int idle = 0;
    for (double d = g.gameDate; d >= firstDay && idle <= kIdleDaysOfConcern; d -= 1) {
        if (bandEngagement(g, 1, d) != 0) break;
        ++idle;
    }
    return idle;
}

bool hasSongwriter(Game& g, const BandRecord& b) {
    for (int16_t who : membersOf(b)) {
        g.artist.read(who);
        if (g.artist->songQuality > 0) return true;
    }
    return false;
}

std::string headOfArtistAndRepertoire(Game& g) {
    g.label.read(g.player.playerLabel);
    const int16_t head = g.label->department[0].head;
    if (head < 1) return "a spokesperson for your Artist and Rerpertoire team";
    g.staff.read(head);
    return "your head of Artist and Repertoire " + trim(g.staff->forename.value) + " " + trim(g.staff->surname.value) +
           " ";
}

}  // namespace

void dropBandHype(Game& g) {
    const int32_t last = g.band.recordCount() - 1;
    for (int32_t n = 1; n <= last; ++n) {
        for (int m = 0; m < 5; ++m) {
            // A meter that only falls changes one field, written in the bytes;
            // one that moves the reputation takes the whole way.
            const auto bytes = g.band.bytesOf(n);
            const std::size_t hypeAt = kBandHype + 2 * static_cast<std::size_t>(m);
            const HypeStep step = hypeStep(fieldAt<uint8_t>(bytes, kBandReputation + static_cast<std::size_t>(m)),
                                           fieldAt<int16_t>(bytes, hypeAt), -1);
            if (step.change == 0) {
                patchField<int16_t>(g.band, n, hypeAt, [&](int16_t) { return narrow<int16_t>(step.hype); });
                continue;
            }
            g.band.read(n);
            changeHype(g, -1, m, -1);
        }
    }
    // The buffer holds the last band, as it was left.
    if (last >= 1) g.band.read(last);
}

namespace {

// Whether the band's members are rested on average and it has asked for a
// break, read from the bytes; `lastMember` is the last member whose energy
// was read, 0 when none was. The energies matter only to a band that asked
// for a break, so only then are the members' records looked at.
bool restedAfterABreak(Game& g, int32_t n, int16_t& lastMember) {
    const auto bytes = g.band.bytesOf(n);
    const int count = fieldAt<uint8_t>(bytes, kBandMemberCount);
    if (count == 0) return false;
    bool askedForABreak = false;
    for (std::size_t c = 0; c < kComplaintSlots; ++c)
        if (fieldAt<uint8_t>(bytes, kBandComplaints + c) == kWantsABreak) askedForABreak = true;
    int sum = 0;
    for (int i = 0; i < std::min(count, kMemberSlots); ++i) {
        const auto who = fieldAt<int16_t>(bytes, kBandMembers + 2 * static_cast<std::size_t>(i));
        if (who <= 0) continue;
        if (askedForABreak) sum += fieldAt<int16_t>(g.artist.bytesOf(who), kArtistEnergy);
        lastMember = who;
    }
    return askedForABreak && toInteger(static_cast<double>(sum) / count) > 49;
}

}  // namespace

void checkBandEnergy(Game& g) {
    const int32_t last = g.band.recordCount() - 1;
    int16_t lastMember = 0;
    for (int32_t n = 1; n <= last; ++n) {
        // Most bands are not rested after a break: they are passed over in
        // their bytes, and the buffers set as the walk would leave them after.
        if (!restedAfterABreak(g, n, lastMember)) continue;
        lastMember = 0;
        g.band.read(n);
        const BandRecord band = g.band.rec;
        for (int16_t who : membersOf(band)) g.artist.read(who);
        bool removed = false;
        for (auto& c : g.band->complaints)
            if (c == kWantsABreak) {
                c = 0;
                removed = true;
            }
        if (!removed) continue;
        g.band.write(n);
        if (band.label < 1 || band.label != g.player.playerLabel) continue;
        const std::string name = trim(band.name.value);
        const std::string s = grammarWord(g, 2, false);
        const std::string they = grammarWord(g, 1, false);
        const std::string are = grammarWord(g, 0, false);
        const std::string have = grammarWord(g, 7, false);
        g.label.read(band.label);
        const std::string label = trim(g.label->name.value);
        postNews(g, {.date = g.gameDate + 1,
                     .title = name + " say" + s + " thanks to " + label,
                     .text = name + " rang your office today to thank you for the recent break. Although " + they +
                             " " + are + " still feeling a little jaded the break that " + they + " " + have +
                             " just had has made a huge difference."});
    }
    if (last >= 1) g.band.read(last);
    if (lastMember != 0) g.artist.read(lastMember);
}

void checkPlayerControlledBands(Game& g) {
    const int16_t player = g.player.playerLabel;
    if (player < 1) return;
    const double firstDay = g.news.readIfPresent(1) ? g.news->date : g.gameStartDate;
    std::string lines;
    int count = 0;
    for (int32_t n = 1; n < g.band.recordCount() && count < kActivityLines; ++n) {
        g.band.read(n);
        if (g.band->label != player || g.band->retired != kFalse) continue;
        if (daysIdle(g, firstDay) <= kIdleDaysOfConcern) continue;
        g.band.read(n);
        const BandRecord band = g.band.rec;
        lines += "- " + trim(band.name.value);
        if (band.albumStatus == 0 && !hasSongwriter(g, band)) lines += " (Not currently working on an album)";
        lines += "\r\n";
        ++count;
    }
    if (count == 0) return;
    const std::string speaker = headOfArtistAndRepertoire(g);
    postNews(g, {.date = g.gameDate + 1,
                 .title = "A&R Department present their band activity report",
                 .text = speaker +
                         " informed you that the following band(s) are concerned that they have been inactive for "
                         "some time :-\r\n\r\n" +
                         lines +
                         "\r\nThe team suggest that in order to prevent the reputation of the above band(s) from "
                         "slipping you give them activities that will put them in the public eye. This could "
                         "include promotion, touring etc."});
}

void bandPotentialCalculations(Game& g) {
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        g.band.read(n);
        if (g.band->retired != kFalse) continue;
        const BandRecord band = g.band.rec;
        const std::vector<int16_t> members = membersOf(band);
        if (band.memberCount == 0) continue;
        int sum = 0;
        for (int16_t who : members) {
            g.artist.read(who);
            developArtist(g, band.age);
            g.artist.write(who);
            sum += g.artist->ability;
        }
        g.band.read(n);
        g.band->ability = roundTo<uint8_t>(static_cast<double>(sum) / band.memberCount);
        g.band.write(n);
    }
}

std::vector<std::string> artistFeelings(Game& g) {
    const bool male = g.artist->male != 0;
    std::vector<std::string> out;
    if (g.artist->band > 0) {
        g.band.read(g.artist->band);
        for (uint8_t c : g.band->complaints)
            if (c == kWantsABreak) out.push_back("Requested time off from " + personWord(3, male) + " busy schedule.");
    }
    if (out.empty()) out.emplace_back("Happy with conditions.");
    return out;
}

// Every band grows a year older on 31 December, retired ones too.
void increaseBandAges(Game& g) {
    for (int32_t n = 1; n != g.band.recordCount(); ++n) {
        g.band.read(n);
        g.band->age = narrow<uint8_t>(g.band->age + 1);
        g.band.write(n);
    }
}

// A burnt-out artist (energy below 0) is away one more day, and comes back at
// full strength; everyone else recovers by stamina, and writers sharpen their focus.
// Only artists the day can change are read: one at full energy, and at full
// focus if they write, stays as it is.
void increaseArtistEnergy(Game& g) {
    static const std::size_t kStamina = offsetIn<ArtistRecord>("stamina");
    static const std::size_t kSongQuality = offsetIn<ArtistRecord>("songQuality");
    static const std::size_t kWritingFocus = offsetIn<ArtistRecord>("writingFocus");
    // The two fields that recover are written in each artist's bytes; the
    // buffer is set after, as the walk would leave it.
    for (int32_t n : unrestedArtists(g)) {
        const auto bytes = g.artist.bytesOf(n);
        const auto energy = fieldAt<int16_t>(bytes, kArtistEnergy);
        // The sets of artists at rest take note of each once, after its fields move.
        if (energy < 0) {
            patchField<int16_t>(
                g.artist, n, kArtistEnergy,
                [&](int16_t) { return energy == -1 ? int16_t{100} : narrow<int16_t>(energy + 1); }, &g.artistSets);
        } else {
            double recovered = energy + fieldAt<uint8_t>(bytes, kStamina) / 32.0 + 1;
            patchField<int16_t>(
                g.artist, n, kArtistEnergy, [&](int16_t) { return std::clamp<int16_t>(toInteger(recovered), 0, 100); },
                &g.artistSets);
            if (fieldAt<uint8_t>(bytes, kSongQuality) > 0)
                patchField<uint8_t>(
                    g.artist, n, kWritingFocus,
                    [](uint8_t focus) { return static_cast<uint8_t>(std::min(focus + 3, 100)); }, &g.artistSets);
        }
        noteArtist(g, n);
    }
    const int32_t last = g.artist.recordCount() - 1;
    if (last >= 1) g.artist.read(last);  // the buffer as a walk of them all leaves it
}

}  // namespace trovane
