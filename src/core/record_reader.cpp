#include "core/record_reader.h"

#include <algorithm>
#include <utility>

#include "base/failure.h"
#include "base/number_text.h"

namespace tessaplot::core {

namespace {

constexpr std::size_t longestString = 100;  ///< Tokens that may follow the first one of a text.

template <class... Values>
void readIntegers(TokenReader& in, Values&... values) {
    ((values = in.integer()), ...);
}

template <class... Values>
void readBooleans(TokenReader& in, Values&... values) {
    ((values = in.boolean()), ...);
}

void readSlices(TokenReader& in, graphs::SliceSet& slices) {
    slices.Num = in.integer();
    for (int i = 1; i <= slices.Num; ++i) {
        graphs::SliceSet::Slice& slice = slices[i];
        slice.Position = in.number();
        slice.ShowColor = in.strictBoolean();
        slice.ShowCont = in.strictBoolean();
        slice.ShowVect = in.strictBoolean();
        slice.ContLevels = in.number();
        readIntegers(in, slice.ContColor, slice.VectColor);
    }
}

void readSliceLimits(TokenReader& in, graphs::SliceSet& slices) {
    for (int i = 1; i <= slices.Num; ++i) {
        graphs::SliceSet::Slice& slice = slices[i];
        readIntegers(in, slice.FirstBegin, slice.FirstEnd, slice.SecondBegin, slice.SecondEnd);
    }
}

void readModelAndPlotStyle(TokenReader& in, graphs::Cls9& graph) {
    readIntegers(in, graph.LineColor, graph.LineWidth, graph.FillStyle, graph.FirstColor, graph.SecondColor,
                 graph.Material, graph.Show, graph.Smoothness, graph.StepU, graph.StepV, graph.PointColor);
    graph.PointSize = in.number();
    readBooleans(in, graph.ShowColormap, graph.ShowContour);
    if (graph.ShowContour) graph.ContourLevel = in.number();
    graph.ShowVector = in.boolean();
    readIntegers(in, graph.VertSize, graph.VertColor, graph.GridColor, graph.GridWidth);
    graph.ContourLevels = in.number();
    readIntegers(in, graph.ConFillType, graph.ConColor1, graph.ConColor2);
    graph.Contour3Levels = in.number();
    readIntegers(in, graph.Con3FillType, graph.Con3Color1, graph.Con3Color2, graph.Con3Width, graph.VectorColor,
                 graph.ColorMapfilltype, graph.ColorMapcolor1, graph.ColorMapcolor2);
    graph.ShowIrregData = in.boolean();
}

void readVolumeAndTextureStyle(TokenReader& in, graphs::Cls9& graph) {
    readIntegers(in, graph.Scat4DColor, graph.Vect4DColor);
    for (graphs::SliceSet* slices : {&graph.SlicesX, &graph.SlicesY, &graph.SlicesZ})
        readSlices(in, *slices);
    graph.ShowTex = in.strictBoolean();
    graph.TexMode = in.integer();
    graph.ShowTrans = in.strictBoolean();
    graph.TransAlpha = in.number();
    in.string(graph.TexName);
}

void readTriangleStyle(TokenReader& in, graphs::Cls9& graph) {
    graph.ShowDS = in.strictBoolean();
    graph.ShowDG = in.strictBoolean();
    readIntegers(in, graph.TriColor, graph.TriWidth);
}

void readColorMapAndLimits(TokenReader& in, graphs::Cls9& graph) {
    in.string(graph.ColorName);
    graph.ColorNum = in.integer();
    for (int i = 0; i < graph.ColorNum; ++i) {
        graph.ColorPos(i) = in.number();
        readIntegers(in, graph.ColorR(i), graph.ColorG(i), graph.ColorB(i));
    }
    for (graphs::SliceSet* slices : {&graph.SlicesX, &graph.SlicesY, &graph.SlicesZ})
        readSliceLimits(in, *slices);
}

}  // namespace

TokenReader::TokenReader(std::string_view text, std::size_t slots) : slots_(slots) {
    tokens_.reserve(std::min(slots, text.size() / 6));
    while (true) {
        const std::size_t blank = text.find(' ');
        if (tokens_.size() == slots_)
            throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                                "The document has more than " + std::to_string(slots_) + " tokens.");
        tokens_.push_back(text.substr(0, blank));
        if (blank == std::string_view::npos) break;
        text.remove_prefix(blank + 1);
    }
}

