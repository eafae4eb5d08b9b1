#include "screens/label_details_screen.h"

#include "screens/business_screens.h"

#include <QChart>
#include <QChartView>
#include <QDateTime>
#include <QDateTimeAxis>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineSeries>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

#include "floor/formats.h"
#include "label/departments.h"
#include "screens/details_extra_screens.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"
#include "world/dates.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

QString money(const Game& g, Money m) { return qs(formatMoney(g, m, "###,###,###,##0")); }

constexpr const char* kMarkets[5] = {"UK", "US", "Europe", "Oceania", "Global"};
constexpr const char* kReputationNames[5] = {"lblUkReputationR", "lblUsReputationR", "lblEuroReputationR",
                                             "lblAusReputationR", "lblGlobalReputationR"};

QLabel* figure(const char* name, QWidget* parent) {
    auto* l = makeBody(QString(), parent);
    l->setWordWrap(false);
    l->setObjectName(QString::fromLatin1(name));
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return l;
}

QTableWidget* plainTable(const char* name, QWidget* parent) {
    auto* t = new QTableWidget(parent);
    t->setObjectName(QString::fromLatin1(name));
    t->setEditTriggers(QAbstractItemView::NoEditTriggers);
    t->setSelectionBehavior(QAbstractItemView::SelectRows);
    t->verticalHeader()->hide();
    t->setAlternatingRowColors(true);
    return t;
}

QTableWidgetItem* amountItem(const QString& text) {
    auto* item = new QTableWidgetItem(text);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

}  // namespace

frmLabelDetails::frmLabelDetails(mdiParentForm& main, int16_t label)
    : ScreenPage(main, QStringLiteral("frmLabelDetails"), QString(), nullptr), label_(label) {
    tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("tabLabel"));
    body()->addWidget(tabs, 1);
    main_.guarded([&] { details_ = labelDetails(main_.game(), label_); });
    tabs->addTab(detailsTab(), tr("Details"));
    tabs->addTab(financesTab(), tr("Finances"));
    tabs->addTab(departmentsTab(), tr("Departments"));
    // The player's own studios, plants and distribution firms, and building more.
    if (label_ == main_.game().player.playerLabel) tabs->addTab(new LabelFacilities(main_, tabs), tr("Facilities"));
    main_.guarded([&] { tabs->addTab(achievementList(main_.game(), 2, label_, tabs), tr("Achievements")); });
    fill();
}

QWidget* frmLabelDetails::detailsTab() {
    auto* page = new QWidget(this);
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(16, 16, 16, 16);
    grid->setHorizontalSpacing(28);
    grid->setVerticalSpacing(14);
    lblFormedR = figure("lblFormedR", page);
    lblBossR = figure("lblBossR", page);
    lblGenreR = figure("lblGenreR", page);
    lblIndependenceR = figure("lblIndependenceR", page);
    lblBandsR = figure("lblBandsR", page);
    lblLabelPointsR = figure("lblLabelPointsR", page);
    lblSalesR = figure("lblSalesR", page);
    lblChartsR = figure("lblChartsR", page);
    grid->addWidget(captioned(tr("Formed"), lblFormedR, page), 0, 0);
    grid->addWidget(captioned(tr("Boss"), lblBossR, page), 0, 1);
    grid->addWidget(captioned(tr("Genre"), lblGenreR, page), 1, 0);
    grid->addWidget(captioned(tr("Independence"), lblIndependenceR, page), 1, 1);
    grid->addWidget(captioned(tr("Bands"), lblBandsR, page), 2, 0);
    grid->addWidget(captioned(tr("Label Points"), lblLabelPointsR, page), 2, 1);
    auto* reps = new QWidget(page);
    auto* rl = new QHBoxLayout(reps);
    rl->setContentsMargins(0, 0, 0, 0);
    rl->setSpacing(22);
    for (int m = 0; m < 5; ++m) {
        lblReputationR[static_cast<std::size_t>(m)] = figure(kReputationNames[m], reps);
        rl->addWidget(captioned(tr(kMarkets[m]), lblReputationR[static_cast<std::size_t>(m)], reps));
    }
    rl->addStretch(1);
    grid->addWidget(captioned(tr("Reputation"), reps, page), 3, 0, 1, 2);
    grid->addWidget(captioned(tr("Sales (singles, albums by market)"), lblSalesR, page), 4, 0, 1, 2);
    grid->addWidget(captioned(tr("Chart Counts"), lblChartsR, page), 5, 0, 1, 2);
    grid->setRowStretch(6, 1);
    grid->setColumnStretch(2, 1);
    return page;
}

