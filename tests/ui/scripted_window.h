#pragma once

#include <algorithm>
#include <cmath>
#include <deque>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
#include "base/files.h"
#include "base/number_text.h"
#include "core/example_state.h"
#include "ui/main_window.h"

namespace tessaplot::ui {

/// A window on a desktop whose answers are laid out beforehand and that keeps what it was asked.
class ScriptedWindow : public testing::Test {
 protected:
    void SetUp() override {
        platform::Desktop& desktop = state.desktop;
        desktop.ask = [this](const platform::Message& message) {
            asked.push_back(message.title + ": " + message.text);
            return next(answers).value_or(platform::Answer::Cancel);
        };
        desktop.chooseFile = [this](const platform::FileQuestion& question) -> std::optional<platform::FileChoice> {
            asked.push_back(question.title + " " + question.filter);
            if (chosen.empty()) return std::nullopt;
            return platform::FileChoice{chosen, chosenFilter};
        };
        desktop.chooseColor = [this](base::PackedColor) { return next(colors); };
        desktop.showStatus = [this](std::string_view text) { status = text; };
        desktop.display = [this] { ++displays; };
        desktop.setClipboardText = [this](std::string_view text) { clipboard = text; };
        desktop.clipboardText = [this] { return clipboard; };
        desktop.popUpMenu = [this](std::string_view name) { poppedUp = name; };
        window.load({});
        displays = 0;
    }

    /// 5 by 4 nodes over 0 to 4 and 0 to 3; the height runs from 0 to 21, the fill value to a tenth of it.
    void fillSurface() {
        beginPanel(data::DataKind::RegularSurface, scene::mode3D, {"5", "4"});
        for (int i = 0; i < 5; ++i)
            for (int j = 0; j < 4; ++j)
                setRow(i * 4 + j + 1, i, j, 3 * i + 4 * j, 0.3 * i + 0.4 * j);
    }
    void fillScattered() {
        beginPanel(data::DataKind::IrregularSurface, scene::mode3D, {"0", "8", "9", "6", "0", "8", "5"});
        for (int p = 0; p < 9; ++p)
            setRow(p + 1, p, (p * 4) % 9, std::sin(p), 2.0 * p);
    }
    /// 4 by 5 by 6 nodes over 0 to 60, 0 to 80 and 0 to 100, with values from 0 to 50.
    void fillVolume() {
        beginPanel(data::DataKind::RegularVolume, scene::mode4D, {"4", "5", "", "6"});
        int row = 0;
        for (int i = 0; i < 4; ++i)
            for (int j = 0; j < 5; ++j)
                for (int k = 0; k < 6; ++k)
                    setRow(++row, 20 * i, 20 * j, 20 * k, i * i + j * 4 + k * 5);
    }
    void fillScatteredVolume() {
        beginPanel(data::DataKind::IrregularVolume, scene::mode4D, {"0", "8", "12", "3", "0", "8", "4", "0", "8", "5"});
        for (int p = 0; p < 12; ++p)
            setRow(p + 1, p % 9, (p * 4) % 9, (p * 2) % 9, p + 1);
    }
    /// Data that a graph of the type can be drawn from.
    void fillFor(int graphType) {
        if (graphType >= graphs::graph_type::scatter4D)
            fillVolume();
        else if (graphType == graphs::graph_type::delaunay)
            fillScattered();
        else
            fillSurface();
    }
    void setRow(int row, double first, double second, double third, double fourth) {
        int column = 0;
        for (const double number : {first, second, third, fourth})
            state.panel.setCell(++column, row, base::generalText(number));
    }

    /// Adds a grid model over a surface and shows it.
    void addGraph() {
        fillSurface();
        state.TheData.GetData(state.panel, state.scaling, state.gridding, state.desktop);
        core::addGraph(state, graphs::graph_type::gridModel);
        window.List1_Tick(static_cast<int>(state.List1.entries.size()) - 1, true);
        displays = 0;
    }

    /// Works controls one after the other: "Check1" switches on, "Check1=off" off, "Command1" presses, and "Text1=5"
    /// types, chooses an entry or slides.
    static void work(Form& form, const std::string& steps) {
        std::istringstream in(steps);
        for (std::string step; in >> step;) {
            const std::size_t end = std::min(step.find('='), step.size());
            const std::string name = step.substr(0, end);
            const std::string text = step.substr(std::min(end + 1, step.size()));
            switch (form.control(name).kind) {
                case ControlKind::CheckBox:
                case ControlKind::OptionButton:
                    form.setOn(name, text != "off");
                    break;
                case ControlKind::TextBox:
                    form.setText(name, text);
                    break;
                case ControlKind::ComboBox:
                case ControlKind::ListBox:
                    form.select(name, std::stoi(text));
                    break;
                case ControlKind::Slider:
                    form.slide(name, std::stod(text));
                    break;
                default:
                    form.click(name);
            }
        }
    }

    /// Presses OK, which must be answered with one message and leave the dialog open.
    std::string refused(Form& form) {
        asked.clear();
        form.accept();
        EXPECT_TRUE(form.isOpen());
        return theQuestion();
    }

    /// What was asked since the last look, which must have been one question.
    std::string theQuestion() {
        EXPECT_EQ(asked.size(), 1U) << testing::PrintToString(asked);
        const std::string question = asked.empty() ? "" : asked.back();
        asked.clear();
        return question;
    }

    core::AppState state;
    frmF1 window{state};
    TemporaryFolder folder;
    std::vector<std::string> asked;
    std::deque<platform::Answer> answers;
    std::deque<base::PackedColor> colors;
    std::string chosen;
    int chosenFilter = 1;
    std::string status;
    std::string clipboard;
    std::string poppedUp;
    int displays = 0;

 private:
    void beginPanel(data::DataKind kind, int sceneMode, const std::vector<std::string>& boxes) {
        state.scene.SceneMode = sceneMode;
        state.panel = {};
        state.panel.selectKind(kind);
        for (int box = 1; box <= static_cast<int>(boxes.size()); ++box)
            state.panel.setText(box, boxes[static_cast<std::size_t>(box) - 1]);
        state.panel.layOut();
    }

    template <class Value>
    static std::optional<Value> next(std::deque<Value>& values) {
        if (values.empty()) return std::nullopt;
        const Value first = values.front();
        values.pop_front();
        return first;
    }
};

constexpr const char* noData = "Note: Input all parameters please.";
constexpr const char* illegal = "Error: Illegal data exist.";

}  // namespace tessaplot::ui
