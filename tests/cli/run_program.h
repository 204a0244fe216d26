#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tessaplot {

/// How a program ended and what it printed.
struct ProgramRun {
    int status = -1;
    std::string out;
    std::string err;
};

/// Runs a program to its end, without a display.
ProgramRun runProgram(const std::string& program, const std::vector<std::string>& arguments);

/// Runs tessaplot-cli.
ProgramRun cli(const std::vector<std::string>& arguments);

std::string bytesOf(const std::filesystem::path& path);

/// A folder that is removed again.
class TemporaryFolder {
 public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    std::string operator/(const std::string& name) const { return (path_ / name).string(); }
    const std::filesystem::path& path() const { return path_; }

 private:
    std::filesystem::path path_;
};

}  // namespace tessaplot
