#pragma once

#include <string_view>

#include "base/color.h"
#include "graphs/graph.h"

namespace tessaplot::graphs {

/// Colour channels as floats, 0 to 1 for colours within a ramp or gradient.
struct Rgb {
    double r = 0;
    double g = 0;
    double b = 0;
};

/// The bytes of a packed colour over 255, got in floating point: a negative colour gives negative channels.
Rgb ColorToRGB(base::PackedColor color);

/// Sets the current colour.
inline void emitColor(gl::DisplayList& list, const Rgb& color) {
    list.glColor3d(color.r, color.g, color.b);
}
/// The same in single precision, as arrows have it.
inline void emitFloatColor(gl::DisplayList& list, const Rgb& color) {
    list.glColor3f(static_cast<float>(color.r), static_cast<float>(color.g), static_cast<float>(color.b));
}

/// Loads the stops of a named ramp ("RAINBOW", "EARTH", "FIERY", "MARINE", "GREY", also with a leading "@", in any
/// case) into the graph; any other name does nothing.
void ApplyNamedMap(Cls9& graph, std::string_view name);

/// As `ApplyNamedMap` for the graph's own `ColorName`, but "@" names count as custom: how drawing begins.
void applyPlainMap(Cls9& graph);

/// The colour of `value` on the graph's ramp from `lower` over `range`. A value outside the ramp keeps `color` as it
/// came, divided by 255. An empty colour name becomes "Rainbow".
/// Throws DivisionByZero for a value between two stops at the same position, SubscriptOutOfRange for a `ColorNum` that
/// is not 1 to 31.
void ValueToRGB(Cls9& graph, double value, double lower, double range, Rgb& color);

/// What `ValueToRGB` begins with: an empty colour name becomes "Rainbow", and a named ramp is loaded.
void loadNamedRamp(Cls9& graph);

/// `ValueToRGB` for a graph whose named ramp is loaded: what loops over many values call.
void rampColor(const Cls9& graph, double value, double lower, double range, Rgb& color);

/// Runs over `span` from `second` at `lower` to `first` at the upper end, without a clamp.
Rgb gradientColor(double value, double lower, double span, const Rgb& first, const Rgb& second);

/// An exact 0 replaced by a millionth, for ranges that are divided by.
constexpr double nonZeroSpan(double span) {
    return span == 0 ? 1.0 / 1000000 : span;
}

}  // namespace tessaplot::graphs
