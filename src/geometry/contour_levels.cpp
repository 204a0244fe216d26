#include "geometry/contour_levels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string>

#include "base/failure.h"
#include "geometry/missing_node.h"

namespace tessaplot::geometry {

namespace {

constexpr double nudgeReach = 0.0001;
constexpr double nudgeStep = 1e-5;
constexpr double farthest = std::numeric_limits<float>::max();

struct ValueRange {
    double low = 1e10;
    double high = -1e10;

    void include(double z) {
        low = z < low ? z : low;
        high = z > high ? z : high;
    }
    void include(const ValueRange& other) {
        include(other.low);
        include(other.high);
    }
};

std::span<double> rowOf(const ContourGrid& grid, int i) {
    return grid.z.subspan(static_cast<std::size_t>(i - 1) * grid.rowStride, static_cast<std::size_t>(grid.n));
}

/// The range of all numbers, those that are not usable included. Not-a-numbers compare false and stay out.
ValueRange rangeOfNumbers(const ContourGrid& grid) {
    std::array<ValueRange, 4> lanes;  // So that a comparison need not wait for the one before.
    for (int i = 1; i <= grid.m; ++i) {
        const std::span<const double> row = rowOf(grid, i);
        std::size_t j = 0;
        for (; j + lanes.size() <= row.size(); j += lanes.size())
            for (std::size_t lane = 0; lane < lanes.size(); ++lane)
                lanes[lane].include(row[j + lane]);
        for (; j < row.size(); ++j)
            lanes[0].include(row[j]);
    }
    ValueRange range;
    for (const ValueRange& lane : lanes) {
        range.low = std::min(range.low, lane.low);
        range.high = std::max(range.high, lane.high);
    }
    return range;
}

ValueRange rangeOfValues(const ContourGrid& grid) {
    ValueRange range = rangeOfNumbers(grid);
    if (isUsable(range.low) && isUsable(range.high)) return range;
    range = {};
    for (int i = 1; i <= grid.m; ++i)
        for (const double z : rowOf(grid, i))
            if (isUsable(z)) range.include(z);
    return range;
}

[[noreturn]] void failTooManyLevels() {
    throw base::Failure(base::FailureCode::BadInput,
                        "The interval of the contours is too small: it asks for more than " +
                            std::to_string(maxContourLevels) + " levels.");
}

}  // namespace

LevelScale::LevelScale(const ContourGrid& grid, double interval) : interval_(interval), padded_{-farthest} {
    if (!(interval > 0) || std::isinf(interval))
        throw base::Failure(base::FailureCode::BadInput, "The interval of contours must be a positive number.");
    const ValueRange range = rangeOfValues(grid);
    lower_ = (std::floor(range.low / interval) + 1) * interval;
    upper_ = std::floor(range.high / interval) * interval;
    if (!((upper_ - lower_) / interval < maxContourLevels)) failTooManyLevels();
    double level = lower_;
    while (level <= upper_) {
        if (padded_.size() > maxContourLevels || level + interval == level) failTooManyLevels();
        padded_.push_back(level);
        level += interval;
    }
    padded_.push_back(farthest);
}

void LevelScale::nudge(std::span<double> z, std::span<LevelPlace> places) const {
    const double perValue = 1 / interval_;
    const auto last = static_cast<double>(padded_.size() - 2);
    for (std::size_t j = 0; j < z.size(); ++j) {
        const double steps = (z[j] - lower_) * perValue + 1;
        const double inside = steps > 0 ? std::min(steps, last) : 0;
        const auto guess = static_cast<std::size_t>(static_cast<int>(inside));
        const bool clear = z[j] - padded_[guess] > nudgeReach && padded_[guess + 1] - z[j] > nudgeReach;
        places[j] = clear && z[j] != base::missingValue ? static_cast<LevelPlace>(2 * guess) : nudgeNear(z[j], guess);
    }
}

/// The levels below reach cannot come near again, since values only rise, nor can those above it: only what lies
/// between is tried, in order. `guess` counts the levels below `z`, roughly.
LevelPlace LevelScale::nudgeNear(double& z, std::size_t guess) const {
    if (!isUsable(z)) return noPlace;
    std::size_t next = guess + 1;
    while (next > 1 && !(z - padded_[next - 1] > nudgeReach))
        --next;
    const std::size_t end = padded_.size() - 1;
    std::size_t place = next;
    for (; next < end && !(padded_[next] - z > nudgeReach); ++next) {
        if (std::abs(z - padded_[next]) <= nudgeReach) z += nudgeStep;
        if (z == base::missingValue) return noPlace;
    }
    while (place < end && padded_[place] < z)
        ++place;
    const bool equal = place < end && padded_[place] == z;
    return static_cast<LevelPlace>(2 * (place - 1) + (equal ? 1 : 0));
}

}  // namespace tessaplot::geometry
