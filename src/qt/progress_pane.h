#pragma once

#include <QWidget>
#include <chrono>

class QProgressBar;
class QPushButton;

namespace tessaplot::qt {

/// Shows how far a long command is, with a button that stops it. It appears once the command has run for half a second
/// and lets pending events run in between.
class ProgressPane : public QWidget {
    Q_OBJECT

 public:
    explicit ProgressPane(QWidget* parent);

    /// A share from 0 to 1 of the work is done; false asks the command to stop.
    bool report(double share);
    /// The command has ended.
    void finish();
    void cancel() { cancelled_ = true; }
    bool active() const { return active_; }

 signals:
    /// While it is true, nothing but the button may take input.
    void blocking(bool blocks);

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    using Clock = std::chrono::steady_clock;

    void begin();
    void appear();

    QProgressBar* bar_;
    QPushButton* stop_;
    Clock::time_point begun_;
    Clock::time_point yielded_;
    bool active_ = false;
    bool cancelled_ = false;
};

}  // namespace tessaplot::qt
