#include "qt/pane_splitter.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSplitterHandle>

namespace tessaplot::qt {

namespace {

constexpr int barWidth = 5;

/// The bar between two panes, coloured while it is pressed.
class Handle : public QSplitterHandle {
 public:
    Handle(Qt::Orientation orientation, QSplitter* parent) : QSplitterHandle(orientation, parent) {}

 protected:
    void mousePressEvent(QMouseEvent* event) override {
        setPressed(event->button() == Qt::LeftButton);
        QSplitterHandle::mousePressEvent(event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        setPressed(false);
        QSplitterHandle::mouseReleaseEvent(event);
    }
    void paintEvent(QPaintEvent* event) override {
        if (!pressed_) return QSplitterHandle::paintEvent(event);
        QPainter(this).fillRect(rect(), palette().dark());
    }

 private:
    void setPressed(bool pressed) {
        pressed_ = pressed;
        update();
    }

    bool pressed_ = false;
};

}  // namespace

PaneSplitter::PaneSplitter(Qt::Orientation orientation, QWidget* parent) : QSplitter(orientation, parent) {
    setOpaqueResize(false);
    setChildrenCollapsible(false);
    setHandleWidth(barWidth);
}

QSplitterHandle* PaneSplitter::createHandle() {
    return new Handle(orientation(), this);
}

}  // namespace tessaplot::qt
