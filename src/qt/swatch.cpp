#include "qt/swatch.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPixmap>

namespace tessaplot::qt {

namespace {

constexpr QSize stripSize(220, 24);
constexpr int iconScale = 2;  ///< Sharp on a dense screen as well.
constexpr QColor frameColor(110, 110, 110);

QBrush blendOf(const std::vector<base::PackedColor>& colors, const QRectF& area) {
    if (colors.empty()) return Qt::NoBrush;
    QLinearGradient gradient(area.topLeft(), area.topRight());
    const double last = static_cast<double>(colors.size()) - 1;
    for (std::size_t i = 0; i < colors.size(); ++i)
        gradient.setColorAt(last > 0 ? static_cast<double>(i) / last : 0, colorOf(colors[i]));
    return gradient;
}

void paintSwatch(QPainter& painter, const std::vector<base::PackedColor>& colors, const QRectF& area) {
    painter.setPen(QPen(frameColor, 1));
    painter.setBrush(blendOf(colors, area));
    painter.drawRect(area.adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace

QColor colorOf(base::PackedColor color) {
    return {base::RedOf(color), base::GreenOf(color), base::BlueOf(color)};
}

QIcon swatchIcon(const std::vector<base::PackedColor>& colors, QSize size) {
    QPixmap pixmap(size * iconScale);
    pixmap.fill(Qt::transparent);
    pixmap.setDevicePixelRatio(iconScale);
    QPainter painter(&pixmap);
    paintSwatch(painter, colors, QRectF(QPointF(), size));
    painter.end();
    QIcon icon(pixmap);
    // A chosen entry keeps its true colours.
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

RampStrip::RampStrip(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void RampStrip::setRamp(const std::vector<base::PackedColor>& colors) {
    if (colors == colors_) return;
    colors_ = colors;
    update();
}

QSize RampStrip::sizeHint() const {
    return stripSize;
}

void RampStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    constexpr double faded = 0.35;
    if (!isEnabled()) painter.setOpacity(faded);
    paintSwatch(painter, colors_, rect());
}

}  // namespace tessaplot::qt
