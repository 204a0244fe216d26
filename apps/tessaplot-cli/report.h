#pragma once

#include <ostream>
#include <string_view>

#include "core/app_state.h"

namespace tessaplot::cli {

/// What an opened document holds, as "key: value" lines.
void report(std::ostream& out, std::string_view tag, const core::AppState& state);

}  // namespace tessaplot::cli
