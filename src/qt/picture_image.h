#pragma once

#include <QImage>
#include <filesystem>

namespace tessaplot::qt {

/// A picture file as an image. Throws FileUnreadable with the reason.
QImage readImage(const std::filesystem::path& path);

}  // namespace tessaplot::qt
