#pragma once

#include <algorithm>
#include <optional>

#include "base/angle.h"
#include "base/failure.h"
#include "numerics/inverse_distance.h"
#include "numerics/nearest_points.h"
#include "numerics/radial_basis.h"
#include "samples.h"

namespace tessaplot::numerics::test {

/// How a run ended: complete, stopped, or with a failure.
struct Ending {
    bool complete = true;
    std::optional<base::FailureCode> failure;

    bool operator==(const Ending&) const = default;
};

inline bool plainNode(const ScatteredSurface& surface, int method, double p, double q, bool colour, double& value) {
    const int k = std::min(surface.Points(), 5);
    if (method == 1) return (colour ? NDSC : NDS)(surface, p, q, value, k), true;
    if (method == 2) return value = Shepard(surface, p, q, colour), true;
    return (method == 3 ? RBF : TPS)(surface, p, q, colour, value);
}

/// The grid node after node by the plain routines.
inline Ending plainSurfaceGrid(const ScatteredSurface& surface, int method, SurfaceColumns& out) {
    const bool cylindrical = surface.coordinates == SurfaceCoordinates::Cylindrical;
    const bool cartesian = surface.coordinates == SurfaceCoordinates::Cartesian;
    const double firstMin = cartesian ? surface.MinX : surface.MinA;
    const double firstMax = cartesian ? surface.MaxX : surface.MaxA;
    const double secondMin = cartesian ? surface.MinY : cylindrical ? surface.MinZ : surface.MinB;
    const double secondMax = cartesian ? surface.MaxY : cylindrical ? surface.MaxZ : surface.MaxB;
    const double firstStep = (firstMax - firstMin) / (surface.StepsX - 1);
    const double secondStep = (secondMax - secondMin) / (surface.StepsY - 1);
    double w = 0;
    double c = 0;
    for (int i = 0; i < surface.StepsX; ++i)
        for (int j = 0; j < surface.StepsY; ++j) {
            const double p = i * firstStep + firstMin;
            const double q = j * secondStep + secondMin;
            if (!plainNode(surface, method, p, q, false, w)) return {.complete = false, .failure = {}};
            plainNode(surface, method, p, q, true, c);
            const std::size_t at = placeOf(surface.StepsX, surface.StepsY, i, j);
            out.c[at] = c;
            if (cartesian) {
                out.x[at] = p;
                out.y[at] = q;
                out.z[at] = w;
                continue;
            }
            const double a = base::degreesToRadians(p);
            out.a[at] = p;
            out.b[at] = cylindrical ? w : q;
            out.d[at] = cylindrical ? q : w;
            const double b = base::degreesToRadians(q);
            out.x[at] = cylindrical ? std::cos(a) * w : std::sin(b) * w * std::cos(a);
            out.y[at] = cylindrical ? std::sin(a) * w : std::sin(b) * w * std::sin(a);
            out.z[at] = cylindrical ? q : std::cos(b) * w;
        }
    return {};
}

inline Ending plainVolumeGrid(const ScatteredVolume& volume, int method, VolumeColumns& out) {
    const double stepX = (volume.MaxX - volume.MinX) / (volume.StepsX - 1);
    const double stepY = (volume.MaxY - volume.MinY) / (volume.StepsY - 1);
    const double stepZ = (volume.MaxZ - volume.MinZ) / (volume.StepsZ - 1);
    double v = 0;
    for (int i = 0; i < volume.StepsX; ++i)
        for (int j = 0; j < volume.StepsY; ++j)
            for (int k = 0; k < volume.StepsZ; ++k) {
                const double p = i * stepX + volume.MinX;
                const double q = j * stepY + volume.MinY;
                const double r = k * stepZ + volume.MinZ;
                if (method == 101)
                    NDS4D(volume, p, q, r, v, std::min(volume.Points(), 5));
                else
                    v = Shepard4D(volume, p, q, r);
                const std::size_t at = placeOf(volume.StepsX, volume.StepsY, i, j, k);
                out.x[at] = p;
                out.y[at] = q;
                out.z[at] = r;
                out.v[at] = out.c[at] = v;
            }
    return {};
}

/// Runs a grid and tells how it ended, whatever it threw.
template <class Run>
Ending endingOf(const Run& run) {
    try {
        return run();
    } catch (const base::Failure& failure) {
        return {.complete = false, .failure = failure.code()};
    }
}

}  // namespace tessaplot::numerics::test
