#pragma once
// The working set proves itself before a game is continued from it: every
// file is there and a whole number of its records, the day index of every
// year the session spans holds every day of it, and the session record holds
// a game (or the empty set that init makes). A working set that fails is
// refused with the file named (BrokenDataError) and nothing is written.
namespace trovane {

class Game;

void checkWorkingSet(const Game& g);

}  // namespace trovane
