#include "floor/news_post.h"

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

}  // namespace

int32_t postNews(Game& g, const NewsItem& item) {
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
