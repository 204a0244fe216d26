#include "core/text_encoding.h"

#include <algorithm>
#include <optional>

#include "base/character.h"

namespace tessaplot::core {

namespace {

bool isPlainAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

void appendUtf8(std::string& out, char32_t character) {
    const auto put = [&out](char32_t byte) { out += static_cast<char>(byte); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0U | (character >> 6U));
        put(0x80U | (character & 0x3FU));
    } else {
        put(0xE0U | (character >> 12U));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    }
}

bool isUtf8(std::string_view text) {
    while (!text.empty())
        if (!base::takeUtf8Character(text)) return false;
    return true;
}

}  // namespace

std::string toFileBytes(std::string_view utf8) {
    if (isPlainAscii(utf8)) return std::string(utf8);
    std::string bytes;
    for (std::string_view rest = utf8; !rest.empty();) {
        const auto character = base::takeUtf8Character(rest);
        const auto byte = character ? base::windows1252Byte(*character) : std::nullopt;
        if (!byte) return std::string(utf8);
        bytes += static_cast<char>(*byte);
    }
    // Bytes that happen to be UTF-8 would be read back as such.
    return isUtf8(bytes) ? std::string(utf8) : bytes;
}

std::string fromFileBytes(std::string_view bytes) {
    if (isPlainAscii(bytes) || isUtf8(bytes)) return std::string(bytes);
    std::string utf8;
    for (const char c : bytes)
        appendUtf8(utf8, base::windows1252Character(static_cast<unsigned char>(c)));
    return utf8;
}

}  // namespace tessaplot::core
