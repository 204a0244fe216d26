#include "ui/setting_forms.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/refresh.h"
#include "ui/axis_dialog.h"

namespace tessaplot::ui {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* noData = "Note: Input all parameters please.";
constexpr const char* illegal = "Error: Illegal data exist.";

/// The dialogs over a state whose desktop notes what is told and answers with one colour and one typeface.
class SettingForms : public testing::Test {
 protected:
    void SetUp() override {
        state.TheAxis.Show = true;
        state.desktop.ask = [this](const platform::Message& message) {
            told.push_back(message.title + ": " + message.text);
            return platform::Answer::Ok;
        };
        state.desktop.display = [this] { ++displays; };
        state.desktop.chooseColor = [](base::PackedColor) { return base::packColor(1, 2, 3); };
        state.desktop.chooseFont = [](const platform::FontChoice& font) {
            return platform::FontChoice{font.name + "Face", 12, true};
        };
    }

    /// Heights from 0 to 3 over three by two nodes in the panel, read and shown by a grid model.
    void showSurface() {
        state.panel.setText(1, "3");
        state.panel.setText(2, "2");
        state.panel.layOut();
        for (int row = 1; row <= 6; ++row) {
            state.panel.setCell(1, row, std::to_string((row - 1) / 2 * 10));
            state.panel.setCell(2, row, std::to_string((row - 1) % 2 * 4));
            state.panel.setCell(3, row, std::to_string(row % 4));
        }
        state.TheData.GetData(state.panel, state.scaling, state.gridding, state.desktop);
        auto graph = std::make_shared<graphs::Cls9>();
        graph->ID = 1;
        graph->GraphType = graphs::graph_type::gridModel;
        graph->StepU = 2;
        graph->StepV = 1;
        state.AllGraphs.Graphs.push_back(graph);
        state.ShownGraphs.Graphs.push_back(graph);
        core::RebuildScene(state);
    }

    /// Sets a box to each text in turn: OK must answer with the message and leave the dialog open.
    void expectRefused(Form& form, const std::string& box,
                       const std::vector<std::pair<std::string, std::string>>& cases) {
        const std::string before = form.control(box).text;
        for (const auto& [text, message] : cases) {
            told.clear();
            form.setText(box, text);
            form.accept();
            EXPECT_TRUE(form.isOpen()) << box << " \"" << text << '"';
            EXPECT_THAT(told, ElementsAre(HasSubstr(message))) << box << " \"" << text << '"';
        }
        told.clear();
        form.setText(box, before);
    }

