#include "screens/band_details_screen.h"

#include "screens/tour_screens.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include "floor/formats.h"
#include "label/scouting.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/screen_page.h"
#include "screens/theme.h"
#include "talent/band_details.h"
#include "world/strings.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

QTableWidget* plainTable(const QStringList& headers, QWidget* parent) {
    auto* t = new QTableWidget(0, static_cast<int>(headers.size()), parent);
    t->setHorizontalHeaderLabels(headers);
    t->verticalHeader()->hide();
    t->setEditTriggers(QAbstractItemView::NoEditTriggers);
    t->setSelectionBehavior(QAbstractItemView::SelectRows);
    t->setSelectionMode(QAbstractItemView::SingleSelection);
    t->horizontalHeader()->setStretchLastSection(true);
    return t;
}

// A number cell that sorts by its value, not its text.
class NumberItem : public QTableWidgetItem {
public:
    NumberItem(const QString& text, double value) : QTableWidgetItem(text) {
        setData(Qt::UserRole, value);
        setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    bool operator<(const QTableWidgetItem& other) const override {
        return data(Qt::UserRole).toDouble() < other.data(Qt::UserRole).toDouble();
    }
};

}  // namespace

frmBandDetails::frmBandDetails(mdiParentForm& main, int16_t band, QWidget* parent)
    : ScreenPage(main, QStringLiteral("frmBandDetails"), tr("Band Details"), parent) {
    Game& g = main.game();
    BandDetails d{};
    main.guarded([&] { d = bandDetails(g, band); });
    setSubtitle(qs(d.name));

    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    auto* about = new Card(this);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(8);
    int r = 0;
    addFigure(grid, r++, tr("Name"), QStringLiteral("lblName"), qs(d.name), about);
    addFigure(grid, r++, tr("Style"), QStringLiteral("lblStyle"), qs(d.style), about);
    addFigure(grid, r++, tr("Label"), QStringLiteral("lblLabel"), qs(d.label) + (d.retired ? tr(" (retired)") : ""),
              about);
    addFigure(grid, r++, tr("Formed"), QStringLiteral("lblFormed"), qs(d.formed), about);
    if (d.retired) addFigure(grid, r++, tr("Status"), QStringLiteral("lblRetired"), tr("Retired"), about);
    if (d.announcedEnd > 0)
        addFigure(grid, r++, tr("Ends"), QStringLiteral("lblAnnouncedEnd"),
                  tr("Retiring on %1").arg(qs(formatDate(d.announcedEnd, "d/m/yyyy"))), about);
    addFigure(grid, r++, tr("Current activity"), QStringLiteral("lblActivity"), qs(d.activity), about);
    addFigure(grid, r++, tr("Age"), QStringLiteral("lblAge"), QString::number(d.age), about);
    const char* markets[] = {"UK", "US", "Europe", "Oceania", "Rest of the world"};
    std::vector<std::pair<QString, QString>> reps;
    for (std::size_t m = 0; m < 5; ++m) reps.emplace_back(tr(markets[m]), QString::number(d.reputation[m]));
    addFigure(grid, r++, tr("Reputation"), QStringLiteral("lblReputation"), figureLines(reps, 3), about, true);
    if (d.players) {
        addFigure(grid, r++, tr("Ability"), QStringLiteral("lblAbility"), QString::number(d.ability), about);
        addFigure(grid, r++, tr("Energy"), QStringLiteral("lblEnergy"), QString::number(d.energy), about);
        QString feelings;
        for (const auto& c : d.complaints) feelings += (feelings.isEmpty() ? "" : "\n") + qs(c);
        addFigure(grid, r++, tr("Complaints"), QStringLiteral("lblComplaints"), feelings, about);
        std::vector<std::pair<QString, QString>> attributes;
        for (const auto& a : d.attributes) attributes.emplace_back(qs(a.caption), qs(a.value));
        addFigure(grid, r++, tr("Attributes"), QStringLiteral("lblAttributes"), figureLines(attributes, 3), about,
                  true);
    }
    if (d.asked) addFigure(grid, r++, tr("Asks"), QStringLiteral("lblDemands"), qs(d.asked->demands), about);
    grid->setColumnStretch(1, 1);
    about->content()->addWidget(scrollingFigures(grid, about), 1);
    row->addWidget(about, 3);

    auto* side = new QVBoxLayout;
    auto* members = new Card(this);
    members->content()->addWidget(makeCaption(tr("Members"), members));
    flxArtists = plainTable({tr("Name"), tr("Job"), tr("Age")}, members);
    flxArtists->setObjectName(QStringLiteral("flxArtists"));
    flxArtists->setRowCount(static_cast<int>(d.members.size()));
    for (std::size_t i = 0; i < d.members.size(); ++i) {
        const int at = static_cast<int>(i);
        auto* name = new QTableWidgetItem(qs(d.members[i].name));
        name->setData(Qt::UserRole, d.members[i].id);
        flxArtists->setItem(at, 0, name);
        flxArtists->setItem(at, 1, new QTableWidgetItem(qs(d.members[i].job)));
        flxArtists->setItem(at, 2, new NumberItem(QString::number(d.members[i].age), d.members[i].age));
    }
    flxArtists->resizeColumnsToContents();
    flxArtists->horizontalHeader()->setStretchLastSection(true);
    // Enter or a double click on a member opens "Artist Details".
    connect(flxArtists, &QTableWidget::activated, this, [this, &main](const QModelIndex& index) {
        if (!index.isValid()) return;
        main.openArtist(static_cast<int16_t>(flxArtists->item(index.row(), 0)->data(Qt::UserRole).toInt()));
    });
    members->content()->addWidget(flxArtists);
    side->addWidget(members, 2);

    auto* interest = new Card(this);
    interest->content()->addWidget(makeCaption(tr("Interested labels"), interest));
    lstInterested = new QListWidget(interest);
    lstInterested->setObjectName(QStringLiteral("lstInterested"));
    for (const auto& name : d.interested) lstInterested->addItem(qs(name));
    interest->content()->addWidget(lstInterested);
    side->addWidget(interest, 1);
    row->addLayout(side, 2);
    body()->addLayout(row, 3);

    auto* lower = new Card(this);
    auto* tabs = new QTabWidget(lower);
    tabs->setObjectName(QStringLiteral("tabRecord"));
    auto* discs = new QWidget(tabs);
    auto* discsLayout = new QVBoxLayout(discs);
    discsLayout->setContentsMargins(0, 6, 0, 0);
    flxDiscs = plainTable({tr("Title"), tr("Type"), tr("Released")}, discs);
    flxDiscs->setObjectName(QStringLiteral("flxDiscs"));
    main.guarded([&] {
        Game& g = main.game();
        for (int32_t n = g.disc.recordCount() - 1; n >= 1; --n) {
            g.disc.read(n);
            if (g.disc->band != band) continue;
            double first = 0;
            for (double date : g.disc->releaseDate)
                if (date > 2 && (first == 0 || date < first)) first = date;
            const int at = flxDiscs->rowCount();
            flxDiscs->insertRow(at);
            auto* title = new QTableWidgetItem(qs(trim(g.disc->title.value)));
            title->setData(Qt::UserRole, n);
            flxDiscs->setItem(at, 0, title);
            flxDiscs->setItem(at, 1, new QTableWidgetItem(g.disc->isSingle == 1 ? tr("Single") : tr("Album")));
            flxDiscs->setItem(
                at, 2, new QTableWidgetItem(first == 0 ? tr("Not released") : qs(formatDate(first, "d/m/yyyy"))));
        }
    });
    flxDiscs->resizeColumnsToContents();
    flxDiscs->horizontalHeader()->setStretchLastSection(true);
    connect(flxDiscs, &QTableWidget::itemActivated, this, [this, &main](QTableWidgetItem* item) {
        main.discOnScreen = static_cast<int16_t>(flxDiscs->item(item->row(), 0)->data(Qt::UserRole).toInt());
        main.openScreen(Screen::frmDiscDetails);
    });
    discsLayout->addWidget(flxDiscs);
    tabs->addTab(discs, tr("Discs"));

    // The tours headlined or supported; a row opens the tour's details.
    flxTours = plainTable({tr("Name"), tr("Role"), tr("Area")}, tabs);
    flxTours->setObjectName(QStringLiteral("flxTours"));
    flxTours->setRowCount(static_cast<int>(d.tours.size()));
    for (std::size_t i = 0; i < d.tours.size(); ++i) {
        const int at = static_cast<int>(i);
        auto* name = new QTableWidgetItem(qs(d.tours[i].name));
        name->setData(Qt::UserRole, d.tours[i].tour);
        flxTours->setItem(at, 0, name);
        flxTours->setItem(at, 1, new QTableWidgetItem(qs(d.tours[i].role)));
        flxTours->setItem(at, 2, new QTableWidgetItem(qs(d.tours[i].area)));
    }
    flxTours->resizeColumnsToContents();
    flxTours->horizontalHeader()->setStretchLastSection(true);
    connect(flxTours, &QTableWidget::itemActivated, this, [this, &main](QTableWidgetItem* item) {
        const auto tour = static_cast<int16_t>(flxTours->item(item->row(), 0)->data(Qt::UserRole).toInt());
        (new frmTourDetails(main, tour))->open();
    });
    tabs->addTab(flxTours, tr("Tours"));

    auto* record = new QWidget(tabs);
    auto* recordGrid = new QGridLayout(record);
    recordGrid->setHorizontalSpacing(18);
    recordGrid->setVerticalSpacing(6);
    for (std::size_t i = 0; i < d.record.size(); ++i)
        addFigure(recordGrid, static_cast<int>(i), qs(d.record[i].caption), QStringLiteral("lblRecord%1").arg(i),
                  qs(d.record[i].value), record);
    recordGrid->setColumnStretch(1, 1);
    recordGrid->setRowStretch(static_cast<int>(d.record.size()), 1);
    tabs->addTab(record, tr("Record"));

    lstAchievements = new QListWidget(tabs);
    lstAchievements->setObjectName(QStringLiteral("lstAchievements"));
    for (const auto& a : d.achievements) lstAchievements->addItem(qs(formatDate(a.date, "d/m/yyyy") + "   " + a.text));
    if (d.achievements.empty()) lstAchievements->addItem(tr("No achievements yet."));
    tabs->addTab(lstAchievements, tr("Achievements"));
    tabs->setMinimumHeight(150);
    for (QWidget* list :
         {static_cast<QWidget*>(flxDiscs), static_cast<QWidget*>(flxTours), static_cast<QWidget*>(lstAchievements)})
        list->setMinimumHeight(80);
    lower->content()->addWidget(tabs);
    body()->addWidget(lower, 2);

    QPushButton* back = makeButton(QStringLiteral("cmdBack"), tr("Back"), Glyph::back, ButtonRole::secondary, this);
    headingExtras()->addWidget(back, 0, Qt::AlignTop);
    connect(back, &QPushButton::clicked, this, [&main] { main.returnToPreviousScreen(); });
}

}  // namespace trovane::screens
