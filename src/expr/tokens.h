#pragma once

#include <optional>
#include <string_view>

#include "expr/operations.h"

namespace tessaplot::expr {

/// The eight variables of a formula, in the order of an evaluator's arguments.
inline constexpr std::string_view variableNames = "UVXYARBT";
inline constexpr int variableCount = 8;

constexpr std::string_view openParenthesis = "(";
constexpr std::string_view unaryMinus = "(-)";

/// A digit or a decimal mark: what a number in a formula or a postfix text consists of.
constexpr bool isNumberCharacter(char c) {
    return (c >= '0' && c <= '9') || c == '.' || c == ',';
}

/// The operation that an operator, "(-)" or an upper-case function name stands for.
std::optional<Operation> operationOf(std::string_view token);

/// True for an upper-case function name.
bool isFunction(std::string_view token);

/// The index in `variableNames` of a doubled letter such as "XX".
std::optional<int> variableOf(std::string_view token);

/// How tightly a token binds: 1 to 5, or 0 for what an operator never takes from the stack.
int priorityOf(std::string_view token);

/// The value of the digits and at most one point that `token` begins with; whatever follows, a comma too, is left out.
/// Throws Failure (Overflow) for a number beyond the range of a 64-bit float.
double numberOf(std::string_view token);

}  // namespace tessaplot::expr
