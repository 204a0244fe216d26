#include "gl/list_buffers.h"

#include <utility>

#include "gl/gl_calls.h"

namespace tessaplot::gl {

namespace {

template <class Number>
void fill(GLenum target, const std::vector<Number>& numbers) {
    glBufferData(target, static_cast<GLsizeiptr>(numbers.size() * sizeof(Number)), numbers.data(), GL_STATIC_DRAW);
}

/// OpenGL takes places in the bound buffer as pointers.
const void* bufferPlace(std::size_t offset) {
    return reinterpret_cast<const void*>(offset);  // NOLINT(performance-no-int-to-ptr)
}

/// Tells the bound vertex array how vertices lie in the bound buffer.
void describeVertices(unsigned attributes) {
    const auto stride = static_cast<GLsizei>(numbersOfVertex(attributes) * sizeof(float));
    std::size_t offset = 0;
    const auto next = [&offset](std::size_t numbers) {
        const void* place = bufferPlace(offset);
        offset += numbers * sizeof(float);
        return place;
    };
    glVertexPointer(3, GL_FLOAT, stride, next(3));
    glEnableClientState(GL_VERTEX_ARRAY);
    if ((attributes & normalAttribute) != 0) {
        glNormalPointer(GL_FLOAT, stride, next(3));
        glEnableClientState(GL_NORMAL_ARRAY);
    }
    if ((attributes & colorAttribute) != 0) {
        glColorPointer(4, GL_FLOAT, stride, next(4));
        glEnableClientState(GL_COLOR_ARRAY);
    }
    if ((attributes & texCoordAttribute) != 0) {
        glTexCoordPointer(2, GL_FLOAT, stride, next(2));
        glEnableClientState(GL_TEXTURE_COORD_ARRAY);
    }
}

}  // namespace

ListBuffers::ListBuffers(CompiledList list)
    : assumesFilled_(list.assumesFilled), calls_(std::move(list.calls)), batches_(std::move(list.batches)) {
    upload(list);
}

void ListBuffers::upload(const CompiledList& list) {
    if (list.indices.empty()) return;
    glGenBuffers(1, &indices_);
    for (unsigned attributes = 0; attributes <= allAttributes; ++attributes) {
        if (list.vertices[attributes].empty()) continue;
        glGenVertexArrays(1, &arrays_[attributes]);
        glBindVertexArray(arrays_[attributes]);
        glGenBuffers(1, &vertices_[attributes]);
        glBindBuffer(GL_ARRAY_BUFFER, vertices_[attributes]);
        fill(GL_ARRAY_BUFFER, list.vertices[attributes]);
        describeVertices(attributes);
        glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, indices_);
    }
    fill(GL_ELEMENT_ARRAY_BUFFER, list.indices);
    glBindVertexArray(0);
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    checkErrors("fill buffers with a display list");
}

ListBuffers::~ListBuffers() {
    glDeleteVertexArrays(static_cast<GLsizei>(arrays_.size()), arrays_.data());
    glDeleteBuffers(static_cast<GLsizei>(vertices_.size()), vertices_.data());
    glDeleteBuffers(1, &indices_);
}

void ListBuffers::draw(const Batch& batch) const {
    glBindVertexArray(arrays_[batch.attributes]);
    glDrawElementsBaseVertex(batch.primitive, static_cast<GLsizei>(batch.indexCount), GL_UNSIGNED_SHORT,
                             bufferPlace(batch.firstIndex * sizeof(std::uint16_t)),
                             static_cast<GLint>(batch.firstVertex));
}

}  // namespace tessaplot::gl
