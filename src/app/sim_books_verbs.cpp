// The verbs of the label's books and staff: label, books, department, staff,
// approach, withdraw-staff, terminate.
#include <cstdio>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "app/sim_context.h"
#include "floor/formats.h"
#include "label/departments.h"
#include "label/label_details.h"
#include "label/staff.h"
#include "world/record_dump.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane::sim {

namespace {

constexpr int kExitRefused = 1;
constexpr int kExitBadArgument = 2;

std::string base(Money m) { return fmt::format("{:.4f}", moneyToDouble(m)); }
void fail(SimContext& ctx, int status, const std::string& why) {
    std::fprintf(stderr, "trovane-sim: %s\n", why.c_str());
    ctx.exitCode = status;
}

// A record named by its number or its exact name; 0 (and a bad argument) when there is none.
int16_t resolve(SimContext& ctx, Game& g, FileNo table, const std::string& what, const char* kind) {
    const int32_t n = recordNamed(g, table, what);
    if (n == 0) fail(ctx, kExitBadArgument, fmt::format("There is no {} called {}", kind, what));
    return static_cast<int16_t>(n);
}

int16_t labelOrPlayers(SimContext& ctx, Game& g, const std::string& what) {
    if (what.empty()) return g.player.playerLabel;
    return resolve(ctx, g, FileNo::fileLabel, what, "label");
}

std::string columnJson(const BooksColumn& c) {
    std::string out = "\"income\":{";
    for (std::size_t i = 0; i < c.income.size(); ++i)
        out += fmt::format("{}{}:{}", i ? "," : "", jsonQuote(kIncomeRows[i]), base(c.income[i]));
    out += fmt::format("}},\"incomeTotal\":{},\"expense\":{{", base(c.incomeTotal));
    for (std::size_t i = 0; i < c.expense.size(); ++i)
        out += fmt::format("{}{}:{}", i ? "," : "", jsonQuote(kExpenseRows[i]), base(c.expense[i]));
    return out + fmt::format("}},\"expenseTotal\":{}", base(c.expenseTotal));
}

void printColumn(Game& g, const BooksColumn& c) {
    for (std::size_t i = 0; i < c.income.size(); ++i)
        std::printf("  %-18s %16s\n", kIncomeRows[i], formatMoney(g, c.income[i], "###,###,###,##0").c_str());
    std::printf("  %-18s %16s\n", "Total income", formatMoney(g, c.incomeTotal, "###,###,###,##0").c_str());
    for (std::size_t i = 0; i < c.expense.size(); ++i)
        std::printf("  %-18s %16s\n", kExpenseRows[i], formatMoney(g, c.expense[i], "###,###,###,##0").c_str());
    std::printf("  %-18s %16s\n", "Total expenses", formatMoney(g, c.expenseTotal, "###,###,###,##0").c_str());
}

std::optional<std::array<int, 5>> parseLevels(const std::string& text) {
    std::array<int, 5> levels{};
    std::stringstream in(text);
    std::string part;
    std::size_t i = 0;
    while (std::getline(in, part, ',')) {
        if (i == 5 || part.empty() || part.size() > 4 || part.find_first_not_of("0123456789") != std::string::npos)
            return std::nullopt;
        levels[i++] = std::stoi(part);
    }
    if (i != 5) return std::nullopt;
    return levels;
}

// What the verbs below are given on the command line.
struct LabelOptions {
    std::string which;
};

void addLabelVerb(CLI::App& app, SimContext& ctx) {
    auto labelOpts = std::make_shared<LabelOptions>();
    auto* cmd = app.add_subcommand("label", "Show a label's details (frmLabelDetails); the player's by default");
    cmd->add_option("LABEL", labelOpts->which, "A label, by number or exact name");
    cmd->callback([&ctx, labelOpts] {
        Game& g = ctx.openGame();
        if (int16_t n = labelOrPlayers(ctx, g, labelOpts->which)) {
            LabelDetails d = labelDetails(g, n);
            if (ctx.json) {
                std::string out = fmt::format(
                    "{{\"label\":{},\"name\":{},\"playersOwn\":{},\"style\":{},\"independence\":{},\"city\":{},"
                    "\"age\":{},\"boss\":{},\"bands\":{},\"cash\":{},\"points\":[{}],\"pointsTotal\":{},"
                    "\"reputation\":[",
                    n, jsonQuote(d.name), d.playersOwn, jsonQuote(d.style), jsonQuote(d.independence),
                    jsonQuote(d.city), d.age, jsonQuote(d.boss), d.bands, base(d.cash), fmt::join(d.points, ","),
                    d.pointsTotal);
                for (std::size_t m = 0; m < 5; ++m) out += (m ? "," : "") + jsonQuote(d.reputation[m]);
                out += fmt::format("],\"salesTotals\":[{}],\"chartCounts\":[{}],\"wageBill\":{},\"departments\":[",
                                   fmt::join(d.salesTotals, ","), fmt::join(d.chartCounts, ","), base(d.wageBill));
                for (std::size_t i = 0; i < 6; ++i) {
                    const DepartmentView& v = d.departments[i];
                    out += fmt::format("{}{{\"department\":{},\"levels\":[{}],\"rating\":{},\"head\":{},\"wages\":{}}}",
                                       i ? "," : "", jsonQuote(v.department), fmt::join(v.levels, ","),
                                       jsonQuote(v.rating), jsonQuote(v.head), base(v.wages));
                }
                std::printf("%s]}\n", out.c_str());
            } else {
                std::printf(
                    "%s\nFormed:       %s, %d years ago\nBoss:         %s\nGenre:        %s\n"
                    "Independence: %s\nBands:        %d\nReputation:   %s %s %s %s %s\nWage bill:    %s\n",
                    d.name.c_str(), d.city.c_str(), d.age, d.boss.c_str(), d.style.c_str(), d.independence.c_str(),
                    d.bands, d.reputation[0].c_str(), d.reputation[1].c_str(), d.reputation[2].c_str(),
                    d.reputation[3].c_str(), d.reputation[4].c_str(),
                    formatMoney(g, d.wageBill, "###,###,##0").c_str());
                for (const auto& v : d.departments)
                    fmt::print("  {:<22} {:2} {:2} {:2} {:2} {:2}  {:>4}  {:<24} {}\n", v.department.c_str(),
                               v.levels[0], v.levels[1], v.levels[2], v.levels[3], v.levels[4], v.rating.c_str(),
                               v.head.c_str(), formatMoney(g, v.wages, "###,###,##0").c_str());
            }
        }
        ctx.closeGame();
    });
}

// What the verbs below are given on the command line.
struct BooksOptions {
    std::string which;
    bool history = false;
};

void addBooksVerb(CLI::App& app, SimContext& ctx) {
    auto booksOpts = std::make_shared<BooksOptions>();
    auto* cmd = app.add_subcommand("books", "Show a label's balance sheet, or its month-by-month history");
    cmd->add_option("LABEL", booksOpts->which, "A label, by number or exact name; the player's by default");
    cmd->add_flag("--history", booksOpts->history, "Every close of the books, the opening first");
    cmd->callback([&ctx, booksOpts] {
        Game& g = ctx.openGame();
        if (int16_t n = labelOrPlayers(ctx, g, booksOpts->which)) {
            const std::string name = labelDetails(g, n).name;
            if (booksOpts->history) {
                auto rows = labelHistory(g, n);
                if (ctx.json) {
                    std::string out = "[";
                    for (std::size_t i = 0; i < rows.size(); ++i)
                        out += fmt::format("{}{{\"date\":\"{}\",{},\"cash\":{}}}", i ? "," : "", isoDate(rows[i].date),
                                           columnJson(rows[i].figures), base(rows[i].cash));
                    std::printf("%s]\n", out.c_str());
                } else {
                    std::printf("%-12s %16s %16s %18s\n", "Date", "Income", "Expenses", "Cash");
                    for (const auto& r : rows)
                        std::printf("%-12s %16s %16s %18s\n", isoDate(r.date).c_str(),
                                    formatMoney(g, r.figures.incomeTotal, "###,###,###,##0").c_str(),
                                    formatMoney(g, r.figures.expenseTotal, "###,###,###,##0").c_str(),
                                    formatMoney(g, r.cash, "###,###,###,##0").c_str());
                }
            } else {
                auto columns = labelBooks(g, n);
                if (ctx.json) {
                    std::string out = fmt::format("{{\"label\":{},\"periods\":[", jsonQuote(name));
                    for (std::size_t i = 0; i < columns.size(); ++i)
                        out += fmt::format("{}{{\"period\":{},{}}}", i ? "," : "", jsonQuote(columns[i].period),
                                           columnJson(columns[i]));
                    std::printf("%s]}\n", out.c_str());
                } else {
                    std::printf("%s\n", name.c_str());
                    for (const auto& c : columns) {
                        std::printf("%s\n", c.period.c_str());
                        printColumn(g, c);
                    }
                }
            }
        }
        ctx.closeGame();
    });
}

// What the verbs below are given on the command line.
struct DepartmentOptions {
    int dept = 0;
    std::string levelsText;
};

void addDepartmentVerb(CLI::App& app, SimContext& ctx) {
    auto departmentOpts = std::make_shared<DepartmentOptions>();
    auto* cmd = app.add_subcommand("department", "Set the staff levels of one of the player's departments");
    cmd->add_option("DEPT", departmentOpts->dept, "0 Artist and Repertoire ... 5 Security")->required();
    cmd->add_option("--levels", departmentOpts->levelsText, "Five counts, best level first: N,N,N,N,N")->required();
    cmd->callback([&ctx, departmentOpts] {
        auto levels = parseLevels(departmentOpts->levelsText);
        if (!levels) return fail(ctx, kExitBadArgument, "--levels takes five whole counts: N,N,N,N,N");
        if (std::string why = checkDepartmentLevels(departmentOpts->dept, *levels); !why.empty())
            return fail(ctx, kExitBadArgument, why);
        Game& g = ctx.openGame();
        setDepartmentLevels(g, departmentOpts->dept, *levels);
        LabelDetails d = labelDetails(g, g.player.playerLabel);
        const DepartmentView& v = d.departments[static_cast<std::size_t>(departmentOpts->dept)];
        if (ctx.json)
            std::printf("{\"department\":%s,\"levels\":[%s],\"rating\":%s,\"wages\":%s,\"wageBill\":%s}\n",
                        jsonQuote(v.department).c_str(), fmt::format("{}", fmt::join(v.levels, ",")).c_str(),
                        jsonQuote(v.rating).c_str(), base(v.wages).c_str(), base(d.wageBill).c_str());
        else
            std::printf("%s: rating %s, wage bill %s\n", v.department.c_str(), v.rating.c_str(),
                        formatMoney(g, d.wageBill, "###,###,##0").c_str());
        ctx.closeGame();
    });
}

void printStaff(SimContext& ctx, Game& g, const StaffDetails& d) {
    if (ctx.json) {
        std::printf(
            "{\"staff\":%d,\"name\":%s,\"age\":%d,\"nationality\":%s,\"post\":%s,\"ability\":%d,\"reputation\":[%s],"
            "\"employer\":%s,\"wage\":%s,\"hiredOn\":\"%s\",\"contractEnd\":\"%s\",\"aptitude\":[%s],"
            "\"preferredStyle\":%s,\"points\":[%s],\"options\":%s}\n",
            d.staff, jsonQuote(d.name).c_str(), d.age, jsonQuote(d.nationality).c_str(), jsonQuote(d.post).c_str(),
            d.ability, fmt::format("{}", fmt::join(d.reputation, ",")).c_str(), jsonQuote(d.employer).c_str(),
            base(d.wage).c_str(), isoDate(d.hiredOn).c_str(), isoDate(d.contractEnd).c_str(),
            fmt::format("{}", fmt::join(d.aptitude, ",")).c_str(), jsonQuote(d.preferredStyle).c_str(),
            fmt::format("{}", fmt::join(d.points, ",")).c_str(),
            d.playersOwn           ? "\"none\""
            : d.employedByPlayer   ? "\"signed\""
            : d.approachedByPlayer ? "\"approached\""
                                   : "\"unsigned\"");
        return;
    }
    std::printf(
        "Staff Details\n%s\nAge:          %d\nNationality:  %s\nPost:         %s\nAbility:      %d\n"
        "Reputation:   %d %d %d %d %d\nEmployer:     %s\nWeekly wage:  %s\nHired:        %s\n"
        "Contract end: %s\nPreferred style: %s\n",
        d.name.c_str(), d.age, d.nationality.c_str(), d.post.c_str(), d.ability, d.reputation[0], d.reputation[1],
        d.reputation[2], d.reputation[3], d.reputation[4], d.employer.c_str(),
        formatMoney(g, d.wage, "###,###,##0").c_str(), formatDate(d.hiredOn, "d/m/yyyy").c_str(),
        formatDate(d.contractEnd, "d/m/yyyy").c_str(), d.preferredStyle.c_str());
}

// What the verbs below are given on the command line.
struct StaffOptions {
    std::string who;
};

struct ApproachOptions {
    std::string target;
    int role = 0;
    int years = 3;
    std::optional<double> wage;
};

struct WithdrawStaffOptions {
    std::string withdrawn;
};

struct TerminateOptions {
    std::string released;
};

void addStaffVerbs(CLI::App& app, SimContext& ctx) {
    auto staffOpts = std::make_shared<StaffOptions>();
    auto* show = app.add_subcommand("staff", "Show a staff member (Staff Details)");
    show->add_option("STAFF", staffOpts->who, "By number or \"Forename Surname\"")->required();
    show->callback([&ctx, staffOpts] {
        Game& g = ctx.openGame();
        if (int16_t s = resolve(ctx, g, FileNo::fileStaff, staffOpts->who, "staff member"))
            printStaff(ctx, g, staffDetails(g, s));
        ctx.closeGame();
    });

    auto approachOpts = std::make_shared<ApproachOptions>();
    auto* approach = app.add_subcommand("approach", "Offer a staff member the head of a department (frmStaffContract)");
    approach->add_option("STAFF", approachOpts->target, "By number or \"Forename Surname\"")->required();
    approach->add_option("--role", approachOpts->role, "The department: 0 Artist and Repertoire ... 5 Security")
        ->required();
    approach->add_option("--wage", approachOpts->wage,
                         "Weekly wage in the display currency; the asked wage by default");
    approach->add_option("--years", approachOpts->years, "Length of the contract, 1 to 5 (3 by default)");
    approach->callback([&ctx, approachOpts] {
        if (approachOpts->role < 0 || approachOpts->role > 5)
            return fail(ctx, kExitBadArgument, "--role takes a department from 0 to 5");
        if (approachOpts->years < 1 || approachOpts->years > 5)
            return fail(ctx, kExitBadArgument, "--years takes 1 to 5");
        if (approachOpts->wage && (*approachOpts->wage < 0 || *approachOpts->wage > 2'000'000'000.0))
            return fail(ctx, kExitBadArgument, "--wage takes an amount of 0 or more");
        Game& g = ctx.openGame();
        if (int16_t s = resolve(ctx, g, FileNo::fileStaff, approachOpts->target, "staff member")) {
            if (std::string why = checkApproachStaff(g, s); !why.empty()) {
                fail(ctx, kExitRefused, why);
            } else {
                g.staff.read(s);
                const int32_t offered = approachOpts->wage ? toLong(*approachOpts->wage) : startingOfferWage(g);
                approachStaff(g, s, approachOpts->role, offered, approachOpts->years);
                g.staff.read(s);
                if (ctx.json)
                    std::printf("{\"staff\":%d,\"role\":%d,\"offerWage\":%s,\"offerYears\":%d,\"answerOn\":\"%s\"}\n",
                                s, approachOpts->role, base(g.staff->offerWage).c_str(), approachOpts->years,
                                isoDate(g.gameDate + 7).c_str());
                else
                    std::printf("Offered %s the post of Head of %s for %d years at %s a week; the answer comes on %s\n",
                                staffName(g.staff.rec).c_str(),
                                std::string(kDepartmentNames[static_cast<std::size_t>(approachOpts->role)]).c_str(),
                                approachOpts->years, formatMoney(g, g.staff->offerWage, "###,###,##0").c_str(),
                                formatDate(g.gameDate + 7, "dddd d/m/yyyy").c_str());
            }
        }
        ctx.closeGame();
    });

    auto withdrawStaffOpts = std::make_shared<WithdrawStaffOptions>();
    auto* withdraw = app.add_subcommand("withdraw-staff", "Withdraw the player's offer to a staff member");
    withdraw->add_option("STAFF", withdrawStaffOpts->withdrawn, "By number or \"Forename Surname\"")->required();
    withdraw->callback([&ctx, withdrawStaffOpts] {
        Game& g = ctx.openGame();
        if (int16_t s = resolve(ctx, g, FileNo::fileStaff, withdrawStaffOpts->withdrawn, "staff member")) {
            if (std::string why = checkWithdrawStaffOffer(g, s); !why.empty()) {
                fail(ctx, kExitRefused, why);
            } else {
                withdrawStaffOffer(g, s);
                if (ctx.json)
                    std::printf("{\"staff\":%d,\"withdrawn\":true}\n", s);
                else
                    std::printf("The offer to %s is withdrawn\n", staffDetails(g, s).name.c_str());
            }
        }
        ctx.closeGame();
    });

    auto terminateOpts = std::make_shared<TerminateOptions>();
    auto* terminate = app.add_subcommand("terminate", "Release a member of the player's staff (lblTerminate, yes)");
    terminate->add_option("STAFF", terminateOpts->released, "By number or \"Forename Surname\"")->required();
    terminate->callback([&ctx, terminateOpts] {
        Game& g = ctx.openGame();
        if (int16_t s = resolve(ctx, g, FileNo::fileStaff, terminateOpts->released, "staff member")) {
            if (std::string why = checkTerminateStaff(g, s); !why.empty()) {
                fail(ctx, kExitRefused, why);
            } else {
                terminateStaff(g, s);
                if (ctx.json)
                    std::printf("{\"staff\":%d,\"releasedOn\":\"%s\"}\n", s, isoDate(g.gameDate).c_str());
                else
                    std::printf("%s goes with today's run of the calendar\n", staffDetails(g, s).name.c_str());
            }
        }
        ctx.closeGame();
    });
}

}  // namespace

void addBooksVerbs(CLI::App& app, SimContext& ctx) {
    addLabelVerb(app, ctx);
    addBooksVerb(app, ctx);
    addDepartmentVerb(app, ctx);
    addStaffVerbs(app, ctx);
}

}  // namespace trovane::sim
