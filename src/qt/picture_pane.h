#pragma once

#include <QStackedWidget>
#include <cstdint>
#include <vector>

#include "core/app_state.h"

class QLabel;

namespace tessaplot::qt {

class PictureWidget;

/// The place of the picture: the drawing surface, or a word on why there is none.
class PicturePane : public QStackedWidget {
    Q_OBJECT

 public:
    PicturePane(core::AppState& state, QWidget* parent);

    /// Shows the compiled scene as soon as the window system asks for it.
    void display();
    /// `PictureWidget::setHeld`.
    void setHeld(bool held);

    /// The drawing surface; null if there is no OpenGL to draw with.
    PictureWidget* surface() const { return surface_; }

    /// `PictureWidget::readFrame`; throws Failure (OpenGl) without a surface.
    std::vector<std::uint8_t> readFrame(int width, int height) const;

 private:
    void makeSurface(core::AppState& state);
    void giveUp(const QString& reason);

    PictureWidget* surface_ = nullptr;
    QLabel* notice_;
};

}  // namespace tessaplot::qt
