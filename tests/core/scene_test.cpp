#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
#include "core/refresh.h"
#include "example_state.h"

namespace tessaplot::core {
namespace {

std::vector<std::string> linesOf(const gl::DisplayList& list) {
    std::istringstream in(gl::toText(list));
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

int countOf(const std::vector<std::string>& lines, const std::string& start) {
    return static_cast<int>(
        std::count_if(lines.begin(), lines.end(), [&](const std::string& line) { return line.starts_with(start); }));
}

TEST(Scene, emptySceneHasEightClearedSamplesAndNoBody) {
    AppState state;
    RebuildScene(state);
    const auto lines = linesOf(*state.compiled.list900);
    EXPECT_EQ(lines.front(), "glClear GL_ACCUM_BUFFER_BIT");
    EXPECT_EQ(countOf(lines, "glClear GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT"), 8);
    EXPECT_EQ(countOf(lines, "glAccum GL_ACCUM 0.125"), 8);
    EXPECT_EQ(countOf(lines, "glAccum GL_RETURN 1"), 1);
    EXPECT_EQ(countOf(lines, "glBegin"), 0);
    EXPECT_EQ(lines.back(), "glPopMatrix");
    state.ShowLegend = false;
    RebuildScene(state);
    EXPECT_EQ(linesOf(*state.compiled.list900).back(), "glFlush");
    const scene::Cls1 box = state.ShownGraphs.GetBox(state.graphContext());
    EXPECT_EQ(box.MinX, 99999999.0 - 0.04);
    EXPECT_EQ(box.MaxY, -99999999.0 + 0.04);
}

TEST(Scene, everySampleIsTheSameBodyUnderItsOwnJitter) {
    AppState state;
    state.TheView.VolWidth = 40;
    int height = 800;
    state.TheView.SetScreen(1000, height);
    showGridModel(state);
    const auto lines = linesOf(*state.compiled.list900);
    const auto body = linesOf(*state.compiled.body);
    EXPECT_EQ(countOf(lines, "glVertex3d"), 8 * countOf(body, "glVertex3d"));
    state.TheView.VolWidth = state.TheView.VolHeight = 40;
    state.QuickDraw = true;
    rebuildForCamera(state);
    const auto quick = linesOf(*state.compiled.list900);
    EXPECT_EQ(countOf(quick, "glAccum GL_ACCUM 0.5"), 2);
    std::vector<std::string> projections;
    for (const std::string& line : quick)
        if (line.starts_with("glOrtho -")) projections.push_back(line);
    ASSERT_EQ(projections.size(), 2U);
    EXPECT_THAT(projections[0], testing::StartsWith("glOrtho -20.0098596 19.9901404 -20.00999996 19.99000004 "));
}

TEST(Scene, aDragRecordsNothingAndAChangeOfTheDocumentDoes) {
    AppState state;
    showGridModel(state);
    const gl::DisplayListPtr body = state.compiled.body;
    state.QuickDraw = true;
    state.UseQuat = true;
    for (int step = 0; step < 5; ++step) {
        state.CurQuat = scene::AddQuats(scene::AxisToQuat({0, 1, 0}, 0.1), state.CurQuat);
        const gl::DisplayListPtr before = state.compiled.list900;
        rebuildForCamera(state);
        EXPECT_EQ(state.compiled.body, body);
        EXPECT_NE(*state.compiled.list900, *before);
    }
    EXPECT_EQ(recordDisplay(state), recordDisplay(state)) << "a repaint draws the very same";
    addGraph(state, graphs::graph_type::vertexModel);
    setTick(state, 1, true);
    EXPECT_NE(state.compiled.body, body);
}

TEST(Scene, aGraphThatCannotBeDrawnLeavesTheSceneAsItWas) {
    AppState state;
    showGridModel(state);
    const gl::DisplayListPtr list = state.compiled.list900;
    const GraphPtr point = addGraph(state, graphs::graph_type::point);
    point->PointX = 1e308;
    state.scaling.ScaleY = 1e-308;
    EXPECT_THROW(setTick(state, 1, true), base::Failure);
    EXPECT_FALSE(state.List1.entries[1].ticked);
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    EXPECT_EQ(state.compiled.list900, list);
}

TEST(Scene, aGraphThatDoesNotFitTheDataIsLeftOutAndNamedOnce) {
    AppState state;
    std::vector<std::string> messages;
    state.desktop.ask = [&](const platform::Message& message) {
        messages.push_back(message.text);
        return platform::Answer::Ok;
    };
    showGridModel(state);
    const scene::Cls1 box = state.ShownGraphs.GetBox(state.graphContext());
    const GraphPtr wide = addGraph(state, graphs::graph_type::surface);
    wide->StepU = 10;
    wide->FillStyle = 5;
    setTick(state, 1, true);
    EXPECT_TRUE(state.List1.entries[1].ticked);
    ASSERT_EQ(state.compiled.graphs.size(), 2U);
    EXPECT_FALSE(state.compiled.graphs[0]->empty());
    EXPECT_TRUE(state.compiled.graphs[1]->empty());
    EXPECT_TRUE(state.compiled.legends->empty());
    EXPECT_EQ(state.ShownGraphs.GetBox(state.graphContext()).MaxX, box.MaxX);
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_THAT(messages[0], testing::HasSubstr("\"3D Surface Model\" (number 2) does not fit the data"));
    RebuildScene(state);
    rebuildForCamera(state);
    EXPECT_EQ(messages.size(), 1U) << "the same situation is not told again";

    wide->StepU = 2;
    RebuildScene(state);
    EXPECT_FALSE(state.compiled.graphs[1]->empty());
    EXPECT_FALSE(state.compiled.legends->empty());
    wide->StepU = 10;
    RebuildScene(state);
    EXPECT_EQ(messages.size(), 2U);
    setTick(state, 0, false);
    EXPECT_EQ(messages.size(), 2U);
    EXPECT_TRUE(state.compiled.frame->empty()) << "no frame stands round nothing";
}

TEST(Scene, shownGraphsKeepTheOrderOfTheirTicks) {
    AppState state;
    showGridModel(state);
    addGraph(state, graphs::graph_type::vertexModel);
    setTick(state, 0, false);
    setTick(state, 1, true);
    setTick(state, 0, true);
    EXPECT_EQ(state.ShownGraphs.Graphs[0]->GraphType, graphs::graph_type::vertexModel);
    EXPECT_EQ(state.ShownGraphs.Graphs[1]->GraphType, graphs::graph_type::gridModel);
}

}  // namespace
}  // namespace tessaplot::core
