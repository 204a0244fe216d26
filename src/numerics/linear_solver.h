#pragma once

#include "numerics/table.h"

namespace tessaplot::numerics {

/// A pivot this small beside 1 counts as zero, whatever the scale of the data.
inline bool vanishesBesideOne(double magnitude) {
    return magnitude + 1.0 == 1.0;
}

/// Gaussian elimination with complete pivoting (G. H. Golub and C. F. Van Loan, "Matrix Computations", 3.4). `a` (1 to
/// n, 1 to n) and `b` (1 to n) are overwritten, `b` by the solution. Of equally large pivots the first, row by row, is
/// taken. False if a pivot vanishes beside 1. Throws Overflow where numbers leave their range.
bool SolveLinear(int n, Table& a, Table& b);

}  // namespace tessaplot::numerics
