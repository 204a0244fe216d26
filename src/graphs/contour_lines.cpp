#include "graphs/contour_lines.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "graphs/color_fill.h"
#include "graphs/flat_drawing.h"
#include "graphs/make_room.h"
#include "graphs/mesh_cell.h"
#include "graphs/over_scale.h"
#include "graphs/surface_fill.h"

namespace tessaplot::graphs {

namespace {

using geometry::CContour;
using geometry::ContourColor;
using geometry::ContourLevel;

/// Far above the range of a channel: it is drawn as white.
constexpr double overbright = 150.0;

void requireCount(int count) {
    if (count < 1 || count > geometry::maxContourNodes)
        base::failSubscript("The nodes of a contour plot", count, 1, geometry::maxContourNodes);
}

/// A number for each node of the grid, the second index running fastest.
std::vector<double> tableOf(const ValueGrid& grid, const std::function<double(int, int)>& numberAt) {
    requireCount(grid.countU);
    requireCount(grid.countV);
    std::vector<double> table;
    table.reserve(static_cast<std::size_t>(grid.countU) * static_cast<std::size_t>(grid.countV));
    for (int i = 0; i < grid.countU; ++i)
        for (int j = 0; j < grid.countV; ++j)
            table.push_back(numberAt(i, j));
    return table;
}

geometry::ContourGrid gridOver(const ValueGrid& grid, std::vector<double>& values) {
    return {.m = grid.countU,
            .n = grid.countV,
            .a = grid.spacingV,
            .b = grid.spacingU,
            .ox = grid.offsetV,
            .oy = grid.offsetU,
            .z = values,
            .rowStride = static_cast<std::size_t>(grid.countV)};
}

geometry::ContourOptions optionsOf(Cls9& graph, const GraphContext& context, const ContourStyle& style) {
    geometry::ContourOptions options;
    options.interval =
        context.scene.SceneMode == scene::mode4D ? overScale(style.interval, context.scaling.ScaleV) : style.interval;
    options.colourMode = style.colorMode;
    options.firstColour = style.firstColor;
    options.lastColour = style.lastColor;
    if (style.colorMode == fill_style::colorMap) loadNamedRamp(graph);
    options.ColourFromMap = [&graph](double level, double lower, double range, ContourColor& color) {
        Rgb rgb{color.r, color.g, color.b};
        rampColor(graph, level, lower, nonZeroSpan(range), rgb);
        color = {rgb.r, rgb.g, rgb.b};
    };
    return options;
}

void beginLines(gl::DisplayList& list, int lineWidth) {
    list.glDisable(GL_LIGHTING);
    list.glEnable(GL_LINE_SMOOTH);
    list.glEnable(GL_BLEND);
    list.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    list.glLineWidth(static_cast<float>(lineWidth));
}

/// Emits lines level by level; `emitSegment(from, to)` emits one of them.
template <class Lines, class EmitSegment>
void emitLevels(gl::DisplayList& list, const Lines& lines, int lineWidth, const EmitSegment& emitSegment) {
    makeRoom(list, 5 * lines.segments.size(), 10 * lines.segments.size());
    beginLines(list, lineWidth);
    for (const ContourLevel& level : lines.levels) {
        if (level.color) list.glColor3d(level.color->r, level.color->g, level.color->b);
        for (const auto& segment : lines.of(level))
            emitSegment(segment.from, segment.to);
    }
    endFlatLines(list);
}

/// Evenly spaced nodes: the place of the first and the way to the next.
struct GridRow {
    double start;
    double spacing;
};

GridRow rowOver(double minimum, double maximum, int steps, bool runsDown) {
    const double spacing = (maximum - minimum) / steps;
    return runsDown ? GridRow{maximum, -spacing} : GridRow{minimum, spacing};
}

/// Puts the points of flat lines where the mode of the scene wants them.
class PlaneVertices {
 public:
    PlaneVertices(gl::DisplayList& list, const scene::SceneState& scene, double height, ContourPass pass)
        : list_(list), scene_(scene), height_(height), pass_(pass) {}

