// trovane-sim's verbs of the live world on a small one: the venues and the
// crowd a band would draw, a gig booked and then listed, the festivals, the
// ceremonies, and the media's offers and appearances.
#include <gtest/gtest.h>

#include <string>

#include "floor/news_post.h"
#include "schedule/schedule.h"
#include "session/session_record.h"
#include "support/amend.h"
#include "support/festival_world.h"
#include "support/sim_run.h"

using namespace trovane;
using test::said;

namespace {

class SimLiveVerbs : public test::FestivalWorld, public ::testing::Test {
protected:
    void SetUp() override {
        const int16_t alpha = addAct("Alpha", 90), beta = addAct("Beta", 80);
        addVenue("Hall", 1000, paris);
        amend(g.venue, addVenue("Estadio", 80000, rio), [&] { g.venue->rating = 7; });
        addFestival("Late Fest", {7}, {40}, 2);  // Saturday 2 October
        scheduleFestivals(g, 2004);              // tour 1 with gigs 1 and 2, tour 2 with gig 3
        // The Gathering has been played: its crowds and profits; The Testers on the first day only.
        const std::pair<int32_t, int32_t> played[] = {{1000, 1500}, {1200, -300}};
        for (int32_t gig : {1, 2})
            amend(g.gig, gig, [&] {
                g.gig->bill = {gig == 1 ? band : alpha, gig == 1 ? alpha : int16_t{0}};
                g.gig->attendance = played[gig - 1].first;
                g.gig->profit = played[gig - 1].second;
                g.gig->overallQuality = static_cast<uint8_t>(72 - gig);
            });
        amend(g.gig, 3, [&] { g.gig->bill[0] = beta; });
        postNews(g, {.date = serialFromCivil(2004, 7, 11), .title = "Halcote Summer Gathering is a triumph."});
        g.gameDate = serialFromCivil(2004, 8, 9);  // a Monday
        setMembers(100);
        amend(g.band, band, [&] {
            g.band->reputation = {50, 30, 40, 20, 1};
            g.band->controversy = 5;
        });
        // Two outlets in Brazil; an interview's skill is exactly 5 against the act's 1 there.
        g.media.rec = MediaRecord{.mediaName = "Daily Beat",
                                  .reach = 1,
                                  .smallMinimum = 1,
                                  .smallValue = 73,
                                  .maxControversy = 100,
                                  .country = static_cast<uint8_t>(brazil)};
        g.media.append();
        g.media.rec = MediaRecord{.mediaName = "Samba FM",
                                  .mediaType = 2,
                                  .reach = 1,
                                  .frequency = 1,
                                  .airDay = {0, 0, -1, 0, 0, 0, 0},
                                  .interviewMinimum = 1,
                                  .interviewValue = 69,
                                  .maxControversy = 100,
                                  .country = static_cast<uint8_t>(brazil)};
        g.media.append();
        addSchedules(g, {ScheduleRecord{.type = 17,
                                        .date = serialFromCivil(2004, 7, 7),
                                        .band = beta,
                                        .label = rival,
                                        .media = 2,
                                        .mediaFlag = 1,
                                        .value = -250}});
        // Two awards of one ceremony: one won by its second nominee, one held with no one to give it to.
        g.award.rec = AwardRecord{.name = "Best Band",
                                  .kind = 2,
                                  .nomineeCount = 2,
                                  .held = 2004,
                                  .nominees = {band, alpha},
                                  .nomineeNames = {{"The Testers", "Alpha"}},
                                  .scores = {80, 70},
                                  .winner = 2};
        g.award.append();
        g.award.rec = AwardRecord{.name = "Best Album", .held = 2004};
        g.award.append();
        g.ceremony.rec = CeremonyRecord{.name = "Brit Nights",
                                        .awardCount = 2,
                                        .awards = {1, 2},
                                        .country = static_cast<uint8_t>(england),
                                        .date = serialFromCivil(2005, 2, 20),
                                        .held = 2004,
                                        .playerInvited = kTrue};
        g.ceremony.append();
        g.ceremony.rec = CeremonyRecord{.name = "Quiet Night", .playerInvited = 1};  // invited, not going
        g.ceremony.append();
        writeSessionFile(g, workingSessionFile(g));
        closeAllTables(g);
    }
    std::pair<int, std::string> sim(const std::string& args) { return test::runSim(g.dataDir.string(), args); }
    // A refusal or a bad argument: the status and the one line said.
};

TEST_F(SimLiveVerbs, VenuesShowTheCrowdABandWouldDraw) {
    EXPECT_EQ(
        sim("venues"),
        std::pair(0, std::string("    1  Halcote Farm                     Leeds                England              "
                                 "    50000   0\n"
                                 "    2  Hall                             Paris                France               "
                                 "     1000   0\n"
                                 "    3  Estadio                          Rio                  Brazil               "
                                 "    80000   7\n")));
    // Standing (8x50 + 10x30 + 7x40 + 5x20 + 3x1) / 7 = 154.7, 155; a fifth 31; 31^2 = 961 / 70 gives 14.
    // In France the reputation is 40: 28 x (2 x 28 - 28) + 14 = 798; 5 x 798 + 250 = 4240.
    EXPECT_EQ(sim("--json venues --country France --band 'The Testers'"),
              std::pair(0, std::string("[{\"id\":2,\"name\":\"Hall\",\"city\":\"Paris\",\"country\":\"France\","
                                       "\"capacity\":1000,\"rating\":0,\"expected\":4240}]\n")));
    // England, by number: 35 x 42 + 14 = 1484; 6 x 1484 + 250 = 9154.
    EXPECT_EQ(
        sim("venues --country 1 --band 1").second,
        "    1  Halcote Farm                     Leeds                England                  50000   0      9154\n");
    EXPECT_EQ(sim("venues --band Nobody"), said(2, "There is no band Nobody"));
}

TEST_F(SimLiveVerbs, AGigIsBookedSixWeeksAheadAndThenListed) {
    for (const char* args : {"1 --venue Hall --date 2004-08-32", "1 --venue Hall --date 2004-09-20 --accommodation 5",
                             "1 --venue Hall --date 2004-09-20 --content -1", "Nobody --venue Hall --date 2004-09-20"})
        EXPECT_EQ(sim(std::string("gig ") + args).first, 2) << args;
    EXPECT_EQ(sim("gig 1 --venue Arena --date 2004-09-20"), said(2, "There is no venue Arena"));
    EXPECT_EQ(sim("gig Alpha --venue Hall --date 2004-09-20"), said(1, "Alpha isn't signed to your label."));
    EXPECT_EQ(sim("gig 1 --venue Hall --date 2004-09-19"), said(1, "A gig must be booked at least six weeks ahead."));
    EXPECT_EQ(
        sim("gig 'The Testers' --venue 2 --date 2004-09-20 --content 4 --hospitality 0"),
        std::pair(0, std::string("Gig 4 (tour 3): The Testers at Hall on Monday 20/9/2004, about 4,240 expected.\n")));
    EXPECT_EQ(sim("gig 1 --venue Hall --date 2004-09-20"), said(1, "The Testers are already busy on that day."));
    EXPECT_NE(sim("--json tours").second.find("\"content\":4,\"hospitality\":0,\"accommodation\":2"),
              std::string::npos);
    EXPECT_EQ(sim("--json gig 1 --venue 'Halcote Farm' --date 2004-09-27"),
              std::pair(0, std::string("{\"gig\":5,\"tour\":4,\"date\":\"2004-09-27\",\"venue\":\"Halcote Farm\","
                                       "\"expected\":9154}\n")));
    EXPECT_EQ(sim("gigs 'The Testers'"),
              std::pair(0, std::string("     1  2004-07-10  Halcote Farm                     Leeds                    "
                                       "50000      1000  71       £1,500\n"
                                       "     4  2004-09-20  Hall                             Paris                    "
                                       " 1000         0   0           £0\n"
                                       "     5  2004-09-27  Halcote Farm                     Leeds                    "
                                       "50000         0   0           £0\n")));
    EXPECT_EQ(
        sim("--json gigs Alpha"),
        std::pair(
            0, std::string("[{\"id\":1,\"date\":\"2004-07-10\",\"venue\":\"Halcote Farm\",\"city\":"
                           "\"Leeds\",\"capacity\":50000,\"attendance\":1000,\"overall\":71,\"profit\":15000000},"
                           "{\"id\":2,\"date\":\"2004-07-11\",\"venue\":\"Halcote Farm\",\"city\":"
                           "\"Leeds\",\"capacity\":50000,\"attendance\":1200,\"overall\":70,\"profit\":-3000000}]\n")));
    EXPECT_EQ(sim("gigs Nobody"), said(2, "There is no band Nobody"));
}

TEST_F(SimLiveVerbs, FestivalsListTheYearAndEachDayOfOne) {
    EXPECT_EQ(
        sim("festivals"),
        std::pair(0, std::string("   1  Halcote Summer Gathering                 Any              UK        50   2  "
                                 "2004-07-10 2004-07-11   2\n"
                                 "   2  Late Fest                                Any              UK        50   1  "
                                 "2004-10-02 2004-10-02   1\n")));
    EXPECT_EQ(
        sim("--json festivals --year 2005"),
        std::pair(0, std::string("[{\"id\":1,\"name\":\"Halcote Summer Gathering\",\"style\":\"Any\",\"territory\":"
                                 "\"UK\",\"prestige\":50,\"days\":2,\"first\":\"\",\"last\":\"\",\"billed\":0},"
                                 "{\"id\":2,\"name\":\"Late Fest\",\"style\":\"Any\",\"territory\":\"UK\","
                                 "\"prestige\":50,\"days\":1,\"first\":\"\",\"last\":\"\",\"billed\":0}]\n")));
    EXPECT_EQ(
        sim("festival 1"),
        std::pair(0, std::string("Halcote Summer Gathering (2004)\n\n"
                                 "2004-07-10  Halcote Farm  crowd 1000  overall 71\n"
                                 "  The Testers                              Our Records                     50\n"
                                 "  Alpha                                    Their Records                   90\n\n"
                                 "2004-07-11  Halcote Farm  crowd 1200  overall 70\n"
                                 "  Alpha                                    Their Records                   90\n\n"
                                 "Review: Halcote Summer Gathering is a triumph.\n")));
    EXPECT_EQ(
        sim("--json festival 'Late Fest'"),
        std::pair(
            0,
            std::string(
                "{\"id\":2,\"name\":\"Late Fest\",\"year\":2004,\"days\":[{\"gig\":3,\"date\":"
                "\"2004-10-02\",\"venue\":\"Halcote Farm\",\"bill\":[{\"band\":3,\"name\":\"Beta\",\"label\":\"Their "
                "Records\",\"reputation\":80}],\"crowd\":0,\"overall\":0}],"
                "\"review\":\"\"}\n")));
    EXPECT_EQ(
        sim("festival 'Late Fest'"),
        std::pair(0, std::string("Late Fest (2004)\n\n2004-10-02  Halcote Farm\n"
                                 "  Beta                                     Their Records                   80\n")));
    EXPECT_EQ(sim("festival 1 --year 2005"),
              std::pair(0, std::string("Halcote Summer Gathering (2005)\nNot held in 2005.\n")));
    for (const char* none : {"0", "3", "Nowhere"})
        EXPECT_EQ(sim(std::string("festival ") + none), said(2, std::string("There is no festival ") + none));
}

TEST_F(SimLiveVerbs, CeremoniesShowTheirNightsAndAwards) {
    EXPECT_EQ(
        sim("ceremonies"),
        std::pair(
            0, std::string("   1  Brit Nights                              England              2005-02-20 yes 2004\n"
                           "   2  Quiet Night                                                              no  0\n")));
    EXPECT_EQ(sim("--json ceremonies").second,
              "[{\"id\":1,\"name\":\"Brit Nights\",\"country\":\"England\",\"night\":\"2005-02-20\",\"attending\":true,"
              "\"held\":2004},{\"id\":2,\"name\":\"Quiet Night\",\"country\":\"\",\"night\":\"\",\"attending\":false,"
              "\"held\":0}]\n");
    EXPECT_EQ(
        sim("ceremony 'Brit Nights'"),
        std::pair(0, std::string("Brit Nights\nNight:   2005-02-20\nCountry: England\nHeld:    2004\n\n"
                                 "Best Band (Bands)\n"
                                 "  The Testers                                                        80\n"
                                 "  Alpha                                                              70  winner\n\n"
                                 "Best Album (Albums)\n  not awarded\n")));
    EXPECT_EQ(sim("--json ceremony 1").second,
              "{\"id\":1,\"name\":\"Brit Nights\",\"night\":\"2005-02-20\",\"country\":\"England\",\"held\":2004,"
              "\"awards\":[{\"id\":1,\"name\":\"Best Band\",\"for\":\"Bands\",\"nominees\":[{\"name\":\"The Testers\","
              "\"score\":80},{\"name\":\"Alpha\",\"score\":70}],\"winner\":2},{\"id\":2,\"name\":\"Best Album\","
              "\"for\":\"Albums\",\"nominees\":[],\"winner\":0}]}\n");
    EXPECT_EQ(sim("ceremony 2").second, "Quiet Night\nNight:   \nCountry: \nHeld:    never\n");
    EXPECT_EQ(sim("ceremony Oscars"), said(2, "There is no ceremony Oscars"));
}

TEST_F(SimLiveVerbs, TheMediaOfferAnAppearanceThatIsThenListed) {
    // Skill 5 against 1: 125 times; a small article of 73 is (-27 x 65 + 73 x 35) x 125 / 10000 = 10, worth
    // 100; an interview of 69 is 5, worth 50.
    EXPECT_EQ(
        sim("media 1 --territory other"),
        std::pair(
            0, std::string(
                   "    1  Daily Beat                               Newspaper   Small Article                 100\n"
                   "    2  Samba FM                                 Radio Show  Interview                      50\n")));
    EXPECT_EQ(sim("--json media 'The Testers' --territory other").second,
              "[{\"media\":1,\"name\":\"Daily Beat\",\"type\":\"Newspaper\",\"kind\":\"Small Article\",\"value\":100},"
              "{\"media\":2,\"name\":\"Samba FM\",\"type\":\"Radio Show\",\"kind\":\"Interview\",\"value\":50}]\n");
    for (const char* args : {"media 1 --territory mars", "promote 1 --media 1 --kind song --date 2004-08-10",
                             "promote 1 --media 1 --kind small --date 10/8/2004"})
        EXPECT_EQ(sim(args).first, 2) << args;
    EXPECT_EQ(sim("media Nobody --territory uk"), said(2, "There is no band Nobody"));
    EXPECT_EQ(sim("promote 1 --media Nowhere --kind small --date 2004-08-10"), said(2, "There is no outlet Nowhere"));
    const std::pair<const char*, const char*> refused[] = {
        {"Alpha --media 1 --kind small --date 2004-08-10", "Alpha is not signed to you."},
        {"1 --media 1 --kind large --date 2004-08-10", "Daily Beat is not offering The Testers a Large Article."},
        {"1 --media 1 --kind small --date 2004-08-09", "The appearance must be booked for a day after today."},
        {"1 --media 'Samba FM' --kind interview --date 2004-08-10", "Samba FM does not come out on 10/8/2004."},
    };
    for (auto [args, words] : refused) EXPECT_EQ(sim(std::string("promote ") + args), said(1, words));
    EXPECT_EQ(
        sim("--json promote 1 --media 'Samba FM' --kind interview --date 2004-08-11"),
        std::pair(
            0, std::string("{\"entry\":7,\"date\":\"2004-08-11\",\"band\":1,\"media\":2,\"kind\":\"Interview\"}\n")));
    EXPECT_EQ(sim("promote 1 --media 1 --kind small --date 2004-08-11"), said(1, "The Testers are busy on 11/8/2004."));
    EXPECT_EQ(sim("promote 'The Testers' --media 'Daily Beat' --kind small --date 2004-08-10"),
              std::pair(0, std::string("Entry 8: The Testers, Small Article in Daily Beat on Tuesday 10/8/2004.\n")));
    EXPECT_EQ(sim("appearances"),
              std::pair(0, std::string("     6  2004-07-07  Beta                           Samba FM                    "
                                       "       Interview                    Their Records            -2.50\n"
                                       "     7  2004-08-11  The Testers                    Samba FM                    "
                                       "       Interview                    Our Records\n"
                                       "     8  2004-08-10  The Testers                    Daily Beat                  "
                                       "       Small Article                Our Records\n")));
    EXPECT_EQ(sim("--json appearances --band Beta"),
              std::pair(0, std::string("[{\"entry\":6,\"date\":\"2004-07-07\",\"band\":\"Beta\",\"media\":\"Samba FM\","
                                       "\"kind\":\"Interview\",\"label\":\"Their Records\",\"effect\":-2.50}]\n")));
    EXPECT_EQ(sim("appearances --band Nobody").first, 2);
}

}  // namespace
