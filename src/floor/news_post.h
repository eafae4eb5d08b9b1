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

// The most items the list holds; posting into a full list first compacts it.
inline constexpr int32_t kNewsRoom = 32767;
// Keeps at most keepAtMost items, dropping deleted ones first, then the
// oldest read, then the oldest unread; an item awaiting its answer is always
// kept. The rest keep their order and are numbered again from 1. Returns the
// count kept. The news buffer is left as it was.
int32_t compactNews(Game& g, int32_t keepAtMost);

}  // namespace trovane
