#pragma once
// The waiting screen over long work: a progress bar when the work reports
// how far it has come, and a "did you know" line.
#include <QWidget>
#include <functional>

class QLabel;
class QProgressBar;
class QTimer;

namespace trovane::screens {

class mdiParentForm;

class frmLoading : public QWidget {
    Q_OBJECT
public:
    frmLoading(mdiParentForm& main, bool showProgress, QWidget* parent = nullptr);

    QProgressBar* progressBar() const { return progress_; }
    QLabel* factLabel() const { return fact_; }

    // Runs `work` once the screen has painted (or, should it never paint
    // because the window is hidden, a moment later).
    void whenPainted(std::function<void()> work);
    // Moves the bar and paints it at once: the thread is busy with the work.
    void setProgress(int percent);
    bool hasPainted() const { return painted_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void runPending();

    QProgressBar* progress_;
    QLabel* fact_;
    QTimer* fallback_;
    std::function<void()> pending_;
    bool painted_ = false;
};

}  // namespace trovane::screens
