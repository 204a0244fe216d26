#include "ui/main_window.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "core/refresh.h"
#include "scripted_window.h"
#include "ui/menu_table.h"
#include "ui/toolbar_table.h"

namespace tessaplot::ui {
namespace {

namespace fs = std::filesystem;
using platform::Answer;
using testing::ElementsAre;
using testing::HasSubstr;

class MainWindow : public ScriptedWindow {};

TEST_F(MainWindow, startsWithAnEmptySpatialDocumentThatAsksNothing) {
    EXPECT_EQ(state.scene.SceneMode, 3);
    EXPECT_EQ(state.ShownGraphs.RotPitch, -30);
    EXPECT_EQ(state.ShownGraphs.RotYaw, 45);
    EXPECT_TRUE(state.TheAxis.Show);
    window.run("mnuFileNew4D");
    EXPECT_EQ(state.scene.SceneMode, 11);
    window.run("mnuFileSave");
    EXPECT_TRUE(window.SaveDone);
    window.unload();
    EXPECT_THAT(asked, ElementsAre());
}

TEST_F(MainWindow, newKeepsTheDocumentUnlessItIsSavedOrGivenUp) {
    addGraph();
    window.run("mnuFileNew4D");
    EXPECT_THAT(asked, ElementsAre("Note: Save changes to the file?"));
    EXPECT_EQ(state.scene.SceneMode, 3);
    answers = {Answer::Yes};
    window.run("mnuFileNew4D");
    EXPECT_EQ(asked.back(), "Save (*.tsp)|*.tsp");
    EXPECT_EQ(state.AllGraphs.Graphs.size(), 1U) << "the save was cancelled";
    EXPECT_EQ(state.scene.SceneMode, 3);
    answers = {Answer::Yes};
    chosen = folder / "with blank.tsp";
    window.run("mnuFileNew4D");
    EXPECT_TRUE(state.AllGraphs.empty() && fs::exists(chosen));
    EXPECT_EQ(state.scene.SceneMode, 11);
    EXPECT_FALSE(window.SaveDone);
}

TEST_F(MainWindow, aFlatDocumentSwitchesTheSceneBeforeItAsks) {
    addGraph();
    window.run("mnuFileNew2D");
    EXPECT_EQ(state.scene.SceneMode, 7);
    EXPECT_EQ(state.AllGraphs.Graphs.size(), 1U);
    EXPECT_EQ(state.ShownGraphs.RotPitch, 0);
    EXPECT_EQ(state.TheLight.Position[0], 0);
    EXPECT_EQ(state.LastGraphId, 0);
    window.run("mnuViewISO");
    EXPECT_EQ(state.ShownGraphs.RotPitch, 0) << "a disabled command does nothing";
    answers = {Answer::No};
    window.run("mnuFileNew3D");
    EXPECT_TRUE(state.AllGraphs.empty());
    EXPECT_EQ(state.TheLight.Position[1], 1000);
}

TEST_F(MainWindow, savesAndOpensAgain) {
    addGraph();
    chosen = folder / "one.tsp";
    window.run("mnuFileSave");
    EXPECT_TRUE(window.SaveDone);
    EXPECT_THAT(status, HasSubstr("one.tsp"));
    answers = {Answer::No};
    window.run("mnuFileNew3D");
    state.panel.setCell(3, 2, "");
    asked.clear();
    window.run("mnuFileOpen");
    EXPECT_EQ(theQuestion(), "Open File (*.tsp)|*.tsp");
    ASSERT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    EXPECT_EQ(state.panel.cell(3, 2), "4");
    chosen.clear();
    answers = {Answer::Yes};
    window.run("mnuFileOpen");
    EXPECT_EQ(asked.back(), "Open File (*.tsp)|*.tsp") << "opening goes on although the save was cancelled";
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    EXPECT_EQ(state.LastGraphId, 0);
}

TEST_F(MainWindow, failuresEndTheCommandAndKeepTheDocument) {
    addGraph();
    chosen = folder / "missing" / "x.tsp";
    window.run("mnuFileSave");
    EXPECT_FALSE(window.SaveDone);
    EXPECT_THAT(status, HasSubstr("cannot be written"));
    answers = {Answer::No};
    window.run("mnuFileOpen");
    EXPECT_THAT(asked.back(), HasSubstr("cannot be read"));
    chosen = folder / "pipe";
    answers = {Answer::No};
    ASSERT_EQ(mkfifo(chosen.c_str(), 0600), 0);
    window.run("mnuFileOpen");
    EXPECT_THAT(asked.back(), HasSubstr("not a regular file")) << "nobody writes into the pipe";
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    state.panel.setText(1, "30000");
    window.Command1_Click();
    EXPECT_THAT(asked.back(), HasSubstr("20000"));
    EXPECT_EQ(state.panel.gridRows(), 21);
    EXPECT_THROW(window.load("/nowhere/x.tsp"), base::Failure);
}

TEST_F(MainWindow, closingOffersToSaveAFilledDocumentUntilItIsSavedOrGivenUp) {
    addGraph();
    answers = {Answer::Yes};
    chosen = folder / "end.tsp";
    window.unload();
    EXPECT_THAT(asked, ElementsAre("Note: Do you want to save the graphs?", "Save (*.tsp)|*.tsp"));
    EXPECT_TRUE(fs::exists(chosen));
    asked.clear();
    answers = {Answer::Yes, Answer::Ok, Answer::No};
    chosen = folder / "missing" / "end.tsp";
    window.unload();
    ASSERT_EQ(asked.size(), 4U) << "a failed save is told and offered again";
    EXPECT_THAT(asked[2], HasSubstr("cannot be written"));
}

TEST_F(MainWindow, recoveryKeepsUntickedGraphsToo) {
    addGraph();
    window.List1_Tick(0, false);
    core::AppState opened;
    core::LoadDocument(opened, window.saveRecovery(folder / "deep" / "er"));
    EXPECT_EQ(opened.AllGraphs.Graphs.size(), 1U);
}

TEST_F(MainWindow, everyCommandAndButtonRunsOnAnEmptyAndOnAFilledDocument) {
    state.desktop.readFrame = [](int width, int height) {
        return std::vector<std::uint8_t>(static_cast<std::size_t>((3 * width + 3) / 4 * 4 * height));
    };
    for (const bool filled : {false, true}) {
        if (filled) addGraph();
        for (const auto menu : {menuBar(), popupMenu("FunEdit"), popupMenu("GraphEdit"), popupMenu("mnuGE")})
            for (const MenuEntry& entry : menu)
                window.run(entry.name);
        for (const ToolbarButton& button : toolbar())
            window.Toolbar1_ButtonClick(button.index);
        EXPECT_FALSE(window.wantsIdle());
        EXPECT_GT(displays, 0);
    }
    window.run("mnuNothing");
    window.run("");
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
