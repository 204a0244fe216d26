#include "qt/picture_widget.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QScopeGuard>
#include <algorithm>
#include <array>
#include <exception>

#include "base/failure.h"
#include "core/refresh.h"

namespace tessaplot::qt {

namespace {

constexpr std::uint8_t white = 255;
constexpr std::size_t channels = 3;

/// A saved bitmap is one column wider than the picture, and its colours are right in every row only if a row of it
/// needs no padding.
int savableWidth(int width) {
    return width < 3 ? width : width - (width + 1) % 4;
}

}  // namespace

PictureWidget::PictureWidget(core::AppState& state, QWidget* parent) : QOpenGLWidget(parent), state_(state) {
    setFocusPolicy(Qt::ClickFocus);
}

PictureWidget::~PictureWidget() {
    releaseContext();
    // The context ends later, when only the base of this widget is left to be told.
    if (context() != nullptr) disconnect(context(), nullptr, this, nullptr);
}

QSize PictureWidget::pictureSize() const {
    const QSize physical = size() * devicePixelRatioF();
    return {savableWidth(physical.width()), physical.height()};
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
    constexpr std::array<float, 4> ground{1, 1, 1, 1};
    context()->extraFunctions()->glClearBufferfv(GL_COLOR, 0, ground.data());
    tellSize();  // A move to a screen of another density changes it without a resize.
    if (held_ || !state_.compiled.list900) return;
    draw();
    const QSize size = pictureSize();
    replay_->present(defaultFramebufferObject(), size.width(), size.height());
    tellTrouble();
}

void PictureWidget::setHeld(bool held) {
    held_ = held;
    if (!held) update();
}

void PictureWidget::draw() {
    const QSize size = pictureSize();
    replay_->draw(core::recordDisplay(state_), size.width(), size.height());
}

void PictureWidget::tellTrouble() {
    if (troubleTold_ || replay_->trouble().empty()) return;
    troubleTold_ = true;
    emit troubled(QString::fromStdString(replay_->trouble()));
}

std::vector<std::uint8_t> PictureWidget::readFrame(int width, int height) {
    makeCurrent();
    const auto release = qScopeGuard([this] { doneCurrent(); });
    if (replay_ == nullptr) throw base::Failure(base::FailureCode::OpenGl, "There is no picture to read.");
    draw();
    const std::vector<std::uint8_t> drawn = replay_->readPixels();

    const auto columns = static_cast<std::size_t>(std::max(0, std::min(width, replay_->width())));
    const std::size_t stride = (static_cast<std::size_t>(width) * channels + 3) / 4 * 4;
    std::vector<std::uint8_t> frame(stride * static_cast<std::size_t>(height), white);
    for (int row = 0; row < std::min(height, replay_->height()); ++row) {
        const int fromTop = replay_->height() - 1 - row;
        const std::size_t from = static_cast<std::size_t>(fromTop) * static_cast<std::size_t>(replay_->width());
        std::copy_n(&drawn[from * channels], columns * channels, &frame[static_cast<std::size_t>(row) * stride]);
    }
    return frame;
}

void PictureWidget::tellSize() {
    const QSize size = pictureSize();
    if (size == toldSize_) return;
    toldSize_ = size;
    emit surfaceResized(size.width(), size.height());
}

void PictureWidget::mousePressEvent(QMouseEvent* event) {
    emit pressed(event->button(), event->position() * devicePixelRatioF());
}

void PictureWidget::mouseMoveEvent(QMouseEvent* event) {
    emit moved(event->buttons().toInt(), event->position() * devicePixelRatioF());
}

void PictureWidget::mouseReleaseEvent(QMouseEvent*) {
    emit released();
}

/// The mouse has its own way to the menu.
void PictureWidget::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() != QContextMenuEvent::Mouse) emit pressed(Qt::RightButton, rect().center());
}

void PictureWidget::guarded(const std::function<void()>& work) {
    try {
        work();
    } catch (const base::Failure& failure) {
        if (failure.code() == base::FailureCode::OpenGl) {
            emit refused(failure.what());
            return;
        }
        throwLater(std::current_exception());
    } catch (...) {
        throwLater(std::current_exception());
    }
}

void PictureWidget::throwLater(const std::exception_ptr& failure) {
    QMetaObject::invokeMethod(
        this, [failure] { std::rethrow_exception(failure); }, Qt::QueuedConnection);
}

}  // namespace tessaplot::qt
