#include "screens/disc_screens.h"

#include <QChart>
#include <QChartView>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineSeries>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QValueAxis>
#include <algorithm>

#include "floor/formats.h"
#include "production/businesses.h"
#include "production/chart_history.h"
#include "production/charts.h"
#include "production/disc_release.h"
#include "production/weekly_sales.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }
constexpr std::array<const char*, 5> kTerritories = {"UK", "US", "Europe", "Oceania", "Other"};
constexpr std::array<const char*, 5> kDistributorLines = {
    "UK : ", "North America : ", "Europe : ", "Oceania : ", "Rest Of The World : "};
std::size_t at(int v) { return static_cast<std::size_t>(v); }

QTableWidgetItem* cell(const QString& text, bool number = false) {
    auto* item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    if (number) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

QString firmName(Game& g, int16_t firm) {
    if (firm < 1 || firm >= g.business.recordCount()) return {};
    g.business.read(firm);
    return qs(trim(g.business->name.value));
}

bool playersDisc(Game& g, int16_t disc) {
    g.disc.read(disc);
    return g.player.playerLabel > 0 && g.disc->label == g.player.playerLabel;
}

bool onSale(const DiscRecord& d, double today) {
    return std::any_of(d.releaseDate.begin(), d.releaseDate.end(), [&](double r) { return r > kNoDate && r <= today; });
}

QLabel* refusalLabel(QWidget* parent) {
    auto* l = makeBody(QString(), parent);
    l->setObjectName(QStringLiteral("lblRefusal"));
    l->setWordWrap(true);
    return l;
}

}  // namespace

// ---------------------------------------------------------------- Disc Details

frmDiscDetails::frmDiscDetails(mdiParentForm& main, int16_t disc, QWidget* parent)
    : ScreenPage(main, QStringLiteral("frmDiscDetails"), QStringLiteral("Disc Details"), parent), disc_(disc) {
    cmdExtra = makeButton(QStringLiteral("cmdExtra"), QStringLiteral("Disc Options"), Glyph::more);
    headingExtras()->addWidget(cmdExtra);
    auto* row = new QHBoxLayout;
    flxTracks = new QTableWidget(0, 1, this);
    flxTracks->setObjectName(QStringLiteral("flxTracks"));
    flxTracks->setHorizontalHeaderLabels({QStringLiteral("Tracks")});
    flxTracks->horizontalHeader()->setStretchLastSection(true);
    row->addWidget(flxTracks, 1);
    flxTerritories = new QTableWidget(5, 7, this);
    flxTerritories->setObjectName(QStringLiteral("flxTerritories"));
    flxTerritories->setHorizontalHeaderLabels(
        {QStringLiteral("Released"), QStringLiteral("Distributor"), QStringLiteral("Stock"), QStringLiteral("Order"),
         QStringLiteral("Sales"), QStringLiteral("Award"), QStringLiteral("Position")});
    QStringList names;
    for (const char* t : kTerritories) names << QString::fromLatin1(t);
    flxTerritories->setVerticalHeaderLabels(names);
    flxTerritories->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    flxTerritories->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    row->addWidget(flxTerritories, 3);
    body()->addLayout(row, 1);
    chrtRun = new QChartView(new QChart(), this);
    chrtRun->setObjectName(QStringLiteral("chrtRun"));
    chrtRun->setRenderHint(QPainter::Antialiasing);
    chrtRun->chart()->setBackgroundBrush(palette::surface);
    chrtRun->chart()->legend()->setLabelColor(palette::text);
    chrtRun->setMinimumHeight(220);
    body()->addWidget(chrtRun, 1);
    connect(cmdExtra, &QPushButton::clicked, this, [this] {
        frmDiscOptions options(main_.game(), disc_, this);
        connect(options.lblSetReleaseDate, &QPushButton::clicked, &options, [this, &options] {
            options.accept();
            frmSetReleaseDate(main_.game(), disc_, this).exec();
            refresh();
        });
        connect(options.lblPressDiscs, &QPushButton::clicked, &options, [this, &options] {
            options.accept();
            frmPressDiscs(main_.game(), disc_, this).exec();
            refresh();
        });
        options.exec();
    });
    refresh();
}

