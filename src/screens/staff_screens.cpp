#include "screens/staff_screens.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "floor/formats.h"
#include "floor/number_helpers.h"
#include "label/departments.h"
#include "label/staff.h"
#include "screens/details_extra_screens.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/option_panels.h"
#include "screens/save_game_screen.h"
#include "screens/side_bar.h"
#include "screens/theme.h"
#include "world/dates.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

QLabel* figure(const QString& text, QWidget* parent) {
    auto* l = makeBody(text, parent);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return l;
}

}  // namespace

// ---------------------------------------------------------------- Staff Details

frmStaffDetails::frmStaffDetails(mdiParentForm& main, int16_t staff)
    : ScreenPage(main, QStringLiteral("frmStaffDetails"), tr("Staff Details")) {
    main_.guarded([&] { details_ = staffDetails(main_.game(), staff); });
    const StaffDetails& d = details_;
    const Game& g = main_.game();
    setSubtitle(qs(d.name));
    auto* card = new Card(this);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(32);
    grid->setVerticalSpacing(12);
    card->content()->addLayout(grid);
    auto put = [&](int row, int col, const QString& caption, const QString& value, const char* name) {
        QLabel* v = figure(value, card);
        v->setObjectName(QString::fromLatin1(name));
        grid->addWidget(captioned(caption, v, card), row, col);
    };
    put(0, 0, tr("Name"), qs(d.name), "lblNameR");
    put(0, 1, tr("Age"), QString::number(d.age), "lblAgeR");
    put(0, 2, tr("Nationality"), qs(d.nationality), "lblNationalityR");
    put(1, 0, tr("Post"), qs(d.post), "lblPostR");
    put(1, 1, tr("Ability"), QString::number(d.ability), "lblAbilityR");
    put(1, 2, tr("Employer"), qs(d.employer), "lblEmployerR");
    put(2, 0, tr("Weekly Wage"), qs(formatMoney(g, d.wage, "###,###,##0")), "lblWageR");
    put(2, 1, tr("Hired"), qs(d.hiredOn > kNoDate ? formatDate(d.hiredOn, "d mmmm yyyy") : std::string("-")),
        "lblHiredR");
    put(2, 2, tr("Contract End"),
        qs(d.contractEnd > kNoDate ? formatDate(d.contractEnd, "d mmmm yyyy") : std::string("-")), "lblContractEndR");
    put(3, 0, tr("Reputation (UK, US, Europe, Oceania, Global)"),
        QStringLiteral("%1, %2, %3, %4, %5")
            .arg(d.reputation[0])
            .arg(d.reputation[1])
            .arg(d.reputation[2])
            .arg(d.reputation[3])
            .arg(d.reputation[4]),
        "lblReputationR");
    put(3, 1, tr("Preferred Style"), qs(d.preferredStyle), "lblPreferredStyleR");
    put(3, 2, tr("Points"),
        QStringLiteral("%1, %2, %3, %4, %5")
            .arg(d.points[0])
            .arg(d.points[1])
            .arg(d.points[2])
            .arg(d.points[3])
            .arg(d.points[4]),
        "lblPointsR");
    QStringList aptitudes;
    for (int a : d.aptitude) aptitudes << QString::number(a);
    put(4, 0, tr("Aptitudes"), aptitudes.join(QStringLiteral("   ")), "lblAptitudesR");
    grid->setColumnStretch(3, 1);
    body()->addWidget(card);
    auto* marks = new Card(this);
    marks->content()->addWidget(makeCaption(tr("Achievements"), marks));
    main_.guarded([&] { marks->content()->addWidget(achievementList(main_.game(), 3, staff, marks)); });
    body()->addWidget(marks, 1);
}

// ---------------------------------------------------------------- the options on a person

OptionPanel* makeStaffOptions(mdiParentForm& main, QWidget* host, int16_t staff) {
    StaffDetails d;
    if (!main.guarded([&] { d = staffDetails(main.game(), staff); })) return nullptr;
    if (d.playersOwn) return nullptr;
    const QString name = qs(d.name);
    if (d.employedByPlayer) {
        auto* panel = new OptionPanel(QStringLiteral("frmStaffOptionsSigned"), name, host);
        panel->addEntry(
            QStringLiteral("lblTerminate"), QObject::tr("Terminate Contract"), Glyph::no, [&main, staff, name] {
                main.sideBar()->CloseOtherWindows();
                std::string why;
                main.guarded([&] { why = checkTerminateStaff(main.game(), staff); });
                if (!why.empty()) return main.showRefusal(QObject::tr("Terminate Contract"), qs(why));
                askSure(&main, QStringLiteral("terminate"),
                        QObject::tr("Are you sure you want to terminate %1's contract?").arg(name), [&main, staff] {
                            main.guarded([&] { terminateStaff(main.game(), staff); });
                            main.showCurrentScreen();
                        });
            });
        return panel;
    }
    if (d.approachedByPlayer) {
        auto* panel = new OptionPanel(QStringLiteral("frmStaffOptionsApproached"), name, host);
        panel->addEntry(QStringLiteral("lblWithdraw"), QObject::tr("Withdraw Offer"), Glyph::back, [&main, staff] {
            main.sideBar()->CloseOtherWindows();
            std::string why;
            main.guarded([&] { why = checkWithdrawStaffOffer(main.game(), staff); });
            if (!why.empty()) return main.showRefusal(QObject::tr("Withdraw Offer"), qs(why));
            main.guarded([&] { withdrawStaffOffer(main.game(), staff); });
            main.showCurrentScreen();
        });
        return panel;
    }
    auto* panel = new OptionPanel(QStringLiteral("frmStaffOptionsUnsigned"), name, host);
    QPushButton* approach =
        panel->addEntry(QStringLiteral("lblApproach"), QObject::tr("Approach"), Glyph::person, [&main, staff] {
            main.sideBar()->CloseOtherWindows();
            std::string why;
            main.guarded([&] { why = checkApproachStaff(main.game(), staff); });
            if (!why.empty()) return main.showRefusal(QObject::tr("Approach"), qs(why));
            auto* form = new frmStaffContract(main, staff);
            form->open();
        });
    if (d.employedElsewhere) {
        approach->setEnabled(false);
        approach->setToolTip(QObject::tr("%1 works for %2").arg(name, qs(d.employer)));
    }
    return panel;
}

