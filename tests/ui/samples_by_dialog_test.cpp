#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "base/number_text.h"
#include "core/document.h"
#include "ui/graph_forms.h"

namespace tessaplot::ui {
namespace {

using graphs::Cls9;
namespace type = graphs::graph_type;

/// Sets the controls of a dialog so that it makes a graph that looks like another one.
class Imitation {
 public:
    Imitation(core::AppState& state, const Cls9& graph) : graph_(graph), form_(makeGraphForm(state, graph.GraphType)) {
        state.desktop.chooseColor = [this](base::PackedColor) { return std::optional(color_); };
        setFill();
        setLook();
    }

    bool accept() {
        form_->accept();
        return !form_->isOpen();
    }

 private:
    void pick(const std::string& box, base::PackedColor color) {
        color_ = color;
        form_->click(box);
    }
    void enter(const std::string& box, double number) { form_->setText(box, base::shortestText(number)); }
    void choose(const std::string& list, int number) { form_->select(list, number - 1); }

    void setFill() {
        switch (graph_.GraphType) {
            case type::surface:
            case type::delaunay:
                setOption({"Option1", "Option3", "Option2", "Option4", "Option11"}, graph_.FillStyle);
                pick("Picture2", graph_.FirstColor);
                pick("Picture3", graph_.SecondColor);
                if (graph_.GraphType == type::surface) pick("Picture4", graph_.SecondColor);
                setOption({"Option8", "Option9", "Option10"}, graph_.Smoothness);
                break;
            case type::colorMap:
                form_->setOn(graph_.FillStyle == 5 ? "Option2" : "Option1", true);
                pick("Picture1", graph_.ColorMapcolor1);
                pick("Picture2", graph_.ColorMapcolor2);
                break;
            case type::contour:
                setContours(graph_.ContourLevels, graph_.ConFillType, graph_.ConColor1, graph_.ConColor2,
                            graph_.ConWidth);
                break;
            case type::contour3D:
                setContours(graph_.Contour3Levels, graph_.Con3FillType, graph_.Con3Color1, graph_.Con3Color2,
                            graph_.Con3Width);
                break;
            case type::slice4D:
                form_->setOn(graph_.FillStyle == 5 ? "Option2" : "Option1", true);
                pick("Picture7", graph_.FirstColor);
                pick("Picture8", graph_.SecondColor);
                choose("Combo2", graph_.LineWidth);
                choose("List4", graph_.Material);
                addSlices(graph_.SlicesX, 0);
                addSlices(graph_.SlicesY, 1);
                addSlices(graph_.SlicesZ, 2);
                break;
            default:
                break;
        }
        if (hasRamp()) setRamp();
    }

    /// Whether the graph is coloured by its ramp.
    bool hasRamp() const {
        switch (graph_.GraphType) {
            case type::contour:
                return graph_.ConFillType == 5;
            case type::contour3D:
                return graph_.Con3FillType == 5;
            case type::isoSurface:
                return true;
            case type::surface:
            case type::delaunay:
            case type::colorMap:
            case type::slice4D:
                return graph_.FillStyle == 5;
            default:
                return false;
        }
    }

    void setLook() {
        switch (graph_.GraphType) {
            case type::surface:
                choose("List1", graph_.Material);
                choose("Combo3", graph_.Show);
                setExtras();
                break;
            case type::delaunay:
                choose("List1", graph_.Material);
                form_->setOn("Check1", graph_.ShowDS);
                form_->setOn("Check2", graph_.ShowDG);
                pick("Picture5", graph_.TriColor);
                choose("Combo2", graph_.TriWidth);
                break;
            case type::vector:
                pick("Picture1", graph_.VectorColor);
                break;
            case type::vertexModel:
                choose("List1", graph_.Material);
                pick("Picture1", graph_.VertColor);
                choose("Combo2", graph_.VertSize);
                break;
            case type::gridModel:
                pick("Picture1", graph_.GridColor);
                choose("Combo2", graph_.GridWidth);
                break;
            case type::scatter4D:
            case type::vector4D:
                choose("List1", graph_.Material);
                pick("Picture1", graph_.GraphType == type::scatter4D ? graph_.Scat4DColor : graph_.Vect4DColor);
                form_->setOn("Check1", graph_.ShowIrregData);
                break;
            case type::slice4D:
                form_->setOn("Check10", graph_.ShowIrregData);
                break;
            case type::isoSurface:
                choose("List1", graph_.Material);
                enter("Text1", graph_.IsoSurValue);
                break;
            default:
                break;
        }
    }

    void setExtras() {
        form_->setOn("Check1", graph_.ShowColormap);
        form_->setOn("Check2", graph_.ShowContour);
        form_->setOn("Check3", graph_.ShowVector);
        form_->setOn("Check4", graph_.ShowIrregData);
        form_->setOn("Check5", graph_.ShowTex);
        form_->setOn("Check6", graph_.ShowTrans);
        enter("Text2", graph_.ContourLevel);
        choose("Combo2", graph_.LineWidth);
        form_->setText("Text1", graph_.TexName);
        form_->setOn(graph_.TexMode == 1 ? "Option5" : "Option6", true);
        form_->slide("Slider1", graph_.TransAlpha);
    }