void frmDiscDetails::refresh() {
    Game& g = main_.game();
    g.disc.read(disc_);
    const DiscRecord d = g.disc.rec;
    std::string band;
    if (d.band > 0 && d.band < g.band.recordCount()) {
        g.band.read(d.band);
        band = trim(g.band->name.value);
    }
    setSubtitle(qs(trim(d.title.value) + (d.isSingle ? " (single) by " : " (album) by ") + band));
    flxTracks->setRowCount(0);
    for (std::size_t i = 0; i < std::min<std::size_t>(d.trackCount, d.tracks.size()); ++i) {
        if (d.tracks[i] < 1 || d.tracks[i] >= g.song.recordCount()) continue;
        g.song.read(d.tracks[i]);
        int r = flxTracks->rowCount();
        flxTracks->insertRow(r);
        flxTracks->setItem(r, 0, cell(qs(trim(g.song->title.value))));
    }
    for (int t = 0; t < 5; ++t) {
        auto i = at(t);
        g.disc.read(disc_);
        std::string position = currentPosition(g, t);
        flxTerritories->setItem(
            t, 0, cell(d.releaseDate[i] > kNoDate ? qs(formatDate(d.releaseDate[i], "d/m/yyyy")) : QString()));
        flxTerritories->setItem(t, 1, cell(firmName(g, d.distributor[i])));
        flxTerritories->setItem(t, 2, cell(qs(formatNumber(d.stock[i], "###,###,##0")), true));
        flxTerritories->setItem(t, 3, cell(qs(formatNumber(d.pressingOrder[i], "###,###,##0")), true));
        flxTerritories->setItem(t, 4, cell(qs(formatNumber(d.totalSales[i], "###,###,##0")), true));
        flxTerritories->setItem(t, 5, cell(QString::fromLatin1(awardLetter(t, d.totalSales[i]))));
        flxTerritories->setItem(t, 6, cell(qs(position), true));
    }
    QChart* chart = chrtRun->chart();
    chart->removeAllSeries();
    // A removed axis comes back to us to delete.
    for (QAbstractAxis* axis : chart->axes()) {
        chart->removeAxis(axis);
        delete axis;
    }
    std::array<QLineSeries*, kChartCount> lines{};
    std::array<int, kChartCount> weeks{};
    int most = 1;
    for (const RunWeek& w : discRun(g, disc_)) {
        auto c = at(w.chart);
        if (!lines[c]) {
            lines[c] = new QLineSeries;
            lines[c]->setName(QString::fromLatin1(chartTitle(w.chart)));
        }
        lines[c]->append(++weeks[c], w.position);
        most = std::max(most, weeks[c]);
    }
    auto* x = new QValueAxis;
    x->setRange(1, std::max(most, 2));
    x->setTickType(QValueAxis::TicksDynamic);
    x->setTickAnchor(1);
    x->setTickInterval(std::max(1, most / 8));
    x->setLabelFormat(QStringLiteral("%d"));
    x->setTitleText(QStringLiteral("Week"));
    auto* y = new QValueAxis;
    y->setRange(1, 100);
    y->setReverse(true);
    y->setLabelFormat(QStringLiteral("%d"));
    y->setTitleText(QStringLiteral("Position"));
    for (QValueAxis* a : {x, y}) {
        a->setLabelsColor(palette::mutedText);
        a->setTitleBrush(palette::mutedText);
    }
    chart->addAxis(x, Qt::AlignBottom);
    chart->addAxis(y, Qt::AlignLeft);
    for (QLineSeries* s : lines) {
        if (!s) continue;
        chart->addSeries(s);
        s->attachAxis(x);
        s->attachAxis(y);
    }
    g.disc.read(disc_);
    bool players = playersDisc(g, disc_);
    cmdExtra->setEnabled(players);
}

frmDiscOptions::frmDiscOptions(Game& g, int16_t disc, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmDiscOptions"));
    setWindowTitle(QStringLiteral("Disc Options"));
    auto* layout = new QVBoxLayout(this);
    lblSetReleaseDate =
        makeButton(QStringLiteral("lblSetReleaseDate"), QStringLiteral("Set Release Date"), Glyph::calendar);
    lblPressDiscs = makeButton(QStringLiteral("lblPressDiscs"), QStringLiteral("Press Discs"), Glyph::record);
    layout->addWidget(lblSetReleaseDate);
    layout->addWidget(lblPressDiscs);
    g.disc.read(disc);
    const DiscRecord d = g.disc.rec;
    bool players = g.player.playerLabel > 0 && d.label == g.player.playerLabel;
    bool recorded = d.trackCount > 0 && d.tracksRecorded >= d.trackCount;
    bool dated = std::any_of(d.releaseDate.begin(), d.releaseDate.end(), [](double r) { return r > kNoDate; });
    lblSetReleaseDate->setEnabled(players && recorded && !onSale(d, g.gameDate));
    lblPressDiscs->setEnabled(players && recorded && dated);
}

