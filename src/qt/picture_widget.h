#pragma once

#include <QOpenGLWidget>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/app_state.h"
#include "gl/replay.h"

namespace tessaplot::qt {

/// The drawing surface: shows the compiled scene and keeps nothing that its OpenGL context does not own. A failure
/// while it paints is thrown again from the event loop, for Qt's painting must not be left half way.
class PictureWidget : public QOpenGLWidget {
    Q_OBJECT

 public:
    PictureWidget(core::AppState& state, QWidget* parent);
    ~PictureWidget() override;

    /// The picture in physical pixels. Its width is 3 modulo 4, where the surface has that much: the few columns that
    /// remain at the right edge stay white.
    QSize pictureSize() const;

    /// A picture that is held stays white until it is let go.
    void setHeld(bool held);

    /// The compiled scene as RGB bytes from the lower left corner, bottom row first, rows padded to 4 bytes; what lies
    /// beyond the picture is white. Throws Failure (OpenGl) if it cannot be drawn.
    std::vector<std::uint8_t> readFrame(int width, int height);

 signals:
    /// The picture has a new size, in physical pixels.
    void surfaceResized(int width, int height);
    /// The context cannot draw the picture, or no longer; the reason is a sentence.
    void refused(const QString& reason);
    /// The pictures lack something; told once.
    void troubled(const QString& reason);

    /// The mouse, in the picture's pixels. Buttons are 1 for left, 2 for right, 4 for middle.
    void pressed(int button, QPointF at);
    void moved(int buttons, QPointF at);
    void released();

 protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

 private:
    void tellSize();
    void paint();
    void draw();
    void tellTrouble();
    void releaseContext();
    void guarded(const std::function<void()>& work);
    void throwLater(const std::exception_ptr& failure);

    core::AppState& state_;
    std::unique_ptr<gl::Replay> replay_;
    QSize toldSize_;
    bool held_ = false;
    bool troubleTold_ = false;
};

}  // namespace tessaplot::qt
