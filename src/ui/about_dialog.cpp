#include "ui/about_dialog.h"

#include "ui/control_makers.h"

namespace tessaplot::ui {

frmF2::frmF2() : Form("frmF2", "About Tessaplot") {
    nameButtons("cmdOK", "");
    add(label("lblTitle", "Tessaplot"));
    add(label("lblVersion", "Version " TESSAPLOT_VERSION));
    add(label("lblDescription", "Tables of numbers as interactive 2D, 3D and 4D graphs."));
    add(label("lblNotice", "Copyright (c) 2026 The Tessaplot developers.\nFree software under the MIT License."));
    addPage({"About", {{"", {{"lblTitle"}, {"lblVersion"}, {"lblDescription"}, {"lblNotice"}}}}});
}

}  // namespace tessaplot::ui
