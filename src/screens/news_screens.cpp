#include "screens/news_screens.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "floor/formats.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/side_bar.h"
#include "screens/theme.h"
#include "world/strings.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

QString newsTitle(const Game& g) { return qs(newsScreenTitle(g)); }

// The drawn stand-ins for the pictures of the reply buttons.
struct ReplyLook {
    std::string_view picture;
    const char* caption;
    Glyph glyph;
};
constexpr ReplyLook kReplyLooks[] = {
    {"graphics/ok.jpg", "OK", Glyph::ok},
    {"graphics/yes.jpg", "Yes", Glyph::ok},
    {"graphics/no.jpg", "No", Glyph::no},
    {"graphics/defend.jpg", "Defend", Glyph::defend},
    {"graphics/condemn.jpg", "Condemn", Glyph::condemn},
    {"graphics/nocomment.jpg", "No Comment", Glyph::noComment},
};

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
    const bool unread = !r.unread.empty();
    switch (role) {
    case Qt::DisplayRole:
        switch (index.column()) {
        case 0: return qs(r.unread);
        case 1: return qs(r.date);
        case 2: return qs(r.title);
        case 3: return QString::number(r.record);
        default: return {};
        }
    case Qt::ForegroundRole:
        if (index.column() == 0) return palette::accent;
        return unread ? palette::text : palette::mutedText;
    case Qt::FontRole:
        if (unread || index.column() == 0) {
            QFont f;
            f.setBold(true);
            return f;
        }
        return {};
    case Qt::ToolTipRole: return index.column() == 2 ? qs(r.title) : QVariant();
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

// ---------------------------------------------------------------- frmNews

frmNews::frmNews(mdiParentForm& main, QWidget* parent)
    : ScreenPage(main, QStringLiteral("frmNews"), newsTitle(main.game()), parent) {
    main.sideBar()->enableSidebar(true);
    model_ = new NewsListModel(this);
    std::vector<NewsRow> rows;
    main.guarded([&] {
        rows = newsListRows(main.game());
        // The sort the player chose lasts for the session.
        sortNewsRows(rows, main.newsSort());
    });
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

    showTop();
    setFocusProxy(flxNews);
}

void frmNews::showTop() {
    if (model_->rowCount() == 0) return;
    flxNews->scrollToTop();
    flxNews->setCurrentIndex(model_->index(0, 2));
}

void frmNews::browseSort(int headerIndex) {
    clickNewsHeader(main_.newsSort(), headerIndex);
    std::vector<NewsRow> rows = model_->rows();
    sortNewsRows(rows, main_.newsSort());
    model_->setRows(std::move(rows));
    showTop();
}

void frmNews::openRow(int row) {
    // A click also activates the row on some systems: the second signal finds this screen closed.
    if (!isVisible() || row < 0) return;
    Game& g = main_.game();
    bool opened = false;
    if (!main_.guarded([&] { opened = clickNewsRow(g, model_->rows(), static_cast<std::size_t>(row)); }) || !opened)
        return;
    main_.newsItemOnScreen = g.news->id;
    main_.showCurrentScreen();
}

// ---------------------------------------------------------------- frmNewsFull

frmNewsFull::frmNewsFull(mdiParentForm& main, QWidget* parent)
    : ScreenPage(main, QStringLiteral("frmNewsFull"), newsTitle(main.game()), parent), item_(main.newsItemOnScreen) {
    Game& g = main.game();
    NewsItemView view;
    NewsRecord item{};
    main.guarded([&] {
        g.news.read(item_);
        view = openNewsItem(g);
        item = g.news.rec;
    });
    const bool open = view.sidebarEnabled;

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
    lblText = makeBody(qs(trim(view.text)), card);
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
    QPushButton** replyButton[3] = {&cmd1, &cmd2, &cmd3};
    for (std::size_t i = 0; i < 3; ++i) {
        const NewsButton& shown = view.buttons[i];
        const ReplyLook* look = nullptr;
        for (const ReplyLook& l : kReplyLooks)
            if (l.picture == shown.picture) look = &l;
        QPushButton*& b = *replyButton[i];
        b = makeButton(QStringLiteral("cmd%1").arg(i + 1), look ? tr(look->caption) : QString(),
                       look ? look->glyph : Glyph::ok, i == 0 ? ButtonRole::primary : ButtonRole::secondary, card);
        b->setVisible(shown.visible);
        b->setEnabled(shown.enabled);
    }
    for (QPushButton* b : {cmd3, cmd2, cmd1}) {
        b->setMinimumWidth(120);
        buttons->addWidget(b);
    }
    // A media story: each answer shows the statement it would post.
    if (item.kind == kNewsMediaStory) {
        main.guarded([&] {
            g.news.read(item_);
            cmd1->setToolTip(qs(mediaStoryStatement(g, 0)));
            cmd2->setToolTip(qs(mediaStoryStatement(g, 1)));
        });
    }
    c->addLayout(buttons);
    body()->addWidget(card);
    body()->addStretch(1);

    extra_ = qs(trim(view.help));
    cmdHelp->setVisible(view.helpVisible);
    cmdDelete->setEnabled(view.deleteEnabled);
    main.sideBar()->enableSidebar(view.sidebarEnabled);

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

bool frmNewsFull::reopen() {
    Game& g = main_.game();
    return main_.guarded([&] {
        g.news.read(item_);
        openNewsItem(g);
    });
}

void frmNewsFull::reply(int button) {
    Game& g = main_.game();
    if (button == 3) {
        pressNewsCmd3(g);  // to say nothing is to press nothing
        return;
    }
    if (!reopen()) return;
    if (!main_.guarded([&] { button == 1 ? pressNewsCmd1(g) : pressNewsCmd2(g); })) return;
    main_.showCurrentScreen();
}

void frmNewsFull::removeItem() {
    Game& g = main_.game();
    bool removed = false;
    if (!reopen() || !main_.guarded([&] { removed = deleteNewsItem(g); }) || !removed) return;
    main_.showCurrentScreen();
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
