#pragma once
// One turn of the game: a day, from the story-event roll to the news screen.
#include <string>

namespace trovane {

class Game;

// True when no news item waits for a compulsory reply. Otherwise the lowest
// numbered such item is left in the news buffer, the current screen becomes
// frmNewsFull, and the day must not run.
bool allRepliesGiven(Game& g);

// The day's pipeline, run once per press of Continue.
void checkDaysSchedule(Game& g);

// The four texts of the status bar.
struct StatusBarTexts {
    std::string date;
    std::string cash;
    std::string company;
    std::string name;
};
StatusBarTexts statusBarTexts(const Game& g);

// One minute of play: counts it in prefs.gam and, on each whole hour, thanks the player.
void tickPlayMinute(Game& g);

// Where the game's donation page lives; the hourly play-time item names it.
inline constexpr const char* kDonationPage = "www.trovane3.com/donate";

}  // namespace trovane
