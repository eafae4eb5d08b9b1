#pragma once
// What the label and staff screens show, gathered once for the desktop
// screens and trovane-sim alike.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "world/numbers.h"

namespace trovane {

class Game;

inline constexpr std::array<const char*, 5> kIncomeRows = {"Record Sales", "Investments", "Businesses",
                                                           "Recouped Advances", "Other"};
inline constexpr std::array<const char*, 8> kExpenseRows = {
    "Wages", "Advances", "Production", "Studio Fees", "Manufacture", "Business Upkeep", "Royalties Paid", "Other"};

// One column of the balance sheet. Expenses are shown as the amounts paid.
struct BooksColumn {
    std::string period;  // "This Month", "Last Month", "This Year"
    std::array<Money, 5> income{};
    Money incomeTotal = 0;  // the five rows and the unlisted income
    std::array<Money, 8> expense{};
    Money expenseTotal = 0;
};

// A row of the books' history: a close of the books (or the opening).
struct HistoryRow {
    double date = 0;
    BooksColumn figures;
    Money cash = 0;
};

struct DepartmentView {
    std::string department;
    std::array<int, 5> levels{};
    std::string rating;  // "19%"
    std::string head;    // a name or "None"
    Money wages = 0;
};

struct LabelDetails {
    int16_t label = 0;
    bool playersOwn = false;
    std::string name;
    std::array<int32_t, 5> points{};
    int64_t pointsTotal = 0;
    std::array<std::string, 5> reputation;  // "54%"
    std::string city;
    int age = 0;  // years since founding
    std::string boss;
    std::string style;         // the style's name or "All"
    std::string independence;  // "Independent Label" or the parent's name
    int bands = 0;
    std::array<int32_t, 10> salesTotals{};
    std::array<int16_t, 8> chartCounts{};
    Money cash = 0;
    Money wageBill = 0;
    std::array<DepartmentView, 6> departments;
};

// The label's details; buffers of label, staff, city and style are read over.
LabelDetails labelDetails(Game& g, int16_t label);
// The three columns of the label's balance sheet: this month, last month, this year.
std::array<BooksColumn, 3> labelBooks(Game& g, int16_t label);
// The label's history, the opening row first.
std::vector<HistoryRow> labelHistory(Game& g, int16_t label);

struct StaffDetails {
    int16_t staff = 0;
    std::string name;
    int age = 0;
    std::string nationality;
    std::string post;  // "Head of ...", "Label Boss" or "None"
    int ability = 0;
    std::array<int, 5> reputation{};
    std::string employer;  // a label or "None"
    Money wage = 0;
    double hiredOn = 0;
    double contractEnd = 0;
    std::array<int, 9> aptitude{};
    std::string preferredStyle;  // a style or "None"
    std::array<int32_t, 5> points{};
    bool playersOwn = false;  // the player's own record: no options
    bool employedByPlayer = false;
    bool approachedByPlayer = false;
    bool employedElsewhere = false;
};
StaffDetails staffDetails(Game& g, int16_t staff);

}  // namespace trovane
