#include <functional>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "base/failure.h"
#include "graphs/graph.h"

namespace tessaplot::graphs {
namespace {

/// Which of the copies take a property.
enum Taken { ByNone = 0, ByEqualTo = 1, ByTabEqualTo = 2, ByBoth = 3 };

struct Property {
    std::string name;
    Taken taken;
    std::function<void(Cls9&)> change;
    std::function<bool(Cls9&, Cls9&)> alike;
};

/// Any value but the default; different ones for neighbouring numbers.
template <class T>
void changeValue(T& value) {
    static int counter = 40;
    if constexpr (std::is_same_v<T, bool>)
        value = true;
    else if constexpr (std::is_same_v<T, std::string>)
        value = "text " + std::to_string(++counter);
    else
        value = static_cast<T>(++counter);
}

class Properties {
 public:
    template <class Access>
    void add(const std::string& name, Taken taken, Access access) {
        all.push_back({name, taken, [access](Cls9& graph) { changeValue(access(graph)); },
                       [access](Cls9& a, Cls9& b) { return access(a) == access(b); }});
    }
    template <class... Members>
    void addMembers(const std::string& names, Taken taken, Members... members) {
        int position = 0;
        (add(
             std::to_string(++position) + " of " + names,
             taken, [members](Cls9 & graph) -> auto& { return graph.*members; }),
         ...);
    }
    template <class... Members>
    void addSlice(Taken taken, int index, Members... members) {
        for (const auto set : {&Cls9::SlicesX, &Cls9::SlicesY, &Cls9::SlicesZ})
            (add(
                 "slice " + std::to_string(index),
                 taken, [=](Cls9 & graph) -> auto& { return (graph.*set)[index].*members; }),
             ...);
    }

