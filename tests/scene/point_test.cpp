#include "scene/point.h"

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tessaplot::scene {
namespace {

Cls2 marker(int symbol, double size) {
    Cls2 point = Cls2::init(3, 5, 7);
    point.Symbol = static_cast<std::int16_t>(symbol);
    point.Color = base::packColor(255, 51, 0);
    point.size = size;
    return point;
}

gl::DisplayList drawn(const Cls2& point, int sceneMode) {
    gl::DisplayList list;
    point.Draw(list, SceneState{sceneMode, 1, 2, 4});
    return list;
}

std::string drawnText(const Cls2& point, int sceneMode) {
    return gl::toText(drawn(point, sceneMode));
}

using Vertex = std::array<double, 3>;

std::vector<Vertex> verticesOf(const gl::DisplayList& list) {
    std::vector<Vertex> vertices;
    list.forEach([&](const gl::Operation& operation) {
        if (operation.op == gl::Op::Vertex3d)
            vertices.push_back({operation.numbers[0], operation.numbers[1], operation.numbers[2]});
    });
    return vertices;
}

TEST(Point, isASphereOutsideFlatScenesWhateverItsSymbol) {
    const std::string sphere =
        "glPushMatrix\nglColor3f 1 0.2 0\nglTranslatef 2 3 3\ngluNewQuadric\ngluSphere 0.1 8 8\ngluDeleteQuadric\n"
        "glPopMatrix\n";
    for (const int symbol : {0, 1, 6, 9})
        for (const int mode : {mode3D, mode4D, 6})
            EXPECT_EQ(drawnText(marker(symbol, 2), mode), sphere);
    EXPECT_EQ(Cls2::init(0, 0, 0).size, 0.15);
}

TEST(Point, isAFlatSymbolInFlatScenes) {
    const auto wrapped = [](const std::string& body) {
        return "glPushMatrix\nglColor3f 1 0.2 0\n" + body + "glEnd\nglPopMatrix\n";
    };
    const double size = 20;  // square of half side 1, triangle and diamond of reach 1.5, round the point (-1, 4)
    EXPECT_EQ(drawnText(marker(3, size), mode2D), wrapped("glBegin GL_QUADS\nglVertex3d -2 5 -2\nglVertex3d -2 3 -2\n"
                                                          "glVertex3d 0 3 -2\nglVertex3d 0 5 -2\n"));
    EXPECT_EQ(drawnText(marker(4, size), 1), wrapped("glBegin GL_TRIANGLES\nglVertex3d -1 5.5 -2\n"
                                                     "glVertex3d -2.5 2.5 -2\nglVertex3d 0.5 2.5 -2\n"));
    EXPECT_EQ(drawnText(marker(5, size), 4), wrapped("glBegin GL_QUADS\nglVertex3d -1 5.5 -2\nglVertex3d -2.5 4 -2\n"
                                                     "glVertex3d -1 2.5 -2\nglVertex3d 0.5 4 -2\n"));
    EXPECT_EQ(drawnText(marker(6, size), mode2D),
              wrapped("glLineWidth 20\nglBegin GL_LINES\nglVertex3d -1 5.5 -2\nglVertex3d -1 2.5 -2\nglEnd\n"
                      "glBegin GL_LINES\nglVertex3d -2.5 4 -2\nglVertex3d 0.5 4 -2\n"));
    Cls2 shown = marker(0, size);
    shown.Show = true;
    EXPECT_EQ(drawnText(shown, mode2D), "glPushMatrix\nglPopMatrix\n");
}

TEST(Point, discClosesByOverlapAndTheRingHasAWhiteMiddle) {
    const gl::DisplayList disc = drawn(marker(1, 20), mode2D);
    const auto triangles = verticesOf(disc);
    ASSERT_EQ(triangles.size(), 60U);
    double turn = 0;
    for (std::size_t i = 0; i < triangles.size(); i += 3) {
        EXPECT_EQ(triangles[i], (Vertex{-1, 4, -2}));
        const auto angle = [](const Vertex& v) { return std::atan2(v[1] - 4, v[0] + 1); };
        EXPECT_NEAR(std::hypot(triangles[i + 1][0] + 1, triangles[i + 1][1] - 4), 1, 1e-12);
        turn += std::remainder(angle(triangles[i + 2]) - angle(triangles[i + 1]), 2 * 3.14159265358979);
    }
    EXPECT_NEAR(turn, 6.2832, 1e-9);

    const std::string ring = drawnText(marker(2, 20), mode2D);
    EXPECT_EQ(ring.find("glPushMatrix\nglColor3f 1 0.2 0\nglLineWidth 20\nglBegin GL_LINES\nglVertex3d 0 4 -2\n"), 0U);
    EXPECT_NE(ring.find("glEnd\nglColor3f 1 1 1\nglBegin GL_TRIANGLES\n"), std::string::npos);
    const auto ringVertices = verticesOf(drawn(marker(2, 20), mode2D));
    ASSERT_EQ(ringVertices.size(), 40U + 60U);
    EXPECT_DOUBLE_EQ(ringVertices[41][0], -1 + 0.8);
}

}  // namespace
}  // namespace tessaplot::scene
