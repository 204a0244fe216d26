#include "geometry/contour.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
#include "geometry/missing_node.h"
#include "geometry/plain_contour.h"

namespace tessaplot::geometry {
namespace {

using base::FailureCode;
using testing::ElementsAre;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

/// A grid of values of its own, rows a little longer than needed, and a surface over it.
struct Field {
    Field(int rows, int columns, const std::function<double(int i, int j)>& valueAt) : m(rows), n(columns) {
        for (int i = 1; i <= m; ++i)
            for (int j = 1; j <= n + 2; ++j)
                z.push_back(j <= n ? valueAt(i, j) : 1e9), surface.push_back(3 + 0.5 * i * j);
    }
    ContourGrid grid(double a = 0.3, double b = 0.7) {
        return {m, n, a, b, -1.25, 2.5, z, static_cast<std::size_t>(n) + 2};
    }
    double& at(int i, int j) { return z[static_cast<std::size_t>((i - 1) * (n + 2) + j - 1)]; }

    int m, n;
    std::vector<double> z, surface;
};

ContourOptions every(double interval) {
    ContourOptions options;
    options.interval = interval;
    options.colourMode = 0;
    return options;
}

/// A way to make a field from a number generator.
struct Kind {
    const char* name;
    double interval;
    double (*at)(std::mt19937& random, int i, int j);
};

double uniform(std::mt19937& random, double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
}

double orHole(std::mt19937& random, double value) {
    const double holes[] = {base::missingValue, notANumber, infinity, -infinity, 1e300};
    const auto pick = random() % 60;
    return pick < 5 ? holes[pick] : value;
}

const Kind kinds[] = {
    {"random", 0.3, [](std::mt19937& random, int, int) { return uniform(random, -1, 1); }},
    {"random, fine", 0.011, [](std::mt19937& random, int, int) { return uniform(random, -1, 1); }},
    {"waves", 0.2, [](std::mt19937&, int i, int j) { return std::sin(0.4 * i) * std::cos(0.3 * j) + 0.02 * i; }},
    {"saddles", 0.25,
     [](std::mt19937& random, int i, int j) { return ((i + j) % 2 != 0 ? 1 : -1) * uniform(random, 0.2, 1); }},
    {"constant", 0.5, [](std::mt19937&, int, int) { return 1.5; }},
    {"steps on levels", 0.25, [](std::mt19937& random, int, int) { return 0.25 * static_cast<int>(random() % 5); }},
    {"large steps that no nudge moves", 1e15,
     [](std::mt19937& random, int, int) { return 1e15 * static_cast<int>(random() % 4); }},
    {"steps just below levels", 0.25,
     [](std::mt19937& random, int, int) { return 0.25 * static_cast<int>(random() % 5) - 1e-5; }},
    {"levels within reach of each other", 1.3e-5,
     [](std::mt19937& random, int, int) { return uniform(random, -0.0004, 0.0004); }},
    {"levels a nudge apart", 1e-5, [](std::mt19937& random, int, int) { return uniform(random, -0.0002, 0.0002); }},
    {"large", 3e9, [](std::mt19937& random, int, int) { return uniform(random, -2e10, 3e10); }},
    {"holes", 0.3, [](std::mt19937& random, int, int) { return orHole(random, uniform(random, -1, 1)); }},
    {"holes in waves", 0.1,
     [](std::mt19937& random, int i, int j) { return orHole(random, std::sin(0.4 * i) * std::cos(0.3 * j)); }},
    {"near the marker", 2e-5,
     [](std::mt19937& random, int, int) { return base::missingValue + 1e-5 * static_cast<int>(random() % 9) - 4e-5; }},
    {"nothing but holes", 0.3, [](std::mt19937&, int, int) { return base::missingValue; }},
};

Field fieldOf(const Kind& kind, int m, int n, unsigned seed) {
    std::mt19937 random(seed);
    return {m, n, [&](int i, int j) { return kind.at(random, i, j); }};
}

/// Compares the bits, so that not-a-numbers of a grid are equal too.
bool sameBits(const std::vector<double>& one, const std::vector<double>& other) {
    return std::memcmp(one.data(), other.data(), one.size() * sizeof(double)) == 0;
}

auto rangesOf(const std::vector<ContourLevel>& levels) {
    std::vector<std::tuple<double, std::size_t, std::size_t>> ranges;
    ranges.reserve(levels.size());
    for (const ContourLevel& level : levels)
        ranges.emplace_back(level.value, level.first, level.end);
    return ranges;
}

void expectAsPlain(const Kind& kind, int m, int n, unsigned seed) {
    Field field = fieldOf(kind, m, n, seed);
    Field plainField = field;
    Field planeField = field;
    if (seed % 2 == 0) field.surface[0] = plainField.surface[0] = notANumber;
    const auto plain = test::plainContour3D(plainField.grid(), plainField.surface, kind.interval);
    const auto fast = CContour::Contour3D(field.grid(), field.surface, every(kind.interval));
    ASSERT_EQ(rangesOf(fast.levels), rangesOf(plain.levels));
    ASSERT_TRUE(fast.segments == plain.segments);
    ASSERT_TRUE(sameBits(field.z, plainField.z));
    if (seed % 2 == 0) return;
    const auto plane = CContour::Contour(planeField.grid(), every(kind.interval));
    ASSERT_EQ(plane.segments.size(), plain.segments.size());
    for (std::size_t s = 0; s < plane.segments.size(); ++s) {
        const auto& [from, to] = plain.segments[s];
        const ContourSegment<PlanePoint> expected = {{from.A, from.B}, {to.A, to.B}};
        ASSERT_EQ(plane.segments[s], expected);
    }
}

TEST(ContourLines, AreThoseOfThePlainFormInThePlaneAndOnASurface) {
    const std::pair<int, int> sizes[] = {{1, 1}, {1, 9}, {9, 1}, {2, 2}, {2, 7}, {5, 3}, {12, 12}, {31, 40}, {63, 64}};
    for (const Kind& kind : kinds)
        for (unsigned seed = 1; seed <= 8; ++seed)
            for (const auto& [m, n] : sizes) {
                SCOPED_TRACE(kind.name + testing::PrintToString(std::tuple(m, n, seed)));
                expectAsPlain(kind, m, n, seed);
                if (testing::Test::HasFailure()) return;
            }
}

TEST(ContourLines, AreAsManyAtAnySpacing) {
    for (const int kind : {0, 2, 3}) {
        Field field = fieldOf(kinds[kind], 40, 30, 5);
        const auto countAt = [&](double a, double b) {
            return CContour::Contour(field.grid(a, b), every(0.3)).segments.size();
        };
        const std::size_t count = countAt(0.3, 0.7);
        EXPECT_GT(count, 100U);
        EXPECT_EQ(countAt(1e-9, 1e-9), count) << kinds[kind].name;
        EXPECT_EQ(countAt(1e6, 1e-6), count) << kinds[kind].name;
    }
}

TEST(ContourLines, TakeTheNearSideAtASaddleAndBeginAtTheBordersInOrder) {
    Field field(2, 2, [](int i, int j) { return i == j ? -0.8 : 0.8; });
    const ContourGrid grid = {2, 2, 1, 1, 0, 0, field.z, 4};
    const auto lines = CContour::Contour(grid, every(1));
    ASSERT_EQ(lines.levels.size(), 1U);
    EXPECT_THAT(lines.segments, ElementsAre(ContourSegment<PlanePoint>{{1.5, 1}, {1, 1.5}},
                                            ContourSegment<PlanePoint>{{1.5, 2}, {2, 1.5}}));
}

TEST(Levels, ComeByRepeatedAdditionWithinTheRange) {
    const auto levelsOf = [](double low, double high, double interval) {
        Field field(1, 2, [&](int, int j) { return j == 1 ? low : high; });
        std::vector<double> values;
        for (const ContourLevel& level : CContour::Contour(field.grid(), every(interval)).levels)
            values.push_back(level.value);
        return values;
    };
    EXPECT_THAT(levelsOf(0, 0.45, 0.1), ElementsAre(0.1, 0.2, 0.1 + 0.1 + 0.1, 0.1 + 0.1 + 0.1 + 0.1));
    EXPECT_THAT(levelsOf(-2, 1, 1), ElementsAre(-1, 0, 1));
    EXPECT_THAT(levelsOf(0.2, 0.7, 5), testing::IsEmpty());
    EXPECT_THAT(levelsOf(2e10, 3e10, 1e10), ElementsAre(2e10, 3e10)) << "the lower end of a range is at most 1e10";
}

TEST(Levels, RaiseTheNodesNearThemInTheGridAgainAtEachCall) {
    Field field(1, 4, [](int, int j) { return std::vector{0.5, 1.0, 1.9999, 3.2}[static_cast<std::size_t>(j - 1)]; });
    CContour::Contour(field.grid(), every(1));
    EXPECT_EQ(field.at(1, 2), 1.0 + 1e-5);
    EXPECT_EQ(field.at(1, 3), 1.9999 + 1e-5);
    CContour::Contour(field.grid(), every(1));
    EXPECT_EQ(field.at(1, 2), 1.0 + 1e-5 + 1e-5);
    EXPECT_EQ(field.at(1, 1), 0.5);
}

TEST(Colours, FollowTheModeFromLevelToLevel) {
    Field field(2, 2, [](int i, int) { return i == 1 ? 0.5 : 3.5; });
    ContourOptions options = every(1);
    options.firstColour = base::packColor(255, 0, 51);
    options.lastColour = base::packColor(0, 102, 51);
    const auto colours = [&](int mode) {
        options.colourMode = mode;
        std::vector<std::optional<ContourColor>> result;
        for (const ContourLevel& level : CContour::Contour(field.grid(), options).levels)
            result.push_back(level.color);
        return result;
    };
    EXPECT_THAT(colours(4), ElementsAre(ContourColor{1, 0, 0.2}, ContourColor{1, 0, 0.2}, ContourColor{1, 0, 0.2}));
    EXPECT_THAT(colours(3),
                ElementsAre(ContourColor{1, 0, 0.2}, ContourColor{0.5, 0.2, 0.2}, ContourColor{0, 0.4, 0.2}));
    EXPECT_THAT(colours(5), ElementsAre(std::nullopt, std::nullopt, std::nullopt)) << "no ramp";
    EXPECT_THAT(colours(7), ElementsAre(std::nullopt, std::nullopt, std::nullopt));
    options.ColourFromMap = [](double level, double lower, double range, ContourColor& color) {
        color = {level, 10 * lower + range, color.b + 1};
    };
    EXPECT_THAT(colours(5), ElementsAre(ContourColor{1, 12, 1}, ContourColor{2, 12, 2}, ContourColor{3, 12, 3}));
}

FailureCode failureOf(ContourGrid grid, const ContourOptions& options) {
    try {
        CContour::Contour(grid, options);
    } catch (const base::Failure& failure) {
        return failure.code();
    }
    ADD_FAILURE() << "no failure";
    return {};
}

TEST(WhatCannotBeTraced, IsAFailureAndNeverAHang) {
    Field field(3, 3, [](int i, int j) { return 0.3 * i * j; });
    for (const double interval : {0.0, -1.0, notANumber, infinity, 1e-9, 1e-320, 1e-4})
        EXPECT_EQ(failureOf(field.grid(), every(interval)), FailureCode::BadInput) << interval;
    Field far(3, 3, [](int i, int) { return -1e17 + 64 * i; });
    EXPECT_EQ(failureOf(far.grid(), every(1e12)), FailureCode::BadInput) << "up to -1e10";
    Field nearby(3, 3, [](int i, int) { return 1e10 - 4e-6 * i; });
    EXPECT_EQ(failureOf(nearby.grid(), every(5e-7)), FailureCode::BadInput) << "a step that adds nothing";
    ContourOptions single = every(2);
    single.colourMode = 3;
    EXPECT_EQ(failureOf(field.grid(), single), FailureCode::DivisionByZero);

    std::vector<double> values(501 * 501);
    for (const auto& [m, n] : {std::pair(501, 5), {5, 501}, {0, 5}, {5, 0}, {-1, 3}})
        EXPECT_EQ(failureOf({m, n, 1, 1, 0, 0, values, 501}, every(1)), FailureCode::SubscriptOutOfRange) << m;
    EXPECT_EQ(failureOf({500, 500, 1, 1, 0, 0, std::span(values).first(1000), 500}, every(1)),
              FailureCode::SubscriptOutOfRange);
    EXPECT_EQ(failureOf({5, 5, 1, 1, 0, 0, values, 4}, every(1)), FailureCode::SubscriptOutOfRange);
    for (std::size_t k = 0; k < values.size(); k += 2)
        values[k] = 1;
    EXPECT_EQ(failureOf({500, 500, 1, 1, 0, 0, values, 501}, every(0.01)), FailureCode::BadInput) << "too many lines";
}

}  // namespace
}  // namespace tessaplot::geometry
