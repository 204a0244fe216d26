#pragma once

#include <cstddef>
#include <vector>

namespace tessaplot::graphs {

/// A value for each place of a grid, i from 0 to `lastI`, j from 0 to `lastJ`, neither below 0. Places are not checked.
template <class T>
class GridTable {
 public:
    GridTable(int lastI, int lastJ)
        : row_(static_cast<std::size_t>(lastJ) + 1), values_((static_cast<std::size_t>(lastI) + 1) * row_) {}

    T& operator()(int i, int j) { return values_[index(i, j)]; }
    const T& operator()(int i, int j) const { return values_[index(i, j)]; }

    auto begin() { return values_.begin(); }
    auto end() { return values_.end(); }

 private:
    std::size_t index(int i, int j) const { return static_cast<std::size_t>(i) * row_ + static_cast<std::size_t>(j); }
    std::size_t row_;
    std::vector<T> values_;
};

}  // namespace tessaplot::graphs
