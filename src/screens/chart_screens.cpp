#include "screens/chart_screens.h"

#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineSeries>
#include <QPieSeries>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>
#include <QValueAxis>
#include <map>

#include "floor/formats.h"
#include "production/charts.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"
#include "world/dates.h"
#include "world/strings.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

enum Column { colPos, colMove, colTitle, colBand, colLabel, colSales, colAward, colLast, colPeak, colWeeks, colEntry };
const char* kHeaders[] = {"Pos",   "Move",      "Title", "Artist", "Label", "Sales",
                          "Award", "Last Week", "Peak",  "Weeks",  "Entry"};

// The holders in the order of the labels that show them.
struct RecordLabel {
    const char* name;
    const char* caption;
    std::size_t holder;
};
constexpr RecordLabel kRecordLabels[] = {
    {"lblMostTotalSalesR", "Most copies sold by an act", 0},
    {"lblBiggestSellerR", "Biggest seller", 1},
    {"lblMostWeeklySalesR", "Most copies in a week", 2},
    {"lblMostNumber1sR", "Most number ones", 3},
    {"lblMostAnnualSalesR", "Most copies, lifetime", 4},
    {"lblMostWeeksOnChartDiscR", "Most weeks on chart, any position", 5},
    {"lblMostWeeksOnChartR", "Most weeks on chart", 6},
    {"lblMostWeeksOnChartBandR", "Most weeks of an act", 7},
    {"lblMostWeeksOnChartLabelR", "Most weeks of a label", 8},
    {"lblMostDiscPointsAllR", "Most disc points, any position", 9},
    {"lblMostDiscPointsR", "Most disc points", 10},
    {"lblMostBandPointsR", "Most points of an act", 11},
    {"lblMostLabelPointsR", "Most points of a label", 12},
    {"lblYoungestChartTopperR", "Youngest solo number one (days)", 13},
    {"lblOldestChartTopperR", "Oldest solo number one (days)", 14},
    {"lblMostTotalSalesLabelR", "Most copies by a label", 15},
    {"lblMostWeeklySalesLabelR", "Most copies by a label in a week", 16},
    {"lblHighestBandPercentageR", "Highest share of a week, act", 17},
    {"lblHighestDiscPercentageR", "Highest share of a week, disc", 18},
    {"lblHighestLabelPercentageR", "Highest share of a week, label", 19},
};

QChartView* makeChartView(const char* name, QWidget* parent) {
    auto* view = new QChartView(new QChart(), parent);
    view->setObjectName(QString::fromLatin1(name));
    view->setRenderHint(QPainter::Antialiasing);
    view->chart()->setBackgroundBrush(palette::surface);
    view->chart()->setTitleBrush(palette::text);
    view->chart()->legend()->setLabelColor(palette::text);
    view->setMinimumHeight(220);
    return view;
}

}  // namespace

// ---------------------------------------------------------------- the model

void ChartEntriesModel::setLines(std::vector<ChartLine> lines) {
    beginResetModel();
    lines_ = std::move(lines);
    endResetModel();
}

int ChartEntriesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}
int ChartEntriesModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : 11; }

QVariant ChartEntriesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const ChartLine& l = lines_[static_cast<std::size_t>(index.row())];
    if (role == Qt::UserRole) {
        switch (index.column()) {
        case colPos: return l.e.position;
        case colMove: return l.e.lastWeek;
        case colSales: return l.e.sales;
        case colLast: return l.e.lastWeek;
        case colPeak: return l.e.peak;
        case colWeeks: return l.e.weeks;
        default: break;
        }
        return data(index, Qt::DisplayRole);
    }
    if (role == Qt::TextAlignmentRole && (index.column() == colSales || index.column() <= colMove))
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    switch (index.column()) {
    case colPos: return l.e.position;
    case colMove: return qs(l.e.movement);
    case colTitle: return qs(l.title);
    case colBand: return qs(l.band);
    case colLabel: return qs(l.label);
    case colSales: return qs(formatNumber(l.e.sales, "###,###,##0"));
    case colAward: return qs(l.award);
    case colLast: return l.e.lastWeek == 0 ? QString() : QString::number(l.e.lastWeek);
    case colPeak: return l.e.peak;
    case colWeeks: return l.e.weeks;
    case colEntry: return qs(l.e.entry);
    default: return {};
    }
}

