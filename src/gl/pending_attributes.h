#pragma once

#include <optional>
#include <vector>

#include "gl/display_list.h"

namespace tessaplot::gl {

/// List bases, and pushes of attributes, that are held back: what is drawn as vertices needs neither, and a push that
/// is popped again before anything else was called never reaches the context.
class PendingAttributes {
 public:
    /// Takes glListBase, glPushAttrib of the groups that texts push, or the glPopAttrib of one that is held back; false
    /// if the call cannot be held back.
    bool take(const Operation& operation);

    /// The list base in force, if it is known.
    const std::optional<GLuint>& listBase() const { return listBase_; }

    /// Appends the calls held back to `calls`.
    void release(DisplayList& calls);
    /// The context's state is not known any more. Nothing may be held back.
    void forget();

 private:
    struct Push {
        GLbitfield groups;
        std::optional<GLuint> listBase;
    };

    bool push(GLbitfield groups);
    bool pop();
    void releaseListBase(DisplayList& calls, const std::optional<GLuint>& base);

    std::vector<Push> pushes_;
    std::optional<GLuint> listBase_;
    std::optional<GLuint> released_;  ///< The list base that the context holds, if it is known.
};

}  // namespace tessaplot::gl
