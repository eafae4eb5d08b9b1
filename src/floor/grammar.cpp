#include "floor/grammar.h"

#include <iterator>
#include <utility>

#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

// Which member counts take the solo word.
enum class SoloWhen { belowTwo, exactlyOne };

struct GrammarRow {
    SoloWhen test;
    const char* male;  // the solo word; also the female one unless that is given
    const char* female;
    const char* band;
    bool personal;  // the solo word depends on the first member
};

// Codes 1, 5, 9, 10 and 11 test "more than one member is a band", which for
// whole counts is the same as "below two is solo".
constexpr GrammarRow kRows[] = {
    /* 0 */ {SoloWhen::belowTwo, "is", nullptr, "are", false},
    /* 1 */ {SoloWhen::belowTwo, "he", "she", "they", true},
    /* 2 */ {SoloWhen::exactlyOne, "s", nullptr, "", false},
    /* 3 */ {SoloWhen::belowTwo, "was", nullptr, "were", false},
    /* 4 */ {SoloWhen::exactlyOne, "him", "her", "them", true},
    /* 5 */ {SoloWhen::belowTwo, "his", "her", "their", true},
    /* 6 */ {SoloWhen::belowTwo, nullptr, nullptr, "the band", true},
    /* 7 */ {SoloWhen::belowTwo, "has", nullptr, "have", false},
    /* 8 */ {SoloWhen::belowTwo, "does", nullptr, "do", false},
    /* 9 */ {SoloWhen::belowTwo, "artist", nullptr, "act", false},
    /* 10 */ {SoloWhen::belowTwo, "artist", nullptr, "band", false},
    /* 11 */ {SoloWhen::belowTwo, "himself", "herself", "themselves", true},
    /* 12 */ {SoloWhen::belowTwo, "I", nullptr, "we", false},
    /* 13 */ {SoloWhen::belowTwo, "my", nullptr, "our", false},
    /* 14 */ {SoloWhen::belowTwo, "am", nullptr, "are", false},
    /* 15 */ {SoloWhen::belowTwo, "me", nullptr, "us", false},
    /* 16 */ {SoloWhen::belowTwo, "", nullptr, "s", false},
};

// Codes whose words have a capitalised form.
bool hasCapital(int code) { return code == 1 || code == 5 || code == 6; }

std::string capitalised(std::string word) {
    if (!word.empty() && word[0] >= 'a' && word[0] <= 'z') word[0] = static_cast<char>(word[0] - 'a' + 'A');
    return word;
}

}  // namespace

std::string grammarWord(Game& g, int code, bool capital) {
    if (code < 0 || code >= static_cast<int>(std::size(kRows))) return {};
    const GrammarRow& row = kRows[code];
    int members = g.band->memberCount;
    bool solo = row.test == SoloWhen::belowTwo ? members < 2 : members == 1;

    std::string word;
    if (!solo) {
        word = row.band;
    } else if (!row.personal) {
        word = row.male;
    } else {
        g.artist.read(g.band->members[0]);
        if (code == 6) return trim(g.artist->forename.value);
        bool male = g.artist->male != 0;
        word = male || row.female == nullptr ? row.male : row.female;
    }
    return capital && hasCapital(code) ? capitalised(std::move(word)) : word;
}

std::string personWord(int code, bool isMale) {
    switch (code) {
    case 0: return isMale ? "he" : "she";
    case 1: return isMale ? "himself" : "herself";
    case 2: return isMale ? "him" : "her";
    case 3: return isMale ? "his" : "her";
    default: return {};
    }
}

}  // namespace trovane
