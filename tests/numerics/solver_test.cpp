#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "base/failure.h"
#include "numerics/linear_solver.h"
#include "numerics/linear_system.h"
#include "numerics/local_fit.h"
#include "numerics/matrix_tools.h"
#include "numerics/vector_kernels.h"

namespace tessaplot::numerics::test {

namespace {

/// A matrix with two right sides for both forms of the solver.
struct Equations {
    explicit Equations(int unknowns)
        : n(unknowns), a(makeTable("a", n, n)), b(makeTable("b", n)), c(makeTable("c", n)) {}

    template <class Number>
    void fill(const Number& number) {
        for (int i = 1; i <= n; ++i) {
            for (int j = 1; j <= n; ++j)
                a(i, j) = number();
            b(i) = number();
            c(i) = number();
        }
    }

    LinearSystem fastForm() const {
        LinearSystem system(static_cast<std::size_t>(n));
        for (int i = 0; i < n; ++i) {
            const auto row = static_cast<std::size_t>(i);
            for (int j = 0; j < n; ++j)
                system.coefficients(row)[static_cast<std::size_t>(j)] = a(i + 1, j + 1);
            system.values(0)[row] = b(i + 1);
            system.values(1)[row] = c(i + 1);
        }
        return system;
    }

    int n;
    Table a, b, c;
};

void expectSameSolutions(Equations equations) {
    LinearSystem fast = equations.fastForm();
    Table copy = equations.a;
    const bool solvable = SolveLinear(equations.n, copy, equations.b);
    ASSERT_EQ(fast.solve(), solvable);
    if (!solvable) return;
    ASSERT_TRUE(SolveLinear(equations.n, equations.a, equations.c));
    for (int i = 0; i < equations.n; ++i) {
        ASSERT_EQ(fast.values(0)[static_cast<std::size_t>(i)], equations.b(i + 1));
        ASSERT_EQ(fast.values(1)[static_cast<std::size_t>(i)], equations.c(i + 1));
    }
}

std::vector<double> uniform(std::size_t count, double low, double high, std::mt19937_64& random) {
    std::uniform_real_distribution<double> number(low, high);
    std::vector<double> values(count);
    for (double& value : values)
        value = number(random);
    return values;
}

PointColumns pointsAt(const std::vector<double>& x, const std::vector<double>& y, const std::vector<double>& z,
                      const std::vector<double>& first, const std::vector<double>& second) {
    PointColumns points = {.count = x.size(), .x = x.data(), .y = y.data(), .z = z.data(), .moderate = true};
    points.first = first.data();
    points.second = second.data();
    return points;
}

void expectSameSums(const NodeSums& a, const NodeSums& b, const char* name) {
    for (std::size_t lane = 0; lane < blockNodes; ++lane) {
        ASSERT_EQ(a.first[lane], b.first[lane]) << name;
        ASSERT_EQ(a.second[lane], b.second[lane]) << name;
        ASSERT_EQ(a.weights[lane], b.weights[lane]) << name;
        ASSERT_EQ(a.leastSquare[lane], b.leastSquare[lane]) << name;
    }
}

/// The dividend whose quotient by `divisor` comes nearest to the middle between two numbers, the hardest to round.
double hardDividend(double divisor) {
    const double mantissa = std::scalbn(divisor, 52 - std::ilogb(divisor));
    const auto d = static_cast<std::uint64_t>(mantissa);
    std::uint64_t inverse = d;
    for (int i = 0; i < 6; ++i)
        inverse *= 2 - d * inverse;
    const std::uint64_t middle = inverse & ((std::uint64_t{1} << 54) - 1);
    const auto product = static_cast<unsigned __int128>(middle) * d;
    return static_cast<double>(static_cast<std::uint64_t>((product - 1) >> 54));
}

}  // namespace

TEST(Solver, TheFastFormGivesTheSameBits) {
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> real(-3, 3);
    std::uniform_int_distribution<int> whole(-2, 2);
    for (const int n : {1, 2, 3, 7, 8, 9, 33, 120}) {
        Equations equations(n);
        equations.fill([&] { return real(random); });
        expectSameSolutions(equations);
        for (int round = 0; round < 5; ++round) {
            equations.fill([&] { return static_cast<double>(whole(random)); });
            expectSameSolutions(equations);
        }
    }
}

TEST(Solver, TinyAndHugePivotsAreToldApartFromSingularAndFromOverflow) {
    Equations equations(3);
    for (int i = 1; i <= 3; ++i)
        equations.a(i, i) = 1e-17;
    EXPECT_FALSE(equations.fastForm().solve());
    EXPECT_FALSE(SolveLinear(3, equations.a, equations.b));
    for (int i = 1; i <= 3; ++i)
        equations.a(i, i) = std::numeric_limits<double>::infinity();
    EXPECT_THROW(equations.fastForm().solve(), base::Failure);
    EXPECT_THROW(SolveLinear(3, equations.a, equations.b), base::Failure);
    EXPECT_FALSE(LinearSystem(0).solve());
}

TEST(Solver, SolutionsAndInversesSatisfyTheirEquationsAndSingularMatricesHaveNone) {
    std::mt19937_64 random(8);
    std::uniform_real_distribution<double> real(-3, 3);
    Equations equations(40);
    equations.fill([&] { return real(random); });
    Table a = equations.a;
    Table solution = equations.b;
    ASSERT_TRUE(SolveLinear(40, a, solution));
    Table inverse = makeTable("inverse", 40, 40);
    ASSERT_TRUE(MatInverse(40, equations.a, inverse));
    Table product = makeTable("product", 40, 40);
    MatMultiply(40, 40, 40, equations.a, inverse, product);
    for (int i = 1; i <= 40; ++i) {
        double left = 0;
        for (int j = 1; j <= 40; ++j) {
            left += equations.a(i, j) * solution(j);
            EXPECT_NEAR(product(i, j), i == j ? 1 : 0, 1e-11);
        }
        EXPECT_NEAR(left, equations.b(i), 1e-11);
    }
    for (int j = 1; j <= 40; ++j)
        equations.a(2, j) = 0;
    const double kept = inverse(2, 1);
    EXPECT_FALSE(MatInverse(40, equations.a, inverse));
    EXPECT_EQ(inverse(2, 1), kept) << "the target is left alone";
}

TEST(Solver, GaussWithoutPivotsSolvesAndRunsOnOverAZeroPivot) {
    Table a = makeTable("a", 2, 3);
    Table b = makeTable("b", 2);
    a(1, 1) = 2, a(1, 2) = 1, a(1, 3) = 5;
    a(2, 1) = 1, a(2, 2) = 3, a(2, 3) = 10;
    GAU(2, a, b);
    EXPECT_DOUBLE_EQ(b(1), 1);
    EXPECT_DOUBLE_EQ(b(2), 3);
    a(1, 1) = 0;
    a(2, 1) = 1;
    GAU(2, a, b);
    EXPECT_FALSE(std::isfinite(b(1)));
}

TEST(Kernels, EveryProcessorGivesTheBitsOfTheBaseline) {
    std::mt19937_64 random(9);
    const KernelSet& baseline = *kernelSets().back();
    for (const double scale : {1.0, 1e-60, 1e60}) {
        const std::vector<double> x = uniform(999, -10, 10, random);
        const std::vector<double> y = uniform(999, -10, 10, random);
        const std::vector<double> z = uniform(999, -10, 10, random);
        const std::vector<double> first = uniform(999, -scale, scale, random);
        const std::vector<double> second = uniform(999, 0, scale, random);
        NodeBlock block;
        for (std::size_t lane = 0; lane < blockNodes; ++lane) {
            block.x[lane] = 0.3 * static_cast<double>(lane) - 5;
            block.y[lane] = x[lane];
            block.z[lane] = y[lane];
        }
        PointColumns points = pointsAt(x, y, z, first, second);
        points.rangeX = 3;
        points.rangeY = 0.7;
        for (const KernelSet* set : kernelSets())
            for (const auto kernel : {&KernelSet::inverseSquares, &KernelSet::normalisedInverseSquares,
                                      &KernelSet::volumeInverseSquares, &KernelSet::multiquadrics}) {
                NodeSums expected = {};
                NodeSums sums = {};
                (baseline.*kernel)(points, block, expected);
                (set->*kernel)(points, block, sums);
                expectSameSums(sums, expected, set->name);
            }
    }
}

TEST(Kernels, EveryProcessorEliminatesAlike) {
    std::mt19937_64 random(12);
    constexpr std::size_t stride = 40;
    for (const std::size_t column : {0U, 6U, 7U, 8U, 25U, 38U}) {
        std::vector<double> start = uniform(4 * stride, -2, 2, random);
        for (std::size_t row = 0; row < 4; ++row)
            for (std::size_t j = 0; j < column + (row == 0 ? 1 : 0); ++j)
                start[row * stride + j] = 0;
        std::vector<double> results[3];
        std::size_t at = 0;
        for (const KernelSet* set : kernelSets()) {
            std::vector<double> matrix = start;
            double* rows[] = {&matrix[stride], &matrix[2 * stride], &matrix[3 * stride]};
            double factors[3];
            double largest[3];
            set->eliminate({rows, 3, matrix.data(), column, 39, stride, factors, largest});
            for (std::size_t row = 0; row < 3; ++row) {
                double expected = 0;
                for (std::size_t j = column + 1; j < stride; ++j)
                    expected = std::max(expected, std::abs(rows[row][j]));
                EXPECT_EQ(largest[row], expected) << set->name;
                EXPECT_EQ(factors[row], start[(row + 1) * stride + 39]);
            }
            results[at++] = matrix;
            EXPECT_EQ(results[at - 1], results[0]) << set->name;
        }
    }
}

TEST(Kernels, QuotientsThatAreHardestToRoundAreRoundedAsADivisionDoes) {
    std::mt19937_64 random(10);
    for (const double offset : uniform(20000, 1, 2, random)) {
        const double divisor = offset * offset;
        if (static_cast<std::uint64_t>(std::scalbn(divisor, 52 - std::ilogb(divisor))) % 2 == 0) continue;
        const std::vector<double> origin = {0};
        const std::vector<double> dividend = {hardDividend(divisor)};
        const PointColumns points = pointsAt(origin, origin, origin, dividend, dividend);
        NodeBlock block = {};
        for (double& x : block.x)
            x = offset;
        for (const KernelSet* set : kernelSets()) {
            NodeSums sums;
            set->inverseSquares(points, block, sums);
            ASSERT_EQ(sums.first[0], dividend[0] / divisor) << set->name;
        }
    }
}

}  // namespace tessaplot::numerics::test
