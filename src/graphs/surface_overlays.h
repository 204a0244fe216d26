#pragma once

#include "graphs/emitters.h"
#include "graphs/surface_fill.h"
#include "graphs/surface_normals.h"

namespace tessaplot::graphs {

/// How far below the surface its overlays lie.
inline constexpr double overlayDepth = 3.0;

/// True if a surface shows what `emitColorPlane`, `emitValueContours` or `emitValueArrows` emit.
inline bool hasOverlays(const Cls9& graph) {
    return graph.ShowContour || graph.ShowVector || graph.ShowColormap;
}

/// The cells of a surface, flat below it, in the colours of its fill; lit as the surface is.
void emitColorPlane(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes,
                    const SurfaceNormals& normals, SurfaceFill& fill);

/// The contour lines of the fill value over the grid, flat below the surface.
void emitValueContours(gl::DisplayList& list, Cls9& graph, const GraphContext& context);

/// The gradient of the fill value over the grid as black arrows, flat below the surface; border nodes have none.
void emitValueArrows(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes);

}  // namespace tessaplot::graphs
