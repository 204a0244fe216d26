#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
#include "base/files.h"
#include "core/document.h"
#include "core/refresh.h"
#include "example_state.h"

namespace tessaplot::core {
namespace {

namespace fs = std::filesystem;
namespace type = graphs::graph_type;

class LoadDocumentTest : public testing::Test {
 protected:
    void SetUp() override {
        state.desktop.ask = [this](const platform::Message& message) {
            told.push_back(message.text);
            return platform::Answer::Ok;
        };
    }
    fs::path written(const std::string& text) {
        fs::remove(folder / "document.tsp");
        writeDocumentFile(folder / "document.tsp", text);
        return folder / "document.tsp";
    }
    /// A document with these graphs, numbered 7, 6 and so on.
    fs::path example(std::initializer_list<int> graphTypes = {type::gridModel, type::vertexModel},
                     data::DataKind kind = data::DataKind::RegularSurface) {
        AppState other;
        fillPanel(other.panel, kind);
        int id = 7;
        for (const int graphType : graphTypes) {
            const GraphPtr graph = addGraph(other, graphType);
            graph->ID = id--;
            graph->ShowDG = true;
        }
        return written(documentText(partsOf(other, other.AllGraphs)));
    }

    TemporaryFolder folder;
    AppState state;
    std::vector<std::string> told;
};

TEST_F(LoadDocumentTest, showsEveryGraphFittedAndTurned) {
    int pictures = 0;
    state.desktop.display = [&] { ++pictures; };
    state.UseQuat = true;
    ASSERT_EQ(LoadDocument(state, example()), LoadResult::Loaded);
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
        EXPECT_THROW(LoadDocument(state, written(text)), base::Failure) << text;
        EXPECT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    }
    EXPECT_THROW(LoadDocument(state, "/nowhere/at all.tsp"), base::Failure);
    EXPECT_EQ(LoadDocument(state, ""), LoadResult::NoPath);
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    EXPECT_EQ(LoadDocument(state, written("no such tag")), LoadResult::UnknownTag);
    EXPECT_TRUE(state.AllGraphs.empty());
}

TEST_F(LoadDocumentTest, takesTheDocumentThatWasReadAheadForItsPathAlone) {
    const fs::path path = example();
    state.documentAhead = readAhead(path);
    EXPECT_EQ(LoadDocument(state, path), LoadResult::Loaded);
    EXPECT_EQ(state.List1.entries.size(), 2U);
    EXPECT_EQ(state.documentAhead, nullptr);

    state.documentAhead = readAhead("/nowhere/at all.tsp");
    EXPECT_EQ(LoadDocument(state, path), LoadResult::Loaded) << "what fails for another path is nobody's concern";
    state.documentAhead = readAhead("/nowhere/at all.tsp");
    EXPECT_THROW(LoadDocument(state, "/nowhere/at all.tsp"), base::Failure);
    EXPECT_EQ(state.List1.entries.size(), 2U);
    EXPECT_EQ(readAhead(""), nullptr);
}

TEST_F(LoadDocumentTest, dataThatCannotBeScaledLeaveTheGraphsListedAndUnticked) {
    showGridModel(state);
    AppState other;
    fillPanel(other.panel, data::DataKind::RegularSurface);
    addGraph(other, graphs::graph_type::gridModel);
    for (int row = 1; row < other.panel.gridRows(); ++row)
        other.panel.setCell(3, row, "4");
    try {
        LoadDocument(state, written(documentText(partsOf(other, other.AllGraphs))));
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
    using data::DataKind;
    ASSERT_EQ(LoadDocument(state, example({type::delaunay}, DataKind::IrregularSurface)), LoadResult::Loaded);
    EXPECT_GT(state.TriangleCount(), 0);
    EXPECT_THAT(gl::toText(*state.compiled.graphs[0]), testing::HasSubstr("glBegin GL_LINES\n"));
    EXPECT_THAT(told, testing::ElementsAre("INCIRCUM - F - Points are coincident !!"))
        << "every point stands in the data three times";

    ASSERT_EQ(LoadDocument(state, example({type::delaunay, type::vertexModel}, DataKind::IrregularSurface)),
              LoadResult::Loaded);
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 2U);
    EXPECT_EQ(state.TriangleCount(), 0);
    for (const DataKind kind : {DataKind::RegularSurface, DataKind::IrregularVolume}) {
        EXPECT_EQ(LoadDocument(state, example({type::delaunay}, kind)), LoadResult::Loaded);
        EXPECT_EQ(state.TriangleCount(), 0) << "there are no scattered points of a surface";
    }
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(LoadDocumentTest, aGraphWithoutAnEntryIsKeptButNotShown) {
    ASSERT_EQ(LoadDocument(state, example({type::nodesOnly, type::vertexModel})), LoadResult::Loaded);
    EXPECT_EQ(state.AllGraphs.Graphs.size(), 2U);
    EXPECT_EQ(state.List1.entries.size(), 1U);
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 1U);
}

TEST_F(LoadDocumentTest, deletingNeedsAnIndexAndTakesTheEntryAlong) {
    LoadDocument(state, example());
    EXPECT_THROW(DeleteGraph(state, 0), base::Failure);
    DeleteGraph(state, 1);
    ASSERT_EQ(state.List1.entries.size(), 1U);
    EXPECT_EQ(state.List1.entries[0].graph->ID, 6);
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    DeleteGraph(state, 1);
    EXPECT_NO_THROW(DeleteGraph(state, 0)) << "nothing is left to delete";
}

}  // namespace
}  // namespace tessaplot::core
