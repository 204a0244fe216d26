#pragma once

#include <vector>

#include "ui/form.h"

namespace tessaplot::ui {

/// The materials by name, each with the colours of a lit ball of it, from its rim on the left over the highlight to the
/// other rim. The entry's number + 1 is the material's.
std::vector<Item> materialItems();

/// The entry of a material, -1 for a number without one.
int materialEntry(int material);

}  // namespace tessaplot::ui
