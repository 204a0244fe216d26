#include "ui/graph_forms.h"

#include <cmath>
#include <deque>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
#include "core/refresh.h"
#include "graphs/color_fill.h"

namespace tessaplot::ui {
namespace {

using base::packColor;
using data::DataKind;
using graphs::Cls9;
using testing::ElementsAre;
using testing::HasSubstr;
namespace type = graphs::graph_type;

constexpr int allKinds[]{6, 7, 13, 14, 15, 16, 18, 19, 24, 41, 42, 43, 44};

/// A document with data whose dialogs are answered from lists laid out beforehand.
class GraphForms : public testing::Test {
 protected:
    void SetUp() override {
        state.scene.SceneMode = scene::mode3D;
        state.desktop.ask = [this](const platform::Message& message) {
            told.push_back(message.title + ": " + message.text);
            return platform::Answer::Ok;
        };
        state.desktop.chooseColor = [this](base::PackedColor) -> std::optional<base::PackedColor> {
            if (colors.empty()) return std::nullopt;
            const base::PackedColor color = colors.front();
            colors.pop_front();
            return color;
        };
        state.desktop.showStatus = [this](std::string_view text) { status = text; };
    }

    void setBoxes(const std::vector<std::string>& texts) {
        for (int box = 1; box <= static_cast<int>(texts.size()); ++box)
            state.panel.setText(box, texts[static_cast<std::size_t>(box) - 1]);
        state.panel.layOut();
    }

    void setRow(int row, double first, double second, double third, double fourth) {
        int column = 0;
        for (const double number : {first, second, third, fourth})
            state.panel.setCell(++column, row, std::to_string(number));
    }

    /// 5 by 4 nodes over 0 to 4 and 0 to 3; the height runs from 0 to 24, the fill value to a tenth of it.
    void fillSurface() {
        state.scene.SceneMode = scene::mode3D;
        state.panel.selectKind(DataKind::RegularSurface);
        setBoxes({"5", "4"});
        for (int i = 0; i < 5; ++i)
            for (int j = 0; j < 4; ++j)
                setRow(i * 4 + j + 1, i, j, 3 * i + 4 * j, 0.3 * i + 0.4 * j);
    }

    void fillScattered() {
        state.scene.SceneMode = scene::mode3D;
        state.panel.selectKind(DataKind::IrregularSurface);
        setBoxes({"0", "8", "9", "6", "0", "8", "5"});
        for (int p = 0; p < 9; ++p)
            setRow(p + 1, p, (p * 4) % 9, std::sin(p), 2.0 * p);
    }

    /// 4 by 5 by 6 nodes over 0 to 60, 0 to 80 and 0 to 100, with values from 0 to 50.
    void fillVolume() {
        state.scene.SceneMode = scene::mode4D;
        state.panel.selectKind(DataKind::RegularVolume);
        setBoxes({"4", "5", "", "6"});
        int row = 0;
        for (int i = 0; i < 4; ++i)
            for (int j = 0; j < 5; ++j)
                for (int k = 0; k < 6; ++k)
                    setRow(++row, 20 * i, 20 * j, 20 * k, i * i + j * 4 + k * 5);
    }

    void fillFor(int graphType) {
        if (graphType >= type::scatter4D)
            fillVolume();
        else if (graphType == type::delaunay)
            fillScattered();
        else
            fillSurface();
    }

    /// Presses OK and gives the graph that it added, which must be there.
    const Cls9& added(Form& form) {
        form.accept();
        EXPECT_FALSE(form.isOpen());
        EXPECT_THAT(told, ElementsAre());
        return *state.AllGraphs.Graphs.at(0);
    }

