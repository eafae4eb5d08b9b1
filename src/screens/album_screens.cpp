#include "screens/album_screens.h"

#include <QButtonGroup>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "floor/formats.h"
#include "live/tours.h"
#include "production/recording.h"
#include "production/songwriting.h"
#include "screens/business_screens.h"
#include "screens/disc_screens.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/media_screens.h"
#include "screens/theme.h"
#include "screens/tour_screens.h"
#include "world/strings.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

// A number cell that sorts as a number.
QTableWidgetItem* numberItem(int value) {
    auto* item = new QTableWidgetItem;
    item->setData(Qt::DisplayRole, value);
    return item;
}

}  // namespace

AlbumDialog::AlbumDialog(mdiParentForm& main, const QString& objectName, const QString& title)
    : QDialog(&main), main_(main) {
    setObjectName(objectName);
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumWidth(560);
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(28, 24, 28, 22);
    l->setSpacing(14);
    heading_ = makeTitle(title, this);
    l->addWidget(heading_);
    body_ = new QVBoxLayout;
    body_->setSpacing(12);
    l->addLayout(body_, 1);
    lblRefusal_ = makeBody(QString(), this);
    lblRefusal_->setObjectName(QStringLiteral("lblRefusal"));
    lblRefusal_->setStyleSheet(QStringLiteral("color: %1;").arg(palette::danger.name()));
    lblRefusal_->setWordWrap(true);
    lblRefusal_->hide();
    l->addWidget(lblRefusal_);
    buttons_ = new QHBoxLayout;
    buttons_->addStretch(1);
    l->addLayout(buttons_);
}

void AlbumDialog::refuse(const std::string& why) {
    lblRefusal_->setText(qs(why));
    lblRefusal_->setVisible(!why.empty());
}

// ---- frmBandOptionsSigned ----

frmBandOptionsSigned::frmBandOptionsSigned(mdiParentForm& main, int16_t band, QWidget* parent)
    : OptionPanel(QStringLiteral("frmBandOptionsSigned"), tr("Band"), parent), main_(main), band_(band) {
    Game& g = main.game();
    g.band.read(band);
    const BandRecord b = g.band.rec;
    lblAlbum = addEntry(QStringLiteral("lblAlbum"), tr("Work on Album"), Glyph::record, [this] {
        hide();
        (new frmWorkOnAlbum(main_, band_))->open();
    });
    lblAlbumProgress = addEntry(QStringLiteral("lblAlbumProgress"), tr("Album Progress"), Glyph::info,
                                [this] { openAlbumProgress(); });
    lblReleaseSingle = addEntry(QStringLiteral("lblReleaseSingle"), tr("Release Single"), Glyph::record);
    lblTour = addEntry(QStringLiteral("lblTour"), tr("Tour"), Glyph::calendar, [this] {
        hide();
        std::string why = tourStartRefusal(main_.game(), band_);
        if (!why.empty())
            main_.showRefusal(tr("Tour"), QString::fromStdString(why));
        else
            (new frmArrangeTour(main_, band_))->open();
    });
    lblPromote = addEntry(QStringLiteral("lblPromote"), tr("Promote"), Glyph::star, [this] {
        hide();
        (new frmPromotion(main_, band_))->open();
    });
    lblAlbum->setEnabled(b.albumStatus < 1 || b.albumStatus > 3);
    lblAlbumProgress->setEnabled(b.songsWritten != 0);
    if (b.albumStatus == 3) lblAlbumProgress->setText(tr("Release Album"));
}

void frmBandOptionsSigned::openAlbumProgress() {
    Game& g = main_.game();
    hide();
    g.band.read(band_);
    if (g.band->albumStatus == 3) {
        // The recorded album (its number held in songsWritten): its dates, then its pressing.
        const auto disc = static_cast<int16_t>(g.band->songsWritten);
        frmSetReleaseDate dates(g, disc, &main_);
        if (dates.exec() == QDialog::Accepted) frmPressDiscs(g, disc, &main_).exec();
        main_.showCurrentScreen();
    } else if (g.band->albumStatus == 2) {
        (new frmRecordingProgress(main_, static_cast<int16_t>(g.band->songsWritten)))->open();
    } else if (int16_t disc = discAwaitingStudio(g, band_)) {
        // A tracklist fixed without a title or a studio: those steps again, charged once the studio is chosen.
        g.disc.read(disc);
        if (trim(g.disc->title.value).empty())
            (new frmFinaliseAlbum(main_, disc))->open();
        else
            (new frmChooseStudio(main_, disc))->open();
    } else {
        (new frmAlbumProgress(main_, band_))->open();
    }
}

// ---- frmWorkOnAlbum ----