QVariant ChartEntriesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section > 10) return {};
    return QString::fromLatin1(kHeaders[section]);
}

// ---------------------------------------------------------------- the form

frmChartForm::frmChartForm(mdiParentForm& main, QWidget* parent)
    : ScreenPage(main, QStringLiteral("frmChartForm"), QStringLiteral("Charts"), parent),
      model_(new ChartEntriesModel(this)),
      proxy_(new QSortFilterProxyModel(this)),
      styles_(new QStandardItemModel(this)) {
    cmbChart = new ComboBox(this);
    cmbChart->setObjectName(QStringLiteral("cmbChart"));
    for (int n = 0; n < kChartCount; ++n) cmbChart->addItem(QString::fromLatin1(chartTitle(n)));
    cmbWeek = new ComboBox(this);
    cmbWeek->setObjectName(QStringLiteral("cmbWeek"));
    cmdExportCSV = makeButton(QStringLiteral("cmdExportCSV"), QStringLiteral("Export CSV"), Glyph::save);
    headingExtras()->addWidget(captioned(QStringLiteral("Chart"), cmbChart));
    headingExtras()->addWidget(captioned(QStringLiteral("Week"), cmbWeek));
    headingExtras()->addWidget(cmdExportCSV);

    lblTitle = makeSubtitle(QString(), this);
    lblTitle->setObjectName(QStringLiteral("lblTitle"));
    lblChartSizeR = makeCaption(QString(), this);
    lblChartSizeR->setObjectName(QStringLiteral("lblChartSizeR"));
    auto* titleRow = new QHBoxLayout;
    titleRow->addWidget(lblTitle);
    titleRow->addStretch();
    titleRow->addWidget(lblChartSizeR);
    body()->addLayout(titleRow);

    TabChartTab = new QTabWidget(this);
    TabChartTab->setObjectName(QStringLiteral("TabChartTab"));
    body()->addWidget(TabChartTab, 1);

    // The chart and the selected entry's run.
    auto* chartTab = new QWidget;
    auto* chartLayout = new QVBoxLayout(chartTab);
    flxEntries = new QTableView(chartTab);
    flxEntries->setObjectName(QStringLiteral("flxEntries"));
    proxy_->setSourceModel(model_);
    proxy_->setSortRole(Qt::UserRole);
    flxEntries->setModel(proxy_);
    flxEntries->setSortingEnabled(true);
    flxEntries->sortByColumn(colPos, Qt::AscendingOrder);
    flxEntries->setSelectionBehavior(QAbstractItemView::SelectRows);
    flxEntries->setSelectionMode(QAbstractItemView::SingleSelection);
    flxEntries->verticalHeader()->hide();
    flxEntries->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    flxEntries->horizontalHeader()->setSectionResizeMode(colTitle, QHeaderView::Stretch);
    flxEntries->horizontalHeader()->setSectionResizeMode(colBand, QHeaderView::Stretch);
    chartLayout->addWidget(flxEntries, 3);
    chrtRun = makeChartView("chrtRun", chartTab);
    chrtRun->setMinimumHeight(200);
    chartLayout->addWidget(chrtRun, 2);
    TabChartTab->addTab(chartTab, QStringLiteral("Chart"));

    auto* recordsTab = new QWidget;
    auto* grid = new QGridLayout(recordsTab);
    int i = 0;
    for (const RecordLabel& r : kRecordLabels) {
        auto* value = makeBody(QString(), recordsTab);
        value->setObjectName(QString::fromLatin1(r.name));
        value->setWordWrap(true);
        grid->addWidget(makeCaption(QString::fromLatin1(r.caption), recordsTab), i / 2, (i % 2) * 2);
        grid->addWidget(value, i / 2, (i % 2) * 2 + 1);
        recordLabels.push_back(value);
        ++i;
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    TabChartTab->addTab(recordsTab, QStringLiteral("Records"));

    chrtLabelSales = makeChartView("chrtLabelSales", this);
    TabChartTab->addTab(chrtLabelSales, QStringLiteral("Labels"));

    flxStyles = new QTableView(this);
    flxStyles->setObjectName(QStringLiteral("flxStyles"));
    flxStyles->setModel(styles_);
    flxStyles->setSortingEnabled(true);
    flxStyles->verticalHeader()->hide();
    flxStyles->horizontalHeader()->setStretchLastSection(true);
    TabChartTab->addTab(flxStyles, QStringLiteral("Styles"));

    connect(cmbChart, &QComboBox::currentIndexChanged, this, [this](int n) {
        if (!filling_ && n >= 0) showChart(n);
    });
    connect(cmbWeek, &QComboBox::currentIndexChanged, this, [this](int n) {
        if (!filling_ && n >= 0) showChart(chart_, cmbWeek->itemData(n).toDouble());
    });
    connect(flxEntries->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                if (!current.isValid()) return;
                QModelIndex source = proxy_->mapToSource(current);
                showRun(model_->lines()[static_cast<std::size_t>(source.row())].e.disc);
            });
    connect(cmdExportCSV, &QPushButton::clicked, this, [this] {
        QString path =
            QFileDialog::getSaveFileName(this, QStringLiteral("Export CSV"), QStringLiteral("chart%1.csv").arg(chart_),
                                         QStringLiteral("CSV files (*.csv)"));
        if (!path.isEmpty() && !exportCsv(path))
            main_.showRefusal(QStringLiteral("Export CSV"), QStringLiteral("The file could not be written."));
    });
    showChart(0);
}

