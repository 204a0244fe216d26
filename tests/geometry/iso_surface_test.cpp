#include "geometry/iso_surface.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "base/failure.h"
#include "geometry/marching_cubes_tables.h"
#include "geometry/plain_iso_surface.h"

namespace tessaplot::geometry {
namespace {

using base::FailureCode;
using test::IsoTriangle;
using test::Volume;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

IsoMesh surfaceOf(const Volume& volume, double level) {
    return IsoSurface(volume.nx, volume.ny, volume.nz, volume.X, volume.Y, volume.Z, volume.V, level);
}

std::vector<IsoTriangle> trianglesOf(const IsoMesh& mesh) {
    std::vector<IsoTriangle> triangles;
    for (const auto& [a, b, c] : mesh.triangles)
        triangles.push_back({mesh.vertices[a], mesh.vertices[b], mesh.vertices[c]});
    return triangles;
}

/// The triangles and the code of the failure, or -1.
template <class Routine>
std::pair<std::vector<IsoTriangle>, int> outcomeOf(Routine&& extract) {
    try {
        return {extract(), -1};
    } catch (const base::Failure& failure) {
        return {{}, static_cast<int>(failure.code())};
    }
}

/// Returns the number of triangles, or -1 for a failure.
int expectSameAsPlain(const Volume& volume, double level, const std::string& name) {
    const auto fast = outcomeOf([&] { return trianglesOf(surfaceOf(volume, level)); });
    const auto plain = outcomeOf([&] { return test::plainIsoSurface(volume, level); });
    EXPECT_EQ(fast.second, plain.second) << name;
    EXPECT_EQ(fast.first.size(), plain.first.size()) << name;
    if (fast.first.size() != plain.first.size()) return 0;
    const std::size_t bytes = fast.first.size() * sizeof(IsoTriangle);
    EXPECT_TRUE(bytes == 0 || std::memcmp(fast.first.data(), plain.first.data(), bytes) == 0) << name;
    return fast.second >= 0 ? -1 : static_cast<int>(fast.first.size());
}

int failureOf(const Volume& volume, double level) {
    return outcomeOf([&] { return trianglesOf(surfaceOf(volume, level)); }).second;
}

/// One of `values` at each node.
auto anyOf(unsigned seed, std::vector<double> values) {
    return [random = std::mt19937(seed), values = std::move(values)](double, double, double) mutable {
        return values[std::uniform_int_distribution<std::size_t>(0, values.size() - 1)(random)];
    };
}

/// A number from -1 to 1 at each node: every second face is a saddle.
auto noise(unsigned seed) {
    return [random = std::mt19937(seed)](double, double, double) mutable {
        return std::uniform_real_distribution<double>(-1, 1)(random);
    };
}

double dentedBall(double x, double y, double z) {
    return std::sqrt(x * x + y * y + z * z) + 0.05 * std::sin(6 * x) * std::sin(6 * y) * std::sin(6 * z);
}

TEST(IsoSurface, IsThePlainOneOnSmoothAndOnNoisyFields) {
    int triangles = 0;
    constexpr int sizes[][3] = {{1, 1, 1},  {1, 5, 3},  {30, 4, 2},  {31, 3, 5},  {32, 5, 4}, {63, 3, 3},
                                {64, 3, 3}, {65, 2, 7}, {100, 6, 5}, {7, 100, 4}, {3, 8, 100}};
    for (const auto& [i, j, k] : sizes) {
        const std::string name = std::to_string(i) + "x" + std::to_string(j) + "x" + std::to_string(k);
        for (const double level : {0.0, 0.3, -0.9})
            triangles += expectSameAsPlain(Volume(i, j, k, 1).fill(noise(7)), level, name);
        triangles += expectSameAsPlain(Volume(i, j, k).fill(dentedBall), 0.85, name);
    }
    EXPECT_GT(triangles, 10000);
}

TEST(IsoSurface, IsThePlainOneWhereValuesMeetTheLevelOrItsNegative) {
    int triangles = 0;
    for (unsigned seed = 0; seed < 200; ++seed) {
        const std::string name = std::to_string(seed);
        triangles += expectSameAsPlain(Volume(5, 4, 6).fill(anyOf(seed, {-1, -0.5, 0.5, 0.5, 1.25})), 0.5, name);
        triangles += expectSameAsPlain(Volume(4, 6, 5).fill(anyOf(seed, {-1.5, -0.5, 0, 0.75})), -0.5, name);
        triangles += expectSameAsPlain(Volume(3, 3, 3).fill(anyOf(seed, {1, 1 + 1e-12, 1 + 1e-7})), 1 + 1e-9, name);
    }
    EXPECT_GT(triangles, 10000);
}

TEST(IsoSurface, IsThePlainOneOnFieldsWithNodesWithoutData) {
    int triangles = 0;
    for (unsigned seed = 0; seed < 50; ++seed) {
        std::vector<double> values{-2, -1.1, -0.4, 0.3, 0.7, 1.6, 2.2, 0.12345, notANumber, infinity, -infinity, 1e39};
        for (int more = 0; more < 4; ++more)
            values.insert(values.end(), values.begin(), values.begin() + 7);
        Volume volume(40, 5, 6);
        volume.fill(anyOf(seed, values));
        triangles += expectSameAsPlain(volume, 0.1, std::to_string(seed));
        volume.X(20, 2, 3) = notANumber;
        volume.Y(7, 1, 0) = 0.12345;
        volume.Z(40, 5, 6) = infinity;
        triangles += expectSameAsPlain(volume, 0.1, std::to_string(seed));
    }
    EXPECT_GT(triangles, 10000);
}

TEST(IsoSurface, IsThePlainOneInAnyUnitOfTheValues) {
    for (const double unit : {1e-40, 1e-30, 1e-22, 1e20, 1e30, 1e37, 3e38}) {
        const auto scaled = [&](double x, double y, double z) { return unit * (dentedBall(x, y, z) - 0.85); };
        const int triangles = expectSameAsPlain(Volume(20, 20, 20).fill(scaled), 0, std::to_string(unit));
        EXPECT_GT(triangles, 1000) << unit;
    }
}

TEST(IsoSurface, IsClosedWhereTheFieldIs) {
    for (unsigned seed = 0; seed < 40; ++seed) {
        auto walled = [inner = noise(seed)](double x, double y, double z) mutable {
            return std::max({std::abs(x), std::abs(y), std::abs(z)}) > 0.99 ? 2 : inner(x, y, z);
        };
        const IsoMesh mesh = surfaceOf(Volume(9, 8, 7).fill(walled), 0.1);
        EXPECT_GT(mesh.triangles.size(), 300U);
        std::map<std::pair<std::uint32_t, std::uint32_t>, int> edges;
        for (const auto& [a, b, c] : mesh.triangles)
            for (const auto& edge : {std::pair(a, b), std::pair(b, c), std::pair(c, a)})
                ++edges[edge];
        for (const auto& [edge, count] : edges)
            ASSERT_TRUE(count == 1 && edges.contains({edge.second, edge.first})) << seed;
    }
}

TEST(IsoSurface, HasNoTrianglesWithoutACrossing) {
    EXPECT_TRUE(surfaceOf(Volume(10, 10, 10), 0).triangles.empty());
    EXPECT_TRUE(surfaceOf(Volume(0, 10, 10), 0).triangles.empty());
    for (const double level : {5.0, -5.0, infinity, -infinity, notANumber, 1e300})
        EXPECT_TRUE(surfaceOf(Volume(10, 10, 10).fill(dentedBall), level).triangles.empty()) << level;
}

TEST(IsoSurface, FailsBeyondItsNodesTheArraysAndTheNumbersItCanHold) {
    constexpr int subscript = static_cast<int>(FailureCode::SubscriptOutOfRange);
    EXPECT_EQ(failureOf(Volume(3, 101, 3), 0), subscript);
    Volume volume(4, 4, 4);
    volume.nz = 5;
    EXPECT_EQ(failureOf(volume, 0), subscript);

    const auto mirrored = [](double, double, double z) { return z < -0.9 ? 3.0 : z < 0 ? 1.0 : z < 0.9 ? -1.0 : -3.0; };
    EXPECT_NE(trianglesOf(surfaceOf(Volume(1, 1, 3).fill(mirrored), 0)).size(), 0U);
    const auto bent = [](double, double, double z) { return z < -0.9 ? -3.0 : z < 0 ? 1.0 : z < 0.9 ? -1.0 : -3.0; };
    EXPECT_EQ(failureOf(Volume(1, 1, 3).fill(bent), 0), static_cast<int>(FailureCode::DivisionByZero));
    const auto huge = [](double, double, double z) { return z < 0 ? -3e38 : 3e38; };
    EXPECT_EQ(failureOf(Volume(1, 1, 1).fill(huge), 0), static_cast<int>(FailureCode::Overflow));
}

TEST(MarchingCubesTables, CrossTheEdgesBetweenUnlikeCornersInOrientedLoops) {
    EXPECT_EQ(TriTable[1], (std::array<std::int16_t, 16>{0, 8, 3, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1}));
    for (std::size_t below = 0; below < 256; ++below) {
        int used = 0;
        std::map<std::pair<int, int>, int> sides;
        for (std::size_t n = 0; n < 3U * triangleCounts[below]; n += 3) {
            for (std::size_t corner = 0; corner < 3; ++corner) {
                const int from = TriTable[below][n + corner];
                used |= 1 << from;
                ++sides[{from, TriTable[below][n + (corner + 1) % 3]}];
            }
        }
        EXPECT_EQ(used, EdgeTable[below]) << below;
        EXPECT_EQ(EdgeTable[below], EdgeTable[255 - below]);
        EXPECT_EQ(std::count(TriTable[below].begin() + 3 * triangleCounts[below], TriTable[below].end(), -1),
                  16 - 3 * triangleCounts[below]);
        for (const auto& [side, count] : sides)
            EXPECT_EQ(count, 1) << below;
    }
}

}  // namespace
}  // namespace tessaplot::geometry
