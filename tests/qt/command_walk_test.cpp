#include <QClipboard>
#include <QMenu>
#include <QOpenGLWidget>
#include <QTableView>
#include <map>

#include "base/joined.h"
#include "core/refresh.h"
#include "qt/window_test.h"
#include "ui/command_table.h"
#include "ui/menu_table.h"
#include "ui/toolbar_table.h"

namespace tessaplot::qt {
namespace {

/// Compares what an entry or a button of the window does with what its command does without the window.
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

    /// A document with a graph that is shown, selected and copied, and four selected cells: '2', '3' or '4' for the
    /// mode, 'i' for scattered points in 3D.
    void beginDocument(char document) {
        answers = {platform::Answer::No};
        form.Combo1_Click(0);
        choose(document == '2' ? "mnuFileNew2D" : document == '4' ? "mnuFileNew4D" : "mnuFileNew3D");
        answers.clear();
        state.panel = {};
        addGraph();
        tick(Qt::Checked);
        find<QListView>("List1")->setCurrentIndex(find<QListView>("List1")->model()->index(0, 0));
        form.run("mnuEditCopy");
        form.CopiedCount = 7;
        if (document == '4') form.Combo1_Click(2);
        if (document == 'i') form.Combo1_Click(1);
        core::fillPanel(state.panel, state.panel.kind());
        window.sync();
        state.TheView.SetViewRect(40, 40);
        state.TheView.SetRef(0, 0, 0);
        state.TheView.SetEye(0, 0, 1000);
        state.ShownGraphs.setAngles(1, 2, 3);
        core::RebuildScene(state);
        auto* grid = find<QTableView>("fgdGrid");
        const auto cell = [&](int row, int column) { return grid->model()->index(row, column); };
        grid->selectionModel()->select({cell(0, 0), cell(1, 1)}, QItemSelectionModel::ClearAndSelect);
    }

    std::map<std::string, std::string> digest() const {
        const auto& graphs = state.AllGraphs.Graphs;
        const auto& group = state.ShownGraphs;
        const auto& [x, y, z, w] = state.CurQuat;
        return {{"mode", joined(state.scene.SceneMode)},
                {"graphs", joined(graphs.size(), graphs.empty() ? 0 : graphs.back()->GraphType)},
                {"angles", joined(group.RotRoll, group.RotPitch, group.RotYaw)},
                {"turned", joined(x, y, z, w)},
                {"view", joined(state.TheView.VolHeight, state.TheView.RefPos.x)},
                {"copied", joined(form.CopiedCount)},
                {"cells", data::copyCells(state.panel, {1, 1, 3, 3})},
                {"rows", joined(state.panel.gridRows())},
                {"clipboard", QGuiApplication::clipboard()->text().toStdString()}};
    }

    void drag() {
        auto* surface = find<QOpenGLWidget>("picDraw");
        QTest::mousePress(surface, Qt::LeftButton, {}, {100, 100});
        QTest::mouseMove(surface, {110, 130});
        QTest::mouseRelease(surface, Qt::LeftButton, {}, {110, 130});
        state.QuickDraw = false;
    }

    /// What is seen to change in a document when a command is given in one way or another, and a drag follows.
    template <class Give>
    std::string effectOf(char document, Give give) {
        beginDocument(document);
        const auto before = digest();
        happened.clear();
        asked.clear();
        give();
        drag();
        for (const auto& [name, value] : digest())
            if (before.at(name) != value) log(name + '=' + value);
        for (const std::string& message : asked)
            log("told " + message);
        return happened;
    }

    /// A kind of document in which the command has an effect, with that effect.
    std::pair<char, std::string> effectWithoutTheWindow(const std::string& command) {
        for (const char document : {'3', '2', '4', 'i'}) {
            std::string effect = effectOf(document, [&] { form.run(command); });
            if (!effect.empty()) return {document, std::move(effect)};
        }
        EXPECT_EQ(command, "mnuFunEdit") << "has no effect in any document";
        return {'3', ""};
    }

    std::string happened;
};

TEST_F(CommandWalk, everyEntryAndEveryButtonDoesTheWorkOfItsCommand) {
    std::map<std::string_view, std::pair<char, std::string>> effects;
    for (const auto menu :
         {ui::menuBar(), ui::popupMenu("FunEdit"), ui::popupMenu("GraphEdit"), ui::popupMenu("mnuGE")})
        for (const ui::MenuEntry& entry : menu) {
            if (ui::CommandTable::find(entry.name) == nullptr) continue;
            const std::string command(entry.name);
            const auto& [document, effect] = effects[entry.name] = effectWithoutTheWindow(command);
            EXPECT_EQ(effectOf(document, [&] { choose(command.c_str()); }), effect) << command;
        }
    for (const ui::ToolbarButton& place : ui::toolbar()) {
        if (place.command.empty()) continue;
        const auto& [document, effect] = effects.at(place.command);
        EXPECT_EQ(effectOf(document, [&] { QTest::mouseClick(button(place.index), Qt::LeftButton); }), effect)
            << place.command;
    }
}

}  // namespace
}  // namespace tessaplot::qt
