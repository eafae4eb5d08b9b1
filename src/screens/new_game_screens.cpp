#include "screens/new_game_screens.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include "floor/formats.h"
#include "floor/list_fillers.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }
std::string ss(const QString& s) { return s.toStdString(); }

void fillCombo(QComboBox* box, const std::vector<ListRow>& rows, const QString& wanted) {
    QSignalBlocker quiet(box);
    box->clear();
    for (const ListRow& r : rows) box->addItem(qs(r.text), r.recordNumber);
    int at = box->findText(wanted);
    box->setCurrentIndex(at >= 0 ? at : (box->count() > 0 ? 0 : -1));
}

QComboBox* combo(const char* name, QWidget* parent) {
    auto* c = new ComboBox(parent);
    c->setObjectName(QString::fromLatin1(name));
    c->setMaxVisibleItems(16);
    return c;
}

QLineEdit* lineEdit(const char* name, int maxLength, QWidget* parent) {
    auto* e = new QLineEdit(parent);
    e->setObjectName(QString::fromLatin1(name));
    e->setMaxLength(maxLength);
    return e;
}

QRadioButton* radio(const QString& name, const QString& caption, QButtonGroup* group, int id, QWidget* parent) {
    auto* r = new QRadioButton(caption, parent);
    r->setObjectName(name);
    group->addButton(r, id);
    return r;
}

// OK and Cancel under the card, Cancel first as players expect.
void addButtons(FormPage* page, QPushButton*& ok, QPushButton*& cancel, const QString& okCaption) {
    cancel = makeButton(QStringLiteral("cmdCancel"), QObject::tr("Back"), Glyph::back, ButtonRole::secondary, page);
    ok = makeButton(QStringLiteral("cmdOk"), okCaption, Glyph::play, ButtonRole::primary, page);
    ok->setDefault(true);
    ok->setAutoDefault(true);
    ok->setMinimumWidth(150);
    cancel->setMinimumWidth(120);
    page->buttons()->addWidget(cancel);
    page->buttons()->addWidget(ok);
}

// The longest text a name box takes: room enough that the check, not the box, tells a player the field's width.
constexpr int kTypingRoom = 80;

}  // namespace

// ---------------------------------------------------------------- refusals at the field

void FieldRefusals::attach(QWidget* captionedBox, NewGameField field, QWidget* control, const QString& objectSuffix) {
    auto* line = new QLabel(captionedBox);
    line->setObjectName(QStringLiteral("lblRefusal") + objectSuffix);
    line->setProperty("role", "refusal");
    line->setWordWrap(true);
    line->hide();
    captionedBox->layout()->addWidget(line);
    lines_[field] = {line, control};
}

bool FieldRefusals::show(const InputRefusal& r) {
    clear();
    if (!r) return false;
    auto at = lines_.find(r.field);
    if (at == lines_.end()) return true;
    at->second.label->setText(qs(r.text));
    at->second.label->show();
    at->second.control->setFocus();
    return true;
}

void FieldRefusals::clear() {
    for (auto& [field, line] : lines_) line.label->hide();
}

// ---------------------------------------------------------------- the player

