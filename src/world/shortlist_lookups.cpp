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
    return g.shortlistPairs.firstOf(pairOf(band, label));
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
    g.shortlistPairs.keep(
        g.shortlist,
        [](std::span<const uint8_t> bytes) {
            KeyedRecords<uint32_t>::Keys keys;
            keys.add(pairOf(bytes));
            return keys;
        },
        {{kBand, sizeof(int16_t)}, {kLabel, sizeof(int16_t)}});
}

}  // namespace trovane
