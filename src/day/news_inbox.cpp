#include "day/news_inbox.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <optional>

#include <fmt/format.h>

#include "day/dispatch.h"
#include "events/story_text.h"
#include "floor/formats.h"
#include "floor/news_post.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "world/fatal_error.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

// The news record as the list reads it: the same layout, with the body and
// the help left as raw bytes, which the list never shows.
#define NEWS_LIST_FIELDS(X)  \
    X(id, int16_t)           \
    X(date, double)          \
    X(kind, uint8_t)         \
    X(title, Text<256>)      \
    X(text, Reserved<1024>)  \
    X(scheduleLink, int32_t) \
    X(eventLink, int16_t)    \
    X(replied, int16_t)      \
    X(read, int16_t)         \
    X(mustReply, int16_t)    \
    X(extra, Reserved<512>)  \
    X(deleted, int16_t)
TROVANE_RECORD_NOID(NewsListLine, NewsRecord::kLength, NEWS_LIST_FIELDS);

std::optional<double> asNumber(const std::string& s) {
    double v = 0;
    auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), v);
    if (ec != std::errc{} || end != s.data() + s.size() || s.empty()) return std::nullopt;
    return v;
}

// The grid's generic order: two numbers compare as numbers, anything else as
// text without regard to case.
bool genericLess(const std::string& a, const std::string& b) {
    auto na = asNumber(a), nb = asNumber(b);
    if (na && nb) return *na < *nb;
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) < std::tolower(static_cast<unsigned char>(y));
    });
}

void returnToPreviousScreen(Game& g) {
    g.currentScreen = g.previousScreen != Screen::none ? g.previousScreen : Screen::frmNews;
}

// Kind 0: an item about an ended option or a missing distributor opens its
// decision once; any other ok only closes the item. True when a screen opened.
bool okOpensDecision(Game& g) {
    NewsRecord& n = g.news.rec;
    if (n.scheduleLink == 0) return false;
    g.schedule.read(n.scheduleLink);
    if (n.replied != kFalse) return false;
    const ScheduleRecord e = g.schedule.rec;
    const ScheduleTypeInfo& type = scheduleTypeInfo(e.type);
    if (type.reply != ScheduleReply::okOpensDecision) return false;
    n.replied = kTrue;
    g.news.write();
    // The decision screen works on the entry's band and disc.
    if (e.disc > 0) g.disc.read(e.disc);
    if (e.band > 0) g.band.read(e.band);
    g.currentScreen = type.decisionScreen;
    return true;
}

void replyYes(Game& g) {
    NewsRecord& n = g.news.rec;
    n.replied = kTrue;
    g.news.write();
    if (n.scheduleLink == 0) return;
    g.schedule.read(n.scheduleLink);
    const ScheduleRecord e = g.schedule.rec;
    if (const auto onYes = scheduleAction(e.type).onYes) onYes(g, e);
}

}  // namespace

std::string newsScreenTitle(const Game& g) {
    return trim(g.player.playerForename.value) + " " + trim(g.player.playerSurname.value) + "'s News";
}

std::vector<NewsRow> newsListRows(Game& g) {
    std::vector<NewsRow> rows;
    int32_t last = g.news.recordCount() - 1;
    rows.reserve(static_cast<std::size_t>(last));
    NewsListLine r;
    for (int32_t n = last; n >= 1; --n) {
        decodeRecord(g.news.bytesOf(n).data(), r);
        if (r.deleted != kFalse) continue;
        rows.push_back(
            {r.read == kFalse ? "Unread" : "", formatDate(r.date, "ddd dd/mm/yyyy"), trim(r.title.value), n});
    }
    // The walk ends on the first record, and so does the news buffer.
    if (last >= 1) g.news.read(1);
    return rows;
}

void clickNewsHeader(NewsSort& sort, int index) {
    // Dates as text would sort by weekday name; the record number is their order.
    if (index == 1) index = 3;
    if (index != sort.column) {
        sort.column = index;
        sort.direction = 1;
    } else {
        sort.direction = 3 - sort.direction;
    }
}

void sortNewsRows(std::vector<NewsRow>& rows, const NewsSort& sort) {
    auto key = [&sort](const NewsRow& r) -> std::string {
        switch (sort.column) {
        case 0: return r.unread;
        case 1: return r.date;
        case 2: return r.title;
        default: return std::to_string(r.record);
        }
    };
    std::stable_sort(rows.begin(), rows.end(), [&](const NewsRow& a, const NewsRow& b) {
        return sort.direction == 2 ? genericLess(key(b), key(a)) : genericLess(key(a), key(b));
    });
}

