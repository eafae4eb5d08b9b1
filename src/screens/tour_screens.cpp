#include "screens/tour_screens.h"

#include <QButtonGroup>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "floor/formats.h"
#include "live/gigs.h"
#include "live/sponsors.h"
#include "live/tour_provisions.h"
#include "live/tours.h"
#include "rivals/rival_touring.h"
#include "schedule/schedule.h"
#include "screens/choose_date.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

QTableWidgetItem* numberItem(int64_t value, const QString& shown = {}) {
    auto* item = new QTableWidgetItem;
    item->setData(Qt::DisplayRole, shown.isEmpty() ? QVariant::fromValue<qlonglong>(value) : QVariant(shown));
    item->setData(Qt::UserRole, QVariant::fromValue<qlonglong>(value));
    return item;
}

QTableWidget* makeGrid(const char* name, const QStringList& headers, QWidget* parent) {
    auto* t = new QTableWidget(0, static_cast<int>(headers.size()), parent);
    t->setObjectName(QString::fromLatin1(name));
    t->setHorizontalHeaderLabels(headers);
    t->setEditTriggers(QAbstractItemView::NoEditTriggers);
    t->setSelectionBehavior(QAbstractItemView::SelectRows);
    t->setSelectionMode(QAbstractItemView::SingleSelection);
    t->verticalHeader()->hide();
    t->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    t->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    return t;
}

struct AreaChoice {
    const char* caption;
    const char* code;
};
constexpr std::array<AreaChoice, 7> kAreas = {{{"England (the UK)", "E"},
                                               {"Europe", "E"},
                                               {"North America", "N"},
                                               {"South America", "S"},
                                               {"Asia", "A"},
                                               {"Oceania", "O"},
                                               {"Africa", "F"}}};

QString continentWord(const std::string& code) {
    for (std::size_t i = 1; i < kAreas.size(); ++i)
        if (code == kAreas[i].code) return QString::fromLatin1(kAreas[i].caption);
    return qs(code);
}

int16_t countryNamed(Game& g, const std::string& name) {
    for (int32_t n = 1; n < g.country.recordCount(); ++n) {
        g.country.read(n);
        if (trim(g.country->name.value) == name) return static_cast<int16_t>(n);
    }
    return 0;
}

// The crowd the tour's band would draw at the venue, as the grid shows it.
int32_t expectedCrowd(Game& g, int16_t tour, int16_t venue) {
    g.tour.read(tour);
    g.band.read(g.tour->band);
    g.venue.read(venue);
    g.city.read(g.venue->city);
    g.country.read(g.city->country);
    const auto& r = g.band->reputation;
    const int rep = r[static_cast<std::size_t>(venueMarket(g))];
    auto standing = toInteger((8.0 * r[0] + 10.0 * r[1] + 7.0 * r[2] + 5.0 * r[3] + 3.0 * r[4]) / 7);
    return expectedAttendance(g, 1, rep, standing);
}

std::string bandName(Game& g, int16_t band) {
    g.band.read(band);
    return trim(g.band->name.value);
}

}  // namespace

// ---- frmConfirm ----

frmConfirm::frmConfirm(mdiParentForm& main, const QString& title, const std::string& question, bool okOnly)
    : AlbumDialog(main, QStringLiteral("frmConfirm"), title) {
    lblQuestion = makeBody(qs(question), this);
    lblQuestion->setObjectName(QStringLiteral("lblQuestion"));
    lblQuestion->setWordWrap(true);
    body_->addWidget(lblQuestion);
    cmdNo = makeButton(QStringLiteral("cmdNo"), tr("No"), Glyph::no, ButtonRole::secondary, this);
    cmdYes = makeButton(QStringLiteral("cmdYes"), okOnly ? tr("OK") : tr("Yes"), Glyph::ok, ButtonRole::primary, this);
    cmdNo->setVisible(!okOnly);
    buttons_->addWidget(cmdNo);
    buttons_->addWidget(cmdYes);
    cmdYes->setDefault(true);
    connect(cmdYes, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdNo, &QPushButton::clicked, this, &QDialog::reject);
}

// ---- frmArrangeTour ----

