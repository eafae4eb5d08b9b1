#include "screens/browse_memory.h"

namespace trovane::screens {

BrowseMemory& browseMemory() {
    static BrowseMemory memory;
    return memory;
}

void forgetBrowsers() { browseMemory() = BrowseMemory{}; }

void forgetBandBrowserSort() {
    BandBrowserMemory& b = browseMemory().band;
    b.filterReady = false;
    b.sort = GridSort{};
    b.row = 0;
}

}  // namespace trovane::screens
