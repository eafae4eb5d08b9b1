// The source form of the story events and the crimes. An event has a name in
// the source only: follow-ups, replies and crimes name the events they lead to,
// and the compiler turns the names into event numbers.
#include <algorithm>

#include <fmt/ranges.h>

#include "world/records/events_records.h"
#include "worldtool/industry_book.h"

namespace trovane::worldtool {
namespace {

using enum FileNo;

constexpr std::size_t kMostFollowUps = 10;
constexpr std::size_t kMostReplies = 3;
constexpr std::size_t kMostParticipants = 2;
constexpr int64_t kCrimeType = 3;

// The tags the news texts of a story may hold; a 1 or 2 at the end names the participant.
constexpr std::array<std::string_view, 43> kMacros = {
    "acn",  "acv",   "ap1",   "ap2",  "ast1", "ast2", "ac1",  "ac2",  "al1", "al2", "pn",  "phs", "pl",  "afn1", "afn2",
    "asn1", "asn2",  "ab1",   "ab2",  "abr1", "abr2", "abn1", "abn2", "an1", "an2", "as1", "as2", "aj1", "aj2",  "ahh1",
    "ahh2", "ahha1", "ahha2", "ahs1", "ahs2", "aa1",  "aa2",  "biw",  "bn",  "baa", "bmo", "bl",  "bmu"};

// The six attributes a condition tests and a stage changes, in the record's order.
constexpr std::array<std::string_view, 6> kBoundNames = {"ability",  "charisma", "controversy",
                                                         "attitude", "angst",    "morale"};

// Every "<" opens a tag that runs to the next ">"; the game drops an unclosed one.
void checkMacros(FieldReader& r, const toml::node& at, std::string_view what, std::string_view text) {
    for (std::size_t open = text.find('<'); open != std::string_view::npos; open = text.find('<', open + 1)) {
        std::size_t close = text.find('>', open);
        if (close == std::string_view::npos) {
            r.problem(at, fmt::format("`{}` has a tag that is never closed: \"{}\"", what, text.substr(open)));
            return;
        }
        std::string_view tag = text.substr(open + 1, close - open - 1);
        if (std::find(kMacros.begin(), kMacros.end(), tag) == kMacros.end())
            r.problem(at, fmt::format("`{}` has an unknown tag <{}>", what, tag));
    }
}

// bounds = { controversy = 40, morale = -30 }: positive a minimum, negative a maximum.
void readSix(FieldReader& r, const toml::table& t, std::string_view key, std::array<int16_t, 6>& out) {
    const toml::node* n = t.get(key);
    if (!n) return;
    const toml::table* six = n->as_table();
    if (!six) return r.problem(*n, fmt::format("`{}` should be a table such as {{ controversy = 40 }}", key));
    for (std::size_t i = 0; i < kBoundNames.size(); ++i)
        if (const toml::node* v = six->get(kBoundNames[i]))
            if (auto x = r.wholeNumber(*v, fmt::format("{}.{}", key, kBoundNames[i]), -100, 100))
                out[i] = static_cast<int16_t>(*x);
    r.refuseUnknownKeys(*six, key, kBoundNames);
}

// bandRule -3, -2 or a label; labelRule -2, -1 or a label. A label is named, the rules are numbers.
void readRule(FieldReader& r, const toml::table& t, std::string_view key, std::span<const int64_t> rules,
              int16_t& out) {
    const toml::node* n = t.get(key);
    if (!n) return;
    if (n->is_string()) {
        if (auto label = r.reference(*n, key, fileLabel, INT16_MAX)) out = static_cast<int16_t>(*label);
    } else if (auto v = n->value<int64_t>();
               v && (*v == 0 || std::find(rules.begin(), rules.end(), *v) != rules.end())) {
        out = static_cast<int16_t>(*v);
    } else {
        r.problem(*n, fmt::format("`{}` is 0, {} or the name of a label", key, fmt::join(rules, ", ")));
    }
}

void readCondition(FieldReader& r, const toml::table& t, EventCondition& c) {
    static constexpr std::array<std::string_view, 8> kKeys = {"genderRule", "bandRule", "labelRule", "age",
                                                              "job",        "bounds",   "money",     "boundChange"};
    static constexpr std::array<int64_t, 2> kBandRules = {-3, -2};
    static constexpr std::array<int64_t, 2> kLabelRules = {-2, -1};
    r.refuseUnknownKeys(t, "conditions", kKeys);
    if (const toml::node* n = t.get("genderRule"))
        if (auto v = r.wholeNumber(*n, "genderRule", 0, 4)) c.genderRule = static_cast<uint8_t>(*v);
    readRule(r, t, "bandRule", kBandRules, c.bandRule);
    readRule(r, t, "labelRule", kLabelRules, c.labelRule);
    if (const toml::node* n = t.get("age"))
        if (auto v = r.wholeNumber(*n, "age", -255, 255)) c.age = static_cast<int16_t>(*v);
    if (const toml::node* n = t.get("job"))
        if (auto v = r.reference(*n, "job", fileJob, INT16_MAX)) c.job = static_cast<int16_t>(*v);
    if (const toml::node* n = t.get("money"))
        if (auto v = r.wholeNumber(*n, "money", INT32_MIN, INT32_MAX)) c.money = static_cast<int32_t>(*v);
    readSix(r, t, "bounds", c.bounds);
    readSix(r, t, "boundChange", c.boundChange);
}

// A list of at most `most` small tables under `key`, each handed to `read` with its place.
template <class Read>
void readTables(FieldReader& r, const toml::table& t, std::string_view key, std::size_t most, Read read) {
    const toml::node* n = t.get(key);
    if (!n) return;
    const toml::array* list = n->as_array();
    if (!list) return r.problem(*n, fmt::format("`{}` should be a list of tables", key));
    if (list->size() > most)
        return r.problem(*n, fmt::format("`{}` has {} entries; an event holds at most {}", key, list->size(), most));
    for (std::size_t i = 0; i < list->size(); ++i) {
        const toml::table* entry = (*list)[i].as_table();
        if (entry)
            read(*entry, i);
        else
            r.problem((*list)[i], fmt::format("an entry of `{}` should be a table", key));
    }
}

std::optional<int16_t> eventNamed(FieldReader& r, const toml::node& n, std::string_view what) {
    auto v = r.reference(n, what, fileEvent, INT16_MAX);
    return v ? std::optional<int16_t>(static_cast<int16_t>(*v)) : std::nullopt;
}

// next = [ { event = "brawl-trial", minDelay = 20, maxDelay = 40, rollLow = 0, rollHigh = 99 } ]
void readFollowUp(FieldReader& r, const toml::table& t, std::size_t i, EventRecord& e) {
    static constexpr std::array<std::string_view, 5> kKeys = {"event", "minDelay", "maxDelay", "rollLow", "rollHigh"};
    r.refuseUnknownKeys(t, "next", kKeys);
    const toml::node* event = t.get("event");
    if (!event) return r.problemAt(lineOf(t), "a follow-up names its `event`");
    if (auto next = eventNamed(r, *event, "next.event")) e.nextEvent[i] = *next;
    auto number = [&](std::string_view key, int64_t hi) -> int64_t {
        const toml::node* n = t.get(key);
        return n ? r.wholeNumber(*n, fmt::format("next.{}", key), 0, hi).value_or(0) : 0;
    };
    e.minDelay[i] = static_cast<int16_t>(number("minDelay", INT16_MAX));
    e.maxDelay[i] = static_cast<int16_t>(number("maxDelay", INT16_MAX));
    e.rollLow[i] = static_cast<uint8_t>(number("rollLow", 99));
    e.rollHigh[i] = static_cast<uint8_t>(number("rollHigh", 99));
    if (e.minDelay[i] > e.maxDelay[i]) r.problemAt(lineOf(t), "`minDelay` is above `maxDelay`");
    if (e.rollLow[i] > e.rollHigh[i]) r.problemAt(lineOf(t), "`rollLow` is above `rollHigh`");
    if (e.rollLow[i] == 0 && e.rollHigh[i] == 0)
        r.problemAt(lineOf(t), "a follow-up with `rollLow` and `rollHigh` both 0 is an empty row: it never follows");
}

// replies = [ { text = "Defend", chance = 50, next = "some-event", money = 0 } ]: the chance, the next
// event and the money of each reply stand in threes.
void readReply(FieldReader& r, const toml::table& t, std::size_t i, EventRecord& e) {
    static constexpr std::array<std::string_view, 4> kKeys = {"text", "chance", "next", "money"};
    r.refuseUnknownKeys(t, "replies", kKeys);
    if (const toml::node* n = t.get("text")) {
        if (auto text = r.text(*n, "replies.text", Text<256>::width)) {
            checkMacros(r, *n, "replies.text", *text);
            e.replyText[i] = *text;
        }
    } else {
        r.problemAt(lineOf(t), "a reply gives its `text`");
    }
    if (const toml::node* n = t.get("chance"))
        if (auto v = r.wholeNumber(*n, "replies.chance", 0, 100)) e.replyEffect[3 * i] = static_cast<int16_t>(*v);
    if (const toml::node* n = t.get("next"))
        if (auto next = eventNamed(r, *n, "replies.next")) e.replyEffect[3 * i + 1] = *next;
    if (const toml::node* n = t.get("money"))
        if (auto v = r.wholeNumber(*n, "replies.money", INT16_MIN, INT16_MAX))
            e.replyEffect[3 * i + 2] = static_cast<int16_t>(*v);
}

FieldRules eventRules() {
    return {.ranges = {{"participantCount", 1, 2}, {"eventType", 0, 10}, {"chance", 0, 100}},
            .required = {"name", "participantCount", "title"},
            .bespokeKeys = {"name", "conditions", "next", "replies", "reportAlways", "crime"},
            .hidden = {"conditions", "nextEvent", "minDelay", "maxDelay", "rollLow", "rollHigh", "reportAlways",
                       "replyCount", "replyText", "replyEffect"}};
}

class EventForm : public TableForm {
public:
    std::string_view key() const override { return "event"; }
    FileNo file() const override { return fileEvent; }

