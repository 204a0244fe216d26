#include "expr/literal_evaluator.h"

#include <cmath>
#include <cstdlib>
#include <type_traits>
#include <variant>

#include "expr/evaluator_error.h"

namespace tessaplot::tests {

namespace {

/// A failure: the text of its message, empty for the one that is never shown.
struct Fail {
    const char* text;
};
constexpr Fail valueFailure{""};
constexpr Fail division{"Devision by zero."};
constexpr Fail illegal{"The expression is illegal."};
constexpr Fail squareRoot{"The parameter of function SQR must larger than or equal to 0."};
constexpr Fail logarithm{"The parameter of function LOG must larger than 0."};
constexpr Fail power{"A^B, B must be a long if A is negative."};

constexpr double pi = 3.1416;
const double q = std::atan(1.0);

int Sgn(double x) {
    return x > 0 ? 1 : x < 0 ? -1 : 0;
}

void require(bool holds, Fail failure) {
    if (!holds) throw failure;
}

double numberPrefix(std::string_view token) {
    std::string digits;
    for (const char c : token) {
        if (!((c >= '0' && c <= '9') || (c == '.' && digits.find('.') == std::string::npos))) break;
        digits += c;
    }
    return std::strtod(digits.c_str(), nullptr);
}

bool isOneOf(std::string_view name, std::string_view list) {
    return (" " + std::string(list) + " ").find(" " + std::string(name) + " ") != std::string::npos;
}

}  // namespace

bool LiteralEvaluator::evaluate(std::string_view postfix, bool degrees, double& result, const Variables& variables) {
    degrees_ = degrees;
    stack_ = {};
    message_.clear();
    try {
        while (!postfix.empty()) {
            const std::size_t blank = postfix.find(' ');
            token(postfix.substr(0, blank), variables);
            postfix = blank == std::string_view::npos ? "" : postfix.substr(blank + 1);
        }
    } catch (const Fail& failure) {
        if (showErrors_ && *failure.text) {
            message_ = failure.text;
            return false;
        }
        result = 0.12345;
        return true;
    }
    if (stack_.StackSize() == 0) return false;
    result = popNumber();
    return true;
}

void LiteralEvaluator::token(std::string_view token, const Variables& variables) {
    constexpr std::string_view names = "UVXYARBT";
    if (!token.empty() && std::string_view("1234567890.,").find(token[0]) != std::string_view::npos) {
        stack_.Push(numberPrefix(token));
    } else if (token.size() == 1 && std::string_view("+-*/^").find(token[0]) != std::string_view::npos) {
        binary(token[0]);
    } else if (token == "(-)") {
        stack_.Push(-popNumber());
    } else if (token.size() == 2 && token[0] == token[1] && names.find(token[0]) != std::string_view::npos) {
        stack_.Push(expr::Cls13::Reference{&variables[names.find(token[0])]});
    } else {
        function(token);
    }
}

void LiteralEvaluator::binary(char operation) {
    const double b = popNumber();
    const double a = popNumber();
    if (operation == '+') stack_.Push(a + b);
    if (operation == '-') stack_.Push(a - b);
    if (operation == '*') stack_.Push(a * b);
    if (operation == '/') {
        require(b != 0, division);
        stack_.Push(a / b);
    }
    if (operation == '^') {
        if (b == 0) {
            stack_.Push(std::int16_t{1});
        } else {
            require(a >= 0 || (a < 0 && b == std::floor(b)), power);
            stack_.Push(std::pow(a, b));
        }
    }
}

void LiteralEvaluator::function(std::string_view name) {
    if (isOneOf(name, "SIN COS TAN SEC CSEC CTAN ATAN")) {
        const double x = popNumber();
        direct(name, degrees_ ? x * pi / 180 : x);
    } else if (isOneOf(name, "LOG EXP ABS INT SQR RND")) {
        const double x = popNumber();
        require(name != "LOG" || !(x <= 0), logarithm);
        require(name != "SQR" || !(x < 0), squareRoot);
        if (name == "LOG") stack_.Push(std::log(x));
        if (name == "EXP") stack_.Push(std::exp(x));
        if (name == "ABS") stack_.Push(std::fabs(x));
        if (name == "INT") stack_.Push(std::floor(x));
        if (name == "SQR") stack_.Push(std::sqrt(x));
        if (name == "RND") stack_.Push(random_.next());
    } else if (isOneOf(name, "ASIN ACOS ASEC ACSEC ACTAN")) {
        inverse(name, popNumber());
    } else if (isOneOf(name, "SINH COSH TANH CTANH SECH CSECH")) {
        hyperbolic(name, popNumber());
    } else if (isOneOf(name, "ASINH ACOSH ATANH ASECH ACSECH ACTANH")) {
        area(name, popNumber());
    } else {
        throw expr::EvaluatorError(expr::badTokenNumber, "Bad token in Evaluate: " + std::string(name));
    }
}

void LiteralEvaluator::direct(std::string_view name, double x) {
    if (name == "ATAN") return stack_.Push(std::atan(x));
    const bool isSine = name == "SIN" || name == "CSEC";
    const bool isCosine = name == "COS" || name == "SEC";
    const double value = isSine ? std::sin(x) : isCosine ? std::cos(x) : std::tan(x);
    const bool isInverse = isOneOf(name, "SEC CSEC CTAN");
    require(!isInverse || value != 0, division);
    stack_.Push(isInverse ? 1 / value : value);
}

void LiteralEvaluator::inverse(std::string_view name, double x) {
    if (name == "ACTAN") return stack_.Push(std::atan(x) + 2 * q);
    if (name == "ASIN" && std::fabs(x) == 1) return stack_.Push(x * pi / 2);
    if (name == "ACOS" && x == -1) return stack_.Push(pi);
    if (name == "ACOS" && x == 1) return stack_.Push(std::int16_t{0});
    const bool isSecant = name == "ASEC" || name == "ACSEC";
    const double rest = isSecant ? x * x - 1 : 1 - x * x;
    require(!(isSecant ? rest <= 0 : rest < 0), illegal);
    if (name == "ASIN") stack_.Push(std::atan(x / std::sqrt(rest)));
    if (name == "ACOS") stack_.Push(std::atan(-x / std::sqrt(rest)) + 2 * q);
    if (name == "ASEC") stack_.Push(std::atan(x / std::sqrt(rest)) + Sgn(x - 1) * 2 * q);
    if (name == "ACSEC") stack_.Push(std::atan(x / std::sqrt(rest)) + (Sgn(x) - 1) * 2 * q);
}

void LiteralEvaluator::hyperbolic(std::string_view name, double x) {
    const double sum = std::exp(x) + std::exp(-x);
    const double difference = std::exp(x) - std::exp(-x);
    require(!isOneOf(name, "CTANH CSECH") || difference != 0, valueFailure);
    if (name == "SINH") stack_.Push(difference / 2);
    if (name == "COSH") stack_.Push(sum / 2);
    if (name == "TANH") stack_.Push(difference / sum);
    if (name == "CTANH") stack_.Push(sum / difference);
    if (name == "SECH") stack_.Push(2 / sum);
    if (name == "CSECH") stack_.Push(2 / difference);
}

void LiteralEvaluator::area(std::string_view name, double x) {
    require(!isOneOf(name, "ATANH ACTANH") || x != 1, valueFailure);
    require(!isOneOf(name, "ASECH ACSECH") || x != 0, valueFailure);
    require(!(name == "ACOSH" && x * x - 1 < 0) && !(name == "ASECH" && 1 - x * x < 0), valueFailure);
    double argument = 0;
    if (name == "ASINH") argument = x + std::sqrt(x * x + 1);
    if (name == "ACOSH") argument = x + std::sqrt(x * x - 1);
    if (name == "ATANH") argument = (x + 1) / (1 - x);
    if (name == "ASECH") argument = (std::sqrt(1 - x * x) + 1) / x;
    if (name == "ACSECH") argument = (Sgn(x) * std::sqrt(x * x + 1) + 1) / x;
    if (name == "ACTANH") argument = (x + 1) / (x - 1);
    require(!(argument <= 0), valueFailure);
    const double value = std::log(argument);
    stack_.Push(isOneOf(name, "ATANH ACTANH") ? value / 2 : value);
}

double LiteralEvaluator::popNumber() {
    return std::visit(
        [](const auto& value) -> double {
            if constexpr (std::is_arithmetic_v<std::decay_t<decltype(value)>>)
                return static_cast<double>(value);
            else
                return std::nan("");
        },
        stack_.Pop());
}

}  // namespace tessaplot::tests
