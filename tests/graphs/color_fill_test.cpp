#include "graphs/color_fill.h"

#include <array>
#include <cmath>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "base/failure.h"

namespace tessaplot::graphs {
namespace {

void expectColor(const Rgb& actual, const Rgb& expected) {
    EXPECT_EQ((std::array{actual.r, actual.g, actual.b}), (std::array{expected.r, expected.g, expected.b}));
}

/// One channel of the ramp rule, written out over a graph's stops.
double plainRamp(const Cls9& graph, const base::CheckedArray<int>& channel, double p, double before) {
    const int n = graph.ColorNum;
    double c = before;
    for (int i = 0; i <= n - 2; ++i) {
        if (p >= graph.ColorPos(i) && p <= graph.ColorPos(i + 1)) {
            const double t = (p - graph.ColorPos(i)) / (graph.ColorPos(i + 1) - graph.ColorPos(i));
            c = (channel(i + 1) - channel(i)) * t + channel(i);
            break;
        }
    }
    if (std::fabs(p - graph.ColorPos(n - 1)) < 0.0001) c = channel(n - 1);
    return c / 255;
}

TEST(ColorFill, unpacksEveryByteOfAColor) {
    for (const auto& [r, g, b] : {std::array{0, 1, 255}, {255, 0, 254}, {7, 255, 0}, {128, 127, 129}})
        expectColor(ColorToRGB(base::packColor(r, g, b)), {r / 255.0, g / 255.0, b / 255.0});
    expectColor(ColorToRGB(-(5 + 256 * 6 + 65536 * 7)), {-5 / 255.0, -6 / 255.0, -7 / 255.0});
}

TEST(ColorFill, rampAgreesWithItsPlainFormInsideAndOutside) {
    const struct {
        const char* name;
        int stops;
        Rgb middle;
    } ramps[] = {
        {"", 6, {127.5, 255, 0}},          {"@RainBow", 6, {127.5, 255, 0}}, {"@earth", 5, {255, 255, 0}},
        {"FIERY", 5, {0, 255, 255}},       {"marine", 3, {0, 100, 100}},     {"@Grey", 2, {125, 125, 125}},
        {"of my own", 6, {127.5, 255, 0}},
    };
    std::mt19937 engine(2);
    std::uniform_real_distribution<double> values(-30, 30);
    for (const auto& ramp : ramps) {
        SCOPED_TRACE(ramp.name);
        Cls9 graph;
        graph.ColorName = ramp.name;
        Rgb color;
        ValueToRGB(graph, 0, -20, 40, color);
        expectColor(color, {ramp.middle.r / 255, ramp.middle.g / 255, ramp.middle.b / 255});
        EXPECT_EQ(graph.ColorNum, ramp.stops);
        EXPECT_EQ(graph.ColorName, *ramp.name == '\0' ? "Rainbow" : ramp.name);
        for (int n = 0; n < 300; ++n) {
            // Every other value stands on a stop; a third of all lie outside the ramp and dim what was there.
            const double value = n % 2 == 0 ? values(engine) : 2 * std::round(values(engine) / 2);
            const double p = (value + 20) / 40 * 100;
            const Rgb expected{plainRamp(graph, graph.ColorR, p, color.r), plainRamp(graph, graph.ColorG, p, color.g),
                               plainRamp(graph, graph.ColorB, p, color.b)};
            ValueToRGB(graph, value, -20, 40, color);
            expectColor(color, expected);
        }
    }
}

TEST(ColorFill, customRampsMayBeOddButNotBeyondTheirTable) {
    Cls9 graph;
    graph.ColorName = "mine";
    graph.ColorNum = 1;
    graph.ColorPos(0) = 50;
    graph.ColorG(0) = 102;
    Rgb color{255, 255, 255};
    ValueToRGB(graph, 1, 0, 10, color);
    expectColor(color, {1, 1, 1});
    ValueToRGB(graph, 5.000005, 0, 10, color);
    expectColor(color, {0.6, 0.4, 1});

    graph.ColorPos(1) = 50;
    for (const int stops : {32, 0, 2}) {
        graph.ColorNum = stops;
        EXPECT_THROW(ValueToRGB(graph, 5, 0, 10, color), base::Failure) << stops;
    }
}

TEST(ColorFill, gradientsRunFromTheSecondColorAndExtrapolate) {
    const Rgb first{1, 0.5, 0};
    const Rgb second{0, 0.5, 1};
    expectColor(gradientColor(-5, -5, 10, first, second), second);
    expectColor(gradientColor(10, -5, 10, first, second), {1.5, 0.5, -0.5});
    EXPECT_EQ(nonZeroSpan(0), 1e-6);
    EXPECT_EQ(nonZeroSpan(-2), -2);
}

}  // namespace
}  // namespace tessaplot::graphs
