#pragma once
// How an award's nominees are drawn: the scored passes over albums, singles,
// artists and bands, and the list of the ten best.
#include <array>
#include <cstdint>
#include <string>

namespace trovane {

class Game;

// The ten best candidates of an award, the highest first.
struct NomineeList {
    struct Entry {
        int score = 0;
        int16_t id = 0;
        std::string name;
    };
    std::array<Entry, 10> entries{};
    int count = 0;
};

// round((weight x a + (100 - weight) x b) / 100).
int mix(int weight, int a, int b);

// Puts a candidate in its place: above the first entry it beats, the rest
// shifting down and the eleventh dropped. A tie keeps the earlier candidate above.
void insertNominee(NomineeList& list, int score, int16_t id, const std::string& name);
// The award in the award buffer is cleared of its nominees.
void clearNominees(Game& g);
// The list is written into the award in the award buffer with its count.
void fixNominees(Game& g, const NomineeList& list);

// The sales score of a disc: its world sales in hundred thousands, held 0 to 100.
int salesScore(int64_t worldSales);

// The candidates of the award in the award buffer, for the ceremony whose host
// country is in the country buffer, judged on today's date.
NomineeList judgeAward(Game& g);

}  // namespace trovane