    std::vector<Property> all;
};

#define MEMBERS(taken, ...) addMembers(#__VA_ARGS__, taken, __VA_ARGS__)

std::vector<Property> properties() {
    using G = Cls9;
    using S = SliceSet::Slice;
    Properties p;
    p.MEMBERS(ByBoth, &G::NameS, &G::GraphType, &G::CoordType, &G::Show, &G::Smoothness, &G::Material, &G::StepU,
              &G::StepV, &G::FillStyle, &G::FirstColor, &G::SecondColor, &G::LineColor, &G::LineWidth, &G::ShowContour,
              &G::ShowVector, &G::ShowColormap, &G::ContourLevel, &G::ShowTex, &G::TexName, &G::TexMode, &G::ShowTrans,
              &G::TransAlpha, &G::IsoSurColor, &G::IsoSurValue);
    p.MEMBERS(ByEqualTo, &G::MinU, &G::MaxU, &G::MInv, &G::MaxV, &G::PointX, &G::PointY, &G::PointZ, &G::PointColor,
              &G::PointSize);
    p.MEMBERS(ByTabEqualTo, &G::ColorName, &G::ShowIrregData, &G::VertSize, &G::VertColor, &G::GridColor, &G::GridWidth,
              &G::ColorMapfilltype, &G::ColorMapcolor1, &G::ColorMapcolor2, &G::ContourLevels, &G::ConFillType,
              &G::ConColor1, &G::ConColor2, &G::ConWidth, &G::Contour3Levels, &G::Con3FillType, &G::Con3Color1,
              &G::Con3Color2, &G::Con3Width, &G::VectorColor, &G::ShowDS, &G::ShowDG, &G::TriColor, &G::TriWidth,
              &G::Scat4DColor, &G::Vect4DColor);
    p.MEMBERS(ByNone, &G::ID, &G::StepH, &G::ExpX, &G::ExpY, &G::ExpZ);
    for (const int stop : {0, 2, 3}) {  // three stops are in use
        const Taken taken = stop < 3 ? ByTabEqualTo : ByNone;
        p.add(
            "ColorPos", taken, [stop](G & g) -> auto& { return g.ColorPos(stop); });
        p.add(
            "ColorR", taken, [stop](G & g) -> auto& { return g.ColorR(stop); });
        p.add(
            "ColorG", taken, [stop](G & g) -> auto& { return g.ColorG(stop); });
        p.add(
            "ColorB", taken, [stop](G & g) -> auto& { return g.ColorB(stop); });
    }
    for (const int slice : {0, 1, 2, 3})  // slices 1 and 2 are in use
        p.addSlice(slice == 1 || slice == 2 ? ByTabEqualTo : ByNone, slice, &S::Position, &S::ShowColor, &S::ShowCont,
                   &S::ShowVect, &S::ContLevels, &S::ContColor, &S::VectColor, &S::FirstBegin, &S::FirstEnd,
                   &S::SecondBegin, &S::SecondEnd);
    return p.all;
}

/// A graph with every property changed, two slices an axis and three colour stops.
Cls9 changedGraph() {
    Cls9 graph;
    for (const Property& p : properties())
        p.change(graph);
    graph.SlicesX.Num = graph.SlicesY.Num = graph.SlicesZ.Num = 2;
    graph.ColorNum = 3;
    return graph;
}

void expectTaken(Taken by, Cls9& copy, Cls9& source) {
    Cls9 untouched;
    for (const Property& p : properties()) {
        const bool taken = (p.taken & by) != 0;
        EXPECT_TRUE(p.alike(copy, taken ? source : untouched)) << p.name << (taken ? ": taken" : ": left alone");
    }
}

Cls9::Basics someBasics() {
    return {"name", 6, 2, "u", "v", "u*v", 11, 12, -1, 1, -2, 3, 5, 21, 22, 23, 4, 7, 8, 9, true, true, true, 10};
}

void expectBasics(const Cls9& g) {
    const auto values = [](const auto&... value) { return std::vector<double>{static_cast<double>(value)...}; };
    EXPECT_EQ(g.NameS, "name");
    EXPECT_EQ(values(g.GraphType, g.CoordType, g.StepU, g.StepV, g.MinU, g.MaxU, g.MInv, g.MaxV, g.FillStyle,
                     g.FirstColor, g.SecondColor, g.LineColor, g.LineWidth, g.Material, g.Show, g.Smoothness,
                     g.ShowContour, g.ShowVector, g.ShowColormap, g.ContourLevel),
              values(6, 2, 11, 12, -1, 1, -2, 3, 5, 21, 22, 23, 4, 7, 8, 9, 1, 1, 1, 10));
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
    const Cls9::Basics basics = someBasics();
    const Cls9 made = Cls9::init(77, basics);
    EXPECT_EQ(made.ID, 77);
    expectBasics(made);
    EXPECT_EQ(made.ExpX + made.ExpY + made.ExpZ, "");

    Cls9 filled;
    filled.ID = 5;
    filled.Equal(basics);
    EXPECT_EQ(filled.ID, 5);
    expectBasics(filled);
    EXPECT_EQ(filled.ExpX + filled.ExpY + filled.ExpZ, "uvu*v");
}

TEST(Graph, startsSmallWithTheRainbow) {
    Cls9 graph;
    EXPECT_EQ(graph.ColorName, "");
    EXPECT_EQ(graph.ColorNum, 6);
    EXPECT_EQ(graph.ColorG(4), 102);
    EXPECT_EQ(graph.ColorPos(30), 0);
    EXPECT_LT(sizeof(Cls9), 1400U) << "a broken document may ask for thousands";
}

TEST(Graph, tablesAreMadeOnFirstTouch) {
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
    EXPECT_EQ(listLabel(graph, scene::mode3D), "Point  x=1E+20, y=1.5, z=-2");
    EXPECT_EQ(listLabel(graph, scene::mode4D), "Point  x=1E+20, y=1.5, z=-2");
    EXPECT_EQ(listLabel(graph, 6), "");
}

}  // namespace
}  // namespace tessaplot::graphs
