#pragma once
// Lasting marks of a career: birthdays, the high-score table.

namespace trovane {

class Game;

void addThisYearsBirthdays(Game& g);
// Rewrites this career's row of highscore.gam: the sum of the five point
// totals of the player's own staff record.
void updateHighScoreTable(Game& g);

// Schedule type 16: the entry's artist is a year older.
void artistBirthday(Game& g);

}  // namespace trovane
