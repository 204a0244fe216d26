#pragma once

#include <optional>

#include "geometry/contour.h"
#include "geometry/contour_levels.h"

namespace tessaplot::geometry {

/// Gives the levels of a scale their colours, one after the other.
class LevelColors {
 public:
    /// Keeps a reference to the options.
    LevelColors(const ContourOptions& options, const LevelScale& scale);

    /// Throws DivisionByZero for a gradient over a single level.
    std::optional<ContourColor> next(double level);

 private:
    ContourColor between(double level) const;

    const ContourOptions& options_;
    double lower_;
    double range_;
    ContourColor first_;
    ContourColor last_;
    ContourColor ramp_;
};

}  // namespace tessaplot::geometry
