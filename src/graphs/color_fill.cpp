#include "graphs/color_fill.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "base/failure.h"
#include "graphs/letter_case.h"

namespace tessaplot::graphs {

namespace {

struct Stop {
    double position;
    int red;
    int green;
    int blue;
};

struct NamedRamp {
    std::string_view name;
    std::span<const Stop> stops;
};

constexpr std::array<Stop, 6> rainbow{
    {{0, 153, 102, 255}, {20, 0, 0, 255}, {40, 0, 255, 0}, {60, 255, 255, 0}, {80, 255, 102, 0}, {100, 255, 0, 0}}};
constexpr std::array<Stop, 5> earth{
    {{0, 0, 0, 128}, {25, 0, 128, 0}, {50, 255, 255, 0}, {75, 0, 255, 255}, {100, 128, 64, 64}}};
constexpr std::array<Stop, 5> fiery{
    {{0, 255, 255, 0}, {25, 255, 0, 255}, {50, 0, 255, 255}, {75, 255, 0, 0}, {100, 0, 0, 255}}};
constexpr std::array<Stop, 3> marine{{{0, 128, 128, 255}, {50, 0, 100, 100}, {100, 255, 255, 128}}};
constexpr std::array<Stop, 2> grey{{{0, 200, 200, 200}, {100, 50, 50, 50}}};

constexpr std::array<NamedRamp, 5> namedRamps{
    {{"RAINBOW", rainbow}, {"EARTH", earth}, {"FIERY", fiery}, {"MARINE", marine}, {"GREY", grey}}};

bool namesRamp(std::string_view text, std::string_view name) {
    return std::ranges::equal(text, name, {}, upperCase);
}

void loadRamp(Cls9& graph, std::string_view name) {
    const auto ramp = std::ranges::find_if(namedRamps, [&](const NamedRamp& r) { return namesRamp(name, r.name); });
    if (ramp == namedRamps.end()) return;
    graph.ColorNum = static_cast<int>(ramp->stops.size());
    for (int i = 0; i < graph.ColorNum; ++i) {
        const Stop& stop = ramp->stops[static_cast<std::size_t>(i)];
        graph.ColorPos(i) = stop.position;
        graph.ColorR(i) = stop.red;
        graph.ColorG(i) = stop.green;
        graph.ColorB(i) = stop.blue;
    }
}

/// The channels of stop i, 0 to 255.
Rgb stopColor(const Cls9& graph, int i) {
    return {static_cast<double>(graph.ColorR(i)), static_cast<double>(graph.ColorG(i)),
            static_cast<double>(graph.ColorB(i))};
}

Rgb between(const Rgb& lower, const Rgb& upper, double t) {
    return {(upper.r - lower.r) * t + lower.r, (upper.g - lower.g) * t + lower.g, (upper.b - lower.b) * t + lower.b};
}

/// How far `percent` stands on the way from stop i to the next one.
double wayBetweenStops(const Cls9& graph, int i, double percent) {
    const double width = graph.ColorPos(i + 1) - graph.ColorPos(i);
    if (width == 0)
        throw base::Failure(base::FailureCode::DivisionByZero,
                            "Two neighbouring stops of the colour map stand at the same position.");
    return (percent - graph.ColorPos(i)) / width;
}

}  // namespace

Rgb ColorToRGB(base::PackedColor color) {
    const auto [r, g, b] = base::channelsOf(color);
    return {r, g, b};
}

void ApplyNamedMap(Cls9& graph, std::string_view name) {
    if (name.starts_with('@')) name.remove_prefix(1);
    loadRamp(graph, name);
}

void applyPlainMap(Cls9& graph) {
    loadRamp(graph, graph.ColorName);
}

void loadNamedRamp(Cls9& graph) {
    if (graph.ColorName.empty()) graph.ColorName = "Rainbow";
    ApplyNamedMap(graph, graph.ColorName);
}

void ValueToRGB(Cls9& graph, double value, double lower, double range, Rgb& color) {
    loadNamedRamp(graph);
    rampColor(graph, value, lower, range, color);
}

void rampColor(const Cls9& graph, double value, double lower, double range, Rgb& color) {
    const int last = std::max(graph.ColorNum, 0) - 1;
    const double percent = (value - lower) / range * 100;
    for (int i = 0; i < last; ++i) {
        if (!(percent >= graph.ColorPos(i)) || !(percent <= graph.ColorPos(i + 1))) continue;
        color = between(stopColor(graph, i), stopColor(graph, i + 1), wayBetweenStops(graph, i, percent));
        break;
    }
    if (std::abs(percent - graph.ColorPos(last)) < 0.0001) color = stopColor(graph, last);
    color = {color.r / 255, color.g / 255, color.b / 255};
}

Rgb gradientColor(double value, double lower, double span, const Rgb& first, const Rgb& second) {
    const auto channel = [&](double upperEnd, double lowerEnd) {
        return (value - lower) * (upperEnd - lowerEnd) / span + lowerEnd;
    };
    return {channel(first.r, second.r), channel(first.g, second.g), channel(first.b, second.b)};
}

}  // namespace tessaplot::graphs
