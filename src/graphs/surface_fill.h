#pragma once

#include "graphs/color_fill.h"
#include "graphs/emitters.h"

namespace tessaplot::graphs {

/// What `FillStyle` of a surface means.
namespace fill_style {
inline constexpr int alongY = 1;  ///< Gradient over data Y.
inline constexpr int alongX = 2;  ///< Gradient over data X.
inline constexpr int alongZ = 3;  ///< Gradient over data Z.
inline constexpr int single = 4;  ///< `SecondColor`.
inline constexpr int colorMap = 5;
}  // namespace fill_style

/// What `Show` of a surface means.
namespace shape {
inline constexpr int points = 1;
inline constexpr int lines = 2;
inline constexpr int filled = 3;
}  // namespace shape

/// What `Smoothness` of a surface means.
namespace smoothness {
inline constexpr int flat = 1;
inline constexpr int smooth = 2;
inline constexpr int smoothest = 3;
}  // namespace smoothness

/// What `TexMode` of a surface means: whether its image takes the place of the fill or is laid over it.
namespace texture_mode {
inline constexpr int alone = 1;
inline constexpr int withFill = 2;
}  // namespace texture_mode

/// The vertex colours of one drawing. The colour runs on from vertex to vertex, black before the first: a fill style of
/// no meaning keeps it, and a value outside the ramp repeats it, dimmed.
class SurfaceFill {
 public:
    /// Takes style, colours and ranges from the graph, which must outlive the fill; a colour map is loaded into it.
    explicit SurfaceFill(Cls9& graph);

    /// The colour of a vertex by its place and its fill value.
    const Rgb& surfaceColor(const Node& node, double value);
    /// The same for the colour map overlay, which knows the gradient over data Z and the colour map alone.
    const Rgb& overlayColor(const Node& node, double value);

 private:
    /// Lower end and extent of a range, never 0.
    struct Span {
        double lower;
        double extent;
        Span(double minimum, double maximum) : lower(minimum), extent(nonZeroSpan(maximum - minimum)) {}
    };
    void take(double coordinate, const Span& span);

    const Cls9& graph_;
    Rgb first_;
    Rgb second_;
    Span x_;
    Span y_;
    Span z_;
    Span value_;
    Rgb color_;
};

/// Sets the shade model for `Smoothness`; numbers that have no meaning set none.
void emitShadeModel(gl::DisplayList& list, int wanted);

}  // namespace tessaplot::graphs
