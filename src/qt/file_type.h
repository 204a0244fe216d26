#pragma once

#include <QString>

namespace tessaplot::qt {

/// Makes the program known to the user's desktop as the one that opens documents: menu entry, file type and icon, where
/// neither the system nor the user has them. Never fails; a desktop that cannot take them is left as it is.
void registerFileType();

}  // namespace tessaplot::qt
