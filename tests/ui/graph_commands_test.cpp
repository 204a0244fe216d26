#include "core/graph_commands.h"

#include <array>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/document.h"
#include "scripted_window.h"

namespace tessaplot::ui {
namespace {

namespace type = graphs::graph_type;

class GraphCommands : public ScriptedWindow {
 protected:
    std::string labels() const {
        std::string all;
        for (const core::GraphList::Entry& entry : state.List1.entries)
            all += entry.label + (entry.ticked ? "+" : "-");
        return all;
    }
    std::array<double, 3> angles() const {
        return {state.ShownGraphs.RotRoll, state.ShownGraphs.RotPitch, state.ShownGraphs.RotYaw};
    }
    std::size_t graphs() const { return state.AllGraphs.Graphs.size(); }
};

TEST_F(GraphCommands, everyDrawCommandAddsItsGraphTickedAndTurnsTheScene) {
    constexpr std::array<double, 3> flat{0, 0, 0};
    constexpr std::array<double, 3> spatial{0, -30, 45};
    const struct {
        const char* command;
        const char* mode;
        int graphType;
        const char* label;
        std::array<double, 3> angles;
    } rows[] = {
        {"mnuDrawPoint", "mnuFileNew2D", type::point, "Point  x=0, y=0+", flat},
        {"mnuDrawPoint", "mnuFileNew3D", type::point, "Point  x=0, y=0, z=0+", spatial},
        {"mnuDrawVert", "mnuFileNew3D", type::vertexModel, "3D Vertex Model+", spatial},
        {"mnuDrawGrid", "mnuFileNew3D", type::gridModel, "3D Grid Model+", spatial},
        {"mnuDrawTab3D", "mnuFileNew3D", type::surface, "3D Surface Model+", spatial},
        {"mnuDrawDelaunay", "mnuFileNew3D", type::delaunay, "Delaunay Triangles+", spatial},
        {"mnuDrawColor", "mnuFileNew2D", type::colorMap, "Color Map  +", flat},
        {"mnuDrawCon", "mnuFileNew2D", type::contour, "Contour Plot+", flat},
        {"mnuDrawVector", "mnuFileNew2D", type::vector, "Vector Plot+", flat},
        {"mnuDrawCon3D", "mnuFileNew3D", type::contour3D, "3D Contour Plot+", spatial},
        {"mnuDraw4DScat", "mnuFileNew4D", type::scatter4D, "4D Scatter +", spatial},
        {"mnuDraw4DVec", "mnuFileNew4D", type::vector4D, "4D Vector +", spatial},
        {"mnuDraw4DSlice", "mnuFileNew4D", type::slice4D, "4D Slice +", spatial},
        {"mnuDrawIsoSur", "mnuFileNew4D", type::isoSurface, "4D IsoSurface +", spatial},
    };
    for (const auto& row : rows) {
        core::DeleteAllGraphs(state);
        fillFor(row.graphType);
        window.run(row.mode);
        state.ShownGraphs.setAngles(1, 2, 3);
        displays = 0;
        asked.clear();
        window.run(row.command);
        EXPECT_THAT(asked, testing::IsEmpty()) << row.command;
        ASSERT_EQ(graphs(), 1U) << row.command;
        EXPECT_EQ(state.AllGraphs.Graphs[0]->GraphType, row.graphType);
        EXPECT_EQ(labels(), row.label);
        EXPECT_EQ(angles(), row.angles) << row.command;
        EXPECT_EQ(state.ShownGraphs.Graphs, state.AllGraphs.Graphs);
        EXPECT_GT(displays, 0);
    }
}

TEST_F(GraphCommands, aDialogThatIsCancelledOrAGraphThatCannotBeDrawnAddsNothing) {
    addGraph();
    state.ShownGraphs.setAngles(1, 2, 3);
    window.showForm = [](Form& form) { form.cancel(); };
    window.run("mnuDrawTab3D");
    EXPECT_EQ(labels(), "3D Grid Model+");

    window.showForm = [&](Form&) {
        auto graph = std::make_shared<graphs::Cls9>();
        graph->GraphType = type::point;
        graph->ID = ++state.LastGraphId;
        state.AllGraphs.Graphs.push_back(graph);
        state.scaling.ScaleX = 0;
    };
    window.run("mnuDrawPoint");
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(labels(), "3D Grid Model+");
    EXPECT_EQ(graphs(), 1U);
    EXPECT_EQ(angles(), (std::array<double, 3>{1, 2, 3}));
}

TEST_F(GraphCommands, copyPutsTheSelectedGraphOnTheClipboardTickedOrNot) {
    window.run("mnuEditCopy");
    window.run("mnuEditDelete");
    EXPECT_TRUE(asked.empty()) << "an empty document has nothing to act on";
    addGraph();
    addGraph();
    for (const char* command : {"mnuEditCopy", "mnuFunCut", "mnuFunDelete"}) {
        window.run(command);
        EXPECT_EQ(asked.back(), "Tessaplot: No graph is selected in the list.");
        EXPECT_EQ(graphs(), 2U);
        EXPECT_EQ(clipboard, "");
        EXPECT_EQ(window.CopiedCount, 0);
    }
    window.List1_Tick(0, false);
    window.List1_Select(0);
    window.run("mnuEditCopy");
    EXPECT_EQ(clipboard, "3 " + core::graphRecord(*state.AllGraphs.Graphs[0], state.gridding));
    window.List1_Tick(1, false);
    window.List1_Select(1);
    clipboard.clear();
    window.run("mnuEditCopy");
    EXPECT_EQ(clipboard, "") << "nothing is shown, so nothing is copied";
    EXPECT_EQ(window.CopiedCount, 1);
    window.run("mnuFunEdit");
    window.List1_RightClick();
    EXPECT_EQ(poppedUp, "FunEdit");
}

TEST_F(GraphCommands, pastedGraphsComeUpAsTheSelectedEntryStandsUnderIdsOfTheirOwn) {
    addGraph();
    clipboard = core::copiedGraph(state, *state.AllGraphs.Graphs[0]);
    window.run("mnuEditPaste");
    EXPECT_EQ(graphs(), 1U) << "this window has copied nothing yet";
    window.List1_Select(0);
    window.run("mnuEditCopy");
    window.run("mnuEditPaste");
    window.List1_Tick(0, false);
    window.run("mnuGraphPaste");
    EXPECT_EQ(labels(), "3D Grid Model-3D Grid Model+3D Grid Model-");
    EXPECT_EQ(state.AllGraphs.Graphs[1]->ID, 2);
    EXPECT_EQ(state.AllGraphs.Graphs[2]->ID, 3);
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    EXPECT_EQ(core::graphRecord(*state.AllGraphs.Graphs[1], state.gridding).substr(4),
              core::graphRecord(*state.AllGraphs.Graphs[0], state.gridding).substr(4));

    state.gridding.SurfaceGridMethod = 5;
    window.List1_Select(1);
    window.run("mnuEditCut");
    EXPECT_EQ(labels(), "3D Grid Model-3D Grid Model-");
    state.gridding.SurfaceGridMethod = 1;
    window.List1_Select(-1);
    window.run("mnuEditPaste");
    EXPECT_EQ(state.gridding.SurfaceGridMethod, 5) << "the record bears the method";
    EXPECT_EQ(labels(), "3D Grid Model-3D Grid Model-3D Grid Model-");
}

TEST_F(GraphCommands, aPastedIsoSurfaceHasNoEntryAndNoLaterCommandMissesItsGraph) {
    window.run("mnuFileNew4D");
    fillVolume();
    window.run("mnuDrawIsoSur");
    window.List1_Select(0);
    window.run("mnuEditCopy");
    window.run("mnuEditPaste");
    EXPECT_EQ(graphs(), 2U);
    EXPECT_EQ(labels(), "4D IsoSurface +");
    EXPECT_EQ(state.AllGraphs.Graphs[1]->StepH, state.TheData.StepsZ - 1);
    window.run("mnuDraw4DScat");
    EXPECT_EQ(labels(), "4D IsoSurface +4D Scatter +");
    window.List1_Select(1);
    window.run("mnuEditCopy");
    EXPECT_THAT(clipboard, testing::StartsWith("11 41 "));
    window.run("mnuEditDelete");
    ASSERT_EQ(graphs(), 2U);
    EXPECT_EQ(state.AllGraphs.Graphs[1]->GraphType, type::isoSurface);
    EXPECT_EQ(labels(), "4D IsoSurface +");
    window.run("mnuEditDelAll");
    EXPECT_EQ(graphs(), 0U);
    EXPECT_TRUE(asked.empty());
}

TEST_F(GraphCommands, textThatDoesNotGoWithTheSceneIsNotPasted) {
    addGraph();
    window.List1_Select(0);
    window.run("mnuEditCopy");
    const std::string record = clipboard.substr(2);
    const auto pasted = [&](int sceneMode, const std::string& text) {
        const std::size_t before = graphs();
        const int id = state.LastGraphId;
        asked.clear();
        clipboard = text;
        state.scene.SceneMode = sceneMode;
        window.run("mnuEditPaste");
        EXPECT_EQ(state.LastGraphId - id, static_cast<int>(graphs() - before));
        return graphs() > before;
    };
    for (const auto& [sceneMode, copiedMode, goes] :
         {std::tuple(3, "3 ", true), std::tuple(3, "6 ", true), std::tuple(3, "7 ", false), std::tuple(3, "11 ", false),
          std::tuple(7, "7 ", true), std::tuple(7, "3 ", false), std::tuple(11, "7 ", true), std::tuple(11, "3 ", true),
          std::tuple(1, "4 ", true), std::tuple(1, "1 ", true), std::tuple(1, "3 ", false)}) {
        EXPECT_EQ(pasted(sceneMode, copiedMode + record), goes) << sceneMode << " takes " << copiedMode;
        EXPECT_TRUE(asked.empty()) << "a wrong mode says nothing";
    }
    EXPECT_FALSE(pasted(3, "Dear reader, "));
    EXPECT_TRUE(asked.empty());
    EXPECT_FALSE(pasted(11, "Dear reader, "));
    EXPECT_EQ(asked.back(), "Tessaplot: The clipboard holds no graph.");
    EXPECT_FALSE(pasted(3, "3 19 1 @@ 1e99 "));
    EXPECT_EQ(asked.size(), 1U) << "a number out of range";
    EXPECT_FALSE(pasted(3, std::string(100 << 20, ' ')));
    EXPECT_THAT(asked.back(), testing::HasSubstr("more text"));
    EXPECT_FALSE(pasted(3, "3 " + record + std::string(19998, ' ')));
    EXPECT_FALSE(pasted(3, ""));
}

}  // namespace
}  // namespace tessaplot::ui
