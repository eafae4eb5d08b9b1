#pragma once
// The yearly festivals: their days and sites, the bill drawn up by rule, the
// player's invitations, acts dropping out, and the review after the last day.
#include <cstdint>
#include <string>
#include <vector>

namespace trovane {

class Game;
struct FestivalRecord;

// The dates of the festival's days in `year`: day i falls on weekday[i] of
// week[i], weeks counted from 1 January, moved on a week when it would fall
// before the day before it. A late day may fall in the next year.
std::vector<double> festivalDates(const FestivalRecord& festival, int year);

// The day the bill is filled: 60 days before the first day, but no earlier
// than tomorrow.
double festivalFillDate(double firstDay, double today);

// Makes each festival's tour and gigs of the given year and files its bill's
// fill (type 22) and a gig (type 8) for each day. A festival whose first day
// is today or earlier is left out.
void scheduleFestivals(Game& g, int year);

// Schedule type 22: the bill of the entry's festival is drawn up.
void fillFestivalBill(Game& g);

// The player's yes to a festival invitation: the band in the band buffer takes
// place `slot` on the bill of every gig of the tour in the tour buffer (the
// festival in the festival buffer) when it is free on all of them.
void acceptFestivalSlot(Game& g, int32_t slot);

// Before a festival day plays (the gig, tour and festival buffers hold it):
// an act on the bill that has retired or has a member out of action leaves
// this day's bill and the later ones, the places below moving up.
void dropUnfitFestivalActs(Game& g);

// The acts of a bill in order, up to the first empty place.
std::vector<int16_t> billOf(Game& g, int32_t gig);

// The verdict band of a festival's mean overall quality: 0 below 61, 1 from
// 61 to 80, 2 from 81 to 90, 3 from 91.
int festivalVerdict(int meanQuality);

// The review of the festival in the festival buffer, whose tour is in the
// tour buffer, for the player's band in the band buffer. Posted once, after
// the last day.
void writeFestivalReview(Game& g);

// A festival's year as the lists and details show it.
struct FestivalAct {
    int16_t band = 0;
    std::string name;
    std::string label;
    int reputation = 0;  // in the festival's territory
};
struct FestivalDay {
    int32_t gig = 0;
    double date = 0;
    std::string venue;
    std::vector<FestivalAct> bill;
    bool played = false;  // before today
    int32_t crowd = 0;
    int overall = 0;
};
struct FestivalYear {
    int16_t festival = 0;
    int year = 0;
    std::string name;
    std::string style;      // "Any" for a festival of every style
    std::string territory;  // "UK", "US", "Europe", "Oceania" or "Other"
    int prestige = 0;
    int days = 0;
    int16_t tour = 0;  // 0 when not held that year
    std::vector<FestivalDay> dayList;
    std::string reviewTitle;  // once the last day has played and a review was posted
};

// The festival's year: the tour whose first day falls in `year`.
FestivalYear festivalYear(Game& g, int16_t festival, int year);

// Every festival's year, in record order.
std::vector<FestivalYear> festivalsOfYear(Game& g, int year);

}  // namespace trovane
