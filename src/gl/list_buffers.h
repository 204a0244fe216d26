#pragma once

#include <array>

#include <GL/gl.h>

#include "gl/compiled_list.h"

namespace tessaplot::gl {

/// A compiled list whose vertices lie in buffers of the current context.
class ListBuffers {
 public:
    explicit ListBuffers(CompiledList list);
    ~ListBuffers();
    ListBuffers(const ListBuffers&) = delete;
    ListBuffers& operator=(const ListBuffers&) = delete;

    /// The calls between the batches.
    const DisplayList& calls() const { return calls_; }
    const std::vector<Batch>& batches() const { return batches_; }
    bool assumesFilled() const { return assumesFilled_; }

    /// Draws a batch and leaves its vertex array bound.
    void draw(const Batch& batch) const;

 private:
    void upload(const CompiledList& list);

    bool assumesFilled_;
    DisplayList calls_;
    std::vector<Batch> batches_;
    GLuint indices_ = 0;
    std::array<GLuint, allAttributes + 1> vertices_{};  ///< By attributes; 0 where there are none.
    std::array<GLuint, allAttributes + 1> arrays_{};    ///< Vertex array objects, likewise.
};

}  // namespace tessaplot::gl
