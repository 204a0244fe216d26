#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tessaplot::bench {

/// The random numbers that every program of the comparison draws: a 64-bit linear congruential generator.
class Random {
 public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    /// The next number of [0, 1): the upper 53 bits of the state.
    double next() {
        state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<double>(state_ >> 11) * 0x1p-53;
    }
    double between(double low, double high) { return low + (high - low) * next(); }

 private:
    std::uint64_t state_;
};

/// Scattered points with a value and a colour.
struct Points {
    std::vector<double> x, y, z, c;
};

inline double valueAt(double x, double y) {
    return std::sin(0.5 * x) * std::cos(0.4 * y) + 0.05 * x;
}

inline double colourAt(double x, double y) {
    return 0.01 * x * x - 0.02 * y;
}

/// `count` points of the square from -10 to 10, x drawn before y.
inline Points scatteredPoints(std::uint64_t seed, std::size_t count) {
    Random random(seed);
    Points points;
    for (std::size_t i = 0; i < count; ++i) {
        const double x = random.between(-10, 10);
        const double y = random.between(-10, 10);
        points.x.push_back(x);
        points.y.push_back(y);
        points.z.push_back(valueAt(x, y));
        points.c.push_back(colourAt(x, y));
    }
    return points;
}

}  // namespace tessaplot::bench
