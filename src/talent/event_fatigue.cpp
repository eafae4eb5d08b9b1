#include "talent/event_fatigue.h"

#include <algorithm>
#include <string>

#include "floor/grammar.h"
#include "floor/news_post.h"
#include "schedule/schedule_types.h"
#include "world/artist_sets.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/strings.h"

namespace trovane {

namespace {

// Complaint code of a band that has asked for time off.
constexpr uint8_t kWantsABreak = 1;

int heldPercent(int v) { return std::clamp(v, 0, 100); }

// The words the break request needs for a solo artist or a band (the first
// member may be read into the artist buffer).
struct ActWords {
    std::string they, They, are, their, s;
};

ActWords actWords(Game& g) {
    return {grammarWord(g, 1, false), grammarWord(g, 1, true), grammarWord(g, 0, false), grammarWord(g, 5, false),
            grammarWord(g, 2, false)};
}

void askForABreak(Game& g) {
    auto& complaints = g.band->complaints;
    if (std::find(complaints.begin(), complaints.end(), kWantsABreak) != complaints.end()) return;
    auto freeSlot = std::find(complaints.begin(), complaints.end(), uint8_t{0});
    if (freeSlot == complaints.end()) return;
    *freeSlot = kWantsABreak;
    g.band.write();
    std::string name = trim(g.band->name.value);
    ActWords w = actWords(g);
    std::string text = name + " made it known to you that " + w.they + " " + w.are + " feeling extremely jaded after " +
                       w.their + " recent activity. " + w.They + " " + w.are + " concerned that " + w.they + " " +
                       w.are + " currently unable to give 100% in " + w.their + " recent activities. As a result " +
                       w.they + " " + w.are + " requesting you incorporate a lengthy break into " + w.their +
                       " schedule as soon as possible.";
    postNews(g, {.date = g.gameDate + 1, .title = name + " demand" + w.s + " a break", .text = text});
}

}  // namespace

void applyEventFatigue(Game& g, const ScheduleRecord& entry) {
    if (entry.band < 1) return;
    const auto wearOf = scheduleTypeInfo(entry.type).wear;
    if (wearOf == nullptr) return;
    const Wear wear = wearOf(g, entry);
    // Gigs, travel and rest feed a habit already begun.
    const bool onTheRoad = entry.type == static_cast<uint8_t>(ScheduleType::gig) ||
                           entry.type == static_cast<uint8_t>(ScheduleType::travelDay) ||
                           entry.type == static_cast<uint8_t>(ScheduleType::restDay);
    static const std::size_t kEnergy = offsetIn<ArtistRecord>("energy");
    static const std::size_t kSongQuality = offsetIn<ArtistRecord>("songQuality");
    static const std::size_t kWritingFocus = offsetIn<ArtistRecord>("writingFocus");
    static const std::size_t kMorale = offsetIn<ArtistRecord>("morale");
    static const std::size_t kDrugHabit = offsetIn<ArtistRecord>("drugHabit");
    g.band.read(entry.band);
    int members = std::min<int>(g.band->memberCount, static_cast<int>(g.band->members.size()));
    int energySum = 0;
    // The members are worn in their records' bytes; the artist buffer is left
    // at the last, as reading and writing each in turn leaves it.
    int16_t lastMember = 0;
    for (int i = 0; i < members; ++i) {
        int16_t who = g.band->members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        lastMember = who;
        const auto bytes = g.artist.bytesOf(who);
        // A member away resting is not at work: the rest runs its course.
        if (fieldAt<int16_t>(bytes, kEnergy) >= 0) {
            // The sets of artists at rest take note of the member once, after both fields move.
            patchField<int16_t>(
                g.artist, who, kEnergy, [&](int16_t e) { return static_cast<int16_t>(heldPercent(e - wear.energy)); },
                &g.artistSets);
            if (fieldAt<uint8_t>(bytes, kSongQuality) > 0)
                patchField<uint8_t>(
                    g.artist, who, kWritingFocus,
                    [&](uint8_t f) { return static_cast<uint8_t>(heldPercent(f - wear.energy)); }, &g.artistSets);
            noteArtist(g, who);
            patchField<uint8_t>(g.artist, who, kMorale,
                                [&](uint8_t m) { return static_cast<uint8_t>(heldPercent(m + wear.morale)); });
            if (onTheRoad)
                patchField<uint8_t>(g.artist, who, kDrugHabit,
                                    [](uint8_t d) { return d > 0 ? static_cast<uint8_t>(std::min(100, d + 1)) : d; });
        }
        energySum += fieldAt<int16_t>(bytes, kEnergy);
    }
    if (lastMember > 0) g.artist.read(lastMember);
    if (members == 0) return;
    bool players = g.player.playerLabel > 0 && g.band->label == g.player.playerLabel;
    if (players && toInteger(static_cast<double>(energySum) / g.band->memberCount) < 35) askForABreak(g);
}

}  // namespace trovane
