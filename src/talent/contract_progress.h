#pragma once
// Options and the progress of a contract: the advance in thirds, the first
// option's deadline, the decision at the end of each option, and release.
#include <string>

#include "world/numbers.h"

namespace trovane {

class Game;

// True while the current band's first term runs.
bool firstTermRuns(const Game& g);

// Day 25: the first option's months run down; at 0 the label is sued.
void updateMonthsRemainingOnOption(Game& g);

// One third of the current band's advance: charged to its label through the
// band's costs and shared among the members. Returns the amount.
Money payAdvanceThird(Game& g);

// Schedule type 18: an option of the entry's band has run out.
void contractPoint(Game& g);

// The current band's label takes up the next option.
void extendContract(Game& g);
// After an album of the current band on `date`: the first term is taken up at
// once; a later term is decided by a type 18 entry three months on.
void scheduleContractPoint(Game& g, double date);

// Mode 0: the label failed the band; mode 1: the label lets it go. silent
// keeps the label's news back. Works on the current band.
void releaseBand(Game& g, int mode, bool silent = false);

// frmBandOptionDecision for the current band.
std::string optionDecisionTitle(Game& g);
std::string optionDecisionText(Game& g);
// The answer to the option decision of the entry in the schedule buffer:
// extend or let the band go. Empty when done, otherwise why not (nothing changed).
std::string checkOptionDecision(Game& g);
void decideOption(Game& g, bool extend);

}  // namespace trovane
