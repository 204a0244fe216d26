#pragma once

#include <optional>
#include <string>

#include "base/color.h"
#include "gl/display_list.h"
#include "scene/scene_state.h"

namespace tessaplot::scene {

/// How many data units one scene unit is, along each of the user's axes.
struct AxisScales {
    double ScaleX = 0;
    double ScaleY = 0;
    double ScaleZ = 0;
};

/// Round numbers along a range: first, first + step, ... in `count` steps. The last one can lie past the range.
struct AxisTicks {
    double step = 0;
    double first = 0;
    double last = 0;
    int count = 0;
};

/// The axis frame round the graphs: its panels, grid lines, labels and titles.
///
/// What bears a letter belongs to the user's axes. Of these X runs along the z of the scene's box, Y along its x, and
/// Z, which points up, along its y.
struct Cls3 {
    static constexpr base::PackedColor gridGrey = base::packColor(153, 153, 153);
    static constexpr base::PackedColor panelGrey = base::packColor(204, 204, 204);
    /// The most intervals that an axis can have.
    static constexpr int mostIntervals = 500;

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

    /// The ticks of a 2D axis from `min` to `max`; a range of 0 becomes that from 0 to `max`, also for the caller. None
    /// if the range, over its power of ten, comes out as no number from 1 to below 10. Throws BadInput for a range that
    /// has no length even so.
    static std::optional<AxisTicks> Coord(double& min, double max);

    /// Draws the frame of a box, in the units of the scene. `mode` is not read. Throws DivisionByZero for a number of
    /// intervals of 0 and SubscriptOutOfRange for one above `mostIntervals`; below 0 the axis has neither grid lines
    /// nor labels.
    void Draw(gl::DisplayList& list, const SceneState& scene, const AxisScales& scales, int mode, double minX,
              double maxX, double minY, double maxY, double minZ, double maxZ) const;
};

}  // namespace tessaplot::scene
