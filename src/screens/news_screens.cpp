#include "screens/news_screens.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/side_bar.h"
#include "screens/theme.h"
#include "session/formats.h"
#include "world/strings.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

QString newsTitle(const Game& g) {
    return QStringLiteral("%1 %2's News")
        .arg(qs(trim(g.player.playerForename.value)), qs(trim(g.player.playerSurname.value)));
}

// ---- Provisional inbox access: to be replaced by the inbox of the calendar.
std::vector<NewsRow> readNewsRows(Game& g) {
    std::vector<NewsRow> rows;
    for (int32_t n = g.news.recordCount() - 1; n >= 1; --n) {
        g.news.read(n);
        if (g.news->deleted != kFalse) continue;
        rows.push_back({g.news->read == kFalse, g.news->date,
                        qs(formatDate(g.news->date, "ddd") + " " + formatDate(g.news->date, "d/m/yyyy")),
                        qs(trim(g.news->title.value)), n});
    }
    return rows;
}

}  // namespace

// ---------------------------------------------------------------- the list model

void NewsListModel::setRows(std::vector<NewsRow> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int NewsListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int NewsListModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : 4; }

QVariant NewsListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const NewsRow& r = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        switch (index.column()) {
        case 0: return r.unread ? tr("Unread") : QString();
        case 1: return r.dateText;
        case 2: return r.title;
        case 3: return QString::number(r.recordNumber);
        default: return {};
        }
    case Qt::ForegroundRole:
        if (index.column() == 0) return palette::accent;
        return r.unread ? palette::text : palette::mutedText;
    case Qt::FontRole:
        if (r.unread || index.column() == 0) {
            QFont f;
            f.setBold(true);
            return f;
        }
        return {};
    case Qt::ToolTipRole:
        return index.column() == 2 ? r.title : QVariant();
    default: return {};
    }
}

QVariant NewsListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    switch (section) {
    case 0: return QString();
    case 1: return tr("Date");
    case 2: return tr("Message");
    case 3: return tr("No.");
    default: return {};
    }
}

void NewsListModel::sortBy(int column, int direction) {
    beginResetModel();
    auto key = [column](const NewsRow& a, const NewsRow& b) {
        switch (column) {
        case 0: return a.unread != b.unread ? a.unread < b.unread : a.recordNumber < b.recordNumber;
        case 2: {
            int c = QString::localeAwareCompare(a.title, b.title);
            return c != 0 ? c < 0 : a.recordNumber < b.recordNumber;
        }
        default: return a.recordNumber < b.recordNumber;
        }
    };
    std::stable_sort(rows_.begin(), rows_.end(), key);
    if (direction == 2) std::reverse(rows_.begin(), rows_.end());
    endResetModel();
}

// ---------------------------------------------------------------- frmNews

frmNews::frmNews(mdiParentForm& main, QWidget* parent)
    : ScreenPage(main, QStringLiteral("frmNews"), newsTitle(main.game()), parent) {
    main.sideBar()->enableSidebar(true);
    model_ = new NewsListModel(this);
    std::vector<NewsRow> rows;
    main.guarded([&] { rows = readNewsRows(main.game()); });
    setSubtitle(rows.empty() ? QString() : tr("%n item(s)", nullptr, static_cast<int>(rows.size())));
    model_->setRows(std::move(rows));

    flxNews = new QTableView(this);
    flxNews->setObjectName(QStringLiteral("flxNews"));
    flxNews->setModel(model_);
    flxNews->setSelectionBehavior(QAbstractItemView::SelectRows);
    flxNews->setSelectionMode(QAbstractItemView::SingleSelection);
    flxNews->setEditTriggers(QAbstractItemView::NoEditTriggers);
    flxNews->setAlternatingRowColors(true);
    flxNews->setShowGrid(false);
    flxNews->setWordWrap(false);
    flxNews->setTextElideMode(Qt::ElideRight);
    flxNews->verticalHeader()->hide();
    flxNews->verticalHeader()->setDefaultSectionSize(34);
    flxNews->setColumnHidden(3, true);
    QHeaderView* header = flxNews->horizontalHeader();
    header->setSectionsClickable(true);
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setSectionResizeMode(0, QHeaderView::Fixed);
    header->setSectionResizeMode(1, QHeaderView::Fixed);
    header->setSectionResizeMode(2, QHeaderView::Stretch);
    header->resizeSection(0, 90);
    header->resizeSection(1, 150);
    header->setSortIndicatorShown(false);
    body()->addWidget(flxNews, 1);

    empty_ = makeBody(tr("No news yet. Press Continue to play the next day."), this);
    empty_->setObjectName(QStringLiteral("lblNoNews"));
    empty_->setAlignment(Qt::AlignCenter);
    empty_->setVisible(model_->rowCount() == 0);
    body()->addWidget(empty_);

    connect(header, &QHeaderView::sectionClicked, this, &frmNews::browseSort);
    connect(flxNews, &QTableView::clicked, this, [this](const QModelIndex& i) { openRow(i.row()); });
    connect(flxNews, &QTableView::activated, this, [this](const QModelIndex& i) { openRow(i.row()); });

    // The session's sort, if the player chose one.
    NewsSort& sort = main.newsSort();
    if (sort.column != 0 || sort.direction != 1) model_->sortBy(sort.column, sort.direction);
    showTop();
    setFocusProxy(flxNews);
}