// ---------------------------------------------------------------- Release date

frmSetReleaseDate::frmSetReleaseDate(Game& g, int16_t disc, QWidget* parent) : QDialog(parent), g_(g), disc_(disc) {
    setObjectName(QStringLiteral("frmSetReleaseDate"));
    setWindowTitle(QStringLiteral("Set Release Date"));
    auto* layout = new QVBoxLayout(this);
    auto* grid = new QGridLayout;
    g.disc.read(disc);
    for (int t = 0; t < 5; ++t) {
        auto i = at(t);
        chkTerritories[i] = new QCheckBox(QString::fromLatin1(kTerritories[i]), this);
        chkTerritories[i]->setObjectName(QStringLiteral("chkTerritories%1").arg(t));
        cmbDay[i] = new ComboBox(this);
        cmbMonth[i] = new ComboBox(this);
        cmbYear[i] = new ComboBox(this);
        cmbDay[i]->setObjectName(QStringLiteral("cmbDay%1").arg(t));
        cmbMonth[i]->setObjectName(QStringLiteral("cmbMonth%1").arg(t));
        cmbYear[i]->setObjectName(QStringLiteral("cmbYear%1").arg(t));
        int year = yearOf(g.gameDate);
        cmbYear[i]->addItem(QString::number(year), year);
        cmbYear[i]->addItem(QString::number(year + 1), year + 1);
        grid->addWidget(chkTerritories[i], t, 0);
        grid->addWidget(cmbDay[i], t, 1);
        grid->addWidget(cmbMonth[i], t, 2);
        grid->addWidget(cmbYear[i], t, 3);
        fillMonths(t);
        connect(cmbYear[i], &QComboBox::currentIndexChanged, this, [this, t] { fillMonths(t); });
        connect(cmbMonth[i], &QComboBox::currentIndexChanged, this, [this, t] { fillDays(t); });
        chkTerritories[i]->setChecked(cmbDay[i]->count() > 0);
        chkTerritories[i]->setEnabled(cmbDay[i]->count() > 0);
    }
    layout->addLayout(grid);
    lblRefusal = refusalLabel(this);
    layout->addWidget(lblRefusal);
    auto* buttons = new QHBoxLayout;
    cmdCancel = makeButton(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), Glyph::no);
    cmdConfirm = makeButton(QStringLiteral("cmdConfirm"), QStringLiteral("Confirm"), Glyph::ok, ButtonRole::primary);
    buttons->addStretch();
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdConfirm);
    layout->addLayout(buttons);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdConfirm, &QPushButton::clicked, this, &frmSetReleaseDate::confirm);
}

void frmSetReleaseDate::fillMonths(int t) {
    auto i = at(t);
    int year = cmbYear[i]->currentData().toInt();
    cmbMonth[i]->blockSignals(true);
    cmbMonth[i]->clear();
    // A month is listed only when it holds a date the rules allow.
    g_.disc.read(disc_);
    g_.band.read(g_.disc->band);
    double first = firstOfferedReleaseDate(g_, t);
    for (unsigned m = 1; m <= 12; ++m) {
        double end = serialFromCivil(year, m, daysInMonth(year, m));
        if (first == 0 || end < first) continue;
        if (g_.band->contractEnd > kNoDate && serialFromCivil(year, m, 1) > g_.band->contractEnd) continue;
        cmbMonth[i]->addItem(qs(std::string(monthName(m))), m);
    }
    cmbMonth[i]->blockSignals(false);
    fillDays(t);
}

void frmSetReleaseDate::fillDays(int t) {
    auto i = at(t);
    cmbDay[i]->clear();
    if (cmbMonth[i]->count() == 0) return;
    int year = cmbYear[i]->currentData().toInt();
    unsigned month = cmbMonth[i]->currentData().toUInt();
    double day = serialFromCivil(year, month, 1);
    while (weekdayOf(day) != 2) day += 1;
    for (; monthOf(day) == month; day += 7) {
        g_.disc.read(disc_);
        g_.band.read(g_.disc->band);
        if (releaseDateRefusal(g_, t, day).empty()) cmbDay[i]->addItem(QString::number(dayOf(day)), day);
    }
}

double frmSetReleaseDate::chosenDate(int t) const {
    auto i = at(t);
    return cmbDay[i]->count() == 0 ? 0 : cmbDay[i]->currentData().toDouble();
}

