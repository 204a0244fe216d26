#pragma once

#include <QOpenGLWidget>
#include <functional>
#include <memory>
#include <string>

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

 signals:
    /// The surface has a new size, in physical pixels.
    void surfaceResized(int width, int height);
    /// The context that the surface got cannot draw the picture; the reason is a sentence.
    void refused(const QString& reason);

 protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;

 private:
    QSize physicalSize() const { return size() * devicePixelRatioF(); }
    void tellSize();
    void paint();
    void releaseContext();
    void guarded(const std::function<void()>& work);

    core::AppState& state_;
    std::unique_ptr<gl::Replay> replay_;
    QSize toldSize_;
};

}  // namespace tessaplot::qt