frmWorkOnAlbum::frmWorkOnAlbum(mdiParentForm& main, int16_t band)
    : AlbumDialog(main, QStringLiteral("frmWorkOnAlbum"), tr("Work on Album")), band_(band) {
    Game& g = main.game();
    lblText = makeBody(qs(workOnAlbumText(g, band)), this);
    lblText->setObjectName(QStringLiteral("lblText"));
    lblText->setWordWrap(true);
    body_->addWidget(lblText);
    auto* group = new QButtonGroup(this);
    for (int level = 0; level < 5; ++level) {
        auto* opt = new QRadioButton(qs(materialBudgetCaption(g, level)), this);
        opt->setObjectName(QStringLiteral("optBudget%1").arg(level));
        opt->hide();
        group->addButton(opt, level);
        body_->addWidget(opt);
        optBudget[static_cast<std::size_t>(level)] = opt;
    }
    optBudget[2]->setChecked(true);
    cmdNo = makeButton(QStringLiteral("cmdNo"), tr("No"), Glyph::no, ButtonRole::secondary, this);
    cmdYes = makeButton(QStringLiteral("cmdYes"), tr("Yes"), Glyph::ok, ButtonRole::primary, this);
    cmdCancel = makeButton(QStringLiteral("cmdCancel"), tr("Cancel"), Glyph::no, ButtonRole::secondary, this);
    cmdConfirm = makeButton(QStringLiteral("cmdConfirm"), tr("Confirm"), Glyph::ok, ButtonRole::primary, this);
    for (QPushButton* b : {cmdNo, cmdYes, cmdCancel, cmdConfirm}) buttons_->addWidget(b);
    cmdCancel->hide();
    cmdConfirm->hide();
    connect(cmdNo, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdYes, &QPushButton::clicked, this, [this] { showBudgetStep(); });
    connect(cmdConfirm, &QPushButton::clicked, this, [this] {
        Game& game = main_.game();
        std::string why = checkWorkOnAlbum(game, band_);
        if (!why.empty()) return refuse(why);
        int level = 0;
        while (level < 4 && !optBudget[static_cast<std::size_t>(level)]->isChecked()) ++level;
        main_.guarded([&] { workOnAlbum(game, band_, level); });
        accept();
    });
    if (std::string why = checkWorkOnAlbum(g, band); !why.empty()) {
        refuse(why);
        cmdYes->setEnabled(false);
    }
}

void frmWorkOnAlbum::showBudgetStep() {
    lblText->setText(qs(materialBudgetText(main_.game(), band_)));
    for (QRadioButton* o : optBudget) o->show();
    cmdYes->hide();
    cmdNo->hide();
    cmdCancel->show();
    cmdConfirm->show();
    cmdConfirm->setFocus();
    adjustSize();
}

// ---- frmAlbumProgress ----

frmAlbumProgress::frmAlbumProgress(mdiParentForm& main, int16_t band)
    : AlbumDialog(main, QStringLiteral("frmAlbumProgress"), tr("Album Progress")), band_(band) {
    Game& g = main.game();
    setMinimumSize(760, 520);
    lblText = makeBody(qs(albumProgressText(g, band)), this);
    lblText->setObjectName(QStringLiteral("lblText"));
    lblText->setWordWrap(true);
    body_->addWidget(lblText);
    flxSongs = new QTableWidget(0, 6, this);
    flxSongs->setObjectName(QStringLiteral("flxSongs"));
    flxSongs->setHorizontalHeaderLabels(
        {tr("Title"), tr("Writer"), tr("Quality"), tr("Commerciality"), tr("Written"), QString()});
    flxSongs->setEditTriggers(QAbstractItemView::NoEditTriggers);
    flxSongs->setSelectionBehavior(QAbstractItemView::SelectRows);
    flxSongs->setSelectionMode(QAbstractItemView::SingleSelection);
    flxSongs->verticalHeader()->hide();
    flxSongs->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    flxSongs->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    std::vector<int32_t> songs = songsInHand(g, band);
    flxSongs->setRowCount(static_cast<int>(songs.size()));
    for (std::size_t i = 0; i < songs.size(); ++i) {
        g.song.read(songs[i]);
        const SongRecord& s = g.song.rec;
        const int row = static_cast<int>(i);
        auto* title = new QTableWidgetItem(qs(trim(s.title.value)));
        title->setData(Qt::UserRole, s.id);
        flxSongs->setItem(row, 0, title);
        flxSongs->setItem(row, 1, new QTableWidgetItem(qs(trim(s.writerForename.value + " " + s.writerSurname.value))));
        flxSongs->setItem(row, 2, numberItem(s.quality));
        flxSongs->setItem(row, 3, numberItem(s.commerciality));
        auto* written = new QTableWidgetItem(qs(formatDate(s.written, "d/m/yyyy")));
        written->setData(Qt::UserRole, s.written);
        flxSongs->setItem(row, 4, written);
        flxSongs->setItem(row, 5, new QTableWidgetItem(QString()));
    }
    flxSongs->setSortingEnabled(true);
    body_->addWidget(flxSongs, 1);
    connect(flxSongs, &QTableWidget::cellClicked, this, [this](int row, int) { toggle(row); });
    connect(flxSongs, &QTableWidget::cellActivated, this, [this](int row, int) { toggle(row); });
    cmdCancel = makeButton(QStringLiteral("cmdCancel"), tr("Cancel"), Glyph::no, ButtonRole::secondary, this);
    cmdFinalise = makeButton(QStringLiteral("cmdFinalise"), tr("Finalise"), Glyph::ok, ButtonRole::primary, this);
    buttons_->addWidget(cmdCancel);
    buttons_->addWidget(cmdFinalise);
    cmdFinalise->setEnabled(false);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdFinalise, &QPushButton::clicked, this, [this] { finalise(); });
}

