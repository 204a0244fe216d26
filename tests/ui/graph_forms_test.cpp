#include "ui/graph_forms.h"

#include <cmath>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/refresh.h"
#include "graphs/color_fill.h"
#include "scripted_window.h"
#include "ui/bound_field.h"

namespace tessaplot::ui {
namespace {

using base::packColor;
using data::DataKind;
using graphs::Cls9;
using testing::ElementsAre;
using testing::HasSubstr;
namespace type = graphs::graph_type;

constexpr int allKinds[]{6, 7, 13, 14, 15, 16, 18, 19, 24, 41, 42, 43, 44};

class GraphForms : public ScriptedWindow {
 protected:
    /// Presses OK and gives the graph that it added, which must be there.
    const Cls9& added(Form& form) {
        state.AllGraphs.Graphs.clear();
        asked.clear();
        form.accept();
        EXPECT_FALSE(form.isOpen());
        EXPECT_THAT(asked, ElementsAre());
        return *state.AllGraphs.Graphs.at(0);
    }

    /// Presses OK, which must be answered with one message and change nothing.
    std::string refusedWhole(Form& form) {
        const std::string message = refused(form);
        EXPECT_TRUE(state.AllGraphs.empty() && state.TriangleList.empty());
        EXPECT_FALSE(state.DialogOk);
        EXPECT_EQ(state.LastGraphId, 0);
        EXPECT_EQ(state.TheData.StepsX, 0);
        EXPECT_EQ(state.scaling.ScaleX, 0);
        return message;
    }
    std::string refusedWhole(int kind) { return refusedWhole(*makeGraphForm(state, kind)); }

