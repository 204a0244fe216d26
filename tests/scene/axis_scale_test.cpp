#include "scene/axis_scale.h"

#include <cmath>
#include <limits>
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

TEST(AxisScale, rangesWithoutALengthFailAndRangesWithoutADecadeHaveNoTicks) {
    double min = 3;
    const auto fromNothing = Cls3::Coord(min, 3);
    EXPECT_EQ(min, 0) << "the caller's range begins at 0 as well";
    EXPECT_EQ(fromNothing->step, 0.5);
    EXPECT_EQ(fromNothing->count, 6);
    EXPECT_FALSE(std::signbit(ticksOf(-0.5, 6).first)) << "no tick at a negative zero";
    for (const auto& [low, high] : {std::pair{0.0, 0.0}, {-3.0, -3.0}, {5.0, 2.0}})
        EXPECT_THROW(ticksOf(low, high), base::Failure) << low;
    for (const double end : {std::numeric_limits<double>::infinity(), std::nan("")})
        EXPECT_FALSE(Cls3::Coord(min, end));
}

TEST(AxisScale, ticksOfAnyRangeAreFewAndCoverIt) {
    // The steps that belong to extents of 1, 2 and 5 times a power of ten.
    for (const auto& [extent, step] :
         {std::pair{1.0, 0.2}, {1.99, 0.2}, {2.0, 0.5}, {4.99, 0.5}, {5.0, 1.0}, {7.0, 1.0}})
        EXPECT_EQ(ticksOf(0, extent).step, step) << extent;
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
        EXPECT_NEAR(std::remainder(ticks->first / ticks->step, 1), 0, 1e-6);
        EXPECT_TRUE(ticks->count >= 3 && ticks->count <= 11) << ticks->count;
    }
}

TEST(AxisScale, labelsShowTheDigitsOfTheStepAndRoundTheHalvesThatAPersonSees) {
    for (const auto& [step, digits] :
         {std::pair{20000.0, 0}, {1.0, 0}, {0.5, 1}, {0.05, 2}, {0.002, 3}, {0.0005, 4}, {0.00002, 4}})
        EXPECT_EQ(digitsOfStep(step), digits) << step;
    const struct {
        double value;
        int digits;
        const char* text;
    } labels[] = {{0.25, 1, "0.3"},
                  {-0.25, 1, "-0.3"},
                  {0.15, 1, "0.2"},  // although the nearest float is below
                  {0.75 - 1e-16, 1, "0.8"},
                  {0.2499, 1, "0.2"},
                  {-0.04, 1, "0.0"},  // no negative zero
                  {1234567.8, 1, "1234567.8"},
                  {1e17, 1, "100000000000000000.0"},
                  {0.5, 0, "1"},
                  {6e-17, 2, "0.00"}};
    for (const auto& label : labels)
        EXPECT_EQ(labelText(label.value, label.digits), label.text);
    EXPECT_EQ(labelText(1.7e308, 4).size(), 309U + 5U);
}

}  // namespace
}  // namespace tessaplot::scene
