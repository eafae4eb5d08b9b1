#include "screens/details_extra_screens.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "browse/achievement_browse.h"
#include "events/scores.h"
#include "floor/formats.h"
#include "live/venue_details.h"
#include "screens/glyphs.h"
#include "screens/screen_page.h"
#include "screens/theme.h"
#include "world/game.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

QTableWidget* readOnlyTable(const QStringList& headers, QWidget* parent) {
    auto* t = new QTableWidget(0, static_cast<int>(headers.size()), parent);
    t->setHorizontalHeaderLabels(headers);
    t->verticalHeader()->hide();
    t->setEditTriggers(QAbstractItemView::NoEditTriggers);
    t->setSelectionBehavior(QAbstractItemView::SelectRows);
    t->setSelectionMode(QAbstractItemView::SingleSelection);
    return t;
}

QTableWidgetItem* rightAligned(const QString& text) {
    auto* item = new QTableWidgetItem(text);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

// The dialog's frame: margins, and an Ok button at the bottom right.
}  // namespace

frmVenueCard::frmVenueCard(Game& g, int16_t venue, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmVenueCard"));
    const VenueDetails d = venueDetails(g, venue);
    setWindowTitle(qs(d.name));
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(24, 20, 24, 18);
    l->setSpacing(12);
    lblName = makeBody(qs(d.name), this);
    lblName->setObjectName(QStringLiteral("lblName"));
    l->addWidget(lblName);
    QStringList place;
    for (const std::string& part : {d.city, d.country})
        if (!part.empty()) place << qs(part);
    if (!place.isEmpty()) place.last() += QStringLiteral("   ");
    auto* facts =
        makeBody(place.join(QStringLiteral(", ")) +
                     tr("Capacity %1   Rating %2").arg(qs(formatNumber(d.capacity, "###,###,##0"))).arg(d.rating),
                 this);
    facts->setObjectName(QStringLiteral("lblFacts"));
    l->addWidget(facts);
    flxGigs = readOnlyTable({tr("Date"), tr("Headliner"), tr("Attendance"), tr("Quality")}, this);
    flxGigs->setObjectName(QStringLiteral("flxGigs"));
    flxGigs->setRowCount(static_cast<int>(d.gigs.size()));
    for (std::size_t i = 0; i < d.gigs.size(); ++i) {
        const int at = static_cast<int>(i);
        flxGigs->setItem(at, 0, new QTableWidgetItem(qs(formatDate(d.gigs[i].date, "d/m/yyyy"))));
        flxGigs->setItem(at, 1, new QTableWidgetItem(qs(d.gigs[i].headliner)));
        flxGigs->setItem(at, 2, rightAligned(qs(formatNumber(d.gigs[i].attendance, "###,###,##0"))));
        flxGigs->setItem(at, 3, rightAligned(QStringLiteral("%1%").arg(d.gigs[i].quality)));
    }
    flxGigs->resizeColumnsToContents();
    flxGigs->horizontalHeader()->setStretchLastSection(true);
    flxGigs->setMinimumSize(520, 260);
    l->addWidget(flxGigs, 1);
    cmdOk = addOkRow(this, l);
}

