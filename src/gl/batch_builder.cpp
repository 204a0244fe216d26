#include "gl/batch_builder.h"

#include <algorithm>

namespace tessaplot::gl {

void BatchBuilder::open(const Sort& sort, std::size_t vertices) {
    if (!indices_.empty() && sort_ == sort && pool_.room() >= vertices) return;
    flush();
    sort_ = sort;
}

void BatchBuilder::addFaces(std::size_t first, const std::vector<std::uint32_t>& faces) {
    const std::size_t end = indices_.size();
    indices_.resize(end + faces.size());
    std::transform(faces.begin(), faces.end(), indices_.begin() + static_cast<std::ptrdiff_t>(end),
                   [first](std::uint32_t vertex) { return static_cast<std::uint16_t>(first + vertex); });
}

void BatchBuilder::flush() {
    if (indices_.empty()) return;
    passSharedAttributes();
    Batch batch;
    batch.primitive = sort_.primitive;
    batch.attributes = sort_.attributes;
    batch.glyphs = sort_.glyphs;
    batch.spheres = sort_.spheres;
    appendVertices(batch);
    batch.place = result_.calls.size();
    batch.firstIndex = result_.indices.size();
    batch.indexCount = indices_.size();
    result_.indices.insert(result_.indices.end(), indices_.begin(), indices_.end());
    result_.batches.push_back(batch);
    // What arrays leave as current values is not defined.
    passed_.forget(batch.attributes);
    indices_.clear();
    pool_.clear();
}

void BatchBuilder::passSharedAttributes() {
    const std::vector<Vertex>& vertices = pool_.vertices();
    for (const Attribute attribute : eachAttribute) {
        if ((sort_.attributes & attribute) == 0) continue;
        const bool shared = std::all_of(vertices.begin(), vertices.end(), [&](const Vertex& vertex) {
            return haveSame(attribute, vertex, vertices.front());
        });
        if (!shared) continue;
        passed_.pass(attribute, vertices.front());
        sort_.attributes &= ~static_cast<unsigned>(attribute);
    }
}

void BatchBuilder::appendVertices(Batch& batch) {
    std::vector<float>& numbers = result_.vertices[batch.attributes];
    const std::size_t size = numbersOfVertex(batch.attributes);
    batch.firstVertex = numbers.size() / size;
    numbers.resize(numbers.size() + size * pool_.vertices().size());
    float* out = numbers.data() + size * batch.firstVertex;
    const auto append = [&out](const auto& values) { out = std::copy(values.begin(), values.end(), out); };
    Bounds& bounds = batch.bounds;
    for (const Vertex& vertex : pool_.vertices()) {
        append(vertex.position);
        if ((batch.attributes & normalAttribute) != 0) append(vertex.normal);
        if ((batch.attributes & colorAttribute) != 0) append(vertex.color);
        if ((batch.attributes & texCoordAttribute) != 0) append(vertex.texCoord);
        for (std::size_t k = 0; k < 3; ++k) {
            bounds.low[k] = std::min(bounds.low[k], vertex.position[k]);
            bounds.high[k] = std::max(bounds.high[k], vertex.position[k]);
        }
    }
}

}  // namespace tessaplot::gl
