#pragma once

#include <filesystem>

#include "platform/desktop.h"

namespace tessaplot::pictures {

/// The first picture of a BMP, JPG or GIF file; what the file holds tells the format, not its name. Transparency is
/// dropped. Needs no application object and no display. Throws FileUnreadable for a file that cannot be read, holds no
/// such picture, or one of more than 64 million pixels.
platform::Picture readPicture(const std::filesystem::path& path);

}  // namespace tessaplot::pictures
