#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <string>
#include <system_error>

#include "base/failure.h"
#include "core/document.h"
#include "core/text_encoding.h"

namespace tessaplot::core {

namespace {

constexpr std::uint16_t textType = 8;
constexpr std::size_t shortHeader = 4;
constexpr std::size_t longHeader = 8;
constexpr std::uint16_t longMark = 0xFFFF;
/// No document that the tables can hold comes near to this.
constexpr std::uintmax_t largestFile = 256U << 20U;

using base::Failure;
using base::FailureCode;

[[noreturn]] void failUnreadable(const std::filesystem::path& path, const std::string& why) {
    throw Failure(FailureCode::FileUnreadable, "The file \"" + path.string() + "\" cannot be read: " + why + ".");
}

[[noreturn]] void failUnwritable(const std::filesystem::path& path, const std::string& why) {
    throw Failure(FailureCode::FileUnwritable, "The file \"" + path.string() + "\" cannot be written: " + why + ".");
}

std::string systemReason() {
    return std::error_code(errno, std::generic_category()).message();
}

std::string readWhole(const std::filesystem::path& path) {
    std::error_code error;
    if (std::filesystem::is_directory(path, error)) failUnreadable(path, "it is a folder");
    std::ifstream file(path, std::ios::binary);
    if (!file) failUnreadable(path, systemReason());
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error) failUnreadable(path, error.message());
    if (size > largestFile)
        failUnreadable(path, "it is larger than " + std::to_string(largestFile >> 20U) + " MiB");
    std::string bytes(size, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

std::uint32_t littleEndian(std::string_view bytes, std::size_t at, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t i = size; i-- > 0;) value = value << 8U | static_cast<unsigned char>(bytes[at + i]);
    return value;
}

void appendLittleEndian(std::string& bytes, std::uint32_t value, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
}

std::string containerOf(std::string_view text) {
    std::string bytes;
    bytes.reserve(longHeader + text.size());
    appendLittleEndian(bytes, textType, 2);
    if (text.size() < longMark) {
        appendLittleEndian(bytes, static_cast<std::uint32_t>(text.size()), 2);
    } else {
        appendLittleEndian(bytes, longMark, 2);
        appendLittleEndian(bytes, static_cast<std::uint32_t>(text.size()), 4);
    }
    bytes += text;
    return bytes;
}

/// A file beside the target that is removed again unless it took the target's place.
class FileBeside {
 public:
    explicit FileBeside(const std::filesystem::path& target) : target_(target), name_(target.string() + ".XXXXXX") {
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

    std::filesystem::path target_;
    std::string name_;
    int descriptor_ = -1;
    bool renamed_ = false;
};

/// What the old file holds beyond the bytes that will be written.
std::string oldTail(const std::filesystem::path& path, std::size_t written) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error) || std::filesystem::file_size(path, error) <= written) return {};
    return readWhole(path).substr(written);
}

}  // namespace

std::string readDocumentFile(const std::filesystem::path& path) {
    const std::string bytes = readWhole(path);
    if (bytes.empty()) return {};
    if (bytes.size() < shortHeader || littleEndian(bytes, 0, 2) != textType)
        throw Failure(FailureCode::BadInput, "The file \"" + path.string() + "\" is not a document of this program.");
    std::size_t start = shortHeader;
    std::size_t length = littleEndian(bytes, 2, 2);
    if (length == longMark && bytes.size() >= longHeader) {
        start = longHeader;
        length = littleEndian(bytes, shortHeader, 4);
    }
    return fromFileBytes(std::string_view(bytes).substr(start, length));
}

void writeDocumentFile(const std::filesystem::path& path, std::string_view text) {
    std::error_code error;
    const std::filesystem::path link = std::filesystem::is_symlink(path, error)
                                           ? std::filesystem::weakly_canonical(path, error)
                                           : path;
    const std::filesystem::path& target = error ? path : link;
    if (std::filesystem::is_directory(target, error)) failUnwritable(path, "it is a folder");
    const std::string bytes = containerOf(toFileBytes(text));
    const std::string tail = oldTail(target, bytes.size());
    FileBeside beside(target);
    beside.write(bytes);
    beside.write(tail);
    beside.takePlace();
}

}  // namespace tessaplot::core
