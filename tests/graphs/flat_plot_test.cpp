#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/angle.h"
#include "base/failure.h"
#include "geometry/contour.h"
#include "graphs/color_fill.h"
#include "graphs/contour_lines.h"
#include "small_scene.h"

namespace tessaplot::graphs {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

/// What a graph emits after its material.
std::string body(const std::string& text) {
    const std::string lastOfMaterial = "GL_AMBIENT 0 0 0 0\n";
    return text.substr(text.find(lastOfMaterial) + lastOfMaterial.size());
}

/// A field without symmetry on a grid of uneven sides, seen off the centre.
void fillField(SmallScene& scene, int countX, int countY, unsigned seed = 7) {
    scene.fillSurface(countX, countY);
    scene.scene = {scene::mode2D, 1.5, -0.5, 2.25};
    std::mt19937 engine(seed);
    std::uniform_real_distribution<double> heights(-4, 4);
    for (int i = 0; i < countX; ++i) {
        for (int j = 0; j < countY; ++j) {
            scene.data.Reg3DX(i, j) = 0.5 * i - 1;
            scene.data.Reg3DY(i, j) = 0.75 * j + 3;
            scene.data.Reg3DZ(i, j) = heights(engine);
            scene.data.Reg3DC(i, j) = heights(engine);
        }
    }
}

bool hasNone(double h) {
    return h == 0.12345 || !std::isfinite(h);
}

void plainColorMap(gl::DisplayList& list, Cls9& graph, const SmallScene& scene) {
    const data::ClsData& d = scene.data;
    const Rgb s = ColorToRGB(graph.ColorMapcolor1);
    const Rgb f = ColorToRGB(graph.ColorMapcolor2);
    const double range = graph.MaxZ == graph.MinZ ? 1.0 / 1000000 : graph.MaxZ - graph.MinZ;
    Rgb color;
    list.glDisable(GL_LIGHTING);
    for (int i = 0; i < graph.StepU; ++i)
        for (int j = 0; j < graph.StepV; ++j) {
            const int corners[4][2] = {{i, j}, {i + 1, j}, {i + 1, j + 1}, {i, j + 1}};
            std::vector<Rgb> colors;
            bool hole = false;
            for (const auto& [a, b] : corners) {
                const double h = d.Reg3DZ(a, b);
                if (graph.FillStyle == 5) ValueToRGB(graph, h, graph.MinZ, range, color);
                if (graph.FillStyle == 3)
                    color = {(h - graph.MinZ) * (f.r - s.r) / range + s.r, (h - graph.MinZ) * (f.g - s.g) / range + s.g,
                             (h - graph.MinZ) * (f.b - s.b) / range + s.b};
                colors.push_back(color);
                hole = hole || hasNone(h);
            }
            if (hole) continue;
            list.glBegin(GL_QUADS);
            for (std::size_t k = 0; k < 4; ++k) {
                const int a = corners[k][0];
                const int b = corners[k][1];
                list.glNormal3d(0, 0, 0);
                list.glColor3d(colors[k].r, colors[k].g, colors[k].b);
                list.glVertex3d(d.Reg3DX(a, b) - 2.25, d.Reg3DY(a, b) - 1.5, graph.MinZ + 0.5);
            }
            list.glEnd();
        }
    list.glEnable(GL_LIGHTING);
}

TEST(ColorMap, emitsWhatThePlainLoopsEmit) {
    for (int round = 0; round < 60; ++round) {
        SmallScene scene;
        fillField(scene, 5, 7, static_cast<unsigned>(round));
        if (round % 3 == 1) scene.data.Reg3DZ(2, 3) = data::missingValue;
        if (round % 3 == 2) scene.data.Reg3DZ(1, 4) = round % 2 == 0 ? notANumber : infinite;
        Cls9 graph = graphOf(graph_type::colorMap, 4, 6);
        graph.FillStyle = round % 7;
        graph.ColorName = std::vector{"", "Earth", "@grey", "mine"}[static_cast<std::size_t>(round % 4)];
        graph.ColorMapcolor1 = 0x336699;
        graph.ColorMapcolor2 = 0xffcc11;
        const std::string drawn = body(scene.drawn(graph));
        gl::DisplayList plain;
        Cls9 other = graph;
        plainColorMap(plain, other, scene);
        ASSERT_EQ(drawn, gl::toText(plain)) << "round " << round;
        EXPECT_EQ(graph.ColorName, other.ColorName);
    }
}

TEST(ColorMap, ofKindsWithoutNodesLiesAtTheOrigin) {
    SmallScene scene;
    fillField(scene, 2, 2);
    for (const int type : {2, 12, 21, 22}) {
        Cls9 graph = graphOf(type, 1, 1);
        const std::string corner = "glNormal3d 0 0 0\nglColor3d 0 0 0\nglVertex3d -2.25 -1.5 99999990000.5\n";
        EXPECT_EQ(body(scene.drawn(graph)), "glDisable GL_LIGHTING\nglBegin GL_QUADS\n" + corner + corner + corner +
                                                corner + "glEnd\nglEnable GL_LIGHTING\n");
        graph.StepU = 2000000000;
        EXPECT_THROW(scene.drawn(graph), base::Failure);
    }
}

void plainVectors(gl::DisplayList& list, const Cls9& graph, const SmallScene& scene) {
    const data::ClsData& d = scene.data;
    list.glDisable(GL_LIGHTING);
    list.glEnable(GL_LINE_SMOOTH);
    list.glEnable(GL_BLEND);
    list.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    list.glHint(GL_LINE_SMOOTH_HINT, GL_NICEST);
    list.glColor3f(1, 0, 0.2F);
    for (int i = 1; i < graph.StepU; ++i)
        for (int j = 1; j < graph.StepV; ++j) {
            const double h = d.Reg3DZ(i, j);
            const double w = d.Reg3DZ(i - 1, j);
            const double s = d.Reg3DZ(i, j - 1);
            const double e = d.Reg3DZ(i + 1, j);
            const double n = d.Reg3DZ(i, j + 1);
            if (hasNone(h) || hasNone(w) || hasNone(s) || hasNone(e) || hasNone(n)) continue;
            const double X = d.Reg3DX(i, j);
            const double Y = d.Reg3DY(i, j);
            const double tipX = X + ((h - w) + (e - h)) / 2;
            const double tipY = Y + ((h - s) + (n - h)) / 2;
            list.glBegin(GL_LINES);
            list.glVertex3d(X - 2.25, Y - 1.5, graph.MinZ + 0.5);
            list.glVertex3d(tipX - 2.25, tipY - 1.5, graph.MinZ + 0.5);
            list.glEnd();
            for (int t = 0; t < 20; ++t) {
                const double rimY = tipY + std::sin(t * 0.31416) * 0.04;
                list.glBegin(GL_TRIANGLES);
                list.glVertex3d(tipX + std::cos(t * 0.31416) * 0.04 - 2.25, rimY - 1.5, 0.5);
                list.glVertex3d(tipX + std::cos((t + 1) * 0.31416) * 0.04 - 2.25, rimY - 1.5, 0.5);
                list.glVertex3d(tipX - 2.25, tipY - 1.5, graph.MinZ + 0.5);
                list.glEnd();
            }
        }
    list.glDisable(GL_LINE_SMOOTH);
    list.glDisable(GL_BLEND);
    list.glEnable(GL_LIGHTING);
}

TEST(VectorPlot, emitsWhatThePlainLoopsEmit) {
    for (const double odd : {1.0, data::missingValue, notANumber, infinite}) {
        SmallScene scene;
        fillField(scene, 6, 5);
        scene.data.Reg3DZ(4, 3) = odd;
        Cls9 graph = graphOf(graph_type::vector, 5, 4);
        graph.VectorColor = base::packColor(255, 0, 51);
        const std::string drawn = body(scene.drawn(graph));
        gl::DisplayList plain;
        plainVectors(plain, graph, scene);
        EXPECT_EQ(drawn, gl::toText(plain)) << odd;
    }
}

/// The lines of the heights or values of a scene as they must be emitted, by the numbers of the three coordinates.
std::string plainContours(SmallScene& scene, const Cls9& graph, const data::Array& field, double interval, double c,
                          int mode, int width) {
    const int m = graph.StepU + 1;
    const int n = graph.StepV + 1;
    std::vector<double> table(std::size_t(m * n));
    for (int i = 0; i < m; ++i)
        for (int j = 0; j < n; ++j)
            table[std::size_t(i * n + j)] = field(i, j);
    const double dx = (graph.MaxX - graph.MinX) / graph.StepU;
    const double dy = (graph.MaxY - graph.MinY) / graph.StepV;
    const auto lines = geometry::CContour::Contour(
        {m, n, dy, dx, graph.MinY - dy, graph.MinX - dx, table, std::size_t(n)},
        {mode == 11 ? interval / scene.scaling.ScaleV : interval, 3, graph.ConColor1, graph.ConColor2, {}});
    gl::DisplayList list;
    list.glDisable(GL_LIGHTING);
    list.glEnable(GL_LINE_SMOOTH);
    list.glEnable(GL_BLEND);
    list.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    list.glLineWidth(static_cast<float>(width));
    const auto vertex = [&](const geometry::PlanePoint& at, int pass) {
        if (mode == 7) list.glVertex3d(at.B - 2.25, at.A - 1.5, c + 0.5);
        if (mode == 3 || (mode == 11 && pass == 1)) list.glVertex3d(at.A - 1.5, c + 0.5, at.B - 2.25);
        if (mode == 11 && pass == 2) list.glVertex3d(at.B - 1.5, at.A + 0.5, c - 2.25);
        if (mode == 11 && pass == 3) list.glVertex3d(c - 1.5, at.A + 0.5, at.B - 2.25);
    };
    const int pass = graph.ID;
    for (const auto& level : lines.levels) {
        list.glColor3d(level.color->r, level.color->g, level.color->b);
        for (const auto& segment : lines.of(level)) {
            if (mode != 7) list.glColor3d(150, 150, 150);
            list.glBegin(GL_LINES);
            vertex(segment.from, pass);
            vertex(segment.to, pass);
            list.glEnd();
        }
    }
    list.glDisable(GL_LINE_SMOOTH);
    list.glDisable(GL_BLEND);
    list.glEnable(GL_LIGHTING);
    return gl::toText(list);
}

TEST(ContourLines, standInThePlaneThatModeAndPassName) {
    SmallScene scene;
    fillField(scene, 6, 9);
    scene.scaling.ScaleV = 2;
    Cls9 graph = graphOf(graph_type::contour, 5, 8);
    graph.ContourLevels = 1.5;
    graph.ConFillType = 3;
    graph.ConColor1 = 0x0000ff;
    graph.ConColor2 = 0xff8000;
    graph.ConWidth = 2;
    for (const int mode : {7, 3}) {
        scene.scene.SceneMode = mode;
        const std::string drawn = body(scene.drawn(graph));
        EXPECT_EQ(drawn, plainContours(scene, graph, scene.data.Reg3DZ, 1.5, graph.MinZ, mode, 2));
    }
    scene.scene.SceneMode = scene::mode4D;
    for (int pass = 1; pass <= 3; ++pass) {
        graph.ID = pass;
        gl::DisplayList list;
        emitContourLines(list, graph, scene.context(),
                         surfaceGrid(graph, scene.context(), [&](int i, int j) { return scene.data.Reg3DC(i, j); }), 7.5,
                         {3, 3, graph.ConColor1, graph.ConColor2, 4}, static_cast<ContourPass>(pass));
        EXPECT_EQ(gl::toText(list), plainContours(scene, graph, scene.data.Reg3DC, 3, 7.5, 11, 4)) << pass;
    }
}

TEST(ContourPlot, ofASlopeReadsAsOneWouldWriteItDown) {
    SmallScene scene;
    scene.fillSurface(2, 3);
    scene.scene.SceneMode = scene::mode2D;
    for (int i = 0; i < 2; ++i)
        for (int j = 0; j < 3; ++j)
            scene.data.Reg3DZ(i, j) = 3 * i + 2;
    Cls9 graph = graphOf(graph_type::contour, 1, 2);
    graph.ContourLevels = 3.5;
    graph.ConFillType = 4;
    graph.ConColor1 = base::packColor(255, 0, 51);
    EXPECT_EQ(body(scene.drawn(graph)),
              "glDisable GL_LIGHTING\nglEnable GL_LINE_SMOOTH\nglEnable GL_BLEND\n"
              "glBlendFunc GL_SRC_ALPHA GL_ONE_MINUS_SRC_ALPHA\nglLineWidth 0\nglColor3d 1 0 0.2\n"
              "glBegin GL_LINES\nglVertex3d 0.5 0 2\nglVertex3d 0.5 10 2\nglEnd\n"
              "glBegin GL_LINES\nglVertex3d 0.5 10 2\nglVertex3d 0.5 20 2\nglEnd\n"
              "glDisable GL_LINE_SMOOTH\nglDisable GL_BLEND\nglEnable GL_LIGHTING\n");
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

/// The vertices that a graph emits, as data X, Y, Z less no centre.
std::vector<std::array<double, 3>> dataPoints(const SmallScene& scene, Cls9& graph) {
    std::vector<std::array<double, 3>> points;
    gl::DisplayList list;
    graph.Draw(list, scene.context());
    list.forEach([&](const gl::Operation& operation) {
        if (operation.op != gl::Op::Vertex3d) return;
        points.push_back({operation.numbers[2] + scene.scene.SceneCenterZ,
                          operation.numbers[0] + scene.scene.SceneCenterX,
                          operation.numbers[1] + scene.scene.SceneCenterY});
    });
    return points;
}

double nearestLevelAway(double value, double interval) {
    return std::abs(value - std::round(value / interval) * interval);
}

Cls9 contour3D(int stepU, int stepV, double interval) {
    Cls9 graph = graphOf(graph_type::contour3D, stepU, stepV);
    graph.Contour3Levels = interval;
    graph.Con3FillType = 5;
    return graph;
}

TEST(Contour3D, liesOnTheSurfaceOfEveryKindInEveryScaleAndOrder) {
    using data::DataKind;
    for (const bool descending : {false, true}) {
        SmallScene scene;
        fillField(scene, 13, 10);
        scene.scaling = {.ScaleX = 2, .ScaleY = 0.5, .ScaleZ = 3};
        for (data::Array* array : {&scene.data.Reg3DA, &scene.data.Reg3DB, &scene.data.Reg3DD})
            array->allocate(13, 10);
        const auto fill = [&](const auto& node) {
            for (int i = 0; i < 13; ++i)
                for (int j = 0; j < 10; ++j)
                    node(i, j, descending ? 12 - i : i, j);
        };
        Cls9 graph = contour3D(12, 9, 7);

        fill([&](int i, int j, int u, int v) {
            scene.data.Reg3DX(i, j) = u;
            scene.data.Reg3DY(i, j) = 2.0 * v;
            scene.data.Reg3DZ(i, j) = 0.5 * u - v;
            scene.data.Reg3DC(i, j) = 3 * u + 5.1 * v;
        });
        for (const DataKind kind : {DataKind::RegularSurface, DataKind::IrregularSurface}) {
            scene.kind = kind;
            const auto points = dataPoints(scene, graph);
            EXPECT_GT(points.size(), 100U);
            for (const auto& [x, y, z] : points) {
                EXPECT_NEAR(z, 0.5 * x - y / 2, 1e-9);
                EXPECT_LT(nearestLevelAway(3 * x + 2.55 * y, 7), 1e-4);
            }
        }

        fill([&](int i, int j, int u, int v) {
            scene.data.Reg3DA(i, j) = 12 * u - 60;
            scene.data.Reg3DB(i, j) = 4;
            scene.data.Reg3DD(i, j) = 10 + 3 * v;
            scene.data.Reg3DC(i, j) = 12 * u - 60 + 2.3 * v;
        });
        for (const DataKind kind : {DataKind::RegularCylindrical, DataKind::IrregularCylindrical}) {
            scene.kind = kind;
            const auto points = dataPoints(scene, graph);
            EXPECT_GT(points.size(), 100U);
            for (const auto& [x, y, z] : points) {
                EXPECT_NEAR(std::hypot(2 * x, 0.5 * y), 4, 1e-9);
                const double angle = base::radiansToDegrees(std::atan2(0.5 * y, 2 * x));
                EXPECT_LT(nearestLevelAway(angle + 2.3 * (3 * z - 10) / 3, 7), 1e-4);
            }
        }

        fill([&](int i, int j, int u, int v) {
            scene.data.Reg3DA(i, j) = 12 * u - 60;
            scene.data.Reg3DB(i, j) = 20 + 15 * v;
            scene.data.Reg3DD(i, j) = 4;
            scene.data.Reg3DC(i, j) = 12 * u - 60 + 30 * v;
        });
        for (const DataKind kind : {DataKind::RegularSpherical, DataKind::IrregularSpherical}) {
            scene.kind = kind;
            const auto points = dataPoints(scene, graph);
            EXPECT_GT(points.size(), 100U);
            for (const auto& [x, y, z] : points) {
                EXPECT_NEAR(std::hypot(2 * x, 0.5 * y, 3 * z), 4, 1e-9);
                const double longitude = base::radiansToDegrees(std::atan2(0.5 * y, 2 * x));
                const double polar = base::radiansToDegrees(std::acos(3 * z / 4));
                EXPECT_LT(nearestLevelAway(longitude + 2 * (polar - 20), 7), 1e-4);
            }
        }
    }
}

TEST(ContourGraphs, leaveAHoleNoWiderThanTheCellsOfANodeWithoutData) {
    for (const double odd : {data::missingValue, notANumber, infinite}) {
        SmallScene scene;
        scene.fillSurface(7, 7);
        for (int i = 0; i < 7; ++i)
            for (int j = 0; j < 7; ++j)
                scene.data.Reg3DZ(i, j) = scene.data.Reg3DC(i, j) = 10 * i + j;
        scene.data.Reg3DZ(3, 3) = scene.data.Reg3DC(3, 3) = odd;
        for (const int type : {graph_type::contour, graph_type::contour3D}) {
            Cls9 graph = graphOf(type, 6, 6);
            graph.ContourLevels = graph.Contour3Levels = 1;
            const auto points = dataPoints(scene, graph);
            EXPECT_GT(points.size(), 500U);
            bool besideTheHole = false;
            for (const auto& point : points) {
                const double away = std::max(std::abs(point[0] - 3), std::abs(point[1] / 10 - 3));
                EXPECT_GE(away, 1 - 1e-9) << "in the hole of " << odd;
                besideTheHole = besideTheHole || away < 1 + 1e-9;
            }
            EXPECT_TRUE(besideTheHole);
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

TEST(FlatPlots, ofEqualHeightsAreEvenAndWithoutLines) {
    SmallScene scene;
    scene.fillSurface(4, 4);
    for (double& z : scene.data.Reg3DZ.values())
        z = 5;
    for (double& c : scene.data.Reg3DC.values())
        c = 5;
    const std::string none =
        "glDisable GL_LIGHTING\nglEnable GL_LINE_SMOOTH\nglEnable GL_BLEND\n"
        "glBlendFunc GL_SRC_ALPHA GL_ONE_MINUS_SRC_ALPHA\nglLineWidth 0\nglDisable GL_LINE_SMOOTH\n"
        "glDisable GL_BLEND\nglEnable GL_LIGHTING\n";
    for (const int type : {graph_type::contour, graph_type::contour3D}) {
        Cls9 graph = graphOf(type, 3, 3);
        graph.ContourLevels = graph.Contour3Levels = 2;
        EXPECT_EQ(body(scene.drawn(graph)), none);
    }
    Cls9 map = graphOf(graph_type::colorMap, 3, 3);
    map.FillStyle = 5;
    const std::string text = scene.drawn(map);
    EXPECT_NE(text.find("glColor3d 0.6 0.4 1\n"), std::string::npos) << "the lowest stop";
    EXPECT_EQ(text.find("nan"), std::string::npos);
}

TEST(FlatPlots, withStepsOfZeroTakeOneCell) {
    SmallScene scene;
    fillField(scene, 2, 2);
    for (const int type : {graph_type::colorMap, graph_type::contour, graph_type::vector, graph_type::contour3D}) {
        Cls9 graph = graphOf(type, 0, 0);
        graph.ContourLevels = graph.Contour3Levels = 1;
        EXPECT_NO_THROW(scene.drawn(graph)) << type;
        EXPECT_EQ(graph.StepU, 1);
        SmallScene tooSmall;
        tooSmall.fillSurface(0, 0);
        Cls9 again = graphOf(type, 0, 0);
        again.ContourLevels = again.Contour3Levels = 1;
        EXPECT_THROW(tooSmall.drawn(again), base::Failure) << type;
    }
}

}  // namespace
}  // namespace tessaplot::graphs
