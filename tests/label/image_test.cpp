// Looks: the best one open to an artist, Marketing's monthly pass and the full report.
#include <gtest/gtest.h>

#include "label/departments.h"
#include "label/image.h"
#include "support/amend.h"
#include "support/game_test.h"
#include "support/signing_world.h"

using namespace trovane;
using namespace trovane::test;

namespace {

class Image : public GameTest {
protected:
    int16_t rock = addStyle(g, 10);

    // A look whose bounds are 0 to 100 except a low bound on charisma.
    int16_t addLook(const std::string& name, uint8_t charismaLow, uint8_t sex = 0, uint8_t bonus = 0) {
        g.look.rec = LookRecord{.name = name, .sex = sex};
        for (std::size_t i = 0; i < 8; ++i) g.look->bounds[2 * i + 1] = 100;
        g.look->bounds[0] = charismaLow;
        int16_t id = static_cast<int16_t>(g.look.append());
        if (bonus > 0) like(id, bonus);
        return id;
    }
    // A liking of rock for the look.
    void like(int16_t look, uint8_t bonus) {
        g.asslook.rec = AssRecord{.a = static_cast<uint8_t>(look), .b = static_cast<uint8_t>(rock), .weight = bonus};
        g.asslook.append();
    }
    int16_t addMarketed(int16_t label, std::initializer_list<int16_t> ranks, uint8_t look, uint8_t imageRating,
                        const std::string& name = "The Testers") {
        int16_t b = addAct(g, {.ranks = ranks, .label = label, .style = static_cast<uint8_t>(rock), .name = name});
        g.band.read(b);
        for (int m = 0; m < g.band->memberCount; ++m) {
            amend(g.artist, g.band->members[static_cast<std::size_t>(m)], [&] {
                g.artist->look = look;
                g.artist->imageRating = imageRating;
            });
        }
        return b;
    }
    int16_t labelWithMarketing(uint8_t rating, const std::string& name) {
        int16_t l = addLabel(g, {1, 1, 1, 1, 1}, name);
        amend(g.label, l, [&] { g.label->department[marketing].rating = rating; });
        return l;
    }
    int16_t lookOf(int16_t artist) { return (g.artist.read(artist), g.artist->look); }
};

TEST_F(Image, BestLookTakesTheFirstOfEqualsAndOnlyLooksForTheArtistsSex) {
    int16_t plain = addLook("Plain", 0);       // 50 for every style
    addLook("Plain Two", 0);                   // 50, later
    int16_t gown = addLook("Gown", 0, 2, 40);  // rock: 90, women only
    int16_t cape = addLook("Cape", 0, 1, 45);  // rock: 95, men only
    g.artist.rec = ArtistRecord{.style = static_cast<uint8_t>(rock), .male = kTrue};
    EXPECT_EQ(bestLook(g), cape);
    g.artist->male = kFalse;
    EXPECT_EQ(bestLook(g), gown);
    g.artist->style = static_cast<uint8_t>(addStyle(g, 10, 100, 0, "Folk"));  // no bonus: all four rate 50
    EXPECT_EQ(bestLook(g), plain);
    // A look rewritten in play counts at once: the cape asking a charisma of
    // 100 rates 50 - 100 + 45, held at 0, and the man's best is plain again.
    g.artist->style = static_cast<uint8_t>(rock);
    g.artist->male = kTrue;
    amend(g.look, cape, [&] { g.look->bounds[0] = 100; });
    EXPECT_EQ(bestLook(g), plain);
}

TEST_F(Image, ARivalChangesAsManyLooksAsATenthOfItsMarketingButAlwaysOne) {
    int16_t better = addLook("Better", 0);              // rates 50
    int16_t weak = labelWithMarketing(4, "Weak");       // 4 / 10 = 0.4, limit 0
    int16_t strong = labelWithMarketing(20, "Strong");  // 20 / 10 = 2
    int16_t pair = addMarketed(weak, {1, 1}, 0, 0, "Pair");
    int16_t first = addMarketed(strong, {1}, 0, 0, "First");
    int16_t second = addMarketed(strong, {1, 1}, 0, 0, "Second");
    deliverMarketingReports(g);
    const std::tuple<int16_t, std::size_t, int16_t> looks[] = {
        {pair, 0, better}, {pair, 1, 0}, {first, 0, better}, {second, 0, better}, {second, 1, 0}};
    for (auto [band, member, look] : looks)
        EXPECT_EQ((g.band.read(band), lookOf(g.band->members[member])), look) << band << " member " << member;
}

TEST_F(Image, ThePlayersMarketingFilesOneLinePerArtistAndChangesNothing) {
    int16_t plain = addLook("Plain", 100);  // rates 0 for an artist of charisma 0
    addLook("Better", 0);
    int16_t player = labelWithMarketing(100, "Mine");  // reads true
    g.player.playerLabel = player;
    int16_t b = addMarketed(player, {1, 1}, static_cast<uint8_t>(plain), 10);
    g.band.read(b);
    const int16_t second = g.band->members[1];
    // Better rates 50: not above
    amend(g.artist, second, [&] { g.artist->imageRating = 50; });
    deliverMarketingReports(g);
    ASSERT_EQ(g.news.recordCount(), 2);
    g.news.read(1);
    EXPECT_EQ(g.news->title.value, "Marketing team file their monthly report");
    EXPECT_EQ(g.news->text.value.substr(0, 20), "In their monthly rep");
    EXPECT_NE(g.news->text.value.find("images :- - Member 1  (Plain)\r\nThey indicate"), std::string::npos);
    g.band.read(b);
    EXPECT_EQ(lookOf(g.band->members[0]), plain);
}

struct ReportCase {
    uint8_t imageRating;
    bool change;
    const char* opening;
};

class ImageReport : public Image, public ::testing::WithParamInterface<ReportCase> {};

TEST_P(ImageReport, TheTextFollowsTheRatingAndWhetherALookBeatsIt) {
    const ReportCase c = GetParam();
    int16_t grunge = addLook("Grunge", 0);     // 50
    int16_t glam = addLook("Glam", 0, 0, 50);  // 100
    int16_t player = labelWithMarketing(100, "Mine");
    g.player.playerLabel = player;
    int16_t b = addMarketed(player, {1}, static_cast<uint8_t>(c.change ? grunge : glam), c.imageRating);
    g.band.read(b);
    int16_t artist = g.band->members[0];
    amend(g.artist, artist, [&] {
        g.artist->forename = "Ada";
        g.artist->surname = "Vox";
        g.artist->male = kFalse;
    });
    int32_t entry = requestImageAnalysis(g, artist);
    g.schedule.read(entry);
    EXPECT_EQ(std::tuple(g.schedule->type, g.schedule->date), std::tuple(uint8_t{9}, g.gameDate + 7));
    imageReport(g);
    g.news.read(1);
    EXPECT_EQ(g.news->title.value, "Marketing Department present Ada Vox image report");
    const std::string& t = g.news->text.value;
    const std::string head =
        "Your Marketing Department have presented you with a report outlining their findings "
        "during their analysis of Ada Vox's image. In the report they indicate that ";
    ASSERT_EQ(t.substr(0, head.size()), head);
    EXPECT_EQ(t.substr(head.size(), std::string(c.opening).size()), c.opening);
    const std::string ending = " Change Ada Vox's image?";
    EXPECT_EQ(t.size() > ending.size() && t.substr(t.size() - ending.size()) == ending, c.change);
    EXPECT_EQ(g.news->kind, c.change ? 1 : 0);
    EXPECT_EQ((g.schedule.read(entry), g.schedule->look), c.change ? glam : 0);
    if (c.change) { EXPECT_NE(t.find(" from Grunge to Glam"), std::string::npos); }
}

INSTANTIATE_TEST_SUITE_P(
    Bands, ImageReport,
    ::testing::Values(
        ReportCase{50, false, "whilst they do not feel Ada Vox's image is doing her any favours"},
        ReportCase{51, false, "although their image may not get them on a lot of magazine covers"},
        ReportCase{80, false, "although their image may not get them on a lot of magazine covers"},
        ReportCase{81, false, "they are very pleased with Ada Vox's image"},
        ReportCase{50, true,
                   "they are not impressed with the artist's current image and are pleased to inform you they believe "
                   "significant improvements can be made. They suggest you request Ada Vox changes her image"},
        ReportCase{51, true, "while there is no problem with Ada Vox's image"},
        ReportCase{80, true, "while there is no problem with Ada Vox's image"},
        ReportCase{81, true, "although they are pleased with the way Ada Vox's image"}));

TEST_F(Image, AnotherLabelsArtistCannotBeAnalysedAndTheQuestionNamesTheJobInAGroup) {
    int16_t mine = labelWithMarketing(100, "Mine");
    int16_t theirs = labelWithMarketing(100, "Theirs");
    g.player.playerLabel = mine;
    int16_t b = addMarketed(theirs, {1}, 0, 0);
    g.band.read(b);
    EXPECT_EQ(checkImageAnalysis(g, g.band->members[0]), "That artist is not signed to your label.");
    amend(g.band, b, [&] { g.band->label = mine; });
    EXPECT_EQ(checkImageAnalysis(g, g.band->members[0]), "");
    // The question names the job in a group and only the name for a solo act.
    const int16_t group = addAct(g, {.ranks = {1, 2}, .name = "The Group"});
    g.band.read(group);
    EXPECT_EQ(imageAnalysisQuestion(g, g.band->members[1]),
              "Are you sure you want your marketing department to analyse The Group Singer Member 2's image?");
    g.band.read(b);
    EXPECT_EQ(imageAnalysisQuestion(g, g.band->members[0]),
              "Are you sure you want your marketing department to analyse The Testers Member 1's image?");
}

}  // namespace

TEST_F(Image, TheFirstLikingOfAStyleForALookCountsAndChangingLookTakesItsRating) {
    int16_t plain = addLook("Plain", 0);      // 50
    int16_t cape = addLook("Cape", 5, 0, 4);  // charisma 0 below 5: 45 + 4 = 49
    like(cape, 10);                           // a second row for the same look and style: would give 55
    g.artist.rec = ArtistRecord{.style = static_cast<uint8_t>(rock)};
    const int16_t a = static_cast<int16_t>(g.artist.append());
    g.artist.read(a);
    EXPECT_EQ(bestLook(g), plain);
    g.look.read(cape);
    EXPECT_EQ(rateLook(g), 49);
    changeLook(g);
    g.artist.read(a);
    EXPECT_EQ(std::tuple(g.artist->look, g.artist->imageRating), std::tuple(cape, uint8_t{49}));
}
