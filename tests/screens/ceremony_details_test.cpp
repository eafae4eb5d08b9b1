// Find's award ceremonies: a row of the list opens the ceremony's details,
// which open the last night's nominees; Escape goes back the same way.
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>

#include "events/ceremonies.h"
#include "floor/formats.h"
#include "screen_fixture.h"
#include "screens/browse_grid_widget.h"
#include "screens/ceremony_details_screens.h"
#include "screens/side_bar.h"
#include "support/amend.h"
#include "world/dates.h"
#include "world/strings.h"

using namespace trovane;

namespace {

class CeremonyDetailsScreens : public test::ScreenTest {
protected:
    int16_t bestBand = 0, bestLabel = 0;
    int16_t heldOne = 0, neverHeld = 0;

    int16_t addAward(const char* name, uint8_t kind) {
        // Weight 100: the band's ability alone.
        g().award.rec = AwardRecord{.name = name, .kind = kind, .weight = 100, .controversyRange = {0, 255}};
        return static_cast<int16_t>(g().award.append());
    }
    int16_t addCeremony(const char* name, std::initializer_list<int16_t> awards) {
        g().ceremony.rec = CeremonyRecord{.name = name,
                                          .awardCount = static_cast<int16_t>(awards.size()),
                                          .calendar = {10, 7, 2, 0, 0, 0},
                                          .country = 1,  // England
                                          .date = g().gameDate};
        std::size_t i = 0;
        for (int16_t a : awards) g().ceremony->awards[i++] = a;
        return static_cast<int16_t>(g().ceremony.append());
    }
    // The nominations, then the night, as the day's entries would run them.
    void holdTonight(int16_t ceremony) {
        ScheduleRecord e{.type = 14, .date = g().gameDate, .ceremony = ceremony};
        g().schedule.rec = e;
        judgeCeremony(g());
        e.type = 13;
        g().schedule.rec = e;
        finishCeremony(g());
    }
    // An act of no members whose ability alone scores it.
    void addAct(const char* name, uint8_t ability) {
        g().band.rec = BandRecord{.name = name, .ability = ability};
        g().band.append();
    }
    void SetUp() override {
        ScreenTest::SetUp();
        startNewGameAsPlayer();
        addAct("Alpha Lights", 99);
        addAct("Beta Waves", 98);
        neverHeld = addCeremony("Silver Mic Awards", {addAward("Best Newcomer", 2)});
        bestBand = addAward("Band of the Year", 2);
        bestLabel = addAward("Label of the Year", 3);  // no scored pass: never awarded
        heldOne = addCeremony("Golden Disc Night", {bestBand, bestLabel});
        holdTonight(heldOne);
    }
    Game& g() { return *game; }
    template <class T>
    T* shown(const char* name) {
        return qobject_cast<T*>(findShown(name));
    }
    screens::BrowseGridWidget* openList() {
        click(window->sideBar()->btnFind);
        click("lblAwards");
        EXPECT_EQ(screen(), Screen::frmCeremonyBrowse);
        return shown<screens::BrowseGridWidget>("flxGrid");
    }
    // Opens the list's row `row` with the keyboard.
    void openRow(screens::BrowseGridWidget* list, int row) {
        list->setFocus();
        list->setCurrentIndex(list->model()->index(row, 0));
        QTest::keyClick(list, Qt::Key_Return);
    }
    int rowNamed(screens::BrowseGridWidget* list, const QString& name) {
        for (int r = 0; r < list->model()->rowCount(); ++r)
            if (list->model()->index(r, 0).data().toString() == name) return r;
        return -1;
    }
};

TEST_F(CeremonyDetailsScreens, ARowOpensTheNightAndTheLastNightAsTheRecordsHoldThem) {
    g().award.read(bestBand);
    const AwardRecord band = g().award.rec;
    ASSERT_GE(band.nomineeCount, 2);  // the judging itself is the ceremonies' own tests'

    auto* list = openList();
    ASSERT_NE(list, nullptr);
    const int row = rowNamed(list, "Golden Disc Night");
    ASSERT_GE(row, 0);
    screenshot("80_frmCeremonyBrowse");
    openRow(list, row);
    ASSERT_EQ(screen(), Screen::frmCeremonyDetails);
    EXPECT_EQ(window->ceremonyOnScreen, heldOne);
    EXPECT_EQ(shown<QLabel>("lblCountry")->text(), "England");
    EXPECT_EQ(shown<QLabel>("lblNight")->text().toStdString(), formatDate(g().gameDate, "ddd d mmmm yyyy"));
    EXPECT_EQ(shown<QLabel>("lblLastHeld")->text(), QString::number(yearOf(g().gameDate)));
    EXPECT_EQ(shown<QLabel>("lblInvitation")->text(), "Not attending");
    auto* awards = shown<QTableWidget>("flxAwards");
    ASSERT_EQ(awards->rowCount(), 2);
    EXPECT_EQ(cells(awards, 0, {0, 1, 2, 3}),
              (QStringList{"Band of the Year", "Bands", QString::number(band.nomineeCount),
                           QString::fromStdString(trim(band.nomineeNames[0].value))}));
    EXPECT_EQ(cells(awards, 1, {1, 3}), (QStringList{"Labels", "Not awarded"}));
    screenshot("81_frmCeremonyDetails", {"flxAwards", "cmdLastYear", "cmdBack"});

    click(shown<QAbstractButton>("cmdLastYear"));
    ASSERT_EQ(screen(), Screen::frmHistoricalCeremonyDetails);
    auto* nominees = shown<QTableWidget>("flxNominees");
    // Each nominee of the band award, then one line for the label award.
    ASSERT_EQ(nominees->rowCount(), band.nomineeCount + 1);
    for (int k = 0; k < band.nomineeCount; ++k) {
        auto at = static_cast<std::size_t>(k);
        EXPECT_EQ(cells(nominees, k, {1, 2, 3, 4}),
                  (QStringList{QString::number(k + 1), QString::fromStdString(trim(band.nomineeNames[at].value)),
                               QString::number(band.scores[at]), k == 0 ? "Winner" : ""}))
            << k;
        EXPECT_EQ(nominees->item(k, 1)->font().bold(), k == 0) << "the winner's line is bold";
    }
    EXPECT_EQ(nominees->item(0, 0)->text(), "Band of the Year");
    EXPECT_EQ(nominees->item(1, 0)->text(), "") << "the award is named once";
    EXPECT_EQ(nominees->item(band.nomineeCount, 0)->text(), "Label of the Year");
    EXPECT_EQ(nominees->item(band.nomineeCount, 2)->text(), "Not awarded: no one was eligible");
    screenshot("82_frmHistoricalCeremonyDetails", {"flxNominees", "cmdBack"});

    // Back, then Escape: the details, then the list on the same row.
    click(shown<QAbstractButton>("cmdBack"));
    ASSERT_EQ(screen(), Screen::frmCeremonyDetails);
    QTest::keyClick(shown<QTableWidget>("flxAwards"), Qt::Key_Escape);
    ASSERT_EQ(screen(), Screen::frmCeremonyBrowse);
    list = shown<screens::BrowseGridWidget>("flxGrid");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->currentRow(), row);
}

