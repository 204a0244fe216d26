#include "graphs/image_scaling.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace tessaplot::graphs {

namespace {

/// An old pixel's part of a new one along one direction.
struct Part {
    std::size_t pixel;
    double share;
};

/// The parts of each new pixel.
std::vector<std::vector<Part>> partsOf(int from, int to) {
    const double ratio = static_cast<double>(from) / to;
    const double width = std::max(ratio, 1.0);
    std::vector<std::vector<Part>> parts(static_cast<std::size_t>(to));
    for (std::size_t k = 0; k < parts.size(); ++k) {
        const double begin = (static_cast<double>(k) + 0.5) * ratio - width / 2;
        const double end = begin + width;
        for (int at = static_cast<int>(std::floor(begin)); at < end; ++at) {
            const double share = (std::min(at + 1.0, end) - std::max<double>(at, begin)) / width;
            parts[k].push_back({static_cast<std::size_t>((at + from) % from), share});
        }
    }
    return parts;
}

std::size_t sizeOf(int number) {
    return static_cast<std::size_t>(number);
}

/// The row of an image at a new width, in exact numbers.
void scaleRow(std::span<const std::uint8_t> row, const std::vector<std::vector<Part>>& columns, std::size_t channels,
              std::vector<double>& out) {
    std::ranges::fill(out, 0.0);
    for (std::size_t k = 0; k < columns.size(); ++k)
        for (const Part& part : columns[k])
            for (std::size_t c = 0; c < channels; ++c)
                out[k * channels + c] += part.share * row[part.pixel * channels + c];
}

}  // namespace

std::vector<std::uint8_t> scaledImage(std::span<const std::uint8_t> pixels, ImageSize from, ImageSize to,
                                      int channels) {
    const auto columns = partsOf(from.width, to.width);
    const std::size_t rowBytes = sizeOf(from.width) * sizeOf(channels);
    std::vector<double> row(sizeOf(to.width) * sizeOf(channels));
    std::vector<double> sums(row.size());
    std::vector<std::uint8_t> scaled;
    scaled.reserve(row.size() * sizeOf(to.height));
    for (const std::vector<Part>& rows : partsOf(from.height, to.height)) {
        std::ranges::fill(sums, 0.0);
        for (const Part& part : rows) {
            scaleRow(pixels.subspan(part.pixel * rowBytes, rowBytes), columns, sizeOf(channels), row);
            for (std::size_t k = 0; k < row.size(); ++k)
                sums[k] += part.share * row[k];
        }
        for (const double sum : sums)
            scaled.push_back(static_cast<std::uint8_t>(std::clamp(std::floor(sum + 0.5), 0.0, 255.0)));
    }
    return scaled;
}

}  // namespace tessaplot::graphs
