#include "label/scouting.h"

#include "world/record_store.h"

namespace trovane {

// Not built yet: an empty step of the day until its rules are written.
void deliverScoutingReports(Game& g) { static_cast<void>(g); }

void tidyShortlist(Game& g) {
    compactTable(g, g.shortlist, [](const ShortlistRecord& r) { return r.band >= 1 && r.label >= 1; });
}

// Not built yet: no report arrives until scouting is written.
void bandReport(Game& g) { static_cast<void>(g); }

}  // namespace trovane
