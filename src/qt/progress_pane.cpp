#include "qt/progress_pane.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QProgressBar>
#include <QPushButton>
#include <algorithm>

namespace tessaplot::qt {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 500ms;
constexpr auto betweenYields = 30ms;
constexpr int steps = 1000;
constexpr int barWidth = 200;

}  // namespace

ProgressPane::ProgressPane(QWidget* parent)
    : QWidget(parent), bar_(new QProgressBar(this)), stop_(new QPushButton(tr("Cancel"), this)) {
    setObjectName("Progress");
    bar_->setRange(0, steps);
    bar_->setFixedWidth(barWidth);
    bar_->setAccessibleName(tr("Progress"));
    stop_->setObjectName("CancelRun");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(bar_);
    row->addWidget(stop_);
    connect(stop_, &QPushButton::clicked, this, &ProgressPane::cancel);
    hide();
}

bool ProgressPane::report(double share) {
    if (!active_) begin();
    const auto now = Clock::now();
    if (now - yielded_ < betweenYields) return !cancelled_;
    if (isHidden() && now - begun_ >= patience) appear();
    bar_->setValue(static_cast<int>(std::clamp(share, 0.0, 1.0) * steps));
    // Input waits until everything that it must not reach is switched off.
    QCoreApplication::processEvents(isHidden() ? QEventLoop::ExcludeUserInputEvents : QEventLoop::AllEvents);
    yielded_ = Clock::now();
    return !cancelled_;
}

void ProgressPane::begin() {
    active_ = true;
    cancelled_ = false;
    begun_ = yielded_ = Clock::now();
}

void ProgressPane::appear() {
    emit blocking(true);
    show();
    stop_->setFocus();
}

void ProgressPane::finish() {
    if (!active_) return;
    active_ = false;
    if (isHidden()) return;
    hide();
    emit blocking(false);
}

void ProgressPane::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        cancel();
    else
        QWidget::keyPressEvent(event);
}

}  // namespace tessaplot::qt