    core::AppState state;
    std::vector<std::string> told;
    int displays = 0;
};

TEST_F(SettingForms, theAxisDialogOpensWithTheFrameAndBringsEveryPartOfItBack) {
    state.TheAxis.XZPanelMaterial = 13;
    const auto form = makeAxisForm(state);
    EXPECT_EQ(form->control("Combo2").items.at(12).text, "Winter");
    EXPECT_EQ(form->control("Combo2").selected, 12);
    EXPECT_EQ(form->control("Picture1").color, scene::Cls3::panelGrey);
    EXPECT_FALSE(form->control("Combo1").enabled) << "the panel does not show";
    form->setOn("Check2", true);
    EXPECT_TRUE(form->control("Combo1").enabled);
    form->select("Combo1", 6);
    form->click("Picture1");
    EXPECT_EQ(form->control("Picture1").color, base::packColor(1, 2, 3)) << "at once";
    EXPECT_EQ(state.TheAxis.XYPanelColor, scene::Cls3::panelGrey) << "not before OK";
    form->setOn("Check8", false);
    form->click("Picture9");
    form->setText("Text1", "500");
    form->setText("Text3", "1e1");
    form->setText("Text5", "North, m");
    form->setOn("Check11", false);
    form->click("Command4");
    form->click("Command4");
    EXPECT_EQ(dynamic_cast<frmF3&>(*form).fonts()[1].name, "FaceFace");
    form->accept();
    EXPECT_FALSE(form->isOpen());
    EXPECT_TRUE(state.AxisDialogOk);
    EXPECT_FALSE(state.ShowLegend);
    const scene::Cls3& axis = state.TheAxis;
    EXPECT_TRUE(axis.ShowXYPanel && axis.ShowXZXGrid && !axis.ShowXZZGrid);
    EXPECT_EQ(axis.XYPanelMaterial, 7);
    EXPECT_EQ(axis.XZPanelMaterial, 13);
    EXPECT_EQ(axis.XYPanelColor, base::packColor(1, 2, 3));
    EXPECT_EQ(axis.YZGridColor, base::packColor(1, 2, 3));
    EXPECT_EQ(axis.LabelNumX, 500);
    EXPECT_EQ(axis.LabelNumZ, 10);
    EXPECT_EQ(axis.TitleY, "North, m");
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(SettingForms, plainArrowsAndAHiddenAxisLeaveTheFrameAsItIs) {
    for (const bool hidden : {false, true}) {
        state.TheAxis.AxisStyle = 1;
        const auto form = makeAxisForm(state);
        form->setText("Text4", "lost");
        form->setText("Text1", "abc");
        if (hidden)
            form->setOn("Check1", false);
        else
            form->setOn("Option2", true);
        EXPECT_FALSE(form->control("Text4").enabled);
        form->accept();
        EXPECT_FALSE(form->isOpen()) << "what does not count is not checked";
        EXPECT_EQ(state.TheAxis.TitleX, "X");
        EXPECT_EQ(state.TheAxis.Show, !hidden);
        EXPECT_EQ(state.TheAxis.AxisStyle, hidden ? 1 : 2);
        EXPECT_THAT(told, IsEmpty());
    }
}

TEST_F(SettingForms, theAxisDialogScalesDataOnceFromThePanel) {
    showSurface();
    const double square = state.scaling.ScaleX;
    for (int turn = 0; turn < 2; ++turn) {
        const auto form = makeAxisForm(state);
        form->setOn("Option4", true);
        form->accept();
        EXPECT_TRUE(state.AxisDialogOk);
        EXPECT_DOUBLE_EQ(state.scaling.ScaleX, 2);
        EXPECT_DOUBLE_EQ(state.scaling.ScaleY, 2);
        EXPECT_DOUBLE_EQ(state.TheData.Reg3DX(2, 0), 10);
        EXPECT_DOUBLE_EQ(state.TheData.Reg3DY(0, 1), 2);
    }
    EXPECT_DOUBLE_EQ(square, 2);
    EXPECT_DOUBLE_EQ(state.scene.SceneCenterX, 1) << "the scene was centred on the data as they are scaled now";
    EXPECT_GT(displays, 0);

    const auto form = makeAxisForm(state);
    EXPECT_FALSE(form->control("Text7").enabled);
    form->setOn("Option5", true);
    EXPECT_TRUE(form->control("Text7").enabled && form->control("Label18").enabled);
    expectRefused(*form, "Text8", {{"", noData}, {"abc", illegal}, {"1e999", illegal}, {"0", "larger than 0"}});
    form->setText("Text8", "1,5");
    expectRefused(*form, "Text10", {{"-1", "larger than 0"}});
    form->setText("Text9", "0");
    form->accept();
    EXPECT_FALSE(form->isOpen()) << "a surface has no ratio of Z";
    EXPECT_EQ(state.scaling.ScaleMode, 3);
    EXPECT_DOUBLE_EQ(state.scaling.ScaleY, state.scaling.ScaleX / 1.5);
}

TEST_F(SettingForms, aFailureInTheAxisDialogChangesNothing) {
    state.scaling.ScaleMode = 2;
    showSurface();
    const auto form = makeAxisForm(state);
    const std::vector<std::pair<std::string, std::string>> cases{{"", noData},
                                                                 {"abc", illegal},
                                                                 {"1e999", illegal},
                                                                 {"-1", "between 1 and 500"},
                                                                 {"501", "between 1 and 500"},
                                                                 {"1,5", "between 1 and 500"}};
    expectRefused(*form, "Text2", cases);

    form->setOn("Option3", true);
    form->setText("Text6", "Height");
    for (const auto& [cell, message] : {std::pair{"1e999", "out of range"}, {"", "range of X is zero"}}) {
        told.clear();
        for (int row = 1; row <= 6; ++row)
            state.panel.setCell(1, row, cell);
        form->accept();
        EXPECT_TRUE(form->isOpen());
        EXPECT_FALSE(state.AxisDialogOk);
        EXPECT_THAT(told, ElementsAre(HasSubstr(message)));
    }
    state.panel.setText(1, "");
    told.clear();
    form->accept();
    EXPECT_THAT(told, ElementsAre("Error: The data panel holds no data to scale."));
    EXPECT_EQ(state.scaling.ScaleMode, 2);
    EXPECT_EQ(state.TheAxis.TitleZ, "Z");
    EXPECT_DOUBLE_EQ(state.TheData.Reg3DX(2, 0), 10);
    EXPECT_EQ(state.TheData.StepsX, 3);

    state.AxisDialogOk = true;
    form->cancel();
    EXPECT_FALSE(state.AxisDialogOk);
    EXPECT_FALSE(form->isOpen());
    EXPECT_EQ(displays, 0);
}

TEST_F(SettingForms, aFlatSceneHasTwoRatios) {
    EXPECT_EQ(makeAxisForm(state)->control("Label1").caption, "X:Y:Z=");
    state.scene.SceneMode = scene::mode2D;
    const auto form = makeAxisForm(state);
    EXPECT_EQ(form->control("Label1").caption, "X:Y=");
    EXPECT_FALSE(form->control("Text9").visible);
}

TEST_F(SettingForms, numbersOfDialogsComeBackExactly) {
    state.scaling = {3, 1.0 / 3, 1e22, 1e-7, 0.1};
    state.TheLight.Position = {0.1F, 1e30F, -1e-30F, 1};
    state.ViewMinX = -1.0 / 3;
    makeAxisForm(state)->accept();
    makeLightForm(state)->accept();
    makeViewForm(state)->accept();
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(state.scaling.ScaleRatioX, 1.0 / 3);
    EXPECT_EQ(state.scaling.ScaleRatioY, 1e22);
    EXPECT_EQ(state.scaling.ScaleRatioZ, 1e-7);
    EXPECT_EQ(state.scaling.ZoomZ, 0.1);
    EXPECT_THAT(state.TheLight.Position, ElementsAre(0.1F, 1e30F, -1e-30F, 1));
    EXPECT_EQ(state.ViewMinX, -1.0 / 3);
}

TEST_F(SettingForms, theLightTakesAllSixteenBoxesOrNone) {
    const auto form = makeLightForm(state);
    for (int box = 1; box <= 16; ++box)
        form->setText("Text" + std::to_string(box), std::to_string(box));
    form->setOn("Check2", false);
    form->setOn("Check3", false);
    expectRefused(*form, "Text16",
                  {{"", noData}, {" ", noData}, {"abc", illegal}, {"1e999", illegal}, {"1e39", illegal}});
    EXPECT_EQ(state.TheLight.Diffuse[0], 1) << "no part of it is taken";
    form->setText("Text1", "-1,5");
    form->accept();
    EXPECT_THAT(state.TheLight.Position, ElementsAre(-1.5F, 2, 3, 16));
    EXPECT_THAT(state.TheLight.Diffuse, ElementsAre(4, 5, 6, 7));
    EXPECT_THAT(state.TheLight.Amission, ElementsAre(8, 9, 10, 11));
    EXPECT_THAT(state.TheLight.Specular, ElementsAre(12, 13, 14, 15));
    EXPECT_FALSE(state.TheLight.Enabled);
    EXPECT_EQ(state.TheLight.TwoSides[0], 0);
    EXPECT_EQ(displays, 1);
    makeLightForm(state)->cancel();
    EXPECT_EQ(displays, 1);
}

TEST_F(SettingForms, theViewTakesTheProjectionAndSixRanges) {
    const auto form = makeViewForm(state);
    EXPECT_TRUE(form->control("Option1").on);
    EXPECT_EQ(form->control("Text2").text, "50");
    form->setOn("Option2", true);
    form->setText("Text1", "-2,5");
    expectRefused(*form, "Text6", {{"abc", illegal}, {"1e999", illegal}});
    EXPECT_EQ(form->control("Text1").text, "-2.5") << "cleaned";
    EXPECT_EQ(state.TheView.ProjectType, 1);
    form->setText("Text4", "");
    form->accept();
    EXPECT_FALSE(form->isOpen());
    EXPECT_EQ(state.TheView.ProjectType, 2);
    EXPECT_EQ(state.ViewMinX, -2.5);
    EXPECT_EQ(state.ViewMaxY, 0) << "an empty box is not checked";
    EXPECT_EQ(state.ViewMaxZ, 50);
    EXPECT_EQ(displays, 1);
}

TEST_F(SettingForms, theGridTakesFrom1To65536RowsAndColumns) {
    const std::string refused = "Error: The number of rows or columns of the grid must be a value between 1 and 65536.";
    const auto form = makeGridSizeForm(state);
    EXPECT_EQ(form->control("Text1").text, "101");
    EXPECT_EQ(form->control("Text2").text, "5");
    form->setText("Text2", "4");
    expectRefused(
        *form, "Text1",
        {{"", refused}, {"abc", refused}, {"0", refused}, {"65537", refused}, {"-1", refused}, {"1e999", refused}});
    EXPECT_EQ(state.panel.gridColumns(), 5);
    form->setText("Text1", "65536");
    form->accept();
    EXPECT_EQ(state.panel.gridRows(), 65536);
    EXPECT_EQ(state.panel.gridColumns(), 4);
    makeGridSizeForm(state)->cancel();
    EXPECT_EQ(state.panel.gridRows(), 65536);
}

TEST_F(SettingForms, theAboutBoxTellsTheVersionAndHasOkAlone) {
    const auto form = makeAboutForm();
    EXPECT_THAT(form->control("lblVersion").caption, testing::ContainsRegex("^Version [0-9]+\\.[0-9]+"));
    EXPECT_EQ(form->okName(), "cmdOK");
    EXPECT_TRUE(form->cancelName().empty());
    form->accept();
    EXPECT_FALSE(form->isOpen());
}

}  // namespace
}  // namespace tessaplot::ui
