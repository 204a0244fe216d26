#include "gl/compiled_list.h"

#include <gmock/gmock.h>

namespace tessaplot::gl {
namespace {

using testing::SizeIs;

constexpr int cells = 12;

/// Each cell in a block of its own, as lines or as a lit quad.
DisplayList grid(bool asQuads) {
    DisplayList list;
    list.glLineWidth(1);
    for (int i = 0; i < cells; ++i)
        for (int j = 0; j < cells; ++j) {
            list.glBegin(asQuads ? GL_QUADS : GL_LINES);
            list.glColor3d(0.2, 0.4, 0.6);
            const auto vertex = [&](int u, int v) {
                if (asQuads) list.glNormal3d(u, v, 1);
                list.glVertex3d(u, u * v * 0.1, v);
            };
            vertex(i, j);
            vertex(i, j + 1);
            vertex(asQuads ? i + 1 : i, asQuads ? j + 1 : j);
            vertex(i + 1, j);
            list.glEnd();
            list.glLineWidth(1);
        }
    return list;
}

TEST(CompileList, BlocksOfAGridBecomeOneBatchOfSharedVertices) {
    for (const bool asQuads : {false, true}) {
        const CompiledList compiled = compileList(grid(asQuads));
        ASSERT_THAT(compiled.batches, SizeIs(1));
        EXPECT_EQ(compiled.batches[0].indexCount, 4U * cells * cells);
        // The one colour is no part of the vertices. Of lines the far corner of the grid is none.
        const unsigned attributes = asQuads ? unsigned{normalAttribute} : 0;
        EXPECT_EQ(compiled.batches[0].attributes, attributes);
        const std::size_t nodes = (cells + 1) * (cells + 1) - (asQuads ? 0 : 1);
        EXPECT_THAT(compiled.vertices[attributes], SizeIs(nodes * numbersOfVertex(attributes)));
        const std::string normal = asQuads ? "glNormal3d 12 11 1\n" : "";
        EXPECT_EQ(toText(compiled.calls), "glLineWidth 1\nglColor4f 0.2 0.4 0.6 1\n" + normal);
    }
}

TEST(CompileList, ValuesThatArraysMayHaveChangedAreSetAgain) {
    DisplayList list;
    list.glColor3f(1, 0, 0);
    list.glEnable(GL_LIGHTING);
    list.glBegin(GL_TRIANGLES);
    for (const float green : {0.5F, 1.0F, 0.0F}) {
        list.glColor3f(1, green, 0);
        list.glVertex3d(green, 0, green * green);
    }
    list.glEnd();
    list.glDisable(GL_LIGHTING);
    EXPECT_EQ(toText(compileList(list).calls),
              "glColor4f 1 0 0 1\nglEnable GL_LIGHTING\nglColor4f 1 0 0 1\nglDisable GL_LIGHTING\n");
}

TEST(CompileList, MarkersAndArrowsArePlacedWithoutMatrixCalls) {
    DisplayList list;
    for (int i = 0; i < 100; ++i) {
        list.glPushMatrix();
        list.glColor3f(1, 0, 0);
        list.glTranslatef(static_cast<float>(i), 2, 3);
        list.glRotatef(90, 0, 0, 1);
        list.gluNewQuadric();
        list.gluCylinder(0.5, 0, 2, 6, 6);
        list.gluDeleteQuadric();
        list.glPopMatrix();
    }
    const CompiledList compiled = compileList(list);
    ASSERT_THAT(compiled.batches, SizeIs(1));
    EXPECT_EQ(compiled.batches[0].indexCount, 100U * 6 * 6 * 4);
    EXPECT_THAT(compiled.batches[0].bounds.low, testing::ElementsAre(-0.5F, testing::FloatNear(1.567F, 0.001F), 3));
    EXPECT_THAT(compiled.batches[0].bounds.high, testing::ElementsAre(99.5F, testing::FloatNear(2.433F, 0.001F), 5));
    // GLU leaves the normal of the seam, which no rotation has touched: 0, 4 and 1 over the root of 17.
    EXPECT_THAT(toText(compiled.calls), testing::MatchesRegex("glColor4f 1 0 0 1\nglNormal3d 0 0.97014.* 0.24253.*\n"));
}

TEST(CompileList, MoreVerticesThanABatchTakesBecomeSeveral) {
    DisplayList list;
    list.glBegin(GL_LINE_STRIP);
    constexpr int vertices = 150000;
    for (int i = 0; i < vertices; ++i)
        list.glVertex3d(i, 0, 0);
    list.glEnd();
    const CompiledList compiled = compileList(list);
    EXPECT_THAT(compiled.batches, SizeIs(3));
    EXPECT_THAT(compiled.indices, SizeIs(2 * (vertices - 1)));
    const Batch& last = compiled.batches.back();
    const std::size_t vertex = last.firstVertex + compiled.indices.back();
    EXPECT_EQ(compiled.vertices[0].at(3 * vertex), vertices - 1);
}

}  // namespace
}  // namespace tessaplot::gl
