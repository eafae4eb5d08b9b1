#pragma once
// prefs.gam: the one record that outlives every game (last choices, save slot
// flags, currency, play time, game counter). Opened, used and closed each time.
#include <array>
#include <string>
#include <string_view>

namespace trovane {

class Game;

// What reading prefs.gam found.
enum class PrefsState {
    read,      // the file was sound and is now in g.prefs
    created,   // there was no file (or an empty one): the delivered record was written
    replaced,  // the file was damaged: the delivered record was written over it
};

struct PrefsReport {
    PrefsState state = PrefsState::read;
    // For a replaced file, a sentence the start form can show the player.
    std::string message;
};

// Reads the record into g.prefs. A missing file gets the delivered record; a
// damaged one (not exactly one record long, or holding values the game never
// writes, such as a rate that is none of the three currencies') is replaced by
// it, and the report says why. Never throws for the file's contents.
PrefsReport readPrefs(Game& g);
// Writes g.prefs back.
void writePrefs(Game& g);
// The record as delivered: slots free, pound sign, rate 1.0, both counters 0.
void setDeliveredPrefs(Game& g);

// The three currencies the player can show money in. Game money is always
// pounds; the rate only turns a stored amount into a displayed one.
struct Currency {
    std::string_view symbol;
    float exchangeRate;
};
inline constexpr std::array<Currency, 3> kCurrencies = {
    Currency{"£", 1.0f},
    Currency{"$", 1.77f},
    Currency{"€", 1.47f},
};

// Index in kCurrencies of the symbol in g.prefs (the option set when the
// currency screen opens), or -1 when it is none of them.
int currentCurrency(const Game& g);

// The currency screen's confirm: reads prefs.gam, sets the symbol and its rate,
// writes the file at once. An unknown symbol changes nothing and returns false.
bool changeCurrency(Game& g, std::string_view symbol);

}  // namespace trovane
