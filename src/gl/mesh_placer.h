#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <vector>

#include "gl/batch_builder.h"
#include "gl/current_values.h"
#include "gl/glyph_mesh.h"
#include "gl/pending_matrix.h"
#include "gl/quadric_mesh.h"

namespace tessaplot::gl {

/// Puts the meshes of quadrics and glyphs into batches, where the matrix calls that are held back place them. The
/// matrix must know how to place normals then.
class MeshPlacer {
 public:
    /// Keeps references to all three.
    MeshPlacer(BatchBuilder& batches, PendingMatrix& matrix, CurrentValues& current)
        : batches_(batches), matrix_(matrix), current_(current) {}

    /// Counts the vertices of a mesh that is to be placed; false once a list has so many that a further mesh is better
    /// drawn each time anew.
    bool hasRoomFor(std::size_t vertices);

    /// A mesh with faces of one kind or, if `halvesQuads`, with all faces as triangles.
    void place(const QuadricMesh& mesh, bool halvesQuads);
    /// A glyph; moves on to the place of the next one.
    void place(const GlyphMesh& mesh, bool lit);

 private:
    /// A sort of batch for lit faces of the current attributes.
    BatchBuilder::Sort litSort(GLenum primitive) const;
    template <class Mesh>
    void appendFaces(const BatchBuilder::Sort& sort, const Mesh& mesh, const std::vector<std::uint32_t>& faces);
    void appendHalved(const QuadricMesh& mesh);
    void appendUnlit(const GlyphMesh& mesh);

    BatchBuilder& batches_;
    PendingMatrix& matrix_;
    CurrentValues& current_;
    std::size_t vertices_ = 0;
    std::vector<std::uint32_t> halves_;
    std::deque<std::array<double, 3>> advances_;  ///< Numbers of the matrix calls that glyphs stand for.
};

}  // namespace tessaplot::gl
