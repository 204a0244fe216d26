#include "scene/point.h"

#include <array>
#include <cmath>
#include <initializer_list>

namespace tessaplot::scene {

namespace {

/// An offset from a marker's middle along the first and the second axis of the picture.
struct Offset {
    double first;
    double second;
};

/// The unit circle in 20 steps that go a hair past a full turn: a disc closes by overlap.
const std::array<Offset, 21>& unitRim() {
    static const auto rim = [] {
        std::array<Offset, 21> points{};
        for (std::size_t i = 0; i < points.size(); ++i) {
            const double angle = static_cast<double>(i) * 31416 / 100000;
            points[i] = {std::cos(angle), std::sin(angle)};
        }
        return points;
    }();
    return rim;
}

/// Emits the vertices of one flat marker.
class FlatMarker {
 public:
    FlatMarker(gl::DisplayList& list, const Cls2& point, const SceneState& scene)
        : list_(list),
          first_(point.x - scene.SceneCenterZ),
          second_(point.y - scene.SceneCenterX),
          depth_(-scene.SceneCenterY) {}

    void shape(GLenum primitive, std::initializer_list<Offset> corners) {
        list_.glBegin(primitive);
        for (const Offset& corner : corners)
            vertex(corner);
        list_.glEnd();
    }

    void disc(double radius) {
        list_.glBegin(GL_TRIANGLES);
        forEachRimStep(radius, [this](const Offset& from, const Offset& to) {
            vertex({0, 0});
            vertex(from);
            vertex(to);
        });
        list_.glEnd();
    }

    void rim(double radius) {
        list_.glBegin(GL_LINES);
        forEachRimStep(radius, [this](const Offset& from, const Offset& to) {
            vertex(from);
            vertex(to);
        });
        list_.glEnd();
    }

 private:
    void vertex(const Offset& offset) { list_.glVertex3d(first_ + offset.first, second_ + offset.second, depth_); }

    template <class Visitor>
    void forEachRimStep(double radius, Visitor&& visit) {
        const auto& rim = unitRim();
        for (std::size_t i = 0; i + 1 < rim.size(); ++i)
            visit({radius * rim[i].first, radius * rim[i].second},
                  {radius * rim[i + 1].first, radius * rim[i + 1].second});
    }

    gl::DisplayList& list_;
    double first_;
    double second_;
    double depth_;
};

void setColor(gl::DisplayList& list, base::PackedColor color) {
    list.glColor3f(static_cast<float>(base::RedOf(color) / 255.0), static_cast<float>(base::GreenOf(color) / 255.0),
                   static_cast<float>(base::BlueOf(color) / 255.0));
}

void drawSphere(gl::DisplayList& list, const Cls2& point, const SceneState& scene) {
    setColor(list, point.Color);
    list.glTranslatef(static_cast<float>(point.x - scene.SceneCenterX),
                      static_cast<float>(point.y - scene.SceneCenterY),
                      static_cast<float>(point.z - scene.SceneCenterZ));
    list.gluNewQuadric();
    list.gluSphere(point.size * 5 / 100, 8, 8);
    list.gluDeleteQuadric();
}

void drawSymbol(gl::DisplayList& list, const Cls2& point, const SceneState& scene) {
    if (point.Symbol < 1 || point.Symbol > 6) return;
    setColor(list, point.Color);
    const double h = point.size * 5 / 100;
    const double t = point.size * 7.5 / 100;
    FlatMarker marker(list, point, scene);
    switch (point.Symbol) {
        case 1:
            marker.disc(h);
            break;
        case 2:
            list.glLineWidth(static_cast<float>(point.size));
            marker.rim(h);
            list.glColor3f(1, 1, 1);
            marker.disc(point.size * 4 / 100);
            break;
        case 3:
            marker.shape(GL_QUADS, {{-h, h}, {-h, -h}, {h, -h}, {h, h}});
            break;
        case 4:
            marker.shape(GL_TRIANGLES, {{0, t}, {-t, -t}, {t, -t}});
            break;
        case 5:
            marker.shape(GL_QUADS, {{0, t}, {-t, 0}, {0, -t}, {t, 0}});
            break;
        default:
            list.glLineWidth(static_cast<float>(point.size));
            marker.shape(GL_LINES, {{0, t}, {0, -t}});
            marker.shape(GL_LINES, {{-t, 0}, {t, 0}});
    }
}

}  // namespace

Cls2 Cls2::init(double x, double y, double z) {
    Cls2 point;
    point.x = x;
    point.y = y;
    point.z = z;
    return point;
}

void Cls2::Draw(gl::DisplayList& list, const SceneState& scene) const {
    list.glPushMatrix();
    if (isFlat(scene.SceneMode))
        drawSymbol(list, *this, scene);
    else
        drawSphere(list, *this, scene);
    list.glPopMatrix();
}

}  // namespace tessaplot::scene
