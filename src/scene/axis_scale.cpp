#include "scene/axis_scale.h"

#include <array>
#include <charconv>
#include <cmath>

#include "base/failure.h"
#include "base/number_text.h"
#include "scene/axis.h"

namespace tessaplot::scene {

namespace {

double powerOfTen(double exponent) {
    return std::pow(10.0, exponent);
}

/// 0 for a mantissa outside the decade, which rounding can give.
double stepOfMantissa(double m) {
    if (m >= 1 && m < 2) return 0.2;
    if (m >= 2 && m < 5) return 0.5;
    if (m >= 5 && m < 10) return 1;
    return 0;
}

/// The next integer upward; never the negative zero.
double CeilValue(double x) {
    return std::ceil(x) + 0.0;
}

/// Above this a 64-bit float has too few digits left after the point to look for halves.
constexpr double mostUnitsWithHalves = 1e11;

double roundedHalvesAway(double value, int digits) {
    const double unitsInOne = powerOfTen(digits);
    const double units = std::abs(value) * unitsInOne;
    if (!(units < mostUnitsWithHalves)) return value;
    constexpr double hair = 1e-15;
    const double whole = std::floor(units * (1 + hair) + 0.5);
    return whole == 0 ? 0 : std::copysign(whole / unitsInOne, value);
}

}  // namespace

std::optional<AxisTicks> Cls3::Coord(double& min, double max) {
    double d = max - min;
    if (d == 0) {
        min = 0;
        d = max;
    }
    if (d <= 0) throw base::Failure(base::FailureCode::BadInput, "The scale of an axis has no length.");
    const double e = std::floor(std::log(d) / std::log(10.0));
    const double mantissaStep = stepOfMantissa(d / powerOfTen(e));
    if (mantissaStep == 0) return std::nullopt;
    AxisTicks ticks;
    ticks.step = mantissaStep * powerOfTen(e);
    ticks.first = CeilValue(min / ticks.step) * ticks.step;
    ticks.last = CeilValue(max / ticks.step) * ticks.step;
    ticks.count = base::roundToInteger((ticks.last - ticks.first) / ticks.step);
    return ticks;
}

int digitsOfStep(double step) {
    constexpr double nearlyWhole = 1e-7;
    for (int digits = 0; digits <= 3; ++digits) {
        const double units = step * powerOfTen(digits);
        if (units - std::floor(units) < nearlyWhole) return digits;
    }
    return 4;
}

std::string labelText(double value, int digits) {
    std::array<char, 400> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), roundedHalvesAway(value, digits),
                                       std::chars_format::fixed, digits);
    return {buffer.data(), written.ptr};
}

}  // namespace tessaplot::scene
