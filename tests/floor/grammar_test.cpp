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

struct WordRow {
    const char* soloMale;
    const char* soloFemale;
    const char* band;
    const char* noMembers;  // first member Ann
};

// Index = code.
const WordRow kWords[] = {
    {"is", "is", "are", "is"},
    {"he", "she", "they", "she"},
    {"s", "s", "", ""},
    {"was", "was", "were", "was"},
    {"him", "her", "them", "them"},
    {"his", "her", "their", "her"},
    {"Dave", "Ann", "the band", "Ann"},
    {"has", "has", "have", "has"},
    {"does", "does", "do", "does"},
    {"artist", "artist", "act", "artist"},
    {"artist", "artist", "band", "artist"},
    {"himself", "herself", "themselves", "herself"},
    {"I", "I", "we", "I"},
    {"my", "my", "our", "my"},
    {"am", "am", "are", "am"},
    {"me", "me", "us", "me"},
    {"", "", "s", ""},
};

}  // namespace

TEST_F(GrammarFixture, EveryCodeForSoloActsBandsAndABandWithoutMembers) {
    for (int code = 0; code < static_cast<int>(std::size(kWords)); ++code) {
        const WordRow& w = kWords[code];
        useBand(1, dave);
        EXPECT_EQ(grammarWord(g, code, false), w.soloMale) << "code " << code;
        useBand(1, ann);
        EXPECT_EQ(grammarWord(g, code, false), w.soloFemale) << "code " << code;
        useBand(2, dave);
        EXPECT_EQ(grammarWord(g, code, false), w.band) << "code " << code;
        useBand(0, ann);
        EXPECT_EQ(grammarWord(g, code, false), w.noMembers) << "code " << code;
    }
    for (int code : {-1, 17, 255}) EXPECT_EQ(grammarWord(g, code, true), "") << code;
}

TEST_F(GrammarFixture, CapitalFormsOnlyWhereTheWordHasOne) {
    struct Case {
        int code;
        uint8_t members;
        int32_t first;
        const char* word;
    };
    for (Case c : {Case{1, 1, dave, "He"}, Case{1, 1, ann, "She"}, Case{1, 4, dave, "They"}, Case{5, 1, dave, "His"},
                   Case{5, 1, ann, "Her"}, Case{5, 3, ann, "Their"}, Case{6, 5, ann, "The band"},
                   Case{6, 1, dave, "Dave"}, Case{4, 1, dave, "him"}, Case{11, 2, dave, "themselves"},
                   Case{0, 1, dave, "is"}, Case{10, 3, dave, "band"}}) {
        useBand(c.members, c.first);
        EXPECT_EQ(grammarWord(g, c.code, true), c.word) << "code " << c.code;
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
