#pragma once

#include <optional>
#include <vector>

#include "gl/affine.h"
#include "gl/display_list.h"

namespace tessaplot::gl {

/// Matrix calls that are held back while vertices can be placed by the processor instead. A pushed matrix that is
/// popped again before anything else needed it never reaches the context.
class PendingMatrix {
 public:
    /// Takes a call that multiplies the matrix or pushes or pops it; false if the call cannot be held back.
    bool take(const Operation& operation);

    /// What the calls held back do to positions.
    const Affine& placement() const { return placement_; }
    /// What they do to normals; none if normals cannot be placed.
    const std::optional<Affine>& normalPlacement();

    bool empty() const { return calls_.empty(); }
    /// Appends the calls held back to `calls` and forgets them. `source` is the list that they come from.
    void release(DisplayList& calls, const DisplayList& source);

 private:
    struct Level {
        std::size_t calls;
        Affine placement;
    };

    void push();
    bool pop();
    bool multiply(const Operation& operation);

    std::vector<Operation> calls_;
    std::vector<Level> levels_;
    Affine placement_;
    std::optional<Affine> normals_ = Affine();
    bool normalsKnown_ = true;
};

}  // namespace tessaplot::gl
