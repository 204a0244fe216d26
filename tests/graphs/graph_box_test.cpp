#include "base/failure.h"
#include "small_scene.h"

namespace tessaplot::graphs {
namespace {

using Limits = std::vector<double>;

/// The limits as data X, Y, Z, each minimum and maximum.
Limits boxOf(Cls9& graph, const SmallScene& scene) {
    const scene::Cls1 box = graph.GetBox(scene.context());
    return {box.MinZ, box.MaxZ, box.MinX, box.MaxX, box.MinY, box.MaxY};
}

Limits boxOf(int type, int stepU, int stepV, const SmallScene& scene) {
    Cls9 graph = graphOf(type, stepU, stepV);
    return boxOf(graph, scene);
}

constexpr double farAway = 99999990000.0;
const Limits inverted = {farAway, -farAway, farAway, -farAway, farAway, -farAway};

TEST(GraphBox, holdsTheGridUpToTheSteps) {
    SmallScene scene;
    scene.fillSurface(6, 4);
    for (const int type : {6, 13, 14, 15, 16, 17, 18, 19}) {
        SCOPED_TRACE(type);
        Cls9 graph = graphOf(type, 2, 3);
        EXPECT_EQ(boxOf(graph, scene), (Limits{0, 2, 0, 30, 0, 203}));
        EXPECT_EQ(graph.MinC, -3);
        EXPECT_EQ(graph.MaxV, -farAway) << "the range of a volume's value is emptied as well";
        graph.ShowVector = true;
        EXPECT_EQ(boxOf(graph, scene)[4], -3) << "room for overlays";
    }
    EXPECT_EQ(boxOf(18, -1, 3, scene), inverted);

    for (int i = 0; i <= 6; ++i)
        for (int j = 0; j <= 4; ++j)
            scene.data.Reg3DZ(i, j) = -(i * 10 + j);
    for (const auto& [stepU, stepV] : {std::pair{6, 4}, {5, 3}, {0, 0}, {1, 4}, {6, 2}})
        EXPECT_EQ(boxOf(18, stepU, stepV, scene)[4], -(stepU * 10 + stepV));
}

TEST(GraphBox, isInvertedWithoutDataAndFailsForTooFew) {
    SmallScene scene;
    for (const int type : {0, 4, 6, 19, 24, 41, 99})
        EXPECT_EQ(boxOf(type, 1, 1, scene), inverted);

    scene.fillSurface(3, 3);
    EXPECT_NO_THROW(boxOf(18, 3, 3, scene)) << "the spare row and column count as nodes";
    for (const auto& [stepU, stepV] : {std::pair{4, 2}, {2, 4}, {2000000000, 2000000000}})
        EXPECT_THROW(boxOf(18, stepU, stepV, scene), base::Failure);
    scene.data.Points = 2;
    scene.data.Irreg3DY.allocate(0);
    EXPECT_THROW(boxOf(24, 1, 1, scene), base::Failure);
    scene.data.Reg4DX.allocate(2, 2, 2);
    Cls9 volume = graphOf(41, 2, 2);
    volume.StepH = 3;
    EXPECT_THROW(boxOf(volume, scene), base::Failure);
}

TEST(GraphBox, takesVolumesWithTheirValueAndTrianglesWithTheirColor) {
    SmallScene scene;
    data::ClsData& data = scene.data;
    for (data::Array* array : {&data.Reg4DX, &data.Reg4DY, &data.Reg4DZ, &data.Reg4DV})
        array->allocate(2, 2, 2);
    data.Reg4DX(1, 0, 0) = 5;
    data.Reg4DY(0, 1, 0) = -6;
    data.Reg4DZ(0, 0, 1) = 7;
    data.Reg4DV(1, 1, 1) = 8;
    Cls9 volume = graphOf(44, 1, 1);
    volume.StepH = 1;
    EXPECT_EQ(boxOf(volume, scene), (Limits{0, 5, -6, 0, 0, 7}));
    EXPECT_EQ(volume.MaxV, 8);

    data.Points = 2;
    for (data::Array* array : {&data.Irreg3DX, &data.Irreg3DY, &data.Irreg3DZ, &data.Irreg3DC}) {
        array->allocate(2);
        (*array)(1) = 3;
    }
    Cls9 triangles = graphOf(24, 1, 1);
    EXPECT_EQ(boxOf(triangles, scene), (Limits{0, 3, 0, 3, 0, 3}));
    EXPECT_EQ(triangles.MaxC, 3);

    scene.fillSurface(3, 5);
    Cls9 table = graphOf(4, 4, 0);
    EXPECT_EQ(boxOf(table, scene), (Limits{0, 3, 0, 30, 0, 3})) << "and nodes 1 to 3 of the first grid column";
    EXPECT_EQ(table.MaxC, -farAway);
}

TEST(GraphBox, ofAPointRunsFromTheOrigin) {
    SmallScene scene;
    Cls9 point = graphOf(7, 1, 1);
    EXPECT_EQ(boxOf(point, scene), (Limits{-1, 1, -1, 1, -1, 1}));
    point.PointX = -8;
    point.PointY = 16;
    point.PointZ = 6;
    EXPECT_EQ(boxOf(point, scene), (Limits{0, 3, -2, 0, 0, 2}));
    scene.scene.SceneMode = scene::mode2D;
    EXPECT_EQ(boxOf(point, scene), (Limits{0, 4, -4, 0, 0, 1.5}));
    scene.scaling.ScaleY = 0;
    EXPECT_THROW(boxOf(point, scene), base::Failure);
}

}  // namespace
}  // namespace tessaplot::graphs
