#include "numerics/grid.h"

#include <string>

#include "base/angle.h"
#include "base/curvilinear.h"
#include "base/failure.h"
#include "numerics/grid_passes.h"
#include "numerics/radial_basis.h"

namespace tessaplot::numerics {

namespace {

template <std::size_t count>
void requireEqualLengths(const std::array<std::span<const double>, count>& columns) {
    for (const std::span<const double> column : columns)
        if (column.size() != columns[0].size())
            throw base::Failure(base::FailureCode::BadInput, "The columns of the scattered points differ in length.");
}

void requireElements(std::span<const double> column, std::size_t elements, const char* name) {
    if (column.size() < elements)
        base::failSubscript(name, static_cast<std::int64_t>(elements) - 1, 0,
                            static_cast<std::int64_t>(column.size()) - 1);
}

std::size_t withSpare(int count) {
    return static_cast<std::size_t>(std::max(count, 0)) + 1;
}

void requireRoom(const ScatteredSurface& surface, const SurfaceNodes& nodes) {
    const std::size_t elements = withSpare(surface.StepsX) * withSpare(surface.StepsY);
    requireElements(nodes.x, elements, "Reg3DX");
    requireElements(nodes.y, elements, "Reg3DY");
    requireElements(nodes.z, elements, "Reg3DZ");
    requireElements(nodes.c, elements, "Reg3DC");
    if (surface.coordinates == SurfaceCoordinates::Cartesian) return;
    requireElements(nodes.a, elements, "Reg3DA");
    requireElements(nodes.b, elements, "Reg3DB");
    requireElements(nodes.d, elements, "Reg3DD");
}

void requireRoom(const ScatteredVolume& volume, const VolumeNodes& nodes) {
    const std::size_t elements = withSpare(volume.StepsX) * withSpare(volume.StepsY) * withSpare(volume.StepsZ);
    requireElements(nodes.x, elements, "Reg4DX");
    requireElements(nodes.y, elements, "Reg4DY");
    requireElements(nodes.z, elements, "Reg4DZ");
    requireElements(nodes.v, elements, "Reg4DV");
    requireElements(nodes.c, elements, "Reg4DC");
}

Table dataTable(const std::vector<std::span<const double>>& columns) {
    const auto rows = static_cast<int>(columns.front().size());
    Table data = makeTable("the data of a fit", rows, static_cast<int>(columns.size()));
    for (int i = 1; i <= rows; ++i)
        for (int j = 1; j <= static_cast<int>(columns.size()); ++j)
            data(i, j) = columns[static_cast<std::size_t>(j - 1)][static_cast<std::size_t>(i - 1)];
    return data;
}

/// Puts value and colour of one node where they belong.
void storeNode(const SurfaceNodes& nodes, SurfaceCoordinates coordinates, std::size_t at, double p, double q,
               double value, double colour) {
    nodes.c[at] = colour;
    if (coordinates == SurfaceCoordinates::Cartesian) {
        nodes.x[at] = p;
        nodes.y[at] = q;
        nodes.z[at] = value;
        return;
    }
    const bool cylindrical = coordinates == SurfaceCoordinates::Cylindrical;
    const double second = cylindrical ? value : q;
    const double third = cylindrical ? q : value;
    nodes.a[at] = p;
    nodes.b[at] = second;
    nodes.d[at] = third;
    const double first = base::degreesToRadians(p);
    const base::Position place = cylindrical ? base::cylindricalPosition(first, second, third)
                                             : base::sphericalPosition(first, base::degreesToRadians(second), third);
    nodes.x[at] = place.x;
    nodes.y[at] = place.y;
    nodes.z[at] = place.z;
}

/// Stores the nodes in their order; false at a node whose value says, by the look of it, that its system failed.
bool storeSurface(const ScatteredSurface& surface, const Lattice& lattice, bool radial, const NodeValues& values,
                  const SurfaceNodes& nodes) {
    const std::size_t stride = withSpare(surface.StepsX);
    std::size_t node = 0;
    for (int i = 0; i < surface.StepsX; ++i)
        for (int j = 0; j < surface.StepsY; ++j, ++node) {
            if (radial && values.value[node] == GridFailed) return false;
            const std::size_t at = static_cast<std::size_t>(i) + stride * static_cast<std::size_t>(j);
            storeNode(nodes, surface.coordinates, at, lattice.axis(0).at(i), lattice.axis(1).at(j), values.value[node],
                      values.colour[node]);
        }
    return true;
}

void storeVolume(const ScatteredVolume& volume, const Lattice& lattice, const NodeValues& values,
                 const VolumeNodes& nodes) {
    const std::size_t strideJ = withSpare(volume.StepsX);
    const std::size_t strideK = strideJ * withSpare(volume.StepsY);
    std::size_t node = 0;
    for (int i = 0; i < volume.StepsX; ++i)
        for (int j = 0; j < volume.StepsY; ++j)
            for (int k = 0; k < volume.StepsZ; ++k, ++node) {
                const std::size_t at = static_cast<std::size_t>(i) + strideJ * static_cast<std::size_t>(j) +
                                       strideK * static_cast<std::size_t>(k);
                nodes.x[at] = lattice.axis(0).at(i);
                nodes.y[at] = lattice.axis(1).at(j);
                nodes.z[at] = lattice.axis(2).at(k);
                nodes.v[at] = nodes.c[at] = values.value[node];
            }
}

}  // namespace

GridResult gridSurface(const ScatteredSurface& surface, int method, const Progress& progress,
                       const SurfaceNodes& nodes) {
    requireEqualLengths(std::array{surface.x, surface.y, surface.z, surface.c});
    requireRoom(surface, nodes);
    const Lattice lattice(surface);
    NodeValues values(lattice.nodes());
    GridResult result;
    bool solved = true;
    switch (method) {
        case 1:
            nearestPass(surface, lattice, progress, values);
            break;
        case 2:
            shepardPass(surface, lattice, progress, values);
            break;
        case 3:
            solved = radialPass(surface, RadialKind::Multiquadric, lattice, progress, values);
            break;
        case 4:
            solved = radialPass(surface, RadialKind::Spline, lattice, progress, values);
            break;
        case 5:
            result.fit = PolyFit(dataTable({surface.x, surface.y, surface.z}), surface.Points());
            quadraticPass(result.fit->coefficients, lattice, progress, values);
            break;
        default:
            break;
    }
    if (!solved) return {.complete = false, .message = unsolvableMessage, .fit = {}};
    result.complete = storeSurface(surface, lattice, method == 3 || method == 4, values, nodes);
    return result;
}

GridResult gridVolume(const ScatteredVolume& volume, int method, const Progress& progress, const VolumeNodes& nodes) {
    requireEqualLengths(std::array{volume.x, volume.y, volume.z, volume.v});
    requireRoom(volume, nodes);
    const Lattice lattice(volume);
    NodeValues values(lattice.nodes());
    GridResult result;
    switch (method) {
        case 101:
            nearestPass(volume, lattice, progress, values);
            break;
        case 102:
            shepardPass(volume, lattice, progress, values);
            break;
        case 103:
            result.fit = PolyFit4D(dataTable({volume.x, volume.y, volume.z, volume.v}), volume.Points());
            quadraticPass(result.fit->coefficients, lattice, progress, values);
            break;
        default:
            break;
    }
    storeVolume(volume, lattice, values, nodes);
    return result;
}

}  // namespace tessaplot::numerics
