#pragma once

#include <cstdint>
#include <filesystem>
#include <span>

namespace tessaplot::pictures {

/// A finished picture as it was read back: rows from the top down without padding, 8 bits a channel.
struct Pixels {
    std::span<const std::uint8_t> bytes;  ///< Exactly width * height * channels.
    int width = 0;
    int height = 0;
    int channels = 3;  ///< 3: red, green, blue; 4: with alpha, which only PNG keeps.
};

/// Writes the picture in the format that the extension names: .png, .bmp, .pdf (one page of the picture's size, at 96
/// pixels an inch, without loss), .jpg or .jpeg in any case. The file appears whole or not at all. Needs no application
/// object and no display. Throws BadInput for another extension or for pixels that do not fill the picture,
/// FileUnwritable if the file cannot be written.
void writePicture(const std::filesystem::path& path, const Pixels& pixels);

}  // namespace tessaplot::pictures
