#pragma once

#include <string_view>

#include "core/app_state.h"

namespace tessaplot::fuzz {

/// Opens the bytes of a document file in `state` and fits the view; false for no document and for one whose data are
/// so many that opening takes long. Throws base::Failure for a document that the program refuses.
bool openSmallDocument(core::AppState& state, std::string_view bytes);

}  // namespace tessaplot::fuzz
