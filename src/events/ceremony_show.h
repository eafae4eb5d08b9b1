#pragma once
// The show of a ceremony night as the player watches it: steps of lines, the
// winners' speeches and their thank-yous.
#include <cstdint>
#include <string>
#include <vector>

namespace trovane {

class Game;

using ShowSteps = std::vector<std::vector<std::string>>;

// The kinds of acceptance speech.
enum class SpeechKind { normal, drunk, angry, boastful, arrogant };

// The speech of a roll of 1 to 100: normal up to 60, then drunk, angry,
// boastful and arrogant ten each. A boastful speech needs another nominee to
// sneer at; without one the speech is normal.
SpeechKind speechKindOf(int roll, bool hasRival);

// What a thank-you line must suit: the tone of the speech (0 plain, 1
// heartfelt, 2 funny, 3 drunk, 4 arrogant, 5 rebellious), a solo speaker, the
// award's class (1 a disc, 2 an act, 3 a song) and whether the act has won before.
struct ThankWanted {
    int tone = 0;
    bool solo = false;
    int awardClass = 2;
    bool wonBefore = false;
};

// Up to `count` different lines of the thank table that suit `want`: of the
// speech's tone or plain (a tone above 2 takes its own lines only), for this
// speaker, award and career; the least used first, ties by a draw. Each line
// said has its use count raised by one, held at 255, and written.
std::vector<std::string> drawThankLines(Game& g, const ThankWanted& want, int count);

// Builds the show of the ceremony held on `night`: the opening, each award's
// introduction, nominees and winner with the speech. Run before the results
// are written (an act that won before is one with an earlier winner's row).
ShowSteps buildCeremonyShow(Game& g, int16_t ceremony, double night);

}  // namespace trovane
