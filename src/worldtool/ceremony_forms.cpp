// The source form of the award ceremonies: each [[ceremony]] holds its awards
// ([[ceremony.award]]) and compiles into the ceremony and award tables. The
// awards are numbered across the world in the order they stand.
#include <algorithm>
#include <deque>

#include "world/records/events_records.h"
#include "worldtool/industry_book.h"

namespace trovane::worldtool {
namespace {

using enum FileNo;

constexpr std::size_t kMostAwards = 40;
// originGroup names a group of countries by the rule's own numbers.
constexpr std::array<int64_t, 3> kOriginGroups = {-2, -3, -4};

FieldRules ceremonyRules() {
    return {.refs = {{"country", fileCountry}},
            .required = {"name", "country"},
            .bespokeKeys = {"award"},
            .hidden = {"awardCount", "awards", "date", "held", "playerInvited"}};
}

// genderRule 1 men only, 2 women only; sizeRule 1 solo acts, 2 two or more, 3 duos.
FieldRules awardRules() {
    return {.refs = {{"styleRule", fileStyle}},
            .ranges = {{"genderRule", 0, 2},
                       {"kind", 0, 6},
                       {"basis", 0, 6},
                       {"weight", 0, 100},
                       {"nomineeCount", 0, 10},
                       {"commercialityRange", 0, 100},
                       {"controversyRange", 0, 100},
                       {"sizeRule", 0, 3}},
            .required = {"name", "kind"},
            .bespokeKeys = {"origin", "originGroup"},
            .hidden = {"originRule", "held", "nominees", "nomineeNames", "scores", "winner", "spare"}};
}

// origin names a country; originGroup is -2, -3 or -4; neither: any origin.
void readOrigin(FieldReader& r, const toml::table& t, AwardRecord& award) {
    const toml::node* country = t.get("origin");
    const toml::node* group = t.get("originGroup");
    if (country && group) return r.problem(*group, "give `origin` or `originGroup`, not both");
    if (country) {
        if (auto c = r.reference(*country, "origin", fileCountry, INT16_MAX))
            award.originRule = static_cast<int16_t>(*c);
    } else if (group) {
        auto g = group->value<int64_t>();
        if (!g || std::find(kOriginGroups.begin(), kOriginGroups.end(), *g) == kOriginGroups.end())
            return r.problem(*group, "`originGroup` is -2, -3 or -4");
        award.originRule = static_cast<int16_t>(*g);
    }
}

// A range left out lets every value through; a range runs from low to high.
void readRanges(FieldReader& r, const toml::table& t, AwardRecord& award) {
    for (auto [key, range] : {std::pair{"commercialityRange", &award.commercialityRange},
                              std::pair{"controversyRange", &award.controversyRange}}) {
        const toml::node* n = t.get(key);
        if (!n) {
            *range = {0, 100};
            continue;
        }
        const toml::array* pair = n->as_array();
        if (!pair || pair->size() != 2)
            r.problem(*n, fmt::format("`{}` should be [low, high]", key));
        else if ((*range)[0] > (*range)[1])
            r.problem(*n, fmt::format("`{}`: the low end is above the high one", key));
    }
}

class CeremonyForm : public TableForm {
public:
    std::string_view key() const override { return "ceremony"; }
    FileNo file() const override { return fileCeremony; }

    void gather(CompileContext& ctx, std::span<const Section> sections) override {
        for (const Section& s : sections) {
            const toml::array* list = s.node->as_array();
            if (!list) {
                ctx.report(*s.file, s.line, "`ceremony` should be a list of ceremonies ([[ceremony]])");
                continue;
            }
            for (const toml::node& n : *list) {
                if (!n.is_table()) {
                    ctx.report(*s.file, lineOf(n), "a ceremony should be a table of its fields");
                    continue;
                }
                records_.push_back(SourceRecord{s.file, &n, lineOf(n), {}, nullptr});
                if (auto name = n.as_table()->get_as<std::string>("name"); name && !name->get().empty())
                    ctx.addName(fileCeremony, name->get(), records_.back(), static_cast<int32_t>(records_.size()));
            }
        }
    }

    CompiledFiles compile(CompileContext& ctx) override {
        std::vector<Compiled<CeremonyRecord>> ceremonies;
        std::vector<Compiled<AwardRecord>> awards;
        for (const SourceRecord& src : records_) {
            const toml::table& t = *src.node->as_table();
            FieldReader reader(ctx, *src.file, ceremonyRules_);
            CeremonyRecord ceremony{};
            reader.bind(t, src.line, ceremony);
            if (const toml::node* n = t.get("award")) {
                const toml::array* list = n->as_array();
                if (!list)
                    reader.problem(*n, "`award` should be a list of awards ([[ceremony.award]])");
                else if (list->size() > kMostAwards)
                    reader.problem(*n, fmt::format("\"{}\" has {} awards; a ceremony holds at most {}",
                                                   ceremony.name.str(), list->size(), kMostAwards));
                else
                    for (const toml::node& a : *list) readAward(ctx, src, a, ceremony, awards);
            }
            ceremonies.push_back(Compiled<CeremonyRecord>{std::move(ceremony), &src});
        }
        return {{fileCeremony, packRecords<CeremonyRecord>(ctx, ceremonies)},
                {fileAward, packRecords<AwardRecord>(ctx, awards)}};
    }

private:
    void readAward(CompileContext& ctx, const SourceRecord& ceremonySrc, const toml::node& n, CeremonyRecord& ceremony,
                   std::vector<Compiled<AwardRecord>>& awards) {
        const toml::table* t = n.as_table();
        if (!t) return ctx.report(*ceremonySrc.file, lineOf(n), "an award should be a table of its fields");
        FieldReader r(ctx, *ceremonySrc.file, awardRules_);
        AwardRecord award{};
        readOrigin(r, *t, award);
        r.bind(*t, lineOf(n), award);
        readRanges(r, *t, award);
        auto number = static_cast<int16_t>(std::min<std::size_t>(awards.size() + 1, INT16_MAX));
        ceremony.awards[static_cast<std::size_t>(ceremony.awardCount++)] = number;
        sources_.push_back(SourceRecord{ceremonySrc.file, &n, lineOf(n), {}, nullptr});
        awards.push_back(Compiled<AwardRecord>{std::move(award), &sources_.back()});
    }

    FieldRules ceremonyRules_ = ceremonyRules();
    FieldRules awardRules_ = awardRules();
    std::vector<SourceRecord> records_;
    std::deque<SourceRecord> sources_;
};

}  // namespace

std::unique_ptr<TableForm> ceremonyTableForm() { return std::make_unique<CeremonyForm>(); }

}  // namespace trovane::worldtool
