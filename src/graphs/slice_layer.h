#pragma once

namespace tessaplot::graphs {

/// Where the values of a slice come from: `weight` of the way from one layer of nodes to the next, or one layer alone,
/// which then is both.
struct SliceLayer {
    int lower = 0;
    int upper = 0;
    double weight = 0;
};

/// The layers of a volume across one axis: layer k stands at `start` + k * `spacing`, k from 0 to `last`.
struct LayerRow {
    double start = 0;
    double spacing = 0;  ///< Below 0 for data that are listed downwards.
    int last = 0;
};

/// Sets `layer` to the layers round `position`; nearer than 0.0001 to one, it is that one alone. A position outside the
/// row leaves `layer` as it is.
void findLayer(const LayerRow& row, double position, SliceLayer& layer);

}  // namespace tessaplot::graphs
