#include "pictures/picture_file.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

#include "base/failure.h"
#include "pictures/formats.h"
#include "pictures/png_file.h"

namespace tessaplot::pictures {

namespace {

std::string quoted(const std::filesystem::path& path) {
    return '"' + path.string() + '"';
}

/// The extension in lower case.
std::string formatOf(const std::filesystem::path& path) {
    std::string extension = path.extension().string();
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    static constexpr std::array<const char*, 5> known{".png", ".bmp", ".pdf", ".jpg", ".jpeg"};
    if (std::ranges::find(known, extension) != known.end()) return extension;
    throw base::Failure(base::FailureCode::BadInput,
                        "The name of the picture " + quoted(path) + " must end in .png, .bmp, .pdf, .jpg or .jpeg.");
}

void requireWhole(const std::filesystem::path& path, const Pixels& pixels) {
    const bool sensible = pixels.width > 0 && pixels.height > 0 && (pixels.channels == 3 || pixels.channels == 4);
    const std::int64_t rowBytes = std::int64_t{pixels.width} * pixels.channels;
    if (!sensible || static_cast<std::int64_t>(pixels.bytes.size()) != rowBytes * pixels.height)
        throw base::Failure(base::FailureCode::BadInput,
                            "The pixels of " + quoted(path) + " do not fill a picture of the stated size.");
}

}  // namespace

void writePicture(const std::filesystem::path& path, const Pixels& pixels) {
    const std::string format = formatOf(path);
    requireWhole(path, pixels);
    if (format == ".png")
        writePng(path, pixels);
    else
        formats().write(path, pixels);
}

}  // namespace tessaplot::pictures
