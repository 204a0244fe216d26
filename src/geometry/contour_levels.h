#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "geometry/contour.h"

namespace tessaplot::geometry {

/// Where a value stands among levels: twice the number of levels below it, and one more if it equals the next.
using LevelPlace = std::uint16_t;
/// The place of what is no value.
inline constexpr LevelPlace noPlace = 0xFFFF;
static_assert(2 * maxContourLevels + 1 < noPlace);

/// Which levels lie strictly between two values: numbers from `first` up to, not including, `end`.
struct LevelSpan {
    std::uint16_t first = 0;
    std::uint16_t end = 0;
};

/// Of two places of values, the lower one first.
constexpr LevelSpan levelsBetween(LevelPlace lower, LevelPlace higher) {
    return {static_cast<std::uint16_t>((lower + 1) / 2), static_cast<std::uint16_t>(higher / 2)};
}

/// The levels of a grid of values, and the nudge that keeps nodes off them.
class LevelScale {
 public:
    /// Finds the range of the values and lists its multiples of the interval. Fails as `CContour` does.
    LevelScale(const ContourGrid& grid, double interval);

    std::span<const double> levels() const { return {padded_.data() + 1, padded_.size() - 2}; }
    /// Where the levels begin and end; the last level may lie below the end by the rounding of the additions.
    double lower() const { return lower_; }
    double upper() const { return upper_; }

    /// Raises each value of `z` as often as it comes near a level, the levels taken in turn, and writes where it then
    /// stands among them.
    void nudge(std::span<double> z, std::span<LevelPlace> places) const;

 private:
    LevelPlace nudgeNear(double& z, std::size_t guess) const;

    double lower_;
    double upper_;
    double interval_;
    std::vector<double> padded_;  ///< The levels, with a number below and above all usable ones at the ends.
};

}  // namespace tessaplot::geometry
