// Story texts: each tag of a participant, of the player and of the band, and
// what happens to tags the game does not know.
#include <gtest/gtest.h>

#include "events/story_text.h"
#include "support/album_world.h"

using namespace trovane;
using test::AlbumWorld;

namespace {

struct Story : AlbumWorld {
    int16_t group, solo;
    int32_t singer, bassist, loner, free;
    Story() {
        g.job.rec = JobRecord{.title = std::string("Singer"), .titleFemale = std::string("Chanteuse")};
        g.job.append();
        group = addBand("The Rooks", kPlayer, 2);
        solo = addBand("Ann Lee", 0, 1);
        g.band.read(group);
        singer = g.band->members[0];
        bassist = g.band->members[1];
        g.band.read(solo);
        loner = g.band->members[0];
        g.artist.rec = ArtistRecord{
            .forename = std::string("Free "), .surname = std::string("Agent"), .job = 1, .city = 1, .male = 0};
        free = g.artist.append();
        setArtist(singer, [](ArtistRecord& a) {
            a.forename = std::string("Jo");
            a.surname = std::string("Rook");
            a.job = 1;
            a.age = 27;
            a.country = 1;
        });
        setArtist(loner, [](ArtistRecord& a) {
            a.job = 1;
            a.male = 0;
            a.nickname = std::string("Annie");
        });
        g.crime.rec = CrimeRecord{.crimeName = std::string("Theft"), .sentence = 3};
        g.crime.append();
        g.event.rec = EventRecord{.noun1 = std::string("car "), .noun2 = std::string("dog")};
        g.event.append();
        g.gameDate = serialFromCivil(2005, 1, 1);
        g.schedule.rec = ScheduleRecord{};
        g.schedule->eventRecord = 1;
        g.schedule.append();  // the root, entry 1
        g.schedule->offer = 1;
        g.schedule->value = 1;
        g.player.playerForename = std::string("Pat");
        g.player.playerSurname = std::string("Boss");
        g.player.playerLabelName = std::string("Home Label");
    }
    void setArtist(int32_t n, auto change) {
        g.artist.read(n);
        change(g.artist.rec);
        g.artist.write();
    }
    std::string expand(std::string_view text, int32_t first, int32_t second = 0) {
        return expandMacros(g, text, narrow<int16_t>(first), narrow<int16_t>(second));
    }
};

}  // namespace

TEST(StoryText, ParticipantStoryPlayerAndBandTagsAndTagsItDoesNotKnow) {
    Story s;
    EXPECT_EQ(s.expand("<an1> and <an2>", s.singer, s.loner), "Jo Rook and Annie");
    EXPECT_EQ(s.expand("<afn1>/<asn1>/<aa1>/<aj1>/<aj2>", s.singer, s.loner), "Jo/Rook/27/Singer/Chanteuse");
    EXPECT_EQ(s.expand("<ab1>|<ab2>", s.singer, s.loner), "The Rooks|soloist");
    EXPECT_EQ(s.expand("<ab1>|<abr1>|<ast1>|<al1>", s.free),
              "independent artist|independent Chanteuse|independent|unsigned");
    EXPECT_EQ(s.expand("<abr1>|<abr2>|<abn1>", s.singer, s.loner), "The Rooks Singer|Chanteuse|The Rooks");
    EXPECT_EQ(s.expand("<ast1>|<al1>|<al2>|<ac1>", s.singer, s.loner),
              "a member of The Rooks|Home Label|unsigned|England");
    EXPECT_EQ(s.expand("<ac1>", s.free), "London") << "the city when set, else the country";
    EXPECT_EQ(s.expand("<ahs1> <ahh1> <ahha1>, <ahs2> <ahh2> <ahha2>", s.singer, s.loner), "he him his, she her her");
    EXPECT_EQ(s.expand("<as1>", s.singer), "Rock");
    EXPECT_EQ(s.expand("<acn> for <acv> years, the <ap1> and <ap2>", s.singer), "Theft for 3 years, the car and dog");
    EXPECT_EQ(s.expand("<pn>, <phs>, <pl>", s.singer), "Pat Boss, he, Home Label");
    EXPECT_EQ(s.expand("<biw> <baa> <bmo> <bmu> <bn> <bl>", s.singer), "we are our us The Rooks Home Label");
    EXPECT_EQ(s.expand("<biw> <baa> <bmo> <bmu>", s.loner), "I am my me");
    EXPECT_EQ(s.expand("<biw> <baa>", s.free), "I am");
    EXPECT_EQ(s.expand("a <zz1> b <nope> c", s.singer), "a <zz1> b <nope> c");
    EXPECT_EQ(s.expand("a <an1> b <an1 c", s.singer), "a Jo Rook b ");
    EXPECT_EQ(s.expand("no participant: <an2>", s.singer), "no participant: <an2>");
}