bool clickNewsRow(Game& g, const std::vector<NewsRow>& rows, std::size_t row) {
    if (row >= rows.size()) return false;
    g.news.read(rows[row].record);
    g.previousScreen = Screen::frmNews;
    g.currentScreen = Screen::frmNewsFull;
    return true;
}

NewsItemView openNewsItem(Game& g) {
    NewsRecord& n = g.news.rec;
    n.read = kTrue;
    g.news.write();

    NewsItemView view;
    view.screenTitle = newsScreenTitle(g);
    view.text = n.text.value;
    if (n.scheduleLink > 0) g.schedule.read(n.scheduleLink);
    view.helpVisible = !n.extra.empty();
    if (view.helpVisible) view.help = n.extra.value;

    bool answered = n.replied != kFalse;
    auto show = [&](std::size_t i, std::string_view picture) {
        view.buttons[i] = {true, i == 0 || !answered, picture};
    };
    switch (n.kind) {
    case kNewsOk: show(0, "graphics/ok.jpg"); break;
    case kNewsYesNo:
        show(0, "graphics/yes.jpg");
        show(1, "graphics/no.jpg");
        break;
    case kNewsMediaStory:
        show(0, "graphics/defend.jpg");
        show(1, "graphics/condemn.jpg");
        show(2, "graphics/nocomment.jpg");
        break;
    default: break;
    }
    bool mayLeave = n.mustReply == kFalse || answered;
    view.deleteEnabled = mayLeave;
    view.sidebarEnabled = mayLeave;
    return view;
}

void pressNewsCmd1(Game& g) {
    switch (g.news->kind) {
    case kNewsOk:
        if (okOpensDecision(g)) return;
        break;
    case kNewsYesNo: replyYes(g); break;
    case kNewsMediaStory: answerMediaStory(g, 0); break;
    default: break;
    }
    returnToPreviousScreen(g);
}

void pressNewsCmd2(Game& g) {
    const NewsRecord item = g.news.rec;
    if (item.kind == kNewsYesNo) {
        if (item.scheduleLink > 0) {
            g.schedule.read(item.scheduleLink);
            const ScheduleRecord e = g.schedule.rec;
            if (const auto onNo = scheduleAction(e.type).onNo) onNo(g, e);
        }
        // Posting the news above took the buffer: the answer belongs to the question.
        g.news.read(item.id);
        g.news->replied = kTrue;
        g.news.write();
    } else if (item.kind == kNewsMediaStory) {
        answerMediaStory(g, 1);
        // The buffer now holds the label's response, and that is what is marked:
        // a story stays open to another answer.
        g.news->replied = kTrue;
        g.news.write();
    } else {
        return;
    }
    returnToPreviousScreen(g);
}

void answerMediaStory(Game& g, int choice) {
    const NewsRecord item = g.news.rec;
    g.event.read(item.eventLink);
    int16_t first = 0;
    int16_t second = 0;
    if (item.scheduleLink > 0) {
        g.schedule.read(item.scheduleLink);
        first = g.schedule->artist;
        second = g.schedule->artist2;
    }
    const auto& replies = g.event->replyText;
    if (choice < 0 || static_cast<std::size_t>(choice) >= replies.size())
        throw FatalError(fmt::format("Subscript out of range: story reply {}", choice));
    std::string text = expandMacros(g, replies[static_cast<std::size_t>(choice)].value, first, second);
    applyStoryReply(g, choice);
    postNews(
        g,
        {.date = g.gameDate, .title = trim(g.player.playerLabelName.value) + " boss responds to media", .text = text});
}

std::string mediaStoryStatement(Game& g, int choice) {
    const NewsRecord item = g.news.rec;
    const EventRecord event = g.event.rec;
    const ScheduleRecord entry = g.schedule.rec;
    std::string text;
    if (item.eventLink > 0 && item.eventLink < g.event.recordCount() && choice >= 0 && choice < 3) {
        g.event.read(item.eventLink);
        int16_t first = 0;
        int16_t second = 0;
        if (item.scheduleLink > 0 && item.scheduleLink < g.schedule.recordCount()) {
            g.schedule.read(item.scheduleLink);
            first = g.schedule->artist;
            second = g.schedule->artist2;
        }
        text = expandMacros(g, g.event->replyText[static_cast<std::size_t>(choice)].value, first, second);
    }
    g.news.rec = item;
    g.event.rec = event;
    g.schedule.rec = entry;
    return text;
}

bool deleteNewsItem(Game& g) {
    NewsRecord& n = g.news.rec;
    if (n.mustReply != kFalse && n.replied == kFalse) return false;
    n.deleted = kTrue;
    g.news.write();
    g.currentScreen = Screen::frmNews;
    return true;
}

}  // namespace trovane
