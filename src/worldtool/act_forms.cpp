// The source form of the acts: each [[band]] holds its members ([[band.member]])
// and its discs ([[band.disc]]), and compiles into the band, artist, disc and
// song tables. The hidden acts a player unlocks ([[hiddenBand]]) have the same
// shape, without label or discs, and compile into the bank of hidden bands and
// their artists.
#include <algorithm>

#include <fmt/ranges.h>

#include "talent/band_functions.h"
#include "talent/contract_terms.h"
#include "worldtool/act_catalogue.h"
#include "worldtool/industry_book.h"
#include "worldtool/rule_bench.h"

namespace trovane::worldtool {
namespace {

using enum FileNo;

constexpr std::size_t kMostMembers = 10;
// A signed act takes 70 percent of a disc's royalty among its members; songwriters take the other 30.
constexpr int kMembersRoyalty = 70;

// The deal of a signed act, as the contract rules read it; an unsigned act has none.
constexpr std::array<std::string_view, 10> kDealKeys = {
    "signedOn",     "initialAdvance",   "additionalAdvance", "additionalAdvanceCount",
    "optionLength", "optionsRemaining", "optionMonthsLeft",  "royaltyRate",
    "albumStatus",  "songsWritten"};
// Of the deal, what every signed act must give.
constexpr std::array<std::string_view, 5> kDealRequired = {"signedOn", "royaltyRate", "optionLength",
                                                           "additionalAdvanceCount", "optionsRemaining"};
// optionMonthsLeft at 100 means the first option's months are not counting.
constexpr int kNotCounting = 100;

// An act's reputation never falls below 2 in any market (the game's boosts divide by it).
FieldRules bandRules() {
    return {.refs = {{"style", fileStyle}, {"label", fileLabel}},
            .ranges = {{"reputation", 2, 100},
                       {"monthsUnsigned", 0, 9},
                       {"albumStatus", 0, 3},
                       {"materialBudget", 0, 4},
                       {"royaltyRate", 5, 30},
                       {"additionalAdvanceCount", 1, 5},
                       {"offerStage", 0, 1}},
            .required = {"name", "style", "reputation"},
            .bespokeKeys = {"formedIn", "member", "disc"},
            .hidden = {"memberCount", "members", "ability", "visual", "live", "flair", "dancing", "stamina", "charisma",
                       "controversy", "topAttitudeLevel", "formedInCity", "formedIn", "retired", "contractEnd"}};
}

FieldRules memberRules() {
    FieldRules rules{
        .refs =
            {{"job", fileJob}, {"country", fileCountry}, {"city", fileCity}, {"look", fileLook}, {"style", fileStyle}},
        .ranges = {{"potential", 20, 100}},
        .required = {"forename", "surname", "age", "job", "country", "male", "ability", "talentCeiling", "potential"},
        .hidden = {"band", "reputation", "energy", "morale", "listed"}};
    for (std::string_view percent : {"ability", "talentCeiling", "charisma", "controversy", "composure", "flair",
                                     "dancing", "visual", "live", "stamina", "attitude", "angst", "imageRating",
                                     "songQuality", "writingRate", "songCommerciality", "writingFocus", "royaltyShare"})
        rules.ranges.push_back({percent, 0, 100});
    return rules;
}

// formedIn names a city, or a country when the act's home is no particular city.
void readFormedIn(FieldReader& r, CompileContext& ctx, const toml::table& t, BandRecord& band) {
    const toml::node* n = t.get("formedIn");
    if (!n) return;
    auto name = n->value<std::string>();
    if (!name) return r.problem(*n, "`formedIn` should be the name of a city or a country");
    if (auto city = ctx.find(fileCity, *name)) {
        band.formedIn = static_cast<int16_t>(std::min(*city, int32_t{INT16_MAX}));
        band.formedInCity = kTrue;
    } else if (auto country = ctx.find(fileCountry, *name)) {
        band.formedIn = static_cast<int16_t>(*country);
        band.formedInCity = kFalse;
    } else {
        r.problem(*n, fmt::format("unknown city or country \"{}\"", *name));
    }
}

class ActForm : public TableForm {
public:
    ActForm(std::shared_ptr<IndustryBook> book, bool hidden) : book_(std::move(book)), hidden_(hidden) {}
    std::string_view key() const override { return hidden_ ? "hiddenBand" : "band"; }
    FileNo file() const override { return hidden_ ? fileCb : fileBand; }

