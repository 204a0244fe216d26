#pragma once

#include "platform/desktop.h"

class QWidget;

namespace tessaplot::qt {

/// Shows a message in a box above `parent` and returns the answer; closing the box is a Cancel.
platform::Answer showMessage(QWidget* parent, const platform::Message& message);

}  // namespace tessaplot::qt
