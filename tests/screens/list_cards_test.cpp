// A row of the firms' or the media list opens its particulars over the list.
#include <QLabel>
#include <QTest>

#include "screen_fixture.h"
#include "screens/browse_grid_widget.h"
#include "screens/business_screens.h"
#include "screens/media_screens.h"
#include "screens/side_bar.h"
#include "support/amend.h"
#include "world/strings.h"

namespace trovane::test {

class ListCards : public ScreenTest {
protected:
    // Opens the Find entry's list and presses Enter on its last row, which must be `record`.
    void openLastRow(const char* entry, Screen list, int32_t record) {
        click(window->sideBar()->btnFind);
        click(window->sideBar()->findOptions()->entry(QString::fromLatin1(entry)));
        ASSERT_EQ(screen(), list);
        auto* grid = qobject_cast<screens::BrowseGridWidget*>(findShown("flxGrid"));
        ASSERT_NE(grid, nullptr);
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_End);
        ASSERT_EQ(grid->currentRecord(), record);
        QTest::keyClick(grid, Qt::Key_Return);
    }
};

TEST_F(ListCards, AnOutletRowOpensItsParticulars) {
    startNewGameAsPlayer();
    Game& g = *game;
    g.media.rec = MediaRecord{.mediaName = "The Marsh Weekly",
                              .mediaType = 0,
                              .reach = 2,
                              .frequency = 1,
                              .airDay = {0, 0, 0, 0, 1, 0, 0},  // Fridays
                              .smallMinimum = 20,
                              .smallValue = 3};
    const int16_t outlet = static_cast<int16_t>(g.media.append());

    openLastRow("lblMedia", Screen::frmMediaBrowse, outlet);
    auto* card = dialog<screens::frmMediaCard>("frmMediaCard");
    ASSERT_NE(card, nullptr);
    const QStringList lines = card->lblMediaDetails->text().split('\n');
    ASSERT_GE(lines.size(), 5);
    EXPECT_TRUE(lines[0].startsWith("The Marsh Weekly, "));
    EXPECT_EQ(lines[1], "Reach: Global");
    EXPECT_EQ(lines[3], "Out: Weekly: Friday");
    EXPECT_TRUE(lines[4].endsWith("(reputation 20, value 3)")) << lines[4].toStdString();
    EXPECT_EQ(lines.size(), 5) << "a kind without a minimum is not offered";
    screenshotOf(card, "49_frmMediaCard");
    card->close();

    // A monthly outlet keeps its week in issueWeek and its weekday in issueMonth.
    const std::tuple<uint8_t, uint8_t, const char*> monthly[] = {{1, 7, "the first Saturday"},
                                                                 {4, 1, "the fourth Sunday"}};
    for (const auto& [week, weekday, words] : monthly) {
        amend(g.media, outlet, [&] {
            g.media->frequency = 2;
            g.media->issueWeek = week;
            g.media->issueMonth = weekday;
        });
        openLastRow("lblMedia", Screen::frmMediaBrowse, outlet);
        card = dialog<screens::frmMediaCard>("frmMediaCard");
        ASSERT_NE(card, nullptr);
        EXPECT_EQ(card->lblMediaDetails->text().split('\n').value(3),
                  QStringLiteral("Out: Monthly: %1 of the month").arg(words));
        card->close();
    }
    // A broadcaster offers both together only at a value of their own, from the higher minimum.
    for (uint8_t both : {0, 9}) {
        amend(g.media, outlet, [&] {
            g.media->mediaType = 3;
            g.media->interviewMinimum = 10;
            g.media->liveMinimum = 30;
            g.media->bothValue = both;
        });
        openLastRow("lblMedia", Screen::frmMediaBrowse, outlet);
        card = dialog<screens::frmMediaCard>("frmMediaCard");
        ASSERT_NE(card, nullptr);
        const QString line = QStringLiteral("\nInterview & Live Performance (reputation 30, value %1)").arg(both);
        EXPECT_EQ(card->lblMediaDetails->text().contains(line), both > 0);
        card->close();
    }
}

TEST_F(ListCards, ASongRowOpensItsDiscElseItsBandAndAFirmRowItsParticulars) {
    startNewGameAsPlayer();
    Game& g = *game;
    const int16_t band = addHartbeats(g);
    g.song.rec = SongRecord{.title = "Zz Loose Leaf", .band = band};
    const int32_t song = g.song.append();
    auto open = [&] {
        click(window->sideBar()->btnFind);
        click(window->sideBar()->findOptions()->entry(QStringLiteral("lblSongs")));
        auto* grid = qobject_cast<screens::BrowseGridWidget*>(findShown("flxGrid"));
        ASSERT_NE(grid, nullptr);
        ASSERT_TRUE(grid->typeAhead(QStringLiteral("Zz")));
        ASSERT_EQ(grid->currentRecord(), song);
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_Return);
    };
    open();
    EXPECT_EQ(screen(), Screen::frmBandDetails) << "a song on no disc";
    g.disc.rec = DiscRecord{.title = "Pressed", .band = band};
    const auto disc = static_cast<int16_t>(g.disc.append());
    amend(g.song, song, [&] { g.song->disc = static_cast<uint16_t>(disc); });
    open();
    EXPECT_EQ(std::tuple(screen(), window->discOnScreen), std::tuple(Screen::frmDiscDetails, disc));

    g.business.rec = BusinessRecord{.name = "Marsh Lane Pressing",
                                    .kind = 1,
                                    .quality = 10,
                                    .owner = g.player.playerLabel,
                                    .open = -1,
                                    .runningCost = 15'000};
    const int16_t firm = static_cast<int16_t>(g.business.append());

    openLastRow("lblBusinesses", Screen::frmBusinessBrowse, firm);

    auto* card = dialog<screens::frmFirmCard>("frmFirmCard");
    ASSERT_NE(card, nullptr);
    g.label.read(g.player.playerLabel);
    EXPECT_EQ(card->details->lblName->text(), "Marsh Lane Pressing");
    EXPECT_EQ(card->details->lblQuality->text(), "Quality : 10%");
    EXPECT_EQ(card->details->lblOwner->text(), "Owned by " + QString::fromStdString(trim(g.label->name.value)));
    EXPECT_TRUE(card->details->lblRunningCost->text().endsWith("15,000 per month"));
    // A plant of quality 10 presses 2 x 1,000 = 2,000 units a day.
    EXPECT_EQ(card->details->lblCost->text(), "2,000 units per day");
    screenshotOf(card, "49_frmFirmCard");
    card->close();
    EXPECT_EQ(screen(), Screen::frmBusinessBrowse);
}

}  // namespace trovane::test
