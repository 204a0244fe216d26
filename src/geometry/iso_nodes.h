#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "base/checked_array.h"
#include "geometry/iso_surface.h"
#include "geometry/line_bits.h"

namespace tessaplot::geometry {

/// A node of a volume at an end of a crossed edge.
struct IsoNode {
    IsoPoint position;
    float value;
    IsoPoint normal;
    bool usable;  ///< False if a coordinate is not.
};

inline float lengthOf(const IsoPoint& v) {
    const float squares = v.x * v.x + v.y * v.y + v.z * v.z;
    // Only where 32 bits cannot hold the squares, so that the unit of the values does not matter.
    if (squares < std::numeric_limits<float>::min() || squares > std::numeric_limits<float>::max())
        return static_cast<float>(
            std::hypot(static_cast<double>(v.x), static_cast<double>(v.y), static_cast<double>(v.z)));
    return std::sqrt(squares);
}

inline IsoPoint divided(const IsoPoint& v, float length) {
    return {v.x / length, v.y / length, v.z / length};
}

/// Makes nodes of the arrays of a volume, with the unit normals towards lower values.
class IsoNodes {
 public:
    IsoNodes(int nx, int ny, int nz, const base::CheckedArray<double>& X, const base::CheckedArray<double>& Y,
             const base::CheckedArray<double>& Z, const base::CheckedArray<double>& V)
        : nx_(nx), ny_(ny), nz_(nz), X_(X), Y_(Y), Z_(Z), V_(V) {}

    /// Asks the memory for what `addLine` will read: the processor cannot guess the few nodes beside the surface.
    void fetchLine(int j, int k, LineBits bits) const;

    /// Adds the nodes of a line along the first index that have their bits set, and notes in `nodeAt` where.
    void addLine(int j, int k, LineBits bits, std::vector<IsoNode>& nodes, std::uint16_t* nodeAt) const;

 private:
    /// One number of each node, as it lies in memory: the first index steps by one.
    struct Numbers {
        const double* first;
        std::ptrdiff_t strideJ;
        std::ptrdiff_t strideK;

        explicit Numbers(const base::CheckedArray<double>& array)
            : first(array.values().data()),
              strideJ(static_cast<std::ptrdiff_t>(array.strideJ())),
              strideK(static_cast<std::ptrdiff_t>(array.strideK())) {}

        const double* line(int j, int k) const { return first + j * strideJ + k * strideK; }
    };

    int nx_;
    int ny_;
    int nz_;
    Numbers X_;
    Numbers Y_;
    Numbers Z_;
    Numbers V_;
};

}  // namespace tessaplot::geometry