frmArrangeTour::frmArrangeTour(mdiParentForm& main, int16_t band)
    : AlbumDialog(main, QStringLiteral("frmArrangeTour"), tr("Arrange Tour")), band_(band) {
    Game& g = main.game();
    lblPrompt = makeBody(qs("Please choose the area you would like " + bandName(g, band) + " to tour :-"), this);
    lblPrompt->setObjectName(QStringLiteral("lblPrompt"));
    lblPrompt->setWordWrap(true);
    body_->addWidget(lblPrompt);
    auto* group = new QButtonGroup(this);
    for (std::size_t i = 0; i < kAreas.size(); ++i) {
        optAreas[i] = new QRadioButton(tr(kAreas[i].caption), this);
        optAreas[i]->setObjectName(QStringLiteral("optAreas%1").arg(i));
        group->addButton(optAreas[i], static_cast<int>(i));
        body_->addWidget(optAreas[i]);
        connect(optAreas[i], &QRadioButton::toggled, this, [this](bool on) {
            if (on) areaChosen();
        });
    }
    body_->addWidget(makeBody(tr("Please choose the nation you would like "), this));
    cmbNation = new ComboBox(this);
    cmbNation->setObjectName(QStringLiteral("cmbNation"));
    body_->addWidget(cmbNation);
    cmdCancel = makeButton(QStringLiteral("cmdCancel"), tr("Cancel"), Glyph::no, ButtonRole::secondary, this);
    cmdAuto = makeButton(QStringLiteral("cmdAuto"), tr("Assistant"), Glyph::more, ButtonRole::secondary, this);
    cmdOk = makeButton(QStringLiteral("cmdOk"), tr("Choose Venues"), Glyph::ok, ButtonRole::primary, this);
    buttons_->addWidget(cmdCancel);
    buttons_->addWidget(cmdAuto);
    buttons_->addWidget(cmdOk);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdOk, &QPushButton::clicked, this, [this] { arrangeByHand(); });
    connect(cmdAuto, &QPushButton::clicked, this, [this] { arrangeByAssistant(); });
    optAreas[0]->setChecked(true);
    optAreas[0]->setFocus();
}

int frmArrangeTour::area() const {
    for (std::size_t i = 0; i < optAreas.size(); ++i)
        if (optAreas[i]->isChecked()) return static_cast<int>(i);
    return 0;
}

void frmArrangeTour::areaChosen() {
    Game& g = main_.game();
    const int a = area();
    cmbNation->clear();
    if (a == 0) {
        cmbNation->addItem(tr("England"), countryNamed(g, "England"));
    } else {
        cmbNation->addItem(tr("All nations"), 0);
        for (int32_t n = 1; n < g.country.recordCount(); ++n) {
            g.country.read(n);
            if (trim(g.country->region.value) == kAreas[static_cast<std::size_t>(a)].code)
                cmbNation->addItem(qs(trim(g.country->name.value)), n);
        }
    }
    cmbNation->setEnabled(a != 0);
    // The assistant does not plan tours of Africa.
    cmdAuto->setEnabled(a != 6);
}

void frmArrangeTour::arrangeByHand() {
    Game& g = main_.game();
    const auto nation = static_cast<uint8_t>(cmbNation->currentData().toInt());
    int16_t tour = 0;
    if (!main_.guarded([&] {
            g.band.read(band_);
            tour = createTour(g, kAreas[static_cast<std::size_t>(area())].code, nation);
        }))
        return;
    accept();
    (new frmTourVenues(main_, tour))->open();
}

void frmArrangeTour::arrangeByAssistant() {
    Game& g = main_.game();
    const auto nation = static_cast<uint8_t>(cmbNation->currentData().toInt());
    AssistantTour planned;
    if (!main_.guarded(
            [&] { planned = planAssistantTour(g, band_, kAreas[static_cast<std::size_t>(area())].code, nation); }))
        return;
    if (planned.tour == 0) {
        refuse(planned.refusal);
        return;
    }
    accept();
    auto* ask = new frmConfirm(main_, tr("Confirm Tour"), planned.question);
    const int16_t tour = planned.tour;
    mdiParentForm& main = main_;
    connect(ask, &QDialog::accepted, &main, [&main, tour] { (new frmChooseProvisions(main, tour))->open(); });
    connect(ask, &QDialog::rejected, &main, [&main, tour] { main.guarded([&] { cancelTour(main.game(), tour); }); });
    ask->open();
}

// ---- frmTourVenues ----

