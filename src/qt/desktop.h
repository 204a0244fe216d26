#pragma once

#include "platform/desktop.h"

namespace tessaplot::qt {

class MainWindow;

/// The desktop as the main window serves it: boxes and dialogs above it, its status bar, its picture and its progress.
/// The window must outlive every use.
platform::Desktop makeDesktop(MainWindow& window);

}  // namespace tessaplot::qt