    void gather(CompileContext& ctx, std::span<const Section> sections) override {
        for (const Section& s : sections) {
            const toml::array* list = s.node->as_array();
            if (!list) {
                ctx.report(*s.file, s.line, fmt::format("`{}` should be a list of acts ([[{}]])", key(), key()));
                continue;
            }
            for (const toml::node& n : *list) {
                if (!n.is_table()) {
                    ctx.report(*s.file, lineOf(n), "an act should be a table of its fields");
                    continue;
                }
                records_.push_back(SourceRecord{s.file, &n, lineOf(n), {}, nullptr});
                if (auto name = n.as_table()->get_as<std::string>("name"); name && !name->get().empty())
                    ctx.addName(file(), name->get(), records_.back(), static_cast<int32_t>(records_.size()));
            }
        }
    }

    CompiledFiles compile(CompileContext& ctx) override {
        std::vector<Compiled<BandRecord>> bands;
        std::vector<Compiled<ArtistRecord>> artists;
        Catalogue catalogue;
        for (const SourceRecord& src : records_) {
            const toml::table& t = *src.node->as_table();
            FieldReader reader(ctx, *src.file, bandRules_);
            BandRecord band{};
            readFormedIn(reader, ctx, t, band);
            reader.bind(t, src.line, band);
            band.id = static_cast<int16_t>(std::min<std::size_t>(bands.size() + 1, INT16_MAX));
            std::size_t first = artists.size();
            readMembers(ctx, src, band, artists);
            std::span<const Compiled<ArtistRecord>> members(artists.data() + first, artists.size() - first);
            checkAct(ctx, reader, src, band, members);
            if (!hidden_) compileActDiscs(ctx, src, band.id, band, members, catalogue);
            bands.push_back(Compiled<BandRecord>{std::move(band), &src});
        }
        deriveFigures(bands, artists, hidden_);
        CompiledFiles files;
        files.emplace_back(file(), packRecords<BandRecord>(ctx, bands));
        files.emplace_back(hidden_ ? fileCa : fileArtist, packRecords<ArtistRecord>(ctx, artists));
        if (!hidden_) {
            files.emplace_back(fileDisc, packRecords<DiscRecord>(ctx, catalogue.discs));
            files.emplace_back(fileSong, packRecords<SongRecord>(ctx, catalogue.songs));
            book_->bands.clear();
            for (const auto& b : bands) book_->bands.push_back(b.rec);
        }
        return files;
    }

private:
    // Each member takes the act's number, reputation and (unless given) style.
    void readMembers(CompileContext& ctx, const SourceRecord& act, BandRecord& band,
                     std::vector<Compiled<ArtistRecord>>& artists) {
        const toml::table& t = *act.node->as_table();
        const toml::node* n = t.get("member");
        const toml::array* list = n ? n->as_array() : nullptr;
        if (!list || list->empty() || list->size() > kMostMembers) {
            ctx.report(*act.file, n ? lineOf(*n) : act.line,
                       fmt::format("an act has 1 to {} members ([[{}.member]]); \"{}\" has {}", kMostMembers, key(),
                                   band.name.str(), list ? list->size() : 0));
            if (!list) return;
        }
        for (const toml::node& m : *list) {
            const toml::table* mt = m.as_table();
            if (!mt) {
                ctx.report(*act.file, lineOf(m), "a member should be a table of their fields");
                continue;
            }
            FieldReader r(ctx, *act.file, memberRules_);
            ArtistRecord a{};
            r.bind(*mt, lineOf(m), a);
            checkHomeCity(r, ctx, *mt);
            a.id = static_cast<int16_t>(std::min<std::size_t>(artists.size() + 1, INT16_MAX));
            a.band = band.id;
            a.reputation = band.reputation;
            if (a.style == 0) a.style = band.style;
            a.energy = 100;
            a.morale = 100;
            a.listed = kTrue;
            if (band.memberCount < kMostMembers) band.members[band.memberCount++] = a.id;
            members_.push_back(SourceRecord{act.file, &m, lineOf(m), {}, nullptr});
            artists.push_back(Compiled<ArtistRecord>{std::move(a), &members_.back()});
        }
    }

    // A member's home city lies in their country.
    static void checkHomeCity(FieldReader& r, CompileContext& ctx, const toml::table& member) {
        auto city = member["city"].value<std::string>();
        auto country = member["country"].value<std::string>();
        if (!city || !country) return;
        const toml::table* c = ctx.sourceOf(fileCity, *city);
        auto cityCountry = c ? (*c)["country"].value<std::string>() : std::nullopt;
        if (cityCountry && *cityCountry != *country)
            r.problem(*member.get("city"),
                      fmt::format("\"{}\" is a city of {}, not of {}", *city, *cityCountry, *country));
    }

