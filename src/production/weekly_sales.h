#pragma once
// The Sunday sales of every disc on the market.
#include <cstdint>

namespace trovane {

class Game;

// The whole weekly pass over the ten charts, then the best sellers.
void calculateWeeklySales(Game& g);

// For the current disc: the copies its first selling week in territory t
// should bring (the band and its style are read).
int32_t firstWeekSales(Game& g, int t);
// The copies that follow a week of lastSales; both hypes are held to 1..100
// in place.
int32_t nextWeekSales(Game& g, int32_t lastSales, int& hypeNow, int& hypeLastWeek);

// On the current disc and band, for chart N: the week's sales held to the
// distributor's capacity and to the stock, stored as weekSales and taken from
// stock, and any certifications they earn. The disc is written.
void limitAndCertify(Game& g, int32_t sales, int chart);
// On the current disc and band: the money of the week's sales for chart N.
void payDiscIncome(Game& g, int chart);

// The open chart file sorted by each row's week's sales, highest first; rows
// with equal sales keep their order.
void sortChartBySales(Game& g);
// Every band's and label's biggest disc and best week, singles and albums.
void updateBestSellers(Game& g);

// Certification thresholds by territory: silver, gold, platinum. 50000000
// is never reached in practice.
struct Thresholds {
    int32_t silver, gold, platinum;
};
// The award column of a chart: "", "S", "G", "P" or "P(n)".
const char* awardLetter(int t, int32_t sales);

// Band and label keep sales totals in pairs by territory: single, then album.
inline int salesTotalIndex(int t, bool single) { return t * 2 + (single ? 0 : 1); }

}  // namespace trovane
