#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "base/failure.h"
#include "graphs/graph.h"

namespace tessaplot::graphs {
namespace {

/// Which of the copies take a property.
enum Taken { ByNone = 0, ByEqualTo = 1, ByTabEqualTo = 2, ByBoth = 3 };

/// Calls `visit(taken, access)` for every property; `access(graph)` is the property of a graph.
template <class Visit>
void forEachProperty(const Visit& visit) {
    using G = Cls9;
    using S = SliceSet::Slice;
    const auto all = [&](Taken taken, auto... members) {
        (visit(
             taken, [members](G & graph) -> auto& { return graph.*members; }),
         ...);
    };
    all(ByBoth, &G::NameS, &G::GraphType, &G::CoordType, &G::Show, &G::Smoothness, &G::Material, &G::StepU, &G::StepV,
        &G::FillStyle, &G::FirstColor, &G::SecondColor, &G::LineColor, &G::LineWidth, &G::ShowContour, &G::ShowVector,
        &G::ShowColormap, &G::ContourLevel, &G::ShowTex, &G::TexName, &G::TexMode, &G::ShowTrans, &G::TransAlpha,
        &G::IsoSurColor, &G::IsoSurValue);
    all(ByEqualTo, &G::MinU, &G::MaxU, &G::MInv, &G::MaxV, &G::PointX, &G::PointY, &G::PointZ, &G::PointColor,
        &G::PointSize);
    all(ByTabEqualTo, &G::ColorName, &G::ShowIrregData, &G::VertSize, &G::VertColor, &G::GridColor, &G::GridWidth,
        &G::ColorMapfilltype, &G::ColorMapcolor1, &G::ColorMapcolor2, &G::ContourLevels, &G::ConFillType, &G::ConColor1,
        &G::ConColor2, &G::ConWidth, &G::Contour3Levels, &G::Con3FillType, &G::Con3Color1, &G::Con3Color2,
        &G::Con3Width, &G::VectorColor, &G::ShowDS, &G::ShowDG, &G::TriColor, &G::TriWidth, &G::Scat4DColor,
        &G::Vect4DColor);
    all(ByNone, &G::ID, &G::StepH, &G::ExpX, &G::ExpY, &G::ExpZ);
    const auto allOfStops = [&](auto... tables) {
        for (const int stop : {0, 2, 3})  // three stops are in use
            (visit(
                 stop < 3 ? ByTabEqualTo : ByNone, [=](G & graph) -> auto& { return (graph.*tables)(stop); }),
             ...);
    };
    allOfStops(&G::ColorPos, &G::ColorR, &G::ColorG, &G::ColorB);
    const auto allOfSlices = [&](auto... members) {
        for (const auto set : {&G::SlicesX, &G::SlicesY, &G::SlicesZ})
            for (const int n : {0, 1, 2, 3})  // slices 1 and 2 are in use
                (visit(
                     n == 1 || n == 2 ? ByTabEqualTo : ByNone,
                     [=](G & graph) -> auto& { return (graph.*set)[n].*members; }),
                 ...);
    };
    allOfSlices(&S::Position, &S::ShowColor, &S::ShowCont, &S::ShowVect, &S::ContLevels, &S::ContColor, &S::VectColor,
                &S::FirstBegin, &S::FirstEnd, &S::SecondBegin, &S::SecondEnd);
}

/// A graph with every property changed, neighbouring ones to different values; two slices an axis, three colour stops.
Cls9 changedGraph() {
    Cls9 graph;
    int counter = 40;
    forEachProperty([&](Taken, const auto& access) {
        auto& value = access(graph);
        using T = std::remove_reference_t<decltype(value)>;
        if constexpr (std::is_same_v<T, bool>)
            value = true;
        else if constexpr (std::is_same_v<T, std::string>)
            value = "text " + std::to_string(++counter);
        else
            value = static_cast<T>(++counter);
    });
    graph.SlicesX.Num = graph.SlicesY.Num = graph.SlicesZ.Num = 2;
    graph.ColorNum = 3;
    return graph;
}

void expectTaken(Taken by, Cls9& copy, Cls9& source) {
    Cls9 untouched;
    int number = 0;
    forEachProperty([&](Taken taken, const auto& access) {
        EXPECT_EQ(access(copy), access((taken & by) != 0 ? source : untouched)) << "property " << ++number;
    });
}

TEST(GraphCopy, takesExactlyThePropertiesOfItsKind) {
    Cls9 source = changedGraph();
    Cls9 copy;
    copy.EqualTo(source);
    expectTaken(ByEqualTo, copy, source);
    EXPECT_EQ(copy.ColorNum, 6);
    EXPECT_EQ(copy.SlicesX.Num, 0);

    Cls9 full;
    full.TabEqualTo(source);
    expectTaken(ByTabEqualTo, full, source);
    EXPECT_EQ(full.ColorNum, 3);
    EXPECT_EQ(full.SlicesX.Num + full.SlicesY.Num + full.SlicesZ.Num, 6);
}

TEST(GraphCopy, stopsPartWayAtACountBeyondItsTable) {
    Cls9 source = changedGraph();
    source.SlicesX.Num = 51;
    source.SlicesX[50].Position = 5;
    Cls9 copy;
    EXPECT_THROW(copy.TabEqualTo(source), base::Failure);
    EXPECT_EQ(copy.SlicesX[50].Position, 5);
    EXPECT_EQ(copy.SlicesZ.Num, 2);
    EXPECT_EQ(copy.SlicesY[1].Position, 0);
    EXPECT_FALSE(copy.ShowTex);

    source.SlicesX.Num = 2;
    source.ColorNum = 32;
    EXPECT_THROW(copy.TabEqualTo(source), base::Failure);
    EXPECT_EQ(copy.ColorNum, 32);
    EXPECT_EQ(copy.SlicesX[2].FirstEnd, 0) << "limits come after the colour map";
    EXPECT_EQ(copy.IsoSurValue, 0);
}

TEST(GraphCopy, initDropsTheExpressionsAndEqualKeepsThem) {
    const Cls9::Basics basics{"name", 6,  2,  "u", "v", "u*v", 11, 12, -1,   1,    -2,   3,
                              5,      21, 22, 23,  4,   7,     8,  9,  true, true, true, 10};
    const Cls9 made = Cls9::init(77, basics);
    Cls9 filled;
    filled.ID = 5;
    filled.Equal(basics);
    EXPECT_EQ(made.ID, 77);
    EXPECT_EQ(filled.ID, 5);
    EXPECT_EQ(made.ExpX + made.ExpY + made.ExpZ, "");
    EXPECT_EQ(filled.ExpX + filled.ExpY + filled.ExpZ, "uvu*v");
    for (const Cls9& g : {made, filled}) {
        EXPECT_EQ(g.NameS, "name");
        const auto values = [](auto... value) { return std::vector<double>{static_cast<double>(value)...}; };
        EXPECT_EQ(values(g.GraphType, g.CoordType, g.StepU, g.StepV, g.MinU, g.MaxU, g.MInv, g.MaxV, g.FillStyle,
                         g.FirstColor, g.SecondColor, g.LineColor, g.LineWidth, g.Material, g.Show, g.Smoothness,
                         g.ShowContour, g.ShowVector, g.ShowColormap, g.ContourLevel),
                  values(6, 2, 11, 12, -1, 1, -2, 3, 5, 21, 22, 23, 4, 7, 8, 9, 1, 1, 1, 10));
    }
}

TEST(Graph, tablesAreMadeOnFirstTouch) {
    EXPECT_LT(sizeof(Cls9), 1400U) << "a broken document may ask for thousands";
    Cls9 graph;
    graph.VertTab3D(0, 200).x = 4;
    EXPECT_EQ(graph.VertTab3D(0, 200).x, 4);
    EXPECT_EQ(graph.VertTab3D(200, 0).size, 0.15);
    EXPECT_THROW(graph.VertTab3D(201, 0), base::Failure);
    EXPECT_THROW(graph.VertTab3D(0, -1), base::Failure);

    const SliceSet unwritten;
    EXPECT_EQ(unwritten[50].ContLevels, 0);
    EXPECT_THROW(unwritten[51], base::Failure);
    EXPECT_THROW(graph.SlicesX[-1], base::Failure);
    SliceSet::Slice& first = graph.SlicesX[1];
    graph.SlicesX[50].Position = 2;
    first.Position = 3;
    EXPECT_EQ(graph.SlicesX[1].Position, 3);
}

TEST(Graph, labelsItsKindAndPointsByTheAxesOfTheMode) {
    Cls9 graph;
    graph.GraphType = graph_type::scatter4D;
    EXPECT_EQ(listLabel(graph, scene::mode4D), "4D Scatter ");
    graph.GraphType = graph_type::table;
    EXPECT_EQ(listLabel(graph, scene::mode3D), "");
    graph.GraphType = graph_type::point;
    graph.PointX = 1.5;
    graph.PointY = -2;
    graph.PointZ = 1e20;
    EXPECT_EQ(listLabel(graph, scene::mode2D), "Point  x=-2, y=1E+20");
    for (const int mode : {scene::mode3D, scene::mode4D})
        EXPECT_EQ(listLabel(graph, mode), "Point  x=1E+20, y=1.5, z=-2");
    EXPECT_EQ(listLabel(graph, 6), "");
}

}  // namespace
}  // namespace tessaplot::graphs
