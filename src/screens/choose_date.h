#pragma once
// frmChooseDate: a month of the band's calendar, on which a day for an
// appearance is picked. Days the band is busy cannot be chosen.
#include <QDialog>
#include <array>

#include "schedule/band_calendar.h"

class QGridLayout;
class QLabel;
class QPushButton;

namespace trovane::screens {

class mdiParentForm;

class frmChooseDate : public QDialog {
    Q_OBJECT
public:
    // For the band in the band buffer; mode 1 opens on next month, mode 2 six weeks on.
    // With `earliest` set, no day before it can be chosen and the calendar opens
    // on its month.
    frmChooseDate(mdiParentForm& main, int mode, double earliest = 0);

    QLabel* lblMonth;
    QLabel* lblYear;
    QPushButton* cmdMonthLeft;
    QPushButton* cmdMonthRight;
    QPushButton* cmdYearLeft;
    QPushButton* cmdYearRight;
    std::array<QPushButton*, 31> lblDayOfMonth{};  // each holds its day label and its lblEvent
    std::array<QLabel*, 31> lblEvent{};

    CalendarMonth month() const { return month_; }

signals:
    // A free day was clicked: the date goes back to the screen that asked.
    void dateChosen(double date);

private:
    void updateSchedule();
    void step(int months);
    void choose(unsigned day);

    mdiParentForm& main_;
    CalendarMonth month_;
    MonthCalendarView view_;
    double earliest_ = 0;
    std::array<QLabel*, 31> dayText_{};
    QGridLayout* grid_ = nullptr;
};

}  // namespace trovane::screens
