#include "screens/business_screens.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "floor/formats.h"
#include "production/businesses.h"
#include "production/recording.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/screen_page.h"
#include "screens/theme.h"
#include "world/strings.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

QString money(const Game& g, Money m) { return qs(formatMoney(g, m, "###,###,##0")); }

// A table item that sorts by the number behind its text.
class NumberItem : public QTableWidgetItem {
public:
    NumberItem(double value, const QString& shown) : QTableWidgetItem(shown) { setData(Qt::UserRole + 1, value); }
    bool operator<(const QTableWidgetItem& other) const override {
        return data(Qt::UserRole + 1).toDouble() < other.data(Qt::UserRole + 1).toDouble();
    }
};

QTableWidget* firmTable(QWidget* parent, const QStringList& headers) {
    auto* t = new QTableWidget(0, static_cast<int>(headers.size()), parent);
    t->setObjectName(QStringLiteral("flxBusinesses"));
    t->horizontalHeader()->setObjectName(QStringLiteral("lblFBLabels"));
    t->setHorizontalHeaderLabels(headers);
    t->setEditTriggers(QAbstractItemView::NoEditTriggers);
    t->setSelectionBehavior(QAbstractItemView::SelectRows);
    t->setSelectionMode(QAbstractItemView::SingleSelection);
    t->verticalHeader()->hide();
    t->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    t->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    return t;
}

std::string cityAndCountry(Game& g, int16_t city) {
    if (!g.city.readIfPresent(city)) return {};
    std::string text = trim(g.city->name.value);
    if (g.country.readIfPresent(g.city->country)) text += ", " + trim(g.country->name.value);
    return text;
}

QString kindTitle(int kind) {
    switch (kind) {
    case kStudio: return QObject::tr("Build New Studio");
    case kPlant: return QObject::tr("Build New Manufacturing Plant");
    default: return QObject::tr("Build New Distribution Firm");
    }
}

}  // namespace

// ---- frmBusinessDetails ----

frmBusinessDetails::frmBusinessDetails(QWidget* parent) : Card(parent) {
    setObjectName(QStringLiteral("frmBusinessDetails"));
    setMinimumWidth(260);
    lblName = makeSubtitle(QString(), this);
    for (auto [label, name] :
         {std::pair{&lblCity, "lblCity"}, std::pair{&lblQuality, "lblQuality"}, std::pair{&lblOwner, "lblOwner"},
          std::pair{&lblRunningCost, "lblRunningCost"}, std::pair{&lblCost, "lblCost"}}) {
        *label = makeBody(QString(), this);
        (*label)->setObjectName(QString::fromLatin1(name));
        (*label)->setWordWrap(true);
    }
    lblName->setObjectName(QStringLiteral("lblName"));
    lblName->setWordWrap(true);
    for (QLabel* l : {lblName, lblCity, lblQuality, lblOwner, lblRunningCost, lblCost}) content()->addWidget(l);
    content()->addStretch(1);
}

void frmBusinessDetails::showFirm(Game& g, int16_t firm, int sessions) {
    g.business.read(firm);
    const BusinessRecord f = g.business.rec;
    lblName->setText(qs(trim(f.name.value)));
    lblCity->setText(qs(cityAndCountry(g, f.city)));
    lblQuality->setText(tr("Quality : %1%").arg(f.quality));
    g.business.read(firm);
    if (f.owner > 0 && g.label.readIfPresent(f.owner))
        lblOwner->setText(tr("Owned by ") + qs(trim(g.label->name.value)));
    else
        lblOwner->setText(tr("Independent Company"));
    lblRunningCost->setText(money(g, moneyUnits(f.runningCost)) + tr(" per month"));
    g.business.read(firm);
    if (f.kind == kStudio) {
        if (sessions == 0)
            lblCost->setText(tr("Cost : ") + money(g, studioCost(g, 1)) + tr(" per day"));
        else if (f.owner == g.player.playerLabel && f.owner > 0)
            lblCost->setText(tr("Free (Studio owned by your label)"));
        else
            lblCost->setText(tr("Estimated Cost : ") + money(g, studioCost(g, sessions)));
    } else {
        int32_t capacity = f.kind == kPlant ? plantDailyCapacity(g) : distributorDailyCapacity(g);
        lblCost->setText(qs(formatNumber(capacity, "###,###,##0")) + tr(" units per day"));
    }
}

