#include <string>
#include <string_view>
#include <utility>

#include "base/number_text.h"
#include "core/document.h"
#include "core/document_fields.h"

namespace tessaplot::core {

namespace {

using base::generalText;
using base::NumberToFileText;
using data::DataKind;

/// Tokens of a document, each followed by one blank.
class TokenWriter {
 public:
    void token(std::string_view text) {
        out_ += text;
        out_ += ' ';
    }
    void integer(int value) { token(std::to_string(value)); }
    void number(double value) { token(NumberToFileText(generalText(value))); }
    void rawNumber(double value) { token(generalText(value)); }
    void boolean(bool value) { token(value ? "1" : "0"); }
    void string(std::string_view text) {
        out_ += '@';
        out_ += text;
        token("@");
    }
    template <class... Values>
    void integers(Values... values) {
        (integer(values), ...);
    }
    template <class... Values>
    void booleans(Values... values) {
        (boolean(values), ...);
    }
    void reserve(std::size_t size) { out_.reserve(size); }
    std::string take() { return std::move(out_); }

 private:
    std::string out_;
};

std::string_view tagOf(int sceneMode) {
    switch (sceneMode) {
        case scene::mode3D:
            return "D41";
        case scene::mode2D:
            return "D42";
        case scene::mode4D:
            return "D43";
        default:
            return "";
    }
}

/// A blank inside a field would end its token and shift all that follow.
std::string withoutBlanks(std::string text) {
    std::erase(text, ' ');
    return text;
}

bool countsRows(const data::DataPanel& panel, int box) {
    return data::isIrregular(panel.kind()) ? box == 3 : box <= 2;
}

/// The rows that follow go by the counts, so that these must not read as others once characters are dropped from them.
std::string boxField(const data::DataPanel& panel, int box) {
    std::string bare = withoutBlanks(panel.Text(box));
    if (panel.kind() == DataKind::RegularVolume) return bare;
    std::string field = NumberToFileText(bare);
    return countsRows(panel, box) && field != bare ? std::to_string(panel.count(box)) : field;
}

void writePanelFields(TokenWriter& out, const data::DataPanel& panel) {
    const DataFields fields = dataFieldsOf(panel.kind());
    out.token(fields.code);
    for (const int box : fields.boxes)
        out.token(boxField(panel, box));
}

void writeData(TokenWriter& out, const data::DataPanel& panel) {
    writePanelFields(out, panel);
    const int rows = panel.dataRows();
    for (int row = 1; row <= rows; ++row)
        for (int column = 1; column <= data::DataPanel::columns; ++column)
            out.token(NumberToFileText(panel.cell(column, row)));
}

void writeSlices(TokenWriter& out, const graphs::SliceSet& slices) {
    out.integer(slices.Num);
    for (int i = 1; i <= slices.Num; ++i) {
        const graphs::SliceSet::Slice& slice = slices[i];
        out.number(slice.Position);
        out.booleans(slice.ShowColor, slice.ShowCont, slice.ShowVect);
        out.rawNumber(slice.ContLevels);
        out.integers(slice.ContColor, slice.VectColor);
    }
}

void writeSliceLimits(TokenWriter& out, const graphs::SliceSet& slices) {
    for (int i = 1; i <= slices.Num; ++i) {
        const graphs::SliceSet::Slice& slice = slices[i];
        out.integers(slice.FirstBegin, slice.FirstEnd, slice.SecondBegin, slice.SecondEnd);
    }
}

void writeSurfaceStyle(TokenWriter& out, const graphs::Cls9& graph) {
    out.boolean(graph.ShowTex);
    out.integer(graph.TexMode);
    out.boolean(graph.ShowTrans);
    out.number(graph.TransAlpha);
    out.string(graph.TexName);
    out.booleans(graph.ShowDS, graph.ShowDG);
    out.integers(graph.TriColor, graph.TriWidth);
}

void writeColorMap(TokenWriter& out, const graphs::Cls9& graph) {
    out.string(graph.ColorName);
    out.integer(graph.ColorNum);
    for (int i = 0; i < graph.ColorNum; ++i) {
        out.number(graph.ColorPos(i));
        out.integers(graph.ColorR(i), graph.ColorG(i), graph.ColorB(i));
    }
}

void writeModelAndPlotStyle(TokenWriter& out, const graphs::Cls9& graph) {
    out.integers(graph.LineColor, graph.LineWidth, graph.FillStyle, graph.FirstColor, graph.SecondColor, graph.Material,
                 graph.Show, graph.Smoothness, graph.StepU, graph.StepV, graph.PointColor);
    out.number(graph.PointSize);
    out.booleans(graph.ShowColormap, graph.ShowContour);
    if (graph.ShowContour) out.rawNumber(graph.ContourLevel);
    out.boolean(graph.ShowVector);
    out.integers(graph.VertSize, graph.VertColor, graph.GridColor, graph.GridWidth);
    out.rawNumber(graph.ContourLevels);
    out.integers(graph.ConFillType, graph.ConColor1, graph.ConColor2);
    out.rawNumber(graph.Contour3Levels);
    out.integers(graph.Con3FillType, graph.Con3Color1, graph.Con3Color2, graph.Con3Width, graph.VectorColor,
                 graph.ColorMapfilltype, graph.ColorMapcolor1, graph.ColorMapcolor2);
    out.boolean(graph.ShowIrregData);
    out.integers(graph.Scat4DColor, graph.Vect4DColor);
}

void writeGraph(TokenWriter& out, const graphs::Cls9& graph, const data::GriddingChoice& gridding) {
    out.integers(graph.GraphType, graph.ID);
    out.string(graph.NameS);
    writeModelAndPlotStyle(out, graph);
    for (const graphs::SliceSet* slices : {&graph.SlicesX, &graph.SlicesY, &graph.SlicesZ})
        writeSlices(out, *slices);
    writeSurfaceStyle(out, graph);
    writeColorMap(out, graph);
    for (const graphs::SliceSet* slices : {&graph.SlicesX, &graph.SlicesY, &graph.SlicesZ})
        writeSliceLimits(out, *slices);
    out.rawNumber(graph.IsoSurValue);
    out.integers(graph.IsoSurColor, gridding.SurfaceGridMethod, gridding.VolumeGridMethod);
}

void writeAxis(TokenWriter& out, const scene::Cls3& axis) {
    out.booleans(axis.Show, axis.ShowXYPanel, axis.ShowXZPanel, axis.ShowYZPanel, axis.ShowXYXGrid, axis.ShowXYYGrid,
                 axis.ShowXZXGrid, axis.ShowXZZGrid, axis.ShowYZYGrid, axis.ShowYZZGrid);
    out.integers(axis.LabelNumX, axis.LabelNumY, axis.LabelNumZ);
    for (const std::string* title : {&axis.TitleX, &axis.TitleY, &axis.TitleZ})
        out.string(*title);
    out.integers(axis.XYPanelColor, axis.XZPanelColor, axis.YZPanelColor, axis.XYGridColor, axis.XZGridColor,
                 axis.YZGridColor, axis.XYPanelMaterial, axis.XZPanelMaterial, axis.YZPanelMaterial, axis.AxisColor,
                 axis.AxisWidth);
    out.boolean(axis.BetterFonts);
}

void writeScaling(TokenWriter& out, const data::Scaling& scaling) {
    out.integer(scaling.ScaleMode);
    for (const double value : {scaling.ScaleRatioX, scaling.ScaleRatioY, scaling.ScaleRatioZ, scaling.ZoomZ})
        out.number(value);
}

}  // namespace

DocumentParts partsOf(const AppState& state, const Cls8& group) {
    DocumentParts parts{state.scene.SceneMode, state.panel, {}, state.TheAxis, state.scaling, state.gridding};
    for (const GraphPtr& graph : group.Graphs)
        parts.graphs.push_back(graph.get());
    return parts;
}

std::string documentText(const DocumentParts& parts) {
    TokenWriter out;
    constexpr std::size_t usualRowLength = 48;
    out.reserve(static_cast<std::size_t>(parts.panel.dataRows()) * usualRowLength);
    out.token(tagOf(parts.SceneMode));
    out.integer(static_cast<int>(parts.graphs.size()));
    writeData(out, parts.panel);
    for (const graphs::Cls9* graph : parts.graphs)
        writeGraph(out, *graph, parts.gridding);
    writeAxis(out, parts.axis);
    writeScaling(out, parts.scaling);
    std::string text = out.take();
    text.pop_back();
    return text;
}

std::string graphRecord(const graphs::Cls9& graph, const data::GriddingChoice& gridding) {
    TokenWriter out;
    writeGraph(out, graph, gridding);
    return out.take();
}

}  // namespace tessaplot::core
