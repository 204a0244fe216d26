#include "qt/command_icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <utility>

namespace tessaplot::qt {

namespace {

constexpr double disabledOpacity = 0.35;

/// Draws one SVG whose lines are `currentColor`.
class LineArtEngine : public QIconEngine {
 public:
    explicit LineArtEngine(QByteArray svg) : svg_(std::move(svg)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        QByteArray svg = svg_;
        const QPalette palette = QGuiApplication::palette();
        const QPalette::ColorRole role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
        svg.replace("currentColor", palette.color(QPalette::Active, role).name().toUtf8());
        painter->save();
        if (mode == QIcon::Disabled) painter->setOpacity(disabledOpacity);
        QSvgRenderer(svg).render(painter, rect);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        const QString key = QString("command-icon-%1-%2x%3-%4-%5")
                                .arg(qHash(svg_))
                                .arg(size.width())
                                .arg(size.height())
                                .arg(mode)
                                .arg(QGuiApplication::palette().cacheKey());
        QPixmap pixmap;
        if (QPixmapCache::find(key, &pixmap)) return pixmap;
        pixmap = QPixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect({}, size), mode, state);
        QPixmapCache::insert(key, pixmap);
        return pixmap;
    }

    QIconEngine* clone() const override { return new LineArtEngine(*this); }

 private:
    QByteArray svg_;
};

}  // namespace

QIcon commandIcon(const QString& command) {
    QFile file(":/tessaplot/icons/" + command + ".svg");
    return file.open(QIODevice::ReadOnly) ? QIcon(new LineArtEngine(file.readAll())) : QIcon();
}

}  // namespace tessaplot::qt
