#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace tessaplot::expr {

/// The stack of an evaluator: it holds values of mixed kind.
class Cls13 {
 public:
    using Value = std::variant<std::string, double, float, std::int16_t>;
    /// A variable of the caller; its value is read when the entry is popped, not when it is pushed.
    struct Reference {
        const double* variable = nullptr;
    };

    std::int32_t StackSize() const { return size_; }
    void Push(Value value);
    void Push(Reference variable);
    /// Takes the top. Throws EvaluatorError 800403F3 (hexadecimal) if the stack is empty.
    Value Pop();
    /// Reads the top and leaves it. Throws EvaluatorError 800403F4 (hexadecimal) if the stack is empty.
    Value GetPopValue() const;

 private:
    using Entry = std::variant<Value, Reference>;
    void pushEntry(Entry entry);
    static Value valueOf(const Entry& entry);

    std::vector<Entry> entries_;
    std::int32_t capacity_ = 0;
    std::int32_t size_ = 0;
};

}  // namespace tessaplot::expr
