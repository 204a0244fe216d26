#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "expr/random_sequence.h"

namespace tessaplot::tests {

/// The plain form of an evaluation: walks the postfix text token by token, with every value on a stack.
class LiteralEvaluator {
 public:
    using Variables = std::array<double, 8>;

    LiteralEvaluator(bool showErrors, expr::RandomSequence& random) : showErrors_(showErrors), random_(random) {}

    bool evaluate(std::string_view postfix, bool degrees, double& result, const Variables& variables);
    /// The message of the last evaluation, empty if there was none.
    const std::string& message() const { return message_; }

 private:
    double valueOf(std::string_view token, const Variables& variables);
    double function(std::string_view name, double x);
    double pop();

    bool showErrors_;
    expr::RandomSequence& random_;
    bool degrees_ = false;
    std::vector<double> stack_;
    std::string message_;
};

}  // namespace tessaplot::tests