std::string_view TokenReader::peek(std::size_t ahead) const {
    const std::size_t place = at_ + ahead;
    if (place < tokens_.size()) return tokens_[place];
    if (place >= slots_)
        throw base::Failure(
            base::FailureCode::SubscriptOutOfRange,
            "The document asks for more than the " + std::to_string(slots_) + " tokens that a document can have.");
    return {};
}

std::string_view TokenReader::token() {
    const std::string_view text = peek();
    ++at_;
    return text;
}

int TokenReader::integer() {
    return base::TextInteger(token());
}

double TokenReader::number() {
    return base::TextValue(token());
}

bool TokenReader::boolean() {
    const std::string_view text = token();
    return text == "1" || text == "True";
}

bool TokenReader::strictBoolean() {
    return token() == "1";
}

void TokenReader::string(std::string& value) {
    const std::string_view first = peek();
    if (!first.starts_with('@')) return;
    ++at_;
    if (first.size() > 1 && first.ends_with('@')) {
        value = first.substr(1, first.size() - 2);
        return;
    }
    std::string joined(first.substr(1));
    for (std::size_t i = 0; i < longestString; ++i) {
        const std::string_view next = peek(i);
        joined += ' ';
        if (next.ends_with('@')) {
            joined += next.substr(0, next.size() - 1);
            value = std::move(joined);
            at_ += i + 1;
            return;
        }
        joined += next;
    }
}

void readGraphRecord(TokenReader& in, int generation, graphs::Cls9& graph, data::GriddingChoice& gridding) {
    graph.GraphType = in.integer();
    graph.ID = in.integer();
    if (generation == 0)
        graph.NameS = in.token();
    else
        in.string(graph.NameS);
    readModelAndPlotStyle(in, graph);
    if (generation >= 1) readVolumeAndTextureStyle(in, graph);
    if (generation >= 2) readTriangleStyle(in, graph);
    if (generation >= 3) readColorMapAndLimits(in, graph);
    graph.IsoSurValue = in.number();
    readIntegers(in, graph.IsoSurColor, gridding.SurfaceGridMethod, gridding.VolumeGridMethod);
}

void readAxisRecord(TokenReader& in, scene::Cls3& axis) {
    readBooleans(in, axis.Show, axis.ShowXYPanel, axis.ShowXZPanel, axis.ShowYZPanel, axis.ShowXYXGrid,
                 axis.ShowXYYGrid, axis.ShowXZXGrid, axis.ShowXZZGrid, axis.ShowYZYGrid, axis.ShowYZZGrid);
    readIntegers(in, axis.LabelNumX, axis.LabelNumY, axis.LabelNumZ);
    for (std::string* title : {&axis.TitleX, &axis.TitleY, &axis.TitleZ})
        in.string(*title);
    readIntegers(in, axis.XYPanelColor, axis.XZPanelColor, axis.YZPanelColor, axis.XYGridColor, axis.XZGridColor,
                 axis.YZGridColor, axis.XYPanelMaterial, axis.XZPanelMaterial, axis.YZPanelMaterial, axis.AxisColor,
                 axis.AxisWidth);
    axis.BetterFonts = in.boolean();
}

void readScaleRecord(TokenReader& in, data::Scaling& scaling) {
    scaling.ScaleMode = in.integer();
    for (double* value : {&scaling.ScaleRatioX, &scaling.ScaleRatioY, &scaling.ScaleRatioZ, &scaling.ZoomZ})
        *value = in.number();
}

}  // namespace tessaplot::core
