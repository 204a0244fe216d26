#include "scene/picture_output.h"

#include <cstddef>
#include <limits>
#include <string_view>
#include <utility>

#include "base/failure.h"

namespace tessaplot::scene {

namespace {

constexpr std::size_t bytesPerPixel = 3;
constexpr std::uint32_t headerSize = 54;
/// The size of the first part of the header stands where the size of the file belongs; readers go by the other fields.
constexpr std::uint32_t fileSizeField = 14;

void exchangeRedAndBlue(std::vector<std::uint8_t>& frame) {
    for (std::size_t i = 0; i < frame.size(); i += bytesPerPixel) {
        if (i + 2 >= frame.size())
            throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                                "The rows of a picture of this size do not come out even in a bitmap. Make the window "
                                "a little wider or narrower.");
        std::swap(frame[i], frame[i + 2]);
    }
}

/// Appends numbers in little-endian order.
class HeaderWriter {
 public:
    void text(std::string_view bytes) { bytes_ += bytes; }
    void word(std::uint32_t value) { number(value, 2); }
    void doubleWord(std::uint32_t value) { number(value, 4); }
    void zeros(std::size_t count) { bytes_.append(count, '\0'); }
    std::string take() { return std::move(bytes_); }

 private:
    void number(std::uint32_t value, int bytes) {
        for (int i = 0; i < bytes; ++i)
            bytes_ += static_cast<char>(value >> (8 * i) & 0xFFU);
    }

    std::string bytes_;
};

std::string headerOf(const BitmapShape& shape, std::size_t imageSize) {
    HeaderWriter header;
    header.text("BM");
    header.doubleWord(fileSizeField);
    header.word(0);
    header.word(0);
    header.doubleWord(headerSize);
    header.doubleWord(40);
    header.doubleWord(static_cast<std::uint32_t>(shape.columns));
    header.doubleWord(static_cast<std::uint32_t>(shape.height));
    header.word(1);
    header.word(24);
    header.doubleWord(0);
    header.doubleWord(static_cast<std::uint32_t>(imageSize));
    header.zeros(16);
    return header.take();
}

}  // namespace

BitmapShape bitmapShapeOf(int width, int height) {
    constexpr std::int64_t largest = std::numeric_limits<std::int32_t>::max();
    const std::int64_t columns = std::int64_t{width} + 1;
    const std::int64_t stride = (3 * columns + 3) / 4 * 4;
    if (width < 1 || height < 1 || stride > largest / height)
        throw base::Failure(base::FailureCode::BadInput, "A picture of " + std::to_string(width) + " by " +
                                                             std::to_string(height) + " pixels makes no bitmap.");
    return {static_cast<int>(columns), height, static_cast<std::size_t>(stride)};
}

std::string bitmapFile(std::vector<std::uint8_t> frame, const BitmapShape& shape) {
    if (frame.size() != shape.stride * static_cast<std::size_t>(shape.height))
        throw base::Failure(base::FailureCode::OpenGl, "The picture could not be read whole.");
    exchangeRedAndBlue(frame);
    std::string bytes = headerOf(shape, frame.size());
    bytes.append(frame.begin(), frame.end());
    return bytes;
}

}  // namespace tessaplot::scene
