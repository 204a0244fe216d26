#pragma once

#include <filesystem>

namespace tessaplot::samples {

/// Writes the sample documents that show volumes, and the surface with a value of its own as colour.
void writeVolumes(const std::filesystem::path& folder);

}  // namespace tessaplot::samples
