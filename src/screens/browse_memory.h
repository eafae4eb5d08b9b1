#pragma once
// What each browser keeps between its openings in a session: its filter, its
// sort and the row the cursor was on. Forgotten at the start form; a load
// forgets the band browser's filter and sort.
#include <functional>
#include <map>
#include <string>

#include "browse/band_browse.h"
#include "browse/table_browse.h"
#include "world/game.h"

namespace trovane::screens {

struct BrowserMemory {
    GridSort sort;
    BrowseFilter filter;
    int row = 0;
};

// How frmBandBrowse opens: a search, the shortlist, or the list to book a
// support act from.
enum class BandBrowseMode { search, shortlist, booking };

struct BandBrowserMemory {
    BandFilter filter;
    bool filterReady = false;  // resetBandFilter has run for this session
    GridSort sort;
    int row = 0;
    BandBrowseMode mode = BandBrowseMode::search;
    // Booking: the act whose tour is booked, and what cmdConfirm hands the band to.
    int16_t referenceBand = 0;
    std::function<void(int16_t band)> onConfirm;
};

struct BrowseMemory {
    std::map<Screen, BrowserMemory> browsers;
    BandBrowserMemory band;
};

BrowseMemory& browseMemory();
// The start form: every browser starts afresh.
void forgetBrowsers();
// A load: the band browser's filter is reset and its sort goes back to column 0, ascending.
void forgetBandBrowserSort();

}  // namespace trovane::screens
