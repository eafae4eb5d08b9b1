#include "screens/ceremony_details_screens.h"

#include <QFont>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "floor/formats.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"
#include "world/dates.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

QString nightText(double night) {
    return night > 0 ? qs(formatDate(night, "ddd d mmmm yyyy")) : QObject::tr("Not yet set");
}

QTableWidget* plainTable(int rows, const QStringList& headers, const char* name, QWidget* parent) {
    auto* t = new QTableWidget(rows, static_cast<int>(headers.size()), parent);
    t->setObjectName(QString::fromLatin1(name));
    t->setHorizontalHeaderLabels(headers);
    t->setEditTriggers(QAbstractItemView::NoEditTriggers);
    t->setSelectionBehavior(QAbstractItemView::SelectRows);
    t->setSelectionMode(QAbstractItemView::SingleSelection);
    t->verticalHeader()->hide();
    t->setAlternatingRowColors(true);
    t->setWordWrap(false);
    return t;
}

QTableWidgetItem* cell(const QString& text, bool number = false) {
    auto* item = new QTableWidgetItem(text);
    if (number) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

QLabel* fact(const QString& objectName, const QString& text, QWidget* parent) {
    QLabel* l = makeBody(text, parent);
    l->setObjectName(objectName);
    return l;
}

// What the awards list says of an award's last winner.
QString lastWinner(const CeremonyAward& a) {
    switch (a.state) {
    case AwardState::won: return qs(a.winner);
    case AwardState::notAwarded: return QObject::tr("Not awarded");
    case AwardState::nominated: return QObject::tr("Nominees in, winner to be announced");
    case AwardState::notJudged: break;
    }
    return QString();
}

}  // namespace

// ---------------------------------------------------------------- both pages

CeremonyPage::CeremonyPage(mdiParentForm& main, const QString& objectName, int16_t ceremony)
    : ScreenPage(main, objectName, tr("Award Ceremony")) {
    main_.guarded([&] { details_ = ceremonyDetails(main_.game(), ceremony); });
    titleLabel()->setText(qs(details_.name));
    cmdBack = makeButton(QStringLiteral("cmdBack"), tr("Back"), Glyph::back, ButtonRole::secondary, this);
    headingExtras()->addWidget(cmdBack, 0, Qt::AlignTop);
    connect(cmdBack, &QPushButton::clicked, this, [this] { goBack(); });
}

bool CeremonyPage::event(QEvent* e) {
    // Escape leaves the page rather than reaching the shell's panel shortcut.
    if (e->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(e)->key() == Qt::Key_Escape &&
        static_cast<QKeyEvent*>(e)->modifiers() == Qt::NoModifier) {
        e->accept();
        return true;
    }
    return ScreenPage::event(e);
}

void CeremonyPage::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape && e->modifiers() == Qt::NoModifier) {
        goBack();
        return;
    }
    ScreenPage::keyPressEvent(e);
}

// ---------------------------------------------------------------- this year

