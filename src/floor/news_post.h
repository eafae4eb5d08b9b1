#pragma once
// The one way the game tells the player anything: a new item in the news table.
#include <cstdint>
#include <string>

#include "world/records.h"

namespace trovane {

class Game;

// Kinds of item, by the buttons they carry.
inline constexpr uint8_t kNewsOk = 0;          // cmd1 ok
inline constexpr uint8_t kNewsYesNo = 1;       // cmd1 yes, cmd2 no
inline constexpr uint8_t kNewsMediaStory = 4;  // cmd1 defend, cmd2 condemn, cmd3 no comment

// One item of news, named field by field:
//   postNews(g, {.date = g.gameDate + 1, .title = name + " signs", .text = body});
// Fields left out take the plain case: an item to be read and closed with ok.
struct NewsItem {
    double date = 0;
    std::string title;
    std::string text;
    uint8_t kind = kNewsOk;    // kNewsOk, kNewsYesNo or kNewsMediaStory
    int32_t scheduleLink = 0;  // the entry a reply acts on
    int16_t eventLink = 0;     // the story event of a media story
    bool mustReply = false;    // true holds the calendar until answered
    std::string extra;         // the help text shown beside the item
};

// Appends a news item and returns its record number. Texts longer than their
// fields are cut. Overwrites the news buffer, so a caller walking the news
// must read its record again.
int32_t postNews(Game& g, const NewsItem& item);

}  // namespace trovane
