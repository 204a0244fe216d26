#pragma once

#include <QAction>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <deque>
#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/app_state.h"
#include "core/graph_list.h"
#include "qt/desktop.h"
#include "qt/main_window.h"
#include "ui/main_window.h"

namespace tessaplot::qt {

/// The real window over the real logic; only questions are answered as laid out beforehand.
class WindowTest : public testing::Test {
 protected:
    void SetUp() override {
        folder = std::filesystem::path(testing::TempDir()) /
                 ("qt-" + std::to_string(QCoreApplication::applicationPid()) + '-' +
                  testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::create_directories(folder);
        state.desktop = makeDesktop(window);
        state.desktop.ask = [this](const platform::Message& message) {
            asked.push_back(message.text);
            if (answers.empty()) return platform::Answer::Ok;
            const platform::Answer answer = answers.front();
            answers.pop_front();
            return answer;
        };
        state.desktop.chooseFile = [this](const platform::FileQuestion& question) {
            fileQuestions.push_back(question.title);
            return std::optional(platform::FileChoice{file.string(), fileFilter});
        };
        state.samplesFolder = TESSAPLOT_SAMPLES;
        window.start({});
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    template <class Widget>
    Widget* find(const char* name) {
        auto* found = window.findChild<Widget*>(name);
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    void choose(const char* command) { find<QAction>(command)->trigger(); }

    /// The button of the toolbar with that number.
    QWidget* button(int index) {
        return find<QToolBar>("Toolbar1")
            ->widgetForAction(find<QAction>(("Toolbar1_" + std::to_string(index)).c_str()));
    }

    void tick(Qt::CheckState ticked) {
        QAbstractItemModel* model = find<QListView>("List1")->model();
        model->setData(model->index(0, 0), ticked, Qt::CheckStateRole);
    }

    /// A surface of three by three nodes and a grid model of it, listed but not ticked.
    void addGraph() {
        for (const int box : {1, 2})
            state.panel.setText(box, "3");
        state.panel.layOut();
        for (int row = 1; row <= 9; ++row) {
            state.panel.setCell(1, row, std::to_string((row - 1) / 3));
            state.panel.setCell(2, row, std::to_string((row - 1) % 3));
            state.panel.setCell(3, row, std::to_string(row % 4));
        }
        state.TheData.GetData(state.panel, state.scaling, state.gridding, state.desktop);
        auto graph = std::make_shared<graphs::Cls9>();
        graph->ID = ++state.LastGraphId;
        graph->GraphType = graphs::graph_type::gridModel;
        graph->StepU = graph->StepV = 2;
        graph->GridColor = 255;
        graph->GridWidth = 2;
        state.AllGraphs.Graphs.push_back(graph);
        state.List1.add(graph, state.scene.SceneMode);
        window.sync();
    }

    core::AppState state;
    ui::frmF1 form{state};
    MainWindow window{form};
    std::filesystem::path folder;
    std::filesystem::path file;  ///< What is chosen in file dialogs, with the filter.
    int fileFilter = 1;
    std::vector<std::string> asked;
    std::vector<std::string> fileQuestions;
    std::deque<platform::Answer> answers;
};

}  // namespace tessaplot::qt
