#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/checked_array.h"
#include "geometry/line_bits.h"

namespace tessaplot::geometry {

/// The edges that a surface crosses, each named by its lower node, on the nodes of a line along the first index.
struct EdgeBits {
    LineBits alongI = 0;
    LineBits alongJ = 0;
    LineBits alongK = 0;
};

/// The cells of a volume with corners on both sides of a level and usable values at all of them. Cells are told by
/// their first corner; rows of them lie along the first index, and those at -1 stand empty beside the volume.
class CrossedCells {
 public:
    /// Takes nodes 0 to `nx`, `ny` and `nz` of `V`, at most 100, which its bounds hold. A value is below the level if
    /// it is less after both are rounded to 32-bit floats.
    CrossedCells(int nx, int ny, int nz, const base::CheckedArray<double>& V, float level);

    LineBits row(int j, int k) const { return line(j, k).cells; }

    /// Bit n tells whether corner n of the cell lies below the level.
    std::uint8_t cubeIndex(int i, int j, int k) const {
        const auto pair = [i](const Line& line) { return static_cast<unsigned>(line.below >> i) & 3; };
        const auto turned = [](unsigned bits) { return (bits << 1 | bits >> 1) & 3; };
        return static_cast<std::uint8_t>(pair(line(j, k)) | turned(pair(line(j + 1, k))) << 2 |
                                         pair(line(j, k + 1)) << 4 | turned(pair(line(j + 1, k + 1))) << 6);
    }

    /// The edges of the crossed cells that have their corners on both sides.
    EdgeBits edges(int j, int k) const;

 private:
    /// What the nodes of a line along the first index are, and the cells that have their first corners there.
    struct Line {
        LineBits below = 0;
        LineBits cells = 0;
    };
    struct Classes {
        LineBits below = 0;
        LineBits usable = 0;
    };

    const Line& line(int j, int k) const { return lines_[at(j, k)]; }
    std::size_t at(int j, int k) const {
        return static_cast<std::size_t>(std::ptrdiff_t{k} + 1) * stride_ +
               static_cast<std::size_t>(std::ptrdiff_t{j} + 1);
    }
    static Classes classified(const double* values, int count, float level);
    static void classifyBlock(const double* values, int first, float level, Classes& classes);
    LineBits mixedCells(int j, int k) const;

    std::size_t stride_;  ///< From the line of a third index to that of the next.
    std::vector<Line> lines_;
};

}  // namespace tessaplot::geometry