QWidget* frmLabelDetails::financesTab() {
    auto* page = new QWidget(this);
    auto* l = new QHBoxLayout(page);
    l->setContentsMargins(12, 12, 12, 12);
    l->setSpacing(16);
    flxBalanceSheet = plainTable("flxBalanceSheet", page);
    flxBalanceSheet->setColumnCount(4);
    flxBalanceSheet->setHorizontalHeaderLabels({QString(), tr("This Month"), tr("Last Month"), tr("This Year")});
    flxBalanceSheet->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    flxBalanceSheet->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    l->addWidget(flxBalanceSheet, 3);

    auto* right = new QVBoxLayout;
    flxHistory = plainTable("flxHistory", page);
    flxHistory->setColumnCount(4);
    flxHistory->setHorizontalHeaderLabels({tr("Date"), tr("Income"), tr("Expenses"), tr("Cash")});
    flxHistory->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    flxHistory->setSortingEnabled(false);
    right->addWidget(flxHistory, 1);
    auto* view = new QChartView(page);
    view->setObjectName(QStringLiteral("chtCash"));
    view->setRenderHint(QPainter::Antialiasing);
    view->setMinimumHeight(200);
    chtCash = view;
    right->addWidget(view, 1);
    l->addLayout(right, 4);
    return page;
}

QWidget* frmLabelDetails::departmentsTab() {
    auto* page = new QWidget(this);
    auto* l = new QHBoxLayout(page);
    l->setContentsMargins(12, 12, 12, 12);
    l->setSpacing(20);
    lstDepartments = new QListWidget(page);
    lstDepartments->setObjectName(QStringLiteral("lstDepartments"));
    for (auto name : kDepartmentNames) lstDepartments->addItem(QString::fromUtf8(name.data(), qsizetype(name.size())));
    lstDepartments->setMaximumWidth(240);
    lstDepartments->setSpacing(3);
    l->addWidget(lstDepartments);

    auto* right = new QVBoxLayout;
    right->setSpacing(10);
    auto* levels = new QGridLayout;
    levels->setHorizontalSpacing(12);
    for (int i = 0; i < 5; ++i) {
        auto at = static_cast<std::size_t>(i);
        auto* slider = new QSlider(Qt::Horizontal, page);
        slider->setObjectName(QStringLiteral("sldNoOfEachAbility%1").arg(i));
        slider->setRange(0, kLevelBounds[at]);
        slider->setEnabled(false);
        sldNoOfEachAbility[at] = slider;
        lblNoOfEachAbility[at] = figure("", page);
        lblNoOfEachAbility[at]->setObjectName(QStringLiteral("lblNoOfEachAbility%1").arg(i));
        lblNoOfEachAbility[at]->setMinimumWidth(28);
        levels->addWidget(makeCaption(tr("Level %1").arg(i + 1), page), i, 0);
        levels->addWidget(slider, i, 1);
        levels->addWidget(lblNoOfEachAbility[at], i, 2);
        connect(slider, &QSlider::valueChanged, this,
                [this, at](int v) { lblNoOfEachAbility[at]->setText(QString::number(v)); });
    }
    right->addLayout(levels);
    lblQualityR = figure("lblQualityR", page);
    lblDepartmentBossR = figure("lblDepartmentBossR", page);
    lblWageBillR = figure("lblWageBillR", page);
    auto* facts = new QHBoxLayout;
    facts->setSpacing(28);
    facts->addWidget(captioned(tr("Quality"), lblQualityR, page));
    facts->addWidget(captioned(tr("Head of Department"), lblDepartmentBossR, page));
    facts->addWidget(captioned(tr("Wage Bill (per week)"), lblWageBillR, page));
    facts->addStretch(1);
    right->addLayout(facts);
    cmdHireFire =
        makeButton(QStringLiteral("cmdHireFire"), tr("Hire / Fire Staff"), Glyph::person, ButtonRole::primary, page);
    cmdHireFire->setEnabled(details_.playersOwn);
    if (!details_.playersOwn) cmdHireFire->setToolTip(tr("Only your own label's staff can be changed"));
    right->addWidget(cmdHireFire, 0, Qt::AlignLeft);
    right->addStretch(1);
    l->addLayout(right, 1);

    connect(lstDepartments, &QListWidget::currentRowChanged, this, [this](int d) {
        if (d >= 0) showDepartment(d);
    });
    connect(cmdHireFire, &QPushButton::clicked, this, &frmLabelDetails::hireFire);
    return page;
}

