#pragma once

#include <filesystem>

namespace tessaplot::samples {

/// Writes the picture of a chart as a 24-bit BMP file: paper with a grid, a frame, and an arrow that points up.
void writeChartPicture(const std::filesystem::path& path);

}  // namespace tessaplot::samples
