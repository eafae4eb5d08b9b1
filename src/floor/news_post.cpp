#include "floor/news_post.h"

#include <array>
#include <vector>

#include "world/game.h"

namespace trovane {

namespace {

// Cut to the field's width in bytes as stored, without splitting a character.
template <std::size_t N>
void setCut(Text<N>& field, std::string_view text) {
    std::string bytes = utf8ToCp1252(text);
    if (bytes.size() > N) bytes.resize(N);
    field.value = cp1252ToUtf8(bytes);
}

// An item still waiting for its answer is never dropped.
bool awaitsReply(const NewsRecord& n) { return n.replied == kFalse && (n.mustReply != kFalse || n.kind != kNewsOk); }

}  // namespace

int32_t compactNews(Game& g, int32_t keepAtMost) {
    std::vector<NewsRecord> items;
    items.reserve(static_cast<std::size_t>(g.news.recordCount()));
    NewsRecord n{};
    for (int32_t i = 1; i < g.news.recordCount(); ++i) {
        decodeRecord(g.news.bytesOf(i).data(), n);
        items.push_back(n);
    }
    std::vector<bool> dropped(items.size(), false);
    auto left = static_cast<int32_t>(items.size());
    // Deleted items first, then the oldest read ones, then the oldest unread.
    const std::array<bool (*)(const NewsRecord&), 3> passes = {
        [](const NewsRecord& r) { return r.deleted != kFalse; },
        [](const NewsRecord& r) { return r.read != kFalse && !awaitsReply(r); },
        [](const NewsRecord& r) { return !awaitsReply(r); },
    };
    for (auto pass : passes)
        for (std::size_t i = 0; i < items.size() && left > keepAtMost; ++i)
            if (!dropped[i] && pass(items[i])) dropped[i] = true, --left;
    g.news.clearAll();
    int32_t next = 1;
    std::array<uint8_t, NewsRecord::kLength> bytes{};
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (dropped[i]) continue;
        items[i].id = static_cast<int16_t>(next);
        encodeRecord(items[i], bytes.data());
        g.news.putBytes(next++, bytes);
    }
    return next - 1;
}

int32_t postNews(Game& g, const NewsItem& item) {
    if (g.news.recordCount() - 1 >= kNewsRoom) compactNews(g, kNewsRoom - kNewsRoom / 4 - 1);
    NewsRecord& n = g.news.rec;
    n = NewsRecord{};
    n.date = item.date;
    n.kind = item.kind;
    setCut(n.title, item.title);
    setCut(n.text, item.text);
    n.scheduleLink = item.scheduleLink;
    n.eventLink = item.eventLink;
    n.replied = kFalse;
    n.read = kFalse;
    n.mustReply = boolean(item.mustReply);
    setCut(n.extra, item.extra);
    n.deleted = kFalse;
    return g.news.append();
}

}  // namespace trovane
