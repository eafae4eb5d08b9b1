// The source forms of the fixed world: geography, names, jobs, styles,
// products, looks, the associations, the banks of names and the loading-screen lines.
#include <map>
#include <set>

#include "world/records/reference_records.h"
#include "worldtool/table_form.h"

namespace trovane::worldtool {
namespace {

using enum FileNo;

constexpr std::string_view kRegions = "ENSOAF";
constexpr std::string_view kAreas = "ENSOAFX";  // a region, or X for the whole world

// The eight attributes of an artist's image, in the order style templates and looks hold them.
constexpr std::array<std::string_view, 8> kAttributes = {"charisma", "controversy", "flair", "dancing",
                                                         "live",     "attitude",    "angst", "visual"};

// countries = { England = 8, Wales = 4 }: up to five countries, each with a weight.
// No countries at all leaves the name open to every country.
void readCountryWeights(FieldReader& r, const toml::table& t, std::array<uint8_t, 5>& links,
                        std::array<uint8_t, 5>& weights) {
    const toml::node* n = t.get("countries");
    if (!n) return;
    const toml::table* countries = n->as_table();
    if (!countries) {
        r.problem(*n, "`countries` should be a table of countries and weights, such as { England = 8 }");
        return;
    }
    auto entries = inSourceOrder(*countries);
    if (entries.size() > links.size()) {
        r.problem(*n, fmt::format("{} countries on one name; it holds at most {}", entries.size(), links.size()));
        return;
    }
    int64_t sum = 0;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto& [key, weight] = entries[i];
        if (auto c = r.resolve(key->str(), *weight, "countries", fileCountry, 255)) links[i] = static_cast<uint8_t>(*c);
        auto w = r.wholeNumber(*weight, fmt::format("weight of {}", key->str()), 0, 255);
        if (!w) return;
        weights[i] = static_cast<uint8_t>(*w);
        sum += *w;
    }
    if (!entries.empty() && sum == 0) r.problem(*n, "the weights of `countries` sum to nothing");
}

ListFormRules<CountryRecord> countryForm() {
    return {.key = "country",
            .file = fileCountry,
            .nameKey = "name",
            .rules = {.letters = {{"region", kRegions}}, .required = {"name", "adjective", "region"}}};
}

ListFormRules<CityRecord> cityForm() {
    return {.key = "city",
            .file = fileCity,
            .nameKey = "name",
            .rules = {.refs = {{"country", fileCountry}}, .required = {"name", "country", "size"}}};
}

// A crowd of exactly 100,001 has no divisor in the gig rules, so no venue may hold that many.
ListFormRules<VenueRecord> venueForm() {
    return {.key = "venue",
            .file = fileVenue,
            .nameKey = "name",
            .rules = {.refs = {{"city", fileCity}},
                      .ranges = {{"capacity", 1, 100000}, {"rating", 0, 100}},
                      .required = {"name", "city", "capacity"}}};
}

ListFormRules<ForenameRecord> forenameForm() {
    return {.key = "forename",
            .file = fileForename,
            .nameKey = "name",
            .rules = {.required = {"name", "male"},
                      .bespokeKeys = {"male", "countries"},
                      .hidden = {"countryLinks", "countryWeights", "isMale"}},
            .identity =
                [](const toml::table& t, const std::string& name) {
                    return name + (t["male"].value_or(false) ? " (male)" : " (female)");
                },
            .bespoke =
                [](FieldReader& r, const toml::table& t, int64_t, ForenameRecord& rec) {
                    if (const toml::node* male = t.get("male")) {
                        if (male->is_boolean())
                            rec.isMale = boolean(male->value_or(false));
                        else
                            r.problem(*male, "`male` should be true or false");
                    }
                    readCountryWeights(r, t, rec.countryLinks, rec.countryWeights);
                }};
}

ListFormRules<SurnameRecord> surnameForm() {
    return {.key = "surname",
            .file = fileSurname,
            .nameKey = "name",
            .rules = {.required = {"name"}, .bespokeKeys = {"countries"}, .hidden = {"countryLinks", "countryWeights"}},
            .bespoke = [](FieldReader& r, const toml::table& t, int64_t, SurnameRecord& rec) {
                readCountryWeights(r, t, rec.countryLinks, rec.countryWeights);
            }};
}

// rank 1 is the front of the band; shares are weighted 6 - rank and reputation moves by 3 / rank.
ListFormRules<JobRecord> jobForm() {
    return {.key = "job",
            .file = fileJob,
            .nameKey = "title",
            .rules = {.ranges = {{"rank", 1, 5}}, .required = {"title", "titleFemale", "rank"}}};
}

void readStyleBase(FieldReader& r, const toml::table& t, StyleRecord& rec) {
    const toml::node* n = t.get("base");
    if (!n) return;
    const toml::table* base = n->as_table();
    if (!base) {
        r.problem(*n, "`base` should be a table of the eight attributes");
        return;
    }
    std::array<uint8_t*, 8> fields = {&rec.baseCharisma, &rec.baseControversy, &rec.baseFlair, &rec.baseDancing,
                                      &rec.baseLive,     &rec.baseAttitude,    &rec.baseAngst, &rec.baseVisual};
    for (std::size_t i = 0; i < kAttributes.size(); ++i)
        if (const toml::node* v = base->get(kAttributes[i]))
            if (auto x = r.wholeNumber(*v, fmt::format("base.{}", kAttributes[i]), 0, 100))
                *fields[i] = static_cast<uint8_t>(*x);
    r.refuseUnknownKeys(*base, "base", kAttributes);
}

void checkStyle(FieldReader& r, const toml::table& t, int64_t line, const StyleRecord& rec) {
    if (std::all_of(rec.bandJobs.begin(), rec.bandJobs.end(), [](uint8_t j) { return j == 0; })) {
        const toml::node* jobs = t.get("bandJobs");
        r.problemAt(jobs ? lineOf(*jobs) : line, "a style without a band job");
    }
    if (rec.soloPercent > 0 && rec.soloJob == 0)
        r.problemAt(line, "solo acts of this style would have no job: give `soloJob`");
    if (!(rec.membersLow <= rec.membersUsual && rec.membersUsual <= rec.membersHigh))
        r.problemAt(line, fmt::format("band sizes out of order: membersLow {}, membersUsual {}, membersHigh {}",
                                      rec.membersLow, rec.membersUsual, rec.membersHigh));
}

// "Legend" is the style no generated act gets: the draw of a style leaves out the last record.
// Styles descend through parentStyle until a style with none; a loop would never end.
void checkStyles(CompileContext& ctx, std::span<const Compiled<StyleRecord>> styles) {
    for (std::size_t i = 0; i < styles.size(); ++i) {
        const auto& s = styles[i];
        if (s.rec.name.str() == "Legend" && i + 1 != styles.size())
            ctx.report(*s.src->file, s.src->line, "\"Legend\" must be the last style");
        std::set<std::size_t> visited{i};
        for (std::size_t at = i; styles[at].rec.parentStyle != 0;) {
            at = styles[at].rec.parentStyle - 1u;
            if (at >= styles.size()) break;
            if (!visited.insert(at).second) {
                ctx.report(*s.src->file, s.src->line,
                           fmt::format("the parentStyle links of \"{}\" go round in a circle", s.rec.name.str()));
                break;
            }
        }
    }
    if (!styles.empty() && styles.back().rec.name.str() != "Legend") {
        const auto& last = styles.back();
        ctx.report(*last.src->file, last.src->line, "the last style must be \"Legend\"");
    }
}

ListFormRules<StyleRecord> styleForm() {
    FieldRules rules{
        .refs = {{"bandJobs", fileJob}, {"soloJob", fileJob}, {"parentStyle", fileStyle}},
        .ranges = {{"popularity", 0, 100},
                   {"commerciality", 0, 100},
                   {"membersHigh", 1, 10},
                   {"membersUsual", 1, 10},
                   {"membersLow", 1, 10},
                   {"soloPercent", 0, 100},
                   {"writerPercent", 0, 100},
                   {"singingWeight", 0, 100},
                   {"dancingWeight", 0, 100},
                   {"contentWeight", 0, 100},
                   {"abilityWeight", 0, 100},
                   {"genderRule", 0, 2}},
        .required = {"name", "lifeSpan", "popularity", "membersHigh", "membersUsual", "membersLow", "bandJobs"},
        .bespokeKeys = {"base"},
        .hidden = {"baseCharisma", "baseControversy", "baseFlair", "baseDancing", "baseLive", "baseAttitude",
                   "baseAngst", "baseVisual"}};
    return {
        .key = "style",
        .file = fileStyle,
        .nameKey = "name",
        .rules = std::move(rules),
        .bespoke = [](FieldReader& r, const toml::table& t, int64_t, StyleRecord& rec) { readStyleBase(r, t, rec); },
        .checkOne = checkStyle,
        .checkAll = checkStyles};
}

ListFormRules<ProductRecord> productForm() {
    return {.key = "product",
            .file = fileProduct,
            .nameKey = "name",
            .rules = {.ranges = {{"minimumReputation", 0, 100}, {"minControversy", 0, 100}, {"maxControversy", 0, 100}},
                      .letters = {{"area", kAreas}},
                      .required = {"name", "area"},
                      .bespokeKeys = {"countries"},
                      .hidden = {"regionWeights"}},
            .bespoke =
                [](FieldReader& r, const toml::table& t, int64_t, ProductRecord& rec) {
                    const toml::node* n = t.get("countries");
                    if (!n) return;
                    const toml::array* list = n->as_array();
                    if (!list) return r.problem(*n, "`countries` should be a list of country names");
                    if (list->size() > rec.regionWeights.size())
                        return r.problem(*n, fmt::format("{} countries on one product; it holds at most {}",
                                                         list->size(), rec.regionWeights.size()));
                    for (std::size_t i = 0; i < list->size(); ++i)
                        if (auto c = r.reference((*list)[i], "countries", fileCountry, 255))
                            rec.regionWeights[i] = static_cast<uint8_t>(*c);
                },
            .checkOne =
                [](FieldReader& r, const toml::table&, int64_t line, const ProductRecord& rec) {
                    if (rec.minControversy > rec.maxControversy)
                        r.problemAt(line, "`minControversy` is above `maxControversy`");
                }};
}

// bounds = { charisma = [40, 100], ... }: a low and a high bound for each of the eight attributes.
void readLookBounds(FieldReader& r, const toml::table& t, int64_t line, LookRecord& rec) {
    const toml::node* n = t.get("bounds");
    const toml::table* bounds = n ? n->as_table() : nullptr;
    if (!bounds) {
        r.problemAt(n ? lineOf(*n) : line, "`bounds` should give a [low, high] pair for each of the eight attributes");
        return;
    }
    for (std::size_t i = 0; i < kAttributes.size(); ++i) {
        const toml::node* v = bounds->get(kAttributes[i]);
        if (!v) {
            r.problem(*n, fmt::format("no bounds for `{}`", kAttributes[i]));
            continue;
        }
        const toml::array* pair = v->as_array();
        if (!pair || pair->size() != 2) {
            r.problem(*v, fmt::format("`bounds.{}` should be [low, high]", kAttributes[i]));
            continue;
        }
        auto lo = r.wholeNumber((*pair)[0], fmt::format("bounds.{}", kAttributes[i]), 0, 100);
        auto hi = r.wholeNumber((*pair)[1], fmt::format("bounds.{}", kAttributes[i]), 0, 100);
        if (!lo || !hi) continue;
        if (*lo > *hi) r.problem(*v, fmt::format("`bounds.{}`: the low bound is above the high one", kAttributes[i]));
        rec.bounds[2 * i] = static_cast<uint8_t>(*lo);
        rec.bounds[2 * i + 1] = static_cast<uint8_t>(*hi);
    }
    r.refuseUnknownKeys(*bounds, "bounds", kAttributes);
}

ListFormRules<LookRecord> lookForm() {
    return {.key = "look",
            .file = fileLook,
            .nameKey = "name",
            .rules = {.ranges = {{"sex", 0, 2}}, .required = {"name"}, .bespokeKeys = {"bounds"}, .hidden = {"bounds"}},
            .bespoke = readLookBounds};
}

// A draw over an association table picks by weight among the records that
// apply to one side; those records must not all weigh nothing.
void checkDrawWeights(CompileContext& ctx, std::span<const Compiled<AssRecord>> links, bool bothSides) {
    struct Group {
        int64_t sum = 0;
        const Compiled<AssRecord>* first = nullptr;
        std::string name;
    };
    std::map<uint8_t, Group> groups;
    auto add = [&](uint8_t side, const Compiled<AssRecord>& link, std::string_view key) {
        if (side == 0) return;
        Group& g = groups[side];
        g.sum += link.rec.weight;
        if (g.first) return;
        g.first = &link;
        g.name = (*link.src->node->as_table())[key].value_or(std::string{});
    };
    for (const auto& link : links) {
        add(link.rec.a, link, "a");
        if (bothSides && link.rec.b != link.rec.a) add(link.rec.b, link, "b");
    }
    for (const auto& [side, g] : groups)
        if (g.sum == 0)
            ctx.report(*g.first->src->file, g.first->src->line,
                       fmt::format("the weights of the links of \"{}\" sum to nothing", g.name));
}

ListFormRules<AssRecord> assNationForm() {
    return {.key = "assnation",
            .file = fileAssNation,
            .rules = {.refs = {{"a", fileCountry}, {"b", fileCountry}}, .required = {"a", "b", "weight"}},
            .checkAll = [](CompileContext& ctx, std::span<const Compiled<AssRecord>> links) {
                checkDrawWeights(ctx, links, true);
            }};
}

ListFormRules<AssRecord> assStyleForm() {
    return {.key = "assstyle",
            .file = fileAssStyle,
            .rules = {.refs = {{"a", fileStyle}, {"b", fileStyle}}, .required = {"a", "b", "weight"}},
            .checkAll = [](CompileContext& ctx, std::span<const Compiled<AssRecord>> links) {
                checkDrawWeights(ctx, links, false);
            }};
}

// asslook is (look, style, bonus) in the same shape as the other two.
ListFormRules<AssRecord> assLookForm() {
    return {.key = "asslook",
            .file = fileAssLook,
            .rules = {.refs = {{"a", fileLook}, {"b", fileStyle}},
                      .renames = {{"look", "a"}, {"style", "b"}, {"bonus", "weight"}},
                      .required = {"look", "style", "bonus"}}};
}

// fact = [ "Did you know? ...", ... ]
class FactForm : public TableForm {
public:
    std::string_view key() const override { return "fact"; }
    FileNo file() const override { return fileFact; }

