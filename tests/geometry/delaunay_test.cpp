#include "geometry/delaunay.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
#include "geometry/circle_index.h"
#include "geometry/plain_delaunay.h"
#include "geometry/point_clouds.h"

namespace tessaplot::geometry {
namespace {

using base::FailureCode;
using test::Place;
using test::PointCloud;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// The result and the columns afterwards, or the code of the failure.
template <class Routine>
auto outcomeOf(Routine triangulate, PointCloud cloud) {
    Triangulation result;
    int failure = -1;
    try {
        result = triangulate(cloud.n(), cloud.x, cloud.y);
    } catch (const base::Failure& fault) {
        failure = static_cast<int>(fault.code());
    }
    return std::tuple(result.triangles, result.coincidentTests, failure, cloud.x, cloud.y);
}

void expectSameAsPlain(const PointCloud& cloud, const std::string& name) {
    EXPECT_TRUE(outcomeOf(Triangulate, cloud) == outcomeOf(test::plainTriangulate, cloud)) << name;
}

FailureCode failureOf(std::int32_t n, std::vector<double> x, std::vector<double> y) {
    try {
        Triangulate(n, x, y);
    } catch (const base::Failure& failure) {
        return failure.code();
    }
    ADD_FAILURE() << "no failure";
    return {};
}

TEST(Delaunay, IsTheListOfThePlainWalk) {
    for (const test::Layout& layout : test::layouts) {
        for (int count = 0; count <= 24; ++count)
            for (unsigned seed = 0; seed < 12; ++seed)
                expectSameAsPlain(test::cloudOf(layout, count, seed), layout.name + std::to_string(count));
        for (unsigned seed = 0; seed < 3; ++seed)
            expectSameAsPlain(test::cloudOf(layout, 170, seed), layout.name);
    }
}

TEST(Delaunay, FillsTheListToItsLimitAndFailsBeyond) {
    const PointCloud most = test::cloudOf(test::layouts[0], 4999, 1);
    expectSameAsPlain(most, "4999");
    const PointCloud tooMany = test::cloudOf(test::layouts[0], 5000, 1);
    EXPECT_EQ(failureOf(5000, tooMany.x, tooMany.y), FailureCode::SubscriptOutOfRange);
}

TEST(Delaunay, RoundsItsBoundsToEvenAndWritesTheEnclosingCorners) {
    PointCloud cloud({{0.5, 1.5}, {2.5, -0.5}, {5.4, 3.5}});
    const Triangulation result = Triangulate(3, cloud.x, cloud.y);
    EXPECT_THAT(cloud.x, testing::ElementsAre(0, 0.5, 2.5, 5.4, 2 - 10, 2, 2 + 10));
    EXPECT_THAT(cloud.y, testing::ElementsAre(0, 1.5, -0.5, 3.5, 2 - 5, 2 + 10, 2 - 5));
    EXPECT_EQ(result.triangles.size(), 1U);
    EXPECT_EQ(result.coincidentTests, 0);
}

TEST(Delaunay, GoesOnAtEqualPointsAndCountsCoincidentTriples) {
    PointCloud twice({{0, 0}, {7, 1}, {2, 8}, {2, 3}, {2, 3}, {5, 5}});
    EXPECT_EQ(Triangulate(6, twice.x, twice.y).triangles.size(), 4U);

    PointCloud oneUnit({{0.1, 0.2}, {0.3, 0.4}, {0.2, 0.1}, {-0.4, 0}});
    const Triangulation result = Triangulate(4, oneUnit.x, oneUnit.y);
    EXPECT_TRUE(result.triangles.empty());
    EXPECT_EQ(result.coincidentTests, 4);
}

TEST(Delaunay, FailsForColumnsTooShortAndCornersBeyondIntegers) {
    const std::vector<double> seven = {0, 1, 2, 3, 0, 0, 0};
    EXPECT_EQ(failureOf(4, seven, seven), FailureCode::SubscriptOutOfRange);
    EXPECT_EQ(failureOf(3, seven, {0, 1, 2, 3}), FailureCode::SubscriptOutOfRange);
    EXPECT_EQ(failureOf(-2, seven, seven), FailureCode::SubscriptOutOfRange);
    EXPECT_EQ(failureOf(std::numeric_limits<std::int32_t>::max(), seven, seven), FailureCode::SubscriptOutOfRange);
    for (const double first : {3e9, -1.5e9, std::numeric_limits<double>::infinity(), notANumber})
        EXPECT_EQ(failureOf(2, {0, first, 1.5e9, 0, 0, 0}, seven), FailureCode::Overflow);
}

TEST(Delaunay, LeavesAPointThatIsNoNumberOut) {
    PointCloud cloud({{0, 0}, {9, 1}, {notANumber, 3}, {2, 8}, {4, notANumber}});
    EXPECT_THAT(Triangulate(5, cloud.x, cloud.y).triangles,
                testing::ElementsAre(testing::Truly([](const Triangle& t) { return t.a + t.b + t.c == 1 + 2 + 4; })));
}

TEST(InCircle, TakesAPointOnTheCircleWhicheverSideIsLevel) {
    const Place corners[] = {{1, 5}, {7, 5}, {7, -3}};  // On the circle of radius 5 around (4, 1).
    for (int turn = 0; turn < 3; ++turn) {
        const auto& [x1, y1] = corners[turn];
        const auto& [x2, y2] = corners[(turn + 1) % 3];
        const auto& [x3, y3] = corners[(turn + 2) % 3];
        double xc = 0, yc = 0, r = 0;
        std::int64_t reports = 0;
        EXPECT_TRUE(InCircle(9, 1, x1, y1, x2, y2, x3, y3, xc, yc, r, reports));
        EXPECT_FALSE(InCircle(9.000001, 1, x1, y1, x2, y2, x3, y3, xc, yc, r, reports));
        EXPECT_THAT((std::tuple(xc, yc, r, reports)), testing::FieldsAre(4, 1, 5, 0));
    }
}

TEST(InCircle, ReportsTriplesWithoutACircleAndLeavesItsResults) {
    double xc = -1, yc = -2, r = -3;
    std::int64_t reports = 0;
    EXPECT_FALSE(InCircle(1, 0, 0, 0, 1, 9e-7, 2, 0, xc, yc, r, reports));    // Level within the tolerance.
    EXPECT_FALSE(InCircle(1, 1, 0, 0, 1, 1, 2, 2, xc, yc, r, reports));       // On a sloped line.
    EXPECT_FALSE(InCircle(5, 1, 5, 0, 5, 1, 5, 3, xc, yc, r, reports));       // On an upright line.
    EXPECT_FALSE(InCircle(0, 1, 0, 0, 1e-200, 1, 0, 3, xc, yc, r, reports));  // A circle beyond all numbers.
    EXPECT_THAT((std::tuple(xc, yc, r, reports)), testing::FieldsAre(-1, -2, -3, 4));
    EXPECT_TRUE(InCircle(1, 0, 0, 0, 1, 1.1e-6, 2, 0, xc, yc, r, reports));
}

TEST(CircleIndex, FindsExactlyTheCirclesThatHoldAPointWhateverTheirSize) {
    std::mt19937_64 random(6);
    std::uniform_real_distribution<double> unit(-1, 1);
    for (const Place& centre : {Place(0, 0), Place(2e9, -5)})
        for (const double extent : {0.0, 1e-300, 1.0, 1e9}) {
            CircleIndex index({centre.first - extent, centre.first + extent, centre.second, centre.second + extent});
            std::vector<Circle> circles(600, {0, 0, -1});
            for (std::size_t i = 0; i < 3000; ++i) {
                const Place place(centre.first + unit(random) * extent,
                                  centre.second + std::abs(unit(random)) * extent);
                Circle& circle = circles[i % 600];
                const auto id = static_cast<std::int32_t>(i % 600);
                index.remove(id);
                const double distance =
                    std::pow(10, unit(random) * (i % 2 == 0 ? 150 : 6)) * (extent == 0 ? 1 : extent);
                circle.x = place.first + distance * unit(random);
                circle.y = place.second + distance * unit(random);
                // The place lies on the circle, or close to it.
                circle.squaredRadius = (place.first - circle.x) * (place.first - circle.x) +
                                       (place.second - circle.y) * (place.second - circle.y) * (i % 3 == 0 ? 1.1 : 1);
                index.insert(id, circle);

                std::vector<std::int32_t> expected;
                for (std::int32_t k = 0; k < 600; ++k)
                    if (circles[static_cast<std::size_t>(k)].holds(place.first, place.second)) expected.push_back(k);
                std::vector<std::int32_t> found;
                index.find(place.first, place.second, found);
                std::sort(found.begin(), found.end());
                ASSERT_EQ(found, expected);
            }
        }
}

}  // namespace
}  // namespace tessaplot::geometry
