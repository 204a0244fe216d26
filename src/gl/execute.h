#pragma once

#include "gl/display_list.h"

namespace tessaplot::gl {

/// Makes the OpenGL or GLU call that an operation stands for. Those that need more than the context (called lists,
/// images, glyphs, the accumulation buffer) are passed over; their bits of glClear as well.
void executeCall(const Operation& operation);

/// True if the call changes a matrix, or what may change the width of lines.
bool changesPlacement(Op op);

/// True if the call draws by itself, without the buffers of a compiled list.
bool drawsDirectly(Op op);

}  // namespace tessaplot::gl
