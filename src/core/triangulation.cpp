#include "core/triangulation.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace tessaplot::core {

namespace {

/// The first `count` values from index 1 on, with room for the three corners that the triangulation adds.
std::vector<double> numberedFromOne(const data::Array& values, int count) {
    std::vector<double> numbered(static_cast<std::size_t>(count) + 4);
    std::copy_n(values.values().begin(), count, numbered.begin() + 1);
    return numbered;
}

}  // namespace

void triangulatePoints(AppState& state) {
    state.TriangleList.clear();
    const data::ClsData& data = state.TheData;
    if (data.Points == 0 || !data.Irreg3DX.allocated()) return;
    std::vector<double> x = numberedFromOne(data.Irreg3DX, data.Points);
    std::vector<double> y = numberedFromOne(data.Irreg3DY, data.Points);
    geometry::Triangulation made = geometry::Triangulate(data.Points, x, y);
    state.TriangleList = std::move(made.triangles);
    if (made.coincidentTests > 0) state.desktop.askUser({"Note", std::string(geometry::coincidentMessage)});
}

}  // namespace tessaplot::core
