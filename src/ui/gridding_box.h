#pragma once

#include "data/scaling.h"
#include "ui/form.h"

namespace tessaplot::ui {

/// A combo box of the gridding methods for the points of a volume or of a surface, which shows the one in force; a
/// method without an entry shows none.
Control griddingBox(std::string name, const data::GriddingChoice& choice, bool volume);

/// The choice with the method that the box shows; the same again if it shows none.
data::GriddingChoice chosenGridding(const Control& box, data::GriddingChoice choice, bool volume);

}  // namespace tessaplot::ui
