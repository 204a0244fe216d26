#include <QClipboard>
#include <QMenu>
#include <QOpenGLWidget>
#include <QTableView>
#include <map>
#include <set>
#include <sstream>

#include "qt/window_test.h"
#include "ui/demo_table.h"
#include "ui/menu_table.h"
#include "ui/toolbar_table.h"

namespace tessaplot::qt {
namespace {

using platform::Answer;
using testing::HasSubstr;

/// A command, the document that it is chosen in, what was done before, and what is then seen to have changed.
struct Walk {
    const char* command;
    char document;  ///< '2', '3' or '4' for the mode, 'i' for scattered points in 3D.
    const char* effect;
    const char* before = nullptr;  ///< A command chosen first.
};

constexpr std::array walks{
    Walk{"mnuFileNew2D", '3', "mode=7"},
    Walk{"mnuFileNew3D", '4', "mode=3"},
    Walk{"mnuFileNew4D", '3', "mode=11"},
    Walk{"mnuFileOpen", '3', "file Open File;"},
    Walk{"mnuFileSave", '3', "file Save;"},
    Walk{"mnuFileSaveAs", '3', "file Save As;"},
    Walk{"mnuFileImport", '3', "file Open;"},
    Walk{"mnuFileOutput", '3', "file Output;"},
    Walk{"mnuFileGridded", 'i', "file Output;"},
    Walk{"mnuFilePrint", '3', "printed;"},
    Walk{"mnuFileExit", '3', "closed;"},
    Walk{"mnuEditCut", '3', "graphs=0;"},
    Walk{"mnuEditCopy", '3', "copied=1;"},
    Walk{"mnuEditCopyAs", '3', "picture copied;"},
    Walk{"mnuEditPaste", '3', "graphs=2;", "mnuEditCopy"},
    Walk{"mnuEditDelete", '3', "graphs=0;"},
    Walk{"mnuEditDelAll", '3', "graphs=0;"},
    Walk{"mnuViewMove", '2', "moved="},
    Walk{"mnuViewZoom", '2', "height="},
    Walk{"mnuViewFit", '3', "height="},
    Walk{"mnuViewRotateX", '3', "turned="},
    Walk{"mnuViewRotateY", '3', "turned="},
    Walk{"mnuViewRotateZ", '3', "turned="},
    Walk{"mnuViewRotate", '3', "turned="},
    Walk{"mnuViewFront", '3', "angles=0 0 0;"},
    Walk{"mnuViewRight", '3', "angles=0 0 90;"},
    Walk{"mnuViewTop", '3', "angles=0 -90 0;"},
    Walk{"mnuViewISO", '3', "angles=0 -30 45;", "mnuViewTop"},
    Walk{"mnuViewSet", '3', "form frmF14;"},
    Walk{"mnuDrawPoint", '3', "kind=7;"},
    Walk{"mnuDrawVert", '3', "kind=18;"},
    Walk{"mnuDrawGrid", '3', "graphs=2;"},
    Walk{"mnuDrawTab3D", '3', "kind=6;"},
    Walk{"mnuDrawDelaunay", 'i', "kind=24;"},
    Walk{"mnuDrawColor", '2', "kind=13;"},
    Walk{"mnuDrawCon", '2', "kind=14;"},
    Walk{"mnuDrawVector", '2', "kind=15;"},
    Walk{"mnuDrawCon3D", '3', "kind=16;"},
    Walk{"mnuDraw4DScat", '4', "kind=41;"},
    Walk{"mnuDraw4DVec", '4', "kind=42;"},
    Walk{"mnuDraw4DSlice", '4', "kind=43;"},
    Walk{"mnuDrawIsoSur", '4', "kind=44;"},
    Walk{"mnuDrawAxis", '3', "form frmF3;"},
    Walk{"mnuDrawLight", '3', "form frmF8;"},
    Walk{"mnuHelpCon", '3', "page contents;"},
    Walk{"mnuHelpHome", '3', "page home;"},
    Walk{"mnuHelpCus", '3', "page support;"},
    Walk{"mnuHelpVideo", '3', "page videos;"},
    Walk{"mnuHelpTwitter", '3', "page news;"},
    Walk{"mnuHelpFB", '3', "page forum;"},
    Walk{"mnuHelpAbout", '3', "form frmF2;"},
    Walk{"mnuFunEdit", '3', ""},
    Walk{"mnuFunCut", '3', "copied=1;"},
    Walk{"mnuFunCopy", '3', "copied=1;"},
    Walk{"mnuFunDelete", '3', "graphs=0;"},
    Walk{"mnuGraphPaste", '3', "graphs=2;", "mnuEditCopy"},
    Walk{"mnuGraphCopyAs", '3', "picture copied;"},
    Walk{"mnuGraphDelAll", '3', "graphs=0;"},
    Walk{"mnuGraphAxis", '3', "form frmF3;"},
    Walk{"mnuGraphLight", '3', "form frmF8;"},
    Walk{"mnuGESet", '3', "form frmOption;"},
    Walk{"mnuGECutIt", '3', "cells= | |0 2 3;clipboard=0\t0\n0\t1"},
    Walk{"mnuGECopy", '3', "clipboard=0\t0\n0\t1"},
    Walk{"mnuGEPaste", '3', "cells=7 8|9 1|", "mnuGECopy"},
    Walk{"mnuGEDelete", '3', "cells= | |"},
    Walk{"mnuGEInsertRow", '3', "rows="},
    Walk{"mnuGEInsertCol", '3', "cells="},
    Walk{"mnuGEDelRow", '3', "rows="},
    Walk{"mnuGEDelCol", '3', "cells="},
};

class CommandWalk : public WindowTest {
 protected:
    void SetUp() override {
        WindowTest::SetUp();
        form.help = {"contents", "home", "support", "videos", "news", "forum"};
        form.showForm = [this](ui::Form& dialog) {
            log("form " + dialog.name());
            dialog.accept();
            dialog.cancel();
        };
        state.desktop.chooseFile = [this](const platform::FileQuestion& question) {
            log("file " + question.title);
            return std::optional<platform::FileChoice>();
        };
        state.desktop.closeWindow = [this] { log("closed"); };
        state.desktop.openPage = [this](std::string_view page) { log("page " + std::string(page)); };
        state.desktop.copyPictureFile = [this](const auto&) { log("picture copied"); };
        state.desktop.printPictureFile = [this](const auto&) { log("printed"); };
        window.resize(1260, 700);
    }

