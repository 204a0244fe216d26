#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "geometry/contour_levels.h"

namespace tessaplot::geometry {

/// An edge of a grid from node (i, j), to (i, j + 1) if it runs along the second index, else to (i + 1, j). Edges in
/// number order go node by node along the rows.
class GridEdge {
 public:
    /// Numbers of neighbouring nodes along the first index differ by this much.
    static constexpr std::uint32_t row = 512;
    static_assert(row > maxContourNodes);

    GridEdge() = default;
    GridEdge(std::uint32_t node, bool alongSecond) : bits_(node * 2 + (alongSecond ? 1 : 0)) {}

    std::uint32_t node() const { return bits_ / 2; }
    std::uint32_t i() const { return node() / row; }
    std::uint32_t j() const { return node() % row; }
    bool alongSecond() const { return bits_ % 2 != 0; }

 private:
    std::uint32_t bits_ = 0;
};

/// Where the nodes of a grid stand among the levels.
class PlaceTable {
 public:
    PlaceTable(int m, int n);

    int m() const { return m_; }
    int n() const { return n_; }
    /// The places of the nodes (i, 1) to (i, n).
    std::span<LevelPlace> row(int i) { return {begin(i), static_cast<std::size_t>(n_)}; }

    /// Nodes are compared so many at a time; a row has a multiple of that, at least one more than nodes.
    static constexpr std::size_t block = 4;
    std::size_t width() const { return width_; }
    const LevelPlace* begin(int i) const { return places_.data() + static_cast<std::size_t>(i - 1) * width_; }

 private:
    LevelPlace* begin(int i) { return places_.data() + static_cast<std::size_t>(i - 1) * width_; }

    int m_;
    int n_;
    std::size_t width_;
    std::vector<LevelPlace> places_;  ///< What is no node has no place.
};

/// The edges that each level crosses, in number order: all levels found in one pass over the grid, so that a level
/// costs what it crosses.
class LevelCrossings {
 public:
    /// Throws BadInput for more than `maxContourCrossings`.
    LevelCrossings(const PlaceTable& places, std::size_t levels);

    std::size_t total() const { return edges_.size(); }
    std::span<const GridEdge> at(std::size_t level) const {
        return std::span(edges_).subspan(first_[level], first_[level + 1] - first_[level]);
    }

 private:
    struct CrossedEdge {
        GridEdge edge;
        LevelSpan levels;
    };

    static std::vector<CrossedEdge> crossedEdges(const PlaceTable& places);

    std::vector<GridEdge> edges_;
    std::vector<std::size_t> first_;
};

}  // namespace tessaplot::geometry
