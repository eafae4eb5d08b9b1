#pragma once
// A game window on a tiny world in a fresh folder, and the moves a player makes.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <initializer_list>
#include <memory>

#include "screens/mdi_parent_form.h"
#include "support/temp_folder.h"
#include "support/tiny_world.h"
#include "world/game.h"

namespace trovane::test {

class ScreenTest : public ::testing::Test {
protected:
    TempFolder folder;
    std::unique_ptr<Game> game;
    std::unique_ptr<screens::mdiParentForm> window;
    int endedWith = -1;

    void SetUp() override;
    void TearDown() override;
    // A fresh window on the same data folder, as after a restart of the program.
    void restartProgram();

    template <class T = QWidget>
    T* find(const char* name) const {
        T* w = window->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(w, nullptr) << "no control named " << name;
        return w;
    }
    // The top-level dialog that is open now, by name, or null.
    template <class T = QWidget>
    T* dialog(const char* name) const {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->isVisible() && w->objectName() == QLatin1String(name)) return qobject_cast<T*>(w);
        return nullptr;
    }
    void click(const char* name);
    void click(QAbstractButton* b);
    bool waitFor(const std::function<bool()>& done, int ms = 5000);
    Screen screen() const { return game->currentScreen; }

    // Start form to the first news screen, founding "Nightjar Records" in London.
    void startNewGameAsPlayer();
    // One press of Continue, until the next screen is up.
    void continueOneDay();
    // PNGs of the window at its minimum size and at 1920x1080, for a person to look
    // at; at each size the picture is the size claimed and every named control is
    // shown whole (nothing of it cut off by the window or a parent).
    void screenshot(const QString& name, std::initializer_list<const char*> controls = {});
    void expectWhole(QWidget* w, const QString& where);
    // The control of that name that is on screen (hidden pages keep controls of the same names).
    QWidget* findShown(const char* name) const;
    void screenshotOf(QWidget* w, const QString& name);
    // The texts of a table's row at those columns ("<none>" for a missing cell).
    static QStringList cells(const QTableWidget* t, int row, std::initializer_list<int> columns);
    // The texts of a list's items (none for a missing list), and of the window's labels of those names.
    static QStringList items(const QListWidget* l);
    QStringList texts(std::initializer_list<const char*> labels) const;
};

}  // namespace trovane::test

namespace trovane::test {

// "The Hartbeats", signed to the player, at the reputation in every market:
// Nia Hart is each of its `members` members.
int16_t addHartbeats(Game& g, uint8_t members = 1, uint8_t reputation = 30);
int16_t addVenue(Game& g, const std::string& name, int16_t city, int32_t capacity);
// An act of two on the label (0: unsigned): Rae 'Sparky' Marsh, a woman, and Sol
// Marsh; it asks 60,000 and three 18-month options at 10 percent.
int16_t addMarshAct(Game& g, const std::string& name, int16_t label = 0);

}  // namespace trovane::test

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }
QT_END_NAMESPACE
