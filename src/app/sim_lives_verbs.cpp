// The verbs of the world's stories: stories and story.
#include <cstdio>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "events/story_events.h"
#include "floor/formats.h"
#include "world/dates.h"
#include "world/strings.h"

namespace trovane::sim {

namespace {

constexpr int kExitBadArgument = 2;

std::string jsonText(const std::string& s) {
    std::string out = "\"";
    for (char c : s) {
        if (c == '"' || c == '\\') out += '\\';
        if (static_cast<unsigned char>(c) < 0x20) {
            out += fmt::format("\\u{:04x}", static_cast<unsigned char>(c));
            continue;
        }
        out += c;
    }
    return out + "\"";
}

std::string artistName(const ArtistRecord& a) { return trim(trim(a.forename.value) + " " + trim(a.surname.value)); }

// An artist by number or exact name; 0 when none.
int16_t findArtist(Game& g, const std::string& key) {
    if (const int32_t n = recordNamed(g, FileNo::fileArtist, key)) return static_cast<int16_t>(n);
    for (int32_t n = 1; n < g.artist.recordCount(); ++n) {  // a nickname names an artist too
        g.artist.read(n);
        if (!key.empty() && trim(g.artist->nickname.value) == key) return static_cast<int16_t>(n);
    }
    return 0;
}

struct Stage {
    int32_t entry;
    double date;
    int16_t event;
    int32_t news;
};

struct Story {
    int32_t root = 0;
    int16_t event = 0;
    int type = 0;
    std::string title;
    std::vector<int16_t> cast;
    int32_t crime = 0;
    std::vector<Stage> stages;
    std::optional<Stage> next;
};

std::vector<Story> collectStories(Game& g) {
    std::map<int32_t, int32_t> newsOf;  // entry -> news item
    for (int32_t n = 1; n < g.news.recordCount(); ++n) {
        g.news.read(n);
        if (g.news->scheduleLink > 0 && g.news->kind != 2) newsOf[g.news->scheduleLink] = n;
    }
    std::map<int32_t, Story> byRoot;
    for (int32_t n = 1; n < g.schedule.recordCount(); ++n) {
        g.schedule.read(n);
        const ScheduleRecord e = g.schedule.rec;
        if (e.type != 12 || e.offer < 1) continue;
        Story& s = byRoot[e.offer];
        s.root = e.offer;
        if (n == e.offer) {
            s.event = e.eventRecord;
            s.cast = {e.artist};
            if (e.artist2 > 0) s.cast.push_back(e.artist2);
            s.crime = e.value;
        }
        Stage st{n, e.date, e.eventRecord, newsOf.contains(n) ? newsOf[n] : 0};
        if (e.date < g.gameDate)
            s.stages.push_back(st);
        else if (!s.next || st.date < s.next->date)
            s.next = st;
    }
    std::vector<Story> out;
    for (auto& [root, s] : byRoot) {
        if (s.event > 0 && s.event < g.event.recordCount()) {
            g.event.read(s.event);
            s.type = g.event->eventType;
            s.title = trim(g.event->title.value);
        }
        out.push_back(s);
    }
    return out;
}

struct StoriesArgs {
    bool all = false;
    std::string artist;
};

struct StoryArgs {
    int event = 0;
    std::string cast;
};

void runStories(SimContext& ctx, const StoriesArgs& args) {
    Game& g = ctx.openGame();
    int16_t only = 0;
    if (!args.artist.empty()) {
        only = findArtist(g, args.artist);
        if (only == 0) {
            ctx.closeGame();
            throw SimError(kExitBadArgument, "There is no artist " + args.artist);
        }
    }
    std::ostringstream js, text;
    js << "[";
    bool firstOut = true;
    for (const Story& s : collectStories(g)) {
        if (!args.all && !s.next) continue;
        if (only && std::find(s.cast.begin(), s.cast.end(), only) == s.cast.end()) continue;
        js << (firstOut ? "" : ",")
           << fmt::format("{{\"root\":{},\"event\":{},\"type\":{},\"title\":{},\"cast\":[", s.root, s.event, s.type,
                          jsonText(s.title));
        firstOut = false;
        for (std::size_t i = 0; i < s.cast.size(); ++i) js << (i ? "," : "") << s.cast[i];
        js << "],\"crime\":" << s.crime << ",\"stages\":[";
        text << fmt::format("story {} (event {}, type {}): {}\n  cast:", s.root, s.event, s.type, s.title);
        for (int16_t a : s.cast) {
            g.artist.read(a);
            text << " " << a << " " << artistName(g.artist.rec);
        }
        text << "\n";
        for (std::size_t i = 0; i < s.stages.size(); ++i) {
            const Stage& st = s.stages[i];
            js << (i ? "," : "")
               << fmt::format("{{\"entry\":{},\"date\":\"{}\",\"event\":{},\"news\":{}}}", st.entry,
                              isoDateIfSet(st.date), st.event, st.news);
            text << fmt::format("  {} event {} (entry {}, news {})\n", isoDateIfSet(st.date), st.event, st.entry,
                                st.news);
        }
        js << "],\"next\":";
        if (s.next) {
            js << fmt::format("{{\"date\":\"{}\",\"event\":{}}}", isoDateIfSet(s.next->date), s.next->event);
            text << fmt::format("  next: {} event {}\n", isoDateIfSet(s.next->date), s.next->event);
        } else {
            js << "null";
            text << "  ended\n";
        }
        js << "}";
    }
    js << "]";
    std::printf("%s\n", ctx.json ? js.str().c_str() : text.str().c_str());
    ctx.closeGame();
}

void runStory(SimContext& ctx, const StoryArgs& args) {
    Game& g = ctx.openGame();
    if (args.event < 1 || args.event >= g.event.recordCount()) {
        ctx.closeGame();
        throw SimError(kExitBadArgument, fmt::format("There is no event {}", args.event));
    }
    std::vector<int16_t> cast;
    std::stringstream in(args.cast);
    for (std::string key; std::getline(in, key, ',');) {
        int16_t a = findArtist(g, trim(key));
        if (a == 0) {
            ctx.closeGame();
            throw SimError(kExitBadArgument, "There is no artist " + key);
        }
        cast.push_back(a);
    }
    g.event.read(args.event);
    const EventRecord ev = g.event.rec;
    std::string why;
    const std::size_t wanted = ev.participantCount >= 2 ? 2 : 1;
    if (cast.size() != wanted)
        why = fmt::format("Event {} needs {} participant(s), not {}.", args.event, wanted, cast.size());
    for (std::size_t p = 0; p < cast.size() && why.empty(); ++p) {
        g.artist.read(cast[p]);
        const std::string name = artistName(g.artist.rec);
        if (g.artist->retired != kFalse)
            why = name + " has retired.";
        else if (p == 1 && cast[1] == cast[0])
            why = name + " cannot be both participants.";
        else if (ev.eventType <= 10 && g.artist->storyUnderWay[ev.eventType] != 0)
            why = fmt::format("A story of type {} is already under way for {}.", ev.eventType, name);
        else if (ev.eventType == 10 && g.artist->band < 1)
            why = name + " is in no band.";
        else {
            std::string failed = failedCondition(g, ev.conditions[p], static_cast<int>(p), cast[0]);
            if (!failed.empty()) why = fmt::format("{} fails the {} test of participant {}.", name, failed, p + 1);
        }
    }
    if (!why.empty()) {
        ctx.refuse(why);
        ctx.closeGame();
        return;
    }
    g.event.rec = ev;
    const int32_t before = g.schedule.recordCount();
    startEvent(g, cast[0], cast.size() > 1 ? cast[1] : int16_t{0});
    if (ctx.json)
        std::printf("{\"root\":%d,\"event\":%d,\"date\":\"%s\"}\n", before, args.event,
                    isoDateIfSet(g.gameDate).c_str());
    else
        std::printf("Story %d started: event %d, filed for %s.\n", before, args.event,
                    isoDateIfSet(g.gameDate).c_str());
    ctx.closeGame();
}

}  // namespace

void addLivesVerbs(CLI::App& app, SimContext& ctx) {
    auto stories = std::make_shared<StoriesArgs>();
    auto* list = app.add_subcommand("stories", "Stories under way: root, event, cast, crime, stages run and the next");
    list->add_flag("--all", stories->all, "Ended stories too");
    list->add_option("--artist", stories->artist, "Only the stories of this artist, by number or name");
    list->callback([&ctx, stories] { runStories(ctx, *stories); });

    auto story = std::make_shared<StoryArgs>();
    auto* start = app.add_subcommand("story", "Start an event as a story with the given cast, run by the next advance");
    start->add_option("EVENT", story->event, "The event number")->required();
    start->add_option("--cast", story->cast, "ARTIST[,ARTIST], by number or exact name")->required();
    start->callback([&ctx, story] { runStory(ctx, *story); });
}

}  // namespace trovane::sim
