#include "scene/axis_scale.h"

#include <cmath>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "base/failure.h"
#include "scene/axis.h"

namespace tessaplot::scene {
namespace {

AxisTicks ticksOf(double min, double max) {
    return Cls3::Coord(min, max).value_or(AxisTicks{});
}

TEST(AxisScale, roundTicksOfKnownRanges) {
    const AxisTicks seven = ticksOf(0, 7);
    EXPECT_EQ(seven.step, 1);
    EXPECT_EQ(seven.first, 0);
    EXPECT_EQ(seven.last, 7);
    EXPECT_EQ(seven.count, 7);
    const AxisTicks parts = ticksOf(0.13, 0.57);
    EXPECT_NEAR(parts.step, 0.05, 1e-15);
    EXPECT_NEAR(parts.first, 0.15, 1e-15);
    EXPECT_NEAR(parts.last, 0.6, 1e-15);
    EXPECT_EQ(parts.count, 9);
    double min = 3;
    const auto fromNothing = Cls3::Coord(min, 3);
    EXPECT_EQ(min, 0) << "the caller's range begins at 0 as well";
    EXPECT_EQ(fromNothing->step, 0.5);
    EXPECT_EQ(fromNothing->last, 3);
    EXPECT_EQ(fromNothing->count, 6);
    EXPECT_FALSE(std::signbit(ticksOf(-0.5, 6).first)) << "no tick at a negative zero";
}

TEST(AxisScale, rangesWithoutALengthFailAndRangesWithoutADecadeHaveNoTicks) {
    double min = 0;
    EXPECT_THROW(Cls3::Coord(min, 0), base::Failure);
    min = -3;
    EXPECT_THROW(Cls3::Coord(min, -3), base::Failure);
    min = 5;
    EXPECT_THROW(Cls3::Coord(min, 2), base::Failure);
    for (const double end : {1e308 * 10, std::nan("")}) {
        min = 0;
        EXPECT_FALSE(Cls3::Coord(min, end));
    }
}

TEST(AxisScale, ticksOfAnyRangeAreFewAndCoverIt) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> decade(-9, 9);
    for (int i = 0; i < 5000; ++i) {
        const double a = mantissa(random) * std::pow(10, decade(random));
        const double b = a + (mantissa(random) + 10.001) * std::pow(10, decade(random));
        double min = a;
        if (!(b > a) || b - a < std::abs(a) * 1e-6) continue;
        const auto ticks = Cls3::Coord(min, b);
        if (!ticks) continue;
        const double hair = ticks->step * 1e-6;
        EXPECT_EQ(min, a);
        EXPECT_GE(ticks->first, a - hair);
        EXPECT_LT(ticks->first, a + ticks->step + hair);
        EXPECT_GE(ticks->last, b - hair);
        EXPECT_LT(ticks->last, b + ticks->step + hair);
        EXPECT_NEAR(ticks->first + ticks->count * ticks->step, ticks->last, hair);
        EXPECT_GE(ticks->count, 3);
        EXPECT_LE(ticks->count, 11);
    }
}

TEST(AxisScale, labelsShowAsManyDigitsAsTheStepNeeds) {
    EXPECT_EQ(digitsOfStep(20000), 0);
    EXPECT_EQ(digitsOfStep(1), 0);
    EXPECT_EQ(digitsOfStep(0.5), 1);
    EXPECT_EQ(digitsOfStep(0.05), 2);
    EXPECT_EQ(digitsOfStep(0.002), 3);
    EXPECT_EQ(digitsOfStep(0.0005), 4);
    EXPECT_EQ(digitsOfStep(0.00002), 4);
}

TEST(AxisScale, labelsRoundTheHalvesThatAPersonSees) {
    EXPECT_EQ(labelText(0.25, 1), "0.3");
    EXPECT_EQ(labelText(-0.25, 1), "-0.3");
    EXPECT_EQ(labelText(0.15, 1), "0.2") << "although the nearest float is below";
    EXPECT_EQ(labelText(0.75 - 1e-16, 1), "0.8");
    EXPECT_EQ(labelText(0.2499, 1), "0.2");
    EXPECT_EQ(labelText(-0.04, 1), "0.0") << "no negative zero";
    EXPECT_EQ(labelText(1234567.8, 1), "1234567.8");
    EXPECT_EQ(labelText(1e17, 1), "100000000000000000.0");
    EXPECT_EQ(labelText(0.5, 0), "1");
    EXPECT_EQ(labelText(6e-17, 2), "0.00");
    EXPECT_EQ(labelText(1.7e308, 4).size(), 309U + 5U);
}

}  // namespace
}  // namespace tessaplot::scene
