#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tessaplot::scene {

/// What a bitmap of a picture takes from the frame buffer: one column more than the picture has.
struct BitmapShape {
    int columns = 0;
    int height = 0;
    std::size_t stride = 0;  ///< Bytes of a row, padded to 4.
};

/// Throws BadInput for a picture without an extent or too large for a bitmap.
BitmapShape bitmapShapeOf(int width, int height);

/// The bytes of a bitmap file that holds `frame`: rows of RGB bytes in that shape, bottom row first. Red and blue are
/// exchanged triple by triple over the whole frame, padding included, so that colours are right only where the stride
/// is a multiple of 3. Throws SubscriptOutOfRange if the last triple passes the end of the frame, OpenGl for a frame of
/// another size.
std::string bitmapFile(std::vector<std::uint8_t> frame, const BitmapShape& shape);

}  // namespace tessaplot::scene
