#pragma once

#include "numerics/table.h"

namespace tessaplot::numerics {

/// `b` (1 to cols, 1 to rows) becomes the transpose of `a` (1 to rows, 1 to cols).
void MatTranspose(int rows, int cols, const Table& a, Table& b);

/// `c` (1 to rows, 1 to cols) becomes the product of `a` (1 to rows, 1 to inner) and `b` (1 to inner, 1 to cols).
void MatMultiply(int rows, int inner, int cols, const Table& a, const Table& b, Table& c);

/// `b` becomes the inverse of `a` (both 1 to n, 1 to n) by Gauss-Jordan elimination with complete pivoting on a copy.
/// False, with `b` as it was, if a pivot vanishes beside 1. Throws Overflow where numbers leave their range.
bool MatInverse(int n, const Table& a, Table& b);

}  // namespace tessaplot::numerics
