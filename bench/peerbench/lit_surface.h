#pragma once

#include <filesystem>

namespace tessaplot::bench {

/// Writes a document: a lit, smooth surface of 140 by 140 nodes in the colours of its height, in its frame with titles
/// and legend.
void writeLitSurface(const std::filesystem::path& path);

/// The same into the folder for temporary files; returns its path.
std::filesystem::path writeLitSurface();

}  // namespace tessaplot::bench
