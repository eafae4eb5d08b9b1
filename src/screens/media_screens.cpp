#include "screens/media_screens.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "floor/formats.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/save_game_screen.h"
#include "screens/screen_page.h"
#include "screens/theme.h"
#include "world/strings.h"

namespace trovane::screens {

namespace {

constexpr int kSixWeeks = 42;

QString qs(const std::string& s) { return QString::fromStdString(s); }

QString issuePattern(const MediaRecord& m) {
    static const char* const kDays[] = {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};
    static const char* const kWeekdays[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                            "Thursday", "Friday", "Saturday"};
    static const char* const kOrdinals[] = {"first", "second", "third", "fourth"};
    switch (m.frequency) {
    case 0: return QObject::tr("Daily");
    case 1: {
        QStringList days;
        for (int i = 0; i < 7; ++i)
            if (m.airDay[static_cast<std::size_t>(i)] != 0) days << QString::fromLatin1(kDays[i]);
        return QObject::tr("Weekly: %1").arg(days.join(QStringLiteral(", ")));
    }
    case 2:
        if (m.issueWeek < 1 || m.issueWeek > 4 || m.issueMonth < 1 || m.issueMonth > 7) return QObject::tr("Monthly");
        return QObject::tr("Monthly: the %1 %2 of the month")
            .arg(QString::fromLatin1(kOrdinals[m.issueWeek - 1]), QString::fromLatin1(kWeekdays[m.issueMonth - 1]));
    default: return QObject::tr("Annual: %1/%2").arg(m.issueDay).arg(m.issueMonth);
    }
}

}  // namespace

// An outlet's particulars: name and type, reach, style, when it comes out and
// the kinds of appearance it offers, each with the reputation it asks.
QString mediaDetailsText(Game& g, const MediaRecord& m) {
    QString style = QObject::tr("Any");
    if (m.mediaStyle > 0 && g.style.readIfPresent(m.mediaStyle)) style = qs(trim(g.style->name.value));
    QStringList kinds;
    const bool broadcast = m.mediaType == 2 || m.mediaType == 3;
    auto kind = [&](int k, int minimum, int value) {
        if (minimum > 0)
            kinds << QObject::tr("%1 (reputation %2, value %3)").arg(qs(mediaKindName(k))).arg(minimum).arg(value);
    };
    if (broadcast) {
        kind(interviewKind, m.interviewMinimum, m.interviewValue);
        kind(liveKind, m.liveMinimum, m.liveValue);
        if (m.interviewMinimum > 0 && m.liveMinimum > 0 && m.bothValue > 0)
            kind(bothKind, std::max(m.interviewMinimum, m.liveMinimum), m.bothValue);
    } else {
        kind(smallArticle, m.smallMinimum, m.smallValue);
        kind(largeArticle, m.largeMinimum, m.largeValue);
    }
    return QObject::tr("%1, %2\nReach: %3\nStyle: %4\nOut: %5\n%6")
        .arg(qs(trim(m.mediaName.value)), qs(mediaTypeName(m.mediaType)),
             m.reach == 2 ? QObject::tr("Global") : QObject::tr("National"), style, issuePattern(m),
             kinds.join(QStringLiteral("\n")));
}

frmMediaCard::frmMediaCard(Game& g, int16_t outlet, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmMediaCard"));
    g.media.read(outlet);
    const MediaRecord m = g.media.rec;
    setWindowTitle(qs(trim(m.mediaName.value)));
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(24, 20, 24, 18);
    l->setSpacing(12);
    lblMediaDetails = makeBody(mediaDetailsText(g, m), this);
    lblMediaDetails->setObjectName(QStringLiteral("lblMediaDetails"));
    lblMediaDetails->setWordWrap(true);
    l->addWidget(lblMediaDetails, 1);
    cmdOk = addOkRow(this, l);
}

frmPromotion::frmPromotion(mdiParentForm& main, int16_t band) : QDialog(&main), main_(main), band_(band) {
    setObjectName(QStringLiteral("frmPromotion"));
    setWindowTitle(tr("Promotion"));
    setModal(true);
    setAttribute(Qt::WA_DeleteOnClose);
    Game& g = main_.game();
    g.band.read(band_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(12);
    layout->addWidget(makeTitle(tr("Promote %1").arg(qs(trim(g.band->name.value))), this));

    cmbTerritory = new ComboBox(this);
    cmbTerritory->setObjectName(QStringLiteral("cmbTerritory"));
    cmbTerritory->addItems({tr("UK"), tr("US"), tr("Europe"), tr("Oceania"), tr("Other")});
    layout->addWidget(captioned(tr("Territory"), cmbTerritory, this));

    flxMedia = new QTableWidget(0, 5, this);
    flxMedia->setObjectName(QStringLiteral("flxMedia"));
    flxMedia->setHorizontalHeaderLabels({tr("Name"), tr("Location"), tr("Scope"), tr("Rating"), tr("Type")});
    flxMedia->setEditTriggers(QAbstractItemView::NoEditTriggers);
    flxMedia->setSelectionBehavior(QAbstractItemView::SelectRows);
    flxMedia->setSelectionMode(QAbstractItemView::SingleSelection);
    flxMedia->verticalHeader()->hide();
    flxMedia->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    flxMedia->setMinimumHeight(180);
    layout->addWidget(flxMedia, 1);

    auto* lower = new QHBoxLayout;
    lblMediaDetails = makeBody(QString(), this);
    lblMediaDetails->setObjectName(QStringLiteral("lblMediaDetails"));
    lblMediaDetails->setWordWrap(true);
    lblMediaDetails->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    lower->addWidget(captioned(tr("Details"), lblMediaDetails, this), 2, Qt::AlignTop);
    lstDates = new QListWidget(this);
    lstDates->setObjectName(QStringLiteral("lstDates"));
    lstDates->setMinimumHeight(120);
    lower->addWidget(captioned(tr("Issue days (next six weeks)"), lstDates, this), 1);
    layout->addLayout(lower);

    lblRefusal = makeBody(QString(), this);
    lblRefusal->setObjectName(QStringLiteral("lblRefusal"));
    lblRefusal->setWordWrap(true);
    lblRefusal->hide();
    layout->addWidget(lblRefusal);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    cmdCancel = makeButton(QStringLiteral("cmdCancel"), tr("Cancel"), Glyph::no, ButtonRole::secondary, this);
    cmdBook = makeButton(QStringLiteral("cmdBook"), tr("Book"), Glyph::ok, ButtonRole::primary, this);
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdBook);
    layout->addLayout(buttons);
    resize(820, 600);

    connect(cmbTerritory, &QComboBox::currentIndexChanged, this, [this] { showOffers(); });
    connect(flxMedia, &QTableWidget::itemSelectionChanged, this, [this] { showOutlet(); });
    connect(lstDates, &QListWidget::currentRowChanged, this,
            [this](int row) { cmdBook->setEnabled(row >= 0 && flxMedia->currentRow() >= 0); });
    connect(cmdBook, &QPushButton::clicked, this, &frmPromotion::book);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    showOffers();
}

void frmPromotion::showOffers() {
    Game& g = main_.game();
    main_.guarded([&] {
        g.band.read(band_);
        offers_ = findMediaOffers(g, cmbTerritory->currentIndex());
    });
    flxMedia->clearContents();
    flxMedia->setRowCount(static_cast<int>(offers_.size()));
    for (std::size_t i = 0; i < offers_.size(); ++i) {
        const MediaOffer& o = offers_[i];
        g.media.read(o.media);
        const MediaRecord m = g.media.rec;
        QString where =
            m.reach == 2 ? tr("Global") : (g.country.readIfPresent(m.country) ? qs(trim(g.country->name.value)) : "");
        const int row = static_cast<int>(i);
        flxMedia->setItem(row, 0, new QTableWidgetItem(qs(trim(m.mediaName.value))));
        flxMedia->setItem(row, 1, new QTableWidgetItem(where));
        flxMedia->setItem(row, 2, new QTableWidgetItem(m.reach == 2 ? tr("Global") : tr("National")));
        auto* rating = new QTableWidgetItem(QString::number(o.value));
        rating->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        flxMedia->setItem(row, 3, rating);
        flxMedia->setItem(row, 4, new QTableWidgetItem(qs(mediaKindName(o.kind))));
    }
    lblMediaDetails->setText(offers_.empty() ? tr("No outlet here wants this act at the moment.") : QString());
    lstDates->clear();
    cmdBook->setEnabled(false);
    if (!offers_.empty()) flxMedia->selectRow(0);
}

void frmPromotion::showOutlet() {
    lstDates->clear();
    cmdBook->setEnabled(false);
    int row = flxMedia->currentRow();
    if (row < 0 || row >= static_cast<int>(offers_.size())) return;
    Game& g = main_.game();
    const MediaOffer& o = offers_[static_cast<std::size_t>(row)];
    g.media.read(o.media);
    const MediaRecord m = g.media.rec;
    lblMediaDetails->setText(mediaDetailsText(g, m));
    std::vector<double> days;
    main_.guarded([&] {
        g.band.read(band_);
        days = freeIssueDays(g, m, g.gameDate, kSixWeeks);
    });
    for (double d : days) {
        auto* item = new QListWidgetItem(qs(formatDate(d, "dddd d/m/yyyy")), lstDates);
        item->setData(Qt::UserRole, d);
    }
}

void frmPromotion::book() {
    int row = flxMedia->currentRow();
    QListWidgetItem* day = lstDates->currentItem();
    if (row < 0 || day == nullptr) return;
    Game& g = main_.game();
    const MediaOffer& o = offers_[static_cast<std::size_t>(row)];
    g.media.read(o.media);
    g.band.read(band_);
    std::string question = mediaConfirmText(trim(g.band->name.value), trim(g.media->mediaName.value), o.kind,
                                            day->data(Qt::UserRole).toDouble());
    askSure(this, QStringLiteral("media"), qs(question), [this] { confirmBooking(); });
}

void frmPromotion::confirmBooking() {
    int row = flxMedia->currentRow();
    QListWidgetItem* day = lstDates->currentItem();
    if (row < 0 || day == nullptr) return;
    Game& g = main_.game();
    const MediaOffer o = offers_[static_cast<std::size_t>(row)];
    const double date = day->data(Qt::UserRole).toDouble();
    std::string refusal;
    main_.guarded([&] {
        g.band.read(band_);
        refusal = checkAppearance(g, o.media, o.kind, date);
        if (!refusal.empty()) return;
        g.band.read(band_);
        bookAppearance(g, o.media, date, o.kind);
    });
    if (!refusal.empty()) {
        lblRefusal->setText(qs(refusal));
        lblRefusal->show();
        return;
    }
    accept();
}

}  // namespace trovane::screens
