#include "numerics/grid.h"

#include <atomic>
#include <limits>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "plain_grid.h"

namespace tessaplot::numerics::test {

namespace {

using testing::Each;
using testing::Eq;

constexpr SurfaceCoordinates allCoordinates[] = {SurfaceCoordinates::Cartesian, SurfaceCoordinates::Cylindrical,
                                                 SurfaceCoordinates::Spherical};

Ending fastSurfaceGrid(const ScatteredSurface& surface, int method, SurfaceColumns& out) {
    return {.complete = gridSurface(surface, method, {}, out.nodes()).complete, .failure = {}};
}

base::FailureCode failureOf(const ScatteredSurface& surface, int method) {
    SurfaceColumns out(surface);
    const Ending ending = endingOf([&] { return fastSurfaceGrid(surface, method, out); });
    return ending.failure.value_or(base::FailureCode::OpenGl);
}

void shorten(ScatteredSurface& surface, std::size_t points) {
    for (std::span<const double>* column : {&surface.x, &surface.y, &surface.z, &surface.c})
        *column = column->first(points);
}

/// Angles that fill the grid's degrees when they are radians.
Cloud withRadians(Cloud cloud, SurfaceCoordinates coordinates) {
    if (coordinates == SurfaceCoordinates::Cartesian) return cloud;
    for (double& angle : cloud.x)
        angle = base::degreesToRadians(angle);
    if (coordinates == SurfaceCoordinates::Spherical)
        for (double& angle : cloud.y)
            angle = base::degreesToRadians(angle);
    return cloud;
}

void expectSurfaceAsPlain(Scatter scatter, SurfaceCoordinates coordinates, int method, int points) {
    const Cloud cloud = withRadians(Cloud(scatter, points, 7), coordinates);
    ScatteredSurface surface = surfaceOf(cloud, coordinates, extentOf(scatter));
    if (method > 2) surface.StepsX = surface.StepsY = 2;
    SurfaceColumns fast(surface);
    SurfaceColumns plain(surface);
    const Ending fastEnding = endingOf([&] { return fastSurfaceGrid(surface, method, fast); });
    const Ending plainEnding = endingOf([&] { return plainSurfaceGrid(surface, method, plain); });
    ASSERT_EQ(fastEnding, plainEnding);
    EXPECT_TRUE(fastEnding.failure || fast == plain);
}

}  // namespace

TEST(Grid, SurfacesEqualThePlainRoutinesBitForBit) {
    for (const auto& [scatter, name] : allScatters)
        for (const SurfaceCoordinates coordinates : allCoordinates)
            for (const int method : {1, 2, 3, 4})
                for (const int points : method <= 2 ? std::vector{3, 17, 400} : std::vector{60}) {
                    SCOPED_TRACE(name + testing::PrintToString(std::tuple(coordinates, method, points)));
                    expectSurfaceAsPlain(scatter, coordinates, method, points);
                }
}

TEST(Grid, IndexesThatThreadsMakeFindTheNeighboursOfThePlainRoutine) {
    for (const Scatter scatter : {Scatter::Random, Scatter::Clustered, Scatter::Collinear, Scatter::OnNodes})
        expectSurfaceAsPlain(scatter, SurfaceCoordinates::Cartesian, 1, 19000);
}

TEST(Grid, VolumesEqualThePlainRoutinesBitForBit) {
    for (const auto& [scatter, name] : allScatters)
        for (const int points : {3, 17, 400})
            for (const int method : {101, 102}) {
                SCOPED_TRACE(name + testing::PrintToString(std::pair(method, points)));
                const Cloud cloud(scatter, points, 11);
                const ScatteredVolume volume = volumeOf(cloud, extentOf(scatter));
                VolumeColumns fast(volume);
                VolumeColumns plain(volume);
                const Ending fastEnding = endingOf([&] {
                    gridVolume(volume, method, {}, fast.nodes());
                    return Ending{};
                });
                ASSERT_EQ(fastEnding, endingOf([&] { return plainVolumeGrid(volume, method, plain); }));
                EXPECT_TRUE(fastEnding.failure || fast == plain);
            }
}

TEST(Grid, FitsGiveTheirQuadraticAsValueAndColour) {
    const Cloud cloud(Scatter::Random, 50, 3);
    const ScatteredSurface surface = surfaceOf(cloud, SurfaceCoordinates::Spherical, 20);
    SurfaceColumns out(surface);
    const GridResult result = gridSurface(surface, 5, {}, out.nodes());
    ASSERT_TRUE(result.fit);
    const std::size_t at = placeOf(surface.StepsX, surface.StepsY, 3, 4);
    const double expected = quadraticAt(result.fit->coefficients, out.a[at], out.b[at]);
    EXPECT_EQ(out.d[at], expected);
    EXPECT_EQ(out.c[at], expected);

    const ScatteredVolume volume = volumeOf(cloud, 20);
    VolumeColumns nodes(volume);
    const GridResult volumeResult = gridVolume(volume, 103, {}, nodes.nodes());
    ASSERT_TRUE(volumeResult.fit);
    const std::size_t last = placeOf(volume.StepsX, volume.StepsY, 4, 5, 6);
    EXPECT_EQ(nodes.v[last], quadraticAt(volumeResult.fit->coefficients, 10, 10, 10));
    EXPECT_EQ(nodes.c[last], nodes.v[last]);
}

TEST(Grid, PointsBeyondTheApplicationSetLeaveNeighbourValuesUnset) {
    const Cloud cloud(Scatter::Random, 20, 3);
    ScatteredSurface surface = surfaceOf(cloud, SurfaceCoordinates::Cartesian, 20);
    surface.applicationPoints = 18;
    SurfaceColumns out(surface);
    gridSurface(surface, 1, {}, out.nodes());
    EXPECT_EQ(out.z[0], 0);
    EXPECT_EQ(out.c[5], 0);
    surface.applicationPoints = 19;
    gridSurface(surface, 1, {}, out.nodes());
    EXPECT_NE(out.z[0], 0);
}

TEST(Grid, SingularSystemsStopWithOneMessageAndChangeNothing) {
    Cloud cloud(Scatter::Random, 20, 3);
    cloud.x[7] = cloud.x[3];
    cloud.y[7] = cloud.y[3];
    const ScatteredSurface surface = surfaceOf(cloud, SurfaceCoordinates::Cartesian, 20);
    for (const int method : {3, 4}) {
        SurfaceColumns out(surface);
        const GridResult result = gridSurface(surface, method, {}, out.nodes());
        EXPECT_FALSE(result.complete);
        EXPECT_EQ(result.message, "Can not solve the linear eqution group.");
        EXPECT_THAT(out.x, Each(Eq(-1)));
        EXPECT_THAT(out.c, Each(Eq(-1)));
    }
}

TEST(Grid, AValueThatLooksLikeAFailureStopsWithoutAMessage) {
    Cloud cloud(Scatter::Random, 1, 3);
    cloud.x[0] = cloud.y[0] = 0;
    cloud.z[0] = GridFailed;
    ScatteredSurface surface = surfaceOf(cloud, SurfaceCoordinates::Cartesian, 20);
    surface.StepsX = surface.StepsY = 3;
    SurfaceColumns out(surface);
    const GridResult result = gridSurface(surface, 3, {}, out.nodes());
    EXPECT_FALSE(result.complete);
    EXPECT_TRUE(result.message.empty());
    EXPECT_EQ(out.x[1], 0) << "node (1, 0) comes before the middle";
    EXPECT_EQ(out.x[1 + 4], -1) << "node (1, 1) is the middle";
    EXPECT_EQ(out.x[2], -1);
}

TEST(Grid, LimitsAreFailuresThatNameThem) {
    const Cloud cloud(Scatter::Random, 10002, 3);
    ScatteredSurface surface = surfaceOf(cloud, SurfaceCoordinates::Cartesian, 20, 3);
    EXPECT_EQ(failureOf(surface, 2), base::FailureCode::SubscriptOutOfRange);
    EXPECT_EQ(failureOf(surface, 5), base::FailureCode::SubscriptOutOfRange);
    SurfaceColumns target(surface);
    EXPECT_THAT([&] { gridSurface(surface, 3, {}, target.nodes()); },
                testing::ThrowsMessage<base::Failure>(testing::HasSubstr("500")));
    ScatteredVolume volume = volumeOf(cloud, 20, 2);
    VolumeColumns nodes(volume);
    EXPECT_THROW(gridVolume(volume, 102, {}, nodes.nodes()), base::Failure);
    for (const auto& [method, most] : {std::pair{2, 10001U}, {3, 500U}, {4, 497U}, {5, 10000U}}) {
        surface = surfaceOf(cloud, SurfaceCoordinates::Cartesian, 20, 3);
        shorten(surface, most);
        SurfaceColumns out(surface);
        EXPECT_TRUE(gridSurface(surface, method, {}, out.nodes()).complete);
    }
}

TEST(Grid, PointsThatNoNodeReachesDoNotCountForTheLimitOfShepard) {
    Cloud cloud(Scatter::Random, 10002, 3);
    for (std::size_t i = 0; i < 4; ++i) {
        cloud.x[i] = i < 2 ? -10 : 10;
        cloud.y[i] = i % 2 == 0 ? -10 : 10;
    }
    ScatteredSurface surface = surfaceOf(cloud, SurfaceCoordinates::Cartesian, 20);
    surface.StepsX = surface.StepsY = 2;
    SurfaceColumns out(surface);
    EXPECT_TRUE(gridSurface(surface, 2, {}, out.nodes()).complete);
    EXPECT_EQ(out.z[0], cloud.z[0]);
}

TEST(Grid, AnAxisOfOneNodeIsADivisionByZeroAndSoAreColoursOfCylindersWithoutExtent) {
    const Cloud cloud(Scatter::Random, 20, 3);
    const ScatteredSurface cylinder = surfaceOf(cloud, SurfaceCoordinates::Cylindrical, 20);
    ScatteredSurface surface = cylinder;
    surface.StepsY = 1;
    EXPECT_EQ(failureOf(surface, 2), base::FailureCode::DivisionByZero);
    surface.StepsY = 0;
    SurfaceColumns out(surface);
    EXPECT_TRUE(gridSurface(surface, 2, {}, out.nodes()).complete);
    EXPECT_THAT(out.c, Each(Eq(-1)));

    surface = cylinder;
    surface.MinX = surface.MaxX = 1;
    EXPECT_EQ(failureOf(surface, 2), base::FailureCode::DivisionByZero);
    out = SurfaceColumns(surface);
    EXPECT_TRUE(gridSurface(surface, 1, {}, out.nodes()).complete);
    EXPECT_EQ(out.c[0], 0);
    EXPECT_NE(out.b[0], 0);
}

TEST(Grid, SpareElementsAreLeftAloneAndShortColumnsRefused) {
    const Cloud cloud(Scatter::Random, 20, 3);
    const ScatteredSurface surface = surfaceOf(cloud, SurfaceCoordinates::Cartesian, 20);
    SurfaceColumns out(surface);
    gridSurface(surface, 9, {}, out.nodes());
    EXPECT_EQ(out.z[0], 0) << "an unknown method gives 0";
    EXPECT_EQ(out.x[11], -1);
    EXPECT_EQ(out.x[10 + 12 * 12], 10);
    EXPECT_EQ(out.x[12 * 13], -1);
    out.y.pop_back();
    EXPECT_THROW(gridSurface(surface, 2, {}, out.nodes()), base::Failure);
}

TEST(Grid, ProgressRisesInTheCallersThreadAndCanCancel) {
    const Cloud cloud(Scatter::Random, 5000, 3);
    const ScatteredSurface surface = surfaceOf(cloud, SurfaceCoordinates::Cylindrical, 20, 150);
    SurfaceColumns out(surface);
    const auto caller = std::this_thread::get_id();
    double last = 0;
    gridSurface(
        surface, 2,
        [&](double done) {
            EXPECT_EQ(std::this_thread::get_id(), caller);
            EXPECT_GE(done, last);
            last = done;
        },
        out.nodes());
    EXPECT_EQ(last, 1);

    struct Cancelled {};
    for (const int method : {1, 2, 3}) {
        ScatteredSurface large = surfaceOf(cloud, SurfaceCoordinates::Spherical, 20, 400);
        if (method == 3) shorten(large, 400);
        SurfaceColumns abandoned(large);
        EXPECT_THROW(gridSurface(
                         large, method, [](double) { throw Cancelled(); }, abandoned.nodes()),
                     Cancelled);
    }
}

TEST(Grid, NumbersThatAreNoneNeitherHangNorCrash) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double odd : {std::nan(""), infinity, -infinity, 1.7e308})
        for (const SurfaceCoordinates coordinates : allCoordinates)
            for (int method = 1; method <= 5; ++method)
                for (const bool inCoordinate : {true, false}) {
                    Cloud cloud(Scatter::Random, 30, 3);
                    (inCoordinate ? cloud.x : cloud.w)[4] = odd;
                    const ScatteredSurface surface = surfaceOf(cloud, coordinates, 20);
                    SurfaceColumns out(surface);
                    endingOf([&] { return fastSurfaceGrid(surface, method, out); });
                    ScatteredSurface badExtent = surface;
                    badExtent.MaxX = badExtent.MaxA = odd;
                    endingOf([&] { return fastSurfaceGrid(badExtent, method, out); });
                }
}

}  // namespace tessaplot::numerics::test
