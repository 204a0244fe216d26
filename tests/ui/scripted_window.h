#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/failure.h"
#include "core/example_state.h"
#include "ui/main_window.h"

namespace tessaplot::ui {

/// A window on a desktop whose answers are laid out beforehand and that keeps what it was asked.
class ScriptedWindow : public testing::Test {
 protected:
    void SetUp() override {
        folder = std::filesystem::path(testing::TempDir()) /
                 ("ui-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        std::filesystem::create_directories(folder);
        platform::Desktop& desktop = state.desktop;
        desktop.ask = [this](const platform::Message& message) {
            asked.push_back(message.title + ": " + message.text);
            if (answers.empty()) return platform::Answer::Cancel;
            const platform::Answer answer = answers.front();
            answers.pop_front();
            return answer;
        };
        desktop.chooseFile = [this](const platform::FileQuestion& question) -> std::optional<platform::FileChoice> {
            asked.push_back(question.title + " " + question.filter);
            if (chosen.empty()) return std::nullopt;
            return platform::FileChoice{chosen, chosenFilter};
        };
        desktop.showStatus = [this](std::string_view text) { status = text; };
        desktop.display = [this] { ++displays; };
        desktop.setClipboardText = [this](std::string_view text) { clipboard = text; };
        desktop.clipboardText = [this] { return clipboard; };
        desktop.popUpMenu = [this](std::string_view name) { poppedUp = name; };
        desktop.openPage = [this](std::string_view address) { page = address; };
        window.load({});
        displays = 0;
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    /// Fills the panel with data that every graph of the kind can be drawn from.
    void fillPanel(data::DataKind kind) {
        core::fillPanel(state.panel, kind);
        for (int row = 1; row < state.panel.gridRows(); ++row)
            state.panel.setCell(4, row, std::to_string(row));
        if (kind != data::DataKind::IrregularSurface) return;
        state.panel.setText(3, "4");
        const char* const points[4][3] = {{"0", "0", "1"}, {"4", "0", "2"}, {"0", "3", "3"}, {"5", "6", "5"}};
        for (int row = 1; row <= 4; ++row)
            for (int column = 1; column <= 3; ++column)
                state.panel.setCell(column, row, points[row - 1][column - 1]);
        state.panel.layOut();
    }

    /// Adds a grid model and shows it.
    void addGraph() {
        fillPanel(data::DataKind::RegularSurface);
        state.TheData.GetData(state.panel, state.scaling, state.gridding, state.desktop);
        core::addGraph(state, graphs::graph_type::gridModel);
        window.List1_Tick(static_cast<int>(state.List1.entries.size()) - 1, true);
        displays = 0;
    }

    core::AppState state;
    frmF1 window{state};
    std::filesystem::path folder;
    std::vector<std::string> asked;
    std::deque<platform::Answer> answers;
    std::string chosen;
    int chosenFilter = 1;
    std::string status;
    std::string clipboard;
    std::string poppedUp;
    std::string page;
    int displays = 0;
};

}  // namespace tessaplot::ui
