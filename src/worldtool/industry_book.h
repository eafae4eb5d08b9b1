#pragma once
// What the industry's forms hand on to each other while they compile: a
// label's derived figures need its staff and its acts, which other forms read.
// The forms compile in the order staff, acts, labels, so each finds here what
// the earlier ones left.
#include <vector>

#include "world/records/label_records.h"
#include "world/records/talent_records.h"
#include "worldtool/table_form.h"

namespace trovane::worldtool {

struct IndustryBook {
    std::vector<Compiled<StaffRecord>> staff;  // numbered from 1, as compiled
    std::vector<BandRecord> bands;             // the acts of the world (not the hidden ones)
};

// Each industry form that shares the book; industryForms() puts them in order.
std::unique_ptr<TableForm> staffTableForm(std::shared_ptr<IndustryBook> book);
std::unique_ptr<TableForm> labelTableForm(std::shared_ptr<IndustryBook> book);
std::unique_ptr<TableForm> actTableForm(std::shared_ptr<IndustryBook> book);
std::unique_ptr<TableForm> hiddenActTableForm();
std::unique_ptr<TableForm> ceremonyTableForm();
std::unique_ptr<TableForm> eventTableForm();
std::unique_ptr<TableForm> crimeTableForm();

// The six departments of a label, in their order.
inline constexpr std::array<std::string_view, 6> kDepartmentNames = {
    "Artist and Repertoire", "Finance and Law", "Hospitality", "Marketing", "Public Relations", "Security"};

}  // namespace trovane::worldtool