frmStartNewGame::frmStartNewGame(mdiParentForm& main, QWidget* parent)
    : FormPage(QStringLiteral("frmStartNewGame"), tr("New Game"),
               tr("Tell the industry who you are. Your choices are remembered for the next game."), parent),
      main_(main) {
    Game& g = main.game();
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(14);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);

    txtName = lineEdit("txtName", kTypingRoom, this);
    txtSurname = lineEdit("txtSurname", kTypingRoom, this);
    txtName->setPlaceholderText(tr("First name"));
    txtSurname->setPlaceholderText(tr("Surname"));
    QWidget* nameBox = captioned(tr("First name"), txtName);
    QWidget* surnameBox = captioned(tr("Surname"), txtSurname);
    refusals_.attach(nameBox, NewGameField::forename, txtName, QStringLiteral("Name"));
    refusals_.attach(surnameBox, NewGameField::surname, txtSurname, QStringLiteral("Surname"));
    grid->addWidget(nameBox, 0, 0, Qt::AlignTop);
    grid->addWidget(surnameBox, 0, 1, Qt::AlignTop);

    auto* born = new QWidget(this);
    auto* bornRow = new QHBoxLayout(born);
    bornRow->setContentsMargins(0, 0, 0, 0);
    bornRow->setSpacing(8);
    cmbDay = combo("cmbDay", born);
    cmbMonth = combo("cmbMonth", born);
    cmbYear = combo("cmbYear", born);
    cmbDay->setMinimumWidth(70);
    cmbMonth->setMinimumWidth(130);
    cmbYear->setMinimumWidth(90);
    bornRow->addWidget(cmbDay);
    bornRow->addWidget(cmbMonth, 1);
    bornRow->addWidget(cmbYear);
    QWidget* bornBox = captioned(tr("Date of birth"), born);
    refusals_.attach(bornBox, NewGameField::birthDate, cmbDay, QStringLiteral("Born"));
    grid->addWidget(bornBox, 1, 0, Qt::AlignTop);

    auto* genders = new QButtonGroup(this);
    auto* genderBox = new QWidget(this);
    auto* genderRow = new QHBoxLayout(genderBox);
    genderRow->setContentsMargins(0, 6, 0, 6);
    genderRow->setSpacing(18);
    optGender[0] = radio(QStringLiteral("optGender0"), tr("Male"), genders, 0, genderBox);
    optGender[1] = radio(QStringLiteral("optGender1"), tr("Female"), genders, 1, genderBox);
    genderRow->addWidget(optGender[0]);
    genderRow->addWidget(optGender[1]);
    genderRow->addStretch(1);
    grid->addWidget(captioned(tr("Gender"), genderBox), 1, 1, Qt::AlignTop);

    cmbNationality = combo("cmbNationality", this);
    QWidget* nationalityBox = captioned(tr("Nationality"), cmbNationality);
    refusals_.attach(nationalityBox, NewGameField::nationality, cmbNationality, QStringLiteral("Nationality"));
    grid->addWidget(nationalityBox, 2, 0, Qt::AlignTop);

    auto* ways = new QButtonGroup(this);
    auto* wayBox = new QWidget(this);
    auto* wayRow = new QVBoxLayout(wayBox);
    wayRow->setContentsMargins(0, 2, 0, 0);
    wayRow->setSpacing(2);
    optCreateNew[0] = radio(QStringLiteral("optCreateNew0"), tr("Create A New Label"), ways, 0, wayBox);
    optCreateNew[1] = radio(QStringLiteral("optCreateNew1"), tr("Manage Existing Label"), ways, 1, wayBox);
    wayRow->addWidget(optCreateNew[0]);
    wayRow->addWidget(optCreateNew[1]);
    grid->addWidget(captioned(tr("Your label"), wayBox), 2, 1, Qt::AlignTop);
    content()->addLayout(grid);
    addButtons(this, cmdOk, cmdCancel, tr("Next"));
    cmdCancel->setText(tr("Cancel"));

    PlayerChoices c;
    std::vector<ListRow> nationalities;
    main.guarded([&] {
        c = defaultPlayerChoices(g);
        nationalities = listCountries(g, 1, "");
    });
    for (int y : birthYears()) cmbYear->addItem(QString::number(y), y);
    for (unsigned m = 1; m <= 12; ++m) cmbMonth->addItem(qs(std::string(monthName(m))), m);
    cmbYear->setCurrentIndex(cmbYear->findData(c.birthYear));
    cmbMonth->setCurrentIndex(static_cast<int>(c.birthMonth) - 1);
    refillDays();
    cmbDay->setCurrentIndex(c.birthDay - 1);
    fillCombo(cmbNationality, nationalities, qs(c.nationality));
    txtName->setText(qs(c.forename));
    txtSurname->setText(qs(c.surname));
    optGender[c.male ? 0 : 1]->setChecked(true);
    optCreateNew[0]->setChecked(true);

    connect(cmbMonth, &QComboBox::currentIndexChanged, this, &frmStartNewGame::refillDays);
    connect(cmbYear, &QComboBox::currentIndexChanged, this, &frmStartNewGame::refillDays);
    connect(cmdCancel, &QPushButton::clicked, this, [&main] { main.cancelNewGame(); });
    connect(cmdOk, &QPushButton::clicked, this, [this] {
        NewPlayer player;
        PlayerChoices chosen = choices();
        InputRefusal refused;
        if (!main_.guarded([&] { refused = checkPlayerChoices(main_.game(), chosen); })) return;
        if (refusals_.show(refused)) return;
        if (!main_.guarded([&] { player = confirmPlayer(main_.game(), chosen); })) return;
        main_.showLabelForm(std::move(player));
    });
    setFocusProxy(txtName);
}

void frmStartNewGame::refillDays() {
    int year = cmbYear->currentData().toInt();
    unsigned month = cmbMonth->currentData().toUInt();
    if (year == 0 || month == 0) return;
    int chosen = cmbDay->currentIndex() + 1;
    QSignalBlocker quiet(cmbDay);
    cmbDay->clear();
    for (int d = 1; d <= daysInBirthMonth(year, month); ++d) cmbDay->addItem(QString::number(d), d);
    cmbDay->setCurrentIndex(keptBirthDay(chosen, year, month) - 1);
}

