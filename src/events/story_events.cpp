#include "events/story_events.h"

#include <algorithm>
#include <vector>

#include "events/story_text.h"
#include "floor/news_post.h"
#include "label/scouting.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "talent/retirement.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/strings.h"

namespace trovane {

// Makes eventRollsPerDay - 1 counted draws of an enabled (root) event; each
// fires when a roll of 0 to 99 comes in below its chance. Draws of events that
// cannot fire by themselves do not count; with none enabled there is nothing to roll.
void runRandomEvents(Game& g) {
    int32_t events = g.event.recordCount() - 1;
    int rolls = g.eventRollsPerDay - 1;
    if (events < 1 || rolls < 1) return;
    bool anyEnabled = false;
    for (int32_t n = 1; n <= events && !anyEnabled; ++n) {
        g.event.read(n);
        anyEnabled = g.event->isRoot != 0;
    }
    if (!anyEnabled) return;
    for (int counted = 0; counted < rolls;) {
        g.event.read(g.rng.between(1, events));
        if (g.event->isRoot == 0) continue;
        ++counted;
        if (g.rng.between(0, 99) < g.event->chance) tryStartEvent(g);
    }
}

namespace {

bool outside(int16_t bound, int value) {
    if (bound > 0) return value < bound;
    if (bound < 0) return value > -bound;
    return false;
}

// A death: the artist retires at once and leaves the band without a replacement.
void dieNow(Game& g, int16_t n) {
    g.artist.read(n);
    g.artist->retired = kTrue;
    const int16_t band = g.artist->band;
    g.artist->band = 0;
    g.artist.write();
    if (band < 1 || band >= g.band.recordCount()) return;
    g.band.read(band);
    if (g.band->retired != kFalse) return;
    g.artist.read(n);
    const std::string name = trim(trim(g.artist->forename.value) + " " + trim(g.artist->surname.value));
    if (g.band->memberCount <= 1) {
        retireBand(g, true);
        return;
    }
    bandFails(g, name);
}

// The artist leaves the band tomorrow, replaced as an announced retirement is.
void leaveTomorrow(Game& g, int16_t n) {
    g.artist.read(n);
    const int16_t band = g.artist->band;
    if (band < 1 || band >= g.band.recordCount()) return;
    const double tomorrow = g.gameDate + 1;
    const int32_t replacement = findReplacement(g, n, band, {n});
    ScheduleRecord e{};
    e.type = static_cast<uint8_t>(ScheduleType::memberLeaves);
    e.date = tomorrow;
    e.band = band;
    e.artist = n;
    e.artist2 = narrow<int16_t>(replacement);
    addSchedule(g, e);
    fileReplacementChain(g, replacement, tomorrow, {n});
}

}  // namespace

std::string failedCondition(Game& g, const EventCondition& c, int place, int16_t first) {
    const ArtistRecord a = g.artist.rec;
    ArtistRecord p1{};
    if (place == 1 && first > 0 && first < g.artist.recordCount()) {
        g.artist.read(first);
        p1 = g.artist.rec;
        g.artist.rec = a;
    }
    const bool male = a.male != kFalse;
    switch (c.genderRule) {
    case 1:
        if (!male) return "gender";
        break;
    case 2:
        if (male) return "gender";
        break;
    case 3:
        if (place == 1 && male != (p1.male != kFalse)) return "gender";
        break;
    case 4:
        if (place == 1 && male == (p1.male != kFalse)) return "gender";
        break;
    default: break;
    }
    BandRecord band{};
    if (a.band > 0 && a.band < g.band.recordCount()) {
        g.band.read(a.band);
        band = g.band.rec;
    }
    if (c.bandRule == -3) {
        if (place == 1 ? (a.band == 0 || a.band != p1.band) : (a.band == 0 || band.memberCount > 2)) return "band";
    } else if (c.bandRule == -2) {
        if (place == 1 && (a.band == 0 || a.band != p1.band)) return "band";
    } else if (c.bandRule != 0) {
        if (a.band == 0 || band.label != c.bandRule) return "band";
    }
    const int16_t player = g.player.playerLabel;
    const bool players = a.band > 0 && player > 0 && band.label == player;
    if (c.labelRule == -2 && !players) return "label";
    if (c.labelRule == -1 && players) return "label";
    if (c.labelRule > 0 && (a.band == 0 || band.label != c.labelRule)) return "label";
    if (outside(c.age, a.age)) return "age";
    if (c.job != 0 && c.job != a.job) return "job";
    static constexpr const char* kNames[6] = {"ability", "charisma", "controversy", "attitude", "angst", "morale"};
    const int values[6] = {a.ability, a.charisma, a.controversy, a.attitude, a.angst, a.morale};
    for (std::size_t i = 0; i < 6; ++i)
        if (outside(c.bounds[i], values[i])) return kNames[i];
    return {};
}

namespace {

constexpr int kCastDraws = 1000;

bool validArtist(Game& g, int32_t n) { return n >= 1 && n < g.artist.recordCount(); }

// The event type whose mark a story's cast carries: its root event's.
int rootType(Game& g, const ScheduleRecord& stage) {
    const EventRecord held = g.event.rec;
    int type = g.event->eventType;
    if (stage.offer > 0 && stage.offer < g.schedule.recordCount() && stage.offer != stage.id) {
        const ScheduleRecord entry = g.schedule.rec;
        g.schedule.read(stage.offer);
        const int16_t ev = g.schedule->eventRecord;
        g.schedule.rec = entry;
        if (ev > 0 && ev < g.event.recordCount()) {
            g.event.read(ev);
            type = g.event->eventType;
        }
    }
    g.event.rec = held;
    return type;
}

void markCast(Game& g, int16_t first, int16_t second, int type, int16_t value) {
    if (type < 0 || type > 10) return;
    for (int16_t n : {first, second}) {
        if (!validArtist(g, n)) continue;
        g.artist.read(n);
        g.artist->storyUnderWay[static_cast<std::size_t>(type)] = value;
        g.artist.write();
    }
}

const std::size_t kEntryType = offsetIn<ScheduleRecord>("type");
const std::size_t kEntryArtist = offsetIn<ScheduleRecord>("artist");
const std::size_t kEntryArtist2 = offsetIn<ScheduleRecord>("artist2");

// A story stage is filed under each artist of its cast.
KeyedRecords<int16_t>::Keys castOfStage(std::span<const uint8_t> bytes) {
    KeyedRecords<int16_t>::Keys keys;
    if (fieldAt<uint8_t>(bytes, kEntryType) == static_cast<uint8_t>(ScheduleType::storyStage)) {
        keys.add(fieldAt<int16_t>(bytes, kEntryArtist));
        keys.add(fieldAt<int16_t>(bytes, kEntryArtist2));
    }
    return keys;
}

// Whether a stage other than `ending`, of a story of the type and naming the
// artist in its cast, is still to run: dated after today, or today and after
// `ending` in the day's order. A stage filed by a reply is one.
bool stageWaitsFor(Game& g, int16_t artist, int type, const ScheduleRecord& ending) {
    if (!g.storyStages.keeping())
        g.storyStages.keep(g.schedule, castOfStage,
                           {{kEntryType, 1}, {kEntryArtist, sizeof(int16_t)}, {kEntryArtist2, sizeof(int16_t)}});
    for (int32_t n : g.storyStages.of(artist)) {
        if (n == ending.id) continue;
        ScheduleRecord e{};
        decodeRecord(g.schedule.bytesOf(n).data(), e);
        if (e.date < g.gameDate || (e.date == g.gameDate && n < ending.id)) continue;
        const ScheduleRecord held = g.schedule.rec;
        const EventRecord heldEvent = g.event.rec;
        int stageType = -1;
        if (e.eventRecord > 0 && e.eventRecord < g.event.recordCount()) {
            g.event.read(e.eventRecord);
            stageType = rootType(g, e);
        }
        g.event.rec = heldEvent;
        g.schedule.rec = held;
        if (stageType == type) return true;
    }
    return false;
}

// The story of the stage ends for those of its cast no other stage of such a
// story waits for, so no one is cast in two stories of one type.
void endStory(Game& g, const ScheduleRecord& stage, int type) {
    for (int16_t n : {stage.artist, stage.artist2})
        if (validArtist(g, n) && !stageWaitsFor(g, n, type, stage)) markCast(g, n, 0, type, 0);
}

double fameOf(const ArtistRecord& a) {
    const auto& r = a.reputation;
    return (8.0 * r[0] + 10.0 * r[1] + 7.0 * r[2] + 5.0 * r[3] + 3.0 * r[4]) / 33.0;
}

bool reported(Game& g, int16_t first, int16_t second) {
    if (g.event->reportAlways != 0) return true;
    const EventRecord held = g.event.rec;
    bool yes = false;
    std::vector<int16_t> watched;
    for (int16_t n : {first, second}) {
        if (!validArtist(g, n) || yes) continue;
        g.artist.read(n);
        if (fameOf(g.artist.rec) > 60) yes = true;
        const int16_t band = g.artist->band;
        if (band < 1 || band >= g.band.recordCount()) continue;
        g.band.read(band);
        const int16_t player = g.player.playerLabel;
        if (player > 0 && g.band->label == player) yes = true;
        if (!yes && player > 0) {
            if (watched.empty()) watched = playerShortlist(g);
            yes = std::find(watched.begin(), watched.end(), band) != watched.end();
        }
    }
    g.event.rec = held;
    return yes;
}

}  // namespace

void startEvent(Game& g, int16_t first, int16_t second) {
    const EventRecord ev = g.event.rec;
    ScheduleRecord e{};
    e.type = static_cast<uint8_t>(ScheduleType::storyStage);
    e.date = g.gameDate;
    e.eventRecord = ev.eventNumber;
    e.artist = first;
    e.artist2 = second;
    if (ev.eventType == 3 && g.crime.recordCount() > 1) e.value = g.rng.between(1, g.crime.recordCount() - 1);
    const int32_t id = addSchedule(g, e);
    if (id == 0) return;
    const ScheduleRecord held = g.schedule.rec;
    g.schedule.read(id);
    g.schedule->offer = id;
    g.schedule.write(id);
    g.schedule.rec = held;
    markCast(g, first, second, ev.eventType, narrow<int16_t>(std::min<int32_t>(id, 32767)));
    g.event.rec = ev;
}

void tryStartEvent(Game& g) {
    const EventRecord ev = g.event.rec;
    const int32_t artists = g.artist.recordCount() - 1;
    if (artists < 1 || ev.eventType > 10) return;
    int16_t cast[2] = {0, 0};
    const int count = std::clamp<int>(ev.participantCount, 1, 2);
    for (int p = 0; p < count; ++p) {
        for (int i = 0; i < kCastDraws && cast[p] == 0; ++i) {
            const int32_t n = g.rng.between(1, artists);
            g.artist.read(n);
            const ArtistRecord& a = g.artist.rec;
            if (a.retired != kFalse || n == cast[0] || a.storyUnderWay[ev.eventType] != 0) continue;
            if (ev.eventType == 10 && a.band < 1) continue;
            if (!failedCondition(g, ev.conditions[static_cast<std::size_t>(p)], p, cast[0]).empty()) continue;
            cast[p] = narrow<int16_t>(n);
        }
        if (cast[p] == 0) return;
    }
    g.event.rec = ev;
    startEvent(g, cast[0], cast[1]);
}

int16_t verdictEvent(Game& g, const ScheduleRecord& stage) {
    if (stage.value < 1 || stage.value >= g.crime.recordCount()) return 0;
    int defence = 0;
    if (stage.artist > 0 && stage.artist < g.artist.recordCount()) {
        g.artist.read(stage.artist);
        const int16_t band = g.artist->band;
        if (band > 0 && band < g.band.recordCount()) {
            g.band.read(band);
            const int16_t label = g.band->label;
            if (label > 0 && label < g.label.recordCount()) {
                g.label.read(label);
                defence = g.label->department[1].rating;
            }
        }
    }
    g.crime.read(stage.value);
    const CrimeRecord crime = g.crime.rec;
    const double r1 = g.rng.draw(), r2 = g.rng.draw(), r = g.rng.draw();
    const int score =
        defence + static_cast<int>(intFloor(defence / 10.0 * r1)) - static_cast<int>(intFloor(defence / 10.0 * r2));
    const int open = 100 - crime.defensibility;
    const int line = open + static_cast<int>(intFloor(open / 10.0 * r));
    return score <= line ? crime.guiltyEvent : crime.acquittalEvent;
}

void nextStage(Game& g) {
    const ScheduleRecord stage = g.schedule.rec;
    const EventRecord ev = g.event.rec;
    const int n = g.rng.between(0, 99);
    for (std::size_t i = 0; i < 10; ++i) {
        if (ev.rollLow[i] == 0 && ev.rollHigh[i] == 0) continue;
        if (n < ev.rollLow[i] || n > ev.rollHigh[i]) continue;
        int delay = g.rng.between(ev.minDelay[i], std::max(ev.minDelay[i], ev.maxDelay[i]));
        if (delay <= 0) delay = 1;
        ScheduleRecord next = stage;
        next.id = 0;
        next.date = g.gameDate + delay;
        next.eventRecord = ev.nextEvent[i];
        addSchedule(g, next);
        return;
    }
    const bool hasRows = std::any_of(ev.rollLow.begin(), ev.rollLow.end(), [](uint8_t v) { return v != 0; }) ||
                         std::any_of(ev.rollHigh.begin(), ev.rollHigh.end(), [](uint8_t v) { return v != 0; });
    if (!hasRows && ev.eventType == 3) {
        const int16_t verdict = verdictEvent(g, stage);
        if (verdict > 0 && verdict < g.event.recordCount()) {
            ScheduleRecord next = stage;
            next.id = 0;
            next.date = g.gameDate + 1;
            next.eventRecord = verdict;
            addSchedule(g, next);
            g.event.rec = ev;
            return;
        }
    }
    g.event.rec = ev;
    // No follow-up: the story ends for its cast.
    endStory(g, stage, rootType(g, stage));
}

void performStage(Game& g) {
    const ScheduleRecord stage = g.schedule.rec;
    if (stage.eventRecord < 1 || stage.eventRecord >= g.event.recordCount()) return;
    g.event.read(stage.eventRecord);
    const EventRecord ev = g.event.rec;
    const int type = rootType(g, stage);
    const int16_t cast[2] = {stage.artist, ev.participantCount >= 2 ? stage.artist2 : int16_t{0}};
    for (int16_t n : cast) {
        if (n == 0) continue;
        bool gone = !validArtist(g, n);
        if (!gone) {
            g.artist.read(n);
            gone = g.artist->retired != kFalse || (ev.eventType == 10 && g.artist->band < 1);
        }
        if (gone) {
            endStory(g, stage, type);
            return;
        }
    }
    const bool tell = reported(g, cast[0], cast[1]);
    std::string title, body;
    if (tell) {
        g.schedule.rec = stage;
        title = expandMacros(g, trim(ev.title.value), cast[0], cast[1]);
        body = expandMacros(g, trim(ev.body.value), cast[0], cast[1]);
    }
    for (std::size_t p = 0; p < 2; ++p) {
        if (cast[p] == 0) continue;
        const EventCondition& c = ev.conditions[p];
        g.artist.read(cast[p]);
        ArtistRecord& a = g.artist.rec;
        a.wealth = narrow<int32_t>(static_cast<int64_t>(a.wealth) + c.money);
        uint8_t* fields[6] = {&a.ability, &a.charisma, &a.controversy, &a.attitude, &a.angst, &a.morale};
        for (std::size_t i = 0; i < 6; ++i)
            *fields[i] = narrow<uint8_t>(std::clamp(*fields[i] + c.boundChange[i], 0, 100));
        g.artist.write();
    }
    const int16_t first = cast[0];
    g.artist.read(first);
    switch (ev.eventType) {
    case 4:
        g.artist->drugHabit = std::max<uint8_t>(g.artist->drugHabit, 1);
        g.artist.write();
        break;
    case 5:
        g.artist->drugHabit = 0;
        g.artist.write();
        break;
    case 6: dieNow(g, first); break;
    case 7: leaveTomorrow(g, first); break;
    case 8: {
        ScheduleRecord e{};
        e.type = static_cast<uint8_t>(ScheduleType::artistRetirementNotice);
        e.date = g.gameDate + 1;
        e.artist = first;
        e.band = g.artist->band;
        addSchedule(g, e);
        break;
    }
    default: break;
    }
    if (tell) {
        const bool replies = ev.replyCount > 0;
        postNews(g, {.date = g.gameDate,
                     .title = title,
                     .text = body,
                     .kind = replies ? kNewsMediaStory : kNewsOk,
                     .scheduleLink = stage.id,
                     .eventLink = replies ? ev.eventNumber : int16_t{0}});
    }
    g.schedule.rec = stage;
    g.event.rec = ev;
    nextStage(g);
}

}  // namespace trovane
