#pragma once

#include <QIcon>
#include <QString>

namespace tessaplot::qt {

/// The picture of a command, for a toolbar or a menu; null for a command without one. Its lines take the text colour of
/// the palette at each paint, so that it is legible on light and dark ground and at every pixel density.
QIcon commandIcon(const QString& command);

}  // namespace tessaplot::qt
