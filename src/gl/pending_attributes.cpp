#include "gl/pending_attributes.h"

namespace tessaplot::gl {

bool PendingAttributes::take(const Operation& operation) {
    switch (operation.op) {
        case Op::ListBase:
            listBase_ = static_cast<GLuint>(operation.numbers[0]);
            return true;
        case Op::PushAttrib:
            return push(static_cast<GLbitfield>(operation.numbers[0]));
        case Op::PopAttrib:
            return pop();
        default:
            return false;
    }
}

/// Colours and normals, which are held back elsewhere, are in neither group.
bool PendingAttributes::push(GLbitfield groups) {
    constexpr GLbitfield held = GL_POLYGON_BIT | GL_LIST_BIT;
    if ((groups & ~held) != 0) return false;
    pushes_.push_back({groups, listBase_});
    return true;
}

bool PendingAttributes::pop() {
    if (pushes_.empty()) return false;
    if ((pushes_.back().groups & GL_LIST_BIT) != 0) listBase_ = pushes_.back().listBase;
    pushes_.pop_back();
    return true;
}

void PendingAttributes::release(DisplayList& calls) {
    for (const Push& push : pushes_) {
        releaseListBase(calls, push.listBase);
        calls.glPushAttrib(push.groups);
    }
    pushes_.clear();
    releaseListBase(calls, listBase_);
}

void PendingAttributes::releaseListBase(DisplayList& calls, const std::optional<GLuint>& base) {
    if (!base || base == released_) return;
    calls.glListBase(*base);
    released_ = base;
}

void PendingAttributes::forget() {
    listBase_.reset();
    released_.reset();
}

}  // namespace tessaplot::gl
