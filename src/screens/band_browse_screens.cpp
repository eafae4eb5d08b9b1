#include "screens/band_browse_screens.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "screens/browse_grid_widget.h"
#include "screens/browse_memory.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

QString moneyText(double amount) {
    return QLocale(QLocale::English).toString(static_cast<qlonglong>(roundHalfEven(amount)));
}

double moneyFrom(const QComboBox* c) {
    QString t = c->currentText();
    t.remove(QLatin1Char(',')).remove(QLatin1Char(' '));
    bool ok = false;
    const double v = t.toDouble(&ok);
    return ok && v >= 0 ? v : 0;
}

}  // namespace

// ---------------------------------------------------------------- frmBandBrowse

void frmBandBrowse::openSearch(mdiParentForm& main, bool shortlist) {
    BandBrowserMemory& m = browseMemory().band;
    m.mode = shortlist ? BandBrowseMode::shortlist : BandBrowseMode::search;
    m.onConfirm = nullptr;
    m.row = 0;
    main.openScreen(Screen::frmBandBrowse);
}

void frmBandBrowse::openBooking(mdiParentForm& main, int16_t referenceBand, std::function<void(int16_t)> onConfirm) {
    BandBrowserMemory& m = browseMemory().band;
    m.mode = BandBrowseMode::booking;
    m.referenceBand = referenceBand;
    m.onConfirm = std::move(onConfirm);
    m.row = 0;
    // Booking starts from the defaults.
    resetBandFilter(main.game(), m.filter);
    m.filterReady = true;
    main.openScreen(Screen::frmBandBrowse);
}

frmBandBrowse::frmBandBrowse(mdiParentForm& main)
    : ScreenPage(main, QStringLiteral("frmBandBrowse"), tr("Band Search")) {
    BandBrowserMemory& m = browseMemory().band;
    if (!m.filterReady) {
        resetBandFilter(main_.game(), m.filter);
        m.filterReady = true;
    }
    if (m.mode == BandBrowseMode::shortlist) titleLabel()->setText(tr("Shortlisted Bands"));
    if (m.mode == BandBrowseMode::booking) titleLabel()->setText(tr("Book a Support Act"));

    cmdFilter = makeButton(QStringLiteral("cmdFilter"), tr("Filter"), Glyph::find);
    cmdConfirm = makeButton(QStringLiteral("cmdConfirm"), tr("Confirm"), Glyph::ok, ButtonRole::primary);
    cmdBack = makeButton(QStringLiteral("cmdBack"), tr("Back"), Glyph::back);
    cmdConfirm->setVisible(m.mode == BandBrowseMode::booking);
    cmdFilter->setVisible(m.mode != BandBrowseMode::booking);
    cmdFilter->setToolTip(tr("Choose which bands the list shows"));
    headingExtras()->addWidget(cmdFilter);
    headingExtras()->addWidget(cmdConfirm);
    headingExtras()->addWidget(cmdBack);

    flxBands = new BrowseGridWidget(QStringLiteral("flxBands"), this);
    body()->addWidget(flxBands, 1);
    connect(flxBands, &BrowseGridWidget::labelClicked, this, &frmBandBrowse::clickLabel);
    connect(flxBands, &BrowseGridWidget::recordOpened, this, [this](int32_t b) { openRow(b); });
    connect(flxBands, &BrowseGridWidget::backRequested, this, [this] { main_.returnToPreviousScreen(); });
    connect(cmdBack, &QPushButton::clicked, this, [this] { main_.returnToPreviousScreen(); });
    connect(cmdFilter, &QPushButton::clicked, this, [this] {
        frmBandFilter form(main_, browseMemory().band.filter);
        // A reset counts even when the form is then cancelled.
        form.exec();
        browseMemory().band.row = 0;
        refill();
    });
    connect(cmdConfirm, &QPushButton::clicked, this, [this] {
        const int32_t band = flxBands->currentRecord();
        auto then = browseMemory().band.onConfirm;
        if (band > 0 && then) then(static_cast<int16_t>(band));
    });
    refill();
    flxBands->setFocus();
}

