#include "scene/trackball.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "base/failure.h"

namespace tessaplot::scene {
namespace {

constexpr double truePi = 3.14159265358979323846;

/// The point as OpenGL turns it with the matrix: column by column.
Vector3 turned(const Matrix16& m, const Vector3& p) {
    Vector3 result{};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            result[row] += static_cast<double>(m[column * 4 + row]) * p[column];
    return result;
}

void expectNear(const Vector3& actual, const Vector3& expected, double tolerance = 1e-6) {
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(actual[i], expected[i], tolerance) << "entry " << i;
}

struct Random {
    double number() { return std::uniform_real_distribution<double>(-1, 1)(engine); }
    Vector3 vector() { return {number(), number(), number()}; }

    std::mt19937 engine{7};
};

TEST(Trackball, addingQuaternionsMultipliesTheirMatrices) {
    Random random;
    for (int n = 0; n < 50; ++n) {
        const Quaternion q1 = AxisToQuat(random.vector(), 3 * random.number());
        const Quaternion q2 = AxisToQuat(random.vector(), 3 * random.number());
        const Vector3 p = random.vector();
        expectNear(turned(BuildRotMatrix(AddQuats(q1, q2)), p),
                   turned(BuildRotMatrix(q1), turned(BuildRotMatrix(q2), p)), 2e-6);
    }
    EXPECT_EQ(NormalizeQuat({0, 0, 0, 0}), (Quaternion{0, 0, 0, 0}));
    EXPECT_EQ(NormalizeQuat({0, 3, 0, 4}), (Quaternion{0, 0.6, 0, 0.8}));
}

TEST(Trackball, standardAnglesShowTheSceneAsTheirNamesSay) {
    const Vector3 right{1, 0, 0};
    const Vector3 up{0, 1, 0};
    const Vector3 front{0, 0, 1};

    const Matrix16 iso = BuildRotMatrix(quatFromAngles(0, -30, 45));
    for (const Vector3& axis : {right, up, front})
        EXPECT_GT(turned(iso, axis)[2], 0.1) << "every axis comes towards the viewer";
    EXPECT_NEAR(turned(iso, up)[2], 0.5, 1e-4) << "from above";
    EXPECT_NEAR(turned(iso, right)[0], -turned(iso, front)[0], 1e-4) << "both ground axes lie alike";
    EXPECT_GT(turned(iso, right)[0], 0);

    expectNear(turned(BuildRotMatrix(quatFromAngles(0, -90, 0)), up), front, 1e-5);
    expectNear(turned(BuildRotMatrix(quatFromAngles(0, 0, 90)), right), front, 1e-5);
    expectNear(turned(BuildRotMatrix(quatFromAngles(90, 0, 0)), up), right, 1e-5);
    // The yaw comes first, to the front, then the pitch, down, then the roll.
    expectNear(turned(BuildRotMatrix(quatFromAngles(90, -90, 90)), right), {-1, 0, 0}, 1e-5);
    EXPECT_DOUBLE_EQ(quatFromAngles(0, 0, 45)[1], std::sin(45 * (3.1416 / 180) / 2)) << "the short value of pi";
}

TEST(Trackball, freeDragCarriesThePointUnderThePointerAlong) {
    Random random;
    for (int n = 0; n < 50; ++n) {
        const auto onTheSphere = [&] {
            const Vector3 p = VecScale(random.vector(), 0.24);
            return Vector3{p[0], p[1], ProjectToSphere(TrackballRadius, p[0], p[1])};
        };
        const Vector3 from = onTheSphere();
        const Vector3 to = onTheSphere();
        const Quaternion q = Trackball(RotateMode::Free, from[0], from[1], to[0], to[1]);
        expectNear(turned(BuildRotMatrix(q), from), to);
    }
}

TEST(Trackball, constrainedDragsTurnAboutTheUsersAxes) {
    const double s = 0.1;
    const double c = std::sqrt(1 - s * s);
    // Both ends are on the flat rim, so that the length of a drag is its length over the surface.
    const struct {
        RotateMode mode;
        double x1, y1, x2, y2;
        Quaternion turn;
    } drags[] = {
        {RotateMode::AboutX, 0.7, 0.7, 0.8, 0.7, {0, 0, s, c}},
        {RotateMode::AboutX, 0.8, 0.7, 0.7, 0.7, {0, 0, -s, c}},
        {RotateMode::AboutX, 0.7, 0.7, 0.7, 0.8, {0, 0, -s, c}},
        {RotateMode::AboutY, 0.7, 0.7, 0.7, 0.8, {s, 0, 0, c}},
        {RotateMode::AboutY, 0.7, 0.7, 0.8, 0.7, {-s, 0, 0, c}},
        {RotateMode::AboutZ, 0.7, 0.7, 0.8, 0.7, {0, -s, 0, c}},
        {RotateMode::AboutZ, 0.8, 0.7, 0.7, 0.7, {0, s, 0, c}},
        {RotateMode::AboutZ, 0.7, 0.7, 0.7, 0.8, {0, -s, 0, c}},
        {RotateMode::AboutZ, -1, 0, 1, 0, {0, -1, 0, 0}},
    };
    for (const auto& drag : drags) {
        const Quaternion turn = Trackball(drag.mode, drag.x1, drag.y1, drag.x2, drag.y2);
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_NEAR(turn[i], drag.turn[i], 1e-9) << "drag " << &drag - drags << ", entry " << i;
    }
    EXPECT_EQ(Trackball(RotateMode::Free, 0.3, 0.2, 0.3, 0.2), (Quaternion{0, 0, 0, 1}));
    EXPECT_THROW(Trackball(RotateMode::None, 0, 0, 0.1, 0), base::Failure);
}

TEST(Trackball, helpersKeepTheirOddEnds) {
    EXPECT_NEAR(ProjectToSphere(0.5, 1, 0), 1.25e-7, 1e-9);
    EXPECT_NEAR(ProjectToSphere(0.5, 0.3535, 0), std::sqrt(0.125), 1e-3);
    EXPECT_LT(ProjectToSphere(0.5, 0.35355, 0), 1e-6) << "the sphere ends before its rim";

    EXPECT_NEAR(ArcSin(0.5), truePi / 6, 1e-12);
    EXPECT_EQ(ArcSin(1), 3.14159265358979 / 2);
    EXPECT_THROW(ArcSin(-1), base::Failure);

    double zero = 0;
    // Not an angle above a right angle for a negative cosine.
    for (auto [cosine, angle] : {std::pair{0.5, truePi / 3}, {-0.5, -truePi / 3}, {1.0, 0.0}})
        EXPECT_NEAR(ArcCos(cosine), angle, 1e-12) << cosine;
    EXPECT_NEAR(ArcCos(zero), truePi / 2, 1e-6);
    EXPECT_EQ(zero, 1e-7);
    EXPECT_THROW(VecNormal({0, 0, 0}), base::Failure);
}

}  // namespace
}  // namespace tessaplot::scene
