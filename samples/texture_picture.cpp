#include "texture_picture.h"

#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/file.h"

namespace tessaplot::samples {

namespace {

constexpr int side = 128;

struct Pixel {
    int red;
    int green;
    int blue;
};

bool isArrow(int x, int y) {
    const int fromMiddle = std::abs(2 * x - (side - 1));
    const bool head = y >= 18 && y < 58 && fromMiddle <= y - 18;
    const bool shaft = y >= 58 && y < 104 && fromMiddle <= 13;
    return head || shaft;
}

/// The pixel in column x from the left and row y from the top.
Pixel chartPixel(int x, int y) {
    const int border = 4;
    if (x < border || y < border || x >= side - border || y >= side - border) return {60, 90, 120};
    if (isArrow(x, y)) return {200, 60, 40};
    if (x % 16 < 2 || y % 16 < 2) return {150, 175, 190};
    return (x / 16 + y / 16) % 2 == 0 ? Pixel{250, 244, 226} : Pixel{236, 228, 200};
}

void append(std::string& bytes, std::uint32_t value, int count) {
    for (int k = 0; k < count; ++k)
        bytes += static_cast<char>(value >> 8 * k & 255);
}

std::string headerOf(std::uint32_t pixelBytes) {
    constexpr std::uint32_t headerBytes = 54;
    std::string bytes = "BM";
    append(bytes, headerBytes + pixelBytes, 4);
    append(bytes, 0, 4);
    append(bytes, headerBytes, 4);
    append(bytes, 40, 4);
    append(bytes, side, 4);
    append(bytes, side, 4);
    append(bytes, 1, 2);
    append(bytes, 24, 2);
    append(bytes, 0, 4);
    append(bytes, pixelBytes, 4);
    append(bytes, 2835, 4);
    append(bytes, 2835, 4);
    append(bytes, 0, 4);
    append(bytes, 0, 4);
    return bytes;
}

}  // namespace

void writeChartPicture(const std::filesystem::path& path) {
    std::string pixels;
    for (int y = side - 1; y >= 0; --y) {
        for (int x = 0; x < side; ++x) {
            const Pixel pixel = chartPixel(x, y);
            for (const int channel : {pixel.blue, pixel.green, pixel.red})
                pixels += static_cast<char>(channel);
        }
    }
    base::writeFile(path, headerOf(static_cast<std::uint32_t>(pixels.size())) + pixels);
}

}  // namespace tessaplot::samples
