#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace tessaplot::numerics {

/// A square system of linear equations with two right sides, solved as `SolveLinear` solves each, bit for bit: rows are
/// contiguous and padded to whole registers, and the search for the next pivot rides on the elimination of the last.
class LinearSystem {
 public:
    static constexpr std::size_t rightSides = 2;

    explicit LinearSystem(std::size_t unknowns);

    std::size_t unknowns() const { return unknowns_; }
    /// Coefficients of one equation, counted from 0.
    std::span<double> coefficients(std::size_t equation) { return {rows_[equation], unknowns_}; }
    /// The right sides, which `solve` turns into the solutions.
    std::span<double> values(std::size_t which) { return values_[which]; }

    /// To be called once; the coefficients are gone afterwards. False if a pivot vanishes beside 1. Throws Overflow
    /// where numbers leave their range.
    bool solve();

 private:
    struct Pivot {
        double magnitude = 0;
        std::size_t row = 0;
        std::size_t column = 0;
    };

    /// The first of the largest entries from row and column `k` on, by the largest magnitudes of the rows.
    Pivot findPivot(std::size_t k) const;
    void eliminate(std::size_t k, const Pivot& pivot);
    void finishColumnSwaps();
    void substituteBack(std::span<double> values) const;

    std::size_t unknowns_;
    std::size_t stride_;  ///< A multiple of 8; what is right of the unknowns is 0.
    std::vector<double> storage_;
    std::vector<double*> rows_;  ///< Rows in their present order; each starts at a multiple of 64 bytes.
    std::array<std::vector<double>, rightSides> values_;
    std::vector<double> largest_;  ///< Largest magnitude of each row not yet used as pivot.
    std::vector<double> factors_;
    std::vector<std::size_t> columnSwaps_;
};

}  // namespace tessaplot::numerics
