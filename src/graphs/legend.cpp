#include <algorithm>
#include <array>
#include <optional>

#include "graphs/color_fill.h"
#include "graphs/graph.h"
#include "graphs/nice_scale.h"
#include "graphs/surface_fill.h"
#include "scene/text.h"

namespace tessaplot::graphs {

namespace {

// Places in percent of the picture.
constexpr double barLeft = 82;
constexpr double barRight = 85;
constexpr double barBottom = 30;
constexpr double barHeight = 40;
constexpr double barTop = barBottom + barHeight;
constexpr double tickLength = 0.5;
constexpr double numberLeft = 86;

constexpr std::array<int, 8> kindsWithLegend{2,
                                             graph_type::surface,
                                             graph_type::colorMap,
                                             graph_type::contour,
                                             graph_type::contour3D,
                                             graph_type::delaunay,
                                             graph_type::slice4D,
                                             graph_type::isoSurface};

struct LegendRange {
    double lower;
    double upper;
};

/// The range of the data set that the bar stands for; none for a fill without a bar.
std::optional<LegendRange> legendRange(const Cls9& graph, const data::ClsData& data) {
    const int style = graph.FillStyle;
    const bool isGradient = style == fill_style::alongY || style == fill_style::alongX || style == fill_style::alongZ;
    if (!isGradient && style != fill_style::colorMap) return std::nullopt;
    const bool isVolume = graph.GraphType == graph_type::slice4D || graph.GraphType == graph_type::isoSurface;
    if (isGradient && graph.GraphType == graph_type::isoSurface) return std::nullopt;
    if (isVolume) return LegendRange{data.MInv, data.MaxV};
    // The bar of the gradient over data Y tells X, and the other way round.
    if (style == fill_style::alongY) return LegendRange{data.MinX, data.MaxX};
    if (style == fill_style::alongX) return LegendRange{data.MinY, data.MaxY};
    if (style == fill_style::alongZ) return LegendRange{data.MinZ, data.MaxZ};
    return LegendRange{data.MinC, data.MaxC};
}

/// A piece of the bar.
struct Piece {
    double bottom;
    double top;
    Rgb bottomColor;
    Rgb topColor;
};

void emitPiece(gl::DisplayList& list, const Piece& piece) {
    list.glNormal3d(0, 0, 1);
    list.glBegin(GL_POLYGON);
    emitColor(list, piece.bottomColor);
    list.glVertex3d(barLeft, piece.bottom, 0);
    emitColor(list, piece.topColor);
    list.glVertex3d(barLeft, piece.top, 0);
    list.glVertex3d(barRight, piece.top, 0);
    emitColor(list, piece.bottomColor);
    list.glVertex3d(barRight, piece.bottom, 0);
    list.glEnd();
}

void emitGradientBar(gl::DisplayList& list, const Cls9& graph, const LegendRange& range) {
    const Rgb first = ColorToRGB(graph.FirstColor);
    const Rgb second = ColorToRGB(graph.SecondColor);
    const double span = nonZeroSpan(range.upper - range.lower);
    emitPiece(list, {barBottom, barTop, gradientColor(range.lower, range.lower, span, first, second),
                     gradientColor(range.upper, range.lower, span, first, second)});
}

void emitRampBar(gl::DisplayList& list, Cls9& graph, const LegendRange& range) {
    loadNamedRamp(graph);
    const double span = nonZeroSpan(range.upper - range.lower);
    Rgb color;
    const auto colorAt = [&](double percent) {
        rampColor(graph, percent / 100 * span + range.lower, range.lower, span, color);
        return color;
    };
    const auto heightAt = [](double percent) { return percent * (barHeight / 100) + barBottom; };
    for (int i = 0; i + 1 < graph.ColorNum; ++i) {
        const double low = graph.ColorPos(i);
        const double high = graph.ColorPos(i + 1);
        const Rgb lowColor = colorAt(low);
        emitPiece(list, {heightAt(low), heightAt(high), lowColor, colorAt(high)});
    }
}

void emitTick(gl::DisplayList& list, double left, double y) {
    list.glBegin(GL_LINES);
    list.glColor3d(0, 0, 0);
    list.glVertex3d(left, y, 0);
    list.glVertex3d(left + tickLength, y, 0);
    list.glEnd();
}

void emitNumbers(gl::DisplayList& list, const Scale& scale) {
    for (int n = 0; n <= scale.count; ++n) {
        const double y = (scale.number(n) - scale.lower) / scale.span * barHeight + barBottom;
        scene::DrawBitmapText(list, scene::FontList15, labelText(scale, n), static_cast<float>(numberLeft),
                              static_cast<float>(y), 0, 0, 0, 0);
        emitTick(list, barLeft, y);
        emitTick(list, barRight - tickLength, y);
    }
}

void emitFrame(gl::DisplayList& list) {
    list.glBegin(GL_LINE_LOOP);
    list.glColor3d(0, 0, 0);
    list.glVertex3d(barLeft, barBottom, 0);
    list.glVertex3d(barLeft, barTop, 0);
    list.glVertex3d(barRight, barTop, 0);
    list.glVertex3d(barRight, barBottom, 0);
    list.glEnd();
}

}  // namespace

void Cls9::DrawLegend(gl::DisplayList& list, const GraphContext& context) {
    if (std::ranges::find(kindsWithLegend, GraphType) == kindsWithLegend.end()) return;
    list.glShadeModel(GL_SMOOTH);
    const std::optional<LegendRange> range = legendRange(*this, context.data);
    if (!range) return;
    if (FillStyle == fill_style::colorMap)
        emitRampBar(list, *this, *range);
    else
        emitGradientBar(list, *this, *range);
    emitNumbers(list, NiceScale(range->lower, range->upper));
    emitFrame(list);
}

}  // namespace tessaplot::graphs