frmHighScoreTable::frmHighScoreTable(Game& g, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmHighScoreTable"));
    setWindowTitle(tr("Hall of Fame"));
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(24, 20, 24, 18);
    l->setSpacing(12);
    flxScores = readOnlyTable({tr("Pos"), tr("Score"), tr("Player"), tr("Label")}, this);
    flxScores->setObjectName(QStringLiteral("flxScores"));
    const std::vector<HighScoreRow> rows = highScoreRows(g);
    flxScores->setRowCount(static_cast<int>(rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const int at = static_cast<int>(i);
        const bool ours = rows[i].game == g.player.gameNumber && g.player.gameNumber != 0;
        QTableWidgetItem* cells[4] = {rightAligned(QString::number(rows[i].position)),
                                      rightAligned(qs(formatNumber(rows[i].score, "###,###,##0"))),
                                      new QTableWidgetItem(qs(rows[i].player)),
                                      new QTableWidgetItem(qs(rows[i].label))};
        for (int c = 0; c < 4; ++c) {
            if (ours) {
                QFont f = cells[c]->font();
                f.setBold(true);
                cells[c]->setFont(f);
                cells[c]->setForeground(QColor(palette::accent));
                cells[c]->setToolTip(tr("This career"));
            }
            flxScores->setItem(at, c, cells[c]);
        }
        if (ours) markedRow = at;
    }
    flxScores->resizeColumnsToContents();
    flxScores->horizontalHeader()->setStretchLastSection(true);
    flxScores->setMinimumSize(560, 300);
    if (markedRow >= 0) flxScores->selectRow(markedRow);
    l->addWidget(flxScores, 1);
    cmdOk = addOkRow(this, l);
}

frmBirthday::frmBirthday(Game& g, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmBirthday"));
    const BirthdayNote note = birthdayNote(g);
    setWindowTitle(qs(note.title));
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(28, 22, 28, 18);
    l->setSpacing(14);
    lblTitle = makeBody(qs(note.title), this);
    lblTitle->setObjectName(QStringLiteral("lblTitle"));
    QFont big = lblTitle->font();
    big.setPointSizeF(big.pointSizeF() * 1.4);
    big.setBold(true);
    lblTitle->setFont(big);
    l->addWidget(lblTitle);
    lblText = makeBody(qs(note.text), this);
    lblText->setObjectName(QStringLiteral("lblText"));
    lblText->setWordWrap(true);
    lblText->setMinimumWidth(420);
    lblText->setTextFormat(Qt::PlainText);
    l->addWidget(lblText, 1);
    cmdOk = addOkRow(this, l);
}

QListWidget* achievementList(Game& g, int kind, int16_t who, QWidget* parent) {
    auto* list = new QListWidget(parent);
    list->setObjectName(QStringLiteral("lstAchievements"));
    for (const AchievementRow& r : achievementsOf(g, kind, who))
        list->addItem(qs(formatDate(r.date, "d/m/yyyy") + "   " + r.text));
    if (list->count() == 0) list->addItem(QObject::tr("No achievements yet."));
    return list;
}

QDialog* confirmImageAnalysis(QWidget* parent, const QString& question, std::function<void()> onYes) {
    auto* dialog = new QDialog(parent);
    dialog->setObjectName(QStringLiteral("frmConfirm"));
    dialog->setWindowTitle(QObject::tr("Confirm Image Analysis"));
    dialog->setModal(true);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    auto* l = new QVBoxLayout(dialog);
    l->setContentsMargins(28, 24, 28, 20);
    l->setSpacing(18);
    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    auto* icon = new QLabel(dialog);
    icon->setPixmap(glyphPixmap(Glyph::help, palette::accent, 40, dialog->devicePixelRatioF()));
    top->addWidget(icon, 0, Qt::AlignTop);
    QLabel* text = makeBody(question, dialog);
    text->setObjectName(QStringLiteral("lblQuestion"));
    text->setWordWrap(true);
    text->setMinimumWidth(360);
    top->addWidget(text, 1);
    l->addLayout(top);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    QPushButton* no = makeButton(QStringLiteral("cmdNo"), QObject::tr("No"), Glyph::no, ButtonRole::secondary, dialog);
    QPushButton* yes = makeButton(QStringLiteral("cmdYes"), QObject::tr("Yes"), Glyph::ok, ButtonRole::primary, dialog);
    no->setDefault(true);
    buttons->addWidget(no);
    buttons->addWidget(yes);
    l->addLayout(buttons);
    QObject::connect(yes, &QPushButton::clicked, dialog, &QDialog::accept);
    QObject::connect(no, &QPushButton::clicked, dialog, &QDialog::reject);
    QObject::connect(dialog, &QDialog::accepted, dialog, [onYes = std::move(onYes)] { onYes(); });
    dialog->open();
    no->setFocus();
    return dialog;
}

}  // namespace trovane::screens
