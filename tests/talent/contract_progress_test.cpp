// A contract's course: the first option's deadline and the breach, the
// decision at the end of an option, taking an option up and letting go.
#include <gtest/gtest.h>

#include "schedule/schedule.h"
#include "support/album_world.h"
#include "support/amend.h"
#include "talent/contract_progress.h"
#include "world/strings.h"

using namespace trovane;
using test::AlbumWorld;

namespace {

struct ContractProgress : ::testing::Test, AlbumWorld {
    BandRecord band(int16_t n) {
        g.band.read(n);
        return g.band.rec;
    }
};

}  // namespace

TEST_F(ContractProgress, TheOptionCountRunsOnlyInTheFirstTerm) {
    int16_t first = addBand("First", kPlayer);  // 3 options = 2 further + stage 1
    int16_t second = addBand("Second", kPlayer);
    int16_t released = addBand("Released", kPlayer);
    amend(g.band, first, [&] { g.band->optionMonthsLeft = 7; });
    amend(g.band, second, [&] { g.band->optionsRemaining = 2; });
    amend(g.band, released, [&] { g.band->optionMonthsLeft = 100; });
    updateMonthsRemainingOnOption(g);
    EXPECT_EQ(std::tuple(band(first).optionMonthsLeft, band(second).optionMonthsLeft, band(released).optionMonthsLeft),
              std::tuple(6, 12, 100));
    ASSERT_EQ(newsCount(), 1) << "the warning at exactly 6";
    EXPECT_EQ(trim(lastNews().title.value), "6 months remain on First's option");
    EXPECT_EQ(trim(lastNews().text.value),
              "One of your assistants has informed you that there is now only 6 months left on First's initial "
              "option - if you do not release an album within this time then you will be in breach of your contract "
              "agreement.");
    updateMonthsRemainingOnOption(g);
    EXPECT_EQ(newsCount(), 1) << "no warning at 5";
}

TEST_F(ContractProgress, ABreachCostsDamagesAndTheBandAndOnlyThePlayerIsTold) {
    int16_t sued = addBand("Sued", kRival, 2);
    int16_t angry = addBand("Angry", kPlayer, 2);
    amend(g.band, sued, [&] {
        g.band->optionMonthsLeft = 1;
        g.band->initialAdvance = moneyUnits(130000);
        g.band->costs = moneyUnits(5);
    });
    amend(g.band, angry, [&] {
        g.band->optionMonthsLeft = 1;
        g.band->initialAdvance = moneyUnits(90000);
    });
    updateMonthsRemainingOnOption(g);
    // 130,000 x 0.75 = 97,500, in steps of 5,000: 19.5 to the even 20, so 100,000.
    // 90,000 x 0.75 = 67,500: 13.5 steps of 5,000 to the even 14, 70,000.
    EXPECT_EQ(std::tuple(ledger(kRival, ledgerOtherExpense), ledger(kPlayer, ledgerOtherExpense)),
              std::tuple(-moneyUnits(100000), -moneyUnits(70000)));
    EXPECT_EQ((g.artist.read(1), g.artist->wealth), 50000);
    const BandRecord b = this->band(sued);
    EXPECT_EQ(std::tuple(b.label, b.costs, b.advanceToPay), std::tuple(0, 0, moneyUnits(130000)));
    EXPECT_EQ((g.label.read(kRival), g.label->bandCount), 0);
    ASSERT_EQ(newsCount(), 1) << "a rival's band of rating 10 is nobody's news";
    EXPECT_EQ(trim(lastNews().title.value), "Angry sued for breach of contract");
    EXPECT_EQ(trim(lastNews().text.value),
              "Due to your label not fulfilling contract obligations with Angry they have successfully sued you for "
              "breach of contract. They are now released from their contract. You have also been forced to pay "
              "£70,000 in damages.");
}

TEST_F(ContractProgress, TheFirstTermIsTakenUpAtOnceAndLaterTermsWaitThreeMonths) {
    int16_t band = addBand("Term", kPlayer);
    amend(g.band, band, [&] {
        g.band->additionalAdvance = moneyUnits(40000);
        g.band->advanceToPay = moneyUnits(10);
        g.band->albumStatus = 3;
        g.band->songsWritten = 7;
    });
    scheduleContractPoint(g, g.gameDate);
    const BandRecord b = this->band(band);
    EXPECT_EQ(std::tuple(b.optionsRemaining, b.advanceToPay, b.firstInstallmentDue, b.albumStatus, b.songsWritten),
              std::tuple(2, moneyUnits(40000), 1, 0, 0));
    EXPECT_EQ(g.schedule.recordCount(), 1) << "nothing filed";

    for (uint8_t options : {2, 0}) {
        amend(g.band, band, [&] { g.band->optionsRemaining = options; });
        scheduleContractPoint(g, serialFromCivil(2004, 11, 30));
        EXPECT_EQ(this->band(band).optionsRemaining, options) << "no take-up";
    }
    // 30 November + three months: the end of February.
    std::vector<int32_t> due = entriesOfDay(g, serialFromCivil(2005, 2, 28));
    ASSERT_EQ(due.size(), 2u);
    g.schedule.read(due[0]);
    EXPECT_EQ(std::tuple(g.schedule->type, g.schedule->band, g.schedule->label), std::tuple(18, band, kPlayer));
}

