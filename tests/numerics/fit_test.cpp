#include <cmath>
#include <random>

#include <gmock/gmock.h>

#include "base/failure.h"
#include "numerics/f_distribution.h"
#include "numerics/poly_fit.h"

namespace tessaplot::numerics::test {

namespace {

constexpr double surfaceTruth[] = {2, -1, 0.5, 0.25, -0.125, 3};
constexpr double volumeTruth[] = {1, 2, -3, 0.5, 0.25, -1, 0.75, 2, -0.5, 1.5};

/// Random positions with the true quadratic plus noise as the value.
Table noisyData(int n, int coordinates, double noise) {
    std::mt19937_64 random(4);
    std::uniform_real_distribution<double> unit(-1, 1);
    Table data = makeTable("data", n, coordinates + 1);
    for (int i = 1; i <= n; ++i) {
        for (int j = 1; j <= coordinates; ++j)
            data(i, j) = 3 * unit(random);
        const double value = coordinates == 2 ? quadraticAt(surfaceTruth, data(i, 1), data(i, 2))
                                              : quadraticAt(volumeTruth, data(i, 1), data(i, 2), data(i, 3));
        data(i, coordinates + 1) = value + noise * unit(random);
    }
    return data;
}

}  // namespace

TEST(PolyFit, RecoversTheQuadraticBehindThePoints) {
    const QuadraticFit surface = PolyFit(noisyData(40, 2, 1e-6), 40);
    ASSERT_EQ(surface.coefficients.size(), 6U);
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_NEAR(surface.coefficients[i], surfaceTruth[i], 1e-5);
    const QuadraticFit volume = PolyFit4D(noisyData(60, 3, 1e-6), 60);
    ASSERT_EQ(volume.coefficients.size(), 10U);
    for (std::size_t i = 0; i < 10; ++i)
        EXPECT_NEAR(volume.coefficients[i], volumeTruth[i], 1e-5);
}

TEST(PolyFit, StatisticsSplitTheSquaresAndJudgeByTheFDistribution) {
    const int n = 30;
    const Table data = noisyData(n, 2, 20);
    const FitStatistics s = PolyFit(data, n).statistics;
    double mean = 0;
    double around = 0;
    for (int i = 1; i <= n; ++i)
        mean += data(i, 3) / n;
    for (int i = 1; i <= n; ++i)
        around += (data(i, 3) - mean) * (data(i, 3) - mean);
    EXPECT_NEAR(s.total, around, 1e-9 * around) << "least squares split the squares around the mean";
    EXPECT_DOUBLE_EQ(s.R * s.R, s.SSM / s.total);
    EXPECT_DOUBLE_EQ(s.standardEstimate, std::sqrt(s.SSM / 24));
    EXPECT_DOUBLE_EQ(s.F, (s.SSM / 5) / (s.SSE / 24));
    for (std::size_t i = 0; i < 2; ++i)
        EXPECT_EQ(s.significant[i], s.F >= s.percentagePoints[i]);
    EXPECT_NEAR(s.percentagePoints[0], 2.621, 5e-4);
    EXPECT_NEAR(s.percentagePoints[1], 3.895, 5e-4);
    EXPECT_TRUE(PolyFit(noisyData(n, 2, 0.1), n).statistics.significant[1]);
}

TEST(PolyFit, CollinearPointsGiveZerosAndStatisticsOfThese) {
    Table data = makeTable("data", 12, 3);
    for (int i = 1; i <= 12; ++i)
        data(i, 1) = data(i, 2) = i, data(i, 3) = 4;
    const QuadraticFit fit = PolyFit(data, 12);
    EXPECT_TRUE(fit.singular);
    for (const double coefficient : fit.coefficients)
        EXPECT_EQ(coefficient, 0);
    EXPECT_DOUBLE_EQ(fit.statistics.SSE, 12 * 16);
    EXPECT_DOUBLE_EQ(fit.statistics.SSM, 12 * 16);
}

TEST(PolyFit, TooFewTooManyAndZeroValuesFail) {
    const Table data = noisyData(10001, 2, 1);
    Table flat = data;
    for (int i = 1; i <= 20; ++i)
        flat(i, 3) = 0;
    using enum base::FailureCode;
    const std::tuple<const Table&, int, base::FailureCode> faults[] = {{data, 6, DivisionByZero},
                                                                       {data, 5, BadInput},
                                                                       {data, 0, BadInput},
                                                                       {data, 10001, SubscriptOutOfRange},
                                                                       {flat, 20, DivisionByZero}};
    for (const auto& [table, n, code] : faults) {
        const auto fit = [&, &data = table, points = n] { PolyFit(data, points); };
        EXPECT_THAT(fit, testing::Throws<base::Failure>(testing::Property(&base::Failure::code, code))) << n;
    }
    EXPECT_THROW(PolyFit4D(noisyData(10, 3, 1), 10), base::Failure);
}

TEST(FDistribution, PercentagePointsAreThoseOfPublishedTables) {
    const struct {
        double p;
        int df1, df2;
        double point;
    } table[] = {{0.05, 5, 10, 3.3258},  {0.01, 5, 10, 5.6363},   {0.05, 9, 20, 2.3928},  {0.01, 9, 20, 3.4567},
                 {0.05, 5, 1, 230.162},  {0.01, 5, 1, 5763.65},   {0.05, 9, 120, 1.9588}, {0.01, 9, 120, 2.5586},
                 {0.05, 1, 1, 161.4476}, {0.05, 5, 9994, 2.2149}, {0.5, 3, 3, 1.0}};
    for (const auto& row : table) {
        double point = 0;
        FInverse(row.p, row.df1, row.df2, point);
        EXPECT_NEAR(point, row.point, 5e-5 * row.point) << row.p << ' ' << row.df1 << ' ' << row.df2;
        EXPECT_NEAR(incompleteBeta(row.df2 / (row.df2 + row.df1 * point), row.df2 / 2.0, row.df1 / 2.0), row.p, 1e-12);
    }
    double point = 0;
    for (const double p : {0.0, 1.0, -1.0, std::nan("")})
        EXPECT_THROW(FInverse(p, 5, 10, point), base::Failure);
    EXPECT_THROW(FInverse(0.05, 5, 0, point), base::Failure);
}

}  // namespace tessaplot::numerics::test
