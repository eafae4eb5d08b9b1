#pragma once
// The charts: any of the ten, this week or a past one, with its records,
// the labels' share and the sales by style.
#include <QAbstractTableModel>
#include <vector>

#include "production/chart_history.h"
#include "screens/screen_page.h"

class QChartView;
class QComboBox;
class QLabel;
class QPushButton;
class QSortFilterProxyModel;
class QTabWidget;
class QTableView;
class QStandardItemModel;

namespace trovane::screens {

// The rows of flxEntries. Columns sort by their figures, not their text.
class ChartEntriesModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit ChartEntriesModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}
    void setLines(std::vector<ChartLine> lines);
    const std::vector<ChartLine>& lines() const { return lines_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<ChartLine> lines_;
};

class frmChartForm : public ScreenPage {
    Q_OBJECT
public:
    explicit frmChartForm(mdiParentForm& main, QWidget* parent = nullptr);

    QComboBox* cmbChart;
    QComboBox* cmbWeek;
    QTabWidget* TabChartTab;
    QTableView* flxEntries;
    QTableView* flxStyles;
    QChartView* chrtLabelSales;
    QChartView* chrtRun;
    QLabel* lblTitle;
    QLabel* lblChartSizeR;
    QPushButton* cmdExportCSV;
    std::vector<QLabel*> recordLabels;  // lblMostTotalSalesR ... by holder

    // Shows chart N (0 to 9) at the week (0: the latest).
    void showChart(int chart, double week = 0);
    // Writes what the grid shows as CSV; false when the file cannot be written.
    bool exportCsv(const QString& path);
    ChartEntriesModel* model() const { return model_; }
    int chart() const { return chart_; }

private:
    void fillWeeks();
    void fillRecords();
    void fillLabelSales();
    void fillStyles();
    void showRun(int16_t disc);

    ChartEntriesModel* model_;
    QSortFilterProxyModel* proxy_;
    QStandardItemModel* styles_;
    int chart_ = 0;
    double week_ = 0;
    bool filling_ = false;
};

}  // namespace trovane::screens
