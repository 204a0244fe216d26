#pragma once

#include "ui/form.h"

namespace tessaplot::ui {

/// The About box: title, version and notice.
class frmF2 : public Form {
 public:
    frmF2();

 protected:
    void ok() override { close(); }
};

}  // namespace tessaplot::ui