void frmSetReleaseDate::confirm() {
    std::array<double, 5> dates{};
    bool any = false;
    for (int t = 0; t < 5; ++t) {
        if (!chkTerritories[at(t)]->isChecked()) continue;
        dates[at(t)] = chosenDate(t);
        any = any || dates[at(t)] > 0;
    }
    if (!any) return reject();  // nothing ticked: as Cancel
    std::string refusal = setReleaseDatesRefusal(g_, disc_, dates);
    if (!refusal.empty()) return lblRefusal->setText(qs(refusal));
    setReleaseDates(g_, disc_, dates);
    accept();
}

// ---------------------------------------------------------------- Pressing

frmPressDiscs::frmPressDiscs(Game& g, int16_t disc, QWidget* parent) : QDialog(parent), g_(g), disc_(disc) {
    setObjectName(QStringLiteral("frmPressDiscs"));
    setWindowTitle(QStringLiteral("Press Discs"));
    auto* layout = new QVBoxLayout(this);
    g.disc.read(disc);
    PressForecast forecast = pressForecast(g);
    lblForecast = makeBody(qs(forecast.text), this);
    lblForecast->setObjectName(QStringLiteral("lblForecast"));
    lblForecast->setWordWrap(true);
    layout->addWidget(lblForecast);
    g.disc.read(disc);
    const DiscRecord d = g.disc.rec;
    auto* grid = new QGridLayout;
    for (int t = 0; t < 5; ++t) {
        auto i = at(t);
        cmbQuantities[i] = new ComboBox(this);
        cmbQuantities[i]->setObjectName(QStringLiteral("cmbQuantities%1").arg(t));
        for (int32_t q : kPressQuantities) cmbQuantities[i]->addItem(qs(formatNumber(q, "###,###,##0")), q);
        cmdQuantitiesDec[i] = makeButton(QStringLiteral("cmdQuantitiesDec%1").arg(t), QStringLiteral("-"), Glyph::back);
        cmdQuantitiesInc[i] = makeButton(QStringLiteral("cmdQuantitiesInc%1").arg(t), QStringLiteral("+"), Glyph::more);
        bool released = d.releaseDate[i] > kNoDate;
        for (QWidget* w : {static_cast<QWidget*>(cmbQuantities[i]), static_cast<QWidget*>(cmdQuantitiesDec[i]),
                           static_cast<QWidget*>(cmdQuantitiesInc[i])})
            w->setEnabled(released);
        grid->addWidget(makeCaption(QString::fromLatin1(kTerritories[i]), this), t, 0);
        grid->addWidget(cmdQuantitiesDec[i], t, 1);
        grid->addWidget(cmbQuantities[i], t, 2);
        grid->addWidget(cmdQuantitiesInc[i], t, 3);
        connect(cmdQuantitiesInc[i], &QPushButton::clicked, this, [this, i] {
            cmbQuantities[i]->setCurrentIndex(
                std::min(cmbQuantities[i]->currentIndex() + 1, cmbQuantities[i]->count() - 1));
        });
        connect(cmdQuantitiesDec[i], &QPushButton::clicked, this,
                [this, i] { cmbQuantities[i]->setCurrentIndex(std::max(cmbQuantities[i]->currentIndex() - 1, 0)); });
        connect(cmbQuantities[i], &QComboBox::currentIndexChanged, this, &frmPressDiscs::updateCost);
    }
    layout->addLayout(grid);
    cmbPlant = new ComboBox(this);
    cmbPlant->setObjectName(QStringLiteral("cmbPlant"));
    for (int32_t n = 1; n < g.business.recordCount(); ++n) {
        g.business.read(n);
        if (g.business->kind != 1 || g.business->open != -1) continue;
        cmbPlant->addItem(
            qs(trim(g.business->name.value) + " (" + formatNumber(plantDailyCapacity(g), "###,###,##0") + " a day)"),
            n);
    }
    layout->addWidget(captioned(QStringLiteral("Plant"), cmbPlant));
    lblCost = makeBody(QString(), this);
    lblCost->setObjectName(QStringLiteral("lblCost"));
    layout->addWidget(lblCost);
    lblRefusal = refusalLabel(this);
    layout->addWidget(lblRefusal);
    cmdConfirm = makeButton(QStringLiteral("cmdConfirm"), QStringLiteral("Confirm"), Glyph::ok, ButtonRole::primary);
    layout->addWidget(cmdConfirm, 0, Qt::AlignRight);
    connect(cmbPlant, &QComboBox::currentIndexChanged, this, &frmPressDiscs::updateCost);
    connect(cmdConfirm, &QPushButton::clicked, this, &frmPressDiscs::confirm);
    updateCost();
}

