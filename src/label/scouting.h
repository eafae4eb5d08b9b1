#pragma once
// Scouting and the shortlist that all labels share.

namespace trovane {

class Game;

void deliverScoutingReports(Game& g);
// Rewrites the shortlist without its freed rows.
void tidyShortlist(Game& g);

}  // namespace trovane