void frmBandBrowse::refill() {
    QElapsedTimer clock;
    clock.start();
    BandBrowserMemory& m = browseMemory().band;
    BandFilter filter = m.filter;
    filter.shortlistOnly = m.mode == BandBrowseMode::shortlist;
    const bool booking = m.mode == BandBrowseMode::booking;
    if (booking) {
        filter.referenceBand = m.referenceBand;
        filter.supportOnly = true;
    }
    Grid grid;
    main_.guarded([&] {
        populateBandGrid(main_.game(), 1, filter, booking ? kBandBookingColumns : kBandSearchColumns, m.sort, grid);
    });
    const int count = static_cast<int>(grid.rows.size());
    flxBands->showGrid(std::move(grid), m.sort, m.row);
    setSubtitle(tr("%n bands. Click a heading to sort; Enter opens a band.", nullptr, count));
    lastFillMs = static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

void frmBandBrowse::clickLabel(int gridColumn) {
    BandBrowserMemory& m = browseMemory().band;
    clickColumnLabel(m.sort, flxBands->grid(), gridColumn);
    Grid grid = flxBands->grid();
    sortGrid(grid, m.sort);
    flxBands->showGrid(std::move(grid), m.sort, 0);
}

void frmBandBrowse::keepRow() { browseMemory().band.row = std::max(flxBands->currentRow(), 0); }

void frmBandBrowse::openRow(int32_t band) {
    keepRow();
    main_.openBand(static_cast<int16_t>(band));
}

// ---------------------------------------------------------------- frmBandFilter

frmBandFilter::frmBandFilter(mdiParentForm& main, BandFilter& filter) : QDialog(&main), main_(main), filter_(filter) {
    setObjectName(QStringLiteral("frmBandFilter"));
    setWindowTitle(tr("Band Filter"));
    setModal(true);
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(24, 20, 24, 20);
    l->setSpacing(12);
    l->addWidget(makeTitle(tr("Band Filter"), this));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    l->addLayout(grid);
    int row = 0;

    auto button = [this](const char* name, const QString& caption) {
        auto* b = new QPushButton(caption, this);
        b->setObjectName(QString::fromLatin1(name));
        b->setAutoDefault(false);
        b->setFixedSize(36, 34);
        b->setStyleSheet(QStringLiteral("padding: 0px; font-weight: bold;"));
        return b;
    };
    auto combo = [this](const QString& name, int top, bool editable = false) {
        auto* c = new ComboBox(this);
        c->setObjectName(name);
        c->setEditable(editable);
        for (int i = 0; i <= top; ++i) c->addItem(QString::number(i));
        return c;
    };
    auto stepBy = [](QComboBox* c, int d) { c->setCurrentIndex(std::clamp(c->currentIndex() + d, 0, c->count() - 1)); };
    // A pair of bounds with their steps, on one line.
    auto pair = [&](const QString& caption, QComboBox* lo, QPushButton* loDec, QPushButton* loInc, QComboBox* hi,
                    QPushButton* hiDec, QPushButton* hiInc) {
        grid->addWidget(makeCaption(caption, this), row, 0);
        grid->addWidget(loDec, row, 1);
        grid->addWidget(lo, row, 2);
        grid->addWidget(loInc, row, 3);
        grid->addWidget(makeBody(tr("to"), this), row, 4);
        grid->addWidget(hiDec, row, 5);
        grid->addWidget(hi, row, 6);
        grid->addWidget(hiInc, row, 7);
        ++row;
    };

    optStyle = new QCheckBox(tr("Only the style"), this);
    optStyle->setObjectName(QStringLiteral("optStyle"));
    cmbStyle = new ComboBox(this);
    cmbStyle->setObjectName(QStringLiteral("cmbStyle"));
    main_.guarded([&] {
        Game& g = main_.game();
        for (int32_t s = 1; s < g.style.recordCount(); ++s) {
            g.style.read(s);
            cmbStyle->addItem(qs(trim(g.style->name.value)), s);
        }
    });
    grid->addWidget(optStyle, row, 0);
    grid->addWidget(cmbStyle, row, 1, 1, 7);
    ++row;
    chkUnsigned = new QCheckBox(tr("Unsigned bands only"), this);
    chkUnsigned->setObjectName(QStringLiteral("chkUnsigned"));
    grid->addWidget(chkUnsigned, row++, 0, 1, 8);

    auto moneyCombo = [&](const char* name) {
        auto* c = new ComboBox(this);
        c->setObjectName(QString::fromLatin1(name));
        c->setEditable(true);
        for (double step : kAdvanceSteps) c->addItem(moneyText(step));
        return c;
    };
    cmbAdvanceMin = moneyCombo("cmbAdvanceMin");
    cmbAdvanceMax = moneyCombo("cmbAdvanceMax");
    cmdAdvanceMinDec = button("cmdAdvanceMinDec", QStringLiteral("-"));
    cmdAdvanceMinInc = button("cmdAdvanceMinInc", QStringLiteral("+"));
    cmdAdvanceMaxDec = button("cmdAdvanceMaxDec", QStringLiteral("-"));
    cmdAdvanceMaxInc = button("cmdAdvanceMaxInc", QStringLiteral("+"));
    pair(tr("Advance (%1)").arg(qs(main_.game().prefs.rec.currencySymbol.value)), cmbAdvanceMin, cmdAdvanceMinDec,
         cmdAdvanceMinInc, cmbAdvanceMax, cmdAdvanceMaxDec, cmdAdvanceMaxInc);
    auto moneyStep = [](QComboBox* c, int d) { c->setCurrentText(moneyText(stepAdvance(moneyFrom(c), d))); };
    connect(cmdAdvanceMinDec, &QPushButton::clicked, this, [this, moneyStep] { moneyStep(cmbAdvanceMin, -1); });
    connect(cmdAdvanceMinInc, &QPushButton::clicked, this, [this, moneyStep] { moneyStep(cmbAdvanceMin, 1); });
    connect(cmdAdvanceMaxDec, &QPushButton::clicked, this, [this, moneyStep] { moneyStep(cmbAdvanceMax, -1); });
    connect(cmdAdvanceMaxInc, &QPushButton::clicked, this, [this, moneyStep] { moneyStep(cmbAdvanceMax, 1); });

    struct Bounds {
        const char* name;
        QString caption;
        int top;
        QComboBox **lo, **hi;
        QPushButton **loDec, **loInc, **hiDec, **hiInc;
    };
    const Bounds bounds[] = {
        {"Royalty", tr("Royalty (%)"), 100, &cmbRoyaltyMin, &cmbRoyaltyMax, &cmdRoyaltyMinDec, &cmdRoyaltyMinInc,
         &cmdRoyaltyMaxDec, &cmdRoyaltyMaxInc},
        {"Gig", tr("Best gig share (%)"), 100, &cmbGigMin, &cmbGigMax, &cmdGigMinDec, &cmdGigMinInc, &cmdGigMaxDec,
         &cmdGigMaxInc},
        {"Age", tr("Age (years)"), 99, &cmbAgeMin, &cmbAgeMax, &cmdAgeMinDec, &cmdAgeMinInc, &cmdAgeMaxDec,
         &cmdAgeMaxInc},
    };
    for (const Bounds& b : bounds) {
        const QString n = QString::fromLatin1(b.name);
        *b.lo = combo(QStringLiteral("cmb%1Min").arg(n), b.top);
        *b.hi = combo(QStringLiteral("cmb%1Max").arg(n), b.top);
        *b.loDec = button(qPrintable(QStringLiteral("cmd%1MinDec").arg(n)), QStringLiteral("-"));
        *b.loInc = button(qPrintable(QStringLiteral("cmd%1MinInc").arg(n)), QStringLiteral("+"));
        *b.hiDec = button(qPrintable(QStringLiteral("cmd%1MaxDec").arg(n)), QStringLiteral("-"));
        *b.hiInc = button(qPrintable(QStringLiteral("cmd%1MaxInc").arg(n)), QStringLiteral("+"));
        QComboBox* lo = *b.lo;
        QComboBox* hi = *b.hi;
        connect(*b.loDec, &QPushButton::clicked, this, [=] { stepBy(lo, -1); });
        connect(*b.loInc, &QPushButton::clicked, this, [=] { stepBy(lo, 1); });
        connect(*b.hiDec, &QPushButton::clicked, this, [=] { stepBy(hi, -1); });
        connect(*b.hiInc, &QPushButton::clicked, this, [=] { stepBy(hi, 1); });
        pair(b.caption, lo, *b.loDec, *b.loInc, hi, *b.hiDec, *b.hiInc);
    }
    static const char* const kMarkets[5] = {"UK", "US", "Europe", "Oceania", "Global"};
    for (std::size_t t = 0; t < 5; ++t) {
        cmbReputationMin[t] = combo(QStringLiteral("cmbReputationMin%1").arg(t), 100);
        cmbReputationMax[t] = combo(QStringLiteral("cmbReputationMax%1").arg(t), 100);
        QComboBox* lo = cmbReputationMin[t];
        QComboBox* hi = cmbReputationMax[t];
        auto* loDec = button(qPrintable(QStringLiteral("cmdReputationMinDec%1").arg(t)), QStringLiteral("-"));
        auto* loInc = button(qPrintable(QStringLiteral("cmdReputationMinInc%1").arg(t)), QStringLiteral("+"));
        auto* hiDec = button(qPrintable(QStringLiteral("cmdReputationMaxDec%1").arg(t)), QStringLiteral("-"));
        auto* hiInc = button(qPrintable(QStringLiteral("cmdReputationMaxInc%1").arg(t)), QStringLiteral("+"));
        connect(loDec, &QPushButton::clicked, this, [=] { stepBy(lo, -1); });
        connect(loInc, &QPushButton::clicked, this, [=] { stepBy(lo, 1); });
        connect(hiDec, &QPushButton::clicked, this, [=] { stepBy(hi, -1); });
        connect(hiInc, &QPushButton::clicked, this, [=] { stepBy(hi, 1); });
        pair(tr("%1 reputation").arg(QLatin1String(kMarkets[t])), lo, loDec, loInc, hi, hiDec, hiInc);
    }
    optName = new QCheckBox(tr("Only the name"), this);
    optName->setObjectName(QStringLiteral("optName"));
    txtName = new QLineEdit(this);
    txtName->setObjectName(QStringLiteral("txtName"));
    grid->addWidget(optName, row, 0);
    grid->addWidget(txtName, row, 1, 1, 7);
    ++row;

    auto* buttons = new QHBoxLayout;
    cmdReset = makeButton(QStringLiteral("cmdReset"), tr("Reset"), Glyph::trash);
    cmdCancel = makeButton(QStringLiteral("cmdCancel"), tr("Cancel"), Glyph::no);
    cmdOk = makeButton(QStringLiteral("cmdOk"), tr("OK"), Glyph::ok, ButtonRole::primary);
    buttons->addWidget(cmdReset);
    buttons->addStretch(1);
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdOk);
    l->addLayout(buttons);
    connect(cmdReset, &QPushButton::clicked, this, &frmBandFilter::cmdResetClick);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdOk, &QPushButton::clicked, this, [this] {
        cmdOkClick();
        accept();
    });
    showFilter();
}