frmFirmCard::frmFirmCard(Game& g, int16_t firm, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmFirmCard"));
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(24, 20, 24, 18);
    details = new frmBusinessDetails(this);
    details->showFirm(g, firm, 0);
    setWindowTitle(details->lblName->text());
    l->addWidget(details, 1);
    cmdOk = addOkRow(this, l);
}

// ---- frmChooseStudio ----

frmChooseStudio::frmChooseStudio(mdiParentForm& main, int16_t disc)
    : AlbumDialog(main, QStringLiteral("frmChooseStudio"), tr("Choose Studio")), disc_(disc) {
    Game& g = main.game();
    setMinimumSize(900, 520);
    lblText = makeBody(qs(chooseStudioText(g, disc)), this);
    lblText->setObjectName(QStringLiteral("lblText"));
    lblText->setWordWrap(true);
    body_->addWidget(lblText);
    auto* row = new QHBoxLayout;
    flxBusinesses = firmTable(this, {tr("Name"), tr("City"), tr("Quality"), tr("Owner"), tr("Cost Per Day")});
    g.disc.read(disc);
    const int sessions = g.disc->trackCount * 2;
    std::vector<int16_t> firms = chooseBusiness(g, kStudio);
    flxBusinesses->setRowCount(static_cast<int>(firms.size()));
    for (std::size_t i = 0; i < firms.size(); ++i) {
        g.business.read(firms[i]);
        const BusinessRecord f = g.business.rec;
        const int r = static_cast<int>(i);
        auto* name = new QTableWidgetItem(qs(trim(f.name.value)));
        name->setData(Qt::UserRole, f.id);
        flxBusinesses->setItem(r, 0, name);
        flxBusinesses->setItem(r, 1,
                               new QTableWidgetItem(qs(g.city.readIfPresent(f.city) ? trim(g.city->name.value) : "")));
        flxBusinesses->setItem(r, 2, new NumberItem(f.quality, QStringLiteral("%1%").arg(f.quality)));
        std::string owner = f.owner > 0 && g.label.readIfPresent(f.owner) ? trim(g.label->name.value) : "Independent";
        flxBusinesses->setItem(r, 3, new QTableWidgetItem(qs(owner)));
        g.business.read(firms[i]);
        flxBusinesses->setItem(r, 4, new NumberItem(studioDayCost(g), money(g, studioCost(g, 1))));
    }
    flxBusinesses->setSortingEnabled(true);
    row->addWidget(flxBusinesses, 1);
    details = new frmBusinessDetails(this);
    details->hide();
    row->addWidget(details);
    body_->addLayout(row, 1);
    cmdCancel = makeButton(QStringLiteral("cmdCancel"), tr("Cancel"), Glyph::no, ButtonRole::secondary, this);
    cmdChoose = makeButton(QStringLiteral("cmdChoose"), tr("Choose"), Glyph::ok, ButtonRole::primary, this);
    cmdChoose->setEnabled(false);
    buttons_->addWidget(cmdCancel);
    buttons_->addWidget(cmdChoose);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(flxBusinesses, &QTableWidget::itemSelectionChanged, this, [this, sessions] {
        const int16_t firm = selectedFirm();
        cmdChoose->setEnabled(firm > 0);
        details->setVisible(firm > 0);
        if (firm > 0) details->showFirm(main_.game(), firm, sessions);
    });
    connect(cmdChoose, &QPushButton::clicked, this, [this] {
        Game& game = main_.game();
        const int16_t firm = selectedFirm();
        if (std::string why = checkBookStudio(game, disc_, firm); !why.empty()) return refuse(why);
        if (!main_.guarded([&] { bookStudio(game, disc_, firm); })) return;
        main_.refreshStatusBar();
        accept();
        (new frmRecordingProgress(main_, disc_))->open();
    });
}

int16_t frmChooseStudio::selectedFirm() const {
    const QList<QTableWidgetItem*> items = flxBusinesses->selectedItems();
    if (items.isEmpty()) return 0;
    return static_cast<int16_t>(flxBusinesses->item(items.first()->row(), 0)->data(Qt::UserRole).toInt());
}

