#include <cmath>

#include "base/failure.h"
#include "graphs/emitters.h"
#include "small_scene.h"

namespace tessaplot::graphs {
namespace {

/// What every graph with material 0 begins with.
const std::string preparation =
    "glEnable GL_COLOR_MATERIAL\n"
    "glColorMaterial GL_FRONT_AND_BACK GL_DIFFUSE\n"
    "glMaterialfv GL_FRONT_AND_BACK GL_DIFFUSE 0 0 0 0\n"
    "glMaterialfv GL_FRONT_AND_BACK GL_SPECULAR 0 0 0 0\n"
    "glMaterialfv GL_FRONT_AND_BACK GL_SHININESS 0\n"
    "glMaterialfv GL_FRONT_AND_BACK GL_EMISSION 0 0 0 0\n"
    "glMaterialfv GL_FRONT_AND_BACK GL_AMBIENT 0 0 0 0\n";

std::string sphereText(const std::string& color, const std::string& position, const std::string& radius) {
    return "glPushMatrix\nglColor3f " + color + "\nglTranslatef " + position + "\ngluNewQuadric\ngluSphere " + radius +
           " 8 8\ngluDeleteQuadric\nglPopMatrix\n";
}

Cls9 pointGraph() {
    Cls9 point = graphOf(graph_type::point, 1, 1);
    point.PointX = 8;
    point.PointY = 16;
    point.PointZ = 6;
    point.PointColor = 255;
    point.PointSize = 2;
    return point;
}

TEST(GraphDraw, preparesMaterialAndStepsForEveryKind) {
    SmallScene scene;
    scene.fillSurface(3, 3);
    Cls9 nodes = graphOf(graph_type::nodesOnly, 0, 2);
    EXPECT_EQ(scene.drawn(nodes), preparation);
    EXPECT_EQ(nodes.StepU, 1);
    EXPECT_EQ(nodes.StepV, 2);

    Cls9 neon = graphOf(99, 0, 0);
    neon.Material = 5;
    neon.ColorName = "marine";
    const std::string text = scene.drawn(neon);
    EXPECT_NE(text.find("glColorMaterial GL_FRONT_AND_BACK GL_EMISSION\n"), std::string::npos);
    EXPECT_NE(text.find("GL_EMISSION 0.0188407 0.940276 1 0\n"), std::string::npos);
    EXPECT_EQ(neon.ColorNum, 3);
    EXPECT_EQ(neon.ColorName, "marine");

    Cls9 custom = graphOf(99, 1, 1);
    custom.ColorName = "@grey";
    scene.drawn(custom);
    EXPECT_EQ(custom.ColorNum, 6) << "here a name with @ is a custom ramp";
}

TEST(GraphDraw, surfacesTakeBackTheRoomForOverlays) {
    SmallScene scene;
    scene.fillSurface(3, 3);
    for (const auto& [type, lowest] : {std::pair{6, 0.0}, {14, -3.0}}) {
        Cls9 graph = graphOf(type, 2, 2);
        graph.ShowContour = true;
        graph.ContourLevel = graph.ContourLevels = 1;
        scene.drawn(graph);
        EXPECT_EQ(graph.MinZ, lowest) << type;
    }
}

TEST(GraphDraw, failsForADataSetSmallerThanItsSteps) {
    SmallScene empty;
    SmallScene scene;
    scene.fillSurface(3, 3);
    for (int type = 13; type <= 19; ++type) {
        const auto graph = [type](int stepU, int stepV) {
            Cls9 result = graphOf(type, stepU, stepV);
            result.ContourLevels = result.Contour3Levels = 1;
            return result;
        };
        for (Cls9 tooLarge : {graph(1000000, 1000000), graph(0, 0)})
            EXPECT_THROW(empty.drawn(tooLarge), base::Failure) << type;
        for (Cls9 good : {graph(0, 0), graph(2, 2)})
            EXPECT_NO_THROW(scene.drawn(good)) << type;
        Cls9 tooMany = graph(3, 4);
        EXPECT_THROW(scene.drawn(tooMany), base::Failure) << type;
    }
    Cls9 negative = graphOf(graph_type::point, -1, 1);
    EXPECT_THROW(scene.drawn(negative), base::Failure);
}

TEST(PointGraph, isADiscInAFlatSceneAndASphereElsewhere) {
    SmallScene scene;
    Cls9 point = pointGraph();
    EXPECT_EQ(scene.drawn(point), preparation + sphereText("1 0 0", "2 2 3", "0.1"));

    scene.scene = {scene::mode2D, 1, 5, 2};
    const std::string flat = scene.drawn(point);
    EXPECT_EQ(flat.find(preparation +
                        "glDisable GL_LIGHTING\nglEnable GL_LINE_SMOOTH\nglEnable GL_BLEND\n"
                        "glBlendFunc GL_SRC_ALPHA GL_ONE_MINUS_SRC_ALPHA\nglHint GL_LINE_SMOOTH_HINT GL_NICEST\n"
                        "glPushMatrix\nglColor3f 1 0 0\nglBegin GL_TRIANGLES\nglVertex3d 6 0.5 -5\n"),
              0U)
        << flat;
    EXPECT_TRUE(
        flat.ends_with("glEnd\nglPopMatrix\nglEnable GL_LIGHTING\nglDisable GL_LINE_SMOOTH\nglDisable GL_BLEND\n"));
}

TEST(PointGraph, unrollsAnglesForTheIrregularKindsOnly) {
    SmallScene scene;
    scene.scaling.ScaleX = scene.scaling.ScaleY = scene.scaling.ScaleZ = 1;
    Cls9 point = pointGraph();
    point.PointX = 30;
    point.PointY = 60;
    point.PointZ = 4;
    const double a = 30 * 3.1416 / 180;
    const double b = 60 * 3.1416 / 180;
    const auto expectAt = [&](data::DataKind kind, double x, double y, double z) {
        scene.kind = kind;
        gl::DisplayList expected;
        expected.glTranslatef(static_cast<float>(x), static_cast<float>(y), static_cast<float>(z));
        EXPECT_NE(scene.drawn(point).find(gl::toText(expected)), std::string::npos);
    };
    using data::DataKind;
    for (const DataKind kind : {DataKind::RegularCylindrical, DataKind::RegularSpherical, DataKind::IrregularVolume})
        expectAt(kind, 30, 60, 4);
    expectAt(DataKind::IrregularCylindrical, std::sin(a) * 60, std::cos(a) * 60, 4);
    expectAt(DataKind::IrregularSpherical, std::cos(b) * 4 * std::sin(a), std::cos(b) * 4 * std::cos(a),
             std::sin(b) * 4);
}

TEST(Models, markEachNodeRowByRowAndDrawEachCellForItselfThenTheLastEdges) {
    SmallScene scene;
    scene.fillSurface(9, 9);
    scene.scene = {scene::mode4D, 1, 2, 3};
    Cls9 vertices = graphOf(graph_type::vertexModel, 6, 4);
    vertices.VertSize = 3;
    vertices.VertColor = base::packColor(0, 255, 0);
    scene.expectAsPlain(vertices, [](gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
        for (int i = 0; i <= graph.StepU; ++i)
            for (int j = 0; j <= graph.StepV; ++j) {
                scene::Cls2 mark = scene::Cls2::init(10 * j, 100 * i + j, i);
                mark.Color = graph.VertColor;
                mark.size = 3;
                mark.Draw(list, context.scene);
            }
    });
    Cls9 grid = graphOf(graph_type::gridModel, 6, 4);
    grid.GridWidth = 2;
    grid.GridColor = base::packColor(0, 0, 51);
    scene.expectAsPlain(grid, [](gl::DisplayList& list, Cls9& graph, const GraphContext&) {
        const auto lines = [&](std::initializer_list<std::array<int, 2>> nodes) {
            list.glBegin(GL_LINES);
            list.glColor3d(0, 0, 0.2);
            for (const auto& [i, j] : nodes)
                list.glVertex3d(10 * j - 1, 100 * i + j - 2, i - 3);
            list.glEnd();
        };
        list.glLineWidth(2);
        for (int i = 0; i < graph.StepU; ++i)
            for (int j = 0; j < graph.StepV; ++j)
                lines({{i, j}, {i, j + 1}, {i, j}, {i + 1, j}});
        for (int j = 0; j < graph.StepV; ++j)
            lines({{graph.StepU, j}, {graph.StepU, j + 1}});
        for (int i = 0; i < graph.StepU; ++i)
            lines({{i, graph.StepV}, {i + 1, graph.StepV}});
    });
}

TEST(TableGraph, joinsItsFirstRowAndRingsItsNodes) {
    SmallScene scene;
    scene.scene = {scene::mode3D, 1, 2, 3};
    Cls9 graph = graphOf(graph_type::table, 1, 1);
    graph.LineColor = base::packColor(0, 0, 255);
    graph.VertTab3D(0, 0) = scene::Cls2::init(8, 8, 8);
    graph.VertTab3D(0, 1) = scene::Cls2::init(4, 12, 16);
    EXPECT_EQ(scene.drawn(graph),
              preparation + "glColor3d 0 0 1\nglBegin GL_LINES\nglVertex3d 1 1 -1\nglVertex3d -1 2 0\nglEnd\n" +
                  sphereText("0 0 0", "7 6 5", "0.1") + sphereText("0 0 0", "3 10 13", "0.1") +
                  "glDisable GL_LINE_SMOOTH\nglDisable GL_BLEND\nglEnable GL_LIGHTING\n");
    EXPECT_EQ(graph.VertTab3D(0, 1).Symbol, 2);
    EXPECT_EQ(graph.VertTab3D(0, 1).y, 12);

    graph.StepV = 2000000000;
    EXPECT_THROW(scene.drawn(graph), base::Failure);
}

/// Where OpenGL puts the tip of the cone that the list draws.
Node tipOf(const gl::DisplayList& list) {
    std::vector<double> shift;
    std::vector<double> turn;
    double height = 0;
    list.forEach([&](const gl::Operation& operation) {
        if (operation.op == gl::Op::Translatef) shift.assign(operation.numbers.begin(), operation.numbers.end());
        if (operation.op == gl::Op::Rotatef) turn.assign(operation.numbers.begin(), operation.numbers.end());
        if (operation.op == gl::Op::Cylinder) height = operation.numbers[2];
    });
    const double angle = turn[0] * 3.14159265358979 / 180;
    // The z axis turned about (ax, ay, 0).
    return {shift[0] + height * turn[2] * std::sin(angle), shift[1] - height * turn[1] * std::sin(angle),
            shift[2] + height * std::cos(angle)};
}

TEST(Arrow, reachesFromTheFirstPointToTheSecond) {
    SmallScene scene;
    scene.scene = {scene::mode4D, 0.5, -1, 2};
    std::mt19937 engine(4);
    std::uniform_real_distribution<double> numbers(-5, 5);
    for (int n = 0; n < 100; ++n) {
        const Node from{numbers(engine), numbers(engine), numbers(engine)};
        Node to{numbers(engine), numbers(engine), numbers(engine)};
        // Among them those along an axis and those across it, which leave the rotation little to go by.
        if (n % 2 == 1) to.z = from.z;
        if (n % 3 == 1) to.x = from.x;
        if (n % 5 < 3) to.y = from.y;
        gl::DisplayList list;
        DrawArrow(list, Cls9(), scene.context(), from, to);
        const Node tip = tipOf(list);
        EXPECT_NEAR(tip.x, to.x - 0.5, 1e-3);
        EXPECT_NEAR(tip.y, to.y + 1, 1e-3);
        EXPECT_NEAR(tip.z, to.z - 2, 1e-3);
    }
}

TEST(Arrow, keepsTheEndsOfItsArithmetic) {
    SmallScene scene;
    Cls9 graph;
    graph.Vect4DColor = base::packColor(255, 0, 51);
    const auto arrow = [&](const Node& to) {
        gl::DisplayList list;
        DrawArrow(list, graph, scene.context(), {1, 1, 1}, to);
        return gl::toText(list);
    };
    const auto expected = [](const std::string& rotation, const std::string& cone) {
        return "glColor3f 1 0 0.2\nglPushMatrix\ngluNewQuadric\nglTranslatef 1 1 1\nglRotatef " + rotation +
               "\ngluCylinder " + cone + " 6 6\ngluDeleteQuadric\nglPopMatrix\n";
    };
    EXPECT_EQ(arrow({1, 1, 6}), expected("0 -0 0 0", "1 0 5"));
    EXPECT_EQ(arrow({1, 1, -4}), expected("180 1 0 0", "1 0 5"));
    EXPECT_EQ(arrow({1, 1, 1}), expected("89.99979 -0 0 0", "2e-08 0 1e-07"));
}

}  // namespace
}  // namespace tessaplot::graphs