    void gather(CompileContext& ctx, std::span<const Section> sections) override {
        for (const Section& s : sections) {
            const toml::array* list = s.node->as_array();
            if (!list) {
                ctx.report(*s.file, s.line, "`event` should be a list of events ([[event]])");
                continue;
            }
            for (const toml::node& n : *list) {
                if (!n.is_table()) {
                    ctx.report(*s.file, lineOf(n), "an event should be a table of its fields");
                    continue;
                }
                records_.push_back(SourceRecord{s.file, &n, lineOf(n), {}, nullptr});
                if (auto name = n.as_table()->get_as<std::string>("name"); name && !name->get().empty())
                    ctx.addName(fileEvent, name->get(), records_.back(), static_cast<int32_t>(records_.size()));
            }
        }
    }

    CompiledFiles compile(CompileContext& ctx) override {
        std::vector<Compiled<EventRecord>> events;
        const SourceRecord* firstCrimeStory = nullptr;
        for (const SourceRecord& src : records_) {
            const toml::table& t = *src.node->as_table();
            FieldReader r(ctx, *src.file, rules_);
            EventRecord e{};
            if (const toml::node* n = t.get("name"); n && !n->is_string())
                r.problem(*n, "`name` should be a text that other events and crimes name this one by");
            if (const toml::node* n = t.get("crime"))
                r.problem(*n,
                          "`crime` stands below an [[event]] header, so it is read as a field of that event: "
                          "put the crime list above the first [[event]], or in a file of its own");
            if (const toml::node* n = t.get("reportAlways"))
                if (auto flag = r.byteFlag(*n, "reportAlways", 255)) e.reportAlways = *flag;
            readTables(r, t, "conditions", kMostParticipants,
                       [&](const toml::table& c, std::size_t i) { readCondition(r, c, e.conditions[i]); });
            readTables(r, t, "next", kMostFollowUps,
                       [&](const toml::table& f, std::size_t i) { readFollowUp(r, f, i, e); });
            readTables(r, t, "replies", kMostReplies, [&](const toml::table& reply, std::size_t i) {
                readReply(r, reply, i, e);
                e.replyCount = static_cast<uint8_t>(i + 1);
            });
            r.bind(t, src.line, e);
            if (const toml::node* n = t.get("title")) checkMacros(r, *n, "title", e.title.str());
            if (const toml::node* n = t.get("body")) checkMacros(r, *n, "body", e.body.str());
            if (const toml::array* c = t["conditions"].as_array(); c && c->size() > e.participantCount)
                r.problem(*t.get("conditions"), fmt::format("{} conditions for {} participant{}", c->size(),
                                                            e.participantCount, e.participantCount == 1 ? "" : "s"));
            if (e.eventType == kCrimeType && !firstCrimeStory) firstCrimeStory = &src;
            events.push_back(Compiled<EventRecord>{std::move(e), &src});
        }
        // A crime story draws one of the crimes when it begins.
        if (firstCrimeStory && ctx.nameCount(fileCrime) == 0)
            ctx.report(*firstCrimeStory->file, firstCrimeStory->line,
                       "an event of eventType 3 is a crime story, and there is no `crime` to draw");
        return {{fileEvent, packRecords<EventRecord>(ctx, events)}};
    }

private:
    FieldRules rules_ = eventRules();
    std::vector<SourceRecord> records_;
};

ListFormRules<CrimeRecord> crimeSpec() {
    return {.key = "crime",
            .file = fileCrime,
            .nameKey = "crimeName",
            .rules = {.refs = {{"acquittalEvent", fileEvent}, {"guiltyEvent", fileEvent}},
                      .ranges = {{"defensibility", 0, 100}, {"sentence", 0, INT16_MAX}},
                      .required = {"crimeName", "acquittalEvent", "guiltyEvent"}}};
}

}  // namespace

std::unique_ptr<TableForm> eventTableForm() { return std::make_unique<EventForm>(); }
std::unique_ptr<TableForm> crimeTableForm() { return std::make_unique<ListForm<CrimeRecord>>(crimeSpec()); }

}  // namespace trovane::worldtool
