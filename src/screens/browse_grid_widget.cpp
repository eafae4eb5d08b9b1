#include "screens/browse_grid_widget.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

namespace trovane::screens {

namespace {
// Keys typed further apart than this start a new search.
constexpr qint64 kTypeAheadGapMs = 1000;
}  // namespace

void GridModel::setGrid(Grid grid) {
    beginResetModel();
    grid_ = std::move(grid);
    shown_ = visibleColumns(grid_);
    endResetModel();
}

int GridModel::gridColumn(int shown) const {
    return shown >= 0 && shown < static_cast<int>(shown_.size()) ? shown_[static_cast<std::size_t>(shown)] : -1;
}

int GridModel::shownColumn(int gridColumn) const {
    for (std::size_t i = 0; i < shown_.size(); ++i)
        if (shown_[i] == gridColumn) return static_cast<int>(i);
    return -1;
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(grid_.rows.size());
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const GridRow& row = grid_.rows[static_cast<std::size_t>(index.row())];
    const GridCell& cell = row.cells[static_cast<std::size_t>(gridColumn(index.column()))];
    switch (role) {
    case Qt::DisplayRole: return QString::fromStdString(cell.text);
    case Qt::TextAlignmentRole:
        // Figures line up on the right.
        return cell.key && !cell.text.empty() ? static_cast<int>(Qt::AlignRight | Qt::AlignVCenter)
                                              : static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::UserRole: return row.record;
    default: return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    const int c = gridColumn(section);
    return c < 0 ? QVariant() : QString::fromStdString(grid_.columns[static_cast<std::size_t>(c)].label);
}

BrowseGridWidget::BrowseGridWidget(const QString& objectName, QWidget* parent)
    : QTableView(parent), model_(new GridModel(this)) {
    setObjectName(objectName);
    setModel(model_);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setAlternatingRowColors(true);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(26);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(false);
    horizontalHeader()->setSortIndicatorShown(true);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int section) { emit labelClicked(model_->gridColumn(section)); });
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& i) {
        if (i.isValid()) emit recordOpened(model_->grid().rows[static_cast<std::size_t>(i.row())].record);
    });
    lastKey_.start();
}

void BrowseGridWidget::showGrid(Grid grid, const GridSort& sort, int row) {
    model_->setGrid(std::move(grid));
    const Grid& g = model_->grid();
    // Widths are in the old twips: fifteen to a pixel.
    for (int s = 0; s < model_->columnCount(); ++s) {
        const int c = model_->gridColumn(s);
        const GridColumn& column = g.columns[static_cast<std::size_t>(c)];
        // Never narrower than its label, with room for the sort arrow.
        const int label = horizontalHeader()->fontMetrics().horizontalAdvance(QString::fromStdString(column.label));
        setColumnWidth(s, std::max({70, column.width / 15 + 20, label + 56}));
    }
    // The name takes the room the other columns leave.
    if (model_->columnCount() > 0) horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    if (sort.clicked) {
        // The hidden value column shows its sort on the label before it.
        int shown = model_->shownColumn(sort.column);
        if (shown < 0) shown = model_->shownColumn(sort.column - 1);
        horizontalHeader()->setSortIndicator(shown, sort.direction == 1 ? Qt::AscendingOrder : Qt::DescendingOrder);
    } else {
        horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    }
    if (!g.rows.empty()) {
        const int r = std::clamp(row, 0, static_cast<int>(g.rows.size()) - 1);
        setCurrentIndex(model_->index(r, 0));
        scrollTo(model_->index(r, 0), QAbstractItemView::PositionAtCenter);
    }
}

int BrowseGridWidget::currentRow() const { return currentIndex().isValid() ? currentIndex().row() : -1; }

int32_t BrowseGridWidget::currentRecord() const {
    const int r = currentRow();
    return r < 0 ? 0 : model_->grid().rows[static_cast<std::size_t>(r)].record;
}

bool BrowseGridWidget::typeAhead(const QString& prefix) {
    const auto& rows = model_->grid().rows;
    const int n = static_cast<int>(rows.size());
    if (n == 0 || prefix.isEmpty()) return false;
    // Typing looks for a name: the "Name" column, else the first shown.
    int nameColumn = model_->gridColumn(0);
    const auto& columns = model_->grid().columns;
    for (std::size_t c = 0; c < columns.size(); ++c)
        if (!columns[c].hidden && columns[c].label == "Name") {
            nameColumn = static_cast<int>(c);
            break;
        }
    const int from = std::max(currentRow(), 0);
    for (int k = 0; k < n; ++k) {
        const int r = (from + k) % n;
        const QString name =
            QString::fromStdString(rows[static_cast<std::size_t>(r)].cells[static_cast<std::size_t>(nameColumn)].text);
        if (name.startsWith(prefix, Qt::CaseInsensitive)) {
            setCurrentIndex(model_->index(r, 0));
            scrollTo(currentIndex());
            return true;
        }
    }
    return false;
}

void BrowseGridWidget::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (currentRow() >= 0) emit recordOpened(currentRecord());
        return;
    }
    if (key == Qt::Key_Escape) {
        emit backRequested();
        return;
    }
    if ((event->modifiers() & Qt::ControlModifier) && key >= Qt::Key_1 && key <= Qt::Key_9) {
        const int c = model_->gridColumn(key - Qt::Key_1);
        if (c >= 0) emit labelClicked(c);
        return;
    }
    const QString text = event->text();
    if (!text.isEmpty() && text.at(0).isPrint() && !(event->modifiers() & Qt::ControlModifier)) {
        if (lastKey_.elapsed() > kTypeAheadGapMs) typed_.clear();
        lastKey_.restart();
        typed_ += text;
        if (!typeAhead(typed_)) {
            // A fresh start from this key alone.
            typed_ = text;
            typeAhead(typed_);
        }
        return;
    }
    QTableView::keyPressEvent(event);
}

}  // namespace trovane::screens
