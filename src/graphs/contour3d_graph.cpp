#include <cmath>
#include <limits>

#include "base/angle.h"
#include "base/curvilinear.h"
#include "graphs/contour_lines.h"
#include "graphs/emitters.h"
#include "graphs/mesh_cell.h"
#include "graphs/over_scale.h"

namespace tessaplot::graphs {

namespace {

using data::DataKind;
using geometry::SurfacePoint;

/// The two coordinates of a node in the plane of the grid, and the third, which makes the surface: data Y, X and Z;
/// angle, height and radius of a cylinder; polar angle, longitude and radius of a sphere. Angles are in degrees.
struct SurfaceCoordinates {
    const data::Array& p;
    const data::Array& q;
    const data::Array& h;
};

SurfaceCoordinates coordinatesOf(const data::ClsData& data, DataKind kind) {
    if (data::isCylindrical(kind)) return {data.Reg3DA, data.Reg3DD, data.Reg3DB};
    if (data::isSpherical(kind)) return {data.Reg3DB, data.Reg3DA, data.Reg3DD};
    return {data.Reg3DY, data.Reg3DX, data.Reg3DZ};
}

/// A coordinate at a place on an edge of the grid, between its nodes; places count nodes from 1, A along the second
/// index and B along the first.
double onEdge(const data::Array& coordinate, const SurfacePoint& at) {
    const int i = static_cast<int>(at.B) - 1;
    const int j = static_cast<int>(at.A) - 1;
    const double alongU = at.B - std::floor(at.B);
    const double alongV = at.A - std::floor(at.A);
    const double here = coordinate(i, j);
    if (alongU > 0) return here + alongU * (coordinate(i + 1, j) - here);
    if (alongV > 0) return here + alongV * (coordinate(i, j + 1) - here);
    return here;
}

/// Puts places on the grid where the surface is. The coordinates are taken from the nodes and not from their ranges, so
/// that the lines lie on the surface in every scale mode and for nodes at any distance.
class OnSurface {
 public:
    explicit OnSurface(const GraphContext& context)
        : kind_(context.kind), scaling_(context.scaling), coordinates_(coordinatesOf(context.data, context.kind)) {}

    /// The height of a node over the grid; not a number for one without a place.
    double heightOf(int i, int j) const {
        const bool placed = !isMissing(coordinates_.p(i, j)) && !isMissing(coordinates_.q(i, j));
        return placed ? coordinates_.h(i, j) : std::numeric_limits<double>::quiet_NaN();
    }

    DataPoint operator()(const SurfacePoint& at) const {
        const double p = onEdge(coordinates_.p, at);
        const double q = onEdge(coordinates_.q, at);
        if (data::isCylindrical(kind_)) return scaled(base::cylindricalPosition(base::degreesToRadians(p), at.h, q));
        if (data::isSpherical(kind_))
            return scaled(base::sphericalPosition(base::degreesToRadians(q), base::degreesToRadians(p), at.h));
        return {q, p, at.h};
    }

 private:
    DataPoint scaled(const base::Position& at) const {
        return {overScale(at.x, scaling_.ScaleX), overScale(at.y, scaling_.ScaleY), overScale(at.z, scaling_.ScaleZ)};
    }

    DataKind kind_;
    const data::Scaling& scaling_;
    SurfaceCoordinates coordinates_;
};

}  // namespace

void emitContour3D(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    const OnSurface onSurface(context);
    const ValueGrid grid{.countU = graph.StepU + 1, .countV = graph.StepV + 1, .valueAt = [&](int i, int j) {
                             return context.data.Reg3DC(i, j);
                         }};
    const ContourStyle style{graph.Contour3Levels, graph.Con3FillType, graph.Con3Color1, graph.Con3Color2,
                             graph.Con3Width};
    emitSurfaceContourLines(
        list, graph, context, grid, [&](int i, int j) { return onSurface.heightOf(i, j); }, style, onSurface);
}

}  // namespace tessaplot::graphs
