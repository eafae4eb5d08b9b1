#pragma once
// Image and marketing.

namespace trovane {

class Game;

void deliverMarketingReports(Game& g);

// Schedule type 9: the marketing report on the image of the entry's artist.
void imageReport(Game& g);
// The player's yes to a proposed image: the artist in the artist buffer takes
// the look in the look buffer.
void changeLook(Game& g);

}  // namespace trovane
