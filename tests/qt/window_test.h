#pragma once

#include <QAction>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <algorithm>
#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/files.h"
#include "core/example_state.h"
#include "qt/desktop.h"
#include "qt/main_window.h"
#include "ui/main_window.h"

namespace tessaplot::qt {

/// The real window over the real logic; only questions are answered as laid out beforehand.
class WindowTest : public testing::Test {
 protected:
    void SetUp() override {
        state.desktop = makeDesktop(window);
        state.desktop.ask = [this](const platform::Message& message) {
            asked.push_back(message.text);
            if (answers.empty()) return platform::Answer::Ok;
            const platform::Answer answer = answers.front();
            answers.pop_front();
            return answer;
        };
        state.desktop.chooseFile = [this](const platform::FileQuestion&) {
            return std::optional(platform::FileChoice{file.string(), fileFilter});
        };
        state.samplesFolder = TESSAPLOT_SAMPLES;
        window.start({});
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

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

    /// Whether a label that shows holds the text.
    bool shows(const char* text) {
        const auto holds = [text](const QLabel* label) { return label->isVisible() && label->text().contains(text); };
        return std::ranges::any_of(window.findChildren<QLabel*>(), holds);
    }

    void tick(Qt::CheckState ticked) {
        QAbstractItemModel* model = find<QListView>("List1")->model();
        model->setData(model->index(0, 0), ticked, Qt::CheckStateRole);
    }

    /// A surface of three by three nodes and a grid model of it, listed but not ticked.
    void addGraph() {
        core::fillPanel(state.panel, data::DataKind::RegularSurface);
        state.TheData.GetData(state.panel, state.scaling, state.gridding, state.desktop);
        core::addGraph(state, graphs::graph_type::gridModel)->GridWidth = 2;
        window.sync();
    }

    core::AppState state;
    ui::frmF1 form{state};
    MainWindow window{form};
    TemporaryFolder folder;
    std::filesystem::path file;  ///< What is chosen in file dialogs, with the filter.
    int fileFilter = 1;
    std::vector<std::string> asked;
    std::deque<platform::Answer> answers;
};

}  // namespace tessaplot::qt
