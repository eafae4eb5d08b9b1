#pragma once
// prefs.gam: the one record that outlives every game (last choices, save slot
// flags, currency, play time, game counter). Opened, used and closed each time.

namespace trovane {

class Game;

// Reads the record into g.prefs. A missing file gives the delivered defaults.
void readPrefs(Game& g);
// Writes g.prefs back.
void writePrefs(Game& g);
// The record as delivered: slots free, pound sign, rate 1.0, both counters 0.
void setDeliveredPrefs(Game& g);

}  // namespace trovane
