#pragma once

#include <filesystem>

#include "pictures/picture_file.h"

namespace tessaplot::pictures {

/// Writes pixels that fill their picture as a PNG file, whole or not at all. Throws FileUnwritable.
void writePng(const std::filesystem::path& path, const Pixels& pixels);

}  // namespace tessaplot::pictures
