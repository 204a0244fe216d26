#include <algorithm>
#include <cmath>
#include <limits>

#include "numerics/grid_passes.h"
#include "numerics/kd_tree.h"
#include "numerics/nearest_points.h"
#include "numerics/plane_columns.h"

namespace tessaplot::numerics {

namespace {

static_assert(nearestCount == NearestList::capacity);

constexpr double unset = std::numeric_limits<double>::quiet_NaN();

int countOf(int points) {
    return std::min(points, nearestCount);
}

/// The blend that a search of the smallest entry, repeated, makes of the nearest points. Past `usedSquare` a point that
/// was taken looks nearer than one that was not; the earliest of those taken is then found.
double blendOf(std::span<const Neighbour> nearest, std::span<const double> values) {
    double sum = 0;
    double weights = 0;
    Neighbour used;
    std::size_t unused = 0;
    for (std::size_t taken = 0; taken < nearest.size(); ++taken) {
        const bool again = used.precedes(nearest[unused]);
        const Neighbour chosen = again ? used : nearest[unused];
        if (chosen.square < adoptedSquare) return values[chosen.index];
        const double r = std::sqrt(chosen.square);
        sum += values[chosen.index] / r;
        weights += 1 / r;
        if (again) continue;
        used = {usedSquare, std::min(used.index, chosen.index)};
        ++unused;
    }
    return sum / weights;
}

double orUnset(double value) {
    return std::isfinite(value) ? value : unset;
}

/// True if `NDS` has room for the distances of all points.
bool fitsApplicationSet(int points, int applicationPoints) {
    return points > 0 && points - 1 <= applicationPoints;
}

/// A column that a search serves, and where its blends go.
struct Wanted {
    std::span<const double> source;
    std::vector<double>* target;
};

/// The square to the farthest of `points`, summed as the tree does.
template <std::size_t dimensions, class Term>
double largestSquare(const std::array<std::span<const double>, dimensions>& columns, std::span<const Neighbour> points,
                     const typename KdTree<dimensions>::Position& position, const Term& term) {
    double largest = 0;
    for (const Neighbour& point : points) {
        double square = term(0, columns[0][point.index] - position[0]);
        for (std::size_t axis = 1; axis < dimensions; ++axis)
            square += term(axis, columns[axis][point.index] - position[axis]);
        largest = std::max(largest, square);
    }
    return largest;
}

/// Sets the wanted columns by one search for each node; `bringInto` turns node positions into those of the tree.
template <std::size_t dimensions, class Term, class BringInto>
void searchAll(const std::array<std::span<const double>, dimensions>& columns, const Term& term,
               const BringInto& bringInto, const Lattice& lattice, const Progress& progress,
               std::span<const Wanted> wanted) {
    const KdTree<dimensions> tree(columns);
    const auto k = static_cast<std::size_t>(countOf(static_cast<int>(columns[0].size())));
    forEachBlock(lattice, progress, [&](std::size_t first, std::size_t present, NodeBlock& block) {
        bringInto(block);
        NearestList nearest(k);
        for (std::size_t lane = 0; lane < present; ++lane) {
            typename KdTree<dimensions>::Position position = {block.x[lane], block.y[lane]};
            if constexpr (dimensions == 3) position[2] = block.z[lane];
            // As many points lie no farther than the nearest ones of the node before.
            if (lane > 0) nearest = NearestList(k, largestSquare<dimensions>(columns, nearest.found(), position, term));
            tree.search(position, term, nearest);
            for (const Wanted& each : wanted)
                (*each.target)[first + lane] = orUnset(blendOf(nearest.found(), each.source));
        }
    });
}

/// Calls the plain routine, `valueAt(block, lane, value)`, for each node.
template <class ValueAt>
void plainAll(const Lattice& lattice, const Progress& progress, std::vector<double>& values, const ValueAt& valueAt) {
    forEachBlock(lattice, progress, [&](std::size_t first, std::size_t present, const NodeBlock& block) {
        for (std::size_t lane = 0; lane < present; ++lane) {
            values[first + lane] = unset;
            valueAt(block, lane, values[first + lane]);
        }
    });
}

/// True if no squared distance can leave the range of numbers. Only then is a fault a matter of one node.
bool isSafe(const PlaneColumns& plane, const Lattice& lattice) {
    return plane.largestDistance(lattice) <= safeDistance;
}

void searchPlane(const PlaneColumns& plane, const Lattice& lattice, const Progress& progress,
                 std::span<const Wanted> wanted) {
    const std::array<std::span<const double>, 2> columns = {plane.x, plane.y};
    const auto bringInto = [&plane](NodeBlock& block) { plane.bringInto(block); };
    if (plane.metric == PlaneMetric::Plain) {
        const auto term = [](std::size_t, double difference) { return difference * difference; };
        searchAll(columns, term, bringInto, lattice, progress, wanted);
    } else {
        const std::array<double, 2> ranges = {plane.rangeX, plane.rangeY};
        const auto term = [ranges](std::size_t axis, double difference) {
            const double fraction = difference / ranges[axis];
            return fraction * fraction;
        };
        searchAll(columns, term, bringInto, lattice, progress, wanted);
    }
}

void heights(const ScatteredSurface& surface, const Lattice& lattice, const Progress& progress, NodeValues& values) {
    const PlaneColumns plane(surface, PlaneMetric::Plain);
    const std::array wanted = {Wanted{heightColumn(surface), &values.value}};
    if (isSafe(plane, lattice)) return searchPlane(plane, lattice, progress, wanted);
    plainAll(lattice, progress, values.value, [&](const NodeBlock& block, std::size_t lane, double& value) {
        NDS(surface, block.x[lane], block.y[lane], value, countOf(surface.Points()));
    });
}

void colours(const ScatteredSurface& surface, const Lattice& lattice, const Progress& progress, NodeValues& values) {
    const PlaneColumns plane(surface, colourMetric(surface));
    const std::array wanted = {Wanted{surface.c, &values.colour}};
    if (isSafe(plane, lattice)) return searchPlane(plane, lattice, progress, wanted);
    plainAll(lattice, progress, values.colour, [&](const NodeBlock& block, std::size_t lane, double& value) {
        NDSC(surface, block.x[lane], block.y[lane], value, countOf(surface.Points()));
    });
}

/// Nodes that were left unset take the value of the node before, 0 at first.
void carryForward(std::vector<double>& values) {
    double last = 0;
    for (double& value : values) {
        if (std::isnan(value)) value = last;
        last = value;
    }
}

void searchSurface(const ScatteredSurface& surface, const Lattice& lattice, const Progress& progress,
                   NodeValues& values) {
    const PlaneColumns plane(surface, PlaneMetric::Plain);
    if (colourMetric(surface) == PlaneMetric::Plain && isSafe(plane, lattice)) {
        const std::array wanted = {Wanted{heightColumn(surface), &values.value}, Wanted{surface.c, &values.colour}};
        searchPlane(plane, lattice, progress, wanted);
    } else {
        heights(surface, lattice, partOf(progress, 0, 0.5), values);
        colours(surface, lattice, partOf(progress, 0.5, 1), values);
    }
}

void searchVolume(const ScatteredVolume& volume, const Lattice& lattice, const Progress& progress, NodeValues& values) {
    if (largestDistance(volume, lattice) <= safeDistance) {
        const std::array<std::span<const double>, 3> columns = {volume.x, volume.y, volume.z};
        const std::array wanted = {Wanted{volume.v, &values.value}};
        const auto term = [](std::size_t, double difference) { return difference * difference; };
        searchAll(
            columns, term, [](const NodeBlock&) {}, lattice, progress, wanted);
        return;
    }
    plainAll(lattice, progress, values.value, [&](const NodeBlock& block, std::size_t lane, double& value) {
        NDS4D(volume, block.x[lane], block.y[lane], block.z[lane], value, countOf(volume.Points()));
    });
}

}  // namespace

void nearestPass(const ScatteredSurface& surface, const Lattice& lattice, const Progress& progress,
                 NodeValues& values) {
    if (!fitsApplicationSet(surface.Points(), surface.applicationPoints)) return;
    searchSurface(surface, lattice, progress, values);
    carryForward(values.value);
    carryForward(values.colour);
}

void nearestPass(const ScatteredVolume& volume, const Lattice& lattice, const Progress& progress, NodeValues& values) {
    if (!fitsApplicationSet(volume.Points(), volume.applicationPoints)) return;
    searchVolume(volume, lattice, progress, values);
    carryForward(values.value);
}

}  // namespace tessaplot::numerics
