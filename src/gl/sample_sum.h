#pragma once

#include <array>
#include <memory>
#include <span>

#include <GL/gl.h>

#include "gl/color_target.h"
#include "gl/drawn_area.h"

namespace tessaplot::gl {

/// A picture that was added to the accumulation buffer, with its weight.
struct WeightedSample {
    GLuint texture = 0;
    float weight = 0;
};

/// Adds samples in their order with their weights in floating point, as an accumulation buffer does, and rounds only
/// the sum. The samples stay where they are until then: one pass over all of them costs less than a blending pass for
/// each one.
class SampleSum {
 public:
    SampleSum() = default;
    ~SampleSum();
    SampleSum(const SampleSum&) = delete;
    SampleSum& operator=(const SampleSum&) = delete;

    /// Draws `scale` times the sum into `area` of the target, opaque. All pictures have the size given; the state of
    /// the context is left as it was but for the framebuffer, which is the target's.
    void draw(std::span<const WeightedSample> samples, float scale, const ColorTarget& target, const PixelArea& area,
              int width, int height);
    /// Frees what belongs to a size of picture.
    void sizeChanged();

 private:
    static constexpr std::size_t samplesInOnePass = 8;

    GLuint program(std::size_t samples);
    const ColorTarget& partialSum(std::size_t number, int width, int height);
    void drawPass(std::span<const WeightedSample> samples, float scale, int width, int height);

    std::array<GLuint, samplesInOnePass + 2> programs_{};      ///< By the number of textures that are added.
    std::array<std::unique_ptr<ColorTarget>, 2> partialSums_;  ///< For more samples than one pass takes.
};

}  // namespace tessaplot::gl
