#include <gtest/gtest.h>

#include "floor/grammar.h"
#include "support/game_test.h"

using namespace trovane;

namespace {

struct GrammarFixture : test::GameTest {
    int32_t dave = 0, ann = 0;

    void SetUp() override {
        dave = addArtist("  Dave ", kTrue);
        ann = addArtist("Ann", kFalse);
    }
    int32_t addArtist(const char* forename, int16_t male) {
        g.artist.rec = ArtistRecord{.forename = forename, .male = male};
        return g.artist.append();
    }
    void useBand(uint8_t memberCount, int32_t firstMember) {
        g.band.rec = BandRecord{.memberCount = memberCount,
                                .members = {static_cast<int16_t>(firstMember), static_cast<int16_t>(ann)}};
    }
};

}  // namespace

TEST_F(GrammarFixture, EveryCodeForSoloActsBandsAndABandWithoutMembers) {
    // Per code: the word for a solo man, a solo woman, a band, and a band without members whose first is Ann.
    std::string words;
    for (int code = 0; code <= 16; ++code) {
        for (auto [members, first] : {std::pair{1, dave}, {1, ann}, {2, dave}, {0, ann}}) {
            useBand(static_cast<uint8_t>(members), first);
            words += grammarWord(g, code, false) + (members == 0 ? " " : "/");
        }
    }
    EXPECT_EQ(words,
              "is/is/are/is he/she/they/she s/s// was/was/were/was him/her/them/them his/her/their/her "
              "Dave/Ann/the band/Ann has/has/have/has does/does/do/does artist/artist/act/artist "
              "artist/artist/band/artist himself/herself/themselves/herself I/I/we/I my/my/our/my am/am/are/am "
              "me/me/us/me //s/ ");
    for (int code : {-1, 17, 255}) EXPECT_EQ(grammarWord(g, code, true), "") << code;
}

TEST_F(GrammarFixture, CapitalFormsOnlyWhereTheWordHasOne) {
    using C = std::tuple<int, uint8_t, int32_t, const char*>;  // code, members, first member, word
    for (auto [code, members, first, word] :
         {C{1, 1, dave, "He"}, C{1, 1, ann, "She"}, C{1, 4, dave, "They"}, C{5, 1, dave, "His"}, C{5, 1, ann, "Her"},
          C{5, 3, ann, "Their"}, C{6, 5, ann, "The band"}, C{6, 1, dave, "Dave"}, C{4, 1, dave, "him"},
          C{11, 2, dave, "themselves"}, C{0, 1, dave, "is"}, C{10, 3, dave, "band"}}) {
        useBand(members, first);
        EXPECT_EQ(grammarWord(g, code, true), word) << "code " << code;
    }
}

TEST_F(GrammarFixture, PersonalSoloWordsReadTheFirstMemberIntoTheArtistBuffer) {
    useBand(1, ann);
    g.artist.read(dave);
    grammarWord(g, 0, false);
    EXPECT_EQ(g.artist->id, dave) << "a word that does not depend on the person reads nobody";
    grammarWord(g, 11, false);
    EXPECT_EQ(g.artist->id, ann);

    useBand(3, ann);
    g.artist.read(dave);
    grammarWord(g, 1, false);
    EXPECT_EQ(g.artist->id, dave) << "the band word reads nobody";

    useBand(1, 0);
    EXPECT_THROW(grammarWord(g, 1, false), FatalError) << "an act without a first member";
}

TEST(PersonWord, HeOrSheAndNothingPastTheFourWords) {
    std::string words;
    for (int code = -1; code <= 4; ++code) words += personWord(code, true) + "/" + personWord(code, false) + " ";
    EXPECT_EQ(words, "/ he/she himself/herself him/her his/her / ");
}
