#include "world/news_lookups.h"

#include <bit>
#include <cstring>
#include <optional>
#include <span>

#include "world/fatal_error.h"
#include "world/game.h"
#include "world/record_bytes.h"

namespace trovane {

namespace {

const std::size_t kMustReply = offsetIn<NewsRecord>("mustReply");
const std::size_t kReplied = offsetIn<NewsRecord>("replied");

bool isHeld(std::span<const uint8_t> bytes) {
    return fieldAt<int16_t>(bytes, kMustReply) == kTrue && fieldAt<int16_t>(bytes, kReplied) == kFalse;
}

}  // namespace

int32_t firstHeldNewsItem(Game& g) {
    HeldNewsIndex& index = g.heldNews;
    const int32_t last = g.news.recordCount() - 1;
    if (index.generation != g.news.generation() || index.covered > last) index.reset(g.news.generation());
    for (int32_t n = index.covered + 1; n <= last; ++n) {
        if (isHeld(g.news.bytesOf(n))) index.held.insert(n);
        index.covered = n;
    }
    return index.held.empty() ? 0 : *index.held.begin();
}

void watchHeldNews(Game& g) {
    g.news.watchWrites = [&g](int32_t n, std::span<const uint8_t> before, std::span<const uint8_t> after) {
        HeldNewsIndex& index = g.heldNews;
        // A record the index has not taken in yet is read whole at the next lookup.
        if (index.generation != g.news.generation() || n > index.covered || before.empty()) return;
        if (isHeld(after))
            index.held.insert(n);
        else
            index.held.erase(n);
    };
}

}  // namespace trovane
