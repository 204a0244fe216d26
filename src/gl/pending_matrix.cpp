#include "gl/pending_matrix.h"

namespace tessaplot::gl {

bool PendingMatrix::take(const Operation& operation) {
    if (operation.op == Op::PopMatrix) return pop();
    if (operation.op == Op::PushMatrix)
        push();
    else if (!multiply(operation))
        return false;
    calls_.push_back(operation);
    return true;
}

void PendingMatrix::push() {
    levels_.push_back({calls_.size(), placement_});
}

bool PendingMatrix::pop() {
    if (levels_.empty()) return false;
    calls_.resize(levels_.back().calls);
    placement_ = levels_.back().placement;
    levels_.pop_back();
    normalsKnown_ = false;
    return true;
}

bool PendingMatrix::multiply(const Operation& operation) {
    const std::span<const double> n = operation.numbers;
    switch (operation.op) {
        case Op::Translatef:
            placement_.translate(n[0], n[1], n[2]);
            return true;
        case Op::Rotatef:
            placement_.rotate(n[0], n[1], n[2], n[3]);
            break;
        case Op::Scalef:
            placement_.scale(n[0], n[1], n[2]);
            break;
        case Op::MultMatrixf:
            if (!isAffine(n)) return false;
            placement_.multiply(n.first<16>());
            break;
        default:
            return false;
    }
    normalsKnown_ = false;
    return true;
}

const std::optional<Affine>& PendingMatrix::normalPlacement() {
    if (!normalsKnown_) normals_ = placement_.forNormals();
    normalsKnown_ = true;
    return normals_;
}

void PendingMatrix::release(DisplayList& calls, const DisplayList& source) {
    for (const Operation& operation : calls_)
        calls.append(source, operation);
    *this = {};
}

}  // namespace tessaplot::gl