    bool anyLines() const {
        if (scene_.SceneMode == scene::mode4D) return pass_ != ContourPass::None;
        return scene_.SceneMode == scene::mode2D || scene_.SceneMode == scene::mode3D;
    }
    bool areWhite() const { return scene_.SceneMode != scene::mode2D; }

    void emit(const geometry::PlanePoint& at) const {
        if (scene_.SceneMode == scene::mode2D)
            emitPlan(list_, scene_, {at.B, at.A}, height_);
        else if (scene_.SceneMode == scene::mode3D || pass_ == ContourPass::AcrossZ)
            emitUpright(list_, scene_, at.A, height_, at.B);
        else if (pass_ == ContourPass::AcrossX)
            emitUpright(list_, scene_, at.B, at.A, height_);
        else
            emitUpright(list_, scene_, height_, at.A, at.B);
    }

 private:
    gl::DisplayList& list_;
    const scene::SceneState& scene_;
    double height_;
    ContourPass pass_;
};

}  // namespace

ValueGrid surfaceGrid(const Cls9& graph, const GraphContext& context, std::function<double(int, int)> valueAt) {
    const data::ClsData& data = context.data;
    const bool isPlane = !data::isCurvilinear(context.kind);
    const GridRow x =
        rowOver(graph.MinX, graph.MaxX, graph.StepU, isPlane && data.Reg3DX(0, 0) > data.Reg3DX(graph.StepU, 0));
    const GridRow y =
        rowOver(graph.MinY, graph.MaxY, graph.StepV, isPlane && data.Reg3DY(0, 0) > data.Reg3DY(0, graph.StepV));
    return {.countU = graph.StepU + 1,
            .countV = graph.StepV + 1,
            .valueAt = std::move(valueAt),
            .spacingU = x.spacing,
            .spacingV = y.spacing,
            .offsetU = x.start - x.spacing,
            .offsetV = y.start - y.spacing};
}

void emitContourLines(gl::DisplayList& list, Cls9& graph, const GraphContext& context, const ValueGrid& grid,
                      double height, const ContourStyle& style, ContourPass pass) {
    const PlaneVertices vertices(list, context.scene, height, pass);
    geometry::ContourLines<geometry::PlanePoint> lines;
    if (vertices.anyLines()) {
        std::vector<double> values = tableOf(grid, grid.valueAt);
        lines = CContour::Contour(gridOver(grid, values), optionsOf(graph, context, style));
    }
    emitLevels(list, lines, style.lineWidth, [&](const geometry::PlanePoint& from, const geometry::PlanePoint& to) {
        if (vertices.areWhite()) list.glColor3d(overbright, overbright, overbright);
        list.glBegin(GL_LINES);
        vertices.emit(from);
        vertices.emit(to);
        list.glEnd();
    });
}

void emitSurfaceContourLines(gl::DisplayList& list, Cls9& graph, const GraphContext& context, const ValueGrid& grid,
                             const std::function<double(int, int)>& surfaceAt, const ContourStyle& style,
                             const std::function<DataPoint(const geometry::SurfacePoint&)>& place) {
    std::vector<double> values = tableOf(grid, grid.valueAt);
    const std::vector<double> surface = tableOf(grid, surfaceAt);
    const auto lines = CContour::Contour3D(gridOver(grid, values), surface, optionsOf(graph, context, style));
    const auto vertex = [&](const geometry::SurfacePoint& at) {
        const DataPoint point = place(at);
        emitUpright(list, context.scene, point.y, point.z, point.x);
    };
    emitLevels(list, lines, style.lineWidth, [&](const geometry::SurfacePoint& from, const geometry::SurfacePoint& to) {
        list.glBegin(GL_LINES);
        vertex(from);
        vertex(to);
        list.glEnd();
    });
}

}  // namespace tessaplot::graphs
