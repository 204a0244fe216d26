#include "graphs/slice_layer.h"

#include <cmath>

namespace tessaplot::graphs {

namespace {

constexpr double tolerance = 0.0001;

}  // namespace

void findLayer(const LayerRow& row, double position, SliceLayer& layer) {
    for (int k = 0; k < row.last; ++k) {
        const double low = k * row.spacing + row.minimum;
        const double high = (k + 1) * row.spacing + row.minimum;
        if (position - low > tolerance && high - position > tolerance) {
            layer = {k, k + 1, (position - low) / (high - low)};
            return;
        }
        if (std::abs(low - position) < tolerance) {
            layer = {k, k, 0};
            return;
        }
        if (std::abs(high - position) < tolerance) {
            layer = {k + 1, k + 1, 0};
            return;
        }
    }
}

}  // namespace tessaplot::graphs
