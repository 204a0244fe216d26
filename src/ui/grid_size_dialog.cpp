#include "ui/grid_size_dialog.h"

#include <optional>
#include <string>
#include <string_view>

#include "base/number_text.h"
#include "ui/control_makers.h"
#include "ui/number_box.h"

namespace tessaplot::ui {

namespace {

constexpr int most = 65536;

std::optional<int> sizeIn(std::string_view text) {
    const std::optional<double> value = numberIn(text);
    if (!value || !(*value >= 1 && *value <= most)) return std::nullopt;
    return base::roundToInteger(*value);
}

}  // namespace

frmOption::frmOption(core::AppState& state) : Form("frmOption", "Options"), state_(state) {
    add(textBox("Text1", "Rows", std::to_string(state.panel.gridRows())));
    add(textBox("Text2", "Columns", std::to_string(state.panel.gridColumns())));
    addPage({"Grid", {{"Grid", {{"Text1"}, {"Text2"}}}}});
}

void frmOption::ok() {
    const std::optional<int> rows = sizeIn(control("Text1").text);
    const std::optional<int> columns = sizeIn(control("Text2").text);
    if (!rows || !columns) {
        tell(state_.desktop, "Error", "The number of rows or columns of the grid must be a value between 1 and 65536.");
        return;
    }
    state_.panel.setGridSize(*rows, *columns);
    close();
}

}  // namespace tessaplot::ui
