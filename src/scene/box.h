#pragma once

#include <algorithm>

namespace tessaplot::scene {

/// An axis-aligned bounding box in scene axes. A minimum above its maximum is stored as it is.
struct Cls1 {
    double MaxZ = 0;
    double MinZ = 0;
    double MaxY = 0;
    double MinY = 0;
    double MaxX = 0;
    double MinX = 0;

    /// The largest of the three extents.
    double largestExtent() const { return std::max({MaxX - MinX, MaxY - MinY, MaxZ - MinZ}); }
};

}  // namespace tessaplot::scene
