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

int32_t firstHeldNewsItem(Game& g) { return g.heldNews.first(); }

void watchHeldNews(Game& g) { g.heldNews.keep(g.news, isHeld); }

}  // namespace trovane
