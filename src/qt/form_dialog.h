#pragma once

#include "ui/form.h"

class QWidget;

namespace tessaplot::qt {

/// Shows a form as a modal dialog above the window of `parent` and returns once it is closed. Widgets bear the names of
/// the form's controls, the dialog that of the form.
void showForm(QWidget* parent, ui::Form& form);

}  // namespace tessaplot::qt