    /// Presses OK, which must be answered with one message and change nothing.
    std::string refused(Form& form) {
        told.clear();
        form.accept();
        EXPECT_TRUE(form.isOpen());
        EXPECT_TRUE(state.AllGraphs.empty());
        EXPECT_EQ(state.LastGraphId, 0);
        EXPECT_FALSE(state.DialogOk);
        EXPECT_EQ(state.TheData.StepsX, 0);
        EXPECT_EQ(state.scaling.ScaleX, 0);
        EXPECT_TRUE(state.TriangleList.empty());
        EXPECT_EQ(told.size(), 1U);
        return told.empty() ? std::string() : told.front();
    }

    /// Presses a button, which must be answered with one message.
    std::string answer(Form& form, std::string_view button) {
        told.clear();
        form.click(button);
        EXPECT_EQ(told.size(), 1U) << button;
        return told.empty() ? std::string() : told.front();
    }

    core::AppState state;
    std::vector<std::string> told;
    std::deque<base::PackedColor> colors;
    std::string status;
};

TEST_F(GraphForms, everyKindHasItsDialogWhoseDefaultsMakeAGraphThatDraws) {
    for (const int kind : allKinds) {
        SCOPED_TRACE(kind);
        state.AllGraphs.Graphs.clear();
        state.ShownGraphs.Graphs.clear();
        fillFor(kind);
        state.DialogOk = false;
        state.LastGraphId = 7;
        auto cancelled = makeGraphForm(state, kind);
        cancelled->cancel();
        EXPECT_TRUE(state.AllGraphs.empty());
        const auto form = makeGraphForm(state, kind);
        form->accept();
        ASSERT_THAT(told, ElementsAre());
        ASSERT_EQ(state.AllGraphs.Graphs.size(), 1U);
        const Cls9& graph = *state.AllGraphs.Graphs.front();
        EXPECT_EQ(graph.GraphType, kind);
        EXPECT_EQ(graph.ID, 8);
        EXPECT_EQ(state.LastGraphId, 8);
        EXPECT_EQ(graph.NameS, graphs::listLabel(graph, state.scene.SceneMode));
        EXPECT_TRUE(state.DialogOk);
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
        for (const Page& page : form->pages()) {
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
        }
        EXPECT_THAT(form->name(), testing::StartsWith("frmF"));
    }
}

/// What a person does to a dialog, and which property must then have which value.
struct Binding {
    int kind;
    void (*act)(Form& form);
    double (*property)(const Cls9& graph);
    double expected;
};

TEST_F(GraphForms, controlsReachTheirProperties) {
    constexpr base::PackedColor picked = 0x123456;
    const Binding bindings[]{
        {6, [](Form& f) { f.setOn("Option1", true); }, [](const Cls9& g) { return double(g.FillStyle); }, 1},
        {6, [](Form& f) { f.setOn("Option3", true); }, [](const Cls9& g) { return double(g.FillStyle); }, 2},
        {6, [](Form& f) { f.setOn("Option4", true); }, [](const Cls9& g) { return double(g.FillStyle); }, 4},
        {6, [](Form& f) { f.select("Combo1", 1); }, [](const Cls9& g) { return double(g.FillStyle); }, 5},
        {6, [](Form& f) { f.setOn("Option7", true); }, [](const Cls9& g) { return double(g.FillStyle); }, 5},
        {6, [](Form& f) { f.setOn("Option7", true); }, [](const Cls9& g) { return double(g.TexMode); }, 2},
        {6, [](Form& f) { f.setOn("Option5", true); }, [](const Cls9& g) { return double(g.TexMode); }, 1},
        {6, [](Form& f) { f.setOn("Option8", true); }, [](const Cls9& g) { return double(g.Smoothness); }, 1},
        {6, [](Form& f) { f.select("List1", 4); }, [](const Cls9& g) { return double(g.Material); }, 5},
        {6,
         [](Form& f) {
             f.setOn("Option2", true);
             f.click("Picture2");
         },
         [](const Cls9& g) { return double(g.FirstColor); }, picked},
        {6,
         [](Form& f) {
             f.setOn("Option2", true);
             f.click("Picture3");
         },
         [](const Cls9& g) { return double(g.SecondColor); }, picked},
        {6,
         [](Form& f) {
             f.setOn("Option4", true);
             f.click("Picture4");
         },
         [](const Cls9& g) { return double(g.SecondColor); }, picked},
        {6, [](Form& f) { f.setOn("Check1", true); }, [](const Cls9& g) { return double(g.ShowColormap); }, 1},
        {6, [](Form& f) { f.setOn("Check3", true); }, [](const Cls9& g) { return double(g.ShowVector); }, 1},
        {6,
         [](Form& f) {
             f.setOn("Check2", true);
             f.setText("Text2", " 0,5");
         },
         [](const Cls9& g) { return g.ContourLevel * g.ShowContour; }, 0.5},
        {6,
         [](Form& f) {
             f.setOn("Check6", true);
             f.slide("Slider1", 0.25);
         },
         [](const Cls9& g) { return g.TransAlpha * g.ShowTrans; }, 0.25},
        {6, [](Form& f) { f.select("Combo3", 1); }, [](const Cls9& g) { return double(g.Show); }, 2},
        {13, [](Form& f) { f.setOn("Option1", true); },
         [](const Cls9& g) { return double(g.FillStyle * 10 + g.ColorMapfilltype); }, 33},
        {13,
         [](Form& f) {
             f.setOn("Option1", true);
             f.click("Picture1");
         },
         [](const Cls9& g) { return double(g.ColorMapcolor1 - (g.SecondColor - picked)); }, picked},
        {14, [](Form& f) { f.setText("Text1", "2.5"); }, [](const Cls9& g) { return g.ContourLevels; }, 2.5},
        {14, [](Form& f) { f.setOn("Option2", true); },
         [](const Cls9& g) { return double(g.ConFillType * 10 + g.FillStyle); }, 44},
        {14, [](Form& f) { f.select("Combo2", 2); }, [](const Cls9& g) { return double(g.ConWidth); }, 3},
        {16, [](Form& f) { f.setText("Text1", "0.25"); }, [](const Cls9& g) { return g.Contour3Levels; }, 0.25},
        {16, [](Form& f) { f.setOn("Option1", true); }, [](const Cls9& g) { return double(g.Con3FillType); }, 3},
        {16, [](Form& f) { f.select("Combo2", 7); }, [](const Cls9& g) { return double(g.Con3Width); }, 8},
        {15, [](Form& f) { f.click("Picture1"); }, [](const Cls9& g) { return double(g.VectorColor); }, picked},
        {18, [](Form& f) { f.select("Combo2", 4); }, [](const Cls9& g) { return double(g.VertSize); }, 5},
        {18, [](Form& f) { f.click("Picture1"); }, [](const Cls9& g) { return double(g.VertColor); }, picked},
        {19, [](Form& f) { f.select("Combo2", 4); }, [](const Cls9& g) { return double(g.GridWidth); }, 5},
        {19, [](Form& f) { f.click("Picture1"); }, [](const Cls9& g) { return double(g.GridColor); }, picked},
        {24, [](Form& f) { f.setOn("Check1", false); }, [](const Cls9& g) { return double(g.ShowDS * 10 + g.ShowDG); },
         1},
        {24, [](Form& f) { f.click("Picture5"); }, [](const Cls9& g) { return double(g.TriColor); }, picked},
        {24, [](Form& f) { f.select("Combo2", 1); }, [](const Cls9& g) { return double(g.TriWidth); }, 2},
        {41, [](Form& f) { f.click("Picture1"); }, [](const Cls9& g) { return double(g.Scat4DColor); }, picked},
        {42, [](Form& f) { f.click("Picture1"); }, [](const Cls9& g) { return double(g.Vect4DColor); }, picked},
        {44, [](Form& f) { f.setText("Text1", "11"); }, [](const Cls9& g) { return g.IsoSurValue; }, 11},
        {44, [](Form& f) { f.slide("Slider1", 12); }, [](const Cls9& g) { return g.IsoSurValue; }, 12},
    };
    for (const Binding& binding : bindings) {
        SCOPED_TRACE(&binding - bindings);
        state.AllGraphs.Graphs.clear();
        fillFor(binding.kind);
        colors = {picked};
        const auto form = makeGraphForm(state, binding.kind);
        binding.act(*form);
        EXPECT_DOUBLE_EQ(binding.property(added(*form)), binding.expected);
    }
}

TEST_F(GraphForms, numbersThatFailKeepTheDialogOpen) {
    struct Case {
        int kind;
        const char* check;
        const char* box;
        const char* text;
        const char* message;
    };
    const char* illegal = "Error: Illegal data exist.";
    const char* empty = "Note: Input all parameters please.";
    const Case cases[]{
        {6, "Check2", "Text2", "", empty},     {6, "Check2", "Text2", "abc", illegal},
        {6, "Check2", "Text2", "-1", illegal}, {6, "Check2", "Text2", "1e999", illegal},
        {6, "Check5", "Text1", "", empty},     {14, nullptr, "Text1", "  ", empty},
        {14, nullptr, "Text1", "0", illegal},  {16, nullptr, "Text1", "x", illegal},
        {7, nullptr, "Text3", "", empty},      {7, nullptr, "Text4", "q", illegal},
        {44, nullptr, "Text1", "", empty},     {44, nullptr, "Text1", "1e999", illegal},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(std::to_string(one.kind) + " " + one.box + " " + one.text);
        fillFor(one.kind);
        const auto form = makeGraphForm(state, one.kind);
        if (one.check) form->setOn(one.check, true);
        form->setText(one.box, "1.25");
        form->setText(one.box, one.text);
        EXPECT_EQ(refused(*form), one.message);
    }
    fillSurface();
    const auto tiny = makeGraphForm(state, type::contour);
    tiny->setText("Text1", "0.0001");
    EXPECT_THAT(refused(*tiny), HasSubstr("10000 levels"));
    told.clear();
    const auto surface = makeGraphForm(state, type::surface);
    surface->setText("Text2", "never read");
    surface->setOn("Check2", true);
    surface->setText("Text2", "never read");
    surface->setOn("Check2", false);
    EXPECT_FALSE(surface->control("Label2").enabled);
    added(*surface);
}

TEST_F(GraphForms, dataThatFailKeepTheDialogAndTheDocument) {
    for (const int kind : allKinds) {
        SCOPED_TRACE(kind);
        fillFor(kind);
        state.panel.setCell(2, 3, "abc");
        EXPECT_THAT(refused(*makeGraphForm(state, kind)), testing::EndsWith("Illegal data exist."));
        state.panel.setText(kind == type::delaunay ? 4 : 1, "");
        EXPECT_THAT(refused(*makeGraphForm(state, kind)), testing::EndsWith("Illegal data exist."));
        if (kind == type::point) continue;
        if (kind >= type::scatter4D)
            fillSurface();
        else
            fillVolume();
        EXPECT_THAT(refused(*makeGraphForm(state, kind)), HasSubstr("but the data are"));
    }
    fillSurface();
    EXPECT_THAT(refused(*makeGraphForm(state, type::delaunay)), HasSubstr("regular"));
    state.panel.selectKind(DataKind::RegularSpherical);
    for (const int box : {1, 2})
        state.panel.setText(box, "");
    EXPECT_THAT(refused(*makeGraphForm(state, type::surface)), HasSubstr("at least two rows"));
    fillSurface();
    state.panel.setCell(1, 2, " 0,5");
    told.clear();
    added(*makeGraphForm(state, type::surface));
    EXPECT_EQ(state.panel.cell(1, 2), "0.5");
}

TEST_F(GraphForms, whateverThePanelHoldsOkAddsAGraphOrTellsOnceWhyNot) {
    for (const char* text : {"", "abc", "1e999", "-3", "1", "2", "6", "30000", "2147483648"}) {
        for (int kind = 0; kind < data::dataKindCount; ++kind) {
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
                told.clear();
                makeGraphForm(state, graphType)->accept();
                EXPECT_EQ(told.size() + state.AllGraphs.Graphs.size(), 1U) << testing::PrintToString(told);
            }
        }
    }
}

TEST_F(GraphForms, griddingIsChosenForScatteredDataAndCanBeCancelled) {
    fillSurface();
    EXPECT_FALSE(makeGraphForm(state, type::surface)->control("GridMethod").visible);
    fillScattered();
    for (const int kind : {6, 13, 14, 15, 16, 18, 19, 24}) {
        const auto form = makeGraphForm(state, kind);
        EXPECT_TRUE(form->control("GridMethod").visible);
        EXPECT_EQ(form->control("GridMethod").items.size(), 5U);
        EXPECT_EQ(form->control("GridMethod").selected, 1);
    }
    state.desktop.reportProgress = [](double) { return false; };
    const auto cancelled = makeGraphForm(state, type::surface);
    cancelled->select("GridMethod", 2);
    EXPECT_THAT(refused(*cancelled), HasSubstr("cancelled"));
    EXPECT_EQ(state.gridding.SurfaceGridMethod, 2);

    Form* busy = cancelled.get();
    state.desktop.reportProgress = [busy](double) {
        busy->accept();
        busy->cancel();
        return true;
    };
    told.clear();
    cancelled->accept();
    EXPECT_THAT(told, ElementsAre()) << "who closes the dialog knows that it was closed";
    EXPECT_FALSE(cancelled->isOpen());
    EXPECT_TRUE(state.AllGraphs.empty());

    state.desktop.reportProgress = nullptr;
    const auto form = makeGraphForm(state, type::surface);
    form->select("GridMethod", 3);
    EXPECT_TRUE(form->control("Check4").enabled);
    form->setOn("Check4", true);
    EXPECT_TRUE(added(*form).ShowIrregData);
    EXPECT_EQ(state.gridding.SurfaceGridMethod, 4);
}

TEST_F(GraphForms, volumesOfScatteredPointsAreGriddedByTheChosenMethod) {
    state.scene.SceneMode = scene::mode4D;
    state.panel.selectKind(DataKind::IrregularVolume);
    setBoxes({"0", "8", "12", "3", "0", "8", "4", "0", "8", "5"});
    for (int p = 0; p < 12; ++p)
        setRow(p + 1, p % 9, (p * 4) % 9, (p * 2) % 9, p + 1);
    const auto form = makeGraphForm(state, type::scatter4D);
    EXPECT_EQ(form->control("GridMethod").items.size(), 3U);
    form->select("GridMethod", 0);
    form->setOn("Check1", true);
    const Cls9& graph = added(*form);
    EXPECT_EQ(state.gridding.VolumeGridMethod, 101);
    EXPECT_TRUE(graph.ShowIrregData);
    EXPECT_EQ(graph.StepH, 4);
    const auto slices = makeGraphForm(state, type::slice4D);
    EXPECT_EQ(slices->control("Slider3").maximum, 8);
    EXPECT_EQ(slices->control("Text5").text, "4") << "30 lies beyond the data";
    EXPECT_EQ(slices->control("Text18").text, "4");
    const auto iso = makeGraphForm(state, type::isoSurface);
    EXPECT_EQ(iso->control("Slider1").minimum, 1);
    EXPECT_EQ(iso->control("Slider1").maximum, 12);
}

TEST_F(GraphForms, trianglesAreMadeWithTheirGraph) {
    fillScattered();
    added(*makeGraphForm(state, type::delaunay));
    EXPECT_GT(state.TriangleCount(), 5);
}

TEST_F(GraphForms, theTextureIsChosenFromAFile) {
    fillSurface();
    std::string asked;
    state.desktop.chooseFile = [&](const platform::FileQuestion& question) {
        asked = question.title + " " + question.filter;
        return platform::FileChoice{"/pictures/my chart.bmp", 1};
    };
    const auto form = makeGraphForm(state, type::surface);
    form->click("Command1");
    EXPECT_EQ(asked, "") << "there is no texture yet";
    form->setOn("Check5", true);
    form->click("Command1");
    EXPECT_EQ(asked, "Open File (*.bmp)|*.bmp|*.jpg|*.jpg|*.gif|*.gif");
    const Cls9& graph = added(*form);
    EXPECT_TRUE(graph.ShowTex);
    EXPECT_EQ(graph.TexName, "/pictures/my chart.bmp");
}

TEST_F(GraphForms, aPlainFillEndsTheColormapStyle) {
    fillSurface();
    const auto form = makeGraphForm(state, type::surface);
    form->setOn("Option7", true);
    EXPECT_TRUE(form->control("Option11").on);
    form->setOn("Option1", true);
    EXPECT_TRUE(form->control("Option6").on);
    EXPECT_TRUE(form->control("Picture2").enabled);
    EXPECT_FALSE(form->control("Picture4").enabled);
    colors = {77};
    form->click("Picture3");
    EXPECT_EQ(form->control("Picture4").color, 77);
    EXPECT_EQ(added(*form).FillStyle, 1);
}

TEST_F(GraphForms, namedRampsArePicturedAndLoaded) {
    fillSurface();
    const auto form = makeGraphForm(state, type::colorMap);
    const std::vector<Item>& maps = form->control("Combo1").items;
    std::vector<std::string> names;
    names.reserve(maps.size());
    for (const Item& item : maps)
        names.push_back(item.text);
    EXPECT_THAT(names, ElementsAre("Rainbow", "Earth", "Fiery", "Marine", "Grey"));
    EXPECT_EQ(maps[4].swatch.front(), packColor(200, 200, 200));
    EXPECT_EQ(maps[4].swatch.back(), packColor(50, 50, 50));
    form->select("Combo1", 4);
    EXPECT_EQ(form->control("Ramp1").ramp, maps[4].swatch);
    const Cls9& graph = added(*form);
    EXPECT_EQ(graph.ColorName, "Grey");
    EXPECT_EQ(graph.ColorNum, 2);
    EXPECT_EQ(graph.ColorR(1), 50);
}

TEST_F(GraphForms, aCustomRampIsEditedStopByStop) {
    fillSurface();
    const auto form = makeGraphForm(state, type::surface);
    form->click("AddStop");
    EXPECT_FALSE(form->control("AddStop").enabled);
    form->select("Combo1", 4);
    form->setOn("CheckCustom", true);
    EXPECT_EQ(form->control("ListStops").items.size(), 2U);
    form->setText("TextStop", "40");
    const std::vector<base::PackedColor> before = form->control("Ramp1").ramp;
    form->click("AddStop");
    EXPECT_EQ(form->control("ListStops").selected, 1);
    colors = {packColor(1, 2, 3)};
    form->click("ColorStop");
    EXPECT_NE(form->control("Ramp1").ramp, before) << "the picture follows";
    form->setText("TextStop", "60");
    form->click("MoveStop");
    EXPECT_THAT(answer(*form, "AddStop"), HasSubstr("already"));
    form->setText("TextStop", "80");
    form->click("AddStop");
    form->setText("TextStop", "55");
    EXPECT_THAT(answer(*form, "MoveStop"), HasSubstr("60 and 100"));
    form->setText("TextStop", "150");
    EXPECT_THAT(answer(*form, "AddStop"), HasSubstr("between 0 and 100"));
    form->setText("TextStop", "abc");
    EXPECT_EQ(answer(*form, "MoveStop"), "Error: Illegal data exist.");
    form->click("RemoveStop");
    form->select("ListStops", 0);
    EXPECT_THAT(answer(*form, "RemoveStop"), HasSubstr("cannot be removed"));
    EXPECT_THAT(answer(*form, "MoveStop"), HasSubstr("stay at 0 and 100"));
    told.clear();
    Cls9 graph = added(*form);
    EXPECT_EQ(graph.FillStyle, 5);
    ASSERT_EQ(graph.ColorNum, 3);
    EXPECT_EQ(graph.ColorPos(1), 60);
    EXPECT_EQ(graph.ColorB(1), 3);
    graphs::loadNamedRamp(graph);
    EXPECT_EQ(graph.ColorPos(1), 60) << "the name is that of no ramp";
}

TEST_F(GraphForms, aRampHoldsAtMost31Stops) {
    fillSurface();
    const auto form = makeGraphForm(state, type::colorMap);
    form->select("Combo1", 4);
    form->setOn("CheckCustom", true);
    for (int stop = 1; stop <= 29; ++stop) {
        form->setText("TextStop", std::to_string(3 * stop));
        form->click("AddStop");
    }
    EXPECT_EQ(form->control("ListStops").items.size(), 31U);
    form->setText("TextStop", "98");
    EXPECT_THAT(answer(*form, "AddStop"), HasSubstr("at most 31"));
    told.clear();
    EXPECT_EQ(added(*form).ColorNum, 31);
}

TEST_F(GraphForms, slicesAreAddedChangedAndRemoved) {
    fillVolume();
    const auto form = makeGraphForm(state, type::slice4D);
    EXPECT_EQ(form->control("Text5").text, "30");
    EXPECT_EQ(form->control("Text6").text, "30");
    form->click("Command10");
    form->setText("Text5", "55.5");
    form->setOn("Check7", false);
    form->setOn("Check8", true);
    form->setText("Text6", "4");
    colors = {9};
    form->click("Picture5");
    form->setText("Text17", "2");
    form->click("Command10");
    form->click("Command11");
    EXPECT_EQ(form->control("List3").items.size(), 4U);
    EXPECT_EQ(form->control("List3").items[1].text, "Z = 55.5, contours every 4");
    form->select("List3", 0);
    EXPECT_EQ(form->control("Text5").text, "30");
    EXPECT_TRUE(form->control("Check7").on);
    form->setOn("Check9", true);
    form->slide("Slider3", 45);
    form->click("Command14");
    form->select("List3", 3);
    form->click("Command17");
    form->setText("Text1", "0");
    form->click("Command6");
    const Cls9& graph = added(*form);
    ASSERT_EQ(graph.SlicesZ.Num, 3);
    EXPECT_EQ(graph.SlicesY.Num, 0);
    ASSERT_EQ(graph.SlicesX.Num, 1);
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

TEST_F(GraphForms, sliceInputThatFailsIsTold) {
    fillVolume();
    const auto form = makeGraphForm(state, type::slice4D);
    const auto withText = [&](const char* box, const char* text) {
        const std::string before = form->control(box).text;
        form->setText(box, text);
        std::string message = answer(*form, "Command10");
        form->setText(box, before);
        return message;
    };
    EXPECT_EQ(withText("Text5", ""), "Note: Input all parameters please.");
    EXPECT_EQ(withText("Text5", "1e999"), "Error: Illegal data exist.");
    EXPECT_THAT(withText("Text5", "101"), HasSubstr("from 0 to 100"));
    EXPECT_THAT(withText("Text15", "0"), HasSubstr("from 1 to 4"));
    EXPECT_THAT(withText("Text18", "6"), HasSubstr("from 1 to 5"));
    EXPECT_THAT(withText("Text18", "2.5"), HasSubstr("from 1 to 5"));
    EXPECT_THAT(withText("Text15", "4"), HasSubstr("before its last"));
    form->setOn("Check8", true);
    EXPECT_EQ(withText("Text6", "-1"), "Error: Illegal data exist.");
    EXPECT_EQ(answer(*form, "Command14"), "Note: Select a slice first.");
    EXPECT_EQ(answer(*form, "Command17"), "Note: Select a slice first.");
    told.clear();
    for (int i = 0; i < 50; ++i)
        form->click("Command10");
    EXPECT_THAT(told, ElementsAre());
    EXPECT_THAT(answer(*form, "Command10"), HasSubstr("At most 50 slices"));
    EXPECT_THAT(answer(*form, "Command11"), HasSubstr("At most 50 slices"));
    told.clear();
    EXPECT_EQ(added(*form).SlicesZ.Num, 50);
}

TEST_F(GraphForms, slicesNobodyChoseRunThroughTheMiddle) {
    fillVolume();
    const auto wrong = makeGraphForm(state, type::slice4D);
    wrong->setOn("Check8", true);
    wrong->setText("Text6", "0");
    EXPECT_EQ(refused(*wrong), "Error: Illegal data exist.");
    told.clear();
    const Cls9& graph = added(*makeGraphForm(state, type::slice4D));
    EXPECT_EQ(graph.SlicesX.Num + graph.SlicesY.Num + graph.SlicesZ.Num, 3);
    EXPECT_EQ(graph.SlicesZ[1].Position, 50);
}

TEST_F(GraphForms, theIsoSurfaceDialogKnowsTheRangeAndCountsTheTriangles) {
    fillVolume();
    const auto form = makeGraphForm(state, type::isoSurface);
    EXPECT_EQ(form->control("Label1").caption, "The data run from 0 to 50.");
    form->setText("Text1", "10");
    EXPECT_EQ(form->control("Slider1").value, 10);
    EXPECT_THAT(form->control("Ramp2").ramp, ElementsAre(packColor(0, 8, 247)))
        << "a fifth of the rainbow is nearly blue";
    form->setText("Text1", "1e6");
    EXPECT_EQ(form->control("Slider1").value, 50);
    form->slide("Slider1", 20);
    EXPECT_EQ(form->control("Text1").text, "20");
    added(*form);
    EXPECT_THAT(status, testing::MatchesRegex("The iso-surface has [1-9][0-9]* triangles."));
    state.panel.setCell(4, 1, "abc");
    EXPECT_FALSE(makeGraphForm(state, type::isoSurface)->control("Slider1").enabled);
}

TEST_F(GraphForms, pointsLandInTheAxesOfTheScene) {
    fillSurface();
    state.scaling.ScaleX = state.scaling.ScaleY = state.scaling.ScaleZ = 1;
    const auto typed = [&] {
        state.AllGraphs.Graphs.clear();
        auto form = makeGraphForm(state, type::point);
        form->setText("Text2", "1");
        form->setText("Text3", "2");
        form->setText("Text4", "3");
        form->select("Combo2", 6);
        return added(*form);
    };
    const Cls9 spatial = typed();
    EXPECT_THAT((std::vector{spatial.PointX, spatial.PointY, spatial.PointZ}), ElementsAre(2, 3, 1));
    EXPECT_EQ(spatial.NameS, "Point  x=1, y=2, z=3");
    EXPECT_EQ(spatial.PointSize, 7);
    EXPECT_EQ(state.TheData.StepsX, 0) << "a point needs no data once there are scales";
    state.scene.SceneMode = scene::mode2D;
    const Cls9 flat = typed();
    EXPECT_EQ(flat.PointY, 1);
    EXPECT_EQ(flat.PointZ, 2);
    EXPECT_EQ(flat.PointX, 3);
    EXPECT_EQ(flat.NameS, "Point  x=1, y=2");
}

}  // namespace
}  // namespace tessaplot::ui