    void setOption(const std::vector<const char*>& options, int number) {
        form_->setOn(options.at(static_cast<std::size_t>(number) - 1), true);
    }

    void setContours(double interval, int fill, base::PackedColor first, base::PackedColor last, int width) {
        enter("Text1", interval);
        choose("Combo2", width);
        form_->setOn("Check1", graph_.FillStyle == fill);
        setOption({"Option1", "Option2", "Option3"}, fill - 2);
        pick("Picture1", first);
        pick("Picture2", last);
    }

    void setRamp() {
        const std::vector<Item>& ramps = form_->control("Combo1").items;
        const auto same = [this](const Item& item) {
            return std::ranges::equal(
                item.text, graph_.ColorName, {}, [](unsigned char c) { return std::toupper(c); },
                [](unsigned char c) { return std::toupper(c); });
        };
        const auto named = std::ranges::find_if(ramps, same);
        if (named == ramps.end())
            setStops();
        else
            form_->select("Combo1", static_cast<int>(named - ramps.begin()));
    }

    void setStops() {
        form_->select("Combo1", 4);
        form_->setOn("CheckCustom", true);
        for (int i = 0; i < graph_.ColorNum; ++i) {
            if (i == 0 || i + 1 == graph_.ColorNum) {
                form_->select("ListStops", i);
            } else {
                enter("TextStop", graph_.ColorPos(i));
                form_->click("AddStop");
            }
            pick("ColorStop", base::packColor(graph_.ColorR(i), graph_.ColorG(i), graph_.ColorB(i)));
        }
    }

    void addSlices(const graphs::SliceSet& slices, int axis) {
        const auto name = [](const char* kind, int number) { return kind + std::to_string(number); };
        for (int i = 1; i <= slices.Num; ++i) {
            const graphs::SliceSet::Slice& slice = slices[i];
            enter(name("Text", 2 * axis + 1), slice.Position);
            form_->setOn(name("Check", 3 * axis + 1), slice.ShowColor);
            form_->setOn(name("Check", 3 * axis + 2), slice.ShowCont);
            form_->setOn(name("Check", 3 * axis + 3), slice.ShowVect);
            enter(name("Text", 2 * axis + 2), slice.ContLevels);
            pick(name("Picture", 2 * axis + 1), slice.ContColor);
            pick(name("Picture", 2 * axis + 2), slice.VectColor);
            int box = 4 * axis + 7;
            for (const int limit : {slice.FirstBegin, slice.FirstEnd, slice.SecondBegin, slice.SecondEnd}) {
                if (limit > 0) enter(name("Text", box), limit);
                ++box;
            }
            form_->click(name("Command", 2 * axis + 6));
        }
    }

    const Cls9& graph_;
    std::unique_ptr<Form> form_;
    base::PackedColor color_ = 0;
};

std::string drawing(Cls9 graph, const core::AppState& state) {
    gl::DisplayList list;
    graph.Draw(list, state.graphContext());
    gl::DisplayList legend;
    graph.DrawLegend(legend, state.graphContext());
    return gl::toText(list) + gl::toText(legend);
}

TEST(SamplesByDialog, everySampleCanBeMadeAgain) {
    int graphs = 0;
    for (const auto& file : std::filesystem::directory_iterator(TESSAPLOT_SAMPLES)) {
        if (file.path().extension() != ".tsp") continue;
        core::AppState state;
        std::vector<std::string> told;
        state.desktop.ask = [&told](const platform::Message& message) {
            told.push_back(message.text);
            return platform::Answer::Ok;
        };
        core::LoadDocument(state, file.path());
        const std::vector<core::GraphPtr> originals = state.AllGraphs.Graphs;
        for (const core::GraphPtr& original : originals) {
            // Documents may leave the width out; lines are then one pixel wide.
            if (original->ConWidth == 0) original->ConWidth = 1;
            SCOPED_TRACE(file.path().filename().string() + " " + original->NameS);
            const std::string expected = drawing(*original, state);
            ASSERT_TRUE(Imitation(state, *original).accept()) << testing::PrintToString(told);
            const std::string made = drawing(*state.AllGraphs.Graphs.back(), state);
            const auto [at, in] = std::ranges::mismatch(expected, made);
            EXPECT_TRUE(made == expected) << std::string(at, std::min(at + 200, expected.end())) << "\nbut made\n"
                                          << std::string(in, std::min(in + 200, made.end()));
            ++graphs;
        }
    }
    EXPECT_GT(graphs, 20);
}

}  // namespace
}  // namespace tessaplot::ui
