#pragma once

#include <cstdint>
#include <vector>

#include "gl/compiled_list.h"
#include "gl/passed_values.h"
#include "gl/vertex_pool.h"

namespace tessaplot::gl {

/// Gathers the vertices and faces of neighbouring primitives into the batches of a compiled list. One batch is open at
/// a time; it is closed by what does not fit into it, and by `flush` before any call that is to come after it.
class BatchBuilder {
 public:
    /// What all primitives of a batch have in common, as `Batch` tells it.
    struct Sort {
        GLenum primitive = 0;
        unsigned attributes = 0;
        bool glyphs = false;
        bool spheres = false;

        bool operator==(const Sort&) const = default;
    };

    /// Keeps references to both; `passed` appends to the calls of `result`.
    BatchBuilder(CompiledList& result, PassedValues& passed) : result_(result), passed_(passed) {}

    /// Makes sure that the open batch is of this sort and has room for so many vertices more.
    void open(const Sort& sort, std::size_t vertices);

    /// Adds a vertex as the next corner of a primitive.
    void addCorner(const Vertex& vertex) { indices_.push_back(pool_.add(vertex)); }
    /// Adds the corners of faces: vertex numbers, counted from `first` in the vertices of the batch.
    void addFaces(std::size_t first, const std::vector<std::uint32_t>& faces);
    /// The vertices of the open batch, to add those that faces name.
    VertexPool& vertices() { return pool_; }

    /// Ends the open batch. An attribute that all of its vertices share becomes the context's current one instead.
    void flush();

 private:
    void passSharedAttributes();
    void appendVertices(Batch& batch);

    CompiledList& result_;
    PassedValues& passed_;
    Sort sort_;
    VertexPool pool_;
    std::vector<std::uint16_t> indices_;
};

}  // namespace tessaplot::gl
