#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace tessaplot::base {

/// The bytes of a file. Throws FileUnreadable for a file that cannot be read, a folder, or more than 256 MiB.
std::string readFile(const std::filesystem::path& path);

/// Puts `bytes` in place of the file: beside it first, flushed to the disk, then renamed over it; a link is followed
/// and permissions stay. Throws FileUnwritable and leaves the old file whole.
void writeFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace tessaplot::base