PlayerChoices frmStartNewGame::choices() const {
    PlayerChoices c;
    c.forename = ss(txtName->text());
    c.surname = ss(txtSurname->text());
    c.birthDay = cmbDay->currentData().toInt();
    c.birthMonth = cmbMonth->currentData().toUInt();
    c.birthYear = cmbYear->currentData().toInt();
    c.male = optGender[0]->isChecked();
    c.nationality = ss(cmbNationality->currentText());
    c.createNewLabel = optCreateNew[0]->isChecked();
    return c;
}

// ---------------------------------------------------------------- a new label

frmCreateNewLabel::frmCreateNewLabel(mdiParentForm& main, NewPlayer player, QWidget* parent)
    : FormPage(QStringLiteral("frmCreateNewLabel"), tr("Create A New Label"),
               tr("An independent label of your own, with a million in the bank and everything to prove."), parent),
      main_(main) {
    Game& g = main.game();
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(14);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    txtName = lineEdit("txtName", kTypingRoom, this);
    txtName->setPlaceholderText(tr("The name of your label"));
    cmbContinent = combo("cmbContinent", this);
    cmbNationality = combo("cmbNationality", this);
    cmbCity = combo("cmbCity", this);
    cmbStyle = combo("cmbStyle", this);
    struct Field {
        QString caption;
        QWidget* control;
        NewGameField field;
        QString suffix;
        int row, column, span;
    };
    for (const Field& f :
         {Field{tr("Label name"), txtName, NewGameField::labelName, QStringLiteral("Name"), 0, 0, 2},
          Field{tr("Continent"), cmbContinent, NewGameField::continent, QStringLiteral("Continent"), 1, 0, 1},
          Field{tr("Country"), cmbNationality, NewGameField::country, QStringLiteral("Country"), 1, 1, 1},
          Field{tr("Home city"), cmbCity, NewGameField::city, QStringLiteral("City"), 2, 0, 1},
          Field{tr("Style of music"), cmbStyle, NewGameField::style, QStringLiteral("Style"), 2, 1, 1}}) {
        QWidget* box = captioned(f.caption, f.control);
        refusals_.attach(box, f.field, f.control, f.suffix);
        grid->addWidget(box, f.row, f.column, 1, f.span, Qt::AlignTop);
    }
    content()->addLayout(grid);
    addButtons(this, cmdOk, cmdCancel, tr("Start the Game"));

    LabelChoices c;
    std::vector<ListRow> styles;
    main.guarded([&] {
        c = defaultLabelChoices(g);
        styles = listStyles(g, 2);
    });
    txtName->setText(qs(c.name));
    for (const Continent& k : continents()) cmbContinent->addItem(QString::fromLatin1(k.name));
    cmbContinent->setCurrentIndex(qMax(0, cmbContinent->findText(qs(c.continent))));
    refillCountries(qs(c.country));
    refillCities(qs(c.city));
    fillCombo(cmbStyle, styles, qs(c.style));

    connect(cmbContinent, &QComboBox::currentIndexChanged, this, [this] {
        refillCountries({});
        refillCities({});
    });
    connect(cmbNationality, &QComboBox::currentIndexChanged, this, [this] { refillCities({}); });
    connect(cmdCancel, &QPushButton::clicked, this, [&main] { main.showStartNewGame(false); });
    connect(cmdOk, &QPushButton::clicked, this, [this, player] {
        LabelChoices chosen = choices();
        Game& game = main_.game();
        InputRefusal refused;
        if (!main_.guarded([&] { refused = checkLabelChoices(game, chosen); })) return;
        if (refusals_.show(refused)) return;
        main_.startGame([&game, player, chosen] { foundLabel(game, player, chosen); });
    });
    setFocusProxy(txtName);
}

void frmCreateNewLabel::refillCountries(const QString& wanted) {
    std::vector<ListRow> rows;
    main_.guarded([&] { rows = countriesOfContinent(main_.game(), ss(cmbContinent->currentText())); });
    fillCombo(cmbNationality, rows, wanted);
}

void frmCreateNewLabel::refillCities(const QString& wanted) {
    std::vector<ListRow> rows;
    main_.guarded([&] { rows = citiesOfCountry(main_.game(), ss(cmbNationality->currentText())); });
    fillCombo(cmbCity, rows, wanted);
}

LabelChoices frmCreateNewLabel::choices() const {
    LabelChoices c;
    c.name = ss(txtName->text());
    c.continent = ss(cmbContinent->currentText());
    c.country = ss(cmbNationality->currentText());
    c.city = ss(cmbCity->currentText());
    c.style = ss(cmbStyle->currentText());
    return c;
}

// ---------------------------------------------------------------- taking over

