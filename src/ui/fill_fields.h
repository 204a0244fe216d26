#pragma once

#include <array>
#include <optional>
#include <vector>

#include "ui/fields.h"
#include "ui/panel_ranges.h"

namespace tessaplot::ui {

/// The controls that tell how a surface or its triangles are coloured, shaded and lit.
inline constexpr std::array surfaceFillFields{
    field::option("Option1", "Gradient from left to right", &graphs::Cls9::FillStyle, graphs::fill_style::alongY),
    field::option("Option2", "Gradient from top to bottom", &graphs::Cls9::FillStyle, graphs::fill_style::alongZ),
    field::option("Option3", "Gradient from front to back", &graphs::Cls9::FillStyle, graphs::fill_style::alongX),
    field::option("Option4", "Single", &graphs::Cls9::FillStyle, graphs::fill_style::single),
    field::option("Option11", "Color map", &graphs::Cls9::FillStyle, graphs::fill_style::colorMap),
    field::option("Option8", " Flat", &graphs::Cls9::Smoothness, graphs::smoothness::flat),
    field::option("Option9", "Smooth", &graphs::Cls9::Smoothness, graphs::smoothness::smooth),
    field::option("Option10", " Smoothest", &graphs::Cls9::Smoothness, graphs::smoothness::smoothest),
    field::colorBox("Picture2", "1st color", &graphs::Cls9::FirstColor, "The color at the upper end of the gradient"),
    field::colorBox("Picture3", "2nd color", &graphs::Cls9::SecondColor,
                    "The color at the lower end of the gradient, and the single color"),
    field::materials()};

inline constexpr std::string_view colorMapOption = "Option11";

/// The colour map, unless the data hold but one fill value.
inline int proposedFill(const std::optional<PanelRanges>& ranges) {
    const bool uniform = ranges && !(ranges->value.lower < ranges->value.upper);
    return uniform ? graphs::fill_style::alongZ : graphs::fill_style::colorMap;
}

/// Where these controls stand.
inline std::vector<Frame> surfaceFillFrames() {
    return {{"Fill", {{"Option1"}, {"Option2"}, {"Option3"}, {"Option4"}, {"Option11"}, {"Picture2", "Picture3"}}},
            {"Smoothness", {{"Option8", "Option9", "Option10"}}},
            {"Material", {{"List1"}}}};
}

}  // namespace tessaplot::ui
