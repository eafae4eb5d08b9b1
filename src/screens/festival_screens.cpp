#include "screens/festival_screens.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "floor/formats.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"
#include "world/dates.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

// A number cell that sorts by its value, not its text.
class NumberItem : public QTableWidgetItem {
public:
    NumberItem(double value, const QString& text) : QTableWidgetItem(text), value_(value) {
        setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    bool operator<(const QTableWidgetItem& other) const override {
        if (auto* n = dynamic_cast<const NumberItem*>(&other)) return value_ < n->value_;
        return QTableWidgetItem::operator<(other);
    }

private:
    double value_;
};

QString dateText(double d) { return qs(formatDate(d, "d mmm yyyy")); }

QTableWidget* plainTable(int rows, const QStringList& headers, const char* name, QWidget* parent) {
    auto* t = new QTableWidget(rows, static_cast<int>(headers.size()), parent);
    t->setObjectName(QString::fromLatin1(name));
    t->setHorizontalHeaderLabels(headers);
    t->setEditTriggers(QAbstractItemView::NoEditTriggers);
    t->setSelectionBehavior(QAbstractItemView::SelectRows);
    t->setSelectionMode(QAbstractItemView::SingleSelection);
    t->verticalHeader()->hide();
    t->setAlternatingRowColors(true);
    t->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    return t;
}

}  // namespace

// ---------------------------------------------------------------- Festival
// Details

frmFestivalDetails::frmFestivalDetails(mdiParentForm& main, int16_t festival, bool lastYear)
    : ScreenPage(main, lastYear ? QStringLiteral("frmHistoricalFestivalDetails") : QStringLiteral("frmFestivalDetails"),
                 tr("Festival Details")) {
    int year = yearOf(main_.game().gameDate) - (lastYear ? 1 : 0);
    main_.guarded([&] { year_ = festivalYear(main_.game(), festival, year); });
    const FestivalYear& f = year_;
    titleLabel()->setText(qs(f.name));
    setSubtitle(tr("%1 in %2: %3, %4 style, prestige %5")
                    .arg(lastYear ? tr("Last year") : tr("This year"))
                    .arg(f.year)
                    .arg(qs(f.territory))
                    .arg(qs(f.style))
                    .arg(f.prestige));

    if (lastYear) {
        auto* card = new Card(this);
        lblReviewR = makeBody(f.reviewTitle.empty() ? tr("No review") : qs(f.reviewTitle), card);
        lblReviewR->setObjectName(QStringLiteral("lblReviewR"));
        card->content()->addWidget(captioned(tr("Review"), lblReviewR, card));
        body()->addWidget(card);
    }
    if (f.dayList.empty()) {
        auto* none = makeBody(tr("Not held in %1.").arg(f.year), this);
        none->setObjectName(QStringLiteral("lblNotHeld"));
        body()->addWidget(none);
    }
    int rows = 0;
    for (const FestivalDay& d : f.dayList) rows += std::max<int>(1, static_cast<int>(d.bill.size()));
    flxBill = plainTable(
        rows,
        {tr("Date"), tr("Venue"), tr("Place"), tr("Act"), tr("Label"), tr("Reputation"), tr("Crowd"), tr("Quality")},
        "flxBill", this);
    int row = 0;
    for (const FestivalDay& d : f.dayList) {
        const int first = row;
        auto put = [&](int col, QTableWidgetItem* item) { flxBill->setItem(row, col, item); };
        if (d.bill.empty()) {
            put(0, new QTableWidgetItem(dateText(d.date)));
            put(1, new QTableWidgetItem(qs(d.venue)));
            put(3, new QTableWidgetItem(tr("Bill not yet drawn up")));
            ++row;
        }
        for (std::size_t p = 0; p < d.bill.size(); ++p, ++row) {
            const FestivalAct& a = d.bill[p];
            put(0, new QTableWidgetItem(row == first ? dateText(d.date) : QString()));
            put(1, new QTableWidgetItem(row == first ? qs(d.venue) : QString()));
            put(2, new NumberItem(static_cast<double>(p + 1), QString::number(p + 1)));
            put(3, new QTableWidgetItem(qs(a.name)));
            put(4, new QTableWidgetItem(qs(a.label)));
            put(5, new NumberItem(a.reputation, QString::number(a.reputation)));
            bool head = row == first && d.played;
            put(6, new NumberItem(d.crowd, head ? qs(formatNumber(d.crowd, "###,###,##0")) : QString()));
            put(7, new NumberItem(d.overall, head ? QString::number(d.overall) : QString()));
        }
    }
    flxBill->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    flxBill->horizontalHeader()->setSectionResizeMode(3, QHeaderView::Stretch);
    body()->addWidget(flxBill, 1);
    if (!lastYear) {
        auto* buttons = new QHBoxLayout;
        buttons->addStretch(1);
        cmdLastYear = new QPushButton(tr("&Last Year"), this);
        cmdLastYear->setObjectName(QStringLiteral("cmdLastYear"));
        buttons->addWidget(cmdLastYear);
        body()->addLayout(buttons);
        connect(cmdLastYear, &QPushButton::clicked, this, [this, festival] {
            main_.festivalOnScreen = festival;
            main_.openScreen(Screen::frmHistoricalFestivalDetails);
        });
    }
    flxBill->setFocus();
}

frmHistoricalFestivalDetails::frmHistoricalFestivalDetails(mdiParentForm& main, int16_t festival)
    : frmFestivalDetails(main, festival, true) {}

}  // namespace trovane::screens
