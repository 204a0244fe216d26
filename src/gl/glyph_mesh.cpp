#include "gl/glyph_mesh.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <deque>
#include <memory>

#include "gl/gl_calls.h"

namespace tessaplot::gl {

namespace {

using TessCall = void (*)();

/// Fills contours with triangles by GLU.
class Tessellation {
 public:
    explicit Tessellation(const std::vector<std::vector<OutlinePoint>>& contours);

    /// The points of the contours in their order, then those where contours cross.
    const std::vector<OutlinePoint>& points() const { return points_; }
    /// Three points each, turning left.
    const std::vector<std::size_t>& triangles() const { return triangles_; }

 private:
    static Tessellation& of(void* self) { return *static_cast<Tessellation*>(self); }
    static void GLAPIENTRY vertex(void* number, void* self);
    static void GLAPIENTRY combine(GLdouble place[3], void* numbers[4], GLfloat weights[4], void** result, void* self);
    static void GLAPIENTRY error(GLenum code, void* self);
    static void GLAPIENTRY edgeFlag(GLboolean isEdge);

    /// What GLU hands back for a new point: the place of its number.
    void* addPoint(double x, double y);

    std::vector<OutlinePoint> points_;
    std::deque<std::size_t> numbers_;  ///< One a point. They stay where they are, as GLU needs it.
    std::vector<std::size_t> triangles_;
    bool failed_ = false;
};

void Tessellation::vertex(void* number, void* self) {
    of(self).triangles_.push_back(*static_cast<std::size_t*>(number));
}

void Tessellation::combine(GLdouble place[3], void* /*numbers*/[4], GLfloat /*weights*/[4], void** result, void* self) {
    *result = of(self).addPoint(place[0], place[1]);
}

void Tessellation::error(GLenum /*code*/, void* self) {
    of(self).failed_ = true;
}

/// Asked for edge flags, GLU makes nothing but separate triangles.
void Tessellation::edgeFlag(GLboolean /*isEdge*/) {}

void* Tessellation::addPoint(double x, double y) {
    points_.push_back({x, y});
    return &numbers_.emplace_back(numbers_.size());
}

Tessellation::Tessellation(const std::vector<std::vector<OutlinePoint>>& contours) {
    const std::unique_ptr<GLUtesselator, decltype(&gluDeleteTess)> tess(gluNewTess(), gluDeleteTess);
    gluTessProperty(tess.get(), GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_NONZERO);
    gluTessNormal(tess.get(), 0, 0, 1);
    gluTessCallback(tess.get(), GLU_TESS_VERTEX_DATA, reinterpret_cast<TessCall>(&vertex));
    gluTessCallback(tess.get(), GLU_TESS_COMBINE_DATA, reinterpret_cast<TessCall>(&combine));
    gluTessCallback(tess.get(), GLU_TESS_ERROR_DATA, reinterpret_cast<TessCall>(&error));
    gluTessCallback(tess.get(), GLU_TESS_EDGE_FLAG, reinterpret_cast<TessCall>(&edgeFlag));
    gluTessBeginPolygon(tess.get(), this);
    for (const std::vector<OutlinePoint>& contour : contours) {
        gluTessBeginContour(tess.get());
        for (const OutlinePoint& point : contour) {
            GLdouble place[3] = {point[0], point[1], 0};
            gluTessVertex(tess.get(), place, addPoint(point[0], point[1]));
        }
        gluTessEndContour(tess.get());
    }
    gluTessEndPolygon(tess.get());
    if (failed_) triangles_.clear();
}

void appendLit(GlyphMesh& mesh, std::uint32_t point, const Vector3f& normal) {
    mesh.positions.push_back(mesh.points[point]);
    mesh.normals.push_back(normal);
}

/// The corners in front, then as many in the back.
void appendPoints(GlyphMesh& mesh, const std::vector<OutlinePoint>& points) {
    for (const float z : {0.0F, -glyphThickness})
        for (const OutlinePoint& p : points)
            mesh.points.push_back({static_cast<float>(p[0]), static_cast<float>(p[1]), z});
}

/// The side between two corners of a contour, of which the ink is on the left.
void appendSide(GlyphMesh& mesh, std::uint32_t from, std::uint32_t to) {
    const auto back = static_cast<std::uint32_t>(mesh.points.size() / 2);
    const float dx = mesh.points[to][0] - mesh.points[from][0];
    const float dy = mesh.points[to][1] - mesh.points[from][1];
    const float length = std::hypot(dx, dy);
    const std::array<std::uint32_t, 4> corners{back + from, back + to, to, from};
    const auto first = static_cast<std::uint32_t>(mesh.positions.size());
    for (const std::uint32_t corner : corners)
        appendLit(mesh, corner, {dy / length, -dx / length, 0});
    for (const std::uint32_t k : {0U, 1U, 2U, 0U, 2U, 3U}) {
        mesh.surface.push_back(corners[k]);
        mesh.triangles.push_back(first + k);
    }
}

void appendSides(GlyphMesh& mesh, const std::vector<std::vector<OutlinePoint>>& contours) {
    std::uint32_t first = 0;
    for (const std::vector<OutlinePoint>& contour : contours) {
        const auto size = static_cast<std::uint32_t>(contour.size());
        for (std::uint32_t i = 0; i < size; ++i)
            appendSide(mesh, first + i, first + (i + 1) % size);
        first += size;
    }
}

enum class Face { Front, Back };

void appendFace(GlyphMesh& mesh, const std::vector<std::size_t>& corners, Face face) {
    const bool front = face == Face::Front;
    const auto points = static_cast<std::uint32_t>(mesh.points.size() / 2);
    const std::uint32_t offset = front ? 0 : points;
    const auto first = static_cast<std::uint32_t>(mesh.positions.size());
    for (std::uint32_t point = 0; point < points; ++point)
        appendLit(mesh, offset + point, {0, 0, front ? 1.0F : -1.0F});
    for (std::size_t i = 0; i < corners.size(); i += 3) {
        for (const std::size_t k : {i, front ? i + 1 : i + 2, front ? i + 2 : i + 1}) {
            const auto corner = static_cast<std::uint32_t>(corners[k]);
            mesh.surface.push_back(offset + corner);
            mesh.triangles.push_back(first + corner);
        }
    }
}

void measure(GlyphMesh& mesh) {
    mesh.low = mesh.high = mesh.points.front();
    for (const Vector3f& point : mesh.points) {
        for (std::size_t k = 0; k < 3; ++k) {
            mesh.low[k] = std::min(mesh.low[k], point[k]);
            mesh.high[k] = std::max(mesh.high[k], point[k]);
        }
    }
}

}  // namespace

GlyphMesh extrude(const GlyphOutline& outline) {
    GlyphMesh mesh;
    mesh.advance = static_cast<float>(outline.advance);
    if (outline.contours.empty()) return mesh;
    const Tessellation filled(outline.contours);
    if (filled.triangles().empty()) return mesh;
    appendPoints(mesh, filled.points());
    appendSides(mesh, outline.contours);
    appendFace(mesh, filled.triangles(), Face::Back);
    appendFace(mesh, filled.triangles(), Face::Front);
    measure(mesh);
    return mesh;
}

}  // namespace tessaplot::gl
