// The source forms of the industry: firms, media, festivals and the thank-you
// lines are plain lists of records (the keys are the record's field names,
// references are names); staff, labels, acts, ceremonies, events and crimes
// have forms of their own.
#include "world/records/events_records.h"
#include "world/records/live_records.h"
#include "world/records/production_records.h"
#include "worldtool/industry_book.h"
#include "worldtool/table_form.h"

namespace trovane::worldtool {
namespace {

using enum FileNo;

// kind: 0 studio, 1 pressing plant, 2 distributor.
ListFormRules<BusinessRecord> businessForm() {
    return {.key = "business",
            .file = fileBusiness,
            .nameKey = "name",
            .rules = {.refs = {{"city", fileCity}, {"owner", fileLabel}},
                      .ranges = {{"kind", 0, 2}, {"quality", 0, 100}},
                      .required = {"name", "kind", "city"}}};
}

// mediaType: 0 newspaper, 1 magazine, 2 radio show, 3 TV show; frequency: 0 daily ... 3 annual.
ListFormRules<MediaRecord> mediaForm() {
    return {.key = "media",
            .file = fileMedia,
            .nameKey = "mediaName",
            .rules = {.refs = {{"mediaStyle", fileStyle}, {"country", fileCountry}},
                      .ranges = {{"mediaType", 0, 3},
                                 {"frequency", 0, 3},
                                 {"minControversy", 0, 100},
                                 {"maxControversy", 0, 100}},
                      .required = {"mediaName", "mediaType", "frequency"}}};
}

// A festival lasts at most 40 days; its venues are fixed by name when it does not travel.
ListFormRules<FestivalRecord> festivalForm() {
    return {.key = "festival",
            .file = fileFestival,
            .nameKey = "festivalName",
            .rules = {.refs = {{"festivalStyle", fileStyle}, {"fixedVenue", fileVenue}},
                      .ranges = {{"days", 1, 40}, {"territory", 0, 4}, {"weekday", 0, 7}},
                      .letters = {{"areaCode", "ENSOAFX"}},
                      .required = {"festivalName", "days"}}};
}

ListFormRules<ThankRecord> thankForm() { return {.key = "thank", .file = fileThank, .rules = {.required = {"text"}}}; }

}  // namespace

// Staff come before labels and acts before labels: a label's figures are its staff's and acts'.
std::vector<std::unique_ptr<TableForm>> industryForms() {
    auto book = std::make_shared<IndustryBook>();
    std::vector<std::unique_ptr<TableForm>> forms;
    forms.push_back(staffTableForm(book));
    forms.push_back(actTableForm(book));
    forms.push_back(hiddenActTableForm());
    forms.push_back(labelTableForm(book));
    forms.push_back(ceremonyTableForm());
    forms.push_back(eventTableForm());
    forms.push_back(crimeTableForm());
    forms.push_back(std::make_unique<ListForm<BusinessRecord>>(businessForm()));
    forms.push_back(std::make_unique<ListForm<MediaRecord>>(mediaForm()));
    forms.push_back(std::make_unique<ListForm<FestivalRecord>>(festivalForm()));
    forms.push_back(std::make_unique<ListForm<ThankRecord>>(thankForm()));
    return forms;
}

}  // namespace trovane::worldtool
