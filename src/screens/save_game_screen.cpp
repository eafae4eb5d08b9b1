#include "screens/save_game_screen.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "floor/formats.h"
#include "floor/text_rules.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"
#include "session/save_load.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

QLabel* figure(const char* name, QWidget* parent) {
    auto* l = new QLabel(parent);
    l->setObjectName(QString::fromLatin1(name));
    l->setProperty("role", "figure");
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return l;
}

}  // namespace

frmSaveGame::frmSaveGame(mdiParentForm& main, bool loading, QWidget* parent)
    : ScreenPage(main, QStringLiteral("frmSaveGame"), loading ? tr("Load Game") : tr("Save Game"), parent),
      loading_(loading) {
    setSubtitle(loading ? tr("Choose a saved game to carry on with.")
                        : tr("Choose a slot. A saved game holds everything up to today."));
    main.guarded([&] { recoverInterruptedSaves(main.game()); });

    auto* row = new QHBoxLayout;
    row->setSpacing(18);
    auto* listCard = new Card(this);
    listCard->content()->addWidget(makeCaption(tr("Slots"), listCard));
    lstSaves = new QListWidget(listCard);
    lstSaves->setObjectName(QStringLiteral("lstSaves"));
    lstSaves->setMinimumWidth(300);
    listCard->content()->addWidget(lstSaves, 1);
    row->addWidget(listCard, 2);

    auto* detailCard = new Card(this);
    detailCard->setMinimumWidth(380);
    QVBoxLayout* d = detailCard->content();
    d->setSpacing(14);
    freeNote_ = makeBody(QString(), detailCard);
    freeNote_->setObjectName(QStringLiteral("lblFreeSlot"));
    d->addWidget(freeNote_);

    detailBox_ = new QWidget(detailCard);
    auto* grid = new QGridLayout(detailBox_);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(12);
    lblDetails = figure("lblDetails", detailBox_);
    lblDetails->setWordWrap(true);
    grid->addWidget(captioned(tr("Saved game"), lblDetails), 0, 0, 1, 5);
    auto* date = figure("lblDate", detailBox_);
    auto* player = figure("lblPlayer", detailBox_);
    auto* label = figure("lblLabel", detailBox_);
    auto* cash = figure("lblCash", detailBox_);
    grid->addWidget(captioned(tr("Date"), date), 1, 0, 1, 5);
    grid->addWidget(captioned(tr("Boss"), player), 2, 0, 1, 2);
    grid->addWidget(captioned(tr("Label"), label), 2, 2, 1, 3);
    grid->addWidget(captioned(tr("Cash"), cash), 3, 0, 1, 5);
    const char* markets[5] = {"UK", "US", "Europe", "Oceania", "Global"};
    for (int m = 0; m < 5; ++m)
        grid->addWidget(captioned(tr(markets[m]),
                                  figure(QStringLiteral("lblReputation%1").arg(m).toLatin1().constData(), detailBox_)),
                        4, m);
    d->addWidget(detailBox_);

    nameBox_ = new QWidget(detailCard);
    auto* nameRow = new QVBoxLayout(nameBox_);
    nameRow->setContentsMargins(0, 0, 0, 0);
    txtSaveName = new QLineEdit(nameBox_);
    txtSaveName->setObjectName(QStringLiteral("txtSaveName"));
    // Room past the slot's 32 characters, so that the name's check, not the box, says how long it may be.
    txtSaveName->setMaxLength(80);
    nameRow->addWidget(captioned(tr("Name of the save"), txtSaveName));
    lblRefusalName_ = new QLabel(nameBox_);
    lblRefusalName_->setObjectName(QStringLiteral("lblRefusalSaveName"));
    lblRefusalName_->setProperty("role", "refusal");
    lblRefusalName_->setWordWrap(true);
    lblRefusalName_->hide();
    nameRow->addWidget(lblRefusalName_);
    d->addWidget(nameBox_);
    d->addStretch(1);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(10);
    cmdDelete = makeButton(QStringLiteral("cmdDelete"), tr("Delete"), Glyph::trash, ButtonRole::danger, detailCard);
    cmdSave = makeButton(QStringLiteral("cmdSave"), tr("Save"), Glyph::save, ButtonRole::primary, detailCard);
    cmdOverwrite = makeButton(QStringLiteral("cmdOverwrite"), loading ? tr("Load") : tr("Overwrite"),
                              loading ? Glyph::load : Glyph::save, ButtonRole::primary, detailCard);
    buttons->addWidget(cmdDelete);
    buttons->addStretch(1);
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdOverwrite);
    d->addLayout(buttons);
    row->addWidget(detailCard, 3);
    body()->addLayout(row, 1);

    btnOk = makeButton(QStringLiteral("btnOk"), main.gameRunning() ? tr("Back to the Game") : tr("Back"), Glyph::back,
                       ButtonRole::secondary, this);
    headingExtras()->addWidget(btnOk, 0, Qt::AlignTop);

    connect(lstSaves, &QListWidget::currentRowChanged, this, &frmSaveGame::showSlot);
    connect(txtSaveName, &QLineEdit::returnPressed, this, [this] {
        if (cmdSave->isVisible())
            save();
        else if (cmdOverwrite->isVisible())
            overwrite();
    });
    connect(lstSaves, &QListWidget::itemActivated, this, [this] {
        if (loading_ && cmdOverwrite->isVisible() && cmdOverwrite->isEnabled()) overwrite();
    });
    connect(cmdSave, &QPushButton::clicked, this, &frmSaveGame::save);
    connect(cmdOverwrite, &QPushButton::clicked, this, &frmSaveGame::overwrite);
    connect(cmdDelete, &QPushButton::clicked, this, &frmSaveGame::remove);
    connect(btnOk, &QPushButton::clicked, this, [&main] {
        if (main.gameRunning())
            main.returnToPreviousScreen();
        else
            main.showStartForm();
    });
    fillList(0);
    setFocusProxy(lstSaves);
}

