#include "geometry/contour_colors.h"

#include "base/failure.h"

namespace tessaplot::geometry {

namespace {

ContourColor UnpackColour(base::PackedColor packed) {
    const auto [r, g, b] = base::channelsOf(packed);
    return {r, g, b};
}

}  // namespace

LevelColors::LevelColors(const ContourOptions& options, const LevelScale& scale)
    : options_(options),
      lower_(scale.lower()),
      range_(scale.upper() - scale.lower()),
      first_(UnpackColour(options.firstColour)),
      last_(UnpackColour(options.lastColour)) {}

std::optional<ContourColor> LevelColors::next(double level) {
    switch (options_.colourMode) {
        case 3:
            return between(level);
        case 4:
            return first_;
        case 5:
            if (!options_.ColourFromMap) return {};
            options_.ColourFromMap(level, lower_, range_, ramp_);
            return ramp_;
        default:
            return {};
    }
}

ContourColor LevelColors::between(double level) const {
    if (range_ == 0)
        throw base::Failure(base::FailureCode::DivisionByZero,
                            "Contours have no colours from first to last: there is only one level.");
    const auto channel = [&](double first, double last) { return (level - lower_) * (last - first) / range_ + first; };
    return {channel(first_.r, last_.r), channel(first_.g, last_.g), channel(first_.b, last_.b)};
}

}  // namespace tessaplot::geometry