    /// Works the controls, of which the last must be answered with one message.
    std::string answer(Form& form, const std::string& steps) {
        asked.clear();
        work(form, steps);
        return theQuestion();
    }
};

TEST_F(GraphForms, everyKindHasItsDialogWhoseDefaultsMakeAGraphThatDraws) {
    for (const int kind : allKinds) {
        SCOPED_TRACE(kind);
        fillFor(kind);
        state.DialogOk = false;
        state.LastGraphId = 7;
        makeGraphForm(state, kind)->cancel();
        EXPECT_EQ(state.LastGraphId, 7);
        const Cls9& graph = added(*makeGraphForm(state, kind));
        EXPECT_TRUE(state.DialogOk);
        EXPECT_EQ(graph.GraphType, kind);
        EXPECT_EQ(graph.ID, 8);
        EXPECT_EQ(state.LastGraphId, 8);
        EXPECT_EQ(graph.NameS, graphs::listLabel(graph, state.scene.SceneMode));
        EXPECT_EQ(state.TriangleCount() > 5, kind == type::delaunay || kind >= type::scatter4D);
        if (kind != type::point) {
            EXPECT_EQ(graph.StepU, state.TheData.StepsX - 1);
            EXPECT_EQ(graph.StepV, state.TheData.StepsY - 1);
            EXPECT_EQ(graph.StepH, kind >= type::scatter4D ? state.TheData.StepsZ - 1 : 0);
        }
        state.ShownGraphs.Graphs = state.AllGraphs.Graphs;
        core::RebuildScene(state);
        EXPECT_EQ(state.compiled.misfits, "");
        EXPECT_FALSE(state.compiled.graphs.front()->empty());
    }
    EXPECT_THROW(makeGraphForm(state, 12), base::Failure);
}

TEST_F(GraphForms, controlsStandOnceOnTheirPagesAndOneOptionOfAFrameIsOn) {
    for (const int kind : allKinds) {
        SCOPED_TRACE(kind);
        fillFor(kind);
        const auto form = makeGraphForm(state, kind);
        std::set<std::string> names;
        for (const Page& page : form->pages())
            for (const Frame& frame : page.frames) {
                int options = 0;
                int on = 0;
                for (const auto& row : frame.rows)
                    for (const std::string& name : row) {
                        const Control& control = form->control(name);
                        EXPECT_TRUE(names.insert(name).second) << name;
                        if (control.kind == ControlKind::OptionButton) ++options;
                        if (control.kind == ControlKind::OptionButton && control.on) ++on;
                    }
                EXPECT_EQ(on, options > 0 ? 1 : 0) << frame.caption;
            }
        EXPECT_THAT(form->name(), testing::StartsWith("frmF"));
    }
}

TEST_F(GraphForms, actionsChangeOnlyUsableControlsOfAnOpenForm) {
    fillSurface();
    const auto form = makeGraphForm(state, type::surface);
    EXPECT_THROW(form->control("Check99"), base::Failure);
    work(*form, "Option1 Option8 Option3");
    EXPECT_FALSE(form->control("Option1").on || form->control("Option11").on);
    EXPECT_TRUE(form->control("Option3").on && form->control("Option8").on) << "of another frame";
    work(*form, "Option3=off");
    EXPECT_TRUE(form->control("Option3").on) << "only another option switches one off";
    work(*form, "Slider1=0.75 Text2=9");
    EXPECT_NE(form->control("Slider1").value, 0.75) << "disabled";
    form->control("Combo3").visible = false;
    work(*form, "Check6 Slider1=7 Combo3=0 List1=13 List1=-1");
    EXPECT_EQ(form->control("Slider1").value, 1);
    EXPECT_EQ(form->control("Combo3").selected, 2);
    EXPECT_EQ(form->control("List1").selected, 12);
    form->cancel();
    work(*form, "Option1");
    form->accept();
    EXPECT_TRUE(state.AllGraphs.empty()) << "a closed form takes nothing";
    EXPECT_FALSE(form->control("Option1").on);
}

TEST_F(GraphForms, controlsReachTheirProperties) {
    constexpr base::PackedColor picked = 0x123456;
    const struct {
        int kind;
        const char* steps;
        Property property;
        double expected;
    } bindings[]{
        {6, "Option1", &Cls9::FillStyle, 1},
        {6, "Option3", &Cls9::FillStyle, 2},
        {6, "Option2", &Cls9::FillStyle, 3},
        {6, "Option4", &Cls9::FillStyle, 4},
        {6, "Option4 Combo1=1", &Cls9::FillStyle, 5},
        {6, "Option1 Option7", &Cls9::FillStyle, 5},
        {6, "Option5 Option7", &Cls9::TexMode, 2},
        {6, "Option5", &Cls9::TexMode, 1},
        {6, "Option8", &Cls9::Smoothness, 1},
        {6, "Option9", &Cls9::Smoothness, 2},
        {6, "List1=4", &Cls9::Material, 5},
        {6, "Option2 Picture2", &Cls9::FirstColor, picked},
        {6, "Option2 Picture3", &Cls9::SecondColor, picked},
        {6, "Option4 Picture4", &Cls9::SecondColor, picked},
        {6, "Check1", &Cls9::ShowColormap, 1},
        {6, "Check2", &Cls9::ShowContour, 1},
        {6, "Check2 Text2=0,5", &Cls9::ContourLevel, 0.5},
        {6, "Check2 Combo2=2", &Cls9::LineWidth, 3},
        {6, "Check3", &Cls9::ShowVector, 1},
        {6, "Check6", &Cls9::ShowTrans, 1},
        {6, "Check6 Slider1=0.25", &Cls9::TransAlpha, 0.25},
        {6, "Combo3=1", &Cls9::Show, 2},
        {7, "Picture1", &Cls9::PointColor, picked},
        {7, "Combo2=6", &Cls9::PointSize, 7},
        {13, "Option1", &Cls9::FillStyle, 3},
        {13, "Option1", &Cls9::ColorMapfilltype, 3},
        {13, "Option1 Picture1", &Cls9::ColorMapcolor1, picked},
        {13, "Option1 Picture1", &Cls9::SecondColor, picked},
        {13, "Option1 Picture2", &Cls9::ColorMapcolor2, picked},
        {13, "Option1 Picture2", &Cls9::FirstColor, picked},
        {14, "Text1=2.5", &Cls9::ContourLevels, 2.5},
        {14, "Option1", &Cls9::FillStyle, 3},
        {14, "Option2", &Cls9::ConFillType, 4},
        {14, "Check1=off", &Cls9::FillStyle, 4},
        {14, "Check1=off", &Cls9::ConFillType, 5},
        {14, "Combo2=2", &Cls9::ConWidth, 3},
        {14, "Option2 Picture1", &Cls9::ConColor1, picked},
        {14, "Option1 Picture1", &Cls9::SecondColor, picked},
        {14, "Option1 Picture2", &Cls9::ConColor2, picked},
        {14, "Option1 Picture2", &Cls9::FirstColor, picked},
        {15, "Picture1", &Cls9::VectorColor, picked},
        {16, "Text1=0.25", &Cls9::Contour3Levels, 0.25},
        {16, "Option1", &Cls9::Con3FillType, 3},
        {16, "Combo2=7", &Cls9::Con3Width, 8},
        {16, "Option1 Picture1", &Cls9::Con3Color1, picked},
        {16, "Option1 Picture2", &Cls9::Con3Color2, picked},
        {18, "Combo2=4", &Cls9::VertSize, 5},
        {18, "Picture1", &Cls9::VertColor, picked},
        {18, "List1=4", &Cls9::Material, 5},
        {19, "Combo2=4", &Cls9::GridWidth, 5},
        {19, "Picture1", &Cls9::GridColor, picked},
        {24, "Check1=off", &Cls9::ShowDS, 0},
        {24, "Check2=off", &Cls9::ShowDG, 0},
        {24, "Picture5", &Cls9::TriColor, picked},
        {24, "Combo2=1", &Cls9::TriWidth, 2},
        {24, "Option3 Picture2", &Cls9::FirstColor, picked},
        {24, "Option4 Picture3", &Cls9::SecondColor, picked},
        {41, "Picture1", &Cls9::Scat4DColor, picked},
        {41, "List1=4", &Cls9::Material, 5},
        {42, "Picture1", &Cls9::Vect4DColor, picked},
        {42, "List1=4", &Cls9::Material, 5},
        {43, "Option1", &Cls9::FillStyle, 3},
        {43, "Option1 Picture7", &Cls9::FirstColor, picked},
        {43, "Option1 Picture8", &Cls9::SecondColor, picked},
        {43, "Combo2=2", &Cls9::LineWidth, 3},
        {43, "List4=4", &Cls9::Material, 5},
        {44, "Text1=11", &Cls9::IsoSurValue, 11},
        {44, "Slider1=12", &Cls9::IsoSurValue, 12},
        {44, "List1=4", &Cls9::Material, 5},
    };
    for (const auto& binding : bindings) {
        SCOPED_TRACE(std::to_string(binding.kind) + " " + binding.steps);
        fillFor(binding.kind);
        colors = {picked};
        const auto form = makeGraphForm(state, binding.kind);
        work(*form, binding.steps);
        const Cls9& graph = added(*form);
        std::visit(
            [&](auto property) {
                if constexpr (!std::is_same_v<decltype(property), std::string Cls9::*>) {
                    EXPECT_EQ(graph.*property, binding.expected);
                }
            },
            binding.property);
    }
}

TEST_F(GraphForms, numbersThatFailKeepTheDialogOpen) {
    const struct {
        int kind;
        const char* steps;
        const char* message;
    } cases[]{
        {6, "Check2 Text2=", noData},
        {6, "Check2 Text2=abc", illegal},
        {6, "Check2 Text2=-1", illegal},
        {6, "Check2 Text2=1e999", illegal},
        {6, "Check5 Text1=", noData},
        {14, "Text1=", noData},
        {14, "Text1=0", illegal},
        {16, "Text1=x", illegal},
        {14, "Text1=0.0001", "10000 levels"},
        {7, "Text3=", noData},
        {7, "Text4=q", illegal},
        {44, "Text1=", noData},
        {44, "Text1=1e999", illegal},
    };
    for (const auto& [kind, steps, message] : cases) {
        fillFor(kind);
        const auto form = makeGraphForm(state, kind);
        work(*form, steps);
        EXPECT_THAT(refusedWhole(*form), HasSubstr(message)) << kind << steps;
    }
    fillSurface();
    const auto surface = makeGraphForm(state, type::surface);
    work(*surface, "Check2 Text2=unread Check2=off");
    EXPECT_FALSE(surface->control("Label2").enabled);
    added(*surface);
}

TEST_F(GraphForms, dataThatFailKeepTheDialogAndTheDocument) {
    for (const int kind : allKinds) {
        SCOPED_TRACE(kind);
        fillFor(kind);
        state.panel.setCell(2, 3, "abc");
        EXPECT_THAT(refusedWhole(kind), testing::EndsWith("Illegal data exist."));
        state.panel.setText(kind == type::delaunay ? 4 : 1, "");
        EXPECT_THAT(refusedWhole(kind), testing::EndsWith("Illegal data exist."));
        if (kind == type::point) continue;
        if (kind >= type::scatter4D)
            fillSurface();
        else
            fillVolume();
        EXPECT_THAT(refusedWhole(kind), HasSubstr("but the data are"));
    }
    fillSurface();
    EXPECT_THAT(refusedWhole(type::delaunay), HasSubstr("regular"));
    state.panel = {};
    state.panel.selectKind(DataKind::RegularSpherical);
    EXPECT_THAT(refusedWhole(type::surface), HasSubstr("at least two rows"));
    fillSurface();
    state.panel.setCell(1, 2, " 0,5");
    added(*makeGraphForm(state, type::surface));
    EXPECT_EQ(state.panel.cell(1, 2), "0.5");
}

TEST_F(GraphForms, whateverThePanelHoldsOkAddsAGraphOrTellsOnceWhyNot) {
    for (const char* text : {"", "abc", "1e999", "-3", "1", "2", "6", "30000", "2147483648"})
        for (int kind = 0; kind < data::dataKindCount; ++kind)
            for (const int graphType : allKinds) {
                SCOPED_TRACE(std::string(text) + " kind " + std::to_string(kind) + " graph " +
                             std::to_string(graphType));
                state.panel = {};
                state.panel.selectKind(static_cast<DataKind>(kind));
                for (int box = 1; box <= 10; ++box)
                    state.panel.setText(box, text);
                for (int row = 1; row <= 216; ++row)
                    setRow(row, row % 6, std::floor(row / 6.0), std::floor(row / 36.0), row);
                state.AllGraphs.Graphs.clear();
                state.scaling = {};
                asked.clear();
                makeGraphForm(state, graphType)->accept();
                EXPECT_EQ(asked.size() + state.AllGraphs.Graphs.size(), 1U) << testing::PrintToString(asked);
            }
}

TEST_F(GraphForms, griddingIsChosenForScatteredDataAndCanBeCancelled) {
    fillSurface();
    EXPECT_FALSE(makeGraphForm(state, type::surface)->control("GridMethod").visible);
    fillScattered();
    for (const int kind : {6, 13, 14, 15, 16, 18, 19, 24}) {
        const Control method = makeGraphForm(state, kind)->control("GridMethod");
        EXPECT_TRUE(method.visible);
        EXPECT_EQ(method.items.size(), 5U);
        EXPECT_EQ(method.selected, 1);
    }
    state.desktop.reportProgress = [](double) { return false; };
    const auto cancelled = makeGraphForm(state, type::surface);
    work(*cancelled, "GridMethod=2");
    EXPECT_THAT(refusedWhole(*cancelled), HasSubstr("cancelled"));
    EXPECT_EQ(state.gridding.SurfaceGridMethod, 2);

    state.desktop.reportProgress = [busy = cancelled.get()](double) {
        busy->accept();
        busy->cancel();
        return true;
    };
    cancelled->accept();
    EXPECT_THAT(asked, ElementsAre()) << "who closes the dialog knows that it was closed";
    EXPECT_FALSE(cancelled->isOpen());
    EXPECT_TRUE(state.AllGraphs.empty());

    state.desktop.reportProgress = nullptr;
    const auto form = makeGraphForm(state, type::surface);
    work(*form, "GridMethod=3 Check4");
    EXPECT_TRUE(added(*form).ShowIrregData);
    EXPECT_EQ(state.gridding.SurfaceGridMethod, 4);
}

TEST_F(GraphForms, volumesOfScatteredPointsAreGriddedByTheChosenMethod) {
    fillScatteredVolume();
    for (const auto& [kind, points] : {std::pair(41, "Check1"), {42, "Check1"}, {43, "Check10"}}) {
        const auto form = makeGraphForm(state, kind);
        EXPECT_EQ(form->control("GridMethod").items.size(), 3U);
        work(*form, std::string("GridMethod=0 ") + points);
        const Cls9& graph = added(*form);
        EXPECT_EQ(state.gridding.VolumeGridMethod, 101);
        EXPECT_TRUE(graph.ShowIrregData);
        EXPECT_EQ(graph.StepH, 4);
    }
    const auto slices = makeGraphForm(state, type::slice4D);
    EXPECT_EQ(slices->control("Slider3").maximum, 8);
    EXPECT_EQ(slices->control("Text5").text, "4") << "30 lies beyond the data";
    EXPECT_EQ(slices->control("Text18").text, "4");
    const auto iso = makeGraphForm(state, type::isoSurface);
    EXPECT_EQ(iso->control("Slider1").minimum, 1);
    EXPECT_EQ(iso->control("Slider1").maximum, 12);
}

TEST_F(GraphForms, theTextureIsChosenFromAFile) {
    fillSurface();
    chosen = "/pictures/my chart.bmp";
    const auto form = makeGraphForm(state, type::surface);
    work(*form, "Command1");
    EXPECT_THAT(asked, ElementsAre()) << "there is no texture yet";
    EXPECT_EQ(answer(*form, "Check5 Command1"), "Open File (*.bmp)|*.bmp|*.jpg|*.jpg|*.gif|*.gif");
    const Cls9& graph = added(*form);
    EXPECT_TRUE(graph.ShowTex);
    EXPECT_EQ(graph.TexName, "/pictures/my chart.bmp");
}

TEST_F(GraphForms, aPlainFillEndsTheColormapStyle) {
    fillSurface();
    const auto form = makeGraphForm(state, type::surface);
    work(*form, "Option7");
    EXPECT_TRUE(form->control("Option11").on);
    colors = {77};
    work(*form, "Option1 Picture4 Picture3");
    EXPECT_TRUE(form->control("Option6").on);
    EXPECT_EQ(form->control("Picture4").color, 77) << "one colour in two boxes";
    EXPECT_EQ(added(*form).SecondColor, 77);
}

TEST_F(GraphForms, namedRampsArePicturedAndLoaded) {
    fillSurface();
    const auto form = makeGraphForm(state, type::colorMap);
    const std::vector<Item>& maps = form->control("Combo1").items;
    EXPECT_THAT(maps, ElementsAre(testing::Field(&Item::text, "Rainbow"), testing::Field(&Item::text, "Earth"),
                                  testing::Field(&Item::text, "Fiery"), testing::Field(&Item::text, "Marine"),
                                  testing::Field(&Item::text, "Grey")));
    EXPECT_EQ(maps[4].swatch.front(), packColor(200, 200, 200));
    EXPECT_EQ(maps[4].swatch.back(), packColor(50, 50, 50));
    work(*form, "Combo1=4");
    EXPECT_EQ(form->control("Ramp1").ramp, maps[4].swatch);
    const Cls9& graph = added(*form);
    EXPECT_EQ(graph.ColorName, "Grey");
    EXPECT_EQ(graph.ColorNum, 2);
    EXPECT_EQ(graph.ColorR(1), 50);
}

TEST_F(GraphForms, aCustomRampIsEditedStopByStop) {
    fillSurface();
    const auto form = makeGraphForm(state, type::surface);
    work(*form, "Option1 AddStop Combo1=4 CheckCustom TextStop=40");
    EXPECT_EQ(form->control("ListStops").items.size(), 2U);
    const std::vector<base::PackedColor> before = form->control("Ramp1").ramp;
    work(*form, "AddStop");
    EXPECT_EQ(form->control("ListStops").selected, 1);
    colors = {packColor(1, 2, 3)};
    work(*form, "ColorStop");
    EXPECT_NE(form->control("Ramp1").ramp, before) << "the picture follows";
    EXPECT_THAT(answer(*form, "TextStop=60 MoveStop AddStop"), HasSubstr("already"));
    EXPECT_THAT(answer(*form, "TextStop=80 AddStop TextStop=55 MoveStop"), HasSubstr("60 and 100"));
    EXPECT_THAT(answer(*form, "TextStop=150 AddStop"), HasSubstr("between 0 and 100"));
    EXPECT_EQ(answer(*form, "TextStop=abc MoveStop"), illegal);
    EXPECT_THAT(answer(*form, "RemoveStop ListStops=0 RemoveStop"), HasSubstr("cannot be removed"));
    EXPECT_THAT(answer(*form, "MoveStop"), HasSubstr("stay at 0 and 100"));
    Cls9 graph = added(*form);
    EXPECT_EQ(graph.FillStyle, 5);
    ASSERT_EQ(graph.ColorNum, 3);
    EXPECT_EQ(graph.ColorPos(1), 60);
    EXPECT_EQ(graph.ColorB(1), 3);
    graphs::loadNamedRamp(graph);
    EXPECT_EQ(graph.ColorPos(1), 60) << "the name is that of no ramp";

    const auto full = makeGraphForm(state, type::colorMap);
    work(*full, "Combo1=4 CheckCustom");
    for (int stop = 1; stop <= 29; ++stop)
        work(*full, "TextStop=" + std::to_string(3 * stop) + " AddStop");
    EXPECT_THAT(answer(*full, "TextStop=98 AddStop"), HasSubstr("at most 31"));
    EXPECT_EQ(added(*full).ColorNum, 31);
}

TEST_F(GraphForms, slicesAreAddedChangedAndRemoved) {
    fillVolume();
    const auto form = makeGraphForm(state, type::slice4D);
    EXPECT_EQ(form->control("Text6").text, "30");
    colors = {9};
    work(*form, "Command10 Text5=55.5 Check7=off Check8 Text6=4 Picture5 Text17=2 Command10 Command11");
    EXPECT_EQ(form->control("List3").items.size(), 4U);
    EXPECT_EQ(form->control("List3").items[1].text, "Z = 55.5, contours every 4");
    work(*form, "List3=0");
    EXPECT_EQ(form->control("Text5").text, "30");
    EXPECT_TRUE(form->control("Check7").on);
    work(*form, "Check9 Slider3=45 Command14 List3=3 Command17");
    const Cls9& graph = added(*form);
    ASSERT_EQ(graph.SlicesZ.Num, 3);
    EXPECT_EQ(graph.SlicesX.Num + graph.SlicesY.Num, 0);
    const auto& first = graph.SlicesZ[1];
    EXPECT_EQ(first.Position, 45);
    EXPECT_TRUE(first.ShowColor && first.ShowVect && !first.ShowCont);
    EXPECT_THAT((std::vector{first.FirstBegin, first.FirstEnd, first.SecondBegin, first.SecondEnd}),
                ElementsAre(1, 4, 1, 5));
    const auto& second = graph.SlicesZ[2];
    EXPECT_EQ(second.ContLevels, 4);
    EXPECT_EQ(second.ContColor, 9);
    EXPECT_EQ(second.SecondBegin, 2);
    EXPECT_FALSE(second.ShowColor);
    EXPECT_EQ(graph.SlicesZ[3].Position, 0);
}

TEST_F(GraphForms, everyAxisHasControlsForItsSlices) {
    fillVolume();
    const auto form = makeGraphForm(state, type::slice4D);
    for (const char* steps :
         {"Text1=1 Check1=off Check2 Check3 Text2=2 Picture1 Picture2 Text7=1 Text8=3 Text9=2 Text10=5 Command6",
          "Text3=2 Check4=off Check5 Check6 Text4=2 Picture3 Picture4 Text11=1 Text12=3 Text13=2 Text14=5 Command8",
          "Text5=3 Check7=off Check8 Check9 Text6=2 Picture5 Picture6 Text15=1 Text16=3 Text17=2 Text18=5 Command10"}) {
        colors = {11, 12};
        work(*form, steps);
    }
    const Cls9& graph = added(*form);
    double position = 0;
    for (const graphs::SliceSet& slices : {graph.SlicesX, graph.SlicesY, graph.SlicesZ}) {
        ASSERT_EQ(slices.Num, 1);
        const auto& slice = slices[1];
        EXPECT_EQ(slice.Position, ++position);
        EXPECT_TRUE(!slice.ShowColor && slice.ShowCont && slice.ShowVect);
        EXPECT_THAT((std::vector{slice.ContColor, slice.VectColor, slice.FirstBegin, slice.FirstEnd, slice.SecondBegin,
                                 slice.SecondEnd}),
                    ElementsAre(11, 12, 1, 3, 2, 5));
        EXPECT_EQ(slice.ContLevels, 2);
    }
}

TEST_F(GraphForms, sliceInputThatFailsIsTold) {
    fillVolume();
    const auto form = makeGraphForm(state, type::slice4D);
    const auto added30 = [&](const std::string& box, const std::string& text) {
        const std::string before = form->control(box).text;
        std::string message = answer(*form, box + "=" + text + " Command10");
        form->setText(box, before);
        return message;
    };
    EXPECT_EQ(added30("Text5", ""), noData);
    EXPECT_EQ(added30("Text5", "1e999"), illegal);
    EXPECT_THAT(added30("Text5", "101"), HasSubstr("from 0 to 100"));
    EXPECT_THAT(added30("Text15", "0"), HasSubstr("from 1 to 4"));
    EXPECT_THAT(added30("Text18", "6"), HasSubstr("from 1 to 5"));
    EXPECT_THAT(added30("Text18", "2.5"), HasSubstr("from 1 to 5"));
    EXPECT_THAT(added30("Text15", "4"), HasSubstr("before its last"));
    work(*form, "Check8");
    EXPECT_EQ(added30("Text6", "-1"), illegal);
    for (const char* button : {"Command14", "Command17"})
        EXPECT_EQ(answer(*form, button), "Note: Select a slice first.");
    for (int i = 0; i < 50; ++i)
        work(*form, "Command10");
    for (const char* button : {"Command10", "Command11"})
        EXPECT_THAT(answer(*form, button), HasSubstr("At most 50 slices"));
    EXPECT_EQ(added(*form).SlicesZ.Num, 50);
}

TEST_F(GraphForms, slicesNobodyChoseRunThroughTheMiddle) {
    fillVolume();
    const auto wrong = makeGraphForm(state, type::slice4D);
    work(*wrong, "Check8 Text6=0");
    EXPECT_EQ(refusedWhole(*wrong), illegal);
    const Cls9& graph = added(*makeGraphForm(state, type::slice4D));
    EXPECT_EQ(graph.SlicesX.Num + graph.SlicesY.Num + graph.SlicesZ.Num, 3);
    EXPECT_EQ(graph.SlicesZ[1].Position, 50);
}

TEST_F(GraphForms, theIsoSurfaceDialogKnowsTheRangeAndCountsTheTriangles) {
    fillVolume();
    const auto form = makeGraphForm(state, type::isoSurface);
    EXPECT_EQ(form->control("Label1").caption, "The data run from 0 to 50.");
    work(*form, "Text1=10");
    EXPECT_EQ(form->control("Slider1").value, 10);
    EXPECT_THAT(form->control("Ramp2").ramp, ElementsAre(packColor(0, 8, 247)))
        << "a fifth of the rainbow is nearly blue";
    work(*form, "Text1=1e6");
    EXPECT_EQ(form->control("Slider1").value, 50);
    work(*form, "Slider1=20");
    EXPECT_EQ(form->control("Text1").text, "20");
    EXPECT_EQ(form->control("Ramp2").ramp.front(), added(*form).IsoSurColor);
    EXPECT_THAT(status, testing::MatchesRegex("The iso-surface has [1-9][0-9]* triangles."));
    state.panel.setCell(4, 1, "abc");
    EXPECT_FALSE(makeGraphForm(state, type::isoSurface)->control("Slider1").enabled);
}

TEST_F(GraphForms, pointsLandInTheAxesOfTheScene) {
    fillSurface();
    state.scaling.ScaleX = state.scaling.ScaleY = state.scaling.ScaleZ = 1;
    const auto typed = [&]() -> const Cls9& {
        const auto form = makeGraphForm(state, type::point);
        work(*form, "Text2=1 Text3=2 Text4=3");
        return added(*form);
    };
    const Cls9 spatial = typed();
    EXPECT_THAT((std::vector{spatial.PointX, spatial.PointY, spatial.PointZ}), ElementsAre(2, 3, 1));
    EXPECT_EQ(spatial.NameS, "Point  x=1, y=2, z=3");
    EXPECT_EQ(state.TheData.StepsX, 0) << "a point needs no data once there are scales";
    state.scene.SceneMode = scene::mode2D;
    const Cls9 flat = typed();
    EXPECT_THAT((std::vector{flat.PointX, flat.PointY, flat.PointZ}), ElementsAre(3, 1, 2));
    EXPECT_EQ(flat.NameS, "Point  x=1, y=2");
}

}  // namespace
}  // namespace tessaplot::ui