void frmSaveGame::fillList(int row) {
    QSignalBlocker quiet(lstSaves);
    lstSaves->clear();
    for (int slot = 0; slot < kSlotCount; ++slot) {
        std::string name;
        if (!main_.guarded([&] { name = slotName(main_.game(), slot); })) return;
        auto* item = new QListWidgetItem(QStringLiteral("%1 : %2").arg(slot).arg(qs(name)), lstSaves);
        item->setIcon(glyphIcon(name == "None" ? Glyph::save : Glyph::record,
                                name == "None" ? palette::disabledText : palette::teal));
        item->setData(Qt::UserRole, name != "None");
        item->setSizeHint(QSize(0, 36));
    }
    lstSaves->setCurrentRow(row);
    showSlot(row);
}

void frmSaveGame::showSlot(int row) {
    bool used = row >= 0 && lstSaves->item(row)->data(Qt::UserRole).toBool();
    Game& g = main_.game();
    SlotDetails details;
    QString broken;
    if (used) {
        try {
            main_.guarded([&] { details = slotDetails(g, row); });
        } catch (const SlotError& e) { broken = qs(e.what()); }
    }
    bool showDetails = used && broken.isEmpty();
    detailBox_->setVisible(showDetails);
    if (showDetails) {
        lblDetails->setText(qs(details.name));
        findChild<QLabel*>(QStringLiteral("lblDate"))->setText(qs(formatDate(details.gameDate, "dddd d mmmm yyyy")));
        findChild<QLabel*>(QStringLiteral("lblPlayer"))
            ->setText(qs(details.playerForename + " " + details.playerSurname));
        findChild<QLabel*>(QStringLiteral("lblLabel"))->setText(qs(details.labelName));
        findChild<QLabel*>(QStringLiteral("lblCash"))->setText(qs(formatMoney(g, details.cash, "###,###,##0")));
        for (int m = 0; m < 5; ++m)
            findChild<QLabel*>(QStringLiteral("lblReputation%1").arg(m))
                ->setText(QStringLiteral("%1%").arg(details.reputation[static_cast<std::size_t>(m)]));
    }
    if (!used)
        freeNote_->setText(loading_ ? tr("This slot is empty.") : tr("This slot is free."));
    else
        freeNote_->setText(broken.isEmpty() ? QString() : tr("This saved game cannot be read: %1").arg(broken));
    freeNote_->setVisible(!freeNote_->text().isEmpty());

    // Saving: a free slot takes a name and Save; a used one may be overwritten under a new name.
    nameBox_->setVisible(!loading_ && row >= 0);
    lblRefusalName_->hide();
    if (!loading_) txtSaveName->setText(showDetails ? qs(details.name) : QStringLiteral("Untitled"));
    cmdSave->setVisible(!loading_ && row >= 0 && !used);
    cmdOverwrite->setVisible(used && (showDetails || !loading_));
    cmdDelete->setVisible(used);
}