frmTourVenues::frmTourVenues(mdiParentForm& main, int16_t tour)
    : AlbumDialog(main, QStringLiteral("frmTourVenues"), tr("Choose Venues")), tour_(tour) {
    Game& g = main.game();
    setMinimumSize(860, 600);
    flxVenues = makeGrid(
        "flxVenues", {tr("Name"), tr("City"), tr("Country"), tr("Continent"), tr("Capacity"), tr("Expected")}, this);
    std::vector<int16_t> venues;
    for (int32_t n = 1; n < g.venue.recordCount(); ++n)
        if (tourTakesVenue(g, tour, static_cast<int16_t>(n))) venues.push_back(static_cast<int16_t>(n));
    flxVenues->setRowCount(static_cast<int>(venues.size()));
    for (std::size_t i = 0; i < venues.size(); ++i) {
        const int32_t crowd = expectedCrowd(g, tour, venues[i]);
        const int row = static_cast<int>(i);
        auto* name = new QTableWidgetItem(qs(trim(g.venue->name.value)));
        name->setData(Qt::UserRole, venues[i]);
        flxVenues->setItem(row, 0, name);
        flxVenues->setItem(row, 1, new QTableWidgetItem(qs(trim(g.city->name.value))));
        flxVenues->setItem(row, 2, new QTableWidgetItem(qs(trim(g.country->name.value))));
        flxVenues->setItem(row, 3, new QTableWidgetItem(continentWord(trim(g.country->region.value))));
        flxVenues->setItem(row, 4, numberItem(g.venue->capacity, qs(formatNumber(g.venue->capacity, "###,###,##0"))));
        flxVenues->setItem(row, 5, numberItem(crowd, qs(formatNumber(crowd, "###,###,##0"))));
    }
    flxVenues->setSortingEnabled(true);
    if (!venues.empty()) flxVenues->selectRow(0);
    body_->addWidget(flxVenues, 1);
    lblGigs = makeBody(QString(), this);
    lblGigs->setObjectName(QStringLiteral("lblGigs"));
    lblGigs->setWordWrap(true);
    body_->addWidget(lblGigs);
    cmdCancel = makeButton(QStringLiteral("cmdCancel"), tr("Cancel Tour"), Glyph::no, ButtonRole::danger, this);
    cmdAddGig = makeButton(QStringLiteral("cmdAddGig"), tr("Add Gig"), Glyph::calendar, ButtonRole::secondary, this);
    cmdFinalise = makeButton(QStringLiteral("cmdFinalise"), tr("Finalise Tour"), Glyph::ok, ButtonRole::primary, this);
    buttons_->addWidget(cmdCancel);
    buttons_->addWidget(cmdAddGig);
    buttons_->addWidget(cmdFinalise);
    connect(flxVenues, &QTableWidget::cellActivated, this, [this](int, int) { addGig(); });
    connect(cmdAddGig, &QPushButton::clicked, this, [this] { addGig(); });
    // Cancel, or Escape, removes the tour as it stands.
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(this, &QDialog::rejected, this, [this] { main_.guarded([this] { cancelTour(main_.game(), tour_); }); });
    connect(cmdFinalise, &QPushButton::clicked, this, [this] {
        Game& g = main_.game();
        g.tour.read(tour_);
        if (g.tour->gigCount == 0) {
            refuse("The tour has no gigs yet: add one, or cancel the tour.");
            return;
        }
        auto* ask = new frmConfirm(main_, tr("Finalise Tour"), finaliseTourText(g, tour_));
        const int16_t tour = tour_;
        mdiParentForm& main = main_;
        connect(ask, &QDialog::accepted, this, [this, &main, tour] {
            accept();
            (new frmChooseProvisions(main, tour))->open();
        });
        ask->open();
    });
    showGigs();
    flxVenues->setFocus();
}

void frmTourVenues::showGigs() {
    Game& g = main_.game();
    g.tour.read(tour_);
    const TourRecord t = g.tour.rec;
    std::string text = t.gigCount == 0 ? "No gigs booked yet." : "Booked:";
    for (std::size_t i = 0; i < t.gigCount; ++i) {
        g.gig.read(t.gigs[i]);
        g.venue.read(g.gig->venue);
        text += (i ? ", " : " ") + formatDate(g.gig->gigDate, "d/m/yyyy") + " " + trim(g.venue->name.value);
    }
    lblGigs->setText(qs(text));
}

