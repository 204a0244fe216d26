#include "ui/command_table.h"

#include <array>
#include <unordered_map>

#include "core/graph_list.h"
#include "core/refresh.h"
#include "graphs/graph.h"
#include "ui/demo_table.h"
#include "ui/main_window.h"

namespace tessaplot::ui {

namespace {

namespace type = graphs::graph_type;
using scene::RotateMode;

struct DrawCommand {
    std::string_view command;
    int graphType;
};

constexpr std::array drawCommands{
    DrawCommand{"mnuDrawPoint", type::point},       DrawCommand{"mnuDrawVert", type::vertexModel},
    DrawCommand{"mnuDrawGrid", type::gridModel},    DrawCommand{"mnuDrawTab3D", type::surface},
    DrawCommand{"mnuDrawDelaunay", type::delaunay}, DrawCommand{"mnuDrawColor", type::colorMap},
    DrawCommand{"mnuDrawCon", type::contour},       DrawCommand{"mnuDrawVector", type::vector},
    DrawCommand{"mnuDrawCon3D", type::contour3D},   DrawCommand{"mnuDraw4DScat", type::scatter4D},
    DrawCommand{"mnuDraw4DVec", type::vector4D},    DrawCommand{"mnuDraw4DSlice", type::slice4D},
    DrawCommand{"mnuDrawIsoSur", type::isoSurface},
};

struct HelpCommand {
    std::string_view command;
    std::string HelpTargets::*target;
};

constexpr std::array helpCommands{
    HelpCommand{"mnuHelpCon", &HelpTargets::contents},
    HelpCommand{"mnuHelpHome", &HelpTargets::homePage},
    HelpCommand{"mnuHelpCus", &HelpTargets::customerSupport},
    HelpCommand{"mnuHelpVideo", &HelpTargets::videoTutorials},
    HelpCommand{"mnuHelpTwitter", &HelpTargets::communityNews},
    HelpCommand{"mnuHelpFB", &HelpTargets::communityForum},
};

}  // namespace

std::string HelpTargets::*CommandTable::helpTarget(std::string_view command) {
    for (const HelpCommand& help : helpCommands)
        if (help.command == command) return help.target;
    return nullptr;
}

const CommandTable::Handlers& CommandTable::handlers() {
    static const Handlers all = [] {
        Handlers made = fileAndEdit();
        made.merge(viewAndProperties());
        made.merge(grid());
        for (const DrawCommand& draw : drawCommands)
            made[draw.command] = [type = draw.graphType](frmF1& window) { window.drawGraph(type); };
        for (const Demo& demo : demos())
            made[demo.command] = [fileName = demo.fileName](frmF1& window) { window.openDemo(fileName); };
        for (const HelpCommand& page : helpCommands)
            made[page.command] = [target = page.target](frmF1& window) {
                window.state().desktop.showPage(window.help.*target);
            };
        return made;
    }();
    return all;
}

CommandTable::Handlers CommandTable::fileAndEdit() {
    return {
        {"mnuFileNew2D", &frmF1::mnuFileNew2D_Click},     {"mnuFileNew3D", &frmF1::mnuFileNew3D_Click},
        {"mnuFileNew4D", &frmF1::mnuFileNew4D_Click},     {"mnuFileOpen", &frmF1::mnuFileOpen_Click},
        {"mnuFileSave", &frmF1::mnuFileSave_Click},       {"mnuFileSaveAs", &frmF1::mnuFileSaveAs_Click},
        {"mnuFileImport", &frmF1::mnuFileImport_Click},   {"mnuFileOutput", &frmF1::mnuFileOutput_Click},
        {"mnuFileGridded", &frmF1::mnuFileGridded_Click}, {"mnuFilePrint", &frmF1::mnuFilePrint_Click},
        {"mnuFileExit", &frmF1::mnuFileExit_Click},       {"mnuEditCut", &frmF1::mnuEditCut_Click},
        {"mnuEditCopy", &frmF1::mnuEditCopy_Click},       {"mnuEditCopyAs", &frmF1::mnuEditCopyAs_Click},
        {"mnuEditPaste", &frmF1::mnuEditPaste_Click},     {"mnuEditDelete", &frmF1::mnuEditDelete_Click},
        {"mnuEditDelAll", &frmF1::mnuEditDelAll_Click},   {"mnuFunEdit", [](frmF1&) {}},
        {"mnuFunCut", &frmF1::mnuEditCut_Click},          {"mnuFunCopy", &frmF1::mnuEditCopy_Click},
        {"mnuFunDelete", &frmF1::mnuEditDelete_Click},    {"mnuGraphPaste", &frmF1::mnuEditPaste_Click},
        {"mnuGraphCopyAs", &frmF1::mnuEditCopyAs_Click},  {"mnuGraphDelAll", &frmF1::mnuEditDelAll_Click},
    };
}

CommandTable::Handlers CommandTable::viewAndProperties() {
    return {
        {"mnuViewMove", [](frmF1& window) { window.mouse_.chooseMove(); }},
        {"mnuViewZoom", [](frmF1& window) { window.mouse_.chooseZoom(); }},
        {"mnuViewRotate", [](frmF1& window) { window.mouse_.chooseRotate(RotateMode::Free); }},
        {"mnuViewRotateX", [](frmF1& window) { window.mouse_.chooseRotate(RotateMode::AboutX); }},
        {"mnuViewRotateY", [](frmF1& window) { window.mouse_.chooseRotate(RotateMode::AboutY); }},
        {"mnuViewRotateZ", [](frmF1& window) { window.mouse_.chooseRotate(RotateMode::AboutZ); }},
        {"mnuViewFit", [](frmF1& window) { core::fitView(window.state()); }},
        {"mnuViewFront", [](frmF1& window) { window.setStandardView(0, 0, 0); }},
        {"mnuViewISO", [](frmF1& window) { window.setStandardView(0, -30, 45); }},
        {"mnuViewRight", [](frmF1& window) { window.setStandardView(0, 0, 90); }},
        {"mnuViewTop", [](frmF1& window) { window.setStandardView(0, -90, 0); }},
        {"mnuViewSet", &frmF1::mnuViewSet_Click},
        {"mnuDrawAxis", &frmF1::mnuDrawAxis_Click},
        {"mnuDrawLight", &frmF1::mnuDrawLight_Click},
        {"mnuGraphAxis", &frmF1::mnuDrawAxis_Click},
        {"mnuGraphLight", &frmF1::mnuDrawLight_Click},
        {"mnuHelpAbout", &frmF1::mnuHelpAbout_Click},
    };
}

CommandTable::Handlers CommandTable::grid() {
    return {
        {"mnuGESet", &frmF1::mnuGESet_Click},
        {"mnuGECutIt", &frmF1::mnuGECutIt_Click},
        {"mnuGECopy", &frmF1::mnuGECopy_Click},
        {"mnuGEPaste", &frmF1::mnuGEPaste_Click},
        {"mnuGEDelete", &frmF1::mnuGEDelete_Click},
        {"mnuGEInsertRow", &frmF1::mnuGEInsertRow_Click},
        {"mnuGEInsertCol", &frmF1::mnuGEInsertCol_Click},
        {"mnuGEDelRow", &frmF1::mnuGEDelRow_Click},
        {"mnuGEDelCol", &frmF1::mnuGEDelCol_Click},
    };
}

const CommandTable::Handler* CommandTable::find(std::string_view command) {
    const auto found = handlers().find(command);
    return found == handlers().end() ? nullptr : &found->second;
}

}  // namespace tessaplot::ui
