#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tessaplot::qt {

/// The clipboard that all programs share; texts are UTF-8.
std::string clipboardText();
void setClipboardText(std::string_view text);

/// Puts a bitmap file on the clipboard as a picture. Throws FileUnreadable if it is none.
void copyPictureFile(const std::filesystem::path& path);

}  // namespace tessaplot::qt