std::vector<int32_t> frmAlbumProgress::marked() const {
    std::vector<int32_t> songs;
    for (int row = 0; row < flxSongs->rowCount(); ++row)
        if (!flxSongs->item(row, 5)->text().isEmpty())
            songs.push_back(flxSongs->item(row, 0)->data(Qt::UserRole).toInt());
    return songs;
}

void frmAlbumProgress::toggle(int row) {
    QTableWidgetItem* mark = flxSongs->item(row, 5);
    mark->setText(mark->text().isEmpty() ? tr("Added") : QString());
    const std::size_t n = marked().size();
    cmdFinalise->setEnabled(n >= 1 && n <= kMaxTracks);
}

void frmAlbumProgress::finalise() {
    Game& g = main_.game();
    const std::vector<int32_t> tracks = marked();
    if (std::string why = checkFinaliseAlbum(g, band_, tracks); !why.empty()) return refuse(why);
    int16_t disc = 0;
    if (!main_.guarded([&] { disc = finaliseAlbum(g, band_, tracks); })) return;
    accept();
    (new frmFinaliseAlbum(main_, disc))->open();
}

// ---- frmFinaliseAlbum ----

frmFinaliseAlbum::frmFinaliseAlbum(mdiParentForm& main, int16_t disc)
    : AlbumDialog(main, QStringLiteral("frmFinaliseAlbum"), tr("Finalise Album")), disc_(disc) {
    Game& g = main.game();
    g.disc.read(disc);
    g.band.read(g.disc->band);
    const std::string suggestion = pickAlbumTitle(g);
    lblText = makeBody(qs(finaliseAlbumText(suggestion)), this);
    lblText->setObjectName(QStringLiteral("lblText"));
    lblText->setWordWrap(true);
    body_->addWidget(lblText);
    txtTitle = new QLineEdit(qs(suggestion), this);
    txtTitle->setObjectName(QStringLiteral("txtTitle"));
    txtTitle->setMaxLength(50);
    connect(txtTitle, &QLineEdit::textChanged, this, [this] { refuse({}); });
    body_->addWidget(captioned(tr("Title"), txtTitle, this));
    cmdConfirm = makeButton(QStringLiteral("cmdConfirm"), tr("Confirm"), Glyph::ok, ButtonRole::primary, this);
    buttons_->addWidget(cmdConfirm);
    connect(cmdConfirm, &QPushButton::clicked, this, [this] {
        Game& game = main_.game();
        const std::string title = txtTitle->text().toStdString();
        if (std::string why = checkDiscTitle(title); !why.empty()) return refuse(why);
        main_.guarded([&] { setDiscTitle(game, disc_, title); });
        accept();
        (new frmChooseStudio(main_, disc_))->open();
    });
}

// ---- frmRecordingProgress ----

frmRecordingProgress::frmRecordingProgress(mdiParentForm& main, int16_t disc)
    : AlbumDialog(main, QStringLiteral("frmRecordingProgress"), QString()) {
    Game& g = main.game();
    const QString title = qs(recordingProgressTitle(g, disc));
    setWindowTitle(title);
    heading_->setText(title);
    lblText = makeBody(qs(recordingProgressText(g, disc)), this);
    lblText->setObjectName(QStringLiteral("lblText"));
    lblText->setWordWrap(true);
    body_->addWidget(lblText);
    cmdOk = makeButton(QStringLiteral("cmdOk"), tr("OK"), Glyph::ok, ButtonRole::primary, this);
    buttons_->addWidget(cmdOk);
    connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
}

}  // namespace trovane::screens
