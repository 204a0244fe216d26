#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
#include "core/document.h"
#include "core/refresh.h"
#include "example_state.h"

namespace tessaplot::core {
namespace {

namespace fs = std::filesystem;

class LoadDocumentTest : public testing::Test {
 protected:
    fs::path put(const std::string& text) {
        const fs::path path =
            fs::path(testing::TempDir()) /
            ("load-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()) + ".tsp");
        fs::remove(path);
        writeDocumentFile(path, text);
        return path;
    }
    fs::path putExample(int graphType = graphs::graph_type::gridModel) {
        AppState other;
        fillPanel(other.panel, data::DataKind::RegularSurface);
        addGraph(other, graphType)->ID = 7;
        addGraph(other, graphs::graph_type::vertexModel)->ID = 3;
        return put(documentText(partsOf(other, other.AllGraphs)));
    }

    AppState state;
};

TEST_F(LoadDocumentTest, showsEveryGraphFittedAndTurned) {
    int pictures = 0;
    state.desktop.display = [&] { ++pictures; };
    state.UseQuat = true;
    ASSERT_EQ(LoadDocument(state, putExample()), LoadResult::Loaded);
    EXPECT_EQ(state.LastGraphId, 8) << "one more than the largest id";
    ASSERT_EQ(state.List1.entries.size(), 2U);
    EXPECT_TRUE(state.List1.entries[1].ticked);
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 2U);
    EXPECT_EQ(state.ShownGraphs.RotPitch, -30);
    EXPECT_FALSE(state.UseQuat);
    EXPECT_GT(pictures, 0);
    EXPECT_NEAR(state.TheView.VolHeight, 2.1 * 10.08, 1e-9) << "2.1 times the box of ten units and its margins";
    EXPECT_FALSE(state.FitOnRefresh);
}

TEST_F(LoadDocumentTest, aDocumentThatCannotBeReadLeavesTheOpenOne) {
    showGridModel(state);
    for (const std::string text : {"D41 0 1 200 101 ", "D41 2000000000 1 1 1 1 2 3 4", "D41 0 9 1 1"}) {
        EXPECT_THROW(LoadDocument(state, put(text)), base::Failure) << text;
        EXPECT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    }
    EXPECT_THROW(LoadDocument(state, "/nowhere/at all.tsp"), base::Failure);
    EXPECT_EQ(LoadDocument(state, ""), LoadResult::NoPath);
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    EXPECT_EQ(LoadDocument(state, put("no such tag")), LoadResult::UnknownTag);
    EXPECT_TRUE(state.AllGraphs.empty());
}

TEST_F(LoadDocumentTest, dataThatCannotBeScaledLeaveTheGraphsListedAndUnticked) {
    showGridModel(state);
    AppState other;
    fillPanel(other.panel, data::DataKind::RegularSurface);
    addGraph(other, graphs::graph_type::gridModel);
    for (int row = 1; row < other.panel.gridRows(); ++row)
        other.panel.setCell(3, row, "4");
    const fs::path flat = put(documentText(partsOf(other, other.AllGraphs)));
    try {
        LoadDocument(state, flat);
        FAIL();
    } catch (const base::Failure& failure) {
        EXPECT_THAT(failure.what(), testing::HasSubstr("range of Z is zero"));
    }
    ASSERT_EQ(state.List1.entries.size(), 1U);
    EXPECT_FALSE(state.List1.entries[0].ticked);
    EXPECT_TRUE(state.ShownGraphs.empty());
    EXPECT_EQ(state.TheData.StepsX, 0) << "nothing is left to draw a wrong picture from";
    EXPECT_NO_THROW(RebuildScene(state));
}

TEST_F(LoadDocumentTest, triangulatesForTheLastGraphAloneAndTellsOfCoincidentPointsOnce) {
    std::vector<std::string> messages;
    state.desktop.ask = [&](const platform::Message& message) {
        messages.push_back(message.text);
        return platform::Answer::Ok;
    };
    AppState other;
    fillPanel(other.panel, data::DataKind::IrregularSurface);
    addGraph(other, graphs::graph_type::delaunay)->ShowDG = true;
    const std::string last = documentText(partsOf(other, other.AllGraphs));
    ASSERT_EQ(LoadDocument(state, put(last)), LoadResult::Loaded);
    EXPECT_GT(state.TriangleCount(), 0);
    EXPECT_THAT(gl::toText(*state.compiled.graphs[0]), testing::HasSubstr("glBegin GL_LINES\n"));
    ASSERT_EQ(messages.size(), 1U) << "every point stands in the data three times";
    EXPECT_THAT(messages[0], testing::HasSubstr("oincident"));

    addGraph(other, graphs::graph_type::vertexModel);
    ASSERT_EQ(LoadDocument(state, put(documentText(partsOf(other, other.AllGraphs)))), LoadResult::Loaded);
    EXPECT_EQ(state.TriangleCount(), 0);
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 2U);
    EXPECT_EQ(messages.size(), 1U);
}

TEST_F(LoadDocumentTest, aGraphOfTrianglesNeedsNoScatteredPoints) {
    ASSERT_EQ(LoadDocument(state, putExample(graphs::graph_type::delaunay)), LoadResult::Loaded);
    AppState other;
    for (const data::DataKind kind : {data::DataKind::RegularSurface, data::DataKind::IrregularVolume}) {
        fillPanel(other.panel, kind);
        addGraph(other, graphs::graph_type::delaunay);
        EXPECT_EQ(LoadDocument(state, put(documentText(partsOf(other, other.AllGraphs)))), LoadResult::Loaded);
        EXPECT_EQ(state.TriangleCount(), 0);
    }
}

TEST_F(LoadDocumentTest, aGraphWithoutAnEntryIsKeptButNotShown) {
    ASSERT_EQ(LoadDocument(state, putExample(graphs::graph_type::nodesOnly)), LoadResult::Loaded);
    EXPECT_EQ(state.AllGraphs.Graphs.size(), 2U);
    EXPECT_EQ(state.List1.entries.size(), 1U);
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 1U);
}

TEST_F(LoadDocumentTest, deletingNeedsAnIndexAndTakesTheEntryAlong) {
    LoadDocument(state, putExample());
    EXPECT_THROW(DeleteGraph(state, 0), base::Failure);
    DeleteGraph(state, 1);
    ASSERT_EQ(state.List1.entries.size(), 1U);
    EXPECT_EQ(state.List1.entries[0].graph->ID, 3);
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    DeleteGraph(state, 1);
    EXPECT_NO_THROW(DeleteGraph(state, 0)) << "nothing is left to delete";
}

}  // namespace
}  // namespace tessaplot::core