void frmLabelDetails::fill() {
    Game& g = main_.game();
    const LabelDetails& d = details_;
    titleLabel()->setText(qs(d.name));
    setSubtitle(d.playersOwn ? tr("Your label") : tr("A rival label"));
    lblLabelPointsR->setText(QStringLiteral("%1   (total %2)")
                                 .arg(QStringLiteral("%1, %2, %3, %4, %5")
                                          .arg(d.points[0])
                                          .arg(d.points[1])
                                          .arg(d.points[2])
                                          .arg(d.points[3])
                                          .arg(d.points[4]))
                                 .arg(d.pointsTotal));
    for (std::size_t m = 0; m < 5; ++m) lblReputationR[m]->setText(qs(d.reputation[m]));
    lblFormedR->setText(d.age <= 0   ? tr("%1, this year").arg(qs(d.city))
                        : d.age == 1 ? tr("%1, a year ago").arg(qs(d.city))
                                     : tr("%1, %2 years ago").arg(qs(d.city)).arg(d.age));
    lblBossR->setText(qs(d.boss));
    lblGenreR->setText(qs(d.style));
    lblIndependenceR->setText(qs(d.independence));
    lblBandsR->setText(QString::number(d.bands));
    QStringList sales, charts;
    for (std::size_t m = 0; m < 5; ++m)
        sales << QStringLiteral("%1 %2 / %3").arg(tr(kMarkets[m])).arg(d.salesTotals[m]).arg(d.salesTotals[m + 5]);
    for (int16_t c : d.chartCounts) charts << QString::number(c);
    lblSalesR->setText(sales.join(QStringLiteral("   ")));
    lblChartsR->setText(charts.join(QStringLiteral("  ")));

    std::array<BooksColumn, 3> books;
    std::vector<HistoryRow> history;
    main_.guarded([&] {
        books = labelBooks(g, label_);
        history = labelHistory(g, label_);
    });
    flxBalanceSheet->setRowCount(0);
    auto addRow = [&](const QString& name, auto value, bool total) {
        int r = flxBalanceSheet->rowCount();
        flxBalanceSheet->insertRow(r);
        auto* head = new QTableWidgetItem(name);
        QFont f = head->font();
        f.setBold(total);
        head->setFont(f);
        flxBalanceSheet->setItem(r, 0, head);
        for (int c = 0; c < 3; ++c) {
            auto* item = amountItem(money(g, value(books[static_cast<std::size_t>(c)])));
            item->setFont(f);
            flxBalanceSheet->setItem(r, c + 1, item);
        }
    };
    for (std::size_t i = 0; i < 5; ++i)
        addRow(
            tr(kIncomeRows[i]), [i](const BooksColumn& c) { return c.income[i]; }, false);
    addRow(
        tr("Total Income"), [](const BooksColumn& c) { return c.incomeTotal; }, true);
    for (std::size_t i = 0; i < 8; ++i)
        addRow(
            tr(kExpenseRows[i]), [i](const BooksColumn& c) { return c.expense[i]; }, false);
    addRow(
        tr("Total Expenses"), [](const BooksColumn& c) { return c.expenseTotal; }, true);

    flxHistory->setRowCount(static_cast<int>(history.size()));
    auto* series = new QLineSeries;
    series->setName(tr("Cash"));
    double lowest = 0, highest = 0;
    for (std::size_t i = 0; i < history.size(); ++i) {
        const HistoryRow& h = history[i];
        const int r = static_cast<int>(i);
        flxHistory->setItem(r, 0, new QTableWidgetItem(qs(formatDate(h.date, "d mmm yyyy"))));
        flxHistory->setItem(r, 1, amountItem(money(g, h.figures.incomeTotal)));
        flxHistory->setItem(r, 2, amountItem(money(g, h.figures.expenseTotal)));
        flxHistory->setItem(r, 3, amountItem(money(g, h.cash)));
        const CivilDate c = civilFromSerial(h.date);
        const QDateTime when(QDate(c.year, static_cast<int>(c.month), static_cast<int>(c.day)), QTime(12, 0));
        const double cash = moneyToDouble(h.cash);
        series->append(static_cast<qreal>(when.toMSecsSinceEpoch()), cash);
        lowest = i == 0 ? cash : std::min(lowest, cash);
        highest = i == 0 ? cash : std::max(highest, cash);
    }
    auto* chart = new QChart;
    chart->addSeries(series);
    chart->legend()->hide();
    chart->setTitle(tr("Cash at each close of the books"));
    chart->setBackgroundBrush(palette::surface);
    chart->setTitleBrush(palette::text);
    series->setPen(QPen(palette::accent, 2.5));
    series->setPointsVisible(true);
    auto* x = new QDateTimeAxis;
    x->setFormat(QStringLiteral("d MMM yy"));
    x->setLabelsBrush(palette::mutedText);
    auto* y = new QValueAxis;
    y->setLabelFormat(QStringLiteral("%.0f"));
    y->setLabelsBrush(palette::mutedText);
    // A flat line still gets a readable scale around it.
    const double margin = std::max({1.0, (highest - lowest) * 0.1, std::abs(highest) * 0.05});
    y->setRange(lowest - margin, highest + margin);
    if (!history.empty()) {
        const auto msOf = [](double serial) {
            const CivilDate c = civilFromSerial(serial);
            return QDateTime(QDate(c.year, static_cast<int>(c.month), static_cast<int>(c.day)), QTime(12, 0));
        };
        QDateTime first = msOf(history.front().date), last = msOf(history.back().date);
        if (first == last) {
            first = first.addDays(-15);
            last = last.addDays(15);
        }
        x->setRange(first, last);
    }
    chart->addAxis(x, Qt::AlignBottom);
    chart->addAxis(y, Qt::AlignLeft);
    series->attachAxis(x);
    series->attachAxis(y);
    auto* view = static_cast<QChartView*>(chtCash);
    QChart* old = view->chart();
    view->setChart(chart);
    delete old;

    const int row = lstDepartments->currentRow();
    if (row < 0)
        lstDepartments->setCurrentRow(0);
    else
        showDepartment(row);
}