// ---------------------------------------------------------------- the contract form

frmStaffContract::frmStaffContract(mdiParentForm& main, int16_t staff) : QDialog(&main), main_(main), staff_(staff) {
    setObjectName(QStringLiteral("frmStaffContract"));
    setWindowTitle(tr("Staff Contract"));
    setModal(true);
    setAttribute(Qt::WA_DeleteOnClose);
    std::string demands;
    main_.guarded([&] {
        Game& g = main_.game();
        g.staff.read(staff_);
        // lblApproach clears any old offer on the person before the form opens.
        clearStaffOffer(g);
        g.staff.write();
        wage_ = startingOfferWage(g);
        demands = staffDemands(g, wage_);
    });
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(28, 24, 28, 20);
    l->setSpacing(14);
    lblDemands = makeBody(qs(demands), this);
    lblDemands->setObjectName(QStringLiteral("lblDemands"));
    lblDemands->setWordWrap(true);
    l->addWidget(lblDemands);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    auto stepper = [&](int row, const QString& caption, QLabel*& value, QPushButton*& dec, QPushButton*& inc,
                       const char* decName, const char* incName, const char* valueName) {
        grid->addWidget(makeCaption(caption, this), row, 0);
        dec = makeButton(QString::fromLatin1(decName), QStringLiteral("\u2212"), Glyph::chevron, ButtonRole::secondary,
                         this);
        dec->setIcon(QIcon());
        value = makeBody(QString(), this);
        value->setObjectName(QString::fromLatin1(valueName));
        value->setMinimumWidth(110);
        value->setAlignment(Qt::AlignCenter);
        inc =
            makeButton(QString::fromLatin1(incName), QStringLiteral("+"), Glyph::chevron, ButtonRole::secondary, this);
        inc->setIcon(QIcon());
        grid->addWidget(dec, row, 1);
        grid->addWidget(value, row, 2);
        grid->addWidget(inc, row, 3);
    };
    stepper(0, tr("Weekly Wage"), lblWageR, cmdWageDec, cmdWageInc, "cmdWageDec", "cmdWageInc", "lblWageR");
    stepper(1, tr("Length (years)"), lblLengthR, cmdLengthDec, cmdLengthInc, "cmdLengthDec", "cmdLengthInc",
            "lblLengthR");
    grid->addWidget(makeCaption(tr("Role"), this), 2, 0);
    cmbRole = new ComboBox(this);
    cmbRole->setObjectName(QStringLiteral("cmbRole"));
    for (auto name : kDepartmentNames)
        cmbRole->addItem(tr("Head of %1").arg(QString::fromUtf8(name.data(), qsizetype(name.size()))));
    grid->addWidget(cmbRole, 2, 1, 1, 3);
    l->addLayout(grid);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    cmdCancel = makeButton(QStringLiteral("cmdCancel"), tr("Cancel"), Glyph::no, ButtonRole::secondary, this);
    cmdOk = makeButton(QStringLiteral("cmdOk"), tr("Make Offer"), Glyph::ok, ButtonRole::primary, this);
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdOk);
    l->addLayout(buttons);

    connect(cmdWageInc, &QPushButton::clicked, this, [this] {
        stepMoney(true, wage_);
        showTerms();
    });
    connect(cmdWageDec, &QPushButton::clicked, this, [this] {
        stepMoney(false, wage_);
        showTerms();
    });
    connect(cmdLengthInc, &QPushButton::clicked, this, [this] {
        years_ = std::min(years_ + 1, 5);
        showTerms();
    });
    connect(cmdLengthDec, &QPushButton::clicked, this, [this] {
        years_ = std::max(years_ - 1, 1);
        showTerms();
    });
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdOk, &QPushButton::clicked, this, &frmStaffContract::offer);
    showTerms();
}

void frmStaffContract::showTerms() {
    const Game& g = main_.game();
    lblWageR->setText(qs(g.prefs.rec.currencySymbol.value + formatNumber(wage_, "###,###,##0")));
    lblLengthR->setText(QString::number(years_));
    cmdWageDec->setEnabled(wage_ > 0);
    cmdLengthDec->setEnabled(years_ > 1);
    cmdLengthInc->setEnabled(years_ < 5);
}

void frmStaffContract::offer() {
    std::string why;
    main_.guarded([&] { why = checkApproachStaff(main_.game(), staff_); });
    if (!why.empty()) {
        main_.showRefusal(tr("Staff Contract"), qs(why));
        reject();
        return;
    }
    main_.guarded([&] { approachStaff(main_.game(), staff_, cmbRole->currentIndex(), wage_, years_); });
    accept();
    main_.showCurrentScreen();
}

}  // namespace trovane::screens
