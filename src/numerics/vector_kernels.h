#pragma once

#include <cstddef>
#include <span>

namespace tessaplot::numerics {

/// Nodes that the kernels take together: a multiple of the lanes of every processor.
inline constexpr std::size_t blockNodes = 32;

/// Positions of one block of nodes. Where fewer are wanted the last is repeated.
struct NodeBlock {
    alignas(64) double x[blockNodes];
    alignas(64) double y[blockNodes];
    alignas(64) double z[blockNodes];
};

/// Columns of points as the kernels read them. A column that a kernel does not use may be null.
struct PointColumns {
    std::size_t count = 0;
    const double* x = nullptr;
    const double* y = nullptr;
    const double* z = nullptr;
    const double* first = nullptr;   ///< Values, or coefficients, of the first sum.
    const double* second = nullptr;  ///< Of the second sum.
    double rangeX = 1, rangeY = 1;   ///< What the normalised kernel divides differences by.
    bool moderate = false;           ///< All numbers are in the range where a corrected quotient is exact.
};

/// Sums over all points for each node of a block, each formed in the order of the points.
struct NodeSums {
    alignas(64) double first[blockNodes];
    alignas(64) double second[blockNodes];
    alignas(64) double weights[blockNodes];
    alignas(64) double leastSquare[blockNodes];  ///< Of the distances to all points.
};

/// A step of an elimination: the rows below the pivot, in their order.
struct EliminationStep {
    double* const* rows = nullptr;
    std::size_t rowCount = 0;
    const double* pivotRow = nullptr;
    std::size_t column = 0;      ///< Of the pivot; entries of the rows left of it are 0.
    std::size_t swapColumn = 0;  ///< Trades places with `column` in every row first.
    std::size_t end = 0;         ///< Behind the last column, a multiple of 8.
    double* factors = nullptr;   ///< Out: each row's entry in the column of the pivot.
    double* largest = nullptr;   ///< Out: each row's largest magnitude right of the pivot.
};

/// The inner loops of the grid passes for one kind of processor. Every set gives the same bits.
struct KernelSet {
    const char* name;
    /// Sums of first/D, second/D and 1/D with D = dy^2 + dx^2.
    void (*inverseSquares)(const PointColumns&, const NodeBlock&, NodeSums&);
    /// Sums of first/D and 1/D with D = (dy/rangeY)^2 + (dx/rangeX)^2.
    void (*normalisedInverseSquares)(const PointColumns&, const NodeBlock&, NodeSums&);
    /// Sums of first/D and 1/D with D = dx^2 + dy^2 + dz^2.
    void (*volumeInverseSquares)(const PointColumns&, const NodeBlock&, NodeSums&);
    /// Sums of first*phi and second*phi with phi = sqrt(dx^2 + dy^2 + 1).
    void (*multiquadrics)(const PointColumns&, const NodeBlock&, NodeSums&);
    /// Subtracts multiples of the pivot row so that the column of the pivot vanishes.
    void (*eliminate)(const EliminationStep&);
};

/// The sets that this processor can run, the fastest first; there is at least one.
std::span<const KernelSet* const> kernelSets();

/// The fastest set.
const KernelSet& kernels();

}  // namespace tessaplot::numerics