frmCeremonyDetails::frmCeremonyDetails(mdiParentForm& main, int16_t ceremony)
    : CeremonyPage(main, QStringLiteral("frmCeremonyDetails"), ceremony) {
    // The list it was opened from; the way back from the last night keeps it.
    const Screen from = main_.game().previousScreen;
    if (from != Screen::none && from != Screen::frmHistoricalCeremonyDetails) main_.ceremonyBackTo = from;
    const CeremonyDetails& d = details_;
    setSubtitle(d.country.empty()
                    ? tr("%n award(s)", nullptr, static_cast<int>(d.awards.size()))
                    : tr("Held in %1, %n award(s)", nullptr, static_cast<int>(d.awards.size())).arg(qs(d.country)));

    auto* facts = new Card(this);
    auto* row = new QHBoxLayout;
    row->setSpacing(24);
    lblNight = fact(QStringLiteral("lblNight"), nightText(d.night), facts);
    lblCountry = fact(QStringLiteral("lblCountry"), d.country.empty() ? tr("Unknown") : qs(d.country), facts);
    lblInvitation = fact(QStringLiteral("lblInvitation"), d.attending ? tr("Attending") : tr("Not attending"), facts);
    lblLastHeld = fact(QStringLiteral("lblLastHeld"), d.held > 0 ? QString::number(d.held) : tr("Never"), facts);
    row->addWidget(captioned(tr("Night"), lblNight, facts), 1);
    row->addWidget(captioned(tr("Country"), lblCountry, facts), 1);
    row->addWidget(captioned(tr("Invitation"), lblInvitation, facts), 1);
    row->addWidget(captioned(tr("Last held"), lblLastHeld, facts), 1);
    facts->content()->addLayout(row);
    body()->addWidget(facts);

    flxAwards = plainTable(static_cast<int>(d.awards.size()),
                           {tr("Award"), tr("For"), tr("Nominees"), tr("Last winner")}, "flxAwards", this);
    for (std::size_t i = 0; i < d.awards.size(); ++i) {
        const CeremonyAward& a = d.awards[i];
        const int r = static_cast<int>(i);
        flxAwards->setItem(r, 0, cell(qs(a.name)));
        flxAwards->setItem(r, 1, cell(qs(a.candidates)));
        flxAwards->setItem(r, 2, cell(a.nominees.empty() ? QString() : QString::number(a.nominees.size()), true));
        flxAwards->setItem(r, 3, cell(lastWinner(a)));
    }
    flxAwards->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    flxAwards->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    flxAwards->horizontalHeader()->setSectionResizeMode(3, QHeaderView::Stretch);
    if (d.awards.empty()) {
        auto* none = makeBody(tr("No awards are given at this ceremony."), this);
        none->setObjectName(QStringLiteral("lblNoAwards"));
        body()->addWidget(none);
        flxAwards->hide();
    }
    body()->addWidget(flxAwards, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    cmdLastYear =
        makeButton(QStringLiteral("cmdLastYear"), tr("&Last Night"), Glyph::calendar, ButtonRole::secondary, this);
    cmdLastYear->setToolTip(tr("The nominees and winners of the last night held"));
    buttons->addWidget(cmdLastYear);
    body()->addLayout(buttons);
    connect(cmdLastYear, &QPushButton::clicked, this, [this] {
        main_.ceremonyOnScreen = details_.ceremony;
        main_.openScreen(Screen::frmHistoricalCeremonyDetails);
    });
    flxAwards->setFocus();
}

void frmCeremonyDetails::goBack() {
    main_.game().previousScreen = main_.ceremonyBackTo;
    main_.returnToPreviousScreen();
}

// ---------------------------------------------------------------- last night

frmHistoricalCeremonyDetails::frmHistoricalCeremonyDetails(mdiParentForm& main, int16_t ceremony)
    : CeremonyPage(main, QStringLiteral("frmHistoricalCeremonyDetails"), ceremony) {
    const CeremonyDetails& d = details_;
    if (d.held < 1) {
        setSubtitle(tr("Last night held"));
        auto* card = new Card(this);
        lblNotHeld = makeBody(
            tr("The %1 has not been held yet, so there are no nominees or winners to show.").arg(qs(d.name)), card);
        lblNotHeld->setObjectName(QStringLiteral("lblNotHeld"));
        lblNotHeld->setWordWrap(true);
        card->content()->addWidget(lblNotHeld);
        body()->addWidget(card);
        body()->addStretch(1);
        cmdBack->setFocus();
        return;
    }
    setSubtitle(d.country.empty() ? tr("The %1 night").arg(d.held)
                                  : tr("The %1 night, in %2").arg(d.held).arg(qs(d.country)));
    int rows = 0;
    for (const CeremonyAward& a : d.awards)
        rows += a.state == AwardState::won ? static_cast<int>(a.nominees.size()) : 1;
    flxNominees =
        plainTable(rows, {tr("Award"), tr("Place"), tr("Nominee"), tr("Score"), tr("Result")}, "flxNominees", this);
    int r = 0;
    for (const CeremonyAward& a : d.awards) {
        flxNominees->setItem(r, 0, cell(qs(a.name)));
        if (a.state != AwardState::won) {
            // Only the winners' lists stand for the last night: a list judged
            // since is this year's, and no list means no one was eligible.
            flxNominees->setItem(r, 2,
                                 cell(a.state == AwardState::nominated
                                          ? tr("This year's nominations have replaced the %1 list").arg(d.held)
                                          : tr("Not awarded: no one was eligible")));
            ++r;
            continue;
        }
        for (std::size_t k = 0; k < a.nominees.size(); ++k, ++r) {
            const AwardNominee& n = a.nominees[k];
            if (k > 0) flxNominees->setItem(r, 0, cell(QString()));
            flxNominees->setItem(r, 1, cell(QString::number(k + 1), true));
            flxNominees->setItem(r, 2, cell(qs(n.name)));
            flxNominees->setItem(r, 3, cell(QString::number(n.score), true));
            flxNominees->setItem(r, 4, cell(n.winner ? tr("Winner") : QString()));
            if (n.winner)
                for (int c = 1; c < 5; ++c) {
                    QFont f = flxNominees->item(r, c)->font();
                    f.setBold(true);
                    flxNominees->item(r, c)->setFont(f);
                }
        }
    }
    flxNominees->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    flxNominees->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
    body()->addWidget(flxNominees, 1);
    flxNominees->setFocus();
}

void frmHistoricalCeremonyDetails::goBack() { main_.returnToPreviousScreen(); }

}  // namespace trovane::screens
