#include "graphs/slice_layer.h"

#include <algorithm>
#include <cmath>

namespace tessaplot::graphs {

namespace {

constexpr double tolerance = 0.0001;

}  // namespace

void findLayer(const LayerRow& row, double position, SliceLayer& layer) {
    for (int k = 0; k < row.last; ++k) {
        const double here = k * row.spacing + row.start;
        const double next = (k + 1) * row.spacing + row.start;
        if (position - std::min(here, next) > tolerance && std::max(here, next) - position > tolerance) {
            layer = {k, k + 1, (position - here) / (next - here)};
            return;
        }
        if (std::abs(here - position) < tolerance) {
            layer = {k, k, 0};
            return;
        }
        if (std::abs(next - position) < tolerance) {
            layer = {k + 1, k + 1, 0};
            return;
        }
    }
}

}  // namespace tessaplot::graphs
