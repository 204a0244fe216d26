#include "ui/main_window.h"

#include <deque>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
#include "core/document.h"
#include "core/graph_list.h"
#include "core/refresh.h"
#include "ui/menu_table.h"

namespace tessaplot::ui {
namespace {

namespace fs = std::filesystem;
using platform::Answer;

/// A window on a desktop whose answers are laid out beforehand.
class MainWindow : public testing::Test {
 protected:
    void SetUp() override {
        folder = fs::path(testing::TempDir()) /
                 ("ui-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::create_directories(folder);
        state.desktop.ask = [this](const platform::Message& message) {
            asked.push_back(message.title + ": " + message.text);
            if (answers.empty()) return Answer::Cancel;
            const Answer answer = answers.front();
            answers.pop_front();
            return answer;
        };
        state.desktop.chooseFile =
            [this](const platform::FileQuestion& question) -> std::optional<platform::FileChoice> {
            asked.push_back(question.title + " " + question.filter);
            if (chosen.empty()) return std::nullopt;
            return platform::FileChoice{chosen, 1};
        };
        state.desktop.showStatus = [this](std::string_view text) { status = text; };
        window.load({});
    }
    void TearDown() override { fs::remove_all(folder); }

    void addGraph() {
        for (const int box : {1, 2})
            state.panel.setText(box, "2");
        window.Command1_Click();
        const char* cells[4][3] = {{"0", "0", "1"}, {"0", "1", "2"}, {"1", "0", "3"}, {"1", "1", "5"}};
        for (int row = 1; row <= 4; ++row)
            for (int column = 1; column <= 3; ++column)
                state.panel.setCell(column, row, cells[row - 1][column - 1]);
        state.TheData.GetData(state.panel, state.scaling, state.gridding, state.desktop);
        auto graph = std::make_shared<graphs::Cls9>();
        graph->ID = ++state.LastGraphId;
        graph->GraphType = graphs::graph_type::gridModel;
        state.AllGraphs.Graphs.push_back(graph);
        state.List1.add(graph, state.scene.SceneMode);
        window.List1_Tick(static_cast<int>(state.List1.entries.size()) - 1, true);
    }

    core::AppState state;
    frmF1 window{state};
    fs::path folder;
    std::vector<std::string> asked;
    std::deque<Answer> answers;
    std::string chosen;
    std::string status;
};

TEST_F(MainWindow, startsWithAnEmptySpatialDocument) {
    EXPECT_EQ(state.scene.SceneMode, 3);
    EXPECT_EQ(state.ShownGraphs.RotPitch, -30);
    EXPECT_EQ(state.ShownGraphs.RotYaw, 45);
    EXPECT_TRUE(state.TheAxis.Show);
    EXPECT_TRUE(asked.empty());
    window.run("mnuFileNew4D");
    EXPECT_EQ(state.scene.SceneMode, 11);
    EXPECT_TRUE(asked.empty()) << "an empty document asks nothing";
    window.run("mnuFileSave");
    EXPECT_TRUE(window.SaveDone);
    EXPECT_TRUE(asked.empty());
}

TEST_F(MainWindow, newKeepsTheDocumentUnlessItIsSavedOrGivenUp) {
    addGraph();
    window.run("mnuFileNew4D");
    EXPECT_THAT(asked, testing::ElementsAre("Note: Save changes to the file?"));
    EXPECT_EQ(state.scene.SceneMode, 3);
    answers = {Answer::Yes};
    window.run("mnuFileNew4D");
    EXPECT_EQ(asked.back(), "Save (*.tsp)|*.tsp");
    EXPECT_EQ(state.AllGraphs.Graphs.size(), 1U) << "the save was cancelled";
    EXPECT_EQ(state.scene.SceneMode, 3);
    answers = {Answer::Yes};
    chosen = (folder / "with blank.tsp").string();
    window.run("mnuFileNew4D");
    EXPECT_TRUE(state.AllGraphs.empty());
    EXPECT_EQ(state.scene.SceneMode, 11);
    EXPECT_FALSE(window.SaveDone);
    EXPECT_TRUE(fs::exists(chosen));
    addGraph();
    answers = {Answer::No};
    window.run("mnuFileNew3D");
    EXPECT_TRUE(state.AllGraphs.empty());
    EXPECT_EQ(state.LastGraphId, 0);
}

TEST_F(MainWindow, aFlatDocumentSwitchesTheSceneBeforeItAsks) {
    addGraph();
    window.run("mnuFileNew2D");
    EXPECT_EQ(state.scene.SceneMode, 7);
    EXPECT_EQ(state.AllGraphs.Graphs.size(), 1U);
    EXPECT_EQ(state.ShownGraphs.RotPitch, 0);
    EXPECT_EQ(state.TheLight.Position[0], 0);
    EXPECT_EQ(state.LastGraphId, 0);
    for (const char* turn : {"mnuViewISO", "mnuViewFront", "mnuViewRight", "mnuViewTop"})
        EXPECT_FALSE(window.isEnabled(turn));
    window.run("mnuViewISO");
    EXPECT_EQ(state.ShownGraphs.RotPitch, 0) << "a disabled command does nothing";
    answers = {Answer::No};
    window.run("mnuFileNew3D");
    EXPECT_TRUE(window.isEnabled("mnuViewISO"));
    EXPECT_EQ(state.TheLight.Position[1], 1000);
}

TEST_F(MainWindow, savesAndOpensAgain) {
    addGraph();
    chosen = (folder / "one.tsp").string();
    window.run("mnuFileSave");
    EXPECT_TRUE(window.SaveDone);
    EXPECT_THAT(status, testing::HasSubstr("one.tsp"));
    answers = {Answer::No};
    window.run("mnuFileNew3D");
    state.panel.clearCells();
    asked.clear();
    window.run("mnuFileOpen");
    EXPECT_THAT(asked, testing::ElementsAre("Open File (*.tsp)|*.tsp"));
    ASSERT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    EXPECT_EQ(state.panel.cell(3, 4), "5");
    chosen.clear();
    answers = {Answer::Yes};
    window.run("mnuFileOpen");
    EXPECT_EQ(asked.back(), "Open File (*.tsp)|*.tsp") << "opening goes on although the save was cancelled";
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    EXPECT_EQ(state.LastGraphId, 0);
}

TEST_F(MainWindow, failuresEndTheCommandAndKeepTheDocument) {
    addGraph();
    chosen = (folder / "missing" / "x.tsp").string();
    window.run("mnuFileSave");
    EXPECT_FALSE(window.SaveDone);
    EXPECT_THAT(status, testing::HasSubstr("cannot be written"));
    answers = {Answer::No};
    window.run("mnuFileOpen");
    EXPECT_THAT(asked.back(), testing::HasSubstr("cannot be read"));
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    state.panel.setText(1, "30000");
    window.Command1_Click();
    EXPECT_THAT(asked.back(), testing::HasSubstr("20000"));
    EXPECT_EQ(state.panel.gridRows(), 5);
    EXPECT_THROW(window.load("/nowhere/x.tsp"), base::Failure);
}

TEST_F(MainWindow, closingOffersToSaveOnlyAFilledDocument) {
    window.unload();
    EXPECT_TRUE(asked.empty());
    addGraph();
    answers = {Answer::Yes};
    chosen = (folder / "end.tsp").string();
    window.unload();
    EXPECT_THAT(asked, testing::ElementsAre("Note: Do you want to save the graphs?", "Save (*.tsp)|*.tsp"));
    asked.clear();
    answers = {Answer::Yes, Answer::Ok, Answer::No};
    chosen = (folder / "missing" / "end.tsp").string();
    window.unload();
    ASSERT_EQ(asked.size(), 4U) << "a failed save is told and offered again";
    EXPECT_THAT(asked[2], testing::HasSubstr("cannot be written"));
    chosen = (folder / "end.tsp").string();
    EXPECT_TRUE(fs::exists(chosen));
}

TEST_F(MainWindow, recoveryKeepsUntickedGraphsToo) {
    addGraph();
    window.List1_Tick(0, false);
    const fs::path path = window.saveRecovery(folder / "deep" / "er");
    ASSERT_FALSE(path.empty());
    const auto document = core::readDocument(core::readDocumentFile(path));
    ASSERT_TRUE(document);
    EXPECT_EQ(document->graphs.size(), 1U);
}

TEST_F(MainWindow, everyMenuEntryRunsAndNamesAreUnique) {
    std::set<std::string_view> names;
    std::set<std::string_view> shortcuts;
    for (const MenuEntry& entry : menuBar()) {
        if (entry.name.empty()) continue;
        EXPECT_TRUE(names.insert(entry.name).second) << entry.name;
        if (!entry.shortcut.empty()) {
            EXPECT_TRUE(shortcuts.insert(entry.shortcut).second);
        }
        window.run(entry.name);
    }
    EXPECT_EQ(state.scene.SceneMode, 11);
    state.panel.selectKind(data::DataKind::RegularSpherical);
    EXPECT_FALSE(window.isEnabled("mnuFileNew2D"));
    EXPECT_TRUE(window.isEnabled("mnuFileNew3D"));
}

TEST_F(MainWindow, fitFollowsThePicturesShape) {
    addGraph();
    window.resizePicture(400, 200);
    window.run("mnuViewFit");
    EXPECT_DOUBLE_EQ(state.TheView.VolWidth, 2 * state.TheView.VolHeight);
    EXPECT_NEAR(state.TheView.EyePos.x, 0.05 * state.TheView.VolWidth, 1e-9) << "room for legends";
    window.resizePicture(0, 0);
    EXPECT_NO_THROW(core::recordDisplay(state));
}

}  // namespace
}  // namespace tessaplot::ui
