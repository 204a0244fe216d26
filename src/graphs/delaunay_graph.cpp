#include <algorithm>
#include <array>
#include <vector>

#include "base/failure.h"
#include "graphs/make_room.h"
#include "graphs/mesh_cell.h"
#include "graphs/surface_fill.h"
#include "graphs/surface_normals.h"

namespace tessaplot::graphs {

namespace {

using geometry::Triangle;

constexpr std::array<std::int32_t, 3> cornersOf(const Triangle& triangle) {
    return {triangle.a, triangle.b, triangle.c};
}

/// The scattered points by their numbers from 1, in scene axes.
class Points {
 public:
    explicit Points(const data::ClsData& data) : data_(data) {}

    Node operator()(std::int32_t number) const {
        const int p = number - 1;
        return {data_.Irreg3DY(p), data_.Irreg3DZ(p), data_.Irreg3DX(p)};
    }
    double value(std::int32_t number) const { return data_.Irreg3DC(number - 1); }
    int count() const { return data_.Points; }

 private:
    const data::ClsData& data_;
};

/// Throws SubscriptOutOfRange for a triangle with a point that the data set does not hold.
void requirePoints(std::span<const Triangle> triangles, const data::ClsData& data) {
    std::int32_t least = 1;
    std::int32_t largest = 1;
    for (const Triangle& triangle : triangles) {
        least = std::min({least, triangle.a, triangle.b, triangle.c});
        largest = std::max({largest, triangle.a, triangle.b, triangle.c});
    }
    if (triangles.empty()) return;
    if (least < 1) base::failSubscript("The triangles' points", least, 1, data.Points);
    if (largest > data.Points) base::failSubscript("The triangles' points", largest, 1, data.Points);
}

std::vector<Direction> triangleNormals(std::span<const Triangle> triangles, const Points& points) {
    std::vector<Direction> normals;
    normals.reserve(triangles.size());
    for (const Triangle& triangle : triangles) {
        const Node third = points(triangle.c);
        normals.push_back(
            crossNormal(directionBetween(third, points(triangle.a)), directionBetween(third, points(triangle.b))));
    }
    return normals;
}

/// The mean normal of the triangles that hold a point, for each point at its number; 0 for a point in no triangle.
std::vector<Direction> pointNormals(std::span<const Triangle> triangles, const std::vector<Direction>& normals,
                                    int pointCount) {
    std::vector<Direction> sums(static_cast<std::size_t>(pointCount) + 1);
    std::vector<int> counts(sums.size());
    const auto add = [&](std::int32_t number, const Direction& normal) {
        const auto at = static_cast<std::size_t>(number);
        sums[at] = {sums[at].x + normal.x, sums[at].y + normal.y, sums[at].z + normal.z};
        ++counts[at];
    };
    for (std::size_t k = 0; k < triangles.size(); ++k) {
        const Triangle& triangle = triangles[k];
        add(triangle.a, normals[k]);
        if (triangle.b != triangle.a) add(triangle.b, normals[k]);
        if (triangle.c != triangle.a && triangle.c != triangle.b) add(triangle.c, normals[k]);
    }
    for (std::size_t p = 0; p < sums.size(); ++p) {
        if (counts[p] == 0) continue;
        const double count = counts[p];
        sums[p] = atUnitLength({sums[p].x / count, sums[p].y / count, sums[p].z / count});
    }
    return sums;
}

/// Emits the triangles of a graph.
class Triangles {
 public:
    Triangles(gl::DisplayList& list, const GraphContext& context)
        : list_(list), context_(context), points_(context.data) {}

    void emitFilled(Cls9& graph) {
        const std::vector<Direction> faces = triangleNormals(context_.triangles, points_);
        const std::vector<Direction> corners = pointNormals(context_.triangles, faces, points_.count());
        SurfaceFill fill(graph);
        emitShadeModel(list_, graph.Smoothness);
        for (std::size_t k = 0; k < faces.size(); ++k) {
            const std::array<std::int32_t, 3> numbers = cornersOf(context_.triangles[k]);
            list_.glBegin(GL_TRIANGLES);
            for (std::size_t corner = 0; corner < numbers.size(); ++corner) {
                const std::int32_t number = numbers[corner];
                const Node point = points_(number);
                emitColor(list_, fill.surfaceColor(point, points_.value(number)));
                if (graph.Smoothness != smoothness::flat)
                    emitNormal(corners[static_cast<std::size_t>(number)]);
                else if (corner == 0)
                    emitNormal(faces[k]);
                emitVertex(point);
            }
            list_.glEnd();
        }
    }

    void emitEdges(const Rgb& color, int width) {
        for (const Triangle& triangle : context_.triangles) {
            emitColor(list_, color);
            list_.glLineWidth(static_cast<float>(width));
            list_.glBegin(GL_LINES);
            for (const std::int32_t number : {triangle.a, triangle.b, triangle.b, triangle.c, triangle.a, triangle.c})
                emitVertex(points_(number));
            list_.glEnd();
        }
    }

 private:
    void emitNormal(const Direction& normal) { list_.glNormal3d(normal.x, normal.y, normal.z); }
    void emitVertex(const Node& point) { emitUpright(list_, context_.scene, point.x, point.y, point.z); }

    gl::DisplayList& list_;
    const GraphContext& context_;
    Points points_;
};

}  // namespace

void emitTriangles(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    requirePoints(context.triangles, context.data);
    const std::size_t count = context.triangles.size();
    makeRoom(list, 21 * count, 51 * count);
    Triangles triangles(list, context);
    if (graph.ShowDS) triangles.emitFilled(graph);
    if (graph.ShowDG) triangles.emitEdges(ColorToRGB(graph.TriColor), graph.TriWidth);
}

}  // namespace tessaplot::graphs
