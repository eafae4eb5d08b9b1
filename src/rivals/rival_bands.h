#pragma once
// How the computer-run labels look after their acts.
#include <functional>

namespace trovane {

class Game;

void computerCheckBands(Game& g);

// Schedule type 20: a rival follows a disc of the entry's band with a single.
void rivalFollowUpSingle(Game& g);

// A rival decides on the next option of the band in the band buffer.
void rivalOptionDecision(Game& g);

// What a rival weighs when an option falls due.
struct OptionFacts {
    int rating = 0;           // the terms the band would ask now, rated in mode 2
    bool hasAlbum = false;    // an album of the band has a release date
    double net = 0;           // the band's gross income less its costs
    double albumIncome = 0;   // the latest album's income
    double labelBalance = 0;  // the cash of the album's label
};
// True when the rival takes up the option. drawPercent (0 to 99) is called
// only when the band has lost money.
bool rivalKeepsBand(const OptionFacts& f, const std::function<int()>& drawPercent);

}  // namespace trovane
