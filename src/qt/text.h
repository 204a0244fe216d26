#pragma once

#include <QString>
#include <string_view>

namespace tessaplot::qt {

/// The text of the logic, which is UTF-8.
inline QString qString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace tessaplot::qt
