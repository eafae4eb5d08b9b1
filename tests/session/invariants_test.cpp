// The checker names the first broken rule by table, record and field; a
// sound label passes.
#include <gtest/gtest.h>

#include <functional>

#include "label/finances.h"
#include "session/invariants.h"
#include "support/empty_game.h"

using namespace trovane;

namespace {

struct Fault {
    const char* name;
    std::function<void(Game&)> apply;
    std::string table;
    int32_t record;
    std::string field;
    std::string rule;
};

// Two labels, the second the player's, with a head in Finance and Law and a
// month already closed into the books.
void soundGame(Game& g) {
    g.staff.rec = StaffRecord{.ability = 80, .employer = 2, .department = 1, .wage = moneyUnits(700)};
    g.staff.append();
    g.label.rec = LabelRecord{.cashBalance = moneyUnits(100)};
    g.label.append();
    g.label.rec = LabelRecord{.cashBalance = moneyUnits(9000), .wageBill = moneyUnits(10'700)};
    g.label->department[1].head = 1;
    g.label->department[1].staffAtLevel = {0, 0, 0, 0, 10};  // weighted 10 -> 8, + 4 = 12
    g.label->department[1].rating = 12;
    g.player.playerLabel = static_cast<int16_t>(g.label.append());
    g.player.playerLabelCash = moneyUnits(9000);
    writeOpeningLedgerRows(g);
    g.label.read(2);
    addIncome(g, moneyUnits(50), ledgerRecordSales);
    addExpense(g, moneyUnits(15), ledgerRoyaltiesPaid);  // carried over the close: 15 then 35
    g.gameDate += 30;
    updateLabelFinances(g);
    g.label.read(2);
    addExpense(g, moneyUnits(20), ledgerRoyaltiesPaid);
}

class Invariants : public ::testing::TestWithParam<Fault> {};

}  // namespace

TEST(Invariants, AnOpeningRowCountsThisMonthFromItsOwnFigures) {
    test::EmptyGame eg;
    Game& g = eg.g;
    g.label.rec = LabelRecord{};
    g.player.playerLabel = static_cast<int16_t>(g.label.append());
    addIncome(g, moneyUnits(50), ledgerOtherIncome);  // before the opening: in its figures, not gained since
    writeOpeningLedgerRows(g);
    auto broken = checkInvariants(g);
    EXPECT_FALSE(broken) << describeBreak(*broken);
    g.label.read(1);
    addIncome(g, moneyUnits(7), ledgerOtherIncome);
    broken = checkInvariants(g);
    EXPECT_FALSE(broken) << describeBreak(*broken);
}

TEST_P(Invariants, NameTheBrokenRule) {
    test::EmptyGame eg;
    soundGame(eg.g);
    GetParam().apply(eg.g);
    auto broken = checkInvariants(eg.g);
    ASSERT_TRUE(broken);
    const Fault& f = GetParam();
    EXPECT_EQ(std::tuple(broken->table, broken->record, broken->field, broken->rule),
              std::tuple(f.table, f.record, f.field, f.rule));
}

namespace {
void onLabel(Game& g, int32_t n, const std::function<void(LabelRecord&)>& f) {
    g.label.read(n);
    f(g.label.rec);
    g.label.write();
}
template <class R>
void put(Table<R>& t, const R& r) {
    t.rec = r;
    t.append();
}
// An unsigned act with sound figures, the given changes made to it.
void addBand(Game& g, const std::function<void(BandRecord&)>& f) {
    g.band.rec = BandRecord{};
    g.band->reputation = {2, 2, 2, 2, 2};
    f(g.band.rec);
    g.band.append();
}
}  // namespace

INSTANTIATE_TEST_SUITE_P(
    Faults, Invariants,
    ::testing::Values(
        // Cash and this month agree, but the royalties run from the row's figure.
        Fault{"RoyaltiesTakenFromTheRow", [](Game& g) { onLabel(g, 2, [](auto& l) { l.period[0].expense[6] = 0; }); },
              "label", 2, "cashBalance", "labelCashMatchesLedger"},
        Fault{"PlayerCashAside", [](Game& g) { g.player.playerLabelCash += 1; }, "session", 0, "playerLabelCash",
              "playerCashIsTheLabels"},
        Fault{"LevelPastItsBound",
              [](Game& g) { onLabel(g, 1, [](auto& l) { l.department[3].staffAtLevel[4] = 33; }); }, "label", 1,
              "department[3].staffAtLevel[4]", "staffLevelsWithinBounds"},
        // Allowed, but the rating and the bill now lag.
        Fault{"LevelAtItsBound", [](Game& g) { onLabel(g, 1, [](auto& l) { l.department[3].staffAtLevel[4] = 32; }); },
              "label", 1, "department[3].rating", "departmentRatingsFollowStaff"},
        Fault{"HeadOfAnotherLabel", [](Game& g) { onLabel(g, 1, [](auto& l) { l.department[0].head = 1; }); }, "label",
              1, "department[0].head", "departmentHeadsWorkThere"},
        Fault{"HeadInAnotherDepartment", [](Game& g) { onLabel(g, 2, [](auto& l) { l.department[2].head = 1; }); },
              "label", 2, "department[2].head", "departmentHeadsWorkThere"},
        Fault{"RatingOffByOne", [](Game& g) { onLabel(g, 2, [](auto& l) { l.department[1].rating = 13; }); }, "label",
              2, "department[1].rating", "departmentRatingsFollowStaff"},
        Fault{"BillWithoutTheHead", [](Game& g) { onLabel(g, 2, [](auto& l) { l.wageBill = moneyUnits(10'000); }); },
              "label", 2, "wageBill", "wageBillIsItsDepartments"},
        Fault{"ReputationBelowTheFloor", [](Game& g) { addBand(g, [](auto& b) { b.reputation[3] = 1; }); }, "band", 1,
              "reputation[3]", "bandsHoldTheirFields"},
        Fault{"HypePastItsMeter", [](Game& g) { addBand(g, [](auto& b) { b.hype[0] = -101; }); }, "band", 1, "hype[0]",
              "bandsHoldTheirFields"},
        Fault{"AMemberWhoDoesNotExist",
              [](Game& g) {
                  addBand(g, [](auto& b) {
                      b.memberCount = 1;
                      b.members[0] = 1;  // the artist table is empty
                  });
              },
              "band", 1, "members[0]", "bandsHoldTheirFields"},
        Fault{"ABandCountAhead", [](Game& g) { onLabel(g, 1, [](auto& l) { l.bandCount = 1; }); }, "label", 1,
              "bandCount", "bandCountIsItsBands"},
        Fault{"ARetiredActCounted",
              [](Game& g) {
                  addBand(g, [](auto& b) {
                      b.label = 2;
                      b.retired = -1;
                  });
                  onLabel(g, 2, [](auto& l) { l.bandCount = 1; });
              },
              "label", 2, "bandCount", "bandCountIsItsBands"},
        // No band yet.
        Fault{"AnOfferForNoBand", [](Game& g) { put(g.offer, OfferRecord{.band = 1}); }, "offer", 1, "band",
              "offersAndShortlistPointWithin"},
        // No disc yet; 65535 and 65534 would be the marks.
        Fault{"ASongOnADiscThatIsNot", [](Game& g) { put(g.song, SongRecord{.disc = 1}); }, "song", 1, "disc",
              "songsAndDiscsPointWithin"},
        Fault{"MoreTracksRecordedThanBooked",
              [](Game& g) { put(g.disc, DiscRecord{.trackCount = 2, .tracksRecorded = 3}); }, "disc", 1,
              "tracksRecorded", "songsAndDiscsPointWithin"},
        Fault{"AFirmNeitherOpenNorBuilding", [](Game& g) { put(g.business, BusinessRecord{.open = 1}); }, "business", 1,
              "open", "firmsHoldTheirFields"},
        // The look table is empty.
        Fault{"ALookPastTheTable", [](Game& g) { put(g.artist, ArtistRecord{.look = 1}); }, "artist", 1, "look",
              "looksAndAchievementsPointWithin"},
        // No artist yet.
        Fault{"AnAchievementOfNoOne", [](Game& g) { put(g.achieve, AchievementRecord{.kind = 1, .who = 1}); },
              "achieve", 1, "who", "looksAndAchievementsPointWithin"},
        Fault{"ARecordingBandNamingAnotherBandsDisc",
              [](Game& g) {
                  addBand(g, [](auto&) {});
                  addBand(g, [](auto& b) {
                      b.albumStatus = 2;
                      b.songsWritten = 1;  // disc 1 is the first band's
                  });
                  put(g.disc, DiscRecord{.band = 1});
              },
              "band", 2, "songsWritten", "recordingBandsNameTheirDisc"},
        // Each reference one past its table (two labels, one staff member, no other records).
        Fault{"ALedgerRowOfNoLabel", [](Game& g) { put(g.ledger, LedgerRecord{.label = 3}); }, "ledger", 5, "label",
              "ledgerRowNamesALabel"},
        Fault{"AHeadWhoIsNoStaff", [](Game& g) { onLabel(g, 1, [](auto& l) { l.department[4].head = 2; }); }, "label",
              1, "department[4].head", "departmentHeadsWorkThere"},
        Fault{"APlayerOfNoLabel", [](Game& g) { g.player.playerLabel = 3; }, "session", 0, "playerLabel",
              "playerCashIsTheLabels"},
        Fault{"ElevenMembers", [](Game& g) { addBand(g, [](auto& b) { b.memberCount = 11; }); }, "band", 1,
              "memberCount", "bandsHoldTheirFields"},
        Fault{"AnAlbumStatusOfFour", [](Game& g) { addBand(g, [](auto& b) { b.albumStatus = 4; }); }, "band", 1,
              "albumStatus", "bandsHoldTheirFields"},
        Fault{"AnOfferOfNoLabel",
              [](Game& g) {
                  addBand(g, [](auto&) {});
                  put(g.offer, OfferRecord{.label = 3, .band = 1});
              },
              "offer", 1, "label", "offersAndShortlistPointWithin"},
        Fault{"AShortlistRowOfNoBand", [](Game& g) { put(g.shortlist, ShortlistRecord{.band = 1, .label = 1}); },
              "shortlist", 1, "band", "offersAndShortlistPointWithin"},
        Fault{"AShortlistRowOfNoLabel", [](Game& g) { put(g.shortlist, ShortlistRecord{.label = 3}); }, "shortlist", 1,
              "label", "offersAndShortlistPointWithin"},
        Fault{"ADiscOfNoLabel", [](Game& g) { put(g.disc, DiscRecord{.label = 3}); }, "disc", 1, "label",
              "songsAndDiscsPointWithin"},
        Fault{"ATrackThatIsNoSong", [](Game& g) { put(g.disc, DiscRecord{.tracks = {1}, .trackCount = 1}); }, "disc", 1,
              "tracks[0]", "songsAndDiscsPointWithin"},
        Fault{"AFirmOfNoLabel", [](Game& g) { put(g.business, BusinessRecord{.owner = 3, .open = -1}); }, "business", 1,
              "owner", "firmsHoldTheirFields"},
        Fault{"AGigAtNoVenue", [](Game& g) { put(g.gig, GigRecord{.venue = 1}); }, "gig", 1, "venue",
              "gigsAndToursPointWithin"},
        Fault{"AGigBillingNoAct",
              [](Game& g) {
                  put(g.gig, GigRecord{.bill = {0, 0, 1}});
              },
              "gig", 1, "bill[2]", "gigsAndToursPointWithin"},
        Fault{"AGigRated101",
              [](Game& g) {
                  put(g.gig, GigRecord{.quality = {0, 101}});
              },
              "gig", 1, "quality[1]", "gigsAndToursPointWithin"},
        Fault{"FortyOneGigsOnATour", [](Game& g) { put(g.tour, TourRecord{.gigCount = 41}); }, "tour", 1, "gigCount",
              "gigsAndToursPointWithin"},
        Fault{"ATourGigThatIsNoGig", [](Game& g) { put(g.tour, TourRecord{.gigCount = 1, .gigs = {1}}); }, "tour", 1,
              "gigs[0]", "gigsAndToursPointWithin"},
        Fault{"AnImageRatedPast100", [](Game& g) { put(g.artist, ArtistRecord{.imageRating = 101}); }, "artist", 1,
              "imageRating", "looksAndAchievementsPointWithin"},
        Fault{"AnAchievementOfKindFour", [](Game& g) { put(g.achieve, AchievementRecord{.kind = 4, .who = 1}); },
              "achieve", 1, "kind", "looksAndAchievementsPointWithin"},
        Fault{"ARetiredMember",
              [](Game& g) {
                  put(g.artist, ArtistRecord{.retired = kTrue, .band = 1});
                  addBand(g, [](auto& b) { b.memberCount = 1, b.members[0] = 1; });
              },
              "band", 1, "members[0]", "actsAndMembersAgree"},
        Fault{"AMemberNamingNoBand",
              [](Game& g) {
                  put(g.artist, ArtistRecord{});
                  addBand(g, [](auto& b) { b.memberCount = 1, b.members[0] = 1; });
              },
              "band", 1, "members[0]", "actsAndMembersAgree"},
        Fault{"AnArtistOfAnEndedAct",
              [](Game& g) {
                  put(g.artist, ArtistRecord{.band = 1});
                  addBand(g, [](auto& b) { b.retired = kTrue; });
              },
              "artist", 1, "band", "actsAndMembersAgree"},
        Fault{"ElevenNominees", [](Game& g) { put(g.award, AwardRecord{.nomineeCount = 11}); }, "award", 1,
              "nomineeCount", "awardsHoldTheirNominees"},
        Fault{"ANomineeScored101",
              [](Game& g) {
                  put(g.award, AwardRecord{.nomineeCount = 2, .scores = {100, 101}});
              },
              "award", 1, "scores[1]", "awardsHoldTheirNominees"},
        Fault{"AnAppearanceOfNoAct", [](Game& g) { put(g.schedule, ScheduleRecord{.type = 17, .band = 1}); },
              "schedule", 1, "band", "appearancesPointWithin"},
        Fault{"AnAppearanceOnNoOutlet",
              [](Game& g) {
                  addBand(g, [](auto&) {});
                  put(g.schedule, ScheduleRecord{.type = 17, .band = 1, .media = 1});
              },
              "schedule", 1, "media", "appearancesPointWithin"},
        Fault{"AnAppearanceOfKindFive",
              [](Game& g) {
                  addBand(g, [](auto&) {});
                  put(g.media, MediaRecord{});
                  put(g.schedule, ScheduleRecord{.type = 17, .band = 1, .media = 1, .mediaOption = 5});
              },
              "schedule", 1, "mediaOption", "appearancesPointWithin"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Invariants, ASoundGameWithAVoidOfferAndSongsAwaitingADiscPasses) {
    test::EmptyGame eg;
    Game& g = eg.g;
    soundGame(g);
    put(g.offer, OfferRecord{.band = -1});  // void
    for (uint16_t mark : {uint16_t{65535}, uint16_t{65534}}) put(g.song, SongRecord{.disc = mark});
    for (int i = 0; i < 2; ++i) addBand(g, [](auto&) {});
    put(g.gig, GigRecord{.bill = {1, 2}});  // two acts, each once
    auto broken = checkInvariants(g);
    EXPECT_FALSE(broken) << describeBreak(*broken);
}
