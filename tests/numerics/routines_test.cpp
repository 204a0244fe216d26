#include <cmath>

#include <gtest/gtest.h>

#include "base/angle.h"
#include "base/failure.h"
#include "numerics/inverse_distance.h"
#include "numerics/local_fit.h"
#include "numerics/nearest_points.h"
#include "numerics/radial_basis.h"
#include "samples.h"

namespace tessaplot::numerics::test {

namespace {

/// A surface that owns its few points.
struct SmallSurface {
    std::vector<double> x, y, z, c;

    ScatteredSurface view(SurfaceCoordinates coordinates = SurfaceCoordinates::Cartesian) const {
        ScatteredSurface surface;
        surface.coordinates = coordinates;
        surface.x = x, surface.y = y, surface.z = z, surface.c = c;
        surface.applicationPoints = surface.Points();
        return surface;
    }
};

}  // namespace

TEST(Nearest, BlendsByTheDistanceItselfAndAdoptsWhatIsClose) {
    const SmallSurface points = {{0, 3, 0, 50}, {0, 0, 4, 50}, {6, 12, 20, 1000}, {1, 2, 3, 4}};
    double value = 0;
    ASSERT_TRUE(NDS(points.view(), 0, 0.2, value, 1));
    EXPECT_DOUBLE_EQ(value, 6) << "the only point of the blend";
    ASSERT_TRUE(NDS(points.view(), 1, 0, value, 2));
    EXPECT_DOUBLE_EQ(value, (6 / 1.0 + 12 / 2.0) / (1 / 1.0 + 1 / 2.0));
    ASSERT_TRUE(NDSC(points.view(), 0.099, 0, value, 3));
    EXPECT_EQ(value, 1);
    value = 77;
    EXPECT_FALSE(NDS(points.view(), 0, 0, value, 0));
    EXPECT_EQ(value, 77);
}

TEST(Nearest, EqualDistancesTakeTheLowerIndexAndFarPointsRepeat) {
    const SmallSurface ties = {{1, -1, 1}, {0, 0, 0}, {5, 7, 9}, {0, 0, 0}};
    double value = 0;
    NDS(ties.view(), 0, 0, value, 1);
    EXPECT_EQ(value, 5);
    const SmallSurface far = {{1e4, 2e4}, {0, 0}, {5, 7}, {0, 0}};
    NDS(far.view(), 0, 0, value, 2);
    EXPECT_DOUBLE_EQ(value, 5) << "beyond the mark the first point is found again";
}

TEST(Nearest, CylindersInterpolateTheRadiusOverDegreesAndColoursOverFractions) {
    SmallSurface points = {{base::degreesToRadians(90), 0}, {4, 8}, {2, 2}, {10, 20}};
    ScatteredSurface surface = points.view(SurfaceCoordinates::Cylindrical);
    surface.MaxX = 2;
    surface.MaxZ = 10;
    double value = 0;
    ASSERT_TRUE(NDS(surface, 30, 2, value, 2));
    EXPECT_NEAR(value, (4 / 60.0 + 8 / 30.0) / (1 / 60.0 + 1 / 30.0), 1e-12);
    ASSERT_TRUE(NDSC(surface, 30, 2, value, 2));
    EXPECT_NEAR(value, (10 / 60.0 + 20 / 30.0) / (1 / 60.0 + 1 / 30.0), 1e-12);
    surface.MaxZ = surface.MinZ;
    EXPECT_FALSE(NDSC(surface, 30, 2, value, 2));
    EXPECT_TRUE(NDS(surface, 30, 2, value, 2));
}

TEST(Nearest, VolumesBlendInThreeDimensions) {
    const std::vector<double> x = {0, 0}, y = {0, 3}, z = {2, 0}, v = {1, 6};
    ScatteredVolume volume;
    volume.x = x, volume.y = y, volume.z = z, volume.v = v;
    volume.applicationPoints = 2;
    double value = 0;
    ASSERT_TRUE(NDS4D(volume, 0, 0, 0, value, 2));
    EXPECT_DOUBLE_EQ(value, (1 / 2.0 + 6 / 3.0) / (1 / 2.0 + 1 / 3.0));
    EXPECT_DOUBLE_EQ(Shepard4D(volume, 0, 0, 0), (1 / 4.0 + 6 / 9.0) / (1 / 4.0 + 1 / 9.0));
}

TEST(Shepard, WeighsBySquaresAndTakesTheFirstPointThatIsHit) {
    const SmallSurface points = {{0, 2, 0, 0}, {0, 0, 1, 1e-4}, {6, 12, 20, 99}, {1, 2, 3, 4}};
    EXPECT_EQ(Shepard(points.view(), 0, 0, false), 6);
    EXPECT_EQ(Shepard(points.view(), 0, 1.1e-4, true), 1) << "a later point is nearer";
    SmallSurface two = {{0, 3}, {0, 0}, {6, 12}, {1, 2}};
    EXPECT_DOUBLE_EQ(Shepard(two.view(), 1, 0, false), (6 / 1.0 + 12 / 4.0) / (1 / 1.0 + 1 / 4.0));
    ScatteredSurface cylinder = two.view(SurfaceCoordinates::Cylindrical);
    EXPECT_THROW(Shepard(cylinder, 1, 1, true), base::Failure);
    EXPECT_THROW(Shepard(ScatteredSurface{}, 1, 1, false), base::Failure);
}

TEST(Radial, SurfacesPassThroughTheirPoints) {
    const Cloud cloud(Scatter::Random, 30, 2);
    const ScatteredSurface surface = surfaceOf(cloud, SurfaceCoordinates::Spherical, 20);
    for (std::size_t i = 0; i < 30; i += 7) {
        double value = 0;
        ASSERT_TRUE(RBF(surface, surface.x[i], surface.y[i], false, value));
        EXPECT_NEAR(value, surface.z[i], 1e-9);
        ASSERT_TRUE(TPS(surface, surface.x[i], surface.y[i], true, value));
        EXPECT_NEAR(value, surface.c[i], 1e-9);
    }
}

TEST(Radial, SplinesKeepPlanesAndDuplicatesHaveNoSolution) {
    Cloud cloud(Scatter::Random, 30, 2);
    for (std::size_t i = 0; i < 30; ++i)
        cloud.z[i] = 1 + 2 * cloud.x[i] - cloud.y[i];
    double value = 0;
    ASSERT_TRUE(TPS(surfaceOf(cloud, SurfaceCoordinates::Cartesian, 20), 1, 2, false, value));
    EXPECT_NEAR(value, 1, 1e-8);
    cloud.x[1] = cloud.x[0];
    cloud.y[1] = cloud.y[0];
    EXPECT_FALSE(RBF(surfaceOf(cloud, SurfaceCoordinates::Cartesian, 20), 1, 2, false, value));
    EXPECT_EQ(value, 9999999999.0);
}

TEST(LocalFit, EveryWeightReproducesAQuadratic) {
    Cloud cloud(Scatter::Random, 30, 2);
    const auto quadratic = [](double x, double y) { return 1 + 2 * x - y + 0.5 * x * y - 0.25 * x * x + y * y; };
    for (std::size_t i = 0; i < 30; ++i)
        cloud.z[i] = quadratic(cloud.x[i], cloud.y[i]);
    const ScatteredSurface surface = surfaceOf(cloud, SurfaceCoordinates::Cartesian, 20);
    for (int code = 0; code <= 7; ++code)
        EXPECT_NEAR(WLSA(surface, 1.5, -2, code), quadratic(1.5, -2), 1e-4) << code;
    EXPECT_TRUE(std::isnan(WLSA(surface, 1.5, -2, 8))) << "no weight at all";
    for (std::size_t i = 0; i < 30; ++i)
        cloud.z[i] += i == 3 ? 50 : 0;
    EXPECT_NE(WLSA(surface, 1.5, -2, 2), WLSA(surface, 1.5, -2, 7)) << "weights matter where no quadratic fits";
}

}  // namespace tessaplot::numerics::test
