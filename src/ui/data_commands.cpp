#include "base/failure.h"
#include "data/grid_editing.h"
#include "data/text_table.h"
#include "ui/main_window.h"
#include "ui/setting_forms.h"

namespace tessaplot::ui {

using platform::FileQuestion;
using platform::Icon;

namespace {

constexpr const char* textFiles = "(*.txt)|*.txt";

}  // namespace

void frmF1::Command1_Click() {
    guarded([this] { state_.panel.layOut(); });
}

void frmF1::Combo1_Click(int kind) {
    if (kind < 0 || kind >= data::dataKindCount) return;
    state_.panel.selectKind(static_cast<data::DataKind>(kind));
    enabling_.takeKind(state_.panel.kind());
}

void frmF1::mnuFileImport_Click() {
    const auto chosen = state_.desktop.chooseFileName({FileQuestion::Mode::Open, "Open", textFiles});
    if (!chosen) return;
    if (data::importText(state_.panel, data::readTextFile(chosen->path)))
        enabling_.takeKind(state_.panel.kind());
    else
        state_.desktop.status("The file holds no known kind of data.");
}

void frmF1::mnuFileOutput_Click() {
    if (checkData()) writeData(data::exportText(state_.panel));
}

void frmF1::mnuFileGridded_Click() {
    if (checkData()) writeData(data::exportGriddedText(state_.panel, state_.gridding, state_.desktop));
}

bool frmF1::checkData() {
    std::string message;
    if (state_.panel.CheckData(message)) return true;
    state_.desktop.askUser({"Error", message, Icon::Warning});
    return false;
}

void frmF1::writeData(std::string_view text) {
    const auto chosen = state_.desktop.chooseFileName({FileQuestion::Mode::Save, "Output", textFiles});
    if (chosen) data::writeTextFile(chosen->path, text);
}

void frmF1::fgdGrid_Select(const data::CellRange& cells) {
    gridSelection_ = cells;
}

void frmF1::fgdGrid_RightClick(int row, int column) {
    if (row > 0 && column > 0) state_.desktop.showPopUp("mnuGE");
}

const data::CellRange& frmF1::selectedCells() const {
    if (gridSelection_.empty()) throw base::Failure(base::FailureCode::BadInput, "No cells are selected in the grid.");
    return gridSelection_;
}

void frmF1::mnuGESet_Click() {
    show(*makeGridSizeForm(state_));
}

void frmF1::mnuGECopy_Click() {
    state_.desktop.copyText(data::copyCells(state_.panel, selectedCells()));
}

void frmF1::mnuGECutIt_Click() {
    mnuGECopy_Click();
    mnuGEDelete_Click();
}

void frmF1::mnuGEPaste_Click() {
    const data::CellRange& cells = selectedCells();
    data::pasteCells(state_.panel, cells.firstRow, cells.firstColumn, state_.desktop.copiedText());
}

void frmF1::mnuGEDelete_Click() {
    data::clearCells(state_.panel, selectedCells());
}

void frmF1::mnuGEInsertRow_Click() {
    state_.panel.insertRow(selectedCells().firstRow);
}

void frmF1::mnuGEInsertCol_Click() {
    state_.panel.insertColumn(selectedCells().firstColumn);
}

void frmF1::mnuGEDelRow_Click() {
    const data::CellRange& cells = selectedCells();
    state_.panel.deleteRows(cells.firstRow, cells.lastRow);
}

void frmF1::mnuGEDelCol_Click() {
    const data::CellRange& cells = selectedCells();
    state_.panel.deleteColumns(cells.firstColumn, cells.lastColumn);
}

}  // namespace tessaplot::ui
