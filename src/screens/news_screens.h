#pragma once
// The news: the list of items, one item with its answers, and its help text.
#include <QAbstractTableModel>
#include <QDialog>
#include <vector>

#include "screens/screen_page.h"

class QLabel;
class QPushButton;
class QTableView;

namespace trovane::screens {

class mdiParentForm;

// One row of the news list.
struct NewsRow {
    bool unread = false;
    double date = 0;
    QString dateText;
    QString title;
    int32_t recordNumber = 0;
};

// The rows of flxNews: the "Unread" mark, the date, the title, and (hidden) the record number.
class NewsListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit NewsListModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}
    void setRows(std::vector<NewsRow> rows);
    const NewsRow& row(int r) const { return rows_[static_cast<std::size_t>(r)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // By the remembered column (3 for the date) and direction (1 up, 2 down).
    void sortBy(int column, int direction);

private:
    std::vector<NewsRow> rows_;
};

class frmNews : public ScreenPage {
    Q_OBJECT
public:
    explicit frmNews(mdiParentForm& main, QWidget* parent = nullptr);
    QTableView* flxNews;
    NewsListModel* model() const { return model_; }

    // The grid at its first row.
    void showTop();
    // A click on a header: the date header sorts by record number, the same header again turns the order round.
    void browseSort(int headerIndex);
    // Opens the item of a row.
    void openRow(int row);

private:
    NewsListModel* model_;
    QLabel* empty_;
};

class frmNewsFull : public ScreenPage {
    Q_OBJECT
public:
    explicit frmNewsFull(mdiParentForm& main, QWidget* parent = nullptr);
    QLabel* lblHeadline;
    QLabel* lblDate;
    QLabel* lblText;
    QPushButton* cmd1;
    QPushButton* cmd2;
    QPushButton* cmd3;
    QPushButton* cmdHelp;
    QPushButton* cmdDelete;

private:
    void reply(int button);
    void removeItem();
    int32_t item_;
    QString extra_;
};

// The help text of a news item.
class frmHelpForm : public QDialog {
    Q_OBJECT
public:
    frmHelpForm(const QString& text, QWidget* parent);
    QLabel* lblText;
    QPushButton* btnOk;
};

}  // namespace trovane::screens