    void log(const std::string& event) { happened += event + ';'; }

    /// A document with a graph that is shown and selected, and four selected cells.
    void beginDocument(char document) {
        answers = {Answer::No};
        state.panel.selectKind(data::DataKind::RegularSurface);
        form.Combo1_Click(0);
        choose(document == '2' ? "mnuFileNew2D" : document == '4' ? "mnuFileNew4D" : "mnuFileNew3D");
        answers.clear();
        form.CopiedCount = 0;
        state.panel.clearCells();
        QGuiApplication::clipboard()->clear();
        if (document == '4') {
            fillVolume();
        } else {
            addGraph();
            tick(Qt::Checked);
            find<QListView>("List1")->setCurrentIndex(find<QListView>("List1")->model()->index(0, 0));
        }
        if (document == 'i') fillPoints();
        state.TheView.SetViewRect(40, 40);
        auto* grid = find<QTableView>("fgdGrid");
        const auto cell = [&](int row, int column) { return grid->model()->index(row, column); };
        grid->selectionModel()->select({cell(0, 0), cell(1, 1)}, QItemSelectionModel::ClearAndSelect);
    }

    void fillVolume() {
        form.Combo1_Click(2);
        for (const int box : {1, 2, 4})
            state.panel.setText(box, "3");
        form.Command1_Click();
        for (int row = 1; row <= 27; ++row)
            setRow(row, (row - 1) / 9, (row - 1) / 3 % 3, (row - 1) % 3, row % 5);
        window.sync();
    }

    void fillPoints() {
        form.Combo1_Click(1);
        const std::array limits{"0", "2", "9", "4", "0", "2", "4"};
        for (int box = 1; box <= 7; ++box)
            state.panel.setText(box, limits[static_cast<std::size_t>(box) - 1]);
        window.sync();
    }

    void setRow(int row, int x, int y, int z, int v) {
        const std::array values{x, y, z, v};
        for (int column = 1; column <= 4; ++column)
            state.panel.setCell(column, row, std::to_string(values[static_cast<std::size_t>(column) - 1]));
    }

    using Digest = std::map<std::string, std::string>;

    static std::string joined(std::initializer_list<double> values) {
        std::ostringstream text;
        for (const double value : values)
            text << (text.tellp() > 0 ? " " : "") << value;
        return text.str();
    }