void frmLabelDetails::showDepartment(int d) {
    const DepartmentView& v = details_.departments[static_cast<std::size_t>(d)];
    for (std::size_t i = 0; i < 5; ++i) {
        sldNoOfEachAbility[i]->setValue(v.levels[i]);
        lblNoOfEachAbility[i]->setText(QString::number(v.levels[i]));
    }
    lblQualityR->setText(qs(v.rating));
    lblDepartmentBossR->setText(qs(v.head));
    lblWageBillR->setText(money(main_.game(), details_.wageBill));
}

void frmLabelDetails::hireFire() {
    if (!details_.playersOwn) return;
    if (!unlocked_) {
        unlocked_ = true;
        for (QSlider* s : sldNoOfEachAbility) s->setEnabled(true);
        lstDepartments->setEnabled(false);
        cmdHireFire->setText(tr("Lock Staff"));
        return;
    }
    const int d = lstDepartments->currentRow();
    std::array<int, 5> levels{};
    for (std::size_t i = 0; i < 5; ++i) levels[i] = sldNoOfEachAbility[i]->value();
    const std::string why = checkDepartmentLevels(d, levels);
    if (!why.empty()) {
        main_.showRefusal(tr("Hire / Fire Staff"), qs(why));
        return;
    }
    main_.guarded([&] {
        setDepartmentLevels(main_.game(), d, levels);
        details_ = labelDetails(main_.game(), label_);
    });
    main_.refreshStatusBar();
    unlocked_ = false;
    for (QSlider* s : sldNoOfEachAbility) s->setEnabled(false);
    lstDepartments->setEnabled(true);
    cmdHireFire->setText(tr("Hire / Fire Staff"));
    showDepartment(d);
}

}  // namespace trovane::screens