frmManageExistingLabel::frmManageExistingLabel(mdiParentForm& main, NewPlayer player, QWidget* parent)
    : FormPage(QStringLiteral("frmManageExistingLabel"), tr("Manage Existing Label"),
               tr("Take the helm of a label that is already in business: its acts, its money and its name."), parent),
      main_(main) {
    auto* row = new QHBoxLayout;
    row->setSpacing(20);
    lstLabel = new QListWidget(this);
    lstLabel->setObjectName(QStringLiteral("lstLabel"));
    lstLabel->setMinimumWidth(220);
    lstLabel->setMinimumHeight(300);
    row->addWidget(captioned(tr("Labels"), lstLabel), 2);

    auto* detail = new QVBoxLayout;
    detail->setSpacing(12);
    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    picLogo = new QLabel(this);
    picLogo->setObjectName(QStringLiteral("picLogo"));
    picLogo->setPixmap(placeholderPicture(QSize(88, 88), Glyph::label));
    top->addWidget(picLogo, 0, Qt::AlignTop);
    auto* figures = new QGridLayout;
    figures->setHorizontalSpacing(14);
    figures->setVerticalSpacing(4);
    lblCash = new QLabel(this);
    lblCash->setObjectName(QStringLiteral("lblCash"));
    lblCash->setProperty("role", "figure");
    figures->addWidget(captioned(tr("Cash"), lblCash), 0, 0, 1, 5);
    const char* markets[5] = {"UK", "US", "Europe", "Oceania", "Global"};
    for (int m = 0; m < 5; ++m) {
        lblReputation[m] = new QLabel(this);
        lblReputation[m]->setObjectName(QStringLiteral("lblReputation%1").arg(m));
        lblReputation[m]->setProperty("role", "figure");
        figures->addWidget(captioned(tr(markets[m]), lblReputation[m]), 1, m);
    }
    top->addLayout(figures, 1);
    detail->addLayout(top);

    flxBands = new QTableWidget(0, 1, this);
    flxBands->setObjectName(QStringLiteral("flxBands"));
    flxBands->setHorizontalHeaderLabels({tr("Acts on the roster")});
    flxBands->horizontalHeader()->setStretchLastSection(true);
    flxBands->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    flxBands->verticalHeader()->hide();
    flxBands->setEditTriggers(QAbstractItemView::NoEditTriggers);
    flxBands->setSelectionMode(QAbstractItemView::NoSelection);
    flxBands->setAlternatingRowColors(true);
    detail->addWidget(flxBands, 1);
    row->addLayout(detail, 3);
    content()->addLayout(row);
    addButtons(this, cmdOk, cmdCancel, tr("Take Over"));

    main.guarded([&] { labels_ = existingLabels(main.game()); });
    for (const ExistingLabel& l : labels_) {
        auto* item = new QListWidgetItem(qs(l.name), lstLabel);
        item->setSizeHint(QSize(0, 34));
    }
    connect(lstLabel, &QListWidget::currentRowChanged, this, &frmManageExistingLabel::showLabel);
    lstLabel->setCurrentRow(labels_.empty() ? -1 : 0);
    showLabel(lstLabel->currentRow());

    connect(cmdCancel, &QPushButton::clicked, this, [&main] { main.showStartNewGame(false); });
    connect(cmdOk, &QPushButton::clicked, this, [this, player] {
        int row = lstLabel->currentRow();
        if (row < 0) return;
        int16_t label = labels_[static_cast<std::size_t>(row)].number;
        Game& game = main_.game();
        main_.startGame([&game, player, label] { takeOverLabel(game, player, label); });
    });
    setFocusProxy(lstLabel);
}

void frmManageExistingLabel::showLabel(int row) {
    bool any = row >= 0 && row < static_cast<int>(labels_.size());
    cmdOk->setEnabled(any);
    flxBands->setRowCount(0);
    if (!any) {
        lblCash->setText(QStringLiteral("-"));
        for (QLabel* r : lblReputation) r->setText(QStringLiteral("-"));
        return;
    }
    const ExistingLabel& l = labels_[static_cast<std::size_t>(row)];
    lblCash->setText(qs(formatMoney(main_.game(), l.cash, "###,###,###,##0")));
    for (int m = 0; m < 5; ++m)
        lblReputation[m]->setText(QStringLiteral("%1%").arg(l.reputation[static_cast<std::size_t>(m)]));
    flxBands->setRowCount(static_cast<int>(l.bands.size()));
    for (std::size_t i = 0; i < l.bands.size(); ++i)
        flxBands->setItem(static_cast<int>(i), 0, new QTableWidgetItem(qs(l.bands[i])));
}

}  // namespace trovane::screens
