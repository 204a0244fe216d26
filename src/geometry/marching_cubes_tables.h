#pragma once

#include <array>
#include <cstdint>

namespace tessaplot::geometry {

/// An edge of a cell: the corners that it joins, the one with the lower index first, so that all cells round the edge
/// find the same crossing on it. Corners 0 to 3 go round the base, from (i, j, k) to (i + 1, j, k) first; 4 to 7 lie
/// above them, at k + 1.
struct CellEdge {
    int low;
    int high;
};
inline constexpr std::array<CellEdge, 12> cellEdges = {
    {{0, 1}, {1, 2}, {3, 2}, {0, 3}, {4, 5}, {5, 6}, {7, 6}, {4, 7}, {0, 4}, {1, 5}, {2, 6}, {3, 7}}};

/// The edges that are crossed, a bit an edge, for each set of corners below the level, a bit a corner.
inline constexpr std::array<std::int16_t, 256> EdgeTable = [] {
    std::array<std::int16_t, 256> table{};
    for (std::size_t below = 0; below < table.size(); ++below) {
        for (std::size_t edge = 0; edge < cellEdges.size(); ++edge) {
            const bool lowBelow = (below >> cellEdges[edge].low & 1) != 0;
            const bool highBelow = (below >> cellEdges[edge].high & 1) != 0;
            if (lowBelow != highBelow) table[below] = static_cast<std::int16_t>(table[below] | 1 << edge);
        }
    }
    return table;
}();

/// The triangles for each set of corners below the level: triples of edges, ended by -1. This is the table in general
/// use with the method of W. E. Lorensen and H. E. Cline (1987); cells that share a face divide it alike, so that the
/// triangles of a whole grid leave no gap.
extern const std::array<std::array<std::int16_t, 16>, 256> TriTable;

/// The number of triangles in each row of `TriTable`.
extern const std::array<std::uint8_t, 256> triangleCounts;

}  // namespace tessaplot::geometry
