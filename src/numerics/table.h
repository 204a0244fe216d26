#pragma once

#include "base/checked_array.h"

namespace tessaplot::numerics {

/// A matrix or a vector of the plain routines. Indices count from 1 and end at the upper bound; index 0 is spare.
using Table = base::CheckedArray<double>;

inline Table makeTable(const char* name, int rows, int columns = 0) {
    Table table(name);
    table.allocate(rows, columns);
    return table;
}

}  // namespace tessaplot::numerics
