#pragma once

#include <future>
#include <string>

namespace tessaplot::gl {

/// A face in a file that may hold several.
struct FontFile {
    std::string path;
    int faceIndex = 0;
};

/// The face that Fontconfig finds for a family: upright, of regular weight and with outlines, maybe a substitute.
/// Throws as `failFont` does if this machine has no fonts.
FontFile findFont(const std::string& family);

/// Reads the machine's fonts on a thread of its own, so that who needs one first need not wait for that.
std::future<void> prepareFonts();

/// Throws base::Failure (FileUnreadable), "Unable to create font" with the reason.
[[noreturn]] void failFont(const std::string& reason);

}  // namespace tessaplot::gl
