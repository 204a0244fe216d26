#include "qt/picture_widget.h"

#include <QOpenGLContext>
#include <exception>

#include "base/failure.h"
#include "core/refresh.h"

namespace tessaplot::qt {

PictureWidget::PictureWidget(core::AppState& state, QWidget* parent) : QOpenGLWidget(parent), state_(state) {
    setFocusPolicy(Qt::ClickFocus);
}

PictureWidget::~PictureWidget() {
    releaseContext();
    // The context ends later, when only the base of this widget is left to be told.
    if (context() != nullptr) disconnect(context(), nullptr, this, nullptr);
}

/// Runs once for each context: all that is drawn is made again from the recorded operations.
void PictureWidget::initializeGL() {
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &PictureWidget::releaseContext, Qt::UniqueConnection);
    try {
        replay_ = std::make_unique<gl::Replay>();
    } catch (const base::Failure& failure) {
        emit refused(failure.what());
    }
}

void PictureWidget::releaseContext() {
    if (replay_ == nullptr) return;
    makeCurrent();
    replay_.reset();
    doneCurrent();
}

void PictureWidget::resizeGL(int /*width*/, int /*height*/) {
    guarded([this] { tellSize(); });
}

void PictureWidget::paintGL() {
    guarded([this] { paint(); });
}

void PictureWidget::paint() {
    if (replay_ == nullptr) return;
    tellSize();  // A move to a screen of another density changes it without a resize.
    const QSize size = physicalSize();
    replay_->draw(core::recordDisplay(state_), size.width(), size.height());
    replay_->present(defaultFramebufferObject(), size.width(), size.height());
}

void PictureWidget::tellSize() {
    const QSize size = physicalSize();
    if (size == toldSize_) return;
    toldSize_ = size;
    emit surfaceResized(size.width(), size.height());
}

void PictureWidget::guarded(const std::function<void()>& work) {
    try {
        work();
    } catch (...) {
        QMetaObject::invokeMethod(
            this, [failure = std::current_exception()] { std::rethrow_exception(failure); }, Qt::QueuedConnection);
    }
}

}  // namespace tessaplot::qt
