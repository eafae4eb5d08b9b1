// The verbs of the inbox and the schedule: news, show, reply, delete, schedule.
#include <chrono>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "day/dispatch.h"
#include "day/news_inbox.h"
#include "floor/formats.h"
#include "schedule/schedule.h"
#include "world/dates.h"
#include "world/record_dump.h"
#include "world/strings.h"

namespace trovane::sim {

namespace {

// The options of each verb, held by the verb's callback.
struct ItemOptions {
    int id = 0;
    std::string reply;
};
struct DateOptions {
    std::string date;
};

// Where the game stands after a reply, in the player's words, for plain output.
std::string_view whereNow(Screen s) {
    switch (s) {
    case Screen::frmNews: return "back at the news";
    case Screen::frmNewsFull: return "the item stays open";
    case Screen::frmAwardCeremony: return "on to the award ceremony";
    case Screen::frmBandOptionDecision: return "on to the band's option decision";
    case Screen::frmChooseDistributor: return "on to choosing a distributor";
    default: return "";
    }
}

// The screen's name, for JSON readers that follow the game's screens.
std::string_view screenName(Screen s) {
    switch (s) {
    case Screen::none: return "none";
    case Screen::frmStartForm: return "frmStartForm";
    case Screen::frmNews: return "frmNews";
    case Screen::frmNewsFull: return "frmNewsFull";
    case Screen::frmAwardCeremony: return "frmAwardCeremony";
    case Screen::frmLoading: return "frmLoading";
    case Screen::frmBandOptionDecision: return "frmBandOptionDecision";
    case Screen::frmChooseDistributor: return "frmChooseDistributor";
    case Screen::frmChartForm: return "frmChartForm";
    case Screen::frmQuellmarkGames: return "frmQuellmarkGames";
    case Screen::frmStartNewGame: return "frmStartNewGame";
    case Screen::frmCreateNewLabel: return "frmCreateNewLabel";
    case Screen::frmManageExistingLabel: return "frmManageExistingLabel";
    case Screen::frmSaveGame: return "frmSaveGame";
    case Screen::frmCredits: return "frmCredits";
    case Screen::frmDisclaimer: return "frmDisclaimer";
    case Screen::frmLabelDetails: return "frmLabelDetails";
    case Screen::frmStaffDetails: return "frmStaffDetails";
    case Screen::frmBandBrowse: return "frmBandBrowse";
    case Screen::frmArtistBrowse: return "frmArtistBrowse";
    case Screen::frmRichList: return "frmRichList";
    case Screen::frmStaffBrowse: return "frmStaffBrowse";
    case Screen::frmLabelBrowse: return "frmLabelBrowse";
    case Screen::frmVenueBrowse: return "frmVenueBrowse";
    case Screen::frmBusinessBrowse: return "frmBusinessBrowse";
    case Screen::frmMediaBrowse: return "frmMediaBrowse";
    case Screen::frmSongBrowse: return "frmSongBrowse";
    case Screen::frmFestivalBrowse: return "frmFestivalBrowse";
    case Screen::frmCeremonyBrowse: return "frmCeremonyBrowse";
    case Screen::frmFestivalDetails: return "frmFestivalDetails";
    case Screen::frmHistoricalFestivalDetails: return "frmHistoricalFestivalDetails";
    case Screen::frmCeremonyDetails: return "frmCeremonyDetails";
    case Screen::frmHistoricalCeremonyDetails: return "frmHistoricalCeremonyDetails";
    case Screen::frmBandDetails: return "frmBandDetails";
    case Screen::frmBandContract: return "frmBandContract";
    case Screen::frmDiscDetails: return "frmDiscDetails";
    case Screen::frmArtistDetails: return "frmArtistDetails";
    }
    return "unknown";
}

// The reply words of each button of a kind: cmd1, cmd2 (cmd3, no comment, does nothing).
std::vector<std::string_view> buttonWords(uint8_t kind) {
    switch (kind) {
    case kNewsOk: return {"ok"};
    case kNewsYesNo: return {"yes", "no"};
    case kNewsMediaStory: return {"defend", "condemn"};
    default: return {};
    }
}

// Reads news item `id` into the buffer; false (and a refusal) when there is none.
bool readItem(SimContext& ctx, Game& g, int id) {
    if (id < 1 || id >= g.news.recordCount()) {
        ctx.refuse(fmt::format("There is no news item {}", id));
        return false;
    }
    g.news.read(id);
    g.previousScreen = Screen::frmNews;
    g.currentScreen = Screen::frmNewsFull;
    return true;
}

std::string itemJson(const NewsRecord& n, const NewsItemView* view) {
    std::string out = fmt::format(
        "{{\"id\":{},\"date\":\"{}\",\"kind\":{},\"title\":{},\"text\":{},\"mustReply\":{},\"replied\":{},"
        "\"read\":{},\"deleted\":{},\"scheduleLink\":{},\"eventLink\":{}",
        n.id, isoDate(n.date), n.kind, jsonQuote(trim(n.title.value)), jsonQuote(n.text.value), n.mustReply != 0,
        n.replied != 0, n.read != 0, n.deleted != 0, n.scheduleLink, n.eventLink);
    if (view) {
        out += ",\"help\":" + jsonQuote(view->help) + ",\"replies\":[";
        auto words = buttonWords(n.kind);
        for (std::size_t i = 0; i < words.size(); ++i)
            out +=
                fmt::format("{}{{\"reply\":\"{}\",\"enabled\":{}}}", i ? "," : "", words[i], view->buttons[i].enabled);
        out += fmt::format("],\"deleteEnabled\":{},\"sidebarEnabled\":{}", view->deleteEnabled, view->sidebarEnabled);
    }
    return out + "}";
}

void printItem(const NewsRecord& n, const NewsItemView& view) {
    std::printf("News item %d, %s%s\n%s\n\n%s\n", n.id, formatDate(n.date, "dddd d/m/yyyy").c_str(),
                n.mustReply != 0 && n.replied == 0 ? " (must be answered)" : "", trim(n.title.value).c_str(),
                n.text.value.c_str());
    if (view.helpVisible) std::printf("\nHelp: %s\n", view.help.c_str());
    std::string replies;
    auto words = buttonWords(n.kind);
    for (std::size_t i = 0; i < words.size(); ++i)
        if (view.buttons[i].enabled) replies += (replies.empty() ? "" : "|") + std::string(words[i]);
    if (!replies.empty()) std::printf("\nReplies: %s\n", replies.c_str());
}

}  // namespace

std::string heldItemDetails(const NewsRecord& n, bool json) {
    std::string replies;
    for (auto w : buttonWords(n.kind)) replies += (replies.empty() ? "" : "|") + std::string(w);
    if (json) return fmt::format("\"text\":{},\"replies\":\"{}\"", jsonQuote(n.text.value), replies);
    return fmt::format("{}\nAnswer it with: trovane-sim reply {} {}", n.text.value, n.id, replies);
}

void addNewsVerbs(CLI::App& app, SimContext& ctx) {
    auto* news = app.add_subcommand("news", "List the news, newest first (deleted items left out)");
    news->callback([&ctx] {
        Game& g = ctx.openGame();
        std::vector<NewsRow> rows = newsListRows(g);
        if (ctx.json) {
            std::string out = "[";
            for (std::size_t i = 0; i < rows.size(); ++i) {
                g.news.read(rows[i].record);
                out += (i ? "," : "") + itemJson(g.news.rec, nullptr);
            }
            std::printf("%s]\n", out.c_str());
        } else {
            for (const NewsRow& r : rows) {
                g.news.read(r.record);
                bool held = g.news->mustReply != 0 && g.news->replied == 0;
                fmt::print("{:5}  {:<6}  {}  {}{}\n", r.record, r.unread.c_str(), r.date.c_str(), r.title.c_str(),
                           held ? "  [must be answered]" : "");
            }
        }
        ctx.closeGame();
    });

    auto showOpts = std::make_shared<ItemOptions>();
    auto* show = app.add_subcommand("show", "Open a news item (it is then read)");
    show->add_option("ID", showOpts->id, "The news item's number")->required();
    show->callback([&ctx, showOpts] {
        const int showId = showOpts->id;
        Game& g = ctx.openGame();
        if (readItem(ctx, g, showId)) {
            NewsItemView view = openNewsItem(g);
            if (ctx.json)
                std::printf("%s\n", itemJson(g.news.rec, &view).c_str());
            else
                printItem(g.news.rec, view);
        }
        ctx.closeGame();
    });

    auto replyOpts = std::make_shared<ItemOptions>();
    auto* reply = app.add_subcommand("reply", "Answer a news item");
    reply->add_option("ID", replyOpts->id, "The news item's number")->required();
    reply
        ->add_option("REPLY", replyOpts->reply,
                     "ok, yes, no, defend, condemn, or extend or release for an ended option")
        ->required()
        ->check(CLI::IsMember({"ok", "yes", "no", "defend", "condemn", "extend", "release"}));
    reply->callback([&ctx, replyOpts] {
        const int replyId = replyOpts->id;
        const std::string& replyWord = replyOpts->reply;
        Game& g = ctx.openGame();
        if (readItem(ctx, g, replyId)) {
            NewsItemView view = openNewsItem(g);
            auto words = buttonWords(g.news->kind);
            std::size_t button = 0;
            while (button < words.size() && words[button] != replyWord) ++button;
            if (replyToOption(ctx, g, replyWord)) {
                // answered (or refused) as an option decision
            } else if (button == words.size()) {
                ctx.refuse(fmt::format("News item {} has no {} button", replyId, replyWord));
            } else if (!view.buttons[button].enabled) {
                ctx.refuse(fmt::format("News item {} has already been answered", replyId));
            } else {
                if (button == 0) {
                    pressNewsCmd1(g);
                    confirmDistributorForm(g);
                } else
                    pressNewsCmd2(g);
                if (ctx.json)
                    std::printf("{\"id\":%d,\"reply\":\"%s\",\"screen\":\"%s\"}\n", replyId, replyWord.c_str(),
                                std::string(screenName(g.currentScreen)).c_str());
                else if (std::string_view next = whereNow(g.currentScreen); !next.empty())
                    std::printf("Answered news item %d: %s; %s.\n", replyId, replyWord.c_str(),
                                std::string(next).c_str());
                else
                    std::printf("Answered news item %d: %s.\n", replyId, replyWord.c_str());
            }
        }
        ctx.closeGame();
    });

    auto deleteOpts = std::make_shared<ItemOptions>();
    auto* del = app.add_subcommand("delete", "Delete a news item from the list");
    del->add_option("ID", deleteOpts->id, "The news item's number")->required();
    del->callback([&ctx, deleteOpts] {
        const int deleteId = deleteOpts->id;
        Game& g = ctx.openGame();
        if (readItem(ctx, g, deleteId)) {
            openNewsItem(g);
            if (!deleteNewsItem(g)) {
                ctx.refuse(fmt::format("News item {} must be answered before it can be deleted", deleteId));
            } else if (ctx.json) {
                std::printf("{\"id\":%d,\"deleted\":true}\n", deleteId);
            } else {
                std::printf("Deleted news item %d\n", deleteId);
            }
        }
        ctx.closeGame();
    });

    auto scheduleOpts = std::make_shared<DateOptions>();
    auto* schedule = app.add_subcommand("schedule", "List the schedule entries of a date, in the order they run");
    schedule->add_option("DATE", scheduleOpts->date, "The date, YYYY-MM-DD")->required();
    schedule->callback([&ctx, scheduleOpts] {
        const std::string& scheduleDate = scheduleOpts->date;
        std::optional<double> date = parseIsoDate(scheduleDate);
        if (!date) throw SimError(kExitBadArgs, fmt::format("{} is not a date of the form YYYY-MM-DD", scheduleDate));
        Game& g = ctx.openGame();
        std::vector<int32_t> ids = entriesOfDay(g, *date);
        std::string out = "[";
        if (!ctx.json && ids.empty())
            std::printf("Nothing is scheduled on %s\n", formatDate(*date, "dddd d/m/yyyy").c_str());
        for (std::size_t i = 0; i < ids.size(); ++i) {
            g.schedule.read(ids[i]);
            const ScheduleRecord& e = g.schedule.rec;
            std::string handler(scheduleAction(e.type).name);
            if (ctx.json) {
                std::string rec = recordToString(e, DumpFormat::json);
                rec.insert(1, fmt::format("\"position\":{},\"handler\":{},", i + 1, jsonQuote(handler)));
                out += (i ? "," : "") + rec;
            } else {
                std::printf("%3zu. entry %d: type %d%s%s, band %d, label %d\n", i + 1, e.id, e.type,
                            handler.empty() ? "" : " ", handler.c_str(), e.band, e.label);
            }
        }
        if (ctx.json) std::printf("%s]\n", out.c_str());
        ctx.closeGame();
    });
}

}  // namespace trovane::sim
