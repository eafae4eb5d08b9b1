#pragma once
// Image and marketing.

#include <cstdint>
#include <string>

namespace trovane {

class Game;

// Day 1 of each month: every label's Marketing look over its artists' images.
void deliverMarketingReports(Game& g);

// The best look for the artist in the buffer among those for either sex or
// the artist's own; the first of equals stays. 0 when there is no look. Left
// in the look buffer.
int16_t bestLook(Game& g);

// Why the player cannot ask for an analysis of the artist's image, or "".
std::string checkImageAnalysis(Game& g, int16_t artist);
// "Confirm Image Analysis"'s question for the artist: "Are you sure you want
// your marketing department to analyse " + band + " " + job + " " + name +
// "'s image?", where a solo act has only the name after the band.
std::string imageAnalysisQuestion(Game& g, int16_t artist);
// Files the image report (type 9) a week from today; returns its entry.
int32_t requestImageAnalysis(Game& g, int16_t artist);

// How well the current look suits the current artist, 0 to 100: 50 less the
// distance of each of the eight attributes outside the look's bounds, plus the
// style's liking for the look.
uint8_t rateLook(Game& g);
// Schedule type 9: the marketing report on the image of the entry's artist.
void imageReport(Game& g);
// The player's yes to a proposed image: the artist in the artist buffer takes
// the look in the look buffer.
void changeLook(Game& g);

}  // namespace trovane
