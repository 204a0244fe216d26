#include <array>
#include <cmath>
#include <filesystem>
#include <memory>
#include <utility>

#include "base/number_text.h"
#include "core/app_state.h"
#include "core/document.h"
#include "core/refresh.h"
#include "data/text_table.h"
#include "expr/evaluator.h"
#include "geometry/contour.h"
#include "geometry/delaunay.h"
#include "geometry/iso_surface.h"
#include "growth/routine.h"
#include "numerics/grid.h"
#include "numerics/inverse_distance.h"
#include "numerics/linear_system.h"
#include "numerics/poly_fit.h"
#include "numerics/radial_basis.h"
#include "peerbench/gen.h"

namespace tessaplot::bench {

namespace {

using Work = std::function<void()>;

constexpr std::int64_t tableRows = data::DataPanel::maximumRows;
constexpr std::int64_t gridNodes = 8000000;

int sideOf(std::int64_t nodes, int dimensions) {
    return static_cast<int>(std::floor(std::pow(static_cast<double>(nodes), 1.0 / dimensions) + 1e-6));
}

/// A lattice with the spare node along each axis that its limit counts.
Work surfaceGridding(int method, std::int64_t points, std::int64_t nodes) {
    const int steps = sideOf(nodes, 2) - 1;
    const auto elements = static_cast<std::size_t>(steps + 1) * static_cast<std::size_t>(steps + 1);
    return [=, input = scatteredPoints(5, static_cast<std::size_t>(points)), x = std::vector<double>(elements),
            y = std::vector<double>(elements), z = std::vector<double>(elements),
            c = std::vector<double>(elements)]() mutable {
        numerics::ScatteredSurface surface;
        surface.x = input.x;
        surface.y = input.y;
        surface.z = input.z;
        surface.c = input.c;
        surface.MinX = surface.MinY = -10;
        surface.MaxX = surface.MaxY = 10;
        surface.StepsX = surface.StepsY = steps;
        surface.applicationPoints = surface.Points();
        numerics::gridSurface(surface, method, {}, {.x = x, .y = y, .z = z, .c = c, .a = {}, .b = {}, .d = {}});
    };
}

Work volumeGridding(int method, std::int64_t points, std::int64_t nodes) {
    const int steps = sideOf(nodes, 3) - 1;
    const auto elements = static_cast<std::size_t>(std::pow(steps + 1, 3));
    Points input = scatteredPoints(7, static_cast<std::size_t>(points));
    Random random(8);
    for (double& z : input.z)
        z = random.between(-10, 10);
    return [=, x = std::vector<double>(elements), y = std::vector<double>(elements), z = std::vector<double>(elements),
            v = std::vector<double>(elements), c = std::vector<double>(elements)]() mutable {
        numerics::ScatteredVolume volume;
        volume.x = input.x;
        volume.y = input.y;
        volume.z = input.z;
        volume.v = input.c;
        volume.MinX = volume.MinY = volume.MinZ = -10;
        volume.MaxX = volume.MaxY = volume.MaxZ = 10;
        volume.StepsX = volume.StepsY = volume.StepsZ = steps;
        volume.applicationPoints = volume.Points();
        numerics::gridVolume(volume, method, {}, {.x = x, .y = y, .z = z, .v = v, .c = c});
    };
}

void addGridding(std::vector<Routine>& all) {
    struct Method {
        const char* name;
        int number;
        std::int64_t points;
        const char* growth;
    };
    const Method methods[] = {{"nearest neighbours", 1, tableRows, "about 0.1"},
                              {"inverse squared distance", 2, numerics::shepardLastIndex, "1"},
                              {"multiquadric", 3, numerics::radialUnknowns, "1 to 3"},
                              {"thin plate spline", 4, numerics::radialUnknowns - 3, "1 to 3"},
                              {"quadratic", 5, numerics::fitPoints, "0 to 1"},
                              {"nearest neighbours of a volume", 101, tableRows, "about 0.1"},
                              {"inverse squared distance of a volume", 102, numerics::shepardLastIndex, "1"},
                              {"quadratic of a volume", 103, numerics::fitPoints, "0 to 1"}};
    for (const Method& method : methods) {
        const bool isVolume = method.number > 100;
        const auto gridding = [=](std::int64_t points, std::int64_t nodes) {
            return isVolume ? volumeGridding(method.number, points, nodes)
                            : surfaceGridding(method.number, points, nodes);
        };
        const std::string name = std::string("gridding, ") + method.name;
        all.push_back({name, isVolume ? "points, 20^3 nodes" : "points, 100^2 nodes", 50, method.points, method.growth,
                       [=](std::int64_t points) { return gridding(points, isVolume ? 9261 : 10201); }});
        all.push_back({name, "nodes, 100 points", 4000, gridNodes, "1",
                       [=](std::int64_t nodes) { return gridding(100, nodes); }});
    }
}

void addFits(std::vector<Routine>& all) {
    all.push_back({"fit, quadratic", "points", 100, numerics::fitPoints, "1", [](std::int64_t count) -> Work {
                       const int n = static_cast<int>(count);
                       const Points points = scatteredPoints(9, static_cast<std::size_t>(n));
                       numerics::Table table = numerics::makeTable("data", n, 3);
                       for (int i = 1; i <= n; ++i) {
                           const auto at = static_cast<std::size_t>(i) - 1;
                           table(i, 1) = points.x[at];
                           table(i, 2) = points.y[at];
                           table(i, 3) = points.z[at];
                       }
                       return [=] { numerics::PolyFit(table, n); };
                   }});
    all.push_back({"fit, linear system", "unknowns", 20, numerics::radialUnknowns, "3", [](std::int64_t n) -> Work {
                       return [n] {
                           Random random(9);
                           numerics::LinearSystem system(static_cast<std::size_t>(n));
                           for (std::size_t i = 0; i < static_cast<std::size_t>(n); ++i)
                               for (double& coefficient : system.coefficients(i))
                                   coefficient = random.between(-1, 1);
                           system.solve();
                       };
                   }});
}

Work contours(int side, int levels) {
    std::vector<double> values;
    for (int i = 0; i < side; ++i)
        for (int j = 0; j < side; ++j)
            values.push_back(valueAt(20.0 * i / side - 10, 20.0 * j / side - 10));
    geometry::ContourOptions options;
    options.interval = 3.0 / levels;
    return [=]() mutable {
        std::vector<double> z = values;
        geometry::CContour::Contour({side, side, 1, 1, 0, 0, z, static_cast<std::size_t>(side)}, options);
    };
}

Work isoSurface(int highest) {
    data::Array x{"X"}, y{"Y"}, z{"Z"}, v{"V"};
    for (data::Array* array : {&x, &y, &z, &v})
        array->allocate(highest, highest, highest);
    for (int i = 0; i <= highest; ++i) {
        for (int j = 0; j <= highest; ++j) {
            for (int k = 0; k <= highest; ++k) {
                x(i, j, k) = i * 2.0 / highest - 1;
                y(i, j, k) = j * 2.0 / highest - 1;
                z(i, j, k) = k * 2.0 / highest - 1;
                v(i, j, k) = std::hypot(x(i, j, k), y(i, j, k), z(i, j, k));
            }
        }
    }
    return [=] { geometry::IsoSurface(highest, highest, highest, x, y, z, v, 0.8); };
}

void addGeometry(std::vector<Routine>& all) {
    all.push_back({"Delaunay triangles", "points", 40, geometry::maxTriangles / 2 - 100, "1 to 1.5",
                   [](std::int64_t count) -> Work {
                       Points points = scatteredPoints(1005, static_cast<std::size_t>(count));
                       points.x.insert(points.x.begin(), 0);
                       points.y.insert(points.y.begin(), 0);
                       for (double& x : points.x)
                           x *= 100;
                       for (double& y : points.y)
                           y *= 100;
                       points.x.resize(points.x.size() + 3);
                       points.y.resize(points.y.size() + 3);
                       return [=]() mutable {
                           geometry::Triangulate(static_cast<std::int32_t>(count), points.x, points.y);
                       };
                   }});
    constexpr std::int64_t contourNodes = geometry::maxContourNodes * geometry::maxContourNodes;
    all.push_back({"contour lines", "nodes, 20 levels", 400, contourNodes, "0.5 to 1",
                   [](std::int64_t nodes) { return contours(sideOf(nodes, 2), 20); }});
    all.push_back({"contour lines", "levels, 100^2 nodes", 10, geometry::maxContourLevels, "1",
                   [](std::int64_t levels) { return contours(100, static_cast<int>(levels)); }});
    constexpr std::int64_t isoNodes = (geometry::maxIsoIndex + 1LL) * (geometry::maxIsoIndex + 1) * 101;
    all.push_back({"iso-surface", "nodes", 1000, isoNodes, "0.7 to 1",
                   [](std::int64_t nodes) { return isoSurface(sideOf(nodes, 3) - 1); }});
}

Work formulaCalls(std::int64_t calls, std::int64_t terms) {
    auto context = std::make_shared<expr::EvaluatorContext>();
    auto evaluator = std::make_shared<expr::Cls6>(*context);
    std::string formula = "X";
    for (std::int64_t term = 1; term <= terms; ++term)
        formula += "+SIN(X/" + std::to_string(term) + ")*(Y-" + std::to_string(term) + ")^2";
    return [=] {
        std::string postfix;
        std::int32_t position = 0;
        evaluator->InfixToPostfix(formula, postfix, position);
        double value = 0;
        for (std::int64_t i = 0; i < calls; ++i)
            evaluator->DoEvaluate(postfix, false, value, 0, 0, 1e-6 * static_cast<double>(i), 0.5, 0, 0, 0, 0);
    };
}

/// A panel of scattered points with a lattice of `side` by `side` nodes.
data::DataPanel scatteredPanel(std::int64_t rows, int side) {
    data::DataPanel panel;
    panel.selectKind(data::DataKind::IrregularSurface);
    const std::string nodes = std::to_string(side);
    const std::array<std::string, 7> boxes{"-10", "10", std::to_string(rows), nodes, "-10", "10", nodes};
    for (std::size_t i = 0; i < boxes.size(); ++i)
        panel.setText(static_cast<int>(i) + 1, boxes[i]);
    panel.layOut();
    const Points points = scatteredPoints(1011, static_cast<std::size_t>(rows));
    for (int row = 1; row <= rows; ++row) {
        const auto at = static_cast<std::size_t>(row) - 1;
        int column = 0;
        for (const double value : {points.x[at], points.y[at], points.z[at], points.c[at]})
            panel.setCell(++column, row, base::generalText(value));
    }
    return panel;
}

std::string documentOf(const data::DataPanel& panel) {
    core::AppState state;
    state.panel = panel;
    return core::documentText(core::partsOf(state, state.ShownGraphs));
}

void addTextAndDocuments(std::vector<Routine>& all) {
    all.push_back({"formula", "calls", 100, 1000000, "1", [](std::int64_t calls) { return formulaCalls(calls, 3); }});
    all.push_back({"formula, read and called", "terms, 100 calls", 10, 10000, "1",
                   [](std::int64_t terms) { return formulaCalls(100, terms); }});
    all.push_back({"text import", "rows", 100, tableRows, "1", [](std::int64_t rows) -> Work {
                       const std::string text = data::exportText(scatteredPanel(rows, 10));
                       return [text] {
                           data::DataPanel panel;
                           data::importText(panel, text);
                       };
                   }});
    all.push_back({"check of the cells", "rows", 100, tableRows, "1", [](std::int64_t rows) -> Work {
                       return [panel = scatteredPanel(rows, 10)]() mutable {
                           std::string fault;
                           panel.CheckData(fault);
                       };
                   }});
    all.push_back({"data set, quadratic", "rows", 100, numerics::fitPoints, "1", [](std::int64_t rows) -> Work {
                       return [panel = scatteredPanel(rows, 10)] {
                           data::Scaling scaling;
                           data::ClsData().GetData(panel, scaling, {5, 103}, {});
                       };
                   }});
    all.push_back({"document, written", "rows", 100, tableRows, "1", [](std::int64_t rows) -> Work {
                       return [panel = scatteredPanel(rows, 10)] { documentOf(panel); };
                   }});
    all.push_back({"document, read", "rows", 100, tableRows, "1", [](std::int64_t rows) -> Work {
                       return [text = documentOf(scatteredPanel(rows, 10))] { core::readDocument(text); };
                   }});
}

/// A scene of one graph on a lattice that is made of few points, so that it can be as large as lattices can.
Work scene(int type, std::int64_t nodes) {
    const int side = sideOf(nodes, 2) - 1;
    auto state = std::make_shared<core::AppState>();
    state->TheData.GetData(scatteredPanel(100, side), state->scaling, {5, 103}, {});
    auto graph = std::make_shared<graphs::Cls9>();
    graph->ID = 1;
    graph->GraphType = type;
    graph->StepU = graph->StepV = side - 1;
    state->ShownGraphs.Graphs.push_back(graph);
    return [state] { core::RebuildScene(*state); };
}

void addScenes(std::vector<Routine>& all) {
    all.push_back({"scene, grid model", "nodes", 4000, gridNodes, "1",
                   [](std::int64_t nodes) { return scene(graphs::graph_type::gridModel, nodes); }});
    all.push_back({"scene, surface", "nodes", 4000, gridNodes, "1",
                   [](std::int64_t nodes) { return scene(graphs::graph_type::surface, nodes); }});
}

}  // namespace

std::vector<Routine> routines() {
    std::vector<Routine> all;
    addGridding(all);
    addFits(all);
    addGeometry(all);
    addTextAndDocuments(all);
    addScenes(all);
    return all;
}

}  // namespace tessaplot::bench
