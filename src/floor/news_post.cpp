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

int32_t postNews(Game& g, double date, std::string_view title, std::string_view text, uint8_t kind,
                 int32_t scheduleLink, int16_t eventLink, bool mustReply, std::string_view extra) {
    NewsRecord& n = g.news.rec;
    n = NewsRecord{};
    n.date = date;
    n.kind = kind;
    setCut(n.title, title);
    setCut(n.text, text);
    n.scheduleLink = scheduleLink;
    n.eventLink = eventLink;
    n.replied = kFalse;
    n.read = kFalse;
    n.mustReply = boolean(mustReply);
    setCut(n.extra, extra);
    n.deleted = kFalse;
    return g.news.append();
}

}  // namespace trovane
