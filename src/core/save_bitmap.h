#pragma once

#include <filesystem>

#include "platform/desktop.h"

namespace tessaplot::core {

/// Writes the frame buffer of a surface of that size to a bitmap file, one column wider than asked for. Throws Failure
/// and leaves an old file whole if there is no picture, if its bytes do not come out even, or if it cannot be written.
void SaveBitmap(const platform::Desktop& desktop, const std::filesystem::path& fileName, int width, int height);

}  // namespace tessaplot::core
