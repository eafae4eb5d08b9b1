// The source forms of the labels and of the staff who run them: a label's
// boss and department heads are staff records, named "Forename Surname".
#include <map>
#include <set>

#include <fmt/ranges.h>

#include "label/departments.h"
#include "label/label_standing.h"
#include "worldtool/industry_book.h"
#include "worldtool/rule_bench.h"

namespace trovane::worldtool {
namespace {

using enum FileNo;

std::string fullName(const StaffRecord& s) { return s.forename.str() + " " + s.surname.str(); }

// The line of a node inside a record's table, or the record's own line when it is not there.
int64_t lineWithin(const SourceRecord& src, toml::node_view<const toml::node> at) {
    return at.node() ? lineOf(*at.node()) : src.line;
}

// `aptitude` holds nine values; the record's tenth aptitude byte is the preferred style.
void readAptitude(FieldReader& r, const toml::table& t, int64_t, StaffRecord& rec) {
    if (const toml::node* n = t.get("aptitude")) {
        const toml::array* list = n->as_array();
        if (!list) {
            r.problem(*n, "`aptitude` should be a list of nine values");
        } else if (list->size() > 9) {
            r.problem(*n, fmt::format("`aptitude` has {} values; it holds nine", list->size()));
        } else {
            for (std::size_t i = 0; i < list->size(); ++i)
                if (auto v = r.wholeNumber((*list)[i], "aptitude", 0, 100)) rec.aptitude[i] = static_cast<uint8_t>(*v);
        }
    }
    if (const toml::node* n = t.get("preferredStyle"))
        if (auto style = r.reference(*n, "preferredStyle", fileStyle, 255))
            rec.aptitude[9] = static_cast<uint8_t>(*style);
}

// A staff member's wage, when the source leaves it out, is the game's rate for
// their standing and ability (a new game sets that rate again).
ListFormRules<StaffRecord> staffSpec(std::shared_ptr<IndustryBook> book) {
    return {
        .key = "staff",
        .file = fileStaff,
        .nameKey = "forename",
        .rules = {.refs = {{"country", fileCountry}, {"employer", fileLabel}, {"offerLabel", fileLabel}},
                  .ranges = {{"ability", 0, 100}, {"reputation", 0, 100}, {"department", 0, 5}, {"offerYears", 0, 5}},
                  .required = {"forename", "surname", "male", "ability"},
                  .bespokeKeys = {"aptitude", "preferredStyle"},
                  .hidden = {"aptitude"}},
        .identity = [](const toml::table& t,
                       const std::string& forename) { return forename + " " + t["surname"].value_or(std::string{}); },
        .bespoke = readAptitude,
        .derive =
            [book](CompileContext&, std::span<Compiled<StaffRecord>> staff) {
                Game g{std::filesystem::path{}};
                for (auto& s : staff) {
                    if (s.src->node->as_table()->contains("wage")) continue;
                    g.staff.rec = s.rec;
                    setStaffWage(g);
                    s.rec.wage = g.staff.rec.wage;
                }
                book->staff.assign(staff.begin(), staff.end());
                for (std::size_t i = 0; i < book->staff.size(); ++i)
                    book->staff[i].rec.id = static_cast<int16_t>(std::min<std::size_t>(i + 1, INT16_MAX));
            }};
}

void checkLabel(FieldReader& r, const toml::table& t, int64_t line, const LabelRecord& rec) {
    if (rec.minControversy > rec.maxControversy) r.problemAt(line, "`minControversy` is above `maxControversy`");
    const toml::node* n = t.get("department");
    const toml::array* departments = n ? n->as_array() : nullptr;
    if (!departments) return;  // bind has reported it
    if (departments->size() != kDepartmentNames.size()) {
        r.problem(*n, fmt::format("`department` lists {} departments; a label has all six: {}", departments->size(),
                                  fmt::join(kDepartmentNames, ", ")));
        return;
    }
    for (std::size_t d = 0; d < kDepartmentNames.size(); ++d)
        for (std::size_t level = 0; level < kLevelBounds.size(); ++level) {
            int32_t most = kLevelBounds[level];
            if (rec.department[d].staffAtLevel[level] > most)
                r.problem((*departments)[d],
                          fmt::format("{}: {} staff at level {}; the wages of a level hold at most {}",
                                      kDepartmentNames[d], rec.department[d].staffAtLevel[level], level + 1, most));
        }
}

void deriveLabels(const IndustryBook& book, std::span<Compiled<LabelRecord>> labels) {
    RuleBench bench;
    std::vector<StaffRecord> staff;
    for (const auto& s : book.staff) staff.push_back(s.rec);
    bench.fill(bench.g.staff, std::span<const StaffRecord>(staff));
    bench.fill(bench.g.band, std::span<const BandRecord>(book.bands));
    Game& g = bench.g;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        g.label.rec = labels[i].rec;
        g.label->id = static_cast<int16_t>(std::min<std::size_t>(i + 1, INT16_MAX));
        countLabelBands(g);
        setRivalStrength(g);
        setInitialHype(g);
        for (std::size_t d = 0; d < kDepartmentNames.size(); ++d) setDepartmentRating(g, static_cast<int>(d));
        // A count past its bound is reported by the label's check; its wages cannot be worked out.
        bool withinBounds = true;
        for (const Department& dep : g.label->department)
            for (std::size_t level = 0; level < kLevelBounds.size(); ++level)
                withinBounds = withinBounds && dep.staffAtLevel[level] <= kLevelBounds[level];
        if (withinBounds) updateWageBill(g);
        labels[i].rec = g.label.rec;
    }
}

void checkParentChains(CompileContext& ctx, std::span<const Compiled<LabelRecord>> labels) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
        std::set<std::size_t> visited{i};
        for (std::size_t at = i; labels[at].rec.parentLabel > 0;) {
            at = static_cast<std::size_t>(labels[at].rec.parentLabel - 1);
            if (at >= labels.size()) break;
            if (!visited.insert(at).second) {
                ctx.report(
                    *labels[i].src->file, labels[i].src->line,
                    fmt::format("the parentLabel links of \"{}\" go round in a circle", labels[i].rec.name.str()));
                break;
            }
        }
    }
}

