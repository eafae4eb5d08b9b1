#pragma once
// The news inbox: the list of items (frmNews), one item with its reply
// buttons (frmNewsFull), the replies, and deleting an item.
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "floor/news_post.h"

namespace trovane {

class Game;

// One row of the list: the "Unread" mark, the date, the title, the record number.
struct NewsRow {
    std::string unread;
    std::string date;
    std::string title;
    int32_t record = 0;
};

// "Forename Surname's News", the title of the list and of each item.
std::string newsScreenTitle(const Game& g);

// The rows of frmNews: newest record first, deleted items left out. Opening
// the list turns the sidebar on.
std::vector<NewsRow> newsListRows(Game& g);

// The sort the player chose by clicking a header, kept for the session.
// Columns: 0 the mark, 1 the date, 2 the title, 3 the record number; the
// direction is 1 ascending or 2 descending.
struct NewsSort {
    int column = 0;
    int direction = 1;
};

// A click on header label `index`: the date header sorts by record number; a
// new column sorts ascending; the same column again reverses the direction.
void clickNewsHeader(NewsSort& sort, int index);

// Sorts the rows by the chosen column: numbers as numbers, texts ignoring case.
void sortNewsRows(std::vector<NewsRow>& rows, const NewsSort& sort);

// A click on row `row`: the item goes into the news buffer and frmNewsFull
// opens above frmNews. False, doing nothing, when the list has no such row.
bool clickNewsRow(Game& g, const std::vector<NewsRow>& rows, std::size_t row);

struct NewsButton {
    bool visible = false;
    bool enabled = false;
    std::string_view picture;
};

// What frmNewsFull shows for the item in the news buffer.
struct NewsItemView {
    std::string screenTitle;
    std::string text;
    bool helpVisible = false;
    std::string help;
    std::array<NewsButton, 3> buttons;  // cmd1, cmd2, cmd3
    bool deleteEnabled = false;
    bool sidebarEnabled = false;
};

// frmNewsFull opening on the item in the news buffer: marks it read, loads its
// schedule entry into the schedule buffer for the replies, and says which
// buttons show. An unanswered compulsory item can't be deleted and turns the
// sidebar off, so the only way on is to answer it.
NewsItemView openNewsItem(Game& g);

// cmd1: ok, yes or defend, by the item's kind. The item (and its schedule
// entry) must have been opened with openNewsItem.
void pressNewsCmd1(Game& g);
// cmd2: no or condemn.
void pressNewsCmd2(Game& g);
// cmd3, no comment: to say nothing is to press nothing.
inline void pressNewsCmd3(Game&) {}

// The player's answer to a media story (kind 4) in the news buffer: 0
// defends the act, 1 condemns it. Posts the label's response, which is then
// in the news buffer.
void answerMediaStory(Game& g, int choice);
// The statement answerMediaStory would post for the choice, with nothing
// changed: the news, event and schedule buffers are kept.
std::string mediaStoryStatement(Game& g, int choice);

// cmdDelete: removes the open item from the list and returns to frmNews.
// Refused (false) while a compulsory item is unanswered.
bool deleteNewsItem(Game& g);

}  // namespace trovane
