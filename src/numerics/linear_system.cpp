#include "numerics/linear_system.h"

#include <cmath>
#include <cstdint>
#include <utility>

#include "numerics/faults.h"
#include "numerics/linear_solver.h"
#include "numerics/vector_kernels.h"

namespace tessaplot::numerics {

namespace {

constexpr std::size_t registerDoubles = 8;

std::size_t paddedTo(std::size_t count, std::size_t multiple) {
    return (count + multiple - 1) / multiple * multiple;
}

double* aligned(double* storage) {
    constexpr std::size_t bytes = registerDoubles * sizeof(double);
    const auto misplaced = reinterpret_cast<std::uintptr_t>(storage) % bytes;
    return misplaced == 0 ? storage : storage + (bytes - misplaced) / sizeof(double);
}

}  // namespace

LinearSystem::LinearSystem(std::size_t unknowns)
    : unknowns_(unknowns),
      stride_(paddedTo(unknowns, registerDoubles)),
      storage_(unknowns * stride_ + registerDoubles),
      rows_(unknowns),
      largest_(unknowns),
      factors_(unknowns),
      columnSwaps_(unknowns) {
    double* row = aligned(storage_.data());
    for (double*& each : rows_) {
        each = row;
        row += stride_;
    }
    for (std::vector<double>& values : values_)
        values.assign(unknowns, 0);
}

LinearSystem::Pivot LinearSystem::findPivot(std::size_t k) const {
    Pivot pivot;
    for (std::size_t i = k; i < unknowns_; ++i)
        if (largest_[i] > pivot.magnitude) pivot = {largest_[i], i, k};
    finite(pivot.magnitude, "a pivot");
    if (pivot.magnitude == 0) return pivot;
    while (std::abs(rows_[pivot.row][pivot.column]) != pivot.magnitude)
        ++pivot.column;
    return pivot;
}

void LinearSystem::eliminate(std::size_t k, const Pivot& pivot) {
    std::swap(rows_[k], rows_[pivot.row]);
    std::swap(largest_[k], largest_[pivot.row]);
    for (std::vector<double>& values : values_)
        std::swap(values[k], values[pivot.row]);

    double* pivotRow = rows_[k];
    std::swap(pivotRow[k], pivotRow[pivot.column]);
    // The entry of the pivot is not needed again, and a 0 there lets whole registers be subtracted.
    const double divisor = std::exchange(pivotRow[k], 0);
    for (std::size_t j = k + 1; j < unknowns_; ++j)
        pivotRow[j] /= divisor;
    for (std::vector<double>& values : values_)
        values[k] /= divisor;

    kernels().eliminate({.rows = rows_.data() + k + 1,
                         .rowCount = unknowns_ - k - 1,
                         .pivotRow = pivotRow,
                         .column = k,
                         .swapColumn = pivot.column,
                         .end = stride_,
                         .factors = factors_.data() + k + 1,
                         .largest = largest_.data() + k + 1});
    for (std::vector<double>& values : values_)
        for (std::size_t i = k + 1; i < unknowns_; ++i)
            values[i] -= factors_[i] * values[k];
}

void LinearSystem::finishColumnSwaps() {
    // While a row waits above the elimination nobody reads it, so it catches up with the later swaps in one go.
    for (std::size_t i = 0; i < unknowns_; ++i)
        for (std::size_t k = i + 1; k < unknowns_; ++k)
            std::swap(rows_[i][k], rows_[i][columnSwaps_[k]]);
}

void LinearSystem::substituteBack(std::span<double> values) const {
    for (std::size_t i = unknowns_ - 1; i-- > 0;) {
        double sum = 0;
        for (std::size_t j = i + 1; j < unknowns_; ++j)
            sum += rows_[i][j] * values[j];
        values[i] -= sum;
    }
    for (std::size_t k = unknowns_; k-- > 0;)
        std::swap(values[k], values[columnSwaps_[k]]);
    for (const double value : values)
        finite(value, "a solution of linear equations");
}

bool LinearSystem::solve() {
    if (unknowns_ == 0) return false;
    for (std::size_t i = 0; i < unknowns_; ++i)
        for (const double coefficient : coefficients(i))
            if (std::abs(coefficient) > largest_[i]) largest_[i] = std::abs(coefficient);
    for (std::size_t k = 0; k + 1 < unknowns_; ++k) {
        const Pivot pivot = findPivot(k);
        if (vanishesBesideOne(pivot.magnitude)) return false;
        columnSwaps_[k] = pivot.column;
        eliminate(k, pivot);
    }
    const std::size_t last = unknowns_ - 1;
    columnSwaps_[last] = last;
    const double pivot = rows_[last][last];
    if (vanishesBesideOne(std::abs(pivot))) return false;
    finishColumnSwaps();
    for (std::vector<double>& values : values_) {
        values[last] /= pivot;
        substituteBack(values);
    }
    return true;
}

}  // namespace tessaplot::numerics