void frmBandFilter::showFilter() {
    const Game& g = main_.game();
    const double rate = displayRate(g);
    optStyle->setChecked(filter_.style != 0);
    const int s = cmbStyle->findData(static_cast<int>(filter_.style));
    cmbStyle->setCurrentIndex(s < 0 ? 0 : s);
    chkUnsigned->setChecked(filter_.label == 0);
    cmbAdvanceMin->setCurrentText(moneyText(moneyToDouble(filter_.advanceMin) * rate));
    cmbAdvanceMax->setCurrentText(moneyText(moneyToDouble(filter_.advanceMax) * rate));
    cmbRoyaltyMin->setCurrentIndex(filter_.royaltyMin);
    cmbRoyaltyMax->setCurrentIndex(std::min<int>(filter_.royaltyMax, 100));
    cmbGigMin->setCurrentIndex(static_cast<int>(filter_.gigMin));
    cmbGigMax->setCurrentIndex(std::min(static_cast<int>(filter_.gigMax), 100));
    cmbAgeMin->setCurrentIndex(std::min<int>(filter_.ageMin, 99));
    cmbAgeMax->setCurrentIndex(std::min<int>(filter_.ageMax, 99));
    for (std::size_t t = 0; t < 5; ++t) {
        cmbReputationMin[t]->setCurrentIndex(std::min<int>(filter_.reputationMin[t], 100));
        cmbReputationMax[t]->setCurrentIndex(std::min<int>(filter_.reputationMax[t], 100));
    }
    optName->setChecked(!trim(filter_.name).empty());
    txtName->setText(qs(filter_.name));
}

