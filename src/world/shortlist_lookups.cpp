#include "world/shortlist_lookups.h"

#include <span>

#include "world/game.h"
#include "world/record_bytes.h"

namespace trovane {

namespace {

const std::size_t kBand = offsetIn<ShortlistRecord>("band");
const std::size_t kLabel = offsetIn<ShortlistRecord>("label");

uint32_t pairOf(int16_t band, int16_t label) {
    return (static_cast<uint32_t>(static_cast<uint16_t>(band)) << 16) | static_cast<uint16_t>(label);
}

uint32_t pairOf(std::span<const uint8_t> bytes) {
    return pairOf(fieldAt<int16_t>(bytes, kBand), fieldAt<int16_t>(bytes, kLabel));
}

}  // namespace

int32_t shortlistRecordOf(Game& g, int16_t band, int16_t label) {
    ShortlistPairIndex& index = g.shortlistPairs;
    const int32_t last = g.shortlist.recordCount() - 1;
    if (index.generation != g.shortlist.generation() || index.covered > last) index.reset(g.shortlist.generation());
    for (int32_t n = index.covered + 1; n <= last; ++n) {
        index.records[pairOf(g.shortlist.bytesOf(n))].insert(n);
        index.covered = n;
    }
    auto it = index.records.find(pairOf(band, label));
    return it == index.records.end() || it->second.empty() ? 0 : *it->second.begin();
}

int32_t findShortlistPair(Game& g, int16_t band, int16_t label) {
    const int32_t n = shortlistRecordOf(g, band, label);
    if (n != 0)
        g.shortlist.read(n);
    else if (g.shortlist.recordCount() > 1)
        g.shortlist.read(g.shortlist.recordCount() - 1);
    return n;
}

void watchShortlistPairs(Game& g) {
    g.shortlist.watchWrites(&g.shortlistPairs, [&g](int32_t n, std::span<const uint8_t> before,
                                                    std::span<const uint8_t> after) {
        ShortlistPairIndex& index = g.shortlistPairs;
        // A record the index has not taken in yet is read whole at the next lookup.
        if (index.generation != g.shortlist.generation() || n > index.covered || before.empty()) return;
        const uint32_t was = pairOf(before);
        const uint32_t now = pairOf(after);
        if (was == now) return;
        auto it = index.records.find(was);
        if (it != index.records.end()) {
            it->second.erase(n);
            if (it->second.empty()) index.records.erase(it);
        }
        index.records[now].insert(n);
    });
}

}  // namespace trovane
