#include "numerics/matrix_tools.h"

#include <cmath>
#include <utility>

#include "numerics/faults.h"
#include "numerics/linear_solver.h"

namespace tessaplot::numerics {

namespace {

void swapRows(Table& a, int n, int first, int second) {
    if (first == second) return;
    for (int j = 1; j <= n; ++j)
        std::swap(a(first, j), a(second, j));
}

void swapColumns(Table& a, int n, int first, int second) {
    if (first == second) return;
    for (int i = 1; i <= n; ++i)
        std::swap(a(i, first), a(i, second));
}

/// Row and column of the largest magnitude from (k, k) on; false if it vanishes beside 1.
bool findLargest(const Table& a, int k, int n, int& row, int& column) {
    double largest = 0;
    for (int i = k; i <= n; ++i)
        for (int j = k; j <= n; ++j)
            if (std::abs(a(i, j)) > largest) {
                largest = std::abs(a(i, j));
                row = i;
                column = j;
            }
    return !vanishesBesideOne(finite(largest, "a pivot"));
}

void reduceByPivot(Table& a, int k, int n) {
    const double inverse = 1 / a(k, k);
    a(k, k) = inverse;
    for (int j = 1; j <= n; ++j)
        if (j != k) a(k, j) *= inverse;
    for (int i = 1; i <= n; ++i) {
        if (i == k) continue;
        for (int j = 1; j <= n; ++j)
            if (j != k) a(i, j) -= a(i, k) * a(k, j);
        a(i, k) = -a(i, k) * inverse;
    }
}

}  // namespace

void MatTranspose(int rows, int cols, const Table& a, Table& b) {
    for (int i = 1; i <= rows; ++i)
        for (int j = 1; j <= cols; ++j)
            b(j, i) = a(i, j);
}

void MatMultiply(int rows, int inner, int cols, const Table& a, const Table& b, Table& c) {
    for (int i = 1; i <= rows; ++i)
        for (int j = 1; j <= cols; ++j) {
            c(i, j) = 0;
            for (int k = 1; k <= inner; ++k)
                c(i, j) += a(i, k) * b(k, j);
        }
}

bool MatInverse(int n, const Table& a, Table& b) {
    Table work = makeTable("the work matrix of MatInverse", n, n);
    base::CheckedArray<int> rows("the row swaps of MatInverse");
    base::CheckedArray<int> columns("the column swaps of MatInverse");
    rows.allocate(n);
    columns.allocate(n);
    for (int i = 1; i <= n; ++i)
        for (int j = 1; j <= n; ++j)
            work(i, j) = a(i, j);
    for (int k = 1; k <= n; ++k) {
        if (!findLargest(work, k, n, rows(k), columns(k))) return false;
        swapRows(work, n, k, rows(k));
        swapColumns(work, n, k, columns(k));
        reduceByPivot(work, k, n);
    }
    for (int k = n; k >= 1; --k) {
        swapRows(work, n, k, columns(k));
        swapColumns(work, n, k, rows(k));
    }
    for (int i = 1; i <= n; ++i)
        for (int j = 1; j <= n; ++j)
            b(i, j) = finite(work(i, j), "an inverse matrix");
    return true;
}

}  // namespace tessaplot::numerics