// ---- frmBuildNewFacility ----

frmBuildNewFacility::frmBuildNewFacility(mdiParentForm& main, int kind)
    : AlbumDialog(main, QStringLiteral("frmBuildNewFacility"), kindTitle(kind)), kind_(kind) {
    Game& g = main.game();
    txtName = new QLineEdit(this);
    txtName->setObjectName(QStringLiteral("txtName"));
    txtName->setMaxLength(50);
    body_->addWidget(captioned(tr("Name"), txtName, this));

    auto* qualityRow = new QHBoxLayout;
    qualityRow->setContentsMargins(0, 0, 0, 0);
    cmdQualityDown = new QPushButton(QStringLiteral("‹"), this);
    cmdQualityDown->setObjectName(QStringLiteral("cmdQualityDown"));
    cmdQualityUp = new QPushButton(QStringLiteral("›"), this);
    cmdQualityUp->setObjectName(QStringLiteral("cmdQualityUp"));
    lblQuality = makeSubtitle(QString(), this);
    lblQuality->setObjectName(QStringLiteral("lblQuality"));
    lblQuality->setAlignment(Qt::AlignCenter);
    lblQuality->setMinimumWidth(80);
    for (QPushButton* b : {cmdQualityDown, cmdQualityUp}) {
        b->setFixedWidth(48);
        b->setAutoDefault(false);
        b->setAutoRepeat(true);
    }
    qualityRow->addWidget(cmdQualityDown);
    qualityRow->addWidget(lblQuality);
    qualityRow->addWidget(cmdQualityUp);
    qualityRow->addStretch(1);
    auto* qualityBox = new QWidget(this);
    qualityBox->setLayout(qualityRow);
    body_->addWidget(captioned(tr("Quality"), qualityBox, this));

    auto* place = new QHBoxLayout;
    cmbCountry = new ComboBox(this);
    cmbCountry->setObjectName(QStringLiteral("cmbCountry"));
    cmbCity = new ComboBox(this);
    cmbCity->setObjectName(QStringLiteral("cmbCity"));
    for (int32_t n = 1; n < g.country.recordCount(); ++n) {
        g.country.read(n);
        cmbCountry->addItem(qs(trim(g.country->name.value)), n);
    }
    cmbCountry->setCurrentIndex(std::max(0, cmbCountry->findText(QStringLiteral("England"))));
    place->addWidget(captioned(tr("Country"), cmbCountry, this), 1);
    place->addWidget(captioned(tr("City"), cmbCity, this), 1);
    body_->addLayout(place);

    auto* costs = new QHBoxLayout;
    lblCost = makeSubtitle(QString(), this);
    lblCost->setObjectName(QStringLiteral("lblCost"));
    lblRunningCost = makeSubtitle(QString(), this);
    lblRunningCost->setObjectName(QStringLiteral("lblRunningCost"));
    costs->addWidget(captioned(tr("Cost"), lblCost, this), 1);
    costs->addWidget(captioned(tr("Running Cost"), lblRunningCost, this), 1);
    body_->addLayout(costs);

    cmdCancel = makeButton(QStringLiteral("cmdCancel"), tr("Cancel"), Glyph::no, ButtonRole::secondary, this);
    cmdConfirm = makeButton(QStringLiteral("cmdConfirm"), tr("Confirm"), Glyph::ok, ButtonRole::primary, this);
    buttons_->addWidget(cmdCancel);
    buttons_->addWidget(cmdConfirm);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdQualityDown, &QPushButton::clicked, this, [this] { stepQuality(-1); });
    connect(cmdQualityUp, &QPushButton::clicked, this, [this] { stepQuality(1); });
    connect(cmbCountry, &QComboBox::currentIndexChanged, this, [this] { fillCities(); });
    connect(txtName, &QLineEdit::textChanged, this, [this] { refuse({}); });
    connect(cmdConfirm, &QPushButton::clicked, this, [this] {
        Game& game = main_.game();
        FacilityOrder order{.kind = kind_,
                            .name = txtName->text().toStdString(),
                            .quality = quality_,
                            .city = static_cast<int16_t>(cmbCity->currentData().toInt())};
        if (std::string why = checkBuildFacility(game, order); !why.empty()) return refuse(why);
        int16_t firm = 0;
        if (!main_.guarded([&] { firm = buildFacility(game, order); })) return;
        main_.refreshStatusBar();
        emit built(firm);
        accept();
    });
    fillCities();
    showCosts();
}

