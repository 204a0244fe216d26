#pragma once

#include <string>

#include "base/color.h"

namespace tessaplot::scene {

/// The axis frame round the graphs: its panels, grid lines, labels and titles.
struct Cls3 {
    static constexpr base::PackedColor gridGrey = base::packColor(153, 153, 153);
    static constexpr base::PackedColor panelGrey = base::packColor(204, 204, 204);

    int AxisStyle = 1;  ///< 1 panels and labels; any other value three plain arrows.
    bool BetterFonts = true;
    base::PackedColor AxisColor = 0;
    int AxisWidth = 1;
    bool Show = false;
    int YZPanelMaterial = 4;
    int XZPanelMaterial = 4;
    int XYPanelMaterial = 4;
    base::PackedColor YZGridColor = gridGrey;
    base::PackedColor XZGridColor = gridGrey;
    base::PackedColor XYGridColor = gridGrey;
    base::PackedColor YZPanelColor = panelGrey;
    base::PackedColor XZPanelColor = panelGrey;
    base::PackedColor XYPanelColor = panelGrey;
    bool ShowYZZGrid = true;
    bool ShowXZZGrid = true;
    bool ShowXYYGrid = true;
    std::string TitleZ = "Z";
    std::string TitleY = "Y";
    std::string TitleX = "X";
    int LabelNumZ = 2;  ///< Number of intervals on the axis.
    int LabelNumY = 2;
    int LabelNumX = 2;
    bool ShowYZYGrid = true;
    bool ShowXZXGrid = true;
    bool ShowXYXGrid = true;
    bool ShowYZPanel = false;
    bool ShowXZPanel = false;
    bool ShowXYPanel = false;

    /// The state for a new document: everything as a new frame but shown, the style kept.
    void SetDefault();
};

}  // namespace tessaplot::scene
