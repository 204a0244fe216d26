#pragma once

namespace tessaplot::base {

/// A coordinate or value that marks a node without data.
inline constexpr double missingValue = 0.12345;

}  // namespace tessaplot::base