void frmNews::showTop() {
    if (model_->rowCount() == 0) return;
    flxNews->scrollToTop();
    flxNews->setCurrentIndex(model_->index(0, 2));
}

void frmNews::browseSort(int headerIndex) {
    int column = headerIndex == 1 ? 3 : headerIndex;
    NewsSort& sort = main_.newsSort();
    if (column != sort.column) {
        sort.column = column;
        sort.direction = 1;
    } else {
        sort.direction = 3 - sort.direction;
    }
    model_->sortBy(sort.column, sort.direction);
    showTop();
}

void frmNews::openRow(int row) {
    // A click also activates the row on some systems: the second signal finds this screen closed.
    if (!isVisible() || row < 0 || row >= model_->rowCount()) return;
    main_.newsItemOnScreen = model_->row(row).recordNumber;
    main_.openScreen(Screen::frmNewsFull);
}

// ---------------------------------------------------------------- frmNewsFull

frmNewsFull::frmNewsFull(mdiParentForm& main, QWidget* parent)
    : ScreenPage(main, QStringLiteral("frmNewsFull"), newsTitle(main.game()), parent), item_(main.newsItemOnScreen) {
    Game& g = main.game();
    NewsRecord item{};
    // ---- Provisional: opening marks the item read.
    main.guarded([&] {
        g.news.read(item_);
        g.news->read = kTrue;
        g.news.write(item_);
        item = g.news.rec;
    });
    bool open = item.mustReply == kFalse || item.replied != kFalse;

    auto* card = new Card(this);
    card->setMaximumWidth(1000);
    card->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    QVBoxLayout* c = card->content();
    c->setSpacing(12);
    lblDate = makeCaption(qs(formatDate(item.date, "dddd d mmmm yyyy")), card);
    lblDate->setObjectName(QStringLiteral("lblDate"));
    c->addWidget(lblDate);
    lblHeadline = makeSubtitle(qs(trim(item.title.value)), card);
    lblHeadline->setObjectName(QStringLiteral("lblHeadline"));
    lblHeadline->setWordWrap(true);
    c->addWidget(lblHeadline);
    // A text holds at most 1,024 characters: it always fits without scrolling.
    lblText = makeBody(qs(trim(item.text.value)), card);
    lblText->setObjectName(QStringLiteral("lblText"));
    c->addWidget(lblText);
    c->addSpacing(8);
    if (!open) {
        QLabel* must = new QLabel(tr("This needs your answer before the next day can begin."), card);
        must->setObjectName(QStringLiteral("lblMustReply"));
        must->setStyleSheet(QStringLiteral("color: %1; font-weight: 600;").arg(palette::accent.name()));
        c->addWidget(must);
    }

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(10);
    cmdDelete = makeButton(QStringLiteral("cmdDelete"), tr("Delete"), Glyph::trash, ButtonRole::danger, card);
    cmdHelp = makeButton(QStringLiteral("cmdHelp"), tr("Help"), Glyph::help, ButtonRole::secondary, card);
    buttons->addWidget(cmdDelete);
    buttons->addWidget(cmdHelp);
    buttons->addStretch(1);
    cmd1 = makeButton(QStringLiteral("cmd1"), tr("OK"), Glyph::ok, ButtonRole::primary, card);
    cmd2 = makeButton(QStringLiteral("cmd2"), tr("No"), Glyph::no, ButtonRole::secondary, card);
    cmd3 = makeButton(QStringLiteral("cmd3"), tr("No Comment"), Glyph::noComment, ButtonRole::secondary, card);
    switch (item.kind) {
    case 1:
        cmd1->setText(tr("Yes"));
        break;
    case 4:
        cmd1->setText(tr("Defend"));
        cmd1->setIcon(glyphIcon(Glyph::defend, palette::accentText));
        cmd2->setText(tr("Condemn"));
        cmd2->setIcon(glyphIcon(Glyph::condemn, palette::text));
        break;
    default: break;
    }
    cmd1->setVisible(item.kind == 0 || item.kind == 1 || item.kind == 4);
    cmd2->setVisible(item.kind == 1 || item.kind == 4);
    cmd3->setVisible(item.kind == 4);
    cmd2->setEnabled(item.replied == kFalse);
    cmd3->setEnabled(item.replied == kFalse);
    for (QPushButton* b : {cmd3, cmd2, cmd1}) {
        b->setMinimumWidth(120);
        buttons->addWidget(b);
    }
    c->addLayout(buttons);
    body()->addWidget(card);
    body()->addStretch(1);

    extra_ = qs(trim(item.extra.value));
    cmdHelp->setVisible(!extra_.isEmpty());
    cmdDelete->setEnabled(open);
    main.sideBar()->enableSidebar(open);

    connect(cmd1, &QPushButton::clicked, this, [this] { reply(1); });
    connect(cmd2, &QPushButton::clicked, this, [this] { reply(2); });
    connect(cmd3, &QPushButton::clicked, this, [this] { reply(3); });
    connect(cmdDelete, &QPushButton::clicked, this, &frmNewsFull::removeItem);
    connect(cmdHelp, &QPushButton::clicked, this, [this] {
        auto* help = new frmHelpForm(extra_, this);
        help->open();
    });
    setFocusProxy(cmd1->isVisible() ? cmd1 : cmdDelete);
}

