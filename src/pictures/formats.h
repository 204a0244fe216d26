#pragma once

#include <filesystem>

#include "pictures/picture_file.h"
#include "platform/desktop.h"

namespace tessaplot::pictures {

/// What the formats' module offers: all formats that Qt reads and writes. It is loaded with the first such picture, for
/// a program takes longer to load Qt than to write a PNG file.
struct Formats {
    /// `writePicture` for .bmp, .pdf, .jpg and .jpeg and pixels that were checked.
    void (*write)(const std::filesystem::path& path, const Pixels& pixels) = nullptr;
    /// `readPicture`.
    platform::Picture (*read)(const std::filesystem::path& path) = nullptr;
};

/// Loads the module, from the place where it was built or from beside the installed program. Throws FileUnreadable if
/// it is not there.
const Formats& formats();

}  // namespace tessaplot::pictures
