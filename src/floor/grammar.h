#pragma once
// The words that make a news text agree with the act it is about: a solo
// artist or a band, a man or a woman.
#include <string>

namespace trovane {

class Game;

// The word of `code` for the current band:
//   0 is/are      1 he|she/they    2 s/""        3 was/were     4 him|her/them
//   5 his|her/their  6 forename/the band  7 has/have  8 does/do  9 artist/act
//   10 artist/band   11 himself|herself/themselves  12 I/we  13 my/our
//   14 am/are     15 me/us         16 ""/s
// Most codes take the solo word below two members; 2 and 4 take it only at
// exactly one, so a band without members reads as a band there and as solo
// everywhere else. `capital` gives "He", "She", "They", "His", "Her", "Their"
// and "The band". A solo word that depends on the person (1, 4, 5, 6, 11)
// reads the band's first member into the artist buffer. Unknown codes give "".
std::string grammarWord(Game& g, int code, bool capital);

// he/she (0), himself/herself (1), him/her (2), his/her (3); other codes "".
std::string personWord(int code, bool isMale);

}  // namespace trovane
