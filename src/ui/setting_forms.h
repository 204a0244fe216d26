#pragma once

#include <memory>

#include "core/app_state.h"
#include "ui/form.h"

namespace tessaplot::ui {

// The dialogs that belong to no graph, filled from the state. Their OK applies what was set, rebuilds the scene and
// repaints the picture.

std::unique_ptr<Form> makeAxisForm(core::AppState& state);      ///< frmF3, "Axis Properties".
std::unique_ptr<Form> makeLightForm(core::AppState& state);     ///< frmF8, "Light Properties".
std::unique_ptr<Form> makeViewForm(core::AppState& state);      ///< frmF14, "View Setting".
std::unique_ptr<Form> makeGridSizeForm(core::AppState& state);  ///< frmOption, "Options".
std::unique_ptr<Form> makeAboutForm();                          ///< frmF2.

}  // namespace tessaplot::ui