void frmBuildNewFacility::fillCities() {
    Game& g = main_.game();
    const int country = cmbCountry->currentData().toInt();
    cmbCity->clear();
    for (int32_t n = 1; n < g.city.recordCount(); ++n) {
        g.city.read(n);
        if (g.city->country == country) cmbCity->addItem(qs(trim(g.city->name.value)), n);
    }
}

void frmBuildNewFacility::stepQuality(int by) {
    quality_ = std::clamp(quality_ + by, 1, 100);
    showCosts();
}

void frmBuildNewFacility::showCosts() {
    Game& g = main_.game();
    lblQuality->setText(QStringLiteral("%1%").arg(quality_));
    lblCost->setText(money(g, moneyUnits(buildCost(quality_, kind_))));
    lblRunningCost->setText(money(g, moneyUnits(runningCostFor(g, quality_, kind_))) + tr(" per month"));
}

// ---- The label's facilities ----

LabelFacilities::LabelFacilities(mdiParentForm& main, QWidget* parent) : QWidget(parent), main_(main) {
    setObjectName(QStringLiteral("LabelFacilities"));
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(0, 0, 0, 0);
    auto* top = new QHBoxLayout;
    cmbFacilities = new ComboBox(this);
    cmbFacilities->setObjectName(QStringLiteral("cmbFacilities"));
    cmbFacilities->addItem(tr("Studios"), kStudio);
    cmbFacilities->addItem(tr("Manufacturing Plants"), kPlant);
    cmbFacilities->addItem(tr("Distribution Firms"), kDistributor);
    cmdBuild = makeButton(QStringLiteral("cmdBuild"), tr("Build"), Glyph::label, ButtonRole::primary, this);
    top->addWidget(cmbFacilities, 1);
    top->addWidget(cmdBuild);
    l->addLayout(top);
    flxBusinesses = firmTable(this, {tr("Name"), tr("City"), tr("Quality"), tr("Status"), tr("Running Cost")});
    flxBusinesses->setSortingEnabled(true);
    l->addWidget(flxBusinesses, 1);
    connect(cmbFacilities, &QComboBox::currentIndexChanged, this, [this] { refresh(); });
    connect(cmdBuild, &QPushButton::clicked, this, [this] {
        auto* form = new frmBuildNewFacility(main_, cmbFacilities->currentData().toInt());
        connect(form, &frmBuildNewFacility::built, this, [this] { refresh(); });
        form->open();
    });
    refresh();
}

void LabelFacilities::refresh() {
    Game& g = main_.game();
    const int kind = cmbFacilities->currentData().toInt();
    flxBusinesses->setSortingEnabled(false);
    flxBusinesses->setRowCount(0);
    for (int32_t n = 1; n < g.business.recordCount(); ++n) {
        g.business.read(n);
        const BusinessRecord f = g.business.rec;
        if (f.kind != kind || f.owner != g.player.playerLabel || f.owner < 1) continue;
        const int r = flxBusinesses->rowCount();
        flxBusinesses->insertRow(r);
        flxBusinesses->setItem(r, 0, new QTableWidgetItem(qs(trim(f.name.value))));
        flxBusinesses->setItem(r, 1,
                               new QTableWidgetItem(qs(g.city.readIfPresent(f.city) ? trim(g.city->name.value) : "")));
        flxBusinesses->setItem(r, 2, new NumberItem(f.quality, QStringLiteral("%1%").arg(f.quality)));
        flxBusinesses->setItem(r, 3, new QTableWidgetItem(f.open == kFirmOpen ? tr("Open") : tr("Under Construction")));
        flxBusinesses->setItem(r, 4, new NumberItem(f.runningCost, money(g, moneyUnits(f.runningCost))));
    }
    flxBusinesses->setSortingEnabled(true);
}

}  // namespace trovane::screens
