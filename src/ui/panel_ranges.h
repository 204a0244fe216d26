#pragma once

#include <array>
#include <optional>

#include "core/app_state.h"

namespace tessaplot::ui {

/// What lies between two numbers, both included.
struct Range {
    double lower = 0;
    double upper = 0;

    bool contains(double value) const { return value >= lower && value <= upper; }
    double middle() const { return (lower + upper) / 2; }
};

/// What the data in the panel span, in their own units.
struct PanelRanges {
    Range x, y, z;
    Range value;               ///< V of a volume, the fill value of a surface.
    double heightScale = 1;    ///< Data units of z that make a scene unit.
    std::array<int, 3> nodes;  ///< Of the grid along X, Y and Z; 0 along Z for a surface.
};

/// The ranges of the data in the panel; nothing if it holds none that could be drawn. Scattered points are not gridded
/// for it: their grid's limits and their own values stand for it.
std::optional<PanelRanges> rangesOfPanel(const core::AppState& state);

/// A round step that cuts a range into four to ten pieces.
double roundStep(const Range& range);

}  // namespace tessaplot::ui
