#include "scene/point.h"

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tessaplot::scene {
namespace {

/// The marker of the given size, at (-1, 4, -2) in the plane of a flat scene.
gl::DisplayList drawn(int symbol, double size, int sceneMode) {
    Cls2 point = Cls2::init(3, 5, 7);
    point.Symbol = static_cast<std::int16_t>(symbol);
    point.Color = base::packColor(255, 51, 0);
    point.size = size;
    gl::DisplayList list;
    point.Draw(list, SceneState{sceneMode, 1, 2, 4});
    return list;
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
    for (const int symbol : {0, 1, 6, 9})
        for (const int mode : {mode3D, mode4D, 6})
            EXPECT_EQ(gl::toText(drawn(symbol, 2, mode)),
                      "glPushMatrix\nglColor3f 1 0.2 0\nglTranslatef 2 3 3\ngluNewQuadric\ngluSphere 0.1 8 8\n"
                      "gluDeleteQuadric\nglPopMatrix\n");
}

TEST(Point, isAFlatSymbolInFlatScenes) {
    // A square of half side 1, a triangle, a diamond and a cross of reach 1.5.
    const std::pair<int, std::vector<std::string>> symbols[] = {
        {3, {"glBegin GL_QUADS", "-2 5", "-2 3", "0 3", "0 5"}},
        {4, {"glBegin GL_TRIANGLES", "-1 5.5", "-2.5 2.5", "0.5 2.5"}},
        {5, {"glBegin GL_QUADS", "-1 5.5", "-2.5 4", "-1 2.5", "0.5 4"}},
        {6, {"glLineWidth 20\nglBegin GL_LINES", "-1 5.5", "-1 2.5", "glEnd\nglBegin GL_LINES", "-2.5 4", "0.5 4"}}};
    for (const auto& [symbol, lines] : symbols) {
        std::string text = "glPushMatrix\nglColor3f 1 0.2 0\n";
        for (const std::string& line : lines)
            text += line[0] == 'g' ? line + "\n" : "glVertex3d " + line + " -2\n";
        for (const int mode : {mode2D, 1, 4})
            EXPECT_EQ(gl::toText(drawn(symbol, 20, mode)), text + "glEnd\nglPopMatrix\n");
    }
    for (const int symbol : {0, 7})
        EXPECT_EQ(gl::toText(drawn(symbol, 20, mode2D)), "glPushMatrix\nglPopMatrix\n");
}

TEST(Point, discClosesByOverlapAndTheRingHasAWhiteMiddle) {
    const std::vector<Vertex> triangles = verticesOf(drawn(1, 20, mode2D));
    ASSERT_EQ(triangles.size(), 60U);
    double turn = 0;
    for (std::size_t i = 0; i < triangles.size(); i += 3) {
        EXPECT_EQ(triangles[i], (Vertex{-1, 4, -2}));
        const auto angle = [](const Vertex& v) { return std::atan2(v[1] - 4, v[0] + 1); };
        EXPECT_NEAR(std::hypot(triangles[i + 1][0] + 1, triangles[i + 1][1] - 4), 1, 1e-12);
        turn += std::remainder(angle(triangles[i + 2]) - angle(triangles[i + 1]), 2 * 3.14159265358979);
    }
    EXPECT_NEAR(turn, 6.2832, 1e-9);

    const gl::DisplayList ring = drawn(2, 20, mode2D);
    const std::string text = gl::toText(ring);
    EXPECT_TRUE(
        text.starts_with("glPushMatrix\nglColor3f 1 0.2 0\nglLineWidth 20\nglBegin GL_LINES\nglVertex3d 0 4 -2\n"));
    EXPECT_NE(text.find("glEnd\nglColor3f 1 1 1\nglBegin GL_TRIANGLES\n"), std::string::npos);
    ASSERT_EQ(verticesOf(ring).size(), 40U + 60U);
    EXPECT_DOUBLE_EQ(verticesOf(ring)[41][0], -1 + 0.8);
}

}  // namespace
}  // namespace tessaplot::scene
