#pragma once
// The one grid every browser shows: a model over a filled Grid and a view in
// the shell's theme, with the whole of the keyboard. A click on a header (or
// Ctrl+1..9) asks for that label's click; Enter or a double click opens the
// row's record; Escape asks to go back; typing finds the first name that
// starts with what was typed.
#include <QAbstractTableModel>
#include <QElapsedTimer>
#include <QTableView>

#include "browse/grid.h"

namespace trovane::screens {

class GridModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit GridModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}
    void setGrid(Grid grid);
    const Grid& grid() const { return grid_; }
    // The grid's column behind a shown column.
    int gridColumn(int shown) const;
    int shownColumn(int gridColumn) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    Grid grid_;
    std::vector<int> shown_;
};

class BrowseGridWidget : public QTableView {
    Q_OBJECT
public:
    explicit BrowseGridWidget(const QString& objectName, QWidget* parent = nullptr);

    // Shows the grid, its sort on the header, and puts the cursor on `row`.
    void showGrid(Grid grid, const GridSort& sort, int row = 0);
    const Grid& grid() const { return model_->grid(); }
    int currentRow() const;
    // The record of the row under the cursor, 0 if none.
    int32_t currentRecord() const;
    // Finds the next name from the cursor down (then from the top) that
    // starts with `prefix`, case aside, and moves there; false if none.
    bool typeAhead(const QString& prefix);

signals:
    // The grid column of the label clicked.
    void labelClicked(int gridColumn);
    void recordOpened(int32_t record);
    void backRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    GridModel* model_;
    QString typed_;
    QElapsedTimer lastKey_;
};

}  // namespace trovane::screens