// ---- Provisional: a reply is recorded and the screen goes back; its effects come with the inbox.
void frmNewsFull::reply(int button) {
    Game& g = main_.game();
    bool back = true;
    bool ok = main_.guarded([&] {
        g.news.read(item_);
        int kind = g.news->kind;
        if (button == 3) {  // "no comment" is to say nothing: nothing happens
            back = false;
            return;
        }
        if ((kind == 1) || (button == 2 && kind == 4)) {
            g.news->replied = kTrue;
            g.news.write(item_);
        }
    });
    if (ok && back) main_.returnToPreviousScreen();
}

void frmNewsFull::removeItem() {
    Game& g = main_.game();
    bool ok = main_.guarded([&] {
        g.news.read(item_);
        g.news->deleted = kTrue;
        g.news.write(item_);
    });
    if (ok) main_.openScreen(Screen::frmNews);
}

// ---------------------------------------------------------------- frmHelpForm

frmHelpForm::frmHelpForm(const QString& text, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmHelpForm"));
    setWindowTitle(tr("Help"));
    setModal(true);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(28, 24, 28, 20);
    l->setSpacing(16);
    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    auto* icon = new QLabel(this);
    icon->setPixmap(glyphPixmap(Glyph::help, palette::teal, 36, devicePixelRatioF()));
    top->addWidget(icon, 0, Qt::AlignTop);
    lblText = makeBody(text, this);
    lblText->setObjectName(QStringLiteral("lblText"));
    lblText->setMinimumWidth(420);
    lblText->setMaximumWidth(640);
    top->addWidget(lblText, 1);
    l->addLayout(top);
    btnOk = makeButton(QStringLiteral("btnOk"), tr("OK"), Glyph::ok, ButtonRole::primary, this);
    btnOk->setDefault(true);
    btnOk->setMinimumWidth(110);
    l->addWidget(btnOk, 0, Qt::AlignRight);
    connect(btnOk, &QPushButton::clicked, this, &QDialog::accept);
    btnOk->setFocus();
}

}  // namespace trovane::screens
