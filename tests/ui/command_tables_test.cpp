#include <map>
#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/joined.h"
#include "scripted_window.h"
#include "ui/command_table.h"
#include "ui/demo_table.h"
#include "ui/menu_table.h"
#include "ui/toolbar_table.h"

namespace tessaplot::ui {
namespace {

class CommandTables : public ScriptedWindow {};

char mnemonicOf(std::string_view caption) {
    const std::size_t mark = caption.find('&');
    return mark == std::string_view::npos ? '\0' : static_cast<char>(std::tolower(caption[mark + 1]));
}

TEST_F(CommandTables, everyEntryAndButtonHasACommandAndNoTwoShareANameOrAMnemonic) {
    std::set<std::string_view> names;
    for (const auto menu : {menuBar(), popupMenu("FunEdit"), popupMenu("GraphEdit"), popupMenu("mnuGE")}) {
        std::set<std::string_view> shortcuts;
        std::map<std::string, std::set<char>> mnemonics;
        std::vector<std::string> open;
        ASSERT_FALSE(menu.empty());
        for (std::size_t i = 0; i < menu.size(); ++i) {
            const MenuEntry& entry = menu[i];
            if (entry.name.empty()) continue;
            EXPECT_TRUE(names.insert(entry.name).second) << entry.name;
            const bool opensOthers = i + 1 < menu.size() && menu[i + 1].depth > entry.depth;
            EXPECT_EQ(CommandTable::find(entry.name) != nullptr, !opensOthers) << entry.name;
            open.resize(static_cast<std::size_t>(entry.depth));
            const std::string parent = open.empty() ? "" : open.back();
            open.emplace_back(entry.name);
            const char mnemonic = mnemonicOf(entry.caption);
            EXPECT_TRUE(mnemonic == '\0' || mnemonics[parent].insert(mnemonic).second) << entry.name;
            EXPECT_TRUE(entry.shortcut.empty() || shortcuts.insert(entry.shortcut).second) << entry.name;
        }
    }
    EXPECT_TRUE(popupMenu("mnuFile").empty());

    std::set<int> separators;
    for (const ToolbarButton& button : toolbar()) {
        if (button.command.empty()) separators.insert(button.index);
        EXPECT_EQ(names.contains(button.command), !button.command.empty()) << button.index;
    }
    EXPECT_THAT(separators, testing::ElementsAre(1, 5, 9, 11, 17, 19, 21, 26, 31, 35, 38, 46));
    EXPECT_EQ(toolbar()[29].hint, "Add a 3D contour plot");
    for (const int off : {-1, 0, 1, 46, 51}) {
        EXPECT_FALSE(window.isButtonEnabled(off));
        window.Toolbar1_ButtonClick(off);
    }
}

TEST_F(CommandTables, modesEnableTheirCommands) {
    struct Row {
        std::vector<const char*> entries;
        std::vector<int> buttons;
        const char* on;
    };
    const Row rows[] = {
        {{"mnuViewRotate", "mnuViewRotateX", "mnuViewRotateY", "mnuViewRotateZ"}, {42, 43, 44, 45}, "34"},
        {{"mnuViewFront", "mnuViewRight", "mnuViewTop", "mnuViewISO"}, {47, 48, 49, 50}, "34"},
        {{"mnuDrawVert", "mnuDrawGrid", "mnuDrawTab3D"}, {22, 23, 24, 25}, "3"},
        {{"mnuDrawCon3D"}, {30}, "3"},
        {{"mnuDrawColor", "mnuDrawCon", "mnuDrawVector"}, {27, 28, 29}, "2"},
        {{"mnuDraw4DScat", "mnuDraw4DVec", "mnuDraw4DSlice", "mnuDrawIsoSur"}, {32, 33, 34}, "4"},
        {{"mnuDrawLight"}, {37}, "34"},
        {{"mnuDrawDelaunay", "mnuDrawAxis", "mnuViewMove", "mnuDrawPoint"}, {36, 39, 40, 41, 20}, "234"},
    };
    for (const char mode : {'2', '4', '3', '2', '3'}) {
        window.run(std::string("mnuFileNew") + mode + "D");
        for (const Row& row : rows) {
            const bool on = std::string(row.on).find(mode) != std::string::npos;
            for (const char* entry : row.entries)
                EXPECT_EQ(window.isEnabled(entry), on) << entry << " in " << mode;
            for (const int button : row.buttons)
                EXPECT_EQ(window.isButtonEnabled(button), on) << button << " in " << mode;
        }
    }
}

TEST_F(CommandTables, kindsOfDataEnableTheirCommands) {
    const auto enabled = [this] {
        std::string marks;
        for (const char* entry : {"mnuFileNew2D", "mnuFileNew4D", "mnuDrawDelaunay", "mnuDrawCon3D", "mnuFileGridded"})
            marks += window.isEnabled(entry) ? '1' : '0';
        for (const int button : {2, 4, 25, 30})
            marks += window.isButtonEnabled(button) ? '1' : '0';
        return marks;
    };
    EXPECT_EQ(enabled(), "111101111");
    window.Combo1_Click(3);
    EXPECT_EQ(enabled(), "111111111");
    window.run("mnuFileNew2D");
    EXPECT_EQ(enabled(), "111011100") << "a flat scene has no 3D contours";
    window.Combo1_Click(5);
    EXPECT_EQ(enabled(), "000110000");
    window.Combo1_Click(6);
    EXPECT_EQ(enabled(), "000100000");
    window.Toolbar1_ButtonClick(4);
    EXPECT_EQ(state.scene.SceneMode, 7) << "a disabled button does nothing";
    window.Combo1_Click(0);
    EXPECT_EQ(enabled(), "110101100") << "what curvilinear data switched stays switched";
    window.Combo1_Click(8);
    EXPECT_EQ(state.panel.kind(), data::DataKind::RegularSurface);
}

TEST_F(CommandTables, documentsEnableTheCommandsOfTheirModeAndKind) {
    core::fillPanel(state.panel, data::DataKind::IrregularSpherical);
    state.scene.SceneMode = scene::mode2D;
    chosen = folder / "flat.tsp";
    window.run("mnuFileSaveAs");
    window.Combo1_Click(0);
    window.run("mnuFileNew3D");
    window.run("mnuFileOpen");
    EXPECT_EQ(state.scene.SceneMode, 7);
    for (const auto& [command, on] : {std::pair("mnuDrawColor", true),
                                      {"mnuFileGridded", true},
                                      {"mnuViewISO", false},
                                      {"mnuFileNew4D", false},
                                      {"mnuHelpHome", false}})
        EXPECT_EQ(window.isEnabled(command), on) << command;
    EXPECT_FALSE(window.isButtonEnabled(18)) << "help leads nowhere yet";
    window.help.contents = "contents";
    EXPECT_TRUE(window.isButtonEnabled(18) && window.isEnabled("mnuHelpCon"));
}

TEST_F(CommandTables, commandsReachTheirHandlers) {
    std::string happened;
    window.help = {"contents", "home", "support", "videos", "news", "forum"};
    window.showForm = [&](Form& form) { happened += form.name(); };
    state.desktop.openPage = [&](std::string_view page) { happened += page; };
    state.desktop.closeWindow = [&] { happened += "closed"; };
    const std::pair<const char*, const char*> rows[]{
        {"mnuViewFront", " 0 0 0"},  {"mnuViewRight", " 0 0 90"}, {"mnuViewTop", " 0 -90 0"},
        {"mnuViewISO", " 0 -30 45"}, {"mnuViewSet", "frmF14"},    {"mnuDrawAxis", "frmF3"},
        {"mnuDrawLight", "frmF8"},   {"mnuGraphAxis", "frmF3"},   {"mnuGraphLight", "frmF8"},
        {"mnuGESet", "frmOption"},   {"mnuHelpAbout", "frmF2"},   {"mnuHelpCon", "contents"},
        {"mnuHelpHome", "home"},     {"mnuHelpCus", "support"},   {"mnuHelpVideo", "videos"},
        {"mnuHelpTwitter", "news"},  {"mnuHelpFB", "forum"},      {"mnuFileExit", "closed"},
        {"mnuEditDelAll", " 0 0"},   {"mnuGraphDelAll", " 0 0"},  {"mnuFunCopy", " 1 1"},
        {"mnuFunCut", " 0 1"},       {"mnuFunDelete", " 0 0"},
    };
    for (const auto& [command, effect] : rows) {
        core::DeleteAllGraphs(state);
        addGraph();
        window.List1_Select(0);
        state.ShownGraphs.setAngles(1, 2, 3);
        window.CopiedCount = 0;
        happened.clear();
        window.run(command);
        if (state.ShownGraphs.RotRoll != 1)
            happened += joined(state.ShownGraphs.RotRoll, state.ShownGraphs.RotPitch, state.ShownGraphs.RotYaw);
        if (state.AllGraphs.empty() || window.CopiedCount > 0)
            happened += joined(state.AllGraphs.Graphs.size(), window.CopiedCount);
        EXPECT_EQ(happened, effect) << command;
    }
}

TEST_F(CommandTables, demosOpenTheirSampleFittedAndWithoutAQuestion) {
    addGraph();
    state.samplesFolder = TESSAPLOT_SAMPLES;
    state.TheView.SetViewRect(1, 1);
    window.run("mnuDemoR3");
    EXPECT_TRUE(asked.empty());
    ASSERT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    EXPECT_GT(state.TheView.VolHeight, 10);
    EXPECT_FALSE(state.FitOnRefresh);
    const core::GraphPtr shown = state.ShownGraphs.Graphs[0];
    state.samplesFolder = "/nowhere";
    for (const Demo& demo : demos()) {
        window.run(demo.command);
        EXPECT_THAT(theQuestion(), testing::HasSubstr(demo.fileName));
        EXPECT_EQ(state.ShownGraphs.Graphs[0], shown) << "a missing sample leaves the document";
        EXPECT_FALSE(state.FitOnRefresh);
    }
}

}  // namespace
}  // namespace tessaplot::ui
