#include "screens/single_screens.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "production/discs.h"
#include "screens/glyphs.h"
#include "screens/screen_page.h"
#include "screens/theme.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane::screens {

namespace {
QString songTitle(Game& g, int32_t song) {
    g.song.read(song);
    return QString::fromStdString(trim(g.song->title.value));
}
}  // namespace

frmReleaseSingle::frmReleaseSingle(Game& g, int16_t album, QWidget* parent) : QDialog(parent), g_(g) {
    setObjectName(QStringLiteral("frmReleaseSingle"));
    setWindowTitle(QStringLiteral("Release Single"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeBody(QStringLiteral("Choose the song to lead the single."), this));
    lstSongs = new QListWidget(this);
    lstSongs->setObjectName(QStringLiteral("lstSongs"));
    for (int32_t song : freeSingleTracks(g, album)) {
        auto* item = new QListWidgetItem(songTitle(g, song), lstSongs);
        item->setData(Qt::UserRole, song);
    }
    layout->addWidget(lstSongs);
    cmdConfirm = makeButton(QStringLiteral("cmdConfirm"), QStringLiteral("Confirm"), Glyph::ok, ButtonRole::primary);
    cmdConfirm->setEnabled(false);
    layout->addWidget(cmdConfirm, 0, Qt::AlignRight);
    connect(lstSongs, &QListWidget::currentRowChanged, this, [this](int row) { cmdConfirm->setEnabled(row >= 0); });
    connect(cmdConfirm, &QPushButton::clicked, this, &QDialog::accept);
}

int32_t frmReleaseSingle::lead() const {
    QListWidgetItem* item = lstSongs->currentItem();
    return item ? item->data(Qt::UserRole).toInt() : 0;
}

frmChooseBSides::frmChooseBSides(Game& g, int16_t album, int32_t lead, QWidget* parent)
    : QDialog(parent), g_(g), album_(album), lead_(lead) {
    setObjectName(QStringLiteral("frmChooseBSides"));
    setWindowTitle(QStringLiteral("Choose B-Sides"));
    auto* layout = new QVBoxLayout(this);
    std::array<int32_t, 2> proposal = defaultBSides(g, album, lead);
    g.disc.read(album);
    const DiscRecord disc = g.disc.rec;
    for (std::size_t b = 0; b < 2; ++b) {
        cmbBSide[b] = new ComboBox(this);
        cmbBSide[b]->setObjectName(QStringLiteral("cmbBSide%1").arg(b));
        for (std::size_t i = 0; i < std::min<std::size_t>(disc.trackCount, disc.tracks.size()); ++i) {
            int32_t song = disc.tracks[i];
            if (song < 1 || song == lead || song >= g.song.recordCount()) continue;
            cmbBSide[b]->addItem(songTitle(g, song), song);
        }
        cmbBSide[b]->setCurrentIndex(std::max(0, cmbBSide[b]->findData(proposal[b])));
        layout->addWidget(captioned(QStringLiteral("B-side %1").arg(b + 1), cmbBSide[b]));
    }
    cmbStudio = new ComboBox(this);
    cmbStudio->setObjectName(QStringLiteral("cmbStudio"));
    for (int32_t n = 1; n < g.business.recordCount(); ++n) {
        g.business.read(n);
        if (g.business->kind == 0 && g.business->open == -1)
            cmbStudio->addItem(QString::fromStdString(trim(g.business->name.value)), n);
    }
    layout->addWidget(captioned(QStringLiteral("Studio"), cmbStudio));
    lblRefusal = makeBody(QString(), this);
    lblRefusal->setObjectName(QStringLiteral("lblRefusal"));
    lblRefusal->setWordWrap(true);
    layout->addWidget(lblRefusal);
    cmdConfirm = makeButton(QStringLiteral("cmdConfirm"), QStringLiteral("Confirm"), Glyph::ok, ButtonRole::primary);
    layout->addWidget(cmdConfirm, 0, Qt::AlignRight);
    connect(cmdConfirm, &QPushButton::clicked, this, &frmChooseBSides::confirm);
}

void frmChooseBSides::confirm() {
    std::array<int32_t, 2> sides{cmbBSide[0]->currentData().toInt(), cmbBSide[1]->currentData().toInt()};
    const auto studio = static_cast<int16_t>(cmbStudio->currentData().toInt());
    std::string refusal = recordSingleRefusal(g_, album_, lead_, sides, studio);
    if (!refusal.empty()) return lblRefusal->setText(QString::fromStdString(refusal));
    single = recordSingle(g_, album_, lead_, sides, studio).disc;
    accept();
}

}  // namespace trovane::screens
