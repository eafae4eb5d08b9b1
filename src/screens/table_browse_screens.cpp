#include "screens/table_browse_screens.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <optional>

#include "browse/artist_browse.h"
#include "browse/people_browse.h"
#include "browse/table_browse.h"
#include "screens/browse_grid_widget.h"
#include "screens/browse_memory.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"

namespace trovane::screens {

namespace {

struct BrowserKind {
    Screen screen;
    const char* objectName;
    std::optional<BrowseTable> table;  // none: artist, rich list, staff, label
};

const BrowserKind kKinds[] = {
    {Screen::frmArtistBrowse, "frmArtistBrowse", std::nullopt},
    {Screen::frmRichList, "frmRichList", std::nullopt},
    {Screen::frmStaffBrowse, "frmStaffBrowse", std::nullopt},
    {Screen::frmLabelBrowse, "frmLabelBrowse", std::nullopt},
    {Screen::frmVenueBrowse, "frmVenueBrowse", BrowseTable::venue},
    {Screen::frmBusinessBrowse, "frmBusinessBrowse", BrowseTable::business},
    {Screen::frmMediaBrowse, "frmMediaBrowse", BrowseTable::media},
    {Screen::frmSongBrowse, "frmSongBrowse", BrowseTable::song},
    {Screen::frmFestivalBrowse, "frmFestivalBrowse", BrowseTable::festival},
    {Screen::frmCeremonyBrowse, "frmCeremonyBrowse", BrowseTable::ceremony},
};

const BrowserKind& kindOf(Screen s) {
    for (const BrowserKind& k : kKinds)
        if (k.screen == s) return k;
    return kKinds[0];
}

// A column offers a choice when it holds from two to this many values.
constexpr std::size_t kMostChoices = 12;

}  // namespace

bool isTableBrowser(Screen s) {
    for (const BrowserKind& k : kKinds)
        if (k.screen == s) return true;
    return false;
}

frmTableBrowse::frmTableBrowse(mdiParentForm& main, Screen which)
    : ScreenPage(main, QString::fromLatin1(kindOf(which).objectName), QString()), which_(which) {
    cmdReset = makeButton(QStringLiteral("cmdReset"), tr("Reset"), Glyph::trash);
    cmdReset->setToolTip(tr("Show every record again"));
    cmdBack = makeButton(QStringLiteral("cmdBack"), tr("Back"), Glyph::back);
    headingExtras()->addWidget(cmdReset);
    headingExtras()->addWidget(cmdBack);

    auto* filters = new QHBoxLayout;
    filters->setSpacing(8);
    txtName = new QLineEdit(this);
    txtName->setObjectName(QStringLiteral("txtName"));
    txtName->setPlaceholderText(tr("Name"));
    txtName->setClearButtonEnabled(true);
    body()->addLayout(filters);
    flxGrid = new BrowseGridWidget(QStringLiteral("flxGrid"), this);
    body()->addWidget(flxGrid, 1);

    BrowserMemory& m = browseMemory().browsers[which_];
    txtName->setText(QString::fromStdString(m.filter.name));
    // The choices are made from every record, so that none is lost by another choice.
    const Grid all = fill(false);
    titleLabel()->setText(QString::fromStdString(all.caption));
    filters->addWidget(captioned(tr("Name"), txtName), 3);
    cmbColumn.assign(all.columns.size(), nullptr);
    for (std::size_t c = 1; c < all.columns.size(); ++c) {
        if (all.columns[c].hidden) continue;
        // Figures are sorted, not chosen: a choice is offered on a column of words.
        if (!all.rows.empty() && all.rows.front().cells[c].key) continue;
        const std::vector<std::string> values = columnValues(all, static_cast<int>(c));
        if (values.size() < 2 || values.size() > kMostChoices) continue;
        auto* combo = new ComboBox(this);
        combo->setObjectName(QStringLiteral("cmbColumn%1").arg(c));
        combo->addItem(tr("All"));
        for (const std::string& v : values) combo->addItem(QString::fromStdString(v));
        for (const ColumnChoice& ch : m.filter.choices)
            if (ch.column == static_cast<int>(c) && ch.text) combo->setCurrentText(QString::fromStdString(*ch.text));
        cmbColumn[c] = combo;
        filters->addWidget(captioned(QString::fromStdString(all.columns[c].label), combo), 1);
        connect(combo, &QComboBox::currentIndexChanged, this, [this] {
            browseMemory().browsers[which_].row = 0;
            refill();
        });
    }
    filters->addStretch(1);

    connect(txtName, &QLineEdit::returnPressed, this, [this] {
        browseMemory().browsers[which_].row = 0;
        refill();
        flxGrid->setFocus();
    });
    connect(cmdReset, &QPushButton::clicked, this, &frmTableBrowse::cmdResetClick);
    connect(cmdBack, &QPushButton::clicked, this, [this] { main_.returnToPreviousScreen(); });
    connect(flxGrid, &BrowseGridWidget::labelClicked, this, &frmTableBrowse::clickLabel);
    connect(flxGrid, &BrowseGridWidget::recordOpened, this, [this](int32_t r) { openRow(r); });
    connect(flxGrid, &BrowseGridWidget::backRequested, this, [this] { main_.returnToPreviousScreen(); });
    refill();
    flxGrid->setFocus();
}

Grid frmTableBrowse::fill(bool withChoices) {
    BrowserMemory& m = browseMemory().browsers[which_];
    BrowseFilter filter;
    if (withChoices) {
        m.filter.name = txtName->text().toStdString();
        m.filter.choices.clear();
        for (std::size_t c = 0; c < cmbColumn.size(); ++c)
            if (cmbColumn[c] && cmbColumn[c]->currentIndex() > 0)
                m.filter.choices.push_back(
                    {.column = static_cast<int>(c), .text = cmbColumn[c]->currentText().toStdString()});
        filter = m.filter;
    }
    Grid grid;
    main_.guarded([&] {
        Game& g = main_.game();
        const BrowserKind& k = kindOf(which_);
        if (k.table) {
            populateTableGrid(g, *k.table, filter, m.sort, grid);
            return;
        }
        if (which_ == Screen::frmStaffBrowse)
            populateStaffGrid(g, filter.name, m.sort, grid);
        else if (which_ == Screen::frmLabelBrowse)
            populateLabelGrid(g, filter.name, m.sort, grid);
        else
            populateArtistGrid(g, which_ == Screen::frmRichList, filter.name, m.sort, grid);
        BrowseFilter choices = filter;
        choices.name.clear();
        std::erase_if(grid.rows, [&](const GridRow& r) { return !rowPasses(choices, r); });
    });
    return grid;
}

void frmTableBrowse::refill() {
    Grid grid = fill(true);
    const int count = static_cast<int>(grid.rows.size());
    BrowserMemory& m = browseMemory().browsers[which_];
    flxGrid->showGrid(std::move(grid), m.sort, m.row);
    setSubtitle(tr("%n shown. Click a heading (or Ctrl+1 to 9) to sort; type a name to jump to it.", nullptr, count));
}

void frmTableBrowse::clickLabel(int gridColumn) {
    BrowserMemory& m = browseMemory().browsers[which_];
    clickColumnLabel(m.sort, flxGrid->grid(), gridColumn);
    Grid grid = flxGrid->grid();
    sortGrid(grid, m.sort);
    m.row = 0;
    flxGrid->showGrid(std::move(grid), m.sort, 0);
}

void frmTableBrowse::cmdResetClick() {
    BrowserMemory& m = browseMemory().browsers[which_];
    m.filter = BrowseFilter{};
    m.row = 0;
    txtName->clear();
    for (QComboBox* c : cmbColumn) {
        if (!c) continue;
        const QSignalBlocker quiet(c);
        c->setCurrentIndex(0);
    }
    refill();
}

void frmTableBrowse::openRow(int32_t record) {
    browseMemory().browsers[which_].row = std::max(flxGrid->currentRow(), 0);
    Game& g = main_.game();
    switch (which_) {
    case Screen::frmStaffBrowse:
        main_.staffOnScreen = static_cast<int16_t>(record);
        main_.openScreen(Screen::frmStaffDetails);
        break;
    case Screen::frmLabelBrowse:
        main_.labelOnScreen = static_cast<int16_t>(record);
        main_.openScreen(Screen::frmLabelDetails);
        break;
    case Screen::frmSongBrowse: {
        // A song opens its disc, else its band.
        int16_t disc = 0, band = 0;
        main_.guarded([&] {
            g.song.read(record);
            if (g.song->disc > 0 && g.song->disc < 65534 && g.song->disc < g.disc.recordCount())
                disc = static_cast<int16_t>(g.song->disc);
            band = g.song->band;
        });
        if (disc > 0) {
            main_.discOnScreen = disc;
            main_.openScreen(Screen::frmDiscDetails);
        } else if (band > 0) {
            main_.openBand(band);
        }
        break;
    }
    case Screen::frmArtistBrowse:
    case Screen::frmRichList: main_.openArtist(static_cast<int16_t>(record)); break;
    case Screen::frmVenueBrowse: main_.openVenue(static_cast<int16_t>(record)); break;
    case Screen::frmFestivalBrowse:
        main_.festivalOnScreen = static_cast<int16_t>(record);
        main_.openScreen(Screen::frmFestivalDetails);
        break;
    case Screen::frmBusinessBrowse: main_.openFirm(static_cast<int16_t>(record)); break;
    case Screen::frmMediaBrowse: main_.openOutlet(static_cast<int16_t>(record)); break;
    case Screen::frmCeremonyBrowse:
        main_.ceremonyOnScreen = static_cast<int16_t>(record);
        main_.openScreen(Screen::frmCeremonyDetails);
        break;
    default:
        break;
    }
}

}  // namespace trovane::screens
