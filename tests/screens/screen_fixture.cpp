#include "screen_fixture.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>

#include "screens/side_bar.h"
#include "support/amend.h"
#include "world/record_store.h"

namespace trovane::test {

void ScreenTest::SetUp() {
    writeTinyBaseWorld(folder.path());
    Table<FactRecord> facts(FileNo::fileFact);
    facts.open(folder.path() / "fact.gam", IfMissing::fail);
    facts->text = "The week's record sales are counted every Sunday, in all five territories at once.";
    facts.append();
    facts.close();
    proveBaseWorld(folder.path());
    restartProgram();
}

void ScreenTest::restartProgram() {
    window.reset();
    game = std::make_unique<Game>(folder.path(), 4242);
    window = std::make_unique<screens::mdiParentForm>(*game);
    window->endProgram = [this](int code) { endedWith = code; };
    window->resize(1280, 800);
    window->show();
    window->showStartForm();
    QApplication::processEvents();
}

void ScreenTest::TearDown() {
    // Close what a test left open, so the next starts on a clean desktop.
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w != window.get() && w->isVisible()) w->close();
    window.reset();
    QApplication::processEvents();
    closeAllTables(*game);
}

void ScreenTest::click(const char* name) { click(find<QAbstractButton>(name)); }

void ScreenTest::click(QAbstractButton* b) {
    ASSERT_NE(b, nullptr);
    ASSERT_TRUE(b->isVisible() && b->isEnabled()) << b->objectName().toStdString() << " cannot be pressed";
    QTest::mouseClick(b, Qt::LeftButton);
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool ScreenTest::waitFor(const std::function<bool()>& done, int ms) { return QTest::qWaitFor(done, ms); }

void ScreenTest::startNewGameAsPlayer() {
    click("btnStartNewGame");
    ASSERT_EQ(screen(), Screen::frmStartNewGame);
    for (const char* field : {"txtName", "txtSurname"}) find<QLineEdit>(field)->clear();
    QTest::keyClicks(find<QLineEdit>("txtName"), "Ann");
    QTest::keyClicks(find<QLineEdit>("txtSurname"), "Lee");
    find<QComboBox>("cmbNationality")->setCurrentText("English");
    click("optGender1");
    click("cmdOk");
    ASSERT_EQ(screen(), Screen::frmCreateNewLabel);
    auto* name = find<QLineEdit>("txtName");
    name->clear();
    QTest::keyClicks(name, "Nightjar Records");
    find<QComboBox>("cmbContinent")->setCurrentText("Europe");
    find<QComboBox>("cmbNationality")->setCurrentText("England");
    find<QComboBox>("cmbCity")->setCurrentText("London");
    find<QComboBox>("cmbStyle")->setCurrentText("Indie Rock");
    click("cmdOk");
    ASSERT_TRUE(waitFor([&] { return window->gameRunning() && screen() == Screen::frmNews; }));
}

void ScreenTest::continueOneDay() {
    double before = game->gameDate;
    click(window->sideBar()->btnContinueGame);
    ASSERT_TRUE(waitFor([&] { return game->gameDate == before + 1 && !window->turnUnderWay(); }));
}

QWidget* ScreenTest::findShown(const char* name) const {
    QList<QWidget*> all = window->findChildren<QWidget*>(QString::fromLatin1(name));
    for (QWidget* w : all)
        if (w->isVisible()) return w;
    ADD_FAILURE() << "no control named " << name << " is shown";
    return all.isEmpty() ? nullptr : all.front();
}

void ScreenTest::expectWhole(QWidget* w, const QString& where) {
    ASSERT_NE(w, nullptr) << where.toStdString();
    std::string what = (where + QStringLiteral(": ") + w->objectName()).toStdString();
    EXPECT_TRUE(w->isVisible()) << what << " is hidden";
    EXPECT_EQ(w->visibleRegion().boundingRect(), w->rect()) << what << " is cut off";
}

void ScreenTest::screenshot(const QString& name, std::initializer_list<const char*> controls) {
    QSize was = window->size();
    for (QSize size : {window->minimumSize(), QSize(1920, 1080)}) {
        window->resize(size);
        QApplication::processEvents();
        QString shot = QStringLiteral("%1_%2x%3").arg(name).arg(size.width()).arg(size.height());
        EXPECT_EQ(window->size(), size) << shot.toStdString();
        EXPECT_EQ(window->grab().deviceIndependentSize().toSize(), size) << shot.toStdString();
        for (const char* c : controls) expectWhole(findShown(c), shot);
        screenshotOf(window.get(), shot);
    }
    window->resize(was);
    QApplication::processEvents();
}

void ScreenTest::screenshotOf(QWidget* w, const QString& name) {
    QDir dir(QStringLiteral(TROVANE_SCREENSHOT_DIR));
    dir.mkpath(QStringLiteral("."));
    QApplication::processEvents();
    EXPECT_TRUE(w->grab().save(dir.filePath(name + QStringLiteral(".png"))));
}

int16_t addHartbeats(Game& g, uint8_t members, uint8_t reputation) {
    g.artist.rec = ArtistRecord{.forename = "Nia", .surname = "Hart", .male = -1, .energy = 100};
    const auto artist = static_cast<int16_t>(g.artist.append());
    const uint8_t r = reputation;
    g.band.rec = BandRecord{
        .name = "The Hartbeats", .label = g.player.playerLabel, .memberCount = members, .reputation = {r, r, r, r, r}};
    for (std::size_t i = 0; i < members; ++i) g.band->members[i] = artist;
    const auto band = static_cast<int16_t>(g.band.append());
    amend(g.artist, artist, [&] { g.artist->band = band; });
    return band;
}

int16_t addMarshAct(Game& g, const std::string& name, int16_t label) {
    std::array<int16_t, 10> members{};
    for (int i = 0; i < 2; ++i) {
        g.artist.rec = ArtistRecord{.forename = i == 0 ? "Rae" : "Sol",
                                    .surname = "Marsh",
                                    .nickname = i == 0 ? "Sparky" : "",
                                    .age = static_cast<uint8_t>(24 + i),
                                    .male = i == 0 ? kFalse : kTrue,
                                    .band = static_cast<int16_t>(g.band.recordCount()),
                                    .energy = 100};
        members[static_cast<std::size_t>(i)] = static_cast<int16_t>(g.artist.append());
    }
    g.band.rec = BandRecord{.name = name,
                            .style = 1,
                            .label = label,
                            .memberCount = 2,
                            .members = members,
                            .reputation = {12, 3, 4, 2, 2},
                            .initialAdvance = moneyUnits(60'000),
                            .additionalAdvance = moneyUnits(60'000),
                            .optionLength = 18,
                            .additionalAdvanceCount = 3,
                            .royaltyRate = 10};
    return static_cast<int16_t>(g.band.append());
}

int16_t addVenue(Game& g, const std::string& name, int16_t city, int32_t capacity) {
    g.venue.rec = VenueRecord{.name = name, .capacity = capacity, .city = city};
    return static_cast<int16_t>(g.venue.append());
}

QStringList ScreenTest::cells(const QTableWidget* t, int row, std::initializer_list<int> columns) {
    QStringList out;
    for (int c : columns) out << (t->item(row, c) ? t->item(row, c)->text() : QStringLiteral("<none>"));
    return out;
}

QStringList ScreenTest::items(const QListWidget* l) {
    EXPECT_NE(l, nullptr);
    QStringList out;
    for (int i = 0; l && i < l->count(); ++i) out << l->item(i)->text();
    return out;
}

QStringList ScreenTest::texts(std::initializer_list<const char*> labels) const {
    QStringList out;
    for (const char* name : labels)
        if (auto* l = find<QLabel>(name)) out << l->text();
    return out;
}

}  // namespace trovane::test
