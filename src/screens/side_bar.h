#pragma once
// The sidebar: the turn key, the way to the news and the label, and the
// buttons that open the option panels.
#include <QFrame>
#include <QPointer>

#include "screens/option_panels.h"

class QPushButton;

namespace trovane::screens {

class mdiParentForm;
class OptionPanel;
class frmFindOptions;
class frmChartOptions;
class frmGameOptions;
class frmQuitOptions;

class frmSideBar : public QFrame {
    Q_OBJECT
public:
    // The panels live in panelHost, over the main screen beside the sidebar.
    frmSideBar(mdiParentForm& main, QWidget* panelHost);

    QPushButton* btnContinueGame;
    QPushButton* btnNews;
    QPushButton* btnLabelOptions;
    QPushButton* btnFind;
    QPushButton* btnCharts;
    QPushButton* btnGameOptions;
    QPushButton* btnQuit;
    QPushButton* cmdExtra;

    // Every button on or off in one step (off while a compulsory reply is awaited).
    void enableSidebar(bool on);
    // Hides every option panel that is open.
    void CloseOtherWindows();
    // Each opens its panel, or closes it when it is already open.
    void loadFindOptions();
    void loadChartOptions();
    void loadGameOptions();
    void loadQuitOptions();

    OptionPanel* openPanel() const;
    frmFindOptions* findOptions() const { return findOptions_; }
    frmChartOptions* chartOptions() const { return chartOptions_; }
    frmGameOptions* gameOptions() const { return gameOptions_; }
    frmQuitOptions* quitOptions() const { return quitOptions_; }
    // The options of what is on screen (cmdExtra), while open.
    OptionPanel* extraPanel() const { return extraPanel_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void togglePanel(OptionPanel* panel, QPushButton* anchor);
    void placePanel(OptionPanel* panel, QPushButton* anchor);
    void syncChecks();
    void extraOptions();
    QString screenCaption() const;
    void loadDiscOptions();

    mdiParentForm& main_;
    QWidget* panelHost_;
    frmFindOptions* findOptions_;
    frmChartOptions* chartOptions_;
    frmGameOptions* gameOptions_;
    frmQuitOptions* quitOptions_;
    QPushButton* anchorOfOpenPanel_ = nullptr;
    QPointer<OptionPanel> extraPanel_;
};

}  // namespace trovane::screens