std::array<int32_t, 5> frmPressDiscs::copies() const {
    std::array<int32_t, 5> out{};
    for (int t = 0; t < 5; ++t) out[at(t)] = cmbQuantities[at(t)]->currentData().toInt();
    return out;
}

void frmPressDiscs::updateCost() {
    int32_t total = 0;
    for (int32_t c : copies()) total += c;
    int16_t plant = static_cast<int16_t>(cmbPlant->currentData().toInt());
    bool ours = false;
    if (plant > 0) {
        g_.business.read(plant);
        ours = g_.player.playerLabel > 0 && g_.business->owner == g_.player.playerLabel;
    }
    if (total == 0)
        lblCost->setText(QString());
    else if (ours)
        lblCost->setText(QStringLiteral("Free (Plant owned by your label)"));
    else
        lblCost->setText(qs("Estimated Cost : " + formatMoney(g_, pressingCost(total), "###,###,##0")));
}

void frmPressDiscs::confirm() {
    int16_t plant = static_cast<int16_t>(cmbPlant->currentData().toInt());
    std::string refusal = pressDiscsRefusal(g_, disc_, plant, copies());
    if (!refusal.empty()) return lblRefusal->setText(qs(refusal));
    pressDiscs(g_, disc_, plant, copies());
    accept();
}

// ---------------------------------------------------------------- Distributors

frmChooseDistributor::frmChooseDistributor(Game& g, int16_t disc, QWidget* parent)
    : QDialog(parent), g_(g), disc_(disc) {
    setObjectName(QStringLiteral("frmChooseDistributor"));
    setWindowTitle(QStringLiteral("Choose Distributor"));
    auto* layout = new QVBoxLayout(this);
    auto* grid = new QGridLayout;
    g.disc.read(disc);
    const DiscRecord d = g.disc.rec;
    g.band.read(d.band);
    for (int t = 0; t < 5; ++t) {
        auto i = at(t);
        double date = d.releaseDate[i];
        if (date <= kNoDate || date < g.gameDate || date > g.gameDate + 7) continue;
        int16_t proposal = d.distributor[i];
        if (proposal < 1) {
            g.disc.rec = d;
            proposal = rivalChooseDistributor(g, t);
        }
        cmbFirm[i] = new ComboBox(this);
        cmbFirm[i]->setObjectName(QStringLiteral("cmbFirm%1").arg(t));
        for (int32_t n = 1; n < g.business.recordCount(); ++n) {
            g.business.read(n);
            if (g.business->kind == 2 && g.business->open == -1)
                cmbFirm[i]->addItem(qs(trim(g.business->name.value) + " (" +
                                       formatNumber(distributorDailyCapacity(g), "###,###,##0") + " a day)"),
                                    n);
        }
        cmbFirm[i]->setCurrentIndex(std::max(0, cmbFirm[i]->findData(proposal)));
        cmbFirm[i]->setEnabled(false);
        cmdChange[i] = makeButton(QStringLiteral("cmdChange%1").arg(t), QStringLiteral("Change"), Glyph::find);
        connect(cmdChange[i], &QPushButton::clicked, this, [this, i] { cmbFirm[i]->setEnabled(true); });
        int row = grid->rowCount();
        grid->addWidget(makeCaption(QString::fromLatin1(kDistributorLines[i]), this), row, 0);
        grid->addWidget(cmbFirm[i], row, 1);
        grid->addWidget(cmdChange[i], row, 2);
    }
    layout->addLayout(grid);
    lblRefusal = refusalLabel(this);
    layout->addWidget(lblRefusal);
    cmdConfirm = makeButton(QStringLiteral("cmdConfirm"), QStringLiteral("Confirm"), Glyph::ok, ButtonRole::primary);
    layout->addWidget(cmdConfirm, 0, Qt::AlignRight);
    connect(cmdConfirm, &QPushButton::clicked, this, &frmChooseDistributor::confirm);
}

void frmChooseDistributor::confirm() {
    std::array<int16_t, 5> firms{};
    for (int t = 0; t < 5; ++t)
        if (cmbFirm[at(t)]) firms[at(t)] = static_cast<int16_t>(cmbFirm[at(t)]->currentData().toInt());
    std::string refusal = distributorsRefusal(g_, disc_, firms);
    if (!refusal.empty()) return lblRefusal->setText(qs(refusal));
    chooseDistributors(g_, disc_, firms);
    accept();
}

}  // namespace trovane::screens
