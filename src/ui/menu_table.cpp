#include "ui/menu_table.h"

#include <algorithm>
#include <array>

namespace tessaplot::ui {

namespace {

constexpr MenuEntry separator{1, "", ""};
constexpr MenuEntry popupSeparator{0, "", ""};

constexpr std::array bar{
    MenuEntry{0, "mnuFile", "&File"},
    MenuEntry{1, "mnuFileNew", "&New"},
    MenuEntry{2, "mnuFileNew2D", "New &2D Graphs", "", "Create new 2D graphs"},
    MenuEntry{2, "mnuFileNew3D", "New &3D Graphs", "Ctrl+N", "Create new 3D graphs"},
    MenuEntry{2, "mnuFileNew4D", "New &4D Graphs", "", "Create new 4D graphs"},
    MenuEntry{1, "mnuFileOpen", "&Open...", "Ctrl+O", "Open file"},
    MenuEntry{1, "mnuFileSave", "&Save", "Ctrl+S", "Save file"},
    MenuEntry{1, "mnuFileSaveAs", "Save&As...", "Ctrl+Shift+S", "Save file as"},
    separator,
    MenuEntry{1, "mnuFileImport", "&Import Data ...", "Ctrl+I", "Read the data of a text file"},
    MenuEntry{1, "mnuFileOutput", "Ou&tput Data ...", "Ctrl+T", "Write the data to a text file"},
    MenuEntry{1, "mnuFileGridded", "Output &Gridded Data ...", "", "Write the gridded data to a text file"},
    separator,
    MenuEntry{1, "mnuFilePrint", "&Print...", "Ctrl+P", "Print"},
    separator,
    MenuEntry{1, "mnuFileExit", "E&xit", "Ctrl+Q", "Leave the program"},

    MenuEntry{0, "mnuEdit", "&Edit"},
    MenuEntry{1, "mnuEditCut", "Cu&t", "Ctrl+X", "Cut the selected graph"},
    MenuEntry{1, "mnuEditCopy", "&Copy", "Ctrl+C", "Copy the selected graph"},
    MenuEntry{1, "mnuEditCopyAs", "Copy As &BMP", "Ctrl+Shift+C", "Copy graphs as bitmap"},
    MenuEntry{1, "mnuEditPaste", "&Paste", "Ctrl+V", "Paste"},
    separator,
    MenuEntry{1, "mnuEditDelete", "&Delete", "Del", "Delete the selected graph"},
    MenuEntry{1, "mnuEditDelAll", "Delete &All", "", "Delete all graphs"},

    MenuEntry{0, "mnuView", "&View"},
    MenuEntry{1, "mnuViewMove", "&Move", "Ctrl+M", "Move the scene"},
    MenuEntry{1, "mnuViewZoom", "&Zoom", "Ctrl+Shift+Z", "Zoom in or zoom out the scene"},
    MenuEntry{1, "mnuViewFit", "Zoom to &Fit", "Ctrl+0", "Zoom to an appropriate size"},
    MenuEntry{1, "mnuViewRotateX", "Rotate About &X Axis", "", "Rotate About X Axis"},
    MenuEntry{1, "mnuViewRotateY", "Rotate About &Y Axis", "", "Rotate About Y Axis"},
    MenuEntry{1, "mnuViewRotateZ", "&Rotate About Z Axis", "", "Rotate About Z Axis"},
    MenuEntry{1, "mnuViewRotate", "Trac&kball", "Ctrl+R", "Rotate the scene"},
    separator,
    MenuEntry{1, "mnuViewFront", "Fro&nt", "Ctrl+1", "View from the front"},
    MenuEntry{1, "mnuViewRight", "Ri&ght", "Ctrl+2", "View from the right"},
    MenuEntry{1, "mnuViewTop", "&Top", "Ctrl+3", "View from the top"},
    MenuEntry{1, "mnuViewISO", "&ISO", "Ctrl+4", "View ISO"},
    separator,
    MenuEntry{1, "mnuViewSet", "&Settings...", "", "Set view properties"},

    MenuEntry{0, "mnuDraw", "&Draw"},
    MenuEntry{1, "mnuDrawPoint", "&Point", "", "Add a point"},
    separator,
    MenuEntry{1, "mnuDrawVert", "3D &Vertex Model", "", "Add a vertex model"},
    MenuEntry{1, "mnuDrawGrid", "3D &Grid Model", "", "Add a grid model"},
    MenuEntry{1, "mnuDrawTab3D", "3D &Surface Model", "", "Add a surface model"},
    MenuEntry{1, "mnuDrawDelaunay", "&Delaunay Triangles", "", "Create Delaunay Triangles"},
    separator,
    MenuEntry{1, "mnuDrawColor", "Color &Map", "", "Add a color map"},
    MenuEntry{1, "mnuDrawCon", "&Contour Plot", "", "Add a contour plot"},
    MenuEntry{1, "mnuDrawVector", "V&ector Plot", "", "Add a vector plot"},
    MenuEntry{1, "mnuDrawCon3D", "&3D Contour Plot", "", "Add a 3D contour plot"},
    separator,
    MenuEntry{1, "mnuDraw4DScat", "&4D Scatter", "", "Add a 4D scatter plot"},
    MenuEntry{1, "mnuDraw4DVec", "4D Vec&tor", "", "Add a 4D vector plot"},
    MenuEntry{1, "mnuDraw4DSlice", "4D S&lice", "", "Add a 4D slice plot"},
    MenuEntry{1, "mnuDrawIsoSur", "4D &IsoSurface", "", "Add a 4D isosurface"},
    separator,
    MenuEntry{1, "mnuDrawAxis", "&Axis...", "", "Set axis properties"},
    MenuEntry{1, "mnuDrawLight", "Lig&ht...", "", "Set light properties"},

    MenuEntry{0, "mnuDemo", "De&mo"},
    MenuEntry{1, "mnuDemoR3", "&Regular Data 3D Surface"},
    MenuEntry{1, "mnuDemoI3", "&Irregular Data 3D Surface"},
    MenuEntry{1, "mnuDemoVG", "3D Vertex + &Grid"},
    MenuEntry{1, "mnuDemoSG", "3D &Surface + Grid"},
    MenuEntry{1, "mnuDemoFlat", "3D &Flat Surface"},
    MenuEntry{1, "mnuDemo3dscc", "3D Surface + Color Map + Co&ntour"},
    MenuEntry{1, "mnuDemo3dSpe", "3D Surface + S&pecial Graphs"},
    MenuEntry{1, "mnuDemo3dsc", "3D Surface + Color&map"},
    MenuEntry{1, "mnuDemo4dSur", "&4D Surface"},
    MenuEntry{1, "mnuDemoDelaunay", "&Delaunay Triangles"},
    MenuEntry{1, "mnuDemoCyl", "C&ylindrical Surface"},
    MenuEntry{1, "mnuDemoSph", "Sp&herical Surface"},
    separator,
    MenuEntry{1, "mnuDemoCC", "Color Map + &Contour"},
    MenuEntry{1, "mnuDemoCV", "C&ontour + Vector"},
    MenuEntry{1, "mnuDemo3C", "&3D Contour"},
    MenuEntry{2, "mnuDemo3DCC1", "Cartesian &1"},
    MenuEntry{2, "mnuDemo3DCC2", "Cartesian &2"},
    MenuEntry{2, "mnuDemo3DCCy", "&Cylindrical"},
    MenuEntry{2, "mnuDemo3DCS", "&Spherical"},
    separator,
    MenuEntry{1, "mnuDemo4S", "4D Sc&atter Plot"},
    MenuEntry{1, "mnuDemoSlice", "4D S&lice Plot"},
    MenuEntry{1, "mnuDemo4DSlice2", "4D Slice Plot &2"},
    MenuEntry{1, "mnuDemoVector", "4D &Vector Plot"},
    MenuEntry{1, "mnuDemo4ds", "4D Slic&e"},
    MenuEntry{1, "mnuDemo4DVecIsoSur", "4D Vec&tor + IsoSurface"},
    MenuEntry{1, "mnuDemo4DSliceIsoSur", "4D Slice + IsoS&urface"},
    MenuEntry{1, "mnuDemo4dsc", "4D Slice + Contour"},
    MenuEntry{1, "mnuDemo4SV", "4D Slice + Contour + Vector"},

    MenuEntry{0, "mnuHelp", "&Help"},
    MenuEntry{1, "mnuHelpCon", "&Contents...", "F1", "Get online help"},
    separator,
    MenuEntry{1, "mnuHelpHome", "&Home Page", "", "Open the home page"},
    MenuEntry{1, "mnuHelpCus", "Customer &Support", "", "Open the page of the customer support"},
    MenuEntry{1, "mnuHelpVideo", "&Video Tutorials", "", "Open the page of the video tutorials"},
    MenuEntry{1, "mnuHelpTwitter", "Community &News", "", "Open the page of the community's news"},
    MenuEntry{1, "mnuHelpFB", "Community &Forum", "", "Open the page of the community's forum"},
    separator,
    MenuEntry{1, "mnuHelpAbout", "&About...", "", "Tell about the program"},
};

constexpr std::array listMenu{
    MenuEntry{0, "mnuFunEdit", "&Edit..."},
    MenuEntry{0, "mnuFunCut", "Cu&t", "", "Cut the selected graph"},
    MenuEntry{0, "mnuFunCopy", "&Copy", "", "Copy the selected graph"},
    MenuEntry{0, "mnuFunDelete", "&Delete", "", "Delete the selected graph"},
};

constexpr std::array pictureMenu{
    MenuEntry{0, "mnuGraphPaste", "&Paste", "", "Paste"},
    MenuEntry{0, "mnuGraphCopyAs", "Copy As &BMP", "", "Copy graphs as bitmap"},
    MenuEntry{0, "mnuGraphDelAll", "Delete A&ll", "", "Delete all graphs"},
    popupSeparator,
    MenuEntry{0, "mnuGraphAxis", "&Axis...", "", "Set axis properties"},
    MenuEntry{0, "mnuGraphLight", "Li&ght...", "", "Set light properties"},
};

constexpr std::array gridMenu{
    MenuEntry{0, "mnuGESet", "&Settings...", "", "Set the size of the grid"},
    popupSeparator,
    MenuEntry{0, "mnuGECutIt", "Cu&t", "Ctrl+X", "Cut the selected cells"},
    MenuEntry{0, "mnuGECopy", "&Copy", "Ctrl+C", "Copy the selected cells"},
    MenuEntry{0, "mnuGEPaste", "&Paste", "Ctrl+V", "Paste at the selection"},
    MenuEntry{0, "mnuGEDelete", "&Delete", "Del", "Clear the selected cells"},
    popupSeparator,
    MenuEntry{0, "mnuGEInsertRow", "Insert &Row", "", "Insert a row above the selection"},
    MenuEntry{0, "mnuGEInsertCol", "Insert C&olumn", "", "Insert a column left of the selection"},
    MenuEntry{0, "mnuGEDelRow", "Delete Ro&w", "", "Delete the selected rows"},
    MenuEntry{0, "mnuGEDelCol", "Delete Col&umn", "", "Delete the selected columns"},
};

}  // namespace

std::span<const MenuEntry> menuBar() {
    return bar;
}

std::string_view hintOf(std::string_view command) {
    const auto entry = std::ranges::find(bar, command, &MenuEntry::name);
    return entry == bar.end() ? std::string_view() : entry->hint;
}

std::span<const MenuEntry> popupMenu(std::string_view name) {
    if (name == "FunEdit") return listMenu;
    if (name == "GraphEdit") return pictureMenu;
    if (name == "mnuGE") return gridMenu;
    return {};
}

}  // namespace tessaplot::ui
