#include <cmath>
#include <limits>

#include "base/angle.h"
#include "base/failure.h"
#include "small_scene.h"

namespace tessaplot::graphs {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double oddNumbers[] = {data::missingValue, notANumber, infinite};

/// A field without symmetry on a grid of uneven sides, seen off the centre.
void fillField(SmallScene& scene, int countX, int countY, unsigned seed = 7) {
    scene.fillSurface(countX, countY);
    scene.scene = {scene::mode2D, 1.5, -0.5, 2.25};
    Engine engine(seed);
    std::uniform_real_distribution<double> heights(-4, 4);
    for (int i = 0; i < countX; ++i)
        for (int j = 0; j < countY; ++j) {
            scene.data.Reg3DX(i, j) = 0.5 * i - 1;
            scene.data.Reg3DY(i, j) = 0.75 * j + 3;
            scene.data.Reg3DZ(i, j) = heights(engine);
            scene.data.Reg3DC(i, j) = heights(engine);
        }
}

TEST(FlatPlots, emitWhatThePlainLoopsEmit) {
    for (int round = 0; round < 140 && !testing::Test::HasFailure(); ++round) {
        SCOPED_TRACE(round);
        SmallScene scene;
        fillField(scene, 6, 8, static_cast<unsigned>(round));
        scene.scaling.ScaleV = 2;
        if (round % 4 != 0) scene.data.Reg3DZ(4, 3) = oddNumbers[round % 4 - 1];
        if (round % 10 == 0)
            for (double& z : scene.data.Reg3DZ.values())
                z = 5;
        Cls9 graph = graphOf(graph_type::colorMap, 5, 7);
        graph.FillStyle = round % 7;
        graph.ColorName = std::vector{"", "Earth", "@grey", "mine"}[static_cast<std::size_t>(round % 4)];
        graph.ColorMapcolor1 = 0x336699;
        graph.ColorMapcolor2 = 0xffcc11;
        scene.expectAsPlain(graph, plainColorMap);
        graph.GraphType = graph_type::vector;
        graph.VectorColor = base::packColor(255, 0, 51);
        scene.expectAsPlain(graph, plainVectors);
        graph.GraphType = graph_type::contour;
        graph.ContourLevels = 1.5;
        graph.ConFillType = 3 + round % 2;
        graph.ConColor1 = 0x0000ff;
        graph.ConColor2 = 0xff8000;
        graph.ConWidth = 2;
        for (const int mode : {scene::mode2D, scene::mode3D}) {
            scene.scene.SceneMode = mode;
            scene.expectAsPlain(graph, plainContourPlot);
        }
    }
}

TEST(ColorMap, ofKindsWithoutNodesLiesAtTheOrigin) {
    SmallScene scene;
    fillField(scene, 2, 2);
    for (const int type : {2, 12, 21, 22}) {
        Cls9 graph = graphOf(type, 1, 1);
        const std::string corner = "glNormal3d 0 0 0\nglColor3d 0 0 0\nglVertex3d -2.25 -1.5 99999990000.5\n";
        EXPECT_EQ(scene.body(graph), "glDisable GL_LIGHTING\nglBegin GL_QUADS\n" + corner + corner + corner + corner +
                                         "glEnd\nglEnable GL_LIGHTING\n");
        graph.StepU = 2000000000;
        EXPECT_THROW(scene.drawn(graph), base::Failure);
    }
}

TEST(ContourPlot, takesItsColoursFromTheGraphsOwnStops) {
    SmallScene scene;
    scene.fillSurface(4, 2);
    Cls9 graph = graphOf(graph_type::contour, 3, 1);
    graph.ContourLevels = 100;
    graph.ConFillType = 5;
    graph.ColorName = "mine";
    graph.ColorNum = 2;
    graph.ColorPos(1) = 100;
    for (int stop = 0; stop < 2; ++stop) {
        graph.ColorR(stop) = 255 * stop;
        graph.ColorG(stop) = 51;
        graph.ColorB(stop) = 0;
    }
    const std::string own = scene.drawn(graph);
    for (const char* color : {"glColor3d 0 0.2 0\n", "glColor3d 0.5 0.2 0\n", "glColor3d 1 0.2 0\n"})
        EXPECT_NE(own.find(color), std::string::npos) << color;
    graph.ColorName = "@rainbow";
    EXPECT_NE(scene.drawn(graph).find("glColor3d 0.6 0.4 1\n"), std::string::npos);
}

/// The vertices that a graph emits, as data X, Y, Z.
std::vector<Place> dataPoints(const SmallScene& scene, Cls9& graph) {
    std::vector<Place> points;
    for (const auto& [at, color] : colouredVerticesOf(scene.listOf(graph)))
        points.push_back(
            {at[2] + scene.scene.SceneCenterZ, at[0] + scene.scene.SceneCenterX, at[1] + scene.scene.SceneCenterY});
    return points;
}

/// A kind of surface: coordinates and value (as X or A, Y or B, Z or D, C) at step u and v, and what at a data point
/// the surface keeps at 0 and the value there.
struct Surface {
    data::DataKind regular, irregular;
    std::array<double, 4> (*node)(double u, double v);
    double (*off)(const Place& p);
    double (*value)(const Place& p);
};

double degreesOf(double y, double x) {
    return base::radiansToDegrees(std::atan2(y, x));
}

TEST(Contour3D, liesOnTheSurfaceOfEveryKindInEveryScaleAndOrder) {
    using data::DataKind;
    const Surface surfaces[] = {
        {DataKind::RegularSurface, DataKind::IrregularSurface,
         [](double u, double v) {
             return std::array{u, 2 * v, 0.5 * u - v, 3 * u + 5.1 * v};
         },
         [](const Place& p) { return p[2] - (0.5 * p[0] - p[1] / 2); },
         [](const Place& p) { return 3 * p[0] + 2.55 * p[1]; }},
        {DataKind::RegularCylindrical, DataKind::IrregularCylindrical,
         [](double u, double v) {
             return std::array{12 * u - 60, 4.0, 10 + 3 * v, 12 * u - 60 + 2.3 * v};
         },
         [](const Place& p) { return std::hypot(2 * p[0], 0.5 * p[1]) - 4; },
         [](const Place& p) { return degreesOf(0.5 * p[1], 2 * p[0]) + 2.3 * (3 * p[2] - 10) / 3; }},
        {DataKind::RegularSpherical, DataKind::IrregularSpherical,
         [](double u, double v) {
             return std::array{12 * u - 60, 20 + 15 * v, 4.0, 12 * u - 60 + 30 * v};
         },
         [](const Place& p) { return std::hypot(2 * p[0], 0.5 * p[1], 3 * p[2]) - 4; },
         [](const Place& p) {
             const double polar = base::radiansToDegrees(std::acos(3 * p[2] / 4));
             return degreesOf(0.5 * p[1], 2 * p[0]) + 2 * (polar - 20);
         }}};
    for (const bool descending : {false, true})
        for (const Surface& surface : surfaces) {
            SmallScene scene;
            fillField(scene, 13, 10);
            scene.scaling = {.ScaleX = 2, .ScaleY = 0.5, .ScaleZ = 3};
            data::ClsData& d = scene.data;
            for (data::Array* array : {&d.Reg3DA, &d.Reg3DB, &d.Reg3DD})
                array->allocate(13, 10);
            const bool plane = surface.regular == DataKind::RegularSurface;
            for (int i = 0; i < 13; ++i)
                for (int j = 0; j < 10; ++j) {
                    const auto node = surface.node(descending ? 12 - i : i, j);
                    (plane ? d.Reg3DX : d.Reg3DA)(i, j) = node[0];
                    (plane ? d.Reg3DY : d.Reg3DB)(i, j) = node[1];
                    (plane ? d.Reg3DZ : d.Reg3DD)(i, j) = node[2];
                    d.Reg3DC(i, j) = node[3];
                }
            Cls9 graph = graphOf(graph_type::contour3D, 12, 9);
            graph.Contour3Levels = 7;
            graph.Con3FillType = 5;
            for (const DataKind kind : {surface.regular, surface.irregular}) {
                scene.kind = kind;
                const std::vector<Place> points = dataPoints(scene, graph);
                EXPECT_GT(points.size(), 100U);
                for (const Place& p : points) {
                    EXPECT_NEAR(surface.off(p), 0, 1e-9);
                    EXPECT_NEAR(std::remainder(surface.value(p), 7), 0, 1e-4);
                }
            }
        }
}

TEST(Contour3D, leavesAHoleNoWiderThanTheCellsOfANodeWithoutData) {
    for (const double odd : oddNumbers) {
        SmallScene scene;
        scene.fillSurface(7, 7);
        for (int i = 0; i < 7; ++i)
            for (int j = 0; j < 7; ++j)
                scene.data.Reg3DC(i, j) = 10 * i + j;
        data::ClsData& d = scene.data;
        for (data::Array* array : {&d.Reg3DX, &d.Reg3DY, &d.Reg3DZ, &d.Reg3DC}) {
            const double kept = std::exchange((*array)(3, 3), odd);
            Cls9 graph = graphOf(graph_type::contour3D, 6, 6);
            graph.Contour3Levels = 1;
            double nearest = 10;
            for (const Place& point : dataPoints(scene, graph))
                nearest = std::min(nearest, std::max(std::abs(point[0] - 3), std::abs(point[1] / 10 - 3)));
            EXPECT_NEAR(nearest, 1, 1e-9) << odd;
            (*array)(3, 3) = kept;
        }
    }
}

TEST(ContourGraphs, refuseWhatTheyCannotTrace) {
    SmallScene scene;
    scene.fillSurface(501, 2);
    for (const int type : {graph_type::contour, graph_type::contour3D, graph_type::surface}) {
        const auto draw = [&](int stepU, double interval) {
            Cls9 graph = graphOf(type, stepU, 1);
            graph.ShowContour = true;
            graph.ContourLevel = graph.ContourLevels = graph.Contour3Levels = interval;
            return scene.drawn(graph);
        };
        EXPECT_NO_THROW(draw(499, 1000));
        EXPECT_THROW(draw(500, 1000), base::Failure) << "more than 500 nodes";
        for (const double interval : {0.0, -1.0, 1e-9, notANumber})
            EXPECT_THROW(draw(10, interval), base::Failure) << interval;
    }
}

}  // namespace
}  // namespace tessaplot::graphs