// Every boss and department head works for the label that names them, in the
// department they head, and holds one post; everyone in work holds a post.
void checkPosts(CompileContext& ctx, const IndustryBook& book, std::span<const Compiled<LabelRecord>> labels) {
    auto labelName = [&](int16_t n) {
        return n > 0 && static_cast<std::size_t>(n) <= labels.size()
                   ? fmt::format("works for \"{}\"", labels[static_cast<std::size_t>(n - 1)].rec.name.str())
                   : std::string("is out of work (no `employer`)");
    };
    std::map<int16_t, std::string> postOf;
    auto take = [&](const SourceRecord& src, int64_t line, int16_t person, const std::string& post) {
        auto [it, fresh] = postOf.try_emplace(person, post);
        if (!fresh)
            ctx.report(*src.file, line,
                       fmt::format("\"{}\" cannot be {}: they are already {}",
                                   fullName(book.staff[static_cast<std::size_t>(person - 1)].rec), post, it->second));
    };
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const LabelRecord& label = labels[i].rec;
        const SourceRecord& src = *labels[i].src;
        const toml::table& t = *src.node->as_table();
        auto number = static_cast<int16_t>(i + 1);
        if (label.boss > 0 && static_cast<std::size_t>(label.boss) <= book.staff.size()) {
            const StaffRecord& boss = book.staff[static_cast<std::size_t>(label.boss - 1)].rec;
            int64_t line = lineWithin(src, t["boss"]);
            if (boss.employer != number)
                ctx.report(*src.file, line,
                           fmt::format("the boss of \"{}\", \"{}\", {}", label.name.str(), fullName(boss),
                                       labelName(boss.employer)));
            take(src, line, label.boss, fmt::format("the boss of \"{}\"", label.name.str()));
        }
        for (std::size_t d = 0; d < kDepartmentNames.size(); ++d) {
            int16_t head = label.department[d].head;
            if (head <= 0 || static_cast<std::size_t>(head) > book.staff.size()) continue;
            const StaffRecord& person = book.staff[static_cast<std::size_t>(head - 1)].rec;
            int64_t line = lineWithin(src, t["department"][d]["head"]);
            std::string post = fmt::format("the head of {} at \"{}\"", kDepartmentNames[d], label.name.str());
            if (person.employer != number)
                ctx.report(*src.file, line,
                           fmt::format("{}, \"{}\", {}", post, fullName(person), labelName(person.employer)));
            else if (person.department != d)
                ctx.report(
                    *src.file, line,
                    fmt::format("{}, \"{}\", has `department` = {} ({})", post, fullName(person), person.department,
                                kDepartmentNames[std::min<std::size_t>(person.department, 5)]));
            take(src, line, head, post);
        }
    }
    for (const auto& s : book.staff)
        if (s.rec.employer > 0 && !postOf.contains(s.rec.id))
            ctx.report(*s.src->file, s.src->line,
                       fmt::format("\"{}\" {} but is neither its boss nor the head of one of its departments",
                                   fullName(s.rec), labelName(s.rec.employer)));
}

ListFormRules<LabelRecord> labelSpec(std::shared_ptr<IndustryBook> book) {
    return {.key = "label",
            .file = fileLabel,
            .nameKey = "name",
            .rules = {.refs = {{"city", fileCity},
                               {"parentLabel", fileLabel},
                               {"labelStyle", fileStyle},
                               {"boss", fileStaff},
                               {"department.head", fileStaff}},
                      .ranges = {{"minControversy", 0, 100},
                                 {"maxControversy", 0, 100},
                                 {"reputationTarget", 0, 100},
                                 {"reputation", 0, 100}},
                      .required = {"name", "boss", "department"},
                      .hidden = {"strengthClass", "wageBill", "department.rating", "bandCount", "hype"}},
            .checkOne = checkLabel,
            .derive = [book](CompileContext&, std::span<Compiled<LabelRecord>> labels) { deriveLabels(*book, labels); },
            .checkAll =
                [book](CompileContext& ctx, std::span<const Compiled<LabelRecord>> labels) {
                    checkParentChains(ctx, labels);
                    checkPosts(ctx, *book, labels);
                }};
}

}  // namespace

std::unique_ptr<TableForm> staffTableForm(std::shared_ptr<IndustryBook> book) {
    return std::make_unique<ListForm<StaffRecord>>(staffSpec(std::move(book)));
}

std::unique_ptr<TableForm> labelTableForm(std::shared_ptr<IndustryBook> book) {
    return std::make_unique<ListForm<LabelRecord>>(labelSpec(std::move(book)));
}

}  // namespace trovane::worldtool
