#pragma once

#include <cstdint>
#include <vector>

#include "gl/affine.h"
#include "gl/glyph_font.h"

namespace tessaplot::gl {

/// A glyph as a solid: its front lies in the plane z = 0 and looks along +z, its back behind it. The em square is one
/// unit.
struct GlyphMesh {
    std::vector<Vector3f> points;          ///< Each corner of the solid once.
    std::vector<std::uint32_t> surface;    ///< Its triangles: three points each, turning left as seen from outside.
    std::vector<Vector3f> positions;       ///< The same for light: a corner once for each direction of its faces.
    std::vector<Vector3f> normals;         ///< One a position, of length 1.
    std::vector<std::uint32_t> triangles;  ///< Those of `surface`, as positions.
    Vector3f low{};                        ///< The corners of the box around it.
    Vector3f high{};
    float advance = 0;
};

inline constexpr float glyphThickness = 0.1F;

/// The solid of an outline: sides, back and front, in this order. Inside is what the contours wind round at least once.
/// An outline that GLU cannot fill gives no triangles.
GlyphMesh extrude(const GlyphOutline& outline);

}  // namespace tessaplot::gl
