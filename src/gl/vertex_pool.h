#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "gl/affine.h"

namespace tessaplot::gl {

/// A vertex with all that immediate mode can give it.
struct Vertex {
    Vector3f position{};
    Vector3f normal{};
    std::array<float, 4> color{};
    std::array<float, 2> texCoord{};
};

/// The vertices of one batch, where those that are the same bit for bit are stored once.
class VertexPool {
 public:
    /// Vertices have numbers of 16 bits.
    static constexpr std::size_t capacity = 65536;

    VertexPool();

    /// The number of the vertex, an old one if the pool is found to hold its like. Needs room for one.
    std::uint16_t add(const Vertex& vertex);
    /// Adds without looking for its like.
    std::uint16_t append(const Vertex& vertex);
    /// Adds `count` vertices without looking for their likes, to be filled by the caller: returns the first one's
    /// number.
    std::uint16_t extend(std::size_t count);
    Vertex& operator[](std::size_t number) { return vertices_[number]; }
    void clear();

    std::size_t room() const { return capacity - vertices_.size(); }
    const std::vector<Vertex>& vertices() const { return vertices_; }

 private:
    /// One slot a hash value: a vertex that meets another one's slot takes it over, and the loser's later likes are
    /// stored again. Slots of an older generation are free, so that clearing costs nothing.
    struct Slot {
        std::uint16_t generation = 0;
        std::uint16_t vertex = 0;
    };

    std::vector<Vertex> vertices_;
    std::vector<Slot> slots_;
    std::uint16_t generation_ = 1;
};

}  // namespace tessaplot::gl
