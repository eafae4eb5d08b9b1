// Rival labels' tours, their support acts and the assistant's tour for the player.
#include <gtest/gtest.h>

#include <set>

#include "live/tour_planner.h"
#include "rivals/rival_albums.h"
#include "rivals/rival_touring.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "session/invariants.h"
#include "support/amend.h"
#include "support/tour_world.h"
#include "world/strings.h"

using namespace trovane;
using namespace trovane::test;

namespace {

class RivalTouring : public ::testing::Test, public TourWorld {
protected:
    RivalTouring() { g.rng.seed(7); }

    void planFor(int16_t act, int mode) {
        g.band.read(act);
        planTour(g, mode);
    }
    TourRecord lastTour() {
        g.tour.read(g.tour.recordCount() - 1);
        return g.tour.rec;
    }
    double gigDate(const TourRecord& t, int i) {
        g.gig.read(t.gigs[static_cast<std::size_t>(i)]);
        return g.gig->gigDate;
    }
    void retireOn(int16_t act, double date) {
        g.band.read(act);
        amend(g.artist, g.band->members[1], [&] { g.artist->retirementDate = date; });
    }
    int16_t addAct(const char* name, int16_t actLabel, uint8_t rep) {
        int16_t act = addBand(name, actLabel);
        setReputation(act, {rep, rep, rep, rep, rep});
        return act;
    }
    // A tour of the rival act by hand: gigs at a Leeds venue on the given days from today.
    int16_t handTour(std::initializer_list<int> days) {
        int16_t venue = addRatedVenue("Leeds Hall", 8000, leeds);
        g.band.read(rivalBand);
        int16_t tour = createTour(g, "E", 0);
        for (int d : days) {
            g.tour.read(tour);
            g.venue.read(venue);
            addGigToTour(g, g.gameDate + d, 0);
        }
        return tour;
    }
    std::vector<int16_t> billOf(int32_t gig) {
        g.gig.read(gig);
        std::vector<int16_t> out;
        for (int16_t act : g.gig->bill)
            if (act > 0) out.push_back(act);
        return out;
    }
    std::vector<ScheduleRecord> entriesOn(double date, ScheduleType type) {
        std::vector<ScheduleRecord> out;
        for (int32_t id : entriesOfDay(g, date)) {
            g.schedule.read(id);
            if (g.schedule->type == static_cast<uint8_t>(type)) out.push_back(g.schedule.rec);
        }
        return out;
    }
};

TEST_F(RivalTouring, SixVenuesMakeATourFromTheActTheAlbumTourAloneTakingSupports) {
    addEnglishVenues(5, 8000);
    planFor(rivalBand, 1);
    EXPECT_EQ(liveTours(), 0) << "five venues make no tour";
    addEnglishVenues(1, 8000);
    setReputation(band, {30, 30, 30, 30, 30});
    const int16_t a = addAct("A", rival, 40);
    // 40 to 69: level 2
    amend(g.band, rivalBand, [&] { g.band->topAttitudeLevel = 45; });
    planFor(rivalBand, 3);
    TourRecord t = lastTour();
    std::set<int16_t> venues;
    for (int i = 0; i < t.gigCount; ++i) venues.insert((g.gig.read(t.gigs[static_cast<std::size_t>(i)]), g.gig->venue));
    EXPECT_EQ(venues.size(), 6u) << "each of the six venues is played";
    EXPECT_EQ(gigDate(t, 0), g.gameDate + 7);
    EXPECT_EQ(t.supportCount, 0);
    EXPECT_EQ(billOf(t.gigs[0]), std::vector<int16_t>{rivalBand});

    g.gameDate += 300;
    planFor(rivalBand, 1);
    t = lastTour();
    EXPECT_EQ(gigDate(t, 0), g.gameDate + 42);
    // Content level 0 for the style's content weight of 20.
    EXPECT_EQ(std::tuple(t.band, trim(t.areaCode.value), t.hospitalityLevel, t.accommodationLevel, t.contentLevel,
                         t.sponsorProduct, t.supportCount),
              std::tuple(rivalBand, std::string("E"), 2, 2, 0, -1, 1));
    EXPECT_EQ(billOf(t.gigs[0]), (std::vector<int16_t>{rivalBand, a}));
}

TEST_F(RivalTouring, AMemberRetiringOnTheLastGigVoidsTheTourADayLaterDoesNot) {
    addEnglishVenues(6, 8000);
    const Random start = g.rng;
    planFor(rivalBand, 1);
    TourRecord t = lastTour();
    const double last = gigDate(t, t.gigCount - 1);
    const int32_t tours = g.tour.recordCount();
    g.rng = start;
    retireOn(rivalBand, last);
    planFor(rivalBand, 1);
    EXPECT_EQ(g.tour.recordCount(), tours);
    g.rng = start;
    retireOn(rivalBand, last + 1);
    planFor(rivalBand, 1);
    EXPECT_EQ(g.tour.recordCount(), tours + 1);
}

TEST_F(RivalTouring, SupportsAreDoubledForAnotherLabelAndRatedByLabel) {
    // The headliner's figure is 50. Same label: 50 joins rated 100, 51 is out;
    // another label's figure is doubled: 25 -> 50 joins rated 25, 26 -> 52 is out;
    // same label 13 is rated 26 and goes ahead of the other label's 25; 24 is fourth.
    const int16_t other = addLabel("Third Records");
    setReputation(band, {30, 30, 30, 30, 30});  // the player's act: 60 doubled, out
    const int16_t a = addAct("A", rival, 50);
    addAct("Too Big", rival, 51);
    const int16_t b = addAct("B", other, 25);
    addAct("Also Too Big", other, 26);
    const int16_t c = addAct("C", rival, 13);
    addAct("D", other, 24);
    const int16_t gone = addAct("Gone", rival, 50);  // would tie A, but it has split
    amend(g.band, gone, [&] { g.band->retired = kTrue; });
    int16_t tour = handTour({50, 52});
    EXPECT_EQ(chooseSupportBands(g, tour), 3);
    g.tour.read(tour);
    const TourRecord t = g.tour.rec;
    EXPECT_EQ(billOf(t.gigs[0]), (std::vector<int16_t>{rivalBand, a, c, b}));
    EXPECT_EQ(billOf(t.gigs[1]), (std::vector<int16_t>{rivalBand, a, c, b}));
}

TEST_F(RivalTouring, NeitherAnActBusyDuringTheTourNorOneOfTheParentStyleSupports) {
    setReputation(band, {30, 30, 30, 30, 30});
    g.style.rec = StyleRecord{};
    const auto parent = static_cast<uint8_t>(g.style.append());
    // the headliner's style descends from parent
    amend(g.style, style, [&] { g.style->parentStyle = parent; });
    g.style.rec = StyleRecord{.parentStyle = static_cast<uint8_t>(style)};
    const auto child = static_cast<uint8_t>(g.style.append());
    const int16_t a = addAct("A", rival, 40);
    const int16_t busy = addAct("Busy", rival, 45);
    const int16_t young = addAct("Young", rival, 35);
    const int16_t old = addAct("Old", rival, 45);
    for (auto [act, s] : {std::pair{young, child}, std::pair{old, parent}})
        amend(g.band, act, [&] { g.band->style = s; });
    // the last gig's day
    addSchedule(g,
                ScheduleRecord{
                    .type = static_cast<uint8_t>(ScheduleType::recordingDay), .date = g.gameDate + 52, .band = busy});
    int16_t tour = handTour({50, 52});
    EXPECT_EQ(chooseSupportBands(g, tour), 2);
    g.tour.read(tour);
    EXPECT_EQ(billOf(g.tour->gigs[0]), (std::vector<int16_t>{rivalBand, a, young}));
}

TEST_F(RivalTouring, APlayersActIsAskedOnceAndNotPlaced) {
    setReputation(band, {20, 20, 20, 20, 20});  // 40 doubled, rated 20
    const int16_t a = addAct("A", rival, 40);
    int16_t tour = handTour({50, 52, 53});
    EXPECT_EQ(chooseSupportBands(g, tour), 1);
    g.tour.read(tour);
    const TourRecord t = g.tour.rec;
    EXPECT_EQ(billOf(t.gigs[2]), (std::vector<int16_t>{rivalBand, a}));
    auto offers = entriesOn(g.gameDate + 1, ScheduleType::supportSlotOffer);
    ASSERT_EQ(offers.size(), 1u);
    EXPECT_EQ(std::tuple(offers[0].band, offers[0].gig), std::tuple(band, t.gigs[0]));
}

TEST_F(RivalTouring, TheSupportOfferReadsAsTheGameWordsIt) {
    int16_t tour = handTour({42, 44});
    g.tour.read(tour);
    g.schedule.read(addSchedule(g, ScheduleRecord{.type = static_cast<uint8_t>(ScheduleType::supportSlotOffer),
                                                  .date = g.gameDate,
                                                  .band = band,
                                                  .label = label,
                                                  .gig = g.tour->gigs[0]}));
    offerSupportSlot(g);
    g.news.read(g.news.recordCount() - 1);
    // Today is 5 January 2004: the gigs are on 16 and 18 February.
    EXPECT_EQ(trim(g.news->title.value), "The Testers invited to tour with The Others");
    EXPECT_EQ(trim(g.news->text.value),
              "The Others invited The Testers to support them on their forthcoming european tour. The tour takes "
              "place from 16/2/2004 to 18/2/2004 and will consist of 2 gigs. Allow The Testers to play the tour?");
    EXPECT_EQ(std::tuple(g.news->kind, g.news->mustReply), std::tuple(1, 0));
}

TEST_F(RivalTouring, TheTourAreaFollowsTheFlagsWorldFirst) {
    auto areaOf = [&](TourFlags f) {
        g.band.read(rivalBand);
        g.tour.read(createRivalTour(g, f));
        return trim(g.tour->areaCode.value);
    };
    EXPECT_EQ(areaOf({true, true, false, true}), "X");
    EXPECT_EQ(areaOf({true, true, false, false}), "E");
    EXPECT_EQ(areaOf({false, true, true, false}), "N");
    EXPECT_EQ(areaOf({false, false, true, false}), "O");
}

TEST_F(RivalTouring, TheAssistantSaysSoWhenTooFewVenuesSuitOrARetirementComesFirst) {
    addEnglishVenues(5, 8000);
    AssistantTour a = planAssistantTour(g, band, "E", static_cast<uint8_t>(england));
    EXPECT_EQ(std::tuple(a.tour, a.refusal),
              std::tuple(0, std::string("Your assistant has informed you he feels there are not enough suitable "
                                        "venues for The Testers to tour there.")));
    addEnglishVenues(1, 8000);
    retireOn(band, g.gameDate + 42);  // the first gig's own day
    a = planAssistantTour(g, band, "E", static_cast<uint8_t>(england));
    EXPECT_EQ(std::tuple(a.tour, a.refusal),
              std::tuple(0, std::string("Your assistant has informed you he feels there is insufficient time before "
                                        "The Testers's retirement to book a tour.")));
    EXPECT_EQ(liveTours(), 0);
}

class FollowUpTours : public RivalTouring {
protected:
    FollowUpTours() { addEnglishVenues(6, 8000); }
    void albumOut(int16_t act, int daysAgo) {
        const double d = g.gameDate - daysAgo;
        g.disc.rec = DiscRecord{.releaseDate = {d, d, d, d, d}, .band = act, .label = rival};
        g.disc.append();
    }
};

TEST_F(FollowUpTours, AnAlbumOut62DaysAgoBringsNoTourOne61DaysAgoDoes) {
    albumOut(rivalBand, 62);
    planFollowUpTours(g);
    EXPECT_EQ(liveTours(), 0);
    albumOut(rivalBand, 61);
    planFollowUpTours(g);
    EXPECT_EQ(liveTours(), 1);
}

TEST_F(FollowUpTours, ASplitActASingleOrThePlayersAlbumBringsNoTourNorDoesAGigToday) {
    albumOut(rivalBand, 10);
    const int32_t album = g.disc.recordCount() - 1;
    amend(g.band, rivalBand, [&] { g.band->retired = kTrue; });
    planFollowUpTours(g);
    EXPECT_EQ(liveTours(), 0) << "split";
    amend(g.band, rivalBand, [&] { g.band->retired = kFalse; });
    amend(g.disc, album, [&] { g.disc->isSingle = 1; });
    planFollowUpTours(g);
    EXPECT_EQ(liveTours(), 0) << "a single";
    amend(g.disc, album, [&] {
        g.disc->isSingle = 0;
        g.disc->band = band;
        g.disc->label = label;
    });
    planFollowUpTours(g);
    EXPECT_EQ(liveTours(), 0) << "the player's album";
    amend(g.disc, album, [&] {
        g.disc->band = rivalBand;
        g.disc->label = rival;
    });
    handTour({0});
    planFollowUpTours(g);
    EXPECT_EQ(liveTours(), 1) << "only the hand-made one";
}

// A finished album goes on tour unless a gig of the act stands between today
// and its last release.
TEST_F(FollowUpTours, AFinishedAlbumTakesATourOnlyWithNoGigBookedBeforeItsLastRelease) {
    auto finishAlbum = [&] {
        g.song.rec = SongRecord{.band = rivalBand, .quality = 50, .commerciality = 50};
        const auto song = g.song.append();
        g.disc.rec = DiscRecord{.band = rivalBand, .label = rival, .trackCount = 1};
        g.disc->tracks[0] = song;
        g.disc->releaseDate.fill(kNoDate);
        g.disc.append();
        g.band.read(rivalBand);
        rivalRecordingComplete(g);
        return liveTours();
    };
    addSchedule(
        g, ScheduleRecord{.type = static_cast<uint8_t>(ScheduleType::gig), .date = g.gameDate + 10, .band = rivalBand});
    EXPECT_EQ(finishAlbum(), 0);
    g.gameDate += 400;
    EXPECT_EQ(finishAlbum(), 1);
}

TEST_F(RivalTouring, TheAssistantsTourListsEveryGig) {
    addEnglishVenues(6, 8000);
    AssistantTour a = planAssistantTour(g, band, "E", static_cast<uint8_t>(england));
    ASSERT_GT(a.tour, 0);
    g.tour.read(a.tour);
    const TourRecord t = g.tour.rec;
    EXPECT_EQ(std::tuple(t.band, t.nation, t.sponsorProduct), std::tuple(band, england, -1));
    // The first gig is six weeks from 5 January 2004: 16 February.
    const std::string opening = "Your assistant has presented his plan for The Testers's tour, which consists of " +
                                std::to_string(t.gigCount) + " gigs :-\n16 Feb 2004 - Hall (";
    EXPECT_EQ(a.question.substr(0, opening.size()), opening);
    EXPECT_EQ(std::count(a.question.begin(), a.question.end(), '\n'), t.gigCount);
}

TEST_F(RivalTouring, TheAssistantStartsAWeekAfterTheActsLastGigWhenThatIsLater) {
    addEnglishVenues(6, 8000);
    auto firstGigAfter = [&](int16_t act, int lastGig) {
        g.band.read(act);
        g.tour.read(createTour(g, "E", 0));
        g.venue.read(1);
        addGigToTour(g, g.gameDate + lastGig, 0);
        g.tour.read(planAssistantTour(g, act, "E", static_cast<uint8_t>(england)).tour);
        return gigDate(g.tour.rec, 0) - g.gameDate;
    };
    EXPECT_EQ(firstGigAfter(band, 35), 42);       // 35 is not later than 42 - 7
    EXPECT_EQ(firstGigAfter(rivalBand, 40), 47);  // 40 + 7
}

std::optional<InvariantBreak> billRule(Game& g) {
    for (const InvariantRule& r : invariantRules())
        if (std::string(r.name) == "billsHoldNoActTwice") return r.check(g);
    return InvariantBreak{.rule = "missing"};
}

TEST_F(RivalTouring, TheCheckerFindsAnActTwiceOnABill) {
    int16_t tour = handTour({50});
    g.tour.read(tour);
    amend(g.gig, g.tour->gigs[0], [&] { g.gig->bill[1] = band; });
    EXPECT_FALSE(billRule(g).has_value());
    g.gig->bill[2] = band;
    g.gig.write();
    auto broken = billRule(g);
    ASSERT_TRUE(broken.has_value());
    EXPECT_EQ(broken->field, "bill[2]");
}

}  // namespace
