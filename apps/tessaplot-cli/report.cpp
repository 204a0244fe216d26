#include "report.h"

#include <string>

#include "base/number_text.h"
#include "graphs/graph.h"

namespace tessaplot::cli {

namespace {

std::string_view modeName(int sceneMode) {
    switch (sceneMode) {
        case scene::mode2D:
            return "2D";
        case scene::mode3D:
            return "3D";
        case scene::mode4D:
            return "4D";
        default:
            return "unknown";
    }
}

/// Extents are told in data units: those of the data set are kept before its coordinates are scaled.
void reportRange(std::ostream& out, std::string_view name, double minimum, double maximum) {
    out << name << ": " << base::generalText(minimum) << " to " << base::generalText(maximum) << '\n';
}

void reportCounts(std::ostream& out, const core::AppState& state) {
    const data::ClsData& data = state.TheData;
    if (data.DataType == 2) out << "points: " << data.Points << '\n';
    out << "nodes: " << data.StepsX << " x " << data.StepsY;
    if (data.DataDim == 2) out << " x " << data.StepsZ;
    out << '\n';
}

void reportExtents(std::ostream& out, const core::AppState& state) {
    const data::ClsData& data = state.TheData;
    reportRange(out, "x", data.MinX, data.MaxX);
    reportRange(out, "y", data.MinY, data.MaxY);
    reportRange(out, "z", data.MinZ, data.MaxZ);
    if (data.DataDim == 2)
        reportRange(out, "v", data.MInv, data.MaxV);
    else
        reportRange(out, "color", data.MinC, data.MaxC);
}

}  // namespace

void report(std::ostream& out, std::string_view tag, const core::AppState& state) {
    out << "tag: " << tag << '\n';
    out << "mode: " << modeName(state.scene.SceneMode) << '\n';
    out << "kind: " << data::captionOf(state.panel.kind()) << '\n';
    reportCounts(out, state);
    reportExtents(out, state);
    if (state.TheData.fit) out << "fit: " << data::fitReport(*state.TheData.fit) << '\n';
    out << "graphs: " << state.AllGraphs.Graphs.size() << '\n';
    int number = 0;
    for (const core::GraphPtr& graph : state.AllGraphs.Graphs) {
        const std::string label = graphs::listLabel(*graph, state.scene.SceneMode);
        out << "graph " << ++number << ": type " << graph->GraphType << ", "
            << (label.empty() ? std::string("without an entry in the list") : label) << '\n';
    }
}

}  // namespace tessaplot::cli
