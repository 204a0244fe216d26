#include "graphs/nice_scale.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>

#include "base/number_text.h"

namespace tessaplot::graphs {

namespace {

/// The step for a range of m times `power`; 0 for none.
double stepFor(double m, double power) {
    if (m >= 1 && m < 2) return power * 0.2;
    if (m >= 2 && m < 5) return power * 0.5;
    if (m >= 5 && m <= 10) return power;
    return 0;
}

bool nearInteger(double value) {
    return std::abs(value - std::round(value)) < 1e-5;
}

std::string withDecimals(double value, int decimals) {
    char text[64];
    const int length = std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return {text, static_cast<std::size_t>(length)};
}

}  // namespace

double CeilNear(double x) {
    const double below = std::floor(x);
    return x - below < 1e-7 ? x : below + 1;
}

Scale NiceScale(double lower, double upper) {
    Scale scale;
    scale.lower = lower;
    scale.span = upper - lower;
    if (scale.span == 0) {
        scale.lower = 0;
        scale.span = upper;
    }
    if (!(scale.span > 0) || !std::isfinite(scale.span)) return scale;
    const double power = std::pow(10.0, std::floor(std::log(scale.span) / std::log(10.0)));
    scale.step = stepFor(scale.span / power, power);
    if (!(scale.step > 0)) return scale;
    scale.first = CeilNear(scale.lower / scale.step) * scale.step;
    const double last = std::floor(upper / scale.step) * scale.step;
    const double count = std::nearbyint((last - scale.first) / scale.step);
    if (count >= 0 && count <= std::numeric_limits<std::int16_t>::max()) scale.count = static_cast<int>(count);
    return scale;
}

std::string labelText(const Scale& scale, int n) {
    double value = scale.number(n);
    // What rounding leaves of a number that should be 0.
    if (std::abs(value) < scale.step * 1e-9) value = 0;
    if (nearInteger(value)) return base::generalText(value);
    for (int decimals = 1; decimals <= 3; ++decimals)
        if (nearInteger(value * std::pow(10.0, decimals))) return withDecimals(value, decimals);
    return base::generalText(value);
}

}  // namespace tessaplot::graphs
