#pragma once

#include <QDir>
#include <QString>
#include <optional>

#include "platform/desktop.h"

class QWidget;

namespace tessaplot::qt {

/// The file dialogs; each opens in the folder of the file chosen last.
class FileChooser {
 public:
    /// Asks above `parent`; nothing if the user cancels.
    std::optional<platform::FileChoice> choose(QWidget* parent, const platform::FileQuestion& question);

 private:
    QString folder_ = QDir::currentPath();
};

}  // namespace tessaplot::qt
