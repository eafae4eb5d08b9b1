#pragma once
// The news: the list of items, one item with its answers, and its help text.
#include <QAbstractTableModel>
#include <QDialog>
#include <vector>

#include "day/news_inbox.h"
#include "screens/screen_page.h"

class QLabel;
class QPushButton;
class QTableView;

namespace trovane::screens {

class mdiParentForm;

// The rows of flxNews: the "Unread" mark, the date, the title, and (hidden) the record number.
class NewsListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit NewsListModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}
    void setRows(std::vector<NewsRow> rows);
    const std::vector<NewsRow>& rows() const { return rows_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

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
    // The item in the news buffer, opened afresh: anything may have used the buffers since.
    bool reopen();
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