TEST_F(CeremonyDetailsScreens, ACeremonyNeverHeldSaysSoAndNextNightsNomineesAreNotTheLastOnes) {
    // As the base world files it: a count of places, all of them empty.
    g().ceremony.read(neverHeld);
    amend(g().award, g().ceremony->awards[0], [&] { g().award->nomineeCount = 5; });
    auto* list = openList();
    ASSERT_NE(list, nullptr);
    openRow(list, rowNamed(list, "Silver Mic Awards"));
    ASSERT_EQ(screen(), Screen::frmCeremonyDetails);
    EXPECT_EQ(shown<QLabel>("lblLastHeld")->text(), "Never");
    auto* awards = shown<QTableWidget>("flxAwards");
    ASSERT_EQ(awards->rowCount(), 1);
    EXPECT_EQ(cells(awards, 0, {2, 3}), (QStringList{"", ""}));
    click(shown<QAbstractButton>("cmdLastYear"));
    ASSERT_EQ(screen(), Screen::frmHistoricalCeremonyDetails);
    auto* said = shown<QLabel>("lblNotHeld");
    ASSERT_NE(said, nullptr);
    EXPECT_EQ(said->text(),
              "The Silver Mic Awards has not been held yet, so there are no nominees or winners to show.");
    EXPECT_EQ(window->findChild<QTableWidget*>(QStringLiteral("flxNominees")), nullptr);
    screenshot("83_frmHistoricalCeremonyDetails_never_held", {"lblNotHeld", "cmdBack"});

    // Nominations for the next night are not passed off as the last ones.
    g().schedule.rec = ScheduleRecord{.type = 14, .ceremony = heldOne};
    judgeCeremony(g());  // next year's list replaces the one of the night held
    list = openList();
    ASSERT_NE(list, nullptr);
    openRow(list, rowNamed(list, "Golden Disc Night"));
    EXPECT_EQ(shown<QTableWidget>("flxAwards")->item(0, 3)->text(), "Nominees in, winner to be announced");
    click(shown<QAbstractButton>("cmdLastYear"));
    auto* nominees = shown<QTableWidget>("flxNominees");
    ASSERT_EQ(nominees->rowCount(), 2) << "one line for each award";
    EXPECT_EQ(nominees->item(0, 2)->text(),
              QStringLiteral("This year's nominations have replaced the %1 list").arg(yearOf(g().gameDate)));
}

}  // namespace
