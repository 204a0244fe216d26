#pragma once

#include <array>
#include <cstddef>
#include <functional>

#include "numerics/parallel_pieces.h"
#include "numerics/scattered_points.h"
#include "numerics/vector_kernels.h"

namespace tessaplot::numerics {

/// Evenly spaced nodes along one axis.
struct LatticeAxis {
    double start = 0;
    double spacing = 0;
    int count = 1;

    double at(int i) const { return i * spacing + start; }
};

/// The nodes that a grid is computed at, numbered with the last axis fastest; surfaces leave the third at one node.
class Lattice {
 public:
    /// Both throw DivisionByZero for a single node along an axis, Overflow for a range that is no finite number.
    explicit Lattice(const ScatteredSurface& surface);
    explicit Lattice(const ScatteredVolume& volume);

    const LatticeAxis& axis(std::size_t which) const { return axes_[which]; }
    std::size_t nodes() const { return size(0) * size(1) * size(2); }
    /// The largest magnitude among the coordinates of the nodes.
    double largest() const;
    /// The positions of the nodes from `first` on, at most `blockNodes` and at least one.
    void fill(std::size_t first, NodeBlock& block) const;

 private:
    std::size_t size(std::size_t which) const;
    std::array<int, 3> indices(std::size_t node) const;

    std::array<LatticeAxis, 3> axes_;
};

/// Calls `perBlock(first node, nodes present, block)` for all nodes of a lattice, on all cores.
void forEachBlock(const Lattice& lattice, const Progress& progress,
                  const std::function<void(std::size_t, std::size_t, NodeBlock&)>& perBlock);

}  // namespace tessaplot::numerics
