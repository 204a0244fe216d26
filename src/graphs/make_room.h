#pragma once

#include <cstddef>

#include "gl/display_list.h"

namespace tessaplot::graphs {

/// Makes room for what a graph is about to record, if that is more than the list holds: then the list at least doubles,
/// so that many graphs still cost time in proportion to what they record.
inline void makeRoom(gl::DisplayList& list, std::size_t operations, std::size_t numbers) {
    if (operations <= list.size()) return;
    const std::size_t numbersAtMost = list.bytes() / sizeof(double);
    list.reserve(list.size() + operations, numbersAtMost + numbers);
}

}  // namespace tessaplot::graphs
