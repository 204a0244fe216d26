#pragma once

#include <string>
#include <string_view>

namespace tessaplot::core {

/// The bytes of a document for a UTF-8 text: one byte a character in the Windows-1252 code page. A text with characters
/// that this page lacks stays UTF-8, so that nothing is lost.
std::string toFileBytes(std::string_view utf8);

/// The UTF-8 text of a document's bytes: bytes that are valid UTF-8 stay, others are read as Windows-1252.
std::string fromFileBytes(std::string_view bytes);

}  // namespace tessaplot::core
