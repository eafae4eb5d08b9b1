#pragma once
// Lasting marks of a career: birthdays, the high-score table.

namespace trovane {

class Game;

// Files a type 16 entry for each living artist's birthday still to come this
// year (on 31 December: each of the coming year).
void addThisYearsBirthdays(Game& g);
// The date of the artist's birthday that addThisYearsBirthdays would file.
double nextBirthday(const Game& g, double birthDate);
// Rewrites this career's row of highscore.gam: the sum of the five point
// totals of the player's own staff record.
void updateHighScoreTable(Game& g);

// Schedule type 16: the entry's artist is a year older.
void artistBirthday(Game& g);

}  // namespace trovane

#include <string>

namespace trovane {

// A row of the achievements table for the current record of the kind (0 band,
// 1 artist, 2 label, 3 staff), dated today; a band's is also written for each
// member as the artist's, headed by the band's name in brackets.
void addAchievement(Game& g, int kind, const std::string& text);

}  // namespace trovane
