#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <random>
#include <tuple>
#include <utility>
#include <vector>

namespace tessaplot::geometry::test {

using Place = std::pair<double, double>;

/// Two columns as the triangulation takes them: points 1 to n, room for three more.
struct PointCloud {
    explicit PointCloud(const std::vector<Place>& places) : x(places.size() + 4), y(x) {
        for (std::size_t i = 0; i < places.size(); ++i)
            std::tie(x[i + 1], y[i + 1]) = places[i];
    }
    std::int32_t n() const { return static_cast<std::int32_t>(x.size()) - 4; }

    std::vector<double> x, y;
};

/// A way to lay out points in the plane: where point `i` of `count` lies, given two random numbers of -10 to 10.
struct Layout {
    const char* name;
    Place (*at)(double p, double q, int i, int count);
    enum class Order { AsMade, Shuffled, Sorted } order = Order::AsMade;
};

inline int sideOf(int count) {
    return std::max(1, static_cast<int>(std::sqrt(count)));
}

inline Place onCircle(double radius, double turns) {
    return {radius * std::cos(2 * std::numbers::pi * turns), radius * std::sin(2 * std::numbers::pi * turns)};
}

inline Place onLattice(double, double, int i, int count) {
    const int row = i / sideOf(count);
    return {0.25 * (i % sideOf(count)), 0.25 * row};
}

inline const Layout layouts[] = {
    {"random", [](double p, double q, int, int) { return Place(p, q); }},
    {"random sorted", [](double p, double q, int, int) { return Place(p, q); }, Layout::Order::Sorted},
    {"clustered",
     [](double p, double q, int i, int) { return i % 7 == 0 ? Place(p, q) : Place(3 + p * 1e-4, q * 1e-4 - 4); }},
    {"lattice row by row", onLattice},
    {"lattice shuffled", onLattice, Layout::Order::Shuffled},
    {"ring", [](double, double, int i, int count) { return onCircle(10, 1.0 * i / count); }},
    {"rings shuffled",
     [](double, double, int i, int count) {
         const int side = sideOf(count);
         const int ring = i / side + 1;
         return onCircle(10.0 * ring / side, 1.0 * (i % side) / side);
     },
     Layout::Order::Shuffled},
    {"spiral", [](double, double, int i, int count) { return onCircle(10.0 * i / count, 9.0 * i / count); }},
    {"level line", [](double p, double, int, int) { return Place(p, 3); }},
    {"upright line", [](double, double q, int, int) { return Place(3, q); }},
    {"sloped line", [](double p, double, int, int) { return Place(p, 2 * p + 1); }},
    {"almost a line", [](double p, double q, int, int) { return Place(p, 0.3 * p + 1e-9 * q); }},
    {"duplicates", [](double p, double q, int, int) { return Place(std::floor(p / 2), std::floor(q / 2)); }},
    {"half units", [](double p, double q, int, int) { return Place(std::floor(p) / 2, std::floor(q) / 2); }},
    {"tiny", [](double p, double q, int, int) { return Place(0.5 + p * 1e-4, 0.5 + q * 1e-4); }},
    {"one unit", [](double p, double q, int, int) { return Place(p * 0.04, q * 0.04); }},
    {"far out", [](double p, double q, int, int) { return Place(1e9 + p, q - 1e9); }},
    {"wide", [](double p, double q, int, int) { return Place(p * 2e7, q * 1e-3); }},
    {"all scales",
     [](double p, double q, int, int) { return Place(p * std::pow(10, q / 2), q * std::pow(10, p / 3)); }},
};

inline PointCloud cloudOf(const Layout& layout, int count, unsigned seed) {
    std::mt19937_64 random(seed);
    std::uniform_real_distribution<double> unit(-10, 10);
    std::vector<Place> places;
    for (int i = 0; i < count; ++i) {
        const double p = unit(random);
        places.push_back(layout.at(p, unit(random), i, count));
    }
    if (layout.order == Layout::Order::Shuffled) std::shuffle(places.begin(), places.end(), random);
    if (layout.order == Layout::Order::Sorted) std::sort(places.begin(), places.end());
    return PointCloud(places);
}

}  // namespace tessaplot::geometry::test
