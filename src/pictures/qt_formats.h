#pragma once

#include <filesystem>

#include "pictures/picture_file.h"
#include "platform/desktop.h"

namespace tessaplot::pictures {

/// The functions of `Formats`.
void writeWithQt(const std::filesystem::path& path, const Pixels& pixels);
platform::Picture readWithQt(const std::filesystem::path& path);

}  // namespace tessaplot::pictures
