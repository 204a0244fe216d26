#include <cmath>
#include <limits>

#include "base/failure.h"
#include "small_scene.h"

namespace tessaplot::graphs {
namespace {

Cls9 randomSurface(Engine& engine, int stepU, int stepV) {
    Cls9 graph = graphOf(graph_type::surface, stepU, stepV);
    const auto chance = [&] { return pick(engine, 0, 2) == 0; };
    graph.Show = pick(engine, 0, 4);
    graph.Smoothness = pick(engine, 0, 4);
    graph.FillStyle = pick(engine, 0, 6);
    graph.FirstColor = pick(engine, 0, 0xffffff);
    graph.SecondColor = pick(engine, 0, 0xffffff);
    graph.ColorName = std::array{"", "Earth", "@grey", "mine"}[static_cast<std::size_t>(pick(engine, 0, 3))];
    graph.ShowTex = chance();
    graph.TexMode = pick(engine, 0, 3);
    graph.ShowTrans = chance();
    graph.TransAlpha = 0.25;
    graph.ShowIrregData = chance();
    graph.ShowColormap = chance();
    graph.ShowVector = chance();
    graph.ShowContour = chance();
    graph.ContourLevel = 0.75;
    graph.LineWidth = pick(engine, 0, 3);
    return graph;
}

enum class Shape { Hills, Cylinder, Ring, Plane };

/// Nodes of a shape that may close upon itself, some of them without data.
void fillShape(SmallScene& scene, Engine& engine, Shape shape, int stepU, int stepV) {
    scene.fillSurface(stepU + 1, stepV + 1);
    scene.scene = {scene::mode3D, 0.5, -1.25, 2};
    std::uniform_real_distribution<double> numbers(-2, 2);
    const double turn = 2 * 3.14159265;
    const auto orNone = [&](double number) {
        const double nones[] = {data::missingValue, std::numeric_limits<double>::quiet_NaN()};
        const int choice = shape == Shape::Hills ? pick(engine, 0, 24) : 2;
        return choice < 2 ? nones[choice] : number;
    };
    for (int i = 0; i <= stepU; ++i)
        for (int j = 0; j <= stepV; ++j) {
            const double around = turn * i / stepU;
            const double along = shape == Shape::Ring ? turn * j / stepV : j;
            const double radius = shape == Shape::Ring ? 3 + std::cos(along) : 3;
            const bool closed = shape == Shape::Cylinder || shape == Shape::Ring;
            scene.data.Reg3DX(i, j) = closed ? radius * std::cos(around) : i;
            scene.data.Reg3DY(i, j) = closed ? radius * std::sin(around) : j;
            scene.data.Reg3DZ(i, j) = shape == Shape::Ring       ? std::sin(along)
                                      : shape == Shape::Cylinder ? along
                                      : shape == Shape::Hills    ? orNone(numbers(engine))
                                                                 : 1;
            scene.data.Reg3DC(i, j) = shape == Shape::Plane ? 7 : orNone(numbers(engine));
        }
}

void scatterPoints(SmallScene& scene, Engine& engine, int count) {
    scene.data.Points = count;
    std::uniform_real_distribution<double> numbers(-2, 2);
    for (data::Array* array :
         {&scene.data.Irreg3DX, &scene.data.Irreg3DY, &scene.data.Irreg3DZ, &scene.data.Irreg3DC}) {
        array->allocate(count);
        for (double& number : array->values())
            number = numbers(engine);
    }
}

TEST(Surface, emitsWhatThePlainLoopsEmit) {
    Engine engine(64);
    for (int round = 0; round < 400 && !testing::Test::HasFailure(); ++round) {
        SCOPED_TRACE(round);
        SmallScene scene;
        const int stepU = pick(engine, 1, 6);
        const int stepV = pick(engine, 1, 6);
        fillShape(scene, engine, static_cast<Shape>(round % 4), stepU, stepV);
        scatterPoints(scene, engine, 3);
        Cls9 graph = randomSurface(engine, stepU, stepV);
        scene.expectAsPlain(graph, plainSurface);
    }
}

TEST(Surface, ofOneCellReadsAsOneWouldWriteItDown) {
    SmallScene scene;
    scene.fillSurface(2, 2);
    for (double& z : scene.data.Reg3DZ.values())
        z = 4;
    scene.scene = {scene::mode3D, 5, 4, 0.5};
    Cls9 graph = graphOf(graph_type::surface, 1, 1);
    graph.Show = 3;
    graph.Smoothness = 3;
    graph.FillStyle = 1;
    graph.FirstColor = base::packColor(255, 0, 0);
    graph.SecondColor = base::packColor(0, 0, 255);
    EXPECT_EQ(scene.body(graph),
              "glPolygonMode GL_FRONT_AND_BACK GL_FILL\nglShadeModel GL_SMOOTH\nglBegin GL_QUADS\n"
              "glTexCoord2d 1 1\nglNormal3d 0 1 0\nglColor3d 0 0 1\nglVertex3d -5 0 -0.5\n"
              "glTexCoord2d 0 1\nglNormal3d 0 1 0\nglColor3d 0 0 1\nglVertex3d -5 0 0.5\n"
              "glTexCoord2d 0 0\nglNormal3d 0 1 0\nglColor3d 1 0 0\nglVertex3d 5 0 0.5\n"
              "glTexCoord2d 1 0\nglNormal3d 0 1 0\nglColor3d 1 0 0\nglVertex3d 5 0 -0.5\nglEnd\n");
}

TEST(Surface, needsEveryNodeAndFillValueOfItsSteps) {
    SmallScene scene;
    scene.fillSurface(3, 3);
    Cls9 graph = graphOf(graph_type::surface, 4, 2);
    EXPECT_THROW(scene.drawn(graph), base::Failure);
    graph.StepU = 2;
    EXPECT_NO_THROW(scene.drawn(graph));
    scene.data.Reg3DC.release();
    EXPECT_THROW(scene.drawn(graph), base::Failure);
}

TEST(Triangles, emitWhatThePlainLoopsEmit) {
    Engine engine(24);
    for (int round = 0; round < 200 && !testing::Test::HasFailure(); ++round) {
        SCOPED_TRACE(round);
        SmallScene scene;
        scene.scene = {scene::mode3D, 0.5, -1.25, 2};
        const int points = pick(engine, 3, 9);
        scatterPoints(scene, engine, points);
        if (round % 5 == 0) scene.data.Irreg3DZ(1) = scene.data.Irreg3DZ(0);
        for (int k = pick(engine, 0, 9); k > 0; --k)
            scene.triangles.push_back({pick(engine, 1, points), pick(engine, 1, points), pick(engine, 1, points)});
        Cls9 graph = randomSurface(engine, 1, 1);
        graph.GraphType = graph_type::delaunay;
        graph.ShowDS = pick(engine, 0, 3) != 0;
        graph.ShowDG = pick(engine, 0, 1) != 0;
        graph.TriColor = 0x336699;
        graph.TriWidth = 2;
        scene.expectAsPlain(graph, plainTriangles);
    }
}

TEST(Triangles, ofPointsThatAreNotThereAreRefused) {
    Engine engine(1);
    SmallScene scene;
    scatterPoints(scene, engine, 3);
    Cls9 graph = graphOf(graph_type::delaunay, 1, 1);
    graph.ShowDG = true;
    for (const geometry::Triangle wrong : {geometry::Triangle{1, 2, 4}, {0, 1, 2}, {1, 2000000000, 3}}) {
        scene.triangles = {wrong};
        EXPECT_THROW(scene.drawn(graph), base::Failure);
    }
}

}  // namespace
}  // namespace tessaplot::graphs
