#pragma once

#include <vector>

#include "core/app_state.h"
#include "ui/form.h"

namespace tessaplot::ui {

/// The page of the axis dialog that tells how data become scene units: one of three modes, and the ratios of the axes
/// that count in the custom one.
class ScalePage {
 public:
    /// Keeps references to both.
    ScalePage(Form& form, const core::AppState& state) : form_(form), state_(state) {}

    std::vector<Control> controls() const;
    /// Where they stand.
    static Page page();

    void enableWhatCounts();
    /// Takes what the user set. False, after a message, for ratios that no data can be scaled by.
    bool read(data::Scaling& scaling);

 private:
    int chosenMode() const;
    bool readRatio(Control& box, double data::Scaling::*ratio, data::Scaling& scaling);

    Form& form_;
    const core::AppState& state_;
};

}  // namespace tessaplot::ui
