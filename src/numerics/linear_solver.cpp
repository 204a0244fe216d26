#include "numerics/linear_solver.h"

#include <cmath>
#include <utility>

#include "numerics/faults.h"

namespace tessaplot::numerics {

namespace {

struct Pivot {
    double magnitude = 0;
    int row = 0;
    int column = 0;
};

Pivot findPivot(const Table& a, int k, int n) {
    Pivot pivot;
    for (int i = k; i <= n; ++i)
        for (int j = k; j <= n; ++j)
            if (std::abs(a(i, j)) > pivot.magnitude) pivot = {std::abs(a(i, j)), i, j};
    finite(pivot.magnitude, "a pivot");
    return pivot;
}

void bringToDiagonal(Table& a, Table& b, int k, int n, const Pivot& pivot) {
    if (pivot.column != k)
        for (int i = 1; i <= n; ++i)
            std::swap(a(i, k), a(i, pivot.column));
    if (pivot.row == k) return;
    for (int j = k; j <= n; ++j)
        std::swap(a(k, j), a(pivot.row, j));
    std::swap(b(k), b(pivot.row));
}

void eliminate(Table& a, Table& b, int k, int n) {
    const double p = a(k, k);
    for (int j = k + 1; j <= n; ++j)
        a(k, j) /= p;
    b(k) /= p;
    for (int i = k + 1; i <= n; ++i) {
        for (int j = k + 1; j <= n; ++j)
            a(i, j) -= a(i, k) * a(k, j);
        b(i) -= a(i, k) * b(k);
    }
}

void substituteBack(const Table& a, Table& b, int n) {
    for (int i = n - 1; i >= 1; --i) {
        double sum = 0;
        for (int j = i + 1; j <= n; ++j)
            sum += a(i, j) * b(j);
        b(i) -= sum;
    }
}

}  // namespace

bool SolveLinear(int n, Table& a, Table& b) {
    base::CheckedArray<int> columns("the column swaps of SolveLinear");
    columns.allocate(n);
    for (int k = 1; k <= n - 1; ++k) {
        const Pivot pivot = findPivot(a, k, n);
        if (vanishesBesideOne(pivot.magnitude)) return false;
        columns(k) = pivot.column;
        bringToDiagonal(a, b, k, n, pivot);
        eliminate(a, b, k, n);
    }
    if (vanishesBesideOne(std::abs(a(n, n)))) return false;
    b(n) /= a(n, n);
    substituteBack(a, b, n);
    columns(n) = n;
    for (int k = n; k >= 1; --k)
        if (columns(k) != k) std::swap(b(k), b(columns(k)));
    for (int i = 1; i <= n; ++i)
        finite(b(i), "a solution of linear equations");
    return true;
}

}  // namespace tessaplot::numerics