void frmSaveGame::save() {
    int row = lstSaves->currentRow();
    if (row < 0) return;
    std::string name = txtSaveName->text().toStdString();
    // A name the slot cannot hold is refused at the field, as typed; nothing is saved.
    if (std::string why = saveNameRefusal(name); !why.empty()) {
        lblRefusalName_->setText(qs(why));
        lblRefusalName_->show();
        txtSaveName->setFocus();
        return;
    }
    try {
        if (!main_.guarded([&] { saveGame(main_.game(), row, name); })) return;
        main_.markSaved();
    } catch (const SlotError& e) { main_.showRefusal(tr("Save Game"), qs(e.what())); }
    fillList(row);
}

void frmSaveGame::overwrite() {
    int row = lstSaves->currentRow();
    if (row < 0) return;
    if (!loading_) {
        save();
        return;
    }
    mdiParentForm& main = main_;
    if (!main.gameRunning()) {
        main.loadSavedGame(row);
        return;
    }
    main.askAbandon([&main, row] { main.loadSavedGame(row); });
}

void frmSaveGame::remove() {
    int row = lstSaves->currentRow();
    if (row < 0) return;
    askSure(this, QStringLiteral("slot"), tr("Delete the saved game in slot %1?").arg(row), [this, row] {
        if (main_.guarded([&] { deleteSlot(main_.game(), row); })) fillList(row);
    });
}

// ---------------------------------------------------------------- frmSure

frmSure::frmSure(const QString& criteria, const QString& question, QWidget* parent)
    : QDialog(parent), criteria_(criteria) {
    setObjectName(QStringLiteral("frmSure"));
    setWindowTitle(tr("Are you sure?"));
    setModal(true);
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(28, 24, 28, 20);
    l->setSpacing(18);
    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    auto* icon = new QLabel(this);
    icon->setPixmap(glyphPixmap(Glyph::help, palette::accent, 40, devicePixelRatioF()));
    top->addWidget(icon, 0, Qt::AlignTop);
    QLabel* text = makeBody(question, this);
    text->setObjectName(QStringLiteral("lblQuestion"));
    text->setMinimumWidth(340);
    top->addWidget(text, 1);
    l->addLayout(top);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    lblCancel = makeButton(QStringLiteral("lblCancel"), tr("No"), Glyph::no, ButtonRole::secondary, this);
    lblConfirm = makeButton(QStringLiteral("lblConfirm"), tr("Yes"), Glyph::ok, ButtonRole::primary, this);
    lblCancel->setAutoDefault(true);
    lblCancel->setDefault(true);
    buttons->addWidget(lblCancel);
    buttons->addWidget(lblConfirm);
    l->addLayout(buttons);
    connect(lblConfirm, &QPushButton::clicked, this, &QDialog::accept);
    connect(lblCancel, &QPushButton::clicked, this, &QDialog::reject);
    lblCancel->setFocus();
}

frmSure* askSure(QWidget* parent, const QString& criteria, const QString& question, std::function<void()> onConfirm) {
    auto* dialog = new frmSure(criteria, question, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QDialog::accepted, parent, [onConfirm] { onConfirm(); });
    dialog->open();
    return dialog;
}

}  // namespace trovane::screens
