// Offers filed, decided and signed.
#include <gtest/gtest.h>

#include "day/dispatch.h"
#include "floor/news_post.h"
#include "label/scouting.h"
#include "support/amend.h"
#include "support/game_test.h"
#include "support/signing_world.h"
#include "talent/band_offers.h"
#include "talent/contract_news.h"
#include "talent/contracts.h"
#include "world/strings.h"

using namespace trovane;
using namespace trovane::test;

namespace {

const std::string kUnderRepresented =
    "The Testers have rejected your contract offer as  They are concerned about under-representation in their main "
    "market, however it is believed an improved contract would do much to ease the problem.";

// A band of US 100 asking 60,000, three options of 18 months and 10 percent.
// A label of UK x and US 60 stands at x - 20 against it.
class Deals : public test::GameTest {
protected:
    int16_t style = addStyle(g, 10);
    int16_t home = 0;
    int16_t band = 0;
    OfferTerms asked{60'000, 60'000, 3, 18, 10};

    void SetUp() override {
        home = addLabel(g, {26, 60, 0, 0, 0}, "Home Records");  // standing 6
        g.player.playerLabel = home;
        band = addBand({1, 1});
    }
    int16_t addBand(std::initializer_list<int16_t> ranks, const std::string& name = "The Testers") {
        int16_t b = addAct(
            g, {.reputation = {0, 100, 0, 0, 0}, .ranks = ranks, .style = static_cast<uint8_t>(style), .name = name});
        amend(g.band, b, [&] {
            g.band->initialAdvance = g.band->additionalAdvance = moneyUnits(60'000);
            g.band->additionalAdvanceCount = 3;
            g.band->optionLength = 18;
            g.band->royaltyRate = 10;
        });
        return b;
    }
    void setStanding(int16_t label, int standing) {
        amend(g.label, label, [&] { g.label->reputation[0] = static_cast<uint8_t>(standing + 20); });
    }
    // A rival's offer of the asked terms, with its own decision entry when asked.
    int32_t rivalOffer(int16_t label, double date, bool ownEntry) {
        g.offer.rec = OfferRecord{.decisionDate = date,
                                  .label = label,
                                  .initialAdvance = 60'000,
                                  .additionalAdvance = 60'000,
                                  .additionalAdvanceCount = 3,
                                  .optionLength = 18,
                                  .band = band,
                                  .royalty = 10};
        int32_t n = g.offer.append();
        if (ownEntry) addSchedule(g, ScheduleRecord{.type = 4, .date = date, .band = band, .label = label, .offer = n});
        return n;
    }
    void playDay(double date) {
        g.gameDate = date;
        performDaysEvents(g);
    }
    std::vector<ScheduleRecord> entriesOn(double date) {
        std::vector<ScheduleRecord> out;
        for (int32_t id : entriesOfDay(g, date)) {
            g.schedule.read(id);
            out.push_back(g.schedule.rec);
        }
        return out;
    }
    NewsRecord lastNews() {
        g.news.read(g.news.recordCount() - 1);
        return g.news.rec;
    }
    int16_t labelOf(int16_t b) {
        g.band.read(b);
        return g.band->label;
    }
};

TEST_F(Deals, AnOfferIsDecidedInAWeekAndAChangeKeepsItsNumberDateAndEntry) {
    OfferMade m = makeOffer(g, band, asked);
    EXPECT_EQ(m.decisionDate, g.gameDate + 7);
    EXPECT_FALSE(m.joined);
    EXPECT_EQ(playerShortlist(g), std::vector<int16_t>{band});
    g.gameDate += 2;
    OfferTerms better = asked;
    better.royalty = 12;
    OfferMade changed = makeOffer(g, band, better);
    EXPECT_EQ(changed.offer, m.offer);
    EXPECT_EQ(changed.decisionDate, m.decisionDate);
    auto entries = entriesOn(m.decisionDate);
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(std::tuple(entries[0].type, entries[0].offer, entries[0].label), std::tuple(uint8_t{4}, m.offer, home));
    EXPECT_EQ((g.offer.read(m.offer), g.offer->royalty), 12);
    EXPECT_EQ(offerFormStart(g, band).royalty, 12) << "the form opens on the pending offer";
}

TEST_F(Deals, AmountsTypedAreTakenBackThroughTheExchangeRate) {
    g.prefs.rec.exchangeRate = 2;
    OfferTerms typed = asked;
    typed.initialAdvance = 120'001;    // / 2 = 60,000.5 -> 60,000 (half to even)
    typed.additionalAdvance = 90'003;  // 45,001.5 -> 45,002
    makeOffer(g, band, typed);
    g.offer.read(1);
    EXPECT_EQ(std::tuple(g.offer->initialAdvance, g.offer->additionalAdvance), std::tuple(60'000, 45'002));
}

// Each reason has its own words: the clincher of a yes, the complaint of a
// harsh no (a score of 60 or less) and of a mild one.
TEST_F(Deals, EachReasonHasItsOwnWordsInAYesAndInEitherNo) {
    g.band.read(band);
    g.label.read(home);
    g.offer.rec = OfferRecord{.additionalAdvanceCount = 3};
    const char* const clincher[] = {
        "initial advance offered by the label, guaranteeing them a sizeable guaranteed income.",
        "advances they stand to receive after their initial album is completed.", "royalty rate the label offered.",
        "they are looking forward to working with such a prestigious label.",
        "they are looking forward to working with a label so well equipped to represent them in their main market."};
    const std::string size =
        " They have indicated them would require a much better deal to consider representing a label of your size.";
    const std::string harsh[] = {
        " The initial advance offered has been singled out by the band as being particularly disappointing.",
        " They have indicated their main criticism of the deal concerns the additional advances offered.",
        " The royalty rate in particular is way below what they were hoping for.", size, size};
    const char* const mild[] = {
        "It is believed an increase in the initial advance offered is what they are after.",
        "The band have informed you that the additional advances package you offered is proving the sticking point.",
        "The band have indicated an improved royalty rate should be enough to make your offer acceptable.",
        "It is believed their main concern is the size of your label, however, the band have indicated an improved "
        "contract offer would help overcome this problem.",
        "They are concerned about under-representation in their main market, however it is believed an improved "
        "contract would do much to ease the problem."};
    for (int r = 1; r <= 5; ++r) {
        const auto i = static_cast<std::size_t>(r - 1);
        EXPECT_TRUE(agreementText(g, r).ends_with(clincher[i])) << r;
        EXPECT_TRUE(rejectionText(g, 60, r).ends_with(harsh[i])) << r;
        EXPECT_TRUE(rejectionText(g, 61, r).ends_with(mild[i])) << r;
    }
}

TEST_F(Deals, AnOfferJoinsTheDateOfAnotherLabelsDecision) {
    int16_t rival = addLabel(g, {0, 0, 0, 0, 0});
    double date = g.gameDate + 1;  // filed six days ago
    rivalOffer(rival, date, true);
    OfferMade m = makeOffer(g, band, asked);
    EXPECT_TRUE(m.joined);
    EXPECT_EQ(m.decisionDate, date);
    EXPECT_EQ(entriesOn(date).size(), 1u) << "the first entry decides for all";
    EXPECT_TRUE(entriesOn(g.gameDate + 7).empty());
}

TEST_F(Deals, AtNinetyOneThePlayerIsAskedToConfirm) {
    OfferMade m = makeOffer(g, band, asked);
    playDay(m.decisionDate);
    auto entries = entriesOn(m.decisionDate);
    ASSERT_EQ(entries.size(), 1u) << "nothing is signed before the player says yes";
    EXPECT_EQ(entries[0].offer, m.offer);
    NewsRecord n = lastNews();
    EXPECT_EQ(trim(n.title.value), "The Testers agree terms with Home Records.");
    EXPECT_EQ(trim(n.text.value),
              "The Testers today announed they are delighted to have agreed to Home Records's contract terms and they "
              "are due to sign a 4 album deal with them tomorrow morning. They added the clincher was the "
              "particularly good advances they stand to receive after their initial album is completed. Confirm the "
              "deal?");
    EXPECT_EQ(std::tuple(n.kind, n.mustReply, n.scheduleLink), std::tuple(kNewsYesNo, kTrue, entries[0].id));
}

TEST_F(Deals, AtNinetyTheBandRejectsWithoutAVerdict) {
    setStanding(home, 5);
    OfferMade m = makeOffer(g, band, asked);
    playDay(m.decisionDate);
    NewsRecord n = lastNews();
    EXPECT_EQ(trim(n.title.value), "The Testers reject Home Records deal.");
    // Worst reason 5: the standing of 5 is below the high of 100 and the gap is 80.
    EXPECT_EQ(trim(n.text.value), kUnderRepresented);
    EXPECT_EQ((g.offer.read(m.offer), g.offer->band), kVoidOffer);
    EXPECT_EQ(hasOfferFrom(g, home, band), 0) << "a rejected player may file again at once";
}

TEST_F(Deals, APoorOfferGetsTheHarshWordsAndALaughableOneIsToldSo) {
    // No advances at the asked royalty: mean round(round(200 / 3) x 0.9) = 30, standing 6: 30.
    // The worst reason is the standing (below the high of 100; gap 80).
    // Half the royalty as well: royaltyScore 0, score 0. Initial and options tie at 0 and the
    // standing of 6 is above them: the worst stays the initial advance.
    const std::pair<OfferTerms, const char*> cases[] = {
        {{0, 0, 3, 18, 10},
         "The Testers have rejected your contract offer as way short of what they were hoping for.  They have "
         "indicated them would require a much better deal to consider representing a label of your size."},
        {{0, 0, 3, 18, 5},
         "The Testers have rejected your contract offer as laughable.  The initial advance offered has been singled "
         "out by the band as being particularly disappointing."}};
    for (const auto& [terms, text] : cases) {
        playDay(makeOffer(g, band, terms).decisionDate);
        EXPECT_EQ(trim(lastNews().text.value), text);
    }
}

TEST_F(Deals, ARivalWinsQuietlyAndSignsTheNextDayAndOfEqualBestScoresTheLaterOfferWins) {
    int16_t first = addLabel(g, {26, 60, 0, 0, 0});
    int16_t rival = addLabel(g, {26, 60, 0, 0, 0});
    double date = g.gameDate + 3;
    rivalOffer(first, date, true);
    int32_t offer = rivalOffer(rival, date, false);
    playDay(date);
    EXPECT_EQ(g.news.recordCount(), 1) << "nobody is told";
    auto tomorrow = entriesOn(date + 1);
    ASSERT_EQ(tomorrow.size(), 1u);
    EXPECT_EQ(std::tuple(tomorrow[0].type, tomorrow[0].offer), std::tuple(uint8_t{5}, offer));
    playDay(date + 1);
    EXPECT_EQ(labelOf(band), rival);
    EXPECT_EQ((g.label.read(rival), g.label->bandCount), 1);
    g.offer.read(offer);
    EXPECT_EQ(g.offer->band, kVoidOffer);
}

TEST_F(Deals, ARivalsDealWithABandThePlayerWatchesIsTold) {
    int16_t rival = addLabel(g, {26, 60, 0, 0, 0}, "Rival Records");
    g.band.read(band);
    g.label.read(home);
    shortlistAdd(g);
    double date = g.gameDate + 3;
    rivalOffer(rival, date, true);
    playDay(date);
    NewsRecord n = lastNews();
    EXPECT_EQ(trim(n.title.value), "The Testers agree terms with Rival Records.");
    EXPECT_EQ(n.kind, kNewsOk) << "only the player confirms a deal";
    EXPECT_EQ(entriesOn(date + 1).size(), 1u);
    playDay(date + 1);
    EXPECT_EQ(trim(lastNews().title.value), "The Testers sign for Rival Records.");
    EXPECT_EQ(playerShortlist(g), std::vector<int16_t>{band}) << "the player's row stays for a band signed elsewhere";
}

TEST_F(Deals, ThePlayersRejectedOfferIsWeighedWithTheWinnersLabel) {
    int16_t rival = addLabel(g, {25, 60, 0, 0, 0}, "Rival Records");  // standing 5: the asked terms score 90
    double date = g.gameDate + 3;
    rivalOffer(rival, date, true);
    // standing -200
    amend(g.label, home, [&] { g.label->reputation = {0, 0, 0, 0, 0}; });
    // Royalty 11: royaltyScore 110, mean round(round(310 / 3) x 0.9) = 93; at home round(93 - 18.6) = 74,
    // below the rival's 90. Weighed with the rival's standing of 5: round(93.47) = 93, above 90: no verdict.
    OfferMade m = makeOffer(g, band, {60'000, 60'000, 3, 18, 11});
    EXPECT_TRUE(m.joined);
    playDay(date);
    NewsRecord n = lastNews();
    EXPECT_EQ(trim(n.title.value), "The Testers reject Rival Records deal.");
    EXPECT_EQ(trim(n.text.value), kUnderRepresented);
}

TEST_F(Deals, AVoidOfferSignsNobody) {
    int16_t rival = addLabel(g, {26, 60, 0, 0, 0});
    int32_t offer = rivalOffer(rival, g.gameDate, false);
    g.offer.read(offer);
    g.band.read(band);
    scheduleSigning(g);
    voidOffers(g, band);
    playDay(g.gameDate + 1);
    EXPECT_EQ(labelOf(band), 0);
    EXPECT_EQ((g.label.read(rival), g.label->bandCount), 0);
}

TEST_F(Deals, AWithdrawnEntryTakesItsJoinersWithItButNotOnTheDecisionDay) {
    OfferMade m = makeOffer(g, band, asked);
    int16_t rival = addLabel(g, {26, 60, 0, 0, 0});
    int32_t joiner = rivalOffer(rival, m.decisionDate, false);
    const double today = g.gameDate;
    for (auto [date, refused] : {std::pair{m.decisionDate, true}, {m.decisionDate - 1, false}, {today + 1, false}}) {
        g.gameDate = date;
        EXPECT_EQ(checkWithdraw(g, band) != "", refused) << date - today;
    }
    withdrawOffer(g, band);
    EXPECT_EQ(entriesOn(m.decisionDate)[0].type, 255);
    EXPECT_EQ((g.offer.read(m.offer), g.offer->band), kVoidOffer);
    playDay(m.decisionDate);
    EXPECT_EQ(labelOf(band), 0);
    EXPECT_EQ((g.offer.read(joiner), g.offer->band), band) << "the joiner stays on file, undecided";
    EXPECT_TRUE(entriesOn(m.decisionDate + 1).empty());
}

TEST_F(Deals, ASignedOrRetiredBandTakesNoOffer) {
    EXPECT_EQ(checkOffer(g, band, asked), "");
    amend(g.band, band, [&] { g.band->label = addLabel(g, {1, 1, 1, 1, 1}, "Other Records"); });
    EXPECT_EQ(checkOffer(g, band, asked), "The Testers have already signed for Other Records.");
    amend(g.band, band, [&] {
        g.band->label = 0;
        g.band->retired = kTrue;
    });
    EXPECT_NE(checkOffer(g, band, asked), "");
    EXPECT_EQ(hasOfferFrom(g, home, band), 0) << "a refused offer files nothing";
}

TEST_F(Deals, ASoloActSignsForThePlayerWithSeventyPercent) {
    int16_t solo = addBand({2}, "Jo Testa");
    band = solo;
    int16_t rival = addLabel(g, {0, 0, 0, 0, 0});
    g.band.read(solo);
    g.label.read(rival);
    shortlistAdd(g);
    g.newsong.rec = NewSongRecord{.title = "Harbour Lights", .style = static_cast<uint8_t>(style)};
    g.newsong.append();
    g.song.rec = SongRecord{.title = "Untitled", .band = solo};
    g.song.append();
    OfferMade m = makeOffer(g, solo, asked);
    g.gameDate = m.decisionDate;
    g.offer.read(m.offer);
    g.band.read(solo);
    scheduleSigning(g);  // the player's yes
    performDaysEvents(g);
    g.band.read(solo);
    EXPECT_EQ(std::tuple(g.band->label, g.band->optionsRemaining, g.band->optionMonthsLeft, g.band->advanceToPay,
                         g.band->signedOn),
              std::tuple(home, uint8_t{4}, uint8_t{18}, moneyUnits(60'000), m.decisionDate));
    EXPECT_EQ((g.artist.read(g.band->members[0]), g.artist->royaltyShare), 70);
    EXPECT_EQ(trim(lastNews().title.value), "Jo Testa signs for Home Records.");
    g.song.read(1);
    EXPECT_EQ(trim(g.song->title.value), "Harbour Lights") << "the player's new act's songs get titles";
    EXPECT_EQ((g.newsong.read(1), g.newsong->uses), 1);
    EXPECT_TRUE(playerShortlist(g).empty()) << "a band signed to the player leaves every shortlist";
    g.band.read(solo);
    g.label.read(rival);
    EXPECT_FALSE(isShortlisted(g));
}

}  // namespace
