#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "base/failure.h"

namespace tessaplot::base {

/// A named array of one, two or three dimensions whose indices all run from 0 to a stated upper bound inclusive; the
/// first index varies fastest in memory. A new array is not allocated; any index then fails, as does one out of bounds.
template <class T>
class CheckedArray {
 public:
    explicit CheckedArray(const char* name) : name_(name) {}

    /// Gives the array its bounds, 0 to `upperI` (and `upperJ`, `upperK`) inclusive, and value-initialises it.
    void allocate(int upperI, int upperJ = 0, int upperK = 0) {
        if (upperI < 0 || upperJ < 0 || upperK < 0) failSubscript(name_, -1, 0, 0);
        upperI_ = upperI;
        upperJ_ = upperJ;
        upperK_ = upperK;
        values_.assign(strideK() * (static_cast<std::size_t>(upperK) + 1), T{});
    }

    void release() {
        upperI_ = upperJ_ = upperK_ = -1;
        values_ = {};
    }

    bool allocated() const { return !values_.empty(); }
    const char* name() const { return name_; }
    int upperI() const { return upperI_; }
    int upperJ() const { return upperJ_; }
    int upperK() const { return upperK_; }
    /// Distance in elements between neighbours along the second and the third index.
    std::size_t strideJ() const { return static_cast<std::size_t>(upperI_) + 1; }
    std::size_t strideK() const { return strideJ() * (static_cast<std::size_t>(upperJ_) + 1); }

    T& operator()(int i, int j = 0, int k = 0) { return values_[offset(i, j, k)]; }
    const T& operator()(int i, int j = 0, int k = 0) const { return values_[offset(i, j, k)]; }

    std::span<T> values() { return values_; }
    std::span<const T> values() const { return values_; }

 private:
    std::size_t offset(int i, int j, int k) const {
        if (i < 0 || i > upperI_) failSubscript(name_, i, 0, upperI_);
        if (j < 0 || j > upperJ_) failSubscript(name_, j, 0, upperJ_);
        if (k < 0 || k > upperK_) failSubscript(name_, k, 0, upperK_);
        return static_cast<std::size_t>(i) + strideJ() * static_cast<std::size_t>(j) +
               strideK() * static_cast<std::size_t>(k);
    }

    const char* name_;
    int upperI_ = -1;
    int upperJ_ = -1;
    int upperK_ = -1;
    std::vector<T> values_;
};

}  // namespace tessaplot::base
