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
};

struct AskedTerms {
    Money initialAdvance;
    Money additionalAdvance;
    int options;
    int months;
    int royalty;
    std::string demands;  // lblDemands
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
};

BandDetails bandDetails(Game& g, int16_t band);

}  // namespace trovane