void frmTourVenues::addGig() {
    Game& g = main_.game();
    const int row = flxVenues->currentRow();
    if (row < 0) return;
    const auto venue = static_cast<int16_t>(flxVenues->item(row, 0)->data(Qt::UserRole).toInt());
    g.tour.read(tour_);
    if (g.tour->gigCount >= g.tour->gigs.size()) {
        (new frmConfirm(main_, tr("Can't Add Gig"), kCantAddGigText, true))->open();
        return;
    }
    const double earliest = earliestNextGig(g, venue).date;
    g.band.read(g.tour->band);
    auto* calendar = new frmChooseDate(main_, 2, earliest);
    calendar->setAttribute(Qt::WA_DeleteOnClose);
    connect(calendar, &frmChooseDate::dateChosen, this, [this, venue](double date) { dateChosen(venue, date); });
    calendar->open();
}

void frmTourVenues::dateChosen(int16_t venue, double date) {
    Game& g = main_.game();
    std::string why = tourGigRefusal(g, tour_, venue, date);
    if (why == kCantAddGigText) {
        (new frmConfirm(main_, tr("Can't Add Gig"), kCantAddGigText, true))->open();
        return;
    }
    if (!why.empty()) {
        refuse(why);
        return;
    }
    refuse({});
    g.tour.read(tour_);
    auto* ask = new frmConfirm(main_, tr("Confirm Gig Date"), confirmGigDateText(g, g.tour->band, venue, date));
    connect(ask, &QDialog::accepted, this, [this, venue, date] {
        main_.guarded([&] { addTourGig(main_.game(), tour_, venue, date); });
        showGigs();
    });
    ask->open();
}

// ---- frmChooseProvisions ----

