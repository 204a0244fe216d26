#include "base/file.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/failure.h"

namespace tessaplot::base {

namespace {

namespace fs = std::filesystem;

/// Nothing that the program reads comes near to this.
constexpr std::uintmax_t largestFile = 256U << 20U;

[[noreturn]] void failUnreadable(const fs::path& path, const std::string& why) {
    throw Failure(FailureCode::FileUnreadable, "The file \"" + path.string() + "\" cannot be read: " + why + ".");
}

[[noreturn]] void failUnwritable(const fs::path& path, const std::string& why) {
    throw Failure(FailureCode::FileUnwritable, "The file \"" + path.string() + "\" cannot be written: " + why + ".");
}

std::string systemReason() {
    return std::error_code(errno, std::generic_category()).message();
}

/// A file beside the target that is removed again unless it took the target's place.
class FileBeside {
 public:
    explicit FileBeside(const fs::path& target) : target_(target), name_(target.string() + ".XXXXXX") {
        descriptor_ = ::mkstemp(name_.data());
        if (descriptor_ < 0) failUnwritable(target_, systemReason());
    }
    ~FileBeside() {
        if (descriptor_ >= 0) ::close(descriptor_);
        if (!renamed_) ::unlink(name_.c_str());
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    void write(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) continue;
            if (written <= 0) failUnwritable(target_, systemReason());
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }

    void takePlace() {
        copyMode();
        if (::fsync(descriptor_) != 0) failUnwritable(target_, systemReason());
        const int closed = ::close(descriptor_);
        descriptor_ = -1;
        if (closed != 0 || std::rename(name_.c_str(), target_.c_str()) != 0) failUnwritable(target_, systemReason());
        renamed_ = true;
    }

 private:
    /// The old file's permissions, or those that a new file of this user gets.
    void copyMode() {
        struct stat old {};
        mode_t mode = 0;
        if (::stat(target_.c_str(), &old) == 0) {
            mode = old.st_mode & 07777U;
        } else {
            const mode_t mask = ::umask(0);
            ::umask(mask);
            mode = 0666U & ~mask;
        }
        if (::fchmod(descriptor_, mode) != 0) failUnwritable(target_, systemReason());
    }

    fs::path target_;
    std::string name_;
    int descriptor_ = -1;
    bool renamed_ = false;
};

/// Where a link leads, so that writing does not replace the link itself.
fs::path targetOf(const fs::path& path) {
    std::error_code error;
    if (!fs::is_symlink(path, error)) return path;
    fs::path target = fs::weakly_canonical(path, error);
    return error ? path : target;
}

}  // namespace

std::string readFile(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::is_directory(status)) failUnreadable(path, "it is a folder");
    // Opening a pipe would wait for whoever writes into it.
    if (fs::exists(status) && !fs::is_regular_file(status)) failUnreadable(path, "it is not a regular file");
    std::ifstream file(path, std::ios::binary);
    if (!file) failUnreadable(path, systemReason());
    const std::uintmax_t size = fs::file_size(path, error);
    if (error) failUnreadable(path, error.message());
    if (size > largestFile) failUnreadable(path, "it is larger than " + std::to_string(largestFile >> 20U) + " MiB");
    std::string bytes(size, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

void writeFile(const fs::path& path, std::string_view bytes) {
    const fs::path target = targetOf(path);
    std::error_code error;
    if (fs::is_directory(target, error)) failUnwritable(path, "it is a folder");
    // Renaming would replace a file that is protected against writing.
    if (::access(target.c_str(), W_OK) != 0 && errno != ENOENT) failUnwritable(path, systemReason());
    FileBeside beside(target);
    beside.write(bytes);
    beside.takePlace();
}

}  // namespace tessaplot::base
