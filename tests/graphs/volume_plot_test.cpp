#include <cmath>
#include <limits>
#include <map>
#include <set>

#include <gmock/gmock.h>

#include "base/failure.h"
#include "scene/material.h"
#include "small_scene.h"

namespace tessaplot::graphs {
namespace {

using testing::HasSubstr;

/// A volume of nodes at (x, y, z) = (i, 2 j, 3 k), with values by `value(x, y, z)`, brought to the scene.
template <class Value>
SmallScene volumeScene(const std::array<int, 3>& count, const Value& value) {
    SmallScene scene;
    scene.kind = data::DataKind::RegularVolume;
    scene.scene.SceneMode = scene::mode4D;
    data::ClsData& data = scene.data;
    data.DataDim = 2;
    data.DataType = 1;
    data.StepsX = count[0];
    data.StepsY = count[1];
    data.StepsZ = count[2];
    for (data::Array* array : {&data.Reg4DX, &data.Reg4DY, &data.Reg4DZ, &data.Reg4DV})
        array->allocate(count[0], count[1], count[2]);
    for (int i = 0; i < count[0]; ++i) {
        for (int j = 0; j < count[1]; ++j) {
            for (int k = 0; k < count[2]; ++k) {
                data.Reg4DX(i, j, k) = i;
                data.Reg4DY(i, j, k) = 2 * j;
                data.Reg4DZ(i, j, k) = 3 * k;
                data.Reg4DV(i, j, k) = value(i, 2.0 * j, 3.0 * k);
            }
        }
    }
    data.Normalize(scene.scaling);
    return scene;
}

Cls9 volumeGraph(int type, const SmallScene& scene) {
    Cls9 graph = graphOf(type, scene.data.StepsX - 1, scene.data.StepsY - 1);
    graph.StepH = scene.data.StepsZ - 1;
    graph.FillStyle = 5;
    return graph;
}

SmallScene randomScene(Engine& engine) {
    std::uniform_real_distribution<double> values(-3, 8);
    SmallScene scene = volumeScene({pick(engine, 2, 5), pick(engine, 2, 5), pick(engine, 2, 5)},
                                   [&](double, double, double) { return values(engine); });
    for (const double hole : {data::missingValue, std::nan(""), std::numeric_limits<double>::infinity()})
        for (data::Array* array : {&scene.data.Reg4DV, &scene.data.Reg4DX})
            if (pick(engine, 0, 3) == 0)
                (*array)(pick(engine, 0, scene.data.StepsX - 1), pick(engine, 0, scene.data.StepsY - 1),
                         pick(engine, 0, scene.data.StepsZ - 1)) = hole;
    scene.scene = {scene::mode4D, 0.5, -1.25, 2};
    scene.kind = pick(engine, 0, 1) == 0 ? data::DataKind::RegularVolume : data::DataKind::IrregularVolume;
    scene.data.Points = 2;
    for (data::Array* array :
         {&scene.data.Irreg4DX, &scene.data.Irreg4DY, &scene.data.Irreg4DZ, &scene.data.Irreg4DV}) {
        array->allocate(2);
        (*array)(0) = values(engine);
        (*array)(1) = values(engine);
    }
    return scene;
}

/// Slices on layers and between them, whole and in part. `last` is the last index across, `unit` its spacing.
void addRandomSlices(Engine& engine, SliceSet& slices, double unit, int last, int lastU, int lastV) {
    slices.Num = pick(engine, 0, 2);
    for (int n = 1; n <= slices.Num; ++n) {
        SliceSet::Slice& slice = slices[n];
        slice.Position = unit * pick(engine, 0, 4 * last) / 4;
        slice.ShowColor = pick(engine, 0, 3) != 0;
        slice.ShowCont = pick(engine, 0, 1) == 0;
        slice.ShowVect = pick(engine, 0, 1) == 0;
        slice.ContLevels = 1.5;
        slice.VectColor = 0x4080c0;
        if (pick(engine, 0, 1) == 0) continue;
        slice.FirstBegin = pick(engine, 1, lastU + 1);
        slice.FirstEnd = pick(engine, slice.FirstBegin, lastU + 1);
        slice.SecondBegin = pick(engine, 1, lastV + 1);
        slice.SecondEnd = pick(engine, slice.SecondBegin, lastV + 1);
    }
}

TEST(VolumePlots, emitWhatThePlainLoopsEmit) {
    Engine engine(66);
    for (int round = 0; round < 300 && !testing::Test::HasFailure(); ++round) {
        SCOPED_TRACE(round);
        const SmallScene scene = randomScene(engine);
        Cls9 graph = volumeGraph(graph_type::scatter4D + round % 3, scene);
        graph.ShowIrregData = pick(engine, 0, 1) == 0;
        graph.Scat4DColor = graph.Vect4DColor = 0x10c0ff;
        graph.VectorColor = 0x2040ff;
        graph.FirstColor = 0xff8000;
        graph.FillStyle = pick(engine, 0, 1) == 0 ? 3 : 5;
        graph.LineWidth = 2;
        graph.Material = round % 4 == 0 ? scene::neon : 0;  // which has no opacity, so that lines are not blended
        addRandomSlices(engine, graph.SlicesZ, 3, graph.StepH, graph.StepU, graph.StepV);
        addRandomSlices(engine, graph.SlicesY, 2, graph.StepV, graph.StepU, graph.StepH);
        addRandomSlices(engine, graph.SlicesX, 1, graph.StepU, graph.StepV, graph.StepH);
        graph.GetBox(scene.context());
        // An infinite coordinate makes no range.
        if (!std::isfinite(graph.MaxX)) continue;
        constexpr std::array plains{plainScatter4D, plainVectors4D, plainSlices4D};
        scene.expectAsPlain(graph, plains[static_cast<std::size_t>(round % 3)]);
    }
}

TEST(VolumePlots, needTheNodesOfTheirStepsAndNoMoreThanCanBeDrawn) {
    const SmallScene scene = volumeScene({102, 102, 102}, [](double x, double y, double) { return x + y; });
    for (const int type : {41, 42, 43, 44}) {
        Cls9 graph = volumeGraph(type, scene);
        if (type <= 42) {
            EXPECT_THROW(scene.drawn(graph), base::Failure) << "more marks than 101 along each axis";
        }
        graph.StepV = 5;
        EXPECT_NO_THROW(scene.drawn(graph)) << type;
        graph.StepH = 0;
        if (type == 42) {
            EXPECT_THROW(scene.drawn(graph), base::Failure) << "no differences along an axis of one layer";
        }
        graph.StepU = graph.StepH = 2;
        graph.StepV = 103;
        EXPECT_THROW(scene.drawn(graph), base::Failure) << type;
    }
}

TEST(VolumePlots, slicesOfDataListedDownwardsHaveTheirContoursInTheSamePlaces) {
    const SmallScene upwards = volumeScene({6, 5, 4}, [](double x, double y, double z) { return x * x + y + z * z; });
    SmallScene downwards = upwards;
    for (data::Array data::ClsData::*array :
         {&data::ClsData::Reg4DX, &data::ClsData::Reg4DY, &data::ClsData::Reg4DZ, &data::ClsData::Reg4DV})
        for (int i = 0; i < 6; ++i)
            for (int j = 0; j < 5; ++j)
                for (int k = 0; k < 4; ++k)
                    (downwards.data.*array)(i, j, k) = (upwards.data.*array)(5 - i, 4 - j, 3 - k);
    const auto endsOfLines = [](const SmallScene& scene) {
        Cls9 graph = volumeGraph(graph_type::slice4D, scene);
        for (SliceSet* slices : {&graph.SlicesX, &graph.SlicesY, &graph.SlicesZ}) {
            slices->Num = 1;
            (*slices)[1].Position = 2.3;
            (*slices)[1].ShowCont = true;
            (*slices)[1].ContLevels = 7.1;
        }
        std::multiset<std::array<long, 3>> ends;
        for (const auto& [at, color] : colouredVerticesOf(scene.listOf(graph)))
            ends.insert({std::lround(at[0] * 1e4), std::lround(at[1] * 1e4), std::lround(at[2] * 1e4)});
        return ends;
    };
    EXPECT_GT(endsOfLines(upwards).size(), 100U);
    EXPECT_EQ(endsOfLines(upwards), endsOfLines(downwards));
}

TEST(VolumePlots, sizeNoSphereByALargestValueOfZero) {
    SmallScene scene = volumeScene({2, 2, 2}, [](double x, double, double) { return x - 1; });
    Cls9 graph = volumeGraph(graph_type::scatter4D, scene);
    EXPECT_THROW(scene.drawn(graph), base::Failure);
}

/// The red of the first corner of a slice across Z at each of these positions, drawn one after the other.
std::vector<double> firstReds(const std::vector<double>& positions) {
    const SmallScene scene = volumeScene({2, 2, 4}, [](double, double, double z) { return z; });
    Cls9 graph = volumeGraph(graph_type::slice4D, scene);
    graph.FillStyle = 3;
    graph.FirstColor = base::packColor(255, 255, 255);
    for (const double position : positions) {
        SliceSet::Slice& slice = graph.SlicesZ[++graph.SlicesZ.Num];
        slice.Position = position;
        slice.ShowColor = true;
    }
    std::vector<double> reds;
    const auto vertices = colouredVerticesOf(scene.listOf(graph));
    for (std::size_t corner = 0; corner < vertices.size(); corner += 4)
        reds.push_back(vertices[corner].second[0]);
    return reds;
}

TEST(Slices, outsideTheGridTakeTheLayerOfTheSliceBefore) {
    EXPECT_EQ(firstReds({-5, 6, 40, 9, 9.00001}), (std::vector<double>{0, 2 / 3.0, 2 / 3.0, 1, 1}));
    const SmallScene scene = volumeScene({2, 5, 9}, [](double x, double y, double z) { return x + y + z; });
    Cls9 graph = volumeGraph(graph_type::slice4D, scene);
    graph.SlicesZ.Num = graph.SlicesY.Num = graph.SlicesX.Num = 1;
    graph.SlicesZ[1].Position = 24;
    graph.SlicesY[1].Position = -100;
    EXPECT_THAT([&] { scene.drawn(graph); }, testing::ThrowsMessage<base::Failure>(HasSubstr("slice 1 across Y")))
        << "the layer of the slice across Z is not there across Y";
}

TEST(Slices, withLimitsOutsideTheGridAreNamed) {
    const SmallScene scene = volumeScene({3, 4, 5}, [](double x, double y, double z) { return x + y + z; });
    Cls9 graph = volumeGraph(graph_type::slice4D, scene);
    graph.SlicesX.Num = 2;
    SliceSet::Slice& slice = graph.SlicesX[2];
    slice.ShowColor = slice.ShowCont = slice.ShowVect = true;
    slice.ContLevels = 1;
    slice.FirstEnd = 4;
    slice.SecondEnd = 5;
    EXPECT_NO_THROW(scene.drawn(graph)) << "across X the first limits are those of Y, the second those of Z";
    for (int* limit : {&slice.FirstBegin, &slice.FirstEnd, &slice.SecondBegin, &slice.SecondEnd}) {
        for (const int wrong : {-1, 6, 2000000000}) {
            const int before = std::exchange(*limit, wrong);
            try {
                scene.drawn(graph);
                ADD_FAILURE() << wrong;
            } catch (const base::Failure& failure) {
                EXPECT_EQ(failure.code(), base::FailureCode::SubscriptOutOfRange);
                EXPECT_THAT(failure.what(), HasSubstr("slice 2 across X"));
            }
            *limit = before;
        }
    }
    slice.FirstBegin = 4;
    slice.FirstEnd = 1;
    EXPECT_EQ(scene.drawn(graph).find("glVertex3d"), std::string::npos) << "nothing lies between limits the wrong way";
    graph.SlicesX.Num = 51;
    EXPECT_THROW(scene.drawn(graph), base::Failure);
}

TEST(IsoSurface, standsInTheFrameAtTheValueInItsOwnUnits) {
    const auto radius = [](double x, double y, double z) { return std::hypot(x - 10, y - 20, z - 30); };
    SmallScene scene = volumeScene({21, 21, 21}, radius);
    scene.scene = {scene::mode4D, 1, 2, 3};
    Cls9 graph = volumeGraph(graph_type::isoSurface, scene);
    graph.IsoSurValue = 8;
    const gl::DisplayList list = scene.listOf(graph);
    int corners = 0;
    std::vector<double> normal;
    list.forEach([&](const gl::Operation& operation) {
        if (operation.op == gl::Op::Normal3d) normal.assign(operation.numbers.begin(), operation.numbers.end());
        if (operation.op != gl::Op::Vertex3d) return;
        ++corners;
        const double x = (operation.numbers[2] + 3) * scene.scaling.ScaleX;
        const double y = (operation.numbers[0] + 1) * scene.scaling.ScaleY;
        const double z = (operation.numbers[1] + 2) * scene.scaling.ScaleZ;
        EXPECT_NEAR(radius(x, y, z), 8, 0.2);
        // Towards lower values, that is inward.
        EXPECT_LT(normal[2] * (x - 10) + normal[0] * (y - 20) + normal[1] * (z - 30), 0);
    });
    EXPECT_GT(corners, 300);
    const std::string text = gl::toText(list);
    EXPECT_NE(text.find("glPushMatrix\nglColor3d "), std::string::npos);
    EXPECT_TRUE(text.ends_with("glEnd\nglPopMatrix\n"));
}

TEST(IsoSurface, refusesVolumesBeyondItsTable) {
    const auto value = [](double x, double, double) { return x; };
    const SmallScene largest = volumeScene({102, 2, 3}, value);
    Cls9 graph = volumeGraph(graph_type::isoSurface, largest);
    graph.IsoSurValue = 50;
    EXPECT_NO_THROW(largest.drawn(graph));
    const SmallScene larger = volumeScene({103, 2, 3}, value);
    graph.StepU = 102;
    EXPECT_THROW(larger.drawn(graph), base::Failure);
}

}  // namespace
}  // namespace tessaplot::graphs