TEST_F(ContractProgress, AnEndedOptionAsksThePlayerAndFulfilledContractsEndSilently) {
    int16_t asks = addBand("Asks", kPlayer);
    int16_t done = addBand("Done", kPlayer);
    int16_t rival = addBand("Rivals", kRival);
    amend(g.band, asks, [&] { g.band->optionsRemaining = 2; });
    amend(g.band, done, [&] {
        g.band->optionsRemaining = 0;
        g.band->initialAdvance = moneyUnits(25000);
        g.band->reputation = {90, 90, 90, 90, 90};  // big enough for release news, which stays silent here
    });
    amend(g.band, rival, [&] { g.band->optionsRemaining = 1; });
    // the rival weighs its deal by the band's career age
    amend(g.style, 1, [&] { g.style->lifeSpan = 10; });
    for (int16_t b : {asks, done, rival}) {
        g.schedule.rec = ScheduleRecord{.type = 18, .date = g.gameDate, .band = b};
        g.schedule.append();
        contractPoint(g);
    }
    ASSERT_EQ(newsCount(), 2);
    g.news.read(1);
    EXPECT_EQ(trim(g.news->title.value), "Asks request decision on contract.");
    EXPECT_EQ(std::tuple(g.news->kind, g.news->mustReply != 0, g.news->scheduleLink), std::tuple(0, true, 1));
    g.news.read(2);
    EXPECT_EQ(trim(g.news->title.value), "Done complete contractual obligations with Home Label.");
    EXPECT_NE(g.news->text.value.find("carrying advances in the region of £25,000."), std::string::npos);
    EXPECT_EQ(band(done).label, 0);
    EXPECT_EQ(band(rival).label, kRival) << "a rival decides for itself";
}

TEST_F(ContractProgress, TheDecisionCountsTheAlbumsStillOwed) {
    int16_t band = addBand("Choice", kPlayer);
    amend(g.band, band, [&] {
        g.band->optionsRemaining = 1;
        g.band->initialAdvance = moneyUnits(80000);
        g.band->additionalAdvance = moneyUnits(45000);
    });
    EXPECT_EQ(optionDecisionTitle(g), "Choice Option Decision");
    EXPECT_EQ(optionDecisionText(g),
              "You must choose whether to extend Choice's contract or terminate it. If you choose to extend the "
              "contract you will be committed to producing 1 futher album. They will be paid £45,000 for this "
              "album. Do you wish to extend the contract?");
    amend(g.band, band, [&] { g.band->optionsRemaining = 2; });
    EXPECT_EQ(optionDecisionText(g),
              "You must choose whether to extend Choice's contract or terminate it. If you choose to extend the "
              "contract you will be committed to producing 2 futher albums. They will be paid £45,000 for each of "
              "these albums. Do you wish to extend the contract?");
}

TEST_F(ContractProgress, LettingABandGoTellsTheWorldWhenItMatters) {
    int16_t famous = addBand("Famous", kPlayer);
    int16_t small = addBand("Small", kPlayer);
    amend(g.band, famous, [&] { g.band->reputation = {51, 51, 51, 51, 51}; });  // rating exactly 51
    amend(g.band, small, [&] { g.band->reputation = {50, 50, 50, 50, 50}; });
    amend(g.label, kPlayer, [&] { g.label->bandCount = 2; });
    g.band.read(small);
    releaseBand(g, 1);
    EXPECT_EQ(newsCount(), 0) << "rating 50, not shortlisted";
    g.band.read(famous);
    releaseBand(g, 1);
    ASSERT_EQ(newsCount(), 1);
    EXPECT_EQ(trim(lastNews().title.value), "Famous released by Home Label");
    EXPECT_EQ(trim(lastNews().text.value),
              "Home Label have announced they are releasing Famous from their contract with them. As a result, "
              "Famous will be looking for a new label to represent them.");
    EXPECT_EQ((g.label.read(kPlayer), g.label->bandCount), 0);
}
