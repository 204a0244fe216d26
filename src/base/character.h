#pragma once

#include <optional>
#include <string_view>

namespace tessaplot::base {

/// Takes one character off the front of `text`, which is not empty. No value, and nothing taken, if that is not
/// well-formed UTF-8.
std::optional<char32_t> takeUtf8Character(std::string_view& text);

/// The character of a byte of the Windows-1252 code page; an unassigned byte stands for the control character of its
/// own number.
char32_t windows1252Character(unsigned char byte);

/// The byte of a character in the Windows-1252 code page; none if the page lacks the character.
std::optional<unsigned char> windows1252Byte(char32_t character);

}  // namespace tessaplot::base
