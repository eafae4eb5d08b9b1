#pragma once
// What "Band Details" shows of an act, gathered once for the screen and the
// headless verb alike.
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "world/numbers.h"

namespace trovane {

class Game;

struct MemberLine {
    std::string name;
    std::string job;
    int age;
    int16_t id;  // the artist's record
};

struct AskedTerms {
    Money initialAdvance;
    Money additionalAdvance;
    int options;
    int months;
    int royalty;
    std::string demands;  // lblDemands
};

// A row of flxTours: the festival's name or the area + " Tour", the act's
// role, the area.
struct TourLine {
    int16_t tour;
    std::string name;
    std::string role;  // "Headliner" or "Support"
    std::string area;
};

// A caption and its figure, as the details screen shows it.
struct FigureLine {
    std::string caption;
    std::string value;
};

// A dated achievement line, newest first.
struct AchievementLine {
    double date;
    std::string text;
};

struct BandDetails {
    int16_t id;
    std::string name;
    std::string style;
    std::string label;   // "Unsigned" while no label holds the act
    std::string formed;  // city, country
    int age;
    bool retired;
    std::vector<MemberLine> members;
    std::array<int, 5> reputation;
    std::optional<AskedTerms> asked;      // while unsigned
    std::vector<std::string> interested;  // lstInterested
    bool players;                         // the player's own act: the figures below are shown
    int ability;
    int energy;
    std::vector<std::string> complaints;
    // The player's acts: the attributes, in the order of attributeCaptions.
    std::vector<FigureLine> attributes;
    std::vector<FigureLine> record;  // the record's figures, the best share last
    std::string bestShare;           // "##0.00% (year)", "" before any share
    std::string activity;            // what occupies the act today, "None" when nothing
    double announcedEnd;             // the date of an announced end, 0 when none
    std::vector<TourLine> tours;
    std::vector<AchievementLine> achievements;
};

// The area of a tour or festival code: "E" Europe and so on; "" for an unknown code.
std::string areaName(const std::string& code);

// "12.50% (2005)"; "" while the act has no share.
std::string bestShareText(float share, int year);

// The act's tours, headlined or supported, in table order.
std::vector<TourLine> toursOf(Game& g, int16_t band);

BandDetails bandDetails(Game& g, int16_t band);

}  // namespace trovane
