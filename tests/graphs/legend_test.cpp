#include <cmath>
#include <limits>

#include <gmock/gmock.h>

#include "graphs/nice_scale.h"
#include "scene/text.h"
#include "small_scene.h"

namespace tessaplot::graphs {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> labelsOf(double lower, double upper) {
    const Scale scale = NiceScale(lower, upper);
    std::vector<std::string> labels;
    for (int n = 0; n <= scale.count; ++n)
        labels.push_back(labelText(scale, n));
    return labels;
}

TEST(NiceScale, hasAHandfulOfRoundNumbersWithinAnyRange) {
    std::mt19937 engine(67);
    std::uniform_real_distribution<double> mantissas(-10, 10);
    std::uniform_int_distribution<int> exponents(-9, 12);
    for (int round = 0; round < 5000; ++round) {
        const double lower = mantissas(engine) * std::pow(10, exponents(engine) - 1);
        const double upper = lower + std::abs(mantissas(engine)) * std::pow(10, exponents(engine));
        if (upper - lower <= 1e-9 * std::abs(lower)) continue;
        const Scale scale = NiceScale(lower, upper);
        ASSERT_GE(scale.count, 2) << lower << " to " << upper;
        ASSERT_LE(scale.count, 10);
        const double slack = 1e-6 * scale.step;
        EXPECT_GE(scale.first, lower - slack);
        EXPECT_LE(scale.number(scale.count), upper + slack);
        EXPECT_LT(scale.first - scale.step, lower + slack) << "none is left out at the lower end";
        EXPECT_GT(scale.number(scale.count + 1), upper - slack) << "nor at the upper end";
        const double digit = scale.step / std::pow(10, std::round(std::log10(scale.step / 2)));
        EXPECT_NEAR(std::remainder(10 / digit, 1), 0, 1e-6) << "the step is 1, 2 or 5 times a power of ten";
    }
}

TEST(NiceScale, runsFromZeroWithoutAnExtentAndGivesUpWithoutSense) {
    EXPECT_EQ(NiceScale(3, 3).lower, 0);
    const double inf = std::numeric_limits<double>::infinity();
    for (const auto& [lower, upper] : {std::pair{0.0, 0.0}, {-3.0, -3.0}, {1e10, -1e10}, {-inf, inf}, {NAN, 1.0}})
        EXPECT_EQ(NiceScale(lower, upper).count, -1) << lower << " to " << upper;
    EXPECT_EQ(CeilNear(2.00000005), 2.00000005) << "a value just above an integer stays";
    EXPECT_EQ(CeilNear(2.000001), 3);
    EXPECT_EQ(CeilNear(-2.5), -2);
}

TEST(NiceScale, labelsAreAsShortAsTheirNumbers) {
    EXPECT_THAT(labelsOf(-1, 1), ElementsAre("-1", "-0.5", "0", "0.5", "1"));
    EXPECT_THAT(labelsOf(-0.3, 0.65),
                ElementsAre("-0.3", "-0.2", "-0.1", "0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6"));
    EXPECT_THAT(labelsOf(0.121, 0.1301),
                ElementsAre("0.121", "0.122", "0.123", "0.124", "0.125", "0.126", "0.127", "0.128", "0.129", "0.13"));
    EXPECT_THAT(labelsOf(0, 2e-5), ElementsAre("0", "5E-06", "1E-05", "1.5E-05", "2E-05"));
    EXPECT_THAT(labelsOf(999, 3001), ElementsAre("1000", "1500", "2000", "2500", "3000"));
}

class LegendTest : public testing::Test {
 protected:
    LegendTest() {
        data::ClsData& d = scene.data;
        d.MinX = 0, d.MinY = 10, d.MinZ = -1, d.MinC = 0, d.MInv = 5;
        d.MaxX = 4, d.MaxY = 12, d.MaxZ = 1, d.MaxC = 100, d.MaxV = 9;
    }
    gl::DisplayList legend(int type, int fillStyle) {
        Cls9 graph = graphOf(type, 1, 1);
        graph.FillStyle = fillStyle;
        graph.FirstColor = base::packColor(255, 0, 0);
        graph.SecondColor = base::packColor(0, 0, 255);
        gl::DisplayList list;
        graph.DrawLegend(list, scene.context());
        return list;
    }
    std::string text(int type, int fillStyle) { return gl::toText(legend(type, fillStyle)); }
    /// The labels from the lower end of the bar to the upper one.
    std::vector<std::string> labels(int type, int fillStyle) {
        const gl::DisplayList list = legend(type, fillStyle);
        std::vector<std::string> found;
        list.forEach([&](const gl::Operation& operation) {
            if (operation.op == gl::Op::CallListsText) found.push_back(list.text(operation.object));
        });
        return found;
    }
    SmallScene scene;
};

TEST_F(LegendTest, ofAGradientReadsAsOneWouldWriteItDown) {
    const std::string black = "glColor3d 0 0 0\n";
    const auto number = [&](const std::string& y, const std::string& label) {
        const std::string begin = "glBegin GL_LINES\n" + black;
        return "glColor3f 0 0 0\nglRasterPos3f 86 " + y + " 0\nglPushAttrib GL_LIST_BIT\nglListBase " +
               std::to_string(scene::FontList15) + "\nglCallLists " + std::to_string(label.size()) +
               " GL_UNSIGNED_BYTE \"" + label + "\"\nglPopAttrib\n" + begin + "glVertex3d 82 " + y +
               " 0\nglVertex3d 82.5 " + y + " 0\nglEnd\n" + begin + "glVertex3d 84.5 " + y + " 0\nglVertex3d 85 " + y +
               " 0\nglEnd\n";
    };
    EXPECT_EQ(text(graph_type::surface, 3),
              "glShadeModel GL_SMOOTH\nglNormal3d 0 0 1\nglBegin GL_POLYGON\n"
              "glColor3d 0 0 1\nglVertex3d 82 30 0\nglColor3d 1 0 0\nglVertex3d 82 70 0\nglVertex3d 85 70 0\n"
              "glColor3d 0 0 1\nglVertex3d 85 30 0\nglEnd\n" +
                  number("30", "-1") + number("40", "-0.5") + number("50", "0") + number("60", "0.5") +
                  number("70", "1") + "glBegin GL_LINE_LOOP\n" + black +
                  "glVertex3d 82 30 0\nglVertex3d 82 70 0\nglVertex3d 85 70 0\nglVertex3d 85 30 0\nglEnd\n");
}

TEST_F(LegendTest, ofAColourMapShowsItsStopsAtTheirPlaces) {
    Cls9 graph = graphOf(graph_type::delaunay, 1, 1);
    graph.FillStyle = 5;
    graph.ColorName = "mine";
    graph.ColorNum = 3;
    graph.ColorPos(1) = 25;
    graph.ColorPos(2) = 100;
    gl::DisplayList list;
    graph.DrawLegend(list, scene.context());
    const std::string text = gl::toText(list);
    EXPECT_THAT(text, HasSubstr("glColor3d 0.6 0.4 1\nglVertex3d 82 30 0\nglColor3d 0 0 1\nglVertex3d 82 40 0\n"
                                "glVertex3d 85 40 0\nglColor3d 0.6 0.4 1\nglVertex3d 85 30 0\nglEnd\n"));
    EXPECT_THAT(text, HasSubstr("glColor3d 0 0 1\nglVertex3d 82 40 0\nglColor3d 0 1 0\nglVertex3d 82 70 0\n"));
}

TEST_F(LegendTest, takesTheRangeThatBelongsToKindAndFill) {
    for (const int type : {2, 6, 13, 14, 16, 24}) {
        EXPECT_EQ(labels(type, 1).back(), "4") << "the gradient along Y tells X";
        EXPECT_EQ(labels(type, 2).back(), "12") << "and the other way round";
        EXPECT_EQ(labels(type, 3).back(), "1");
        EXPECT_EQ(labels(type, 5).back(), "100");
    }
    for (const int style : {1, 2, 3, 5})
        EXPECT_EQ(labels(graph_type::slice4D, style).back(), "9");
    EXPECT_EQ(labels(graph_type::isoSurface, 5).front(), "5");
}

TEST_F(LegendTest, isNotThereWithoutARange) {
    for (const int type : {0, 4, 7, 12, 15, 17, 18, 19, 41, 42})
        EXPECT_EQ(text(type, 5), "") << type;
    for (const int style : {-1, 0, 4, 6})
        EXPECT_EQ(text(graph_type::surface, style), "glShadeModel GL_SMOOTH\n");
    for (const int style : {1, 2, 3})
        EXPECT_EQ(text(graph_type::isoSurface, style), "glShadeModel GL_SMOOTH\n");
}

TEST_F(LegendTest, ofEqualEndsHasTheTicksOfItsScaleAndNoneForZeros) {
    scene.data.MinC = 3;
    scene.data.MaxC = 3;
    EXPECT_EQ(labels(graph_type::surface, 5), (std::vector<std::string>{"0", "0.5", "1", "1.5", "2", "2.5", "3"}));
    for (const char* end : {"glRasterPos3f 86 30 0\n", "glRasterPos3f 86 70 0\n"})
        EXPECT_THAT(text(graph_type::surface, 5), HasSubstr(end));
    scene.data.MinC = scene.data.MaxC = 0;
    EXPECT_THAT(text(graph_type::surface, 5), HasSubstr("GL_POLYGON"));
    EXPECT_TRUE(labels(graph_type::surface, 5).empty());
}

}  // namespace
}  // namespace tessaplot::graphs
