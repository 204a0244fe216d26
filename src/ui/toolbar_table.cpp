#include "ui/toolbar_table.h"

#include <array>
#include <cstddef>

namespace tessaplot::ui {

namespace {

constexpr std::array buttons{
    ToolbarButton{2, "mnuFileNew2D", "Create new 2D graphs"},
    ToolbarButton{3, "mnuFileNew3D", "Create new 3D graphs"},
    ToolbarButton{4, "mnuFileNew4D", "Create new 4D graphs"},
    ToolbarButton{6, "mnuFileOpen", "Open file"},
    ToolbarButton{7, "mnuFileSave", "Save file"},
    ToolbarButton{8, "mnuFileSaveAs", "Save file as"},
    ToolbarButton{10, "mnuFilePrint", "Print"},
    ToolbarButton{12, "mnuEditCut", "Cut the selected graph"},
    ToolbarButton{13, "mnuEditCopy", "Copy the selected graph"},
    ToolbarButton{14, "mnuEditCopyAs", "Copy graphs as bitmap"},
    ToolbarButton{15, "mnuEditPaste", "Paste"},
    ToolbarButton{16, "mnuEditDelete", "Delete the selected graph"},
    ToolbarButton{18, "mnuHelpCon", "Get online help"},
    ToolbarButton{20, "mnuDrawPoint", "Add a point"},
    ToolbarButton{22, "mnuDrawVert", "Add a vertex model"},
    ToolbarButton{23, "mnuDrawGrid", "Add a grid model"},
    ToolbarButton{24, "mnuDrawTab3D", "Add a surface model"},
    ToolbarButton{25, "mnuDrawDelaunay", "Create Delaunay Triangles"},
    ToolbarButton{27, "mnuDrawColor", "Add a color map"},
    ToolbarButton{28, "mnuDrawCon", "Add a contour plot"},
    ToolbarButton{29, "mnuDrawVector", "Add a vector plot"},
    ToolbarButton{30, "mnuDrawCon3D", "Add a 3D contour plot"},
    ToolbarButton{32, "mnuDraw4DScat", "Add a 4D scatter plot"},
    ToolbarButton{33, "mnuDraw4DVec", "Add a 4D vector plot"},
    ToolbarButton{34, "mnuDraw4DSlice", "Add a 4D slice plot"},
    ToolbarButton{36, "mnuDrawAxis", "Set axis properties"},
    ToolbarButton{37, "mnuDrawLight", "Set light properties"},
    ToolbarButton{39, "mnuViewMove", "Move the scene"},
    ToolbarButton{40, "mnuViewZoom", "Zoom in or zoom out the scene"},
    ToolbarButton{41, "mnuViewFit", "Zoom to an appropriate size"},
    ToolbarButton{42, "mnuViewRotateX", "Rotate About X Axis"},
    ToolbarButton{43, "mnuViewRotateY", "Rotate About Y Axis"},
    ToolbarButton{44, "mnuViewRotateZ", "Rotate About Z Axis"},
    ToolbarButton{45, "mnuViewRotate", "Rotate the scene"},
    ToolbarButton{47, "mnuViewFront", "View from the front"},
    ToolbarButton{48, "mnuViewRight", "View from the right"},
    ToolbarButton{49, "mnuViewTop", "View from the top"},
    ToolbarButton{50, "mnuViewISO", "View ISO"},
};

constexpr std::array<ToolbarButton, toolbarSize> withSeparators() {
    std::array<ToolbarButton, toolbarSize> places{};
    for (std::size_t i = 0; i < places.size(); ++i)
        places[i].index = static_cast<int>(i) + 1;
    for (const ToolbarButton& button : buttons)
        places[static_cast<std::size_t>(button.index) - 1] = button;
    return places;
}

constexpr std::array<ToolbarButton, toolbarSize> places = withSeparators();

}  // namespace

std::span<const ToolbarButton> toolbar() {
    return places;
}

}  // namespace tessaplot::ui