    std::string cells() const {
        std::string text;
        for (int row = 1; row <= 3; ++row) {
            text += state.panel.cell(1, row) + ' ' + state.panel.cell(2, row);
            text += row == 3 ? ' ' + state.panel.cell(3, row) : "|";
        }
        return text;
    }

    Digest digest() const {
        const auto& graphs = state.AllGraphs.Graphs;
        const auto& group = state.ShownGraphs;
        const auto& [x, y, z, w] = state.CurQuat;
        return {{"mode", std::to_string(state.scene.SceneMode)},
                {"graphs", std::to_string(graphs.size())},
                {"kind", graphs.empty() ? "" : std::to_string(graphs.back()->GraphType)},
                {"copied", std::to_string(form.CopiedCount)},
                {"angles", joined({group.RotRoll, group.RotPitch, group.RotYaw})},
                {"turned", joined({x, y, z, w})},
                {"height", joined({state.TheView.VolHeight})},
                {"moved", joined({state.TheView.RefPos.x, state.TheView.RefPos.y, state.TheView.RefPos.z})},
                {"cells", cells()},
                {"rows", std::to_string(state.panel.gridRows())},
                {"clipboard", QGuiApplication::clipboard()->text().toStdString()}};
    }

    void drag() {
        auto* surface = find<QOpenGLWidget>("picDraw");
        QTest::mousePress(surface, Qt::LeftButton, {}, {100, 100});
        QTest::mouseMove(surface, {110, 130});
        QTest::mouseRelease(surface, Qt::LeftButton, {}, {110, 130});
        state.QuickDraw = false;
    }

    /// What a way to give the command changes.
    template <class Give>
    std::string effectOf(const Walk& walk, Give give) {
        beginDocument(walk.document);
        if (walk.before != nullptr) choose(walk.before);
        if (walk.command == std::string_view("mnuGEPaste")) QGuiApplication::clipboard()->setText("7\t8\n9\t1\n");
        const Digest before = digest();
        happened.clear();
        asked.clear();
        give();
        if (std::string_view(walk.command).starts_with("mnuView")) drag();
        for (const auto& [name, value] : digest())
            if (before.at(name) != value) happened += name + '=' + value + ';';
        for (const std::string& message : asked)
            if (!message.ends_with('?')) happened += "told " + message + ';';
        return happened;
    }

    std::string happened;
};

TEST_F(CommandWalk, everyEntryOfTheMenusDoesItsWork) {
    std::set<std::string_view> walked;
    for (const Walk& walk : walks) {
        walked.insert(walk.command);
        const std::string effect = effectOf(walk, [&] { choose(walk.command); });
        EXPECT_THAT(effect, HasSubstr(walk.effect)) << walk.command;
        EXPECT_THAT(effect, testing::Not(HasSubstr("told"))) << walk.command;
    }
    for (const ui::Demo& demo : ui::demos()) {
        walked.insert(demo.command);
        const Walk walk{demo.command.data(), '2', ""};
        const bool exists = std::filesystem::exists(state.samplesFolder / demo.fileName);
        EXPECT_THAT(effectOf(walk, [&] { choose(walk.command); }), HasSubstr(exists ? "rows=" : "told The file"))
            << demo.command;
    }
    for (const auto table :
         {ui::menuBar(), ui::popupMenu("FunEdit"), ui::popupMenu("GraphEdit"), ui::popupMenu("mnuGE")})
        for (const ui::MenuEntry& entry : table)
            if (window.findChild<QMenu*>(QString::fromUtf8(entry.name.data(), entry.name.size())) == nullptr) {
                EXPECT_TRUE(entry.name.empty() || walked.contains(entry.name)) << entry.name;
            }
}

TEST_F(CommandWalk, everyLiveButtonOfTheToolbarDoesTheWorkOfItsEntry) {
    for (const ui::ToolbarButton& place : ui::toolbar()) {
        if (place.command.empty()) continue;
        const auto walk = std::ranges::find(walks, place.command, &Walk::command);
        ASSERT_NE(walk, walks.end()) << place.command;
        const std::string effect = effectOf(*walk, [&] { QTest::mouseClick(button(place.index), Qt::LeftButton); });
        EXPECT_THAT(effect, HasSubstr(walk->effect)) << place.command;
    }
}

}  // namespace
}  // namespace tessaplot::qt
