#pragma once

#include <array>
#include <string>
#include <string_view>

#include "expr/random_sequence.h"
#include "expr/value_stack.h"

namespace tessaplot::tests {

/// The plain form of an evaluation: walks the postfix text token by token, with every value on the stack of mixed
/// kinds.
class LiteralEvaluator {
 public:
    using Variables = std::array<double, 8>;

    LiteralEvaluator(bool showErrors, expr::RandomSequence& random) : showErrors_(showErrors), random_(random) {}

    bool evaluate(std::string_view postfix, bool degrees, double& result, const Variables& variables);
    /// The message of the last evaluation, empty if there was none.
    const std::string& message() const { return message_; }

 private:
    void token(std::string_view token, const Variables& variables);
    void binary(char operation);
    void function(std::string_view name);
    void direct(std::string_view name, double x);
    void hyperbolic(std::string_view name, double x);
    void inverse(std::string_view name, double x);
    void area(std::string_view name, double x);
    double popNumber();

    bool showErrors_;
    expr::RandomSequence& random_;
    bool degrees_ = false;
    expr::Cls13 stack_;
    std::string message_;
};

}  // namespace tessaplot::tests
