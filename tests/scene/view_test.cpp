#include "scene/view.h"

#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "base/failure.h"
#include "scene/trackball.h"

namespace tessaplot::scene {
namespace {

void expectAt(const Cls2& point, const Vector3& expected) {
    const Vector3 actual{point.x, point.y, point.z};
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(actual[i], expected[i], 1e-9) << "entry " << i;
}

Cls1 noBox() {
    ADD_FAILURE() << "only perspective asks for the box";
    return {};
}

Cls4 viewOf(int width, int height, double volumeHeight) {
    Cls4 view;
    view.SetScreen(width, height);
    view.SetViewRect(0, volumeHeight);
    return view;
}

std::string projectionText(Cls4& view, double jitterX, double jitterY, const std::function<Cls1()>& box = noBox) {
    gl::DisplayList list;
    view.Projection(list, jitterX, jitterY, 0, 0, 1.0, box);
    return gl::toText(list);
}

TEST(View, fitsTheLargestExtentInTheShapeOfTheSurface) {
    Cls4 view = viewOf(400, 200, 40);
    view.ZoomAll(1, 2, 3, 5, 14, 10, mode3D);
    EXPECT_TRUE(view.VolHeight == 12 && view.VolWidth == 24);
    expectAt(view.RefPos, {3, 8, 6.5});
    expectAt(view.EyePos, {3, 8, 1006.5});

    view.SetEye(3, 500, 1006.5);
    view.ZoomAll(1, 2, 3, 5, 14, 10, mode2D);
    EXPECT_EQ(view.VolHeight, 7) << "the second extent plays no part in a flat scene";
    expectAt(view.RefPos, {3, 0, 6.5});
    expectAt(view.EyePos, {3, 0, 1006.5});
}

TEST(View, takesAnyScreenAndOnlyPositiveZooms) {
    int height = 0;
    Cls4 view;
    view.SetScreen(300, height);
    EXPECT_EQ(height, 1);
    EXPECT_EQ(view.viewportHeight(), 0) << "the viewport takes the size as it came";
    EXPECT_EQ(view.VolWidth, 40) << "a new surface leaves the volume";

    view.SetViewRect(7, 2);
    for (const double factor : {0.5, 0.0, -1.0})
        view.Zoom(factor);
    EXPECT_EQ(view.VolWidth, 300);
    EXPECT_EQ(view.VolHeight, 1);
}

TEST(View, movesThePictureByFractionsOfTheVolume) {
    Cls4 view = viewOf(400, 200, 10);
    view.MoveView(1, -0.5);
    expectAt(view.EyePos, {-20, 5, 1000});
    expectAt(view.RefPos, {-20, 5, 0});
    view.SetEye(-20, 5, 0);
    EXPECT_THROW(view.MoveView(0.1, 0), base::Failure);
}

TEST(View, placesTheEyeForEachStandardDirection) {
    const double c = 1 / std::sqrt(3.0);
    const Vector3 eyes[] = {{0, 0, 1},  {0, 0, -1},  {0, 1, 0},  {0, -1, 0}, {1, 0, 0},
                            {-1, 0, 0}, {-c, c, -c}, {c, -c, c}, {c, c, c},  {-c, c, c}};
    for (int type = 1; type <= 10; ++type) {
        SCOPED_TRACE(type);
        Cls4 view;
        view.SetRef(1, 2, 3);
        view.SetEye(1, 2, 203);
        view.SetViewType(type);
        expectAt(view.EyePos, VecAdd({1, 2, 3}, VecScale(eyes[type - 1], 200)));
        EXPECT_NEAR(VecDot(eyes[type - 1], view.VecUp), 0, 1e-12) << "up is square to the direction of view";
        EXPECT_NEAR(VecLength(view.VecUp), type <= 6 ? 1 : std::sqrt(2.0 / 3), 1e-12);
        EXPECT_GT(view.VecUp[type == 3 || type == 4 ? 2 : 1], 0);
    }
    for (const auto& [distance, repaired] : {std::pair{0, 50}, {30000, 30000}, {30001, 10000}}) {
        Cls4 view;
        view.SetEye(0, 0, distance);
        for (const int type : {0, 11})
            view.SetViewType(type);
        expectAt(view.EyePos, {0, 0, static_cast<double>(distance)});
        view.SetViewType(1);
        expectAt(view.EyePos, {0, 0, static_cast<double>(repaired)});
    }
}

TEST(View, turnsTheReferenceRoundTheEye) {
    const double c = 1 / std::sqrt(3.0);
    Cls4 view;
    view.SetEye(10, 0, 0);
    view.SetRef(10, 0, -5);
    view.RotateView(std::acos(-1.0) / 2, 0, 1, 0);
    expectAt(view.RefPos, {5, 0, 0});
    view.RotateView(2 * std::acos(-1.0) / 3, c, c, c);
    expectAt(view.RefPos, {10, -5, 0});
    expectAt(view.EyePos, {10, 0, 0});
}

TEST(View, projectsWithBothJittersOverTheViewportWidth) {
    Cls4 view = viewOf(400, 200, 10);
    view.VecUp = {0, 0.5, 0};
    EXPECT_EQ(projectionText(view, 0.25, 0.5),
              "glMatrixMode GL_PROJECTION\nglLoadIdentity\nglRenderMode GL_RENDER\n"
              "glOrtho -10.0125 9.9875 -5.0125 4.9875 0.001 2000\n"
              "glMatrixMode GL_MODELVIEW\nglLoadIdentity\ngluLookAt 0 0 1000 0 0 0 0 0.5 0\n");
    EXPECT_EQ(view.Volleft, -10);

    Cls4 wide = viewOf(16777217, 1, 1);
    wide.VolWidth = 16777216;
    EXPECT_EQ(wide.volumeFor(-1, 0, noBox).left, 1 - 8388608) << "the divisor is a 32-bit float";
    EXPECT_EQ(viewOf(0, 200, 10).volumeFor(0.25, 0.25, noBox).top, 6) << "without a width both shifts are 1";
    Cls4 unknown;
    unknown.ProjectType = 3;
    EXPECT_EQ(projectionText(unknown, 0, 0).find("glOrtho"), std::string::npos);
}

TEST(View, perspectiveTakesItsNearPlaneFromTheBoxAndLeavesAnotherBehind) {
    Cls4 view = viewOf(400, 200, 10);
    view.ProjectType = 2;
    Cls1 box;
    box.MinX = -5;
    box.MaxY = 12;
    const std::string text = projectionText(view, 4, 0, [&] { return box; });
    EXPECT_NE(text.find("glFrustum -10.2 9.8 -5 5 988 2000\n"), std::string::npos) << text;
    view.ProjectType = 1;
    EXPECT_EQ(view.volumeFor(0, 0, noBox).nearPlane, 0.01);
}

}  // namespace
}  // namespace tessaplot::scene
