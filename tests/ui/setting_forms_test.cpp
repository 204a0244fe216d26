#include "ui/setting_forms.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "scripted_window.h"
#include "ui/axis_dialog.h"

namespace tessaplot::ui {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class SettingForms : public ScriptedWindow {
 protected:
    /// Heights from 0 to 3 over three by two nodes in the panel, read and shown by a grid model.
    void showSurface() {
        state.panel.setText(1, "3");
        state.panel.setText(2, "2");
        state.panel.layOut();
        for (int row = 1; row <= 6; ++row)
            setRow(row, (row - 1) / 2 * 10, (row - 1) % 2 * 4, row % 4, 0);
        state.TheData.GetData(state.panel, state.scaling, state.gridding, state.desktop);
        core::addGraph(state, graphs::graph_type::gridModel)->StepV = 1;
        window.List1_Tick(0, true);
        displays = 0;
    }

    /// Sets a box to each text in turn: OK must answer with the message and leave the dialog open.
    void expectRefused(Form& form, const std::string& box,
                       std::initializer_list<std::pair<const char*, const char*>> cases) {
        const std::string before = form.control(box).text;
        for (const auto& [text, message] : cases) {
            form.setText(box, text);
            EXPECT_THAT(refused(form), HasSubstr(message)) << box << " \"" << text << '"';
        }
        form.setText(box, before);
    }

