#pragma once

#include <filesystem>

namespace tessaplot::bench {

/// Writes a document into the folder for temporary files and returns its path: a lit, smooth surface of 140 by 140
/// nodes in the colours of its height, in its frame with titles and legend.
std::filesystem::path writeLitSurface();

}  // namespace tessaplot::bench
