#pragma once
// Image and marketing.

namespace trovane {

class Game;

void deliverMarketingReports(Game& g);

}  // namespace trovane
