#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "expr/value_stack.h"

namespace tessaplot::expr {

/// Turns one formula in infix text into postfix text, a single pass from left to right (the shunting-yard method,
/// E. W. Dijkstra, Mathematisch Centrum report MR 34/61, 1961).
class InfixScanner {
 public:
    /// Tokens are appended to `postfix`, each followed by one blank.
    InfixScanner(std::string_view formula, std::string& postfix) : formula_(formula), postfix_(postfix) {}

    /// Scans the whole formula. Returns false at a fault; the tokens found before it are left in the postfix text.
    bool scan();
    /// What is wrong, empty if nothing is.
    const std::string& message() const { return message_; }
    /// The running position that goes with the message: not always the place of the fault, and 0 for a first name.
    std::int32_t position() const { return position_; }

 private:
    enum class Last { Start, Operand, Operator, Sign, Function };

    void scanCharacter(char c);
    void openGroup();
    void closeGroup();
    void scanOperator(char c);
    void binaryOperator(std::string_view token);
    void sign(char c);
    void scanNumber();
    void scanName();
    void finish();

    std::string topToken() const;
    std::string popToken();
    void append(std::string_view token);
    bool expectOperand();
    void fault(std::string message) { message_ = std::move(message); }

    std::string_view formula_;
    std::string& postfix_;
    Cls13 stack_;
    std::string message_;
    // Index of the character at hand, from 0; the position counts from 1.
    std::size_t at_ = 0;
    std::int32_t position_ = 1;
    std::int32_t parentheses_ = 0;
    Last last_ = Last::Start;
};

}  // namespace tessaplot::expr
