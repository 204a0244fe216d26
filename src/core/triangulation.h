#pragma once

#include "core/app_state.h"

namespace tessaplot::core {

/// Triangulates the scattered surface points of the data set into `TriangleList`; without such points there are no
/// triangles. Coincident points are told in one message. Throws SubscriptOutOfRange for more triangles than the list
/// may hold, and leaves none.
void triangulatePoints(AppState& state);

}  // namespace tessaplot::core
