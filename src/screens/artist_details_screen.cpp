#include "screens/artist_details_screen.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "floor/formats.h"
#include "label/image.h"
#include "screens/details_extra_screens.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/option_panels.h"
#include "screens/screen_page.h"
#include "screens/side_bar.h"
#include "screens/theme.h"
#include "talent/artist_details.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

}  // namespace

frmArtistDetails::frmArtistDetails(mdiParentForm& main, int16_t artist, QWidget* parent)
    : ScreenPage(main, QStringLiteral("frmArtistDetails"), tr("Artist Details"), parent) {
    ArtistDetails d{};
    main.guarded([&] { d = artistDetails(main.game(), artist); });
    setSubtitle(qs(d.band.empty() ? d.job : d.band + (d.job.empty() ? "" : ", " + d.job)));

    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    auto* about = new Card(this);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(8);
    int r = 0;
    lblName = addFigure(grid, r++, tr("Name"), QStringLiteral("lblName"), qs(d.name), about);
    if (d.retired)
        addFigure(grid, r++, tr("Status"), QStringLiteral("lblRetired"),
                  d.retirementDate > 0 ? tr("Retired on %1").arg(qs(formatDate(d.retirementDate, "d/m/yyyy")))
                                       : tr("Retired"),
                  about);
    addFigure(grid, r++, tr("Born"), QStringLiteral("lblBorn"), qs(d.born), about);
    addFigure(grid, r++, tr("Age"), QStringLiteral("lblAge"), QString::number(d.age), about);
    addFigure(grid, r++, tr("Job"), QStringLiteral("lblJob"), qs(d.job), about);
    addFigure(grid, r++, tr("Nationality"), QStringLiteral("lblNationality"), qs(d.nationality), about);
    addFigure(grid, r++, tr("Band"), QStringLiteral("lblBand"), d.band.empty() ? tr("None") : qs(d.band), about);
    if (d.players) {
        addFigure(grid, r++, tr("Look"), QStringLiteral("lblLook"), d.look.empty() ? tr("None") : qs(d.look), about);
        addFigure(grid, r++, tr("Image rating"), QStringLiteral("lblImageRating"), QString::number(d.imageRating),
                  about);
        std::vector<std::pair<QString, QString>> attributes;
        for (const auto& a : d.attributes) attributes.emplace_back(qs(a.caption), qs(a.value));
        addFigure(grid, r++, tr("Attributes"), QStringLiteral("lblAttributes"), figureLines(attributes, 3), about,
                  true);
    }
    grid->setColumnStretch(1, 1);
    about->content()->addWidget(scrollingFigures(grid, about), 1);
    row->addWidget(about, 3);

    auto* side = new QVBoxLayout;
    auto* feelings = new Card(this);
    feelings->content()->addWidget(makeCaption(tr("Feelings"), feelings));
    lstFeelings = new QListWidget(feelings);
    lstFeelings->setObjectName(QStringLiteral("lstFeelings"));
    for (const auto& f : d.feelings) lstFeelings->addItem(qs(f));
    feelings->content()->addWidget(lstFeelings);
    side->addWidget(feelings, 1);
    auto* marks = new Card(this);
    marks->content()->addWidget(makeCaption(tr("Achievements"), marks));
    lstAchievements = new QListWidget(marks);
    lstAchievements->setObjectName(QStringLiteral("lstAchievements"));
    for (const auto& a : d.achievements) lstAchievements->addItem(qs(formatDate(a.date, "d/m/yyyy") + "   " + a.text));
    if (d.achievements.empty()) lstAchievements->addItem(tr("No achievements yet."));
    marks->content()->addWidget(lstAchievements);
    side->addWidget(marks, 2);
    row->addLayout(side, 2);
    body()->addLayout(row, 1);

    QPushButton* back = makeButton(QStringLiteral("cmdBack"), tr("Back"), Glyph::back, ButtonRole::secondary, this);
    headingExtras()->addWidget(back, 0, Qt::AlignTop);
    connect(back, &QPushButton::clicked, this, [&main] { main.returnToPreviousScreen(); });
}

OptionPanel* makeArtistOptions(mdiParentForm& main, QWidget* host, int16_t artist) {
    Game& g = main.game();
    if (artist < 1 || artist >= g.artist.recordCount()) return nullptr;
    if (!checkImageAnalysis(g, artist).empty()) return nullptr;
    auto* panel = new OptionPanel(QStringLiteral("frmArtistOptionsSigned"), QObject::tr("Options"), host);
    panel->addEntry(QStringLiteral("lblChangeImage"), QObject::tr("Change Image"), Glyph::person, [&main, artist] {
        main.sideBar()->CloseOtherWindows();
        std::string question;
        if (!main.guarded([&] { question = imageAnalysisQuestion(main.game(), artist); })) return;
        confirmImageAnalysis(&main, qs(question), [&main, artist] {
            std::string why;
            main.guarded([&] { why = checkImageAnalysis(main.game(), artist); });
            if (!why.empty()) return main.showRefusal(QObject::tr("Confirm Image Analysis"), qs(why));
            main.guarded([&] { requestImageAnalysis(main.game(), artist); });
        });
    });
    return panel;
}

}  // namespace trovane::screens