    /// Presses OK, which must close the dialog without a word.
    void accepted(Form& form) {
        form.accept();
        EXPECT_FALSE(form.isOpen());
        EXPECT_THAT(asked, ElementsAre());
    }
};

TEST_F(SettingForms, theAxisDialogOpensWithTheFrameAndBringsEveryPartOfItBack) {
    state.TheAxis.XZPanelMaterial = 13;
    state.desktop.chooseColor = [color = 0](base::PackedColor) mutable { return ++color; };
    state.desktop.chooseFont = [](const platform::FontChoice& font) {
        return platform::FontChoice{font.name + "Face", 12, true};
    };
    const auto form = makeAxisForm(state);
    EXPECT_EQ(form->control("Combo2").items.at(12).text, "Winter");
    EXPECT_EQ(form->control("Combo2").selected, 12);
    EXPECT_EQ(form->control("Picture1").color, scene::Cls3::panelGrey);
    EXPECT_FALSE(form->control("Combo1").enabled) << "the panel does not show";
    work(*form, "Check2 Check3 Check4 Combo1=6 Combo3=7 Picture1 Picture2 Picture3 Picture5 Picture7 Picture9");
    EXPECT_EQ(form->control("Picture1").color, 1) << "at once";
    EXPECT_EQ(state.TheAxis.XYPanelColor, scene::Cls3::panelGrey) << "not before OK";
    work(*form, "Check6=off Check8=off Check10=off Text1=500 Text2=7 Text3=1e1 Text4=East Text5=North Text6=Up");
    work(*form, "Check11=off Command4 Command4");
    EXPECT_EQ(dynamic_cast<frmF3&>(*form).fonts()[1].name, "FaceFace");
    accepted(*form);
    EXPECT_TRUE(state.AxisDialogOk);
    EXPECT_FALSE(state.ShowLegend);
    const scene::Cls3& axis = state.TheAxis;
    EXPECT_TRUE(axis.ShowXYPanel && axis.ShowXZPanel && axis.ShowYZPanel);
    EXPECT_TRUE(axis.ShowXYXGrid && axis.ShowXZXGrid && axis.ShowYZYGrid);
    EXPECT_FALSE(axis.ShowXYYGrid || axis.ShowXZZGrid || axis.ShowYZZGrid);
    EXPECT_THAT((std::vector{axis.XYPanelMaterial, axis.XZPanelMaterial, axis.YZPanelMaterial, axis.LabelNumX,
                             axis.LabelNumY, axis.LabelNumZ}),
                ElementsAre(7, 13, 8, 500, 7, 10));
    EXPECT_THAT((std::vector{axis.XYPanelColor, axis.XZPanelColor, axis.YZPanelColor, axis.XYGridColor,
                             axis.XZGridColor, axis.YZGridColor}),
                ElementsAre(1, 2, 3, 4, 5, 6));
    EXPECT_EQ(axis.TitleX + axis.TitleY + axis.TitleZ, "EastNorthUp");
}

TEST_F(SettingForms, plainArrowsAndAHiddenAxisLeaveTheFrameAsItIs) {
    for (const bool hidden : {false, true}) {
        state.TheAxis.AxisStyle = 1;
        const auto form = makeAxisForm(state);
        work(*form, hidden ? "Text4=lost Text1=abc Check1=off" : "Text4=lost Text1=abc Option2");
        EXPECT_FALSE(form->control("Text4").enabled);
        accepted(*form);
        EXPECT_EQ(state.TheAxis.TitleX, "X");
        EXPECT_EQ(state.TheAxis.Show, !hidden);
        EXPECT_EQ(state.TheAxis.AxisStyle, hidden ? 1 : 2);
    }
}

TEST_F(SettingForms, theAxisDialogScalesDataOnceFromThePanel) {
    showSurface();
    EXPECT_DOUBLE_EQ(state.scaling.ScaleX, 2);
    for (int turn = 0; turn < 2; ++turn) {
        const auto form = makeAxisForm(state);
        work(*form, "Option4");
        accepted(*form);
        EXPECT_TRUE(state.AxisDialogOk);
        EXPECT_DOUBLE_EQ(state.scaling.ScaleX, 2);
        EXPECT_DOUBLE_EQ(state.scaling.ScaleY, 2);
        EXPECT_DOUBLE_EQ(state.TheData.Reg3DX(2, 0), 10);
        EXPECT_DOUBLE_EQ(state.TheData.Reg3DY(0, 1), 2);
    }
    EXPECT_DOUBLE_EQ(state.scene.SceneCenterX, 1) << "the scene was centred on the data as they are scaled now";
    EXPECT_GT(displays, 0);

    const auto form = makeAxisForm(state);
    EXPECT_FALSE(form->control("Text7").enabled);
    work(*form, "Option5");
    EXPECT_TRUE(form->control("Text7").enabled && form->control("Label18").enabled);
    expectRefused(*form, "Text8", {{"", noData}, {"abc", illegal}, {"1e999", illegal}, {"0", "larger than 0"}});
    expectRefused(*form, "Text10", {{"-1", "larger than 0"}});
    work(*form, "Text8=1,5 Text9=0");
    accepted(*form);  // A surface has no ratio of Z.
    EXPECT_EQ(state.scaling.ScaleMode, 3);
    EXPECT_DOUBLE_EQ(state.scaling.ScaleY, state.scaling.ScaleX / 1.5);
}

TEST_F(SettingForms, aFailureInTheAxisDialogChangesNothing) {
    state.scaling.ScaleMode = 2;
    showSurface();
    const auto form = makeAxisForm(state);
    expectRefused(*form, "Text2",
                  {{"", noData},
                   {"abc", illegal},
                   {"1e999", illegal},
                   {"-1", "between 1 and 500"},
                   {"501", "between 1 and 500"},
                   {"1,5", "between 1 and 500"}});
    work(*form, "Option3 Text6=Height");
    for (const auto& [cell, message] : {std::pair{"1e999", "out of range"}, {"", "range of X is zero"}}) {
        for (int row = 1; row <= 6; ++row)
            state.panel.setCell(1, row, cell);
        EXPECT_THAT(refused(*form), HasSubstr(message));
        EXPECT_FALSE(state.AxisDialogOk);
    }
    state.panel.setText(1, "");
    EXPECT_EQ(refused(*form), "Error: The data panel holds no data to scale.");
    EXPECT_EQ(state.scaling.ScaleMode, 2);
    EXPECT_EQ(state.TheAxis.TitleZ, "Z");
    EXPECT_DOUBLE_EQ(state.TheData.Reg3DX(2, 0), 10);
    EXPECT_EQ(state.TheData.StepsX, 3);

    state.AxisDialogOk = true;
    form->cancel();
    EXPECT_FALSE(state.AxisDialogOk || form->isOpen());
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
    for (const auto& make : {makeAxisForm, makeLightForm, makeViewForm})
        accepted(*make(state));
    EXPECT_THAT((std::vector{state.scaling.ScaleRatioX, state.scaling.ScaleRatioY, state.scaling.ScaleRatioZ,
                             state.scaling.ZoomZ, state.ViewMinX}),
                ElementsAre(1.0 / 3, 1e22, 1e-7, 0.1, -1.0 / 3));
    EXPECT_THAT(state.TheLight.Position, ElementsAre(0.1F, 1e30F, -1e-30F, 1));
}

TEST_F(SettingForms, theLightTakesAllSixteenBoxesOrNone) {
    const auto form = makeLightForm(state);
    for (int box = 1; box <= 16; ++box)
        form->setText("Text" + std::to_string(box), std::to_string(box));
    work(*form, "Check2=off Check3=off");
    expectRefused(*form, "Text16",
                  {{"", noData}, {" ", noData}, {"abc", illegal}, {"1e999", illegal}, {"1e39", illegal}});
    EXPECT_EQ(state.TheLight.Diffuse[0], 1) << "no part of it is taken";
    work(*form, "Text1=-1,5");
    accepted(*form);
    EXPECT_THAT(state.TheLight.Position, ElementsAre(-1.5F, 2, 3, 16));
    EXPECT_THAT(state.TheLight.Diffuse, ElementsAre(4, 5, 6, 7));
    EXPECT_THAT(state.TheLight.Amission, ElementsAre(8, 9, 10, 11));
    EXPECT_THAT(state.TheLight.Specular, ElementsAre(12, 13, 14, 15));
    EXPECT_FALSE(state.TheLight.Enabled);
    EXPECT_EQ(state.TheLight.TwoSides[0], 0);
    EXPECT_EQ(displays, 1);
}

TEST_F(SettingForms, theViewTakesTheProjectionAndSixRanges) {
    const auto form = makeViewForm(state);
    EXPECT_TRUE(form->control("Option1").on);
    EXPECT_EQ(form->control("Text2").text, "50");
    work(*form, "Option2 Text1=-2,5 Text2=2 Text3=3 Text5=5");
    expectRefused(*form, "Text6", {{"abc", illegal}, {"1e999", illegal}});
    EXPECT_EQ(form->control("Text1").text, "-2.5") << "cleaned";
    EXPECT_EQ(state.TheView.ProjectType, 1);
    work(*form, "Text4=");
    accepted(*form);
    EXPECT_EQ(state.TheView.ProjectType, 2);
    EXPECT_THAT(
        (std::vector{state.ViewMinX, state.ViewMaxX, state.ViewMinY, state.ViewMaxY, state.ViewMinZ, state.ViewMaxZ}),
        ElementsAre(-2.5, 2, 3, 0, 5, 50))
        << "an empty box is not checked";
    EXPECT_EQ(displays, 1);
}

TEST_F(SettingForms, theGridTakesFrom1To65536RowsAndColumns) {
    const char* const message = "the grid must be a value between 1 and 65536.";
    const auto form = makeGridSizeForm(state);
    EXPECT_EQ(form->control("Text1").text, "101");
    EXPECT_EQ(form->control("Text2").text, "5");
    work(*form, "Text2=4");
    expectRefused(
        *form, "Text1",
        {{"", message}, {"abc", message}, {"0", message}, {"65537", message}, {"-1", message}, {"1e999", message}});
    EXPECT_EQ(state.panel.gridColumns(), 5);
    work(*form, "Text1=65536");
    accepted(*form);
    EXPECT_EQ(state.panel.gridRows(), 65536);
    EXPECT_EQ(state.panel.gridColumns(), 4);
}

TEST_F(SettingForms, theAboutBoxTellsTheVersionAndHasOkAlone) {
    const auto form = makeAboutForm();
    EXPECT_THAT(form->control("lblVersion").caption, testing::ContainsRegex("^Version [0-9]+\\.[0-9]+"));
    EXPECT_EQ(form->okName(), "cmdOK");
    EXPECT_TRUE(form->cancelName().empty());
    accepted(*form);
}

}  // namespace
}  // namespace tessaplot::ui
