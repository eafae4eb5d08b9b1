#pragma once
// Lasting marks of a career: birthdays, the high-score table.
#include <cstdint>
#include <string>
#include <vector>

namespace trovane {

class Game;

// On 31 December: a birthday (type 16) for every artist in the coming year.
void addThisYearsBirthdays(Game& g);
// The birthdays of the year on or after `from`, one entry per artist in table order.
void addBirthdays(Game& g, int year, double from);
// The birthday of someone born on birthDate in the year.
double birthdayIn(double birthDate, int year);
// Rewrites this career's row of highscore.gam: the sum of the five point
// totals of the player's own staff record.
void updateHighScoreTable(Game& g);

// frmHighScoreTable's rows: every career's row, highest score first (ties in
// table order), with the number of this career's row.
struct HighScoreRow {
    int position = 0;
    int32_t score = 0;
    std::string player;
    std::string label;
    int32_t game = 0;
};
std::vector<HighScoreRow> highScoreRows(Game& g);

// Schedule type 16: the entry's artist is a year older.
void artistBirthday(Game& g);

// frmBirthday: the title and text for the player's day and month.
struct BirthdayNote {
    std::string title;
    std::string text;
};
BirthdayNote birthdayNote(Game& g);
// Today's day and month are the player's own.
bool isPlayersBirthday(Game& g);

}  // namespace trovane

#include <string>

namespace trovane {

// A row of the achievements table for the current record of the kind (0 band,
// 1 artist, 2 label, 3 staff), dated today; a band's is also written for each
// member as the artist's, headed by the band's name in brackets.
void addAchievement(Game& g, int kind, const std::string& text);

}  // namespace trovane