void frmBandFilter::cmdOkClick() {
    Game& g = main_.game();
    BandFilter f = filter_;
    f.style = optStyle->isChecked() ? static_cast<uint8_t>(cmbStyle->currentData().toInt()) : 0;
    f.label = chkUnsigned->isChecked() ? 0 : -1;
    f.advanceMin = moneyFromDisplay(g, moneyFrom(cmbAdvanceMin));
    f.advanceMax = moneyFromDisplay(g, moneyFrom(cmbAdvanceMax));
    f.royaltyMin = static_cast<uint8_t>(cmbRoyaltyMin->currentIndex());
    f.royaltyMax = static_cast<uint8_t>(cmbRoyaltyMax->currentIndex());
    f.gigMin = static_cast<float>(cmbGigMin->currentIndex());
    f.gigMax = static_cast<float>(cmbGigMax->currentIndex());
    f.ageMin = static_cast<uint8_t>(cmbAgeMin->currentIndex());
    f.ageMax = static_cast<uint8_t>(cmbAgeMax->currentIndex());
    for (std::size_t t = 0; t < 5; ++t) {
        f.reputationMin[t] = static_cast<uint8_t>(cmbReputationMin[t]->currentIndex());
        f.reputationMax[t] = static_cast<uint8_t>(cmbReputationMax[t]->currentIndex());
    }
    f.name = optName->isChecked() ? txtName->text().toStdString() : std::string();
    filter_ = f;
}

void frmBandFilter::cmdResetClick() {
    resetBandFilter(main_.game(), filter_);
    showFilter();
}

}  // namespace trovane::screens