frmChooseProvisions::frmChooseProvisions(mdiParentForm& main, int16_t tour)
    : AlbumDialog(main, QStringLiteral("frmChooseProvisions"), tr("Choose Provisions")), tour_(tour) {
    Game& g = main.game();
    setMinimumSize(760, 620);
    body_->addWidget(makeCaption(tr("Support bands (up to three)"), this));
    lstSupports = new QListWidget(this);
    lstSupports->setObjectName(QStringLiteral("lstSupports"));
    for (int16_t b : supportCandidates(g, tour)) {
        auto* item = new QListWidgetItem(qs(bandName(g, b)), lstSupports);
        item->setData(Qt::UserRole, b);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    if (lstSupports->count() == 0)
        new QListWidgetItem(tr("None of your acts is free for the whole tour."), lstSupports);
    lstSupports->setMaximumHeight(110);
    body_->addWidget(lstSupports);
    connect(lstSupports, &QListWidget::itemChanged, this, [this](QListWidgetItem* changed) {
        int checked = 0;
        for (int i = 0; i < lstSupports->count(); ++i)
            if (lstSupports->item(i)->checkState() == Qt::Checked) ++checked;
        if (checked > 3) changed->setCheckState(Qt::Unchecked);
    });
    g.tour.read(tour);
    auto levels = [&](const char* name, const QString& caption, std::string_view (*names)(int), int level) {
        body_->addWidget(makeCaption(caption, this));
        auto* box = new ComboBox(this);
        box->setObjectName(QString::fromLatin1(name));
        for (int i = 0; i < 5; ++i) box->addItem(qs(std::string(names(i))), i);
        box->setCurrentIndex(level);
        body_->addWidget(box);
        return box;
    };
    cmbContent = levels("cmbContent", tr("Content"), contentLevelName, g.tour->contentLevel);
    cmbHospitality = levels("cmbHospitality", tr("Hospitality"), hospitalityLevelName, g.tour->hospitalityLevel);
    cmbAccomodation =
        levels("cmbAccomodation", tr("Accommodation"), accommodationLevelName, g.tour->accommodationLevel);
    body_->addWidget(makeCaption(tr("Sponsors"), this));
    flxSponsors = makeGrid("flxSponsors", {tr("Product"), tr("Minimum"), tr("Fee per gig")}, this);
    std::vector<SponsorOffer> offers = fittingSponsors(g, tour);
    flxSponsors->setRowCount(static_cast<int>(offers.size()));
    for (std::size_t i = 0; i < offers.size(); ++i) {
        g.product.read(offers[i].product);
        auto* name = new QTableWidgetItem(qs(trim(g.product->name.value)));
        name->setData(Qt::UserRole, offers[i].product);
        flxSponsors->setItem(static_cast<int>(i), 0, name);
        flxSponsors->setItem(static_cast<int>(i), 1, numberItem(g.product->minimumReputation));
        flxSponsors->setItem(
            static_cast<int>(i), 2,
            numberItem(offers[i].feePerGig, qs(formatMoneyValue(g, offers[i].feePerGig, "###,###,##0"))));
    }
    body_->addWidget(flxSponsors, 1);
    cmdCancel = makeButton(QStringLiteral("cmdCancel"), tr("Cancel Tour"), Glyph::no, ButtonRole::danger, this);
    cmdConfirm = makeButton(QStringLiteral("cmdConfirm"), tr("Confirm"), Glyph::ok, ButtonRole::primary, this);
    buttons_->addWidget(cmdCancel);
    buttons_->addWidget(cmdConfirm);
    auto enable = [this] { cmdConfirm->setEnabled(provisionsConfirmable(main_.game(), tour_, chosenSponsor())); };
    connect(flxSponsors, &QTableWidget::itemSelectionChanged, this, enable);
    enable();
    // Cancel, or Escape, removes the tour as it stands.
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(this, &QDialog::rejected, this, [this] { main_.guarded([this] { cancelTour(main_.game(), tour_); }); });
    connect(cmdConfirm, &QPushButton::clicked, this, [this] { confirm(); });
    lstSupports->setFocus();
}

int16_t frmChooseProvisions::chosenSponsor() const {
    const int row = flxSponsors->currentRow();
    if (row < 0 || flxSponsors->selectedItems().isEmpty()) return 0;
    return static_cast<int16_t>(flxSponsors->item(row, 0)->data(Qt::UserRole).toInt());
}

void frmChooseProvisions::confirm() {
    Game& g = main_.game();
    const int16_t sponsor = chosenSponsor();
    if (sponsor == 0) {
        finish(0);
        return;
    }
    auto* ask = new frmConfirm(main_, tr("Confirm Sponsor"), confirmSponsorText(g, tour_, sponsor));
    connect(ask, &QDialog::accepted, this, [this, sponsor] { finish(sponsor); });
    ask->open();
}

void frmChooseProvisions::finish(int16_t sponsor) {
    Game& g = main_.game();
    std::vector<int16_t> supports;
    for (int i = 0; i < lstSupports->count(); ++i)
        if (lstSupports->item(i)->checkState() == Qt::Checked)
            supports.push_back(static_cast<int16_t>(lstSupports->item(i)->data(Qt::UserRole).toInt()));
    for (int16_t b : supports)
        if (std::string why = supportRefusal(g, tour_, b); !why.empty()) {
            refuse(why);
            return;
        }
    bool kept = false;
    if (!main_.guarded([&] {
            for (int16_t b : supports) addSupportBand(g, tour_, b);
            setTourLevels(g, tour_, cmbContent->currentIndex(), cmbHospitality->currentIndex(),
                          cmbAccomodation->currentIndex());
            if (sponsor > 0) setTourSponsor(g, tour_, sponsor);
            kept = finaliseTour(g, tour_);
        }))
        return;
    accept();
    if (kept) (new frmTourDetails(main_, tour_))->open();
}

// ---- frmTourDetails ----

frmTourDetails::frmTourDetails(mdiParentForm& main, int16_t tour)
    : AlbumDialog(main, QStringLiteral("frmTourDetails"), tr("Tour Details")), tour_(tour) {
    setMinimumSize(900, 600);
    lblSummary = makeBody(QString(), this);
    lblSummary->setObjectName(QStringLiteral("lblSummary"));
    lblSummary->setWordWrap(true);
    body_->addWidget(lblSummary);
    flxGigs = makeGrid("flxGigs",
                       {tr("Venue"), tr("Date"), tr("City"), tr("Country"), tr("Travel"), tr("Rest"), tr("Crowd"),
                        tr("Performance"), tr("Profit")},
                       this);
    body_->addWidget(flxGigs, 1);
    lblTotal = makeBody(QString(), this);
    lblTotal->setObjectName(QStringLiteral("lblTotal"));
    body_->addWidget(lblTotal);
    body_->addWidget(makeCaption(tr("Support bands"), this));
    lstSupports = new QListWidget(this);
    lstSupports->setObjectName(QStringLiteral("lstSupports"));
    lstSupports->setMaximumHeight(90);
    body_->addWidget(lstSupports);
    cmdRemoveSupport =
        makeButton(QStringLiteral("cmdRemoveSupport"), tr("Remove Support"), Glyph::no, ButtonRole::secondary, this);
    cmdClose = makeButton(QStringLiteral("cmdClose"), tr("Close"), Glyph::ok, ButtonRole::primary, this);
    buttons_->addWidget(cmdRemoveSupport);
    buttons_->addWidget(cmdClose);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdRemoveSupport, &QPushButton::clicked, this, [this] {
        QListWidgetItem* item = lstSupports->currentItem();
        if (item == nullptr) return;
        const auto band = static_cast<int16_t>(item->data(Qt::UserRole).toInt());
        main_.guarded([&] { removeSupportBand(main_.game(), tour_, band); });
        fill();
    });
    fill();
    cmdClose->setFocus();
}

