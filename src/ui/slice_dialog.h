#pragma once

#include <array>

#include "ui/slice_editor.h"

namespace tessaplot::ui {

/// The dialog of slices through a volume.
class frmF31 : public GraphForm {
 public:
    explicit frmF31(core::AppState& state);

 protected:
    bool complete(graphs::Cls9& graph) override;

 private:
    std::array<SliceEditor*, 3> editors_{};
};

}  // namespace tessaplot::ui
