#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <vector>

#include "gl/affine.h"
#include "gl/display_list.h"

namespace tessaplot::gl {

class GlyphStore;

/// Bits of the vertex attributes beside the position.
enum Attribute : unsigned { normalAttribute = 1, colorAttribute = 2, texCoordAttribute = 4, allAttributes = 7 };

/// Numbers that a vertex with these attributes takes: position, then normal, colour and texture coordinate as present.
constexpr std::size_t numbersOfVertex(unsigned attributes) {
    return 3 + ((attributes & normalAttribute) != 0 ? 3U : 0U) + ((attributes & colorAttribute) != 0 ? 4U : 0U) +
           ((attributes & texCoordAttribute) != 0 ? 2U : 0U);
}

/// A box around vertices.
struct Bounds {
    Vector3f low{std::numeric_limits<float>::max(), std::numeric_limits<float>::max(),
                 std::numeric_limits<float>::max()};
    Vector3f high{std::numeric_limits<float>::lowest(), std::numeric_limits<float>::lowest(),
                  std::numeric_limits<float>::lowest()};
};

/// Primitives that one call draws. Attributes that are not in the vertices are the context's current ones.
struct Batch {
    std::size_t place = 0;  ///< Drawn before the call of this number.
    GLenum primitive = 0;   ///< GL_POINTS, GL_LINES, GL_TRIANGLES or GL_QUADS.
    unsigned attributes = 0;
    bool glyphs = false;          ///< Closed solids, to be filled whatever the polygon mode is.
    bool spheres = false;         ///< Closed, and seen from outside unless the context's matrices mirror them.
    std::size_t firstVertex = 0;  ///< In the vertices with these attributes.
    std::size_t firstIndex = 0;
    std::size_t indexCount = 0;
    Bounds bounds;
};

/// A list as buffers and the calls that remain between them.
struct CompiledList {
    bool assumesFilled = false;  ///< Spheres look right only if polygons are filled when the list is called.
    DisplayList calls;
    std::vector<Batch> batches;                                  ///< In drawing order.
    std::array<std::vector<float>, allAttributes + 1> vertices;  ///< By attributes.
    std::vector<std::uint16_t> indices;                          ///< Relative to the first vertex of their batch.
};

/// Compiles a list for a modelview matrix mode. Drawing the result does what executing the list would do, the state
/// that it leaves included. Neighbouring primitives of a kind between which no state changes become one batch, spheres
/// and cylinders become vertices, and what is drawn between glPushMatrix and glPopMatrix is placed here instead. So do
/// outlined texts if `glyphs` is given.
CompiledList compileList(const DisplayList& list, GlyphStore* glyphs = nullptr);

/// True if the list itself draws anything that compileList would turn into vertices.
bool hasGeometry(const DisplayList& list);

}  // namespace tessaplot::gl
