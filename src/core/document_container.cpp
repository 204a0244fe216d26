#include <cstdint>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "base/failure.h"
#include "base/file.h"
#include "core/document.h"
#include "core/text_encoding.h"

namespace tessaplot::core {

namespace {

constexpr std::uint16_t textType = 8;
constexpr std::size_t shortHeader = 4;
constexpr std::size_t longHeader = 8;
constexpr std::uint16_t longMark = 0xFFFF;
std::uint32_t littleEndian(std::string_view bytes, std::size_t at, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t i = size; i-- > 0;)
        value = value << 8U | static_cast<unsigned char>(bytes[at + i]);
    return value;
}

void appendLittleEndian(std::string& bytes, std::uint32_t value, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
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

/// What the old file holds beyond the bytes that will be written.
std::string oldTail(const std::filesystem::path& path, std::size_t written) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error) || std::filesystem::file_size(path, error) <= written) return {};
    return base::readFile(path).substr(written);
}

}  // namespace

std::optional<std::string> documentTextIn(std::string_view bytes) {
    if (bytes.empty()) return "";
    if (bytes.size() < shortHeader || littleEndian(bytes, 0, 2) != textType) return std::nullopt;
    std::size_t start = shortHeader;
    std::size_t length = littleEndian(bytes, 2, 2);
    if (length == longMark && bytes.size() >= longHeader) {
        start = longHeader;
        length = littleEndian(bytes, shortHeader, 4);
    }
    return fromFileBytes(bytes.substr(start, length));
}

std::string readDocumentFile(const std::filesystem::path& path) {
    std::optional<std::string> text = documentTextIn(base::readFile(path));
    if (!text)
        throw base::Failure(base::FailureCode::BadInput,
                            "The file \"" + path.string() + "\" is not a document of this program.");
    return *std::move(text);
}

void writeDocumentFile(const std::filesystem::path& path, std::string_view text) {
    std::string bytes = containerOf(toFileBytes(text));
    bytes += oldTail(path, bytes.size());
    base::writeFile(path, bytes);
}

}  // namespace tessaplot::core
