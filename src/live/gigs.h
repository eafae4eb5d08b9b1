#pragma once
// One evening at a venue: attendance, takings, performance and reviews.
#include <cstdint>

namespace trovane {

class Game;

// Schedule type 8: the gig of the entry is played.
void performGig(Game& g);

// The market (0 UK, 1 US, 2 Europe, 3 Oceania, 4 Global) of the current
// country: "E" is the UK for the four home nations and Europe otherwise, "N"
// the US, "O" Oceania, the rest the Global market.
int venueMarket(const Game& g);

// The crowd at the venue in the venue buffer, for the tour in the tour buffer
// (a festival's tour draws on the festival in the festival buffer). Mode 0 is
// the night's count, with the spread and the capacity; any other mode the
// plain estimate. `standing` is brought to its fifth.
int32_t expectedAttendance(Game& g, int mode, int reputation, int16_t& standing);

// What a night's production, drinks and beds cost, in whole money, for a gap
// of `days` since the tour's previous gig; level 0 is the top of each scale.
int32_t contentCost(int level, int32_t days);
int32_t hospitalityCost(int level, int32_t days);
int32_t accommodationCost(int level, int32_t days, int32_t memberCount);
// The support bands' drinks and beds on the gig in the gig buffer, each at the
// plainer of its own demands and the tour's levels.
int32_t supportCost(Game& g, int32_t days);
// The level (4 least demanding, 0 most) a band asks for from its topAttitudeLevel.
int supportLevel(int topAttitudeLevel);

// The sponsor's fee per gig of a product whose minimum reputation is p.
int32_t sponsorFee(int minimumReputation);

// The gig in the gig buffer is settled: its profit written, the bands paid or
// charged, their labels' books moved. `rep` is the headliner's reputation where
// the venue stands.
void settleGigMoney(Game& g, int rep);
// Each of the first billSize places of the gig in the buffer is rated and stored.
void rateGigPerformance(Game& g, int billSize);
// The band in the band buffer, at `place` on the bill, gains or loses standing
// where the venue stands by how well it played and how many saw it.
void applyGigStanding(Game& g, int place);

// The crowd's divisor of a gig's effect on standing.
int crowdDivisor(int32_t attendance);

}  // namespace trovane
