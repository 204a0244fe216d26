#pragma once

#include <QColor>
#include <QIcon>
#include <QWidget>
#include <vector>

#include "base/color.h"

class QPainter;

namespace tessaplot::qt {

/// The size of the picture of a list entry, in logical pixels.
inline constexpr QSize swatchSize(48, 14);

/// A packed colour as Qt has it.
QColor colorOf(base::PackedColor color);

/// The colours, evenly spread from left to right and blended in between, in a thin frame.
QIcon swatchIcon(const std::vector<base::PackedColor>& colors, QSize size);

/// A strip that shows a colour ramp.
class RampStrip : public QWidget {
 public:
    explicit RampStrip(QWidget* parent);

    void setRamp(const std::vector<base::PackedColor>& colors);
    QSize sizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    std::vector<base::PackedColor> colors_;
};

}  // namespace tessaplot::qt
