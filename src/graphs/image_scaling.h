#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace tessaplot::graphs {

/// Pixels across and down.
struct ImageSize {
    int width = 0;
    int height = 0;
};

/// The image at another size, as `gluScaleImage` makes it but without a context: each new pixel is the mean of an area
/// about its middle that is as wide as it or as an old pixel, whichever is wider; beyond its border the image repeats.
/// Rows have no padding; sizes and channels are at least 1, and `pixels` fills `from`.
std::vector<std::uint8_t> scaledImage(std::span<const std::uint8_t> pixels, ImageSize from, ImageSize to, int channels);

}  // namespace tessaplot::graphs