    void gather(CompileContext& ctx, std::span<const Section> sections) override {
        for (const Section& s : sections) {
            const toml::array* list = s.node->as_array();
            if (!list) {
                ctx.report(*s.file, s.line, "`fact` should be a list of texts");
                continue;
            }
            for (const toml::node& n : *list) records_.push_back(SourceRecord{s.file, &n, lineOf(n), {}, nullptr});
        }
    }

    CompiledFiles compile(CompileContext& ctx) override {
        std::vector<Compiled<FactRecord>> out;
        for (const SourceRecord& src : records_) {
            FieldReader reader(ctx, *src.file, noRules_);
            auto text = reader.text(*src.node, "fact", Text<1024>::width);
            if (!text) continue;
            FactRecord rec{};
            rec.text = *text;
            out.push_back(Compiled<FactRecord>{std::move(rec), &src});
        }
        return {{fileFact, packRecords<FactRecord>(ctx, out)}};
    }

private:
    FieldRules noRules_;
    std::vector<SourceRecord> records_;
};

template <PackedRecord R>
std::unique_ptr<TableForm> listForm(ListFormRules<R> rules) {
    return std::make_unique<ListForm<R>>(std::move(rules));
}

template <PackedRecord R>
std::unique_ptr<TableForm> bankForm(BankFormRules<R> rules) {
    return std::make_unique<BankForm<R>>(std::move(rules));
}

}  // namespace

