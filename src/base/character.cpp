#include "base/character.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tessaplot::base {

namespace {

/// Characters of bytes 0x80 to 0x9f.
constexpr std::array<char32_t, 32> upperControls{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

std::optional<char32_t> takeUtf8Character(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if ((lead >= 0x80 && lead < 0xC2) || lead > 0xF4 || text.size() < length) return std::nullopt;
    constexpr std::array<char32_t, 5> leadMask{0, 0x7F, 0x1F, 0x0F, 0x07};
    char32_t character = lead & leadMask[length];
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80) return std::nullopt;
        character = (character << 6U) | (next & 0x3FU);
    }
    constexpr std::array<char32_t, 5> least{0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    if (character < least[length] || character > 0x10FFFF || surrogate) return std::nullopt;
    text.remove_prefix(length);
    return character;
}

char32_t windows1252Character(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? upperControls[byte - 0x80U] : byte;
}

std::optional<unsigned char> windows1252Byte(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<unsigned char>(character);
    const auto* found = std::find(upperControls.begin(), upperControls.end(), character);
    if (found == upperControls.end()) return std::nullopt;
    return static_cast<unsigned char>(0x80 + (found - upperControls.begin()));
}

}  // namespace tessaplot::base
