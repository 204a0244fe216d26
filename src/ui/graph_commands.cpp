#include "core/graph_commands.h"

#include "core/graph_list.h"
#include "ui/graph_forms.h"
#include "ui/main_window.h"
#include "ui/setting_forms.h"

namespace tessaplot::ui {

void frmF1::show(Form& form) {
    if (showForm)
        showForm(form);
    else
        form.accept();
}

void frmF1::drawGraph(int graphType) {
    state_.DialogOk = false;
    const std::size_t before = state_.AllGraphs.Graphs.size();
    show(*makeGraphForm(state_, graphType));
    if (state_.AllGraphs.Graphs.size() > before) core::showAddedGraph(state_);
}

void frmF1::mnuDrawAxis_Click() {
    show(*makeAxisForm(state_));
    state_.AxisDialogOk = false;
}

void frmF1::mnuDrawLight_Click() {
    show(*makeLightForm(state_));
}

void frmF1::mnuViewSet_Click() {
    show(*makeViewForm(state_));
}

void frmF1::mnuHelpAbout_Click() {
    show(*makeAboutForm());
}

void frmF1::mnuEditCopy_Click() {
    if (state_.ShownGraphs.empty()) return;
    state_.desktop.copyText(core::copiedGraph(state_, *core::selectedGraph(state_)));
    CopiedCount = 1;
}

void frmF1::mnuEditCut_Click() {
    mnuEditCopy_Click();
    mnuEditDelete_Click();
}

void frmF1::mnuEditPaste_Click() {
    if (CopiedCount < 1) return;
    core::pasteGraph(state_, state_.desktop.copiedText());
}

void frmF1::mnuEditDelete_Click() {
    if (!state_.AllGraphs.empty()) core::deleteSelectedGraph(state_);
}

void frmF1::mnuEditDelAll_Click() {
    core::DeleteAllGraphs(state_);
}

}  // namespace tessaplot::ui
