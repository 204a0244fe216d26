#pragma once

#include "gl/compiled_list.h"

namespace tessaplot::gl {

/// A rectangle of pixels, from the lower left corner of the picture.
struct PixelArea {
    int x0 = 0, y0 = 0, x1 = 0, y1 = 0;  ///< The ends are not included.
    bool empty() const { return x0 >= x1 || y0 >= y1; }
};

/// The part of the picture that drawing can have touched.
class DrawnArea {
 public:
    void clear() { *this = {}; }
    /// Something was drawn that cannot be told.
    void includeAll() { all_ = true; }
    /// Vertices within the bounds were drawn with the context's present matrices, viewport and line width.
    void include(const Bounds& bounds);
    /// True if the present matrices show a closed surface within the bounds from outside only: they do not mirror it,
    /// and the near plane does not cut it.
    bool showsOutside(const Bounds& bounds);
    /// The matrices, the viewport or the line width may have changed.
    void placementChanged() { placementKnown_ = false; }

    /// The part of a picture of this size.
    PixelArea within(int width, int height) const;

 private:
    void readPlacement();
    /// A coordinate (x, y, z or w) that a corner of the box is clipped by.
    double clipCoordinate(std::size_t row, const Bounds& bounds, unsigned corner) const;

    bool all_ = false;
    std::array<double, 4> box_{1e9, 1e9, -1e9, -1e9};  ///< Left, bottom, right, top in pixels.
    bool placementKnown_ = false;
    std::array<double, 16> toClip_{};  ///< In the order of glMultMatrixf.
    bool mirrors_ = false;
    std::array<double, 4> viewport_{};
    double margin_ = 0;  ///< Pixels that a line reaches beyond its vertices, at most.
};

}  // namespace tessaplot::gl
