#include "qt/picture_pane.h"

#include <QLabel>
#include <utility>

#include "base/failure.h"
#include "qt/opengl_format.h"
#include "qt/picture_widget.h"

namespace tessaplot::qt {

namespace {

constexpr int smallestSide = 120;
constexpr int noticeMargin = 24;

}  // namespace

PicturePane::PicturePane(core::AppState& state, QWidget* parent) : QStackedWidget(parent), notice_(new QLabel(this)) {
    setMinimumSize(smallestSide, smallestSide);
    notice_->setAlignment(Qt::AlignCenter);
    notice_->setWordWrap(true);
    notice_->setMargin(noticeMargin);
    notice_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    addWidget(notice_);
    try {
        requireOpenGl();
        makeSurface(state);
    } catch (const base::Failure& failure) {
        giveUp(failure.what());
    }
}

void PicturePane::makeSurface(core::AppState& state) {
    surface_ = new PictureWidget(state, this);
    surface_->setObjectName("picDraw");
    surface_->setAccessibleName(tr("Picture"));
    addWidget(surface_);
    setCurrentWidget(surface_);
    // Queued: a surface must not be taken away while Qt prepares it.
    connect(surface_, &PictureWidget::refused, this, &PicturePane::giveUp, Qt::QueuedConnection);
}

void PicturePane::display() {
    if (surface_ != nullptr) surface_->update();
}

void PicturePane::setHeld(bool held) {
    if (surface_ != nullptr) surface_->setHeld(held);
}

std::vector<std::uint8_t> PicturePane::readFrame(int width, int height) const {
    if (surface_ == nullptr) throw base::Failure(base::FailureCode::OpenGl, "There is no picture without OpenGL.");
    return surface_->readFrame(width, height);
}

void PicturePane::giveUp(const QString& reason) {
    notice_->setText(tr("There is no picture.\n%1").arg(reason));
    setCurrentWidget(notice_);
    if (surface_ != nullptr) std::exchange(surface_, nullptr)->deleteLater();
}

}  // namespace tessaplot::qt
