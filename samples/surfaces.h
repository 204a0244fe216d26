#pragma once

#include <filesystem>

namespace tessaplot::samples {

/// Writes the sample documents that show surfaces and triangles, and the texture that they use.
void writeSurfaces(const std::filesystem::path& folder);

}  // namespace tessaplot::samples
