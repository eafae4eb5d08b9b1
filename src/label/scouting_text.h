#pragma once
// The words of the A&R scouting report on one act.
#include <string>

namespace trovane {

class Game;

// The report on the current band from its estimated present value P and
// future value F (each 0 to 100), with the Marketing tail for a style that
// leans on image. Reads the band's members and its style.
std::string scoutingReportText(Game& g, int present, int future);

// One member's image as Marketing reads it (the current artist).
std::string memberImageLine(Game& g);
// Marketing's view of the current artist's image when no better look is found.
std::string imageVerdict(Game& g);

}  // namespace trovane