void frmTourDetails::fill() {
    Game& g = main_.game();
    g.tour.read(tour_);
    const TourRecord t = g.tour.rec;
    std::string sponsor = "Sponsor : None";
    int32_t fee = 0;
    if (t.sponsorProduct > 0) {
        g.product.read(t.sponsorProduct);
        fee = sponsorFee(g.product->minimumReputation);
        sponsor = "Sponsor : " + trim(g.product->name.value) + ", " + formatMoneyValue(g, fee, "###,###,##0") +
                  " per gig (" + formatMoneyValue(g, static_cast<double>(fee) * t.gigCount, "###,###,##0") + " in all)";
    }
    lblSummary->setText(qs(tourSummary(g, tour_) + "\n" + sponsor));
    flxGigs->setRowCount(t.gigCount);
    int64_t total = 0;
    double previous = 0;
    for (std::size_t i = 0; i < t.gigCount; ++i) {
        g.gig.read(t.gigs[i]);
        const GigRecord gig = g.gig.rec;
        int travel = 0, rest = 0;
        for (double d = i ? previous + 1 : gig.gigDate; d < gig.gigDate; ++d)
            for (int32_t id : entriesOfDay(g, d)) {
                g.schedule.read(id);
                if (g.schedule->gig != t.gigs[i]) continue;
                travel += g.schedule->type == 10;
                rest += g.schedule->type == 11;
            }
        previous = gig.gigDate;
        g.venue.read(gig.venue);
        g.city.read(g.venue->city);
        g.country.read(g.city->country);
        const bool played = gig.attendance > 0;
        const int row = static_cast<int>(i);
        flxGigs->setItem(row, 0, new QTableWidgetItem(qs(trim(g.venue->name.value))));
        flxGigs->setItem(row, 1, new QTableWidgetItem(qs(formatDate(gig.gigDate, "d/m/yyyy"))));
        flxGigs->setItem(row, 2, new QTableWidgetItem(qs(trim(g.city->name.value))));
        flxGigs->setItem(row, 3, new QTableWidgetItem(qs(trim(g.country->name.value))));
        flxGigs->setItem(row, 4, numberItem(travel));
        flxGigs->setItem(row, 5, numberItem(rest));
        flxGigs->setItem(row, 6,
                         new QTableWidgetItem(played ? qs(formatNumber(gig.attendance, "###,###,##0")) : QString()));
        flxGigs->setItem(row, 7, new QTableWidgetItem(played ? QString::number(gig.overallQuality) : QString()));
        flxGigs->setItem(row, 8,
                         new QTableWidgetItem(played ? qs(formatMoneyValue(g, gig.profit, "###,###,##0")) : QString()));
        total += gig.profit;
    }
    lblTotal->setText(qs("Profit in all : " + formatMoneyValue(g, static_cast<double>(total), "###,###,###,##0")));
    lstSupports->clear();
    for (int16_t b : supportsOf(g, tour_)) {
        auto* item = new QListWidgetItem(qs(bandName(g, b)), lstSupports);
        item->setData(Qt::UserRole, b);
    }
    cmdRemoveSupport->setEnabled(lstSupports->count() > 0);
}

}  // namespace trovane::screens