void frmChartForm::showChart(int chart, double week) {
    Game& g = main_.game();
    chart_ = chart;
    double shown = 0;
    model_->setLines(publishedChart(g, chart, week, shown));
    week_ = shown;
    lblTitle->setText(QString::fromLatin1(chartTitle(chart)));
    lblChartSizeR->setText(QStringLiteral("Top %1").arg(publishedLength(chart)));
    filling_ = true;
    cmbChart->setCurrentIndex(chart);
    filling_ = false;
    fillWeeks();
    fillRecords();
    fillLabelSales();
    fillStyles();
    if (!model_->lines().empty())
        flxEntries->selectRow(0);
    else
        chrtRun->chart()->removeAllSeries();
}

void frmChartForm::fillWeeks() {
    filling_ = true;
    cmbWeek->clear();
    std::vector<double> weeks = chartWeeks(main_.game(), chart_);
    for (auto it = weeks.rbegin(); it != weeks.rend(); ++it) cmbWeek->addItem(qs(formatDate(*it, "d mmmm yyyy")), *it);
    if (weeks.empty()) cmbWeek->addItem(QStringLiteral("This week"), 0.0);
    int at = cmbWeek->findData(week_);
    cmbWeek->setCurrentIndex(at < 0 ? 0 : at);
    filling_ = false;
}

void frmChartForm::fillRecords() {
    Game& g = main_.game();
    ChartRecords rec{};
    if (g.chartrecs.recordCount() > chart_ + 1) {
        g.chartrecs.read(chart_ + 1);
        rec = g.chartrecs.rec;
    }
    for (std::size_t i = 0; i < recordLabels.size(); ++i) {
        const ChartHolder& h = rec.holder[kRecordLabels[i].holder];
        QString value = kRecordLabels[i].holder >= 17 ? QString::number(h.value / 100.0, 'f', 2) + QStringLiteral("%")
                                                      : qs(formatNumber(h.value, "###,###,##0"));
        recordLabels[i]->setText(h.value == 0 ? QStringLiteral("-")
                                              : qs(trim(h.text.value)) + QStringLiteral("  ") + value);
    }
}

