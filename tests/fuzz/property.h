#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

#include "base/files.h"

namespace tessaplot::fuzz {

inline void require(bool holds, const std::string& property) {
    if (!holds) throw std::logic_error("not so: " + property);
}

/// A file with these bytes, for routines that take a path; every call writes it anew.
inline std::filesystem::path fileWith(std::string_view bytes, const std::string& extension) {
    static const TemporaryFolder folder;
    return put(folder / ("input" + extension), bytes);
}

}  // namespace tessaplot::fuzz