    void checkAct(CompileContext& ctx, FieldReader& r, const SourceRecord& src, const BandRecord& band,
                  std::span<const Compiled<ArtistRecord>> members) {
        const toml::table& t = *src.node->as_table();
        if (hidden_) {
            if (const toml::node* n = t.get("label"))
                r.problem(*n, "a hidden act has no label: it signs to the player's label when it is unlocked");
            if (const toml::node* n = t.get("disc")) r.problem(*n, "a hidden act has no discs");
            if (ctx.find(fileBand, band.name.str()))
                r.problemAt(src.line,
                            fmt::format("the hidden act \"{}\" has the name of an act of the world", band.name.str()));
        }
        bool signed_ = t.contains("label");
        if (signed_ && !hidden_)
            checkDeal(r, t, src.line, band);
        else
            refuseDeal(r, t);
        // A hidden act is signed the moment it is unlocked, so its shares are a signed act's.
        if ((signed_ || hidden_) && !members.empty()) {
            int total = 0;
            for (const auto& m : members) total += m.rec.royaltyShare;
            if (total != kMembersRoyalty)
                r.problemAt(src.line,
                            fmt::format("the members' royaltyShare of \"{}\" sum to {}; a signed act's shares sum "
                                        "to {} (songwriters take the other {})",
                                        band.name.str(), total, kMembersRoyalty, 100 - kMembersRoyalty));
        }
    }

    void refuseDeal(FieldReader& r, const toml::table& t) const {
        std::vector<std::string_view> given;
        for (std::string_view k : kDealKeys)
            if (t.contains(k)) given.push_back(k);
        if (given.empty()) return;
        r.problemAt(lineOf(*t.get(given.front())),
                    fmt::format("{} has no deal, yet gives `{}`{}",
                                hidden_ ? "a hidden act is unsigned until it is unlocked and" : "an unsigned act",
                                fmt::join(given, "`, `"), hidden_ ? "" : " (is its `label` missing?)"));
    }

    static void checkDeal(FieldReader& r, const toml::table& t, int64_t line, const BandRecord& band) {
        for (std::string_view k : kDealRequired)
            if (!t.contains(k)) r.problemAt(line, fmt::format("a signed act gives its deal: no `{}`", k));
        auto at = [&](std::string_view k) { return t.get(k) ? lineOf(*t.get(k)) : line; };
        if (t.contains("optionLength") && band.optionLength != 12 && band.optionLength != 18)
            r.problemAt(at("optionLength"),
                        fmt::format("`optionLength` = {}: an option lasts 12 or 18 months", band.optionLength));
        if (band.optionsRemaining > band.additionalAdvanceCount + 1)
            r.problemAt(at("optionsRemaining"),
                        fmt::format("`optionsRemaining` = {} is more than the {} options of the deal "
                                    "(additionalAdvanceCount + 1)",
                                    band.optionsRemaining, band.additionalAdvanceCount + 1));
        bool firstTerm = band.optionsRemaining == band.additionalAdvanceCount + 1;
        int left = band.optionMonthsLeft;
        if (left != kNotCounting && (!firstTerm || left < 1 || left > band.optionLength))
            r.problemAt(at("optionMonthsLeft"),
                        firstTerm ? fmt::format("`optionMonthsLeft` = {}: 1 to the optionLength of {} months, or {} "
                                                "once the first album is out",
                                                left, band.optionLength, kNotCounting)
                                  : fmt::format("`optionMonthsLeft` = {}: past the first option it is {} (not "
                                                "counting)",
                                                left, kNotCounting));
        if (band.monthsUnsigned != 0) r.problemAt(at("monthsUnsigned"), "a signed act has no `monthsUnsigned`");
    }

    // The act's figures from its members, by the game's own rule. An act of the
    // world that no label holds asks its terms from its worth, as it would after
    // a release (what it has to pay back is its initial advance).
    static void deriveFigures(std::vector<Compiled<BandRecord>>& bands,
                              const std::vector<Compiled<ArtistRecord>>& artists, bool hidden) {
        RuleBench bench;
        std::vector<ArtistRecord> plain;
        plain.reserve(artists.size());
        for (const auto& a : artists) plain.push_back(a.rec);
        bench.fill(bench.g.artist, std::span<const ArtistRecord>(plain));
        for (auto& b : bands) {
            if (b.rec.memberCount == 0) continue;
            bench.g.band.rec = b.rec;
            setBandStats(bench.g);
            if (!hidden && bench.g.band->label == 0) {
                setAskingTerms(bench.g);
                bench.g.band->advanceToPay = bench.g.band->initialAdvance;
            }
            b.rec = bench.g.band.rec;
        }
    }

    std::shared_ptr<IndustryBook> book_;
    bool hidden_;
    FieldRules bandRules_ = bandRules();
    FieldRules memberRules_ = memberRules();
    std::vector<SourceRecord> records_;
    std::deque<SourceRecord> members_;
};

}  // namespace

std::unique_ptr<TableForm> actTableForm(std::shared_ptr<IndustryBook> book) {
    return std::make_unique<ActForm>(std::move(book), false);
}

std::unique_ptr<TableForm> hiddenActTableForm() { return std::make_unique<ActForm>(nullptr, true); }

}  // namespace trovane::worldtool
