#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tessaplot::bench {

/// A routine whose cost is measured from a small size up to the largest one that it takes.
struct Routine {
    std::string name;
    std::string size;       ///< What the size counts.
    std::int64_t smallest;  ///< Where the measuring begins.
    std::int64_t limit;     ///< The size that the program refuses to go beyond, or the largest that is measured.
    std::string expected;   ///< The growth to expect, as a power of the size.
    /// Makes the input for a size, and returns the work.
    std::function<std::function<void()>(std::int64_t size)> prepare;
};

/// All of them: gridding, fits, geometry, formulas, text and documents, the scene.
std::vector<Routine> routines();

}  // namespace tessaplot::bench
