#pragma once

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include <unistd.h>

namespace tessaplot::fuzz {

inline void require(bool holds, const std::string& property) {
    if (!holds) throw std::logic_error("not so: " + property);
}

/// A folder of this process, removed at its end.
class OwnFolder {
 public:
    OwnFolder() { std::filesystem::create_directories(path_); }
    ~OwnFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    OwnFolder(const OwnFolder&) = delete;
    OwnFolder& operator=(const OwnFolder&) = delete;
    const std::filesystem::path& path() const { return path_; }

 private:
    std::filesystem::path path_ =
        std::filesystem::temp_directory_path() / ("tessaplot-fuzz-" + std::to_string(getpid()));
};

/// A file with these bytes, for routines that take a path; every call writes it anew.
inline std::filesystem::path fileWith(std::string_view bytes, const std::string& extension) {
    static const OwnFolder folder;
    std::filesystem::path path = folder.path() / ("input" + extension);
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

}  // namespace tessaplot::fuzz
