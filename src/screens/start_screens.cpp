#include "screens/start_screens.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "floor/preferences.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/screen_page.h"
#include "screens/theme.h"

namespace trovane::screens {

frmQuellmarkGames::frmQuellmarkGames(mdiParentForm& main, QWidget* parent) : QWidget(parent), main_(main) {
    setObjectName(QStringLiteral("frmQuellmarkGames"));
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    auto* l = new QVBoxLayout(this);
    l->addStretch(3);
    picLogo = new QLabel(this);
    picLogo->setObjectName(QStringLiteral("picLogo"));
    picLogo->setPixmap(logoPixmap(96, devicePixelRatioF()));
    picLogo->setAlignment(Qt::AlignCenter);
    l->addWidget(picLogo);
    QLabel* line = makeSubtitle(tr("A game of the music business"), this);
    line->setAlignment(Qt::AlignCenter);
    line->setStyleSheet(QStringLiteral("color: %1; font-weight: normal;").arg(palette::mutedText.name()));
    l->addSpacing(10);
    l->addWidget(line);
    l->addStretch(4);
    QLabel* hint = makeCaption(tr("Press any key"), this);
    hint->setAlignment(Qt::AlignCenter);
    l->addWidget(hint);
    l->addSpacing(24);

    tmrLoad = new QTimer(this);
    tmrLoad->setSingleShot(true);
    tmrLoad->setInterval(2500);
    connect(tmrLoad, &QTimer::timeout, this, &frmQuellmarkGames::goOn);
    tmrLoad->start();
}

void frmQuellmarkGames::goOn() {
    tmrLoad->stop();
    if (!isVisible()) return;  // already closed: its timer must not pull the start form up again
    main_.showStartForm();
}

void frmQuellmarkGames::mousePressEvent(QMouseEvent*) { goOn(); }
void frmQuellmarkGames::keyPressEvent(QKeyEvent*) { goOn(); }
void frmQuellmarkGames::paintEvent(QPaintEvent*) { paintStageBackground(this); }

frmStartForm::frmStartForm(mdiParentForm& main, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("frmStartForm"));
    PrefsReport prefs;
    main.guarded([&] { prefs = readPrefs(main.game()); });

    auto* l = new QVBoxLayout(this);
    l->addStretch(3);
    auto* logo = new QLabel(this);
    logo->setPixmap(logoPixmap(72, devicePixelRatioF()));
    logo->setAlignment(Qt::AlignCenter);
    l->addWidget(logo);
    l->addSpacing(36);

    auto* column = new QVBoxLayout;
    column->setSpacing(12);
    btnStartNewGame =
        makeButton(QStringLiteral("btnStartNewGame"), tr("New Game"), Glyph::play, ButtonRole::primary, this);
    btnLoad = makeButton(QStringLiteral("btnLoad"), tr("Load Game"), Glyph::load, ButtonRole::secondary, this);
    btnQuit = makeButton(QStringLiteral("btnQuit"), tr("Quit"), Glyph::power, ButtonRole::secondary, this);
    for (QPushButton* b : {btnStartNewGame, btnLoad, btnQuit}) {
        b->setFixedWidth(300);
        b->setMinimumHeight(46);
        b->setAutoDefault(true);
        column->addWidget(b, 0, Qt::AlignHCenter);
    }
    l->addLayout(column);
    if (prefs.state == PrefsState::replaced) {
        // The settings file was damaged and has been put back as delivered: say so once.
        QLabel* note = makeBody(QString::fromStdString(prefs.message), this);
        note->setObjectName(QStringLiteral("lblPrefsNote"));
        note->setAlignment(Qt::AlignCenter);
        note->setMaximumWidth(560);
        note->setStyleSheet(QStringLiteral("color: %1;").arg(palette::accent.name()));
        l->addSpacing(18);
        l->addWidget(note, 0, Qt::AlignHCenter);
    }
    l->addStretch(4);
    QLabel* version = makeCaption(tr("Trovane 3"), this);
    version->setAlignment(Qt::AlignCenter);
    l->addWidget(version);
    l->addSpacing(18);

    connect(btnStartNewGame, &QPushButton::clicked, this, [&main] { main.showStartNewGame(true); });
    connect(btnLoad, &QPushButton::clicked, this, [&main] { main.showLoadFromStart(); });
    connect(btnQuit, &QPushButton::clicked, this, [&main] { main.close(); });
    setFocusProxy(btnStartNewGame);
}

void frmStartForm::paintEvent(QPaintEvent*) { paintStageBackground(this); }

}  // namespace trovane::screens
