#include "gl/vertex_pool.h"

#include <algorithm>
#include <bit>

namespace tessaplot::gl {

namespace {

constexpr int slotBits = 16;

using Words = std::array<std::uint64_t, 6>;

Words wordsOf(const Vertex& vertex) {
    return std::bit_cast<Words>(vertex);
}

std::size_t slotOf(const Words& words) {
    std::uint64_t hash = 0;
    for (const std::uint64_t word : words) {
        hash = (hash ^ word) * 0x9e3779b97f4a7c15U;
        hash ^= hash >> 32U;
    }
    return static_cast<std::size_t>(hash & ((1U << slotBits) - 1));
}

}  // namespace

VertexPool::VertexPool() : slots_(std::size_t{1} << slotBits) {}

std::uint16_t VertexPool::add(const Vertex& vertex) {
    const Words words = wordsOf(vertex);
    Slot& slot = slots_[slotOf(words)];
    if (slot.generation == generation_ && wordsOf(vertices_[slot.vertex]) == words) return slot.vertex;
    slot = {generation_, append(vertex)};
    return slot.vertex;
}

std::uint16_t VertexPool::append(const Vertex& vertex) {
    vertices_.push_back(vertex);
    return static_cast<std::uint16_t>(vertices_.size() - 1);
}

std::uint16_t VertexPool::extend(std::size_t count) {
    const auto first = static_cast<std::uint16_t>(vertices_.size());
    vertices_.resize(vertices_.size() + count);
    return first;
}

void VertexPool::clear() {
    vertices_.clear();
    if (++generation_ != 0) return;
    std::fill(slots_.begin(), slots_.end(), Slot{});
    generation_ = 1;
}

}  // namespace tessaplot::gl
