#include "screens/choose_date.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>

#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"
#include "world/dates.h"

namespace trovane::screens {

namespace {

QPushButton* arrow(const char* name, const QString& caption, const QString& tip, QWidget* parent) {
    auto* b = new QPushButton(caption, parent);
    b->setObjectName(QString::fromLatin1(name));
    b->setToolTip(tip);
    b->setFixedWidth(48);
    b->setAutoDefault(false);
    return b;
}

}  // namespace

frmChooseDate::frmChooseDate(mdiParentForm& main, int mode, double earliest)
    : QDialog(&main), main_(main), earliest_(earliest) {
    setObjectName(QStringLiteral("frmChooseDate"));
    setWindowTitle(tr("Choose a Date"));
    setModal(true);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(24, 20, 24, 20);
    l->setSpacing(14);

    auto* header = new QHBoxLayout;
    cmdYearLeft = arrow("cmdYearLeft", QStringLiteral("«"), tr("A year back (Ctrl+Page Up)"), this);
    cmdMonthLeft = arrow("cmdMonthLeft", QStringLiteral("‹"), tr("A month back (Page Up)"), this);
    cmdMonthRight = arrow("cmdMonthRight", QStringLiteral("›"), tr("A month on (Page Down)"), this);
    cmdYearRight = arrow("cmdYearRight", QStringLiteral("»"), tr("A year on (Ctrl+Page Down)"), this);
    lblMonth = makeSubtitle(QString(), this);
    lblMonth->setObjectName(QStringLiteral("lblMonth"));
    lblYear = makeSubtitle(QString(), this);
    lblYear->setObjectName(QStringLiteral("lblYear"));
    header->addWidget(cmdYearLeft);
    header->addWidget(cmdMonthLeft);
    header->addStretch(1);
    header->addWidget(lblMonth);
    header->addWidget(lblYear);
    header->addStretch(1);
    header->addWidget(cmdMonthRight);
    header->addWidget(cmdYearRight);
    l->addLayout(header);

    auto* grid = new QGridLayout;
    grid->setSpacing(8);
    grid_ = grid;
    // Weeks run Monday to Sunday; the day cells are placed under their weekday by updateSchedule.
    const char* weekdays[7] = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
    for (int w = 0; w < 7; ++w) {
        QLabel* head = makeCaption(tr(weekdays[w]), this);
        head->setObjectName(QStringLiteral("lblWeekday%1").arg(w));
        head->setAlignment(Qt::AlignCenter);
        grid->addWidget(head, 0, w);
    }
    for (unsigned d = 1; d <= 31; ++d) {
        auto* cell = new QPushButton(this);
        cell->setObjectName(QStringLiteral("lblDayOfMonth%1").arg(d));
        cell->setProperty("role", "dayCell");
        cell->setAutoDefault(false);
        auto* inner = new QVBoxLayout(cell);
        inner->setContentsMargins(10, 6, 10, 6);
        inner->setSpacing(2);
        auto* day = new QLabel(cell);
        day->setStyleSheet(QStringLiteral("font-weight: 600; background: transparent;"));
        auto* event = new QLabel(cell);
        event->setObjectName(QStringLiteral("lblEvent%1").arg(d));
        event->setStyleSheet(QStringLiteral("color: %1; background: transparent;").arg(palette::mutedText.name()));
        for (QLabel* t : {day, event}) {
            t->setAttribute(Qt::WA_TransparentForMouseEvents);
            inner->addWidget(t);
        }
        std::size_t i = d - 1;
        lblDayOfMonth[i] = cell;
        lblEvent[i] = event;
        dayText_[i] = day;
        grid->addWidget(cell, 1 + static_cast<int>(i / 7), static_cast<int>(i % 7));
        connect(cell, &QPushButton::clicked, this, [this, d] { choose(d); });
    }
    l->addLayout(grid);

    auto* close = makeButton(QStringLiteral("cmdCancel"), tr("Cancel"), Glyph::no, ButtonRole::secondary, this);
    l->addWidget(close, 0, Qt::AlignRight);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdMonthLeft, &QPushButton::clicked, this, [this] { step(-1); });
    connect(cmdMonthRight, &QPushButton::clicked, this, [this] { step(1); });
    connect(cmdYearLeft, &QPushButton::clicked, this, [this] { step(-12); });
    connect(cmdYearRight, &QPushButton::clicked, this, [this] { step(12); });
    struct Key {
        QKeySequence key;
        int months;
    };
    for (Key k :
         {Key{QKeySequence(Qt::Key_PageUp), -1}, Key{QKeySequence(Qt::Key_PageDown), 1},
          Key{QKeySequence(Qt::CTRL | Qt::Key_PageUp), -12}, Key{QKeySequence(Qt::CTRL | Qt::Key_PageDown), 12}})
        connect(new QShortcut(k.key, this), &QShortcut::activated, this, [this, k] { step(k.months); });

    month_ = firstCalendarMonth(main.game(), mode);
    if (earliest_ > 0) {
        const CivilDate c = civilFromSerial(earliest_);
        month_ = CalendarMonth{c.year, c.month};
    }
    updateSchedule();
    for (std::size_t i = 0; i < 31; ++i)
        if (view_.cells[i].choosable) {
            lblDayOfMonth[i]->setFocus();
            break;
        }
}

void frmChooseDate::step(int months) {
    month_ = stepCalendarMonth(month_, months);
    updateSchedule();
}

// underlineDates as well: every cell shows its day and what the band does on it.
void frmChooseDate::updateSchedule() {
    if (!main_.guarded([this] { view_ = monthCalendar(main_.game(), month_); })) return;
    for (CalendarCell& c : view_.cells)
        if (c.date < earliest_) c.choosable = false;
    lblMonth->setText(QString::fromStdString(view_.monthText));
    lblYear->setText(QString::fromStdString(view_.yearText));
    // Sunday is weekday 1: Monday-first columns put it last.
    int lead = (weekdayOf(view_.cells[0].date) + 5) % 7;
    for (std::size_t i = 0; i < 31; ++i) {
        int at = lead + static_cast<int>(i);
        grid_->removeWidget(lblDayOfMonth[i]);
        grid_->addWidget(lblDayOfMonth[i], 1 + at / 7, at % 7);
    }
    for (std::size_t i = 0; i < 31; ++i) {
        const CalendarCell& c = view_.cells[i];
        QString activity = QString::fromStdString(c.activity);
        dayText_[i]->setText(QString::fromStdString(c.dayText));
        lblEvent[i]->setText(activity);
        lblDayOfMonth[i]->setToolTip(activity);
        lblDayOfMonth[i]->setVisible(c.visible);
        // A busy day stays readable, marked in amber; a click on it does nothing.
        bool busy = c.visible && !c.choosable;
        lblDayOfMonth[i]->setProperty("busy", busy);
        lblDayOfMonth[i]->setCursor(busy ? Qt::ForbiddenCursor : Qt::PointingHandCursor);
        lblDayOfMonth[i]->style()->unpolish(lblDayOfMonth[i]);
        lblDayOfMonth[i]->style()->polish(lblDayOfMonth[i]);
        lblEvent[i]->setStyleSheet(QStringLiteral("color: %1; background: transparent;")
                                       .arg((busy ? palette::accent : palette::mutedText).name()));
    }
}

void frmChooseDate::choose(unsigned day) {
    std::optional<double> date = chooseCalendarDay(view_, day);
    if (!date) return;
    emit dateChosen(*date);
    accept();
}

}  // namespace trovane::screens
