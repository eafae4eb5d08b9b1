#pragma once
// What the ceremony screens and the ceremony verb show: a ceremony's night,
// host country and awards, and the nominees of its awards as the records
// hold them.
#include <cstdint>
#include <string>
#include <vector>

namespace trovane {

class Game;

struct AwardNominee {
    std::string name;
    int score = 0;
    bool winner = false;
};

// Where an award stands in its yearly round.
enum class AwardState {
    notJudged,   // no nominations on record
    nominated,   // this year's nominees are in, the night not yet held
    won,         // held: the winner is nominee 1
    notAwarded,  // held with no one eligible
};

struct CeremonyAward {
    int16_t award = 0;
    std::string name;
    std::string candidates;  // "Albums", "Bands", ...
    int held = 0;            // the year of its last night, 0 for never
    AwardState state = AwardState::notJudged;
    std::vector<AwardNominee> nominees;
    std::string winner;  // empty unless won
};

struct CeremonyDetails {
    int16_t ceremony = 0;
    std::string name;
    std::string country;
    double night = 0;  // this year's night as the record holds it; 0 when unknown
    bool attending = false;
    int held = 0;  // the year of the last night held, 0 for never
    std::vector<CeremonyAward> awards;
};

// The words for the candidates of an award kind.
std::string awardCandidates(int kind);

// The ceremony numbered `ceremony`, its awards in slot order (empty slots and
// missing awards left out). Throws FatalError for a number out of the table.
CeremonyDetails ceremonyDetails(Game& g, int16_t ceremony);

}  // namespace trovane