void frmChartForm::fillLabelSales() {
    Game& g = main_.game();
    QChart* chart = chrtLabelSales->chart();
    chart->removeAllSeries();
    if (g.chartrecs.recordCount() <= chart_ + 1) return;
    g.chartrecs.read(chart_ + 1);
    const ChartRecords rec = g.chartrecs.rec;
    auto* pie = new QPieSeries;
    for (std::size_t s = 0; s < 100; ++s) {
        if (rec.labelSlot[s] == 0 || rec.labelSales[s] <= 0 || rec.labelSlot[s] >= g.label.recordCount()) continue;
        g.label.read(rec.labelSlot[s]);
        QString name =
            qs(trim(g.label->name.value)) + qs(" (" + formatNumber(rec.labelSales[s], "###,###,##0") + " sales)");
        pie->append(name, rec.labelSales[s]);
    }
    chart->addSeries(pie);
    chart->legend()->setAlignment(Qt::AlignRight);
}

void frmChartForm::fillStyles() {
    Game& g = main_.game();
    std::map<int16_t, int64_t> byStyle;
    for (const ChartLine& l : model_->lines()) byStyle[l.style] += l.e.sales;
    styles_->clear();
    styles_->setHorizontalHeaderLabels({QStringLiteral("Style"), QStringLiteral("Sales")});
    for (auto [style, sales] : byStyle) {
        QString name = QStringLiteral("Unknown");
        if (style > 0 && style < g.style.recordCount()) {
            g.style.read(style);
            name = qs(trim(g.style->name.value));
        }
        auto* figure = new QStandardItem(qs(formatNumber(static_cast<double>(sales), "###,###,##0")));
        figure->setData(static_cast<qlonglong>(sales), Qt::UserRole);
        styles_->appendRow({new QStandardItem(name), figure});
    }
    styles_->setSortRole(Qt::UserRole);
    styles_->sort(1, Qt::DescendingOrder);
}

void frmChartForm::showRun(int16_t disc) {
    QChart* chart = chrtRun->chart();
    chart->removeAllSeries();
    // A removed axis comes back to us to delete.
    for (QAbstractAxis* axis : chart->axes()) {
        chart->removeAxis(axis);
        delete axis;
    }
    auto* line = new QLineSeries;
    std::vector<RunWeek> run = discRun(main_.game(), disc);
    int week = 0;
    for (const RunWeek& w : run)
        if (w.chart == chart_) line->append(++week, w.position);
    chart->addSeries(line);
    auto* x = new QValueAxis;
    x->setTitleText(QStringLiteral("Week"));
    x->setLabelFormat(QStringLiteral("%d"));
    x->setRange(1, std::max(week, 2));
    x->setTickType(QValueAxis::TicksDynamic);
    x->setTickAnchor(1);
    x->setTickInterval(std::max(1, week / 8));
    auto* y = new QValueAxis;
    y->setTitleText(QStringLiteral("Position"));
    y->setLabelFormat(QStringLiteral("%d"));
    y->setRange(1, publishedLength(chart_));
    y->setReverse(true);
    for (QValueAxis* a : {x, y}) {
        a->setLabelsColor(palette::mutedText);
        a->setTitleBrush(palette::mutedText);
    }
    chart->addAxis(x, Qt::AlignBottom);
    chart->addAxis(y, Qt::AlignLeft);
    line->attachAxis(x);
    line->attachAxis(y);
    chart->legend()->hide();
    Game& g = main_.game();
    g.disc.read(disc);
    chart->setTitle(qs(trim(g.disc->title.value)));
}

bool frmChartForm::exportCsv(const QString& path) {
    std::vector<ChartLine> shown;
    for (int r = 0; r < proxy_->rowCount(); ++r)
        shown.push_back(model_->lines()[static_cast<std::size_t>(proxy_->mapToSource(proxy_->index(r, 0)).row())]);
    std::string text = chartCsv(shown);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
    return file.write(text.data(), static_cast<qint64>(text.size())) == static_cast<qint64>(text.size());
}

}  // namespace trovane::screens
