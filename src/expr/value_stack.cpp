#include "expr/value_stack.h"

#include <utility>

#include "expr/evaluator_error.h"

namespace tessaplot::expr {

namespace {

constexpr std::int32_t growth = 10;

}  // namespace

void Cls13::Push(Value value) {
    pushEntry(std::move(value));
}

void Cls13::Push(Reference variable) {
    pushEntry(variable);
}

Cls13::Value Cls13::Pop() {
    if (size_ == 0) throw EvaluatorError(popOnEmptyNumber, popOnEmptyText);
    --size_;
    return valueOf(entries_[static_cast<std::size_t>(size_)]);
}

Cls13::Value Cls13::GetPopValue() const {
    if (size_ == 0) throw EvaluatorError(peekOnEmptyNumber, peekOnEmptyText);
    return valueOf(entries_[static_cast<std::size_t>(size_ - 1)]);
}

void Cls13::pushEntry(Entry entry) {
    if (size_ == capacity_) {
        capacity_ += growth;
        entries_.resize(static_cast<std::size_t>(capacity_));
    }
    entries_[static_cast<std::size_t>(size_)] = std::move(entry);
    ++size_;
}

Cls13::Value Cls13::valueOf(const Entry& entry) {
    if (const auto* reference = std::get_if<Reference>(&entry)) return *reference->variable;
    return std::get<Value>(entry);
}

}  // namespace tessaplot::expr
