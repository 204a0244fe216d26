#pragma once

#include <QStackedWidget>

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

    /// False if there is no OpenGL to draw it with.
    bool hasPicture() const { return surface_ != nullptr; }

 signals:
    void surfaceResized(int width, int height);

 private:
    void makeSurface(core::AppState& state);
    void giveUp(const QString& reason);

    PictureWidget* surface_ = nullptr;
    QLabel* notice_;
};

}  // namespace tessaplot::qt