std::vector<std::unique_ptr<TableForm>> referenceForms() {
    std::vector<std::unique_ptr<TableForm>> forms;
    forms.push_back(listForm(countryForm()));
    forms.push_back(listForm(cityForm()));
    forms.push_back(listForm(venueForm()));
    forms.push_back(listForm(forenameForm()));
    forms.push_back(listForm(surnameForm()));
    forms.push_back(listForm(jobForm()));
    forms.push_back(listForm(styleForm()));
    forms.push_back(listForm(productForm()));
    forms.push_back(listForm(lookForm()));
    forms.push_back(listForm(assNationForm()));
    forms.push_back(listForm(assStyleForm()));
    forms.push_back(listForm(assLookForm()));
    forms.push_back(bankForm<NewBandRecord>({"newband", fileNewBand, 32, [](auto& r, const auto& name, uint8_t style) {
                                                 r.name = name;
                                                 r.style = style;
                                             }}));
    forms.push_back(bankForm<NewSongRecord>({"newsong", fileNewSong, 50, [](auto& r, const auto& title, uint8_t style) {
                                                 r.title = title;
                                                 r.style = style;
                                             }}));
    forms.push_back(bankForm<NewAlbumRecord>({"newalbum", fileNewAlbum, 50, [](auto& r, const auto& title, auto style) {
                                                  r.title = title;
                                                  r.style = style;
                                              }}));
    forms.push_back(std::make_unique<FactForm>());
    return forms;
}

}  // namespace trovane::worldtool
