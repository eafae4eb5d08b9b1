#pragma once
// Scouting and the shortlist that all labels share.

namespace trovane {

class Game;

void deliverScoutingReports(Game& g);
// Rewrites the shortlist without its freed rows.
void tidyShortlist(Game& g);

// Schedule type 6: the scouting report on the entry's band.
void bandReport(Game& g);

}  // namespace trovane
