#pragma once

#include <filesystem>

namespace tessaplot::samples {

/// Writes the sample documents that show colour maps, contours and gradients: flat, on surfaces, and below them.
void writeFlatPlots(const std::filesystem::path& folder);

}  // namespace tessaplot::samples
