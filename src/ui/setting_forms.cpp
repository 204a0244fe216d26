#include "ui/setting_forms.h"

#include "ui/about_dialog.h"
#include "ui/axis_dialog.h"
#include "ui/grid_size_dialog.h"
#include "ui/light_dialog.h"
#include "ui/view_dialog.h"

namespace tessaplot::ui {

std::unique_ptr<Form> makeAxisForm(core::AppState& state) {
    return std::make_unique<frmF3>(state);
}

std::unique_ptr<Form> makeLightForm(core::AppState& state) {
    return std::make_unique<frmF8>(state);
}

std::unique_ptr<Form> makeViewForm(core::AppState& state) {
    return std::make_unique<frmF14>(state);
}

std::unique_ptr<Form> makeGridSizeForm(core::AppState& state) {
    return std::make_unique<frmOption>(state);
}

std::unique_ptr<Form> makeAboutForm() {
    return std::make_unique<frmF2>();
}

}  // namespace tessaplot::ui
