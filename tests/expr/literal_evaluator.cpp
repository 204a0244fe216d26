#include "expr/literal_evaluator.h"

#include <cmath>
#include <cstdlib>

#include "expr/evaluator_error.h"

namespace tessaplot::tests {

namespace {

/// A failure: the text of its message, empty for the one that is never shown.
struct Fail {
    const char* text;
};
constexpr Fail silent{""};
constexpr Fail division{"Devision by zero."};
constexpr Fail illegal{"The expression is illegal."};
constexpr Fail squareRoot{"The parameter of function SQR must larger than or equal to 0."};
constexpr Fail logarithm{"The parameter of function LOG must larger than 0."};
constexpr Fail wholePower{"A^B, B must be a long if A is negative."};

constexpr std::string_view functions =
    " SIN COS TAN SEC CSEC CTAN ATAN LOG EXP ABS INT SQR RND (-) ASIN ACOS ASEC ACSEC ACTAN SINH COSH TANH CTANH SECH "
    "CSECH ASINH ACOSH ATANH ASECH ACSECH ACTANH ";
constexpr double pi = 3.1416;
const double q = std::atan(1.0);

int Sgn(double x) {
    return x > 0 ? 1 : x < 0 ? -1 : 0;
}

double valueIf(bool holds, Fail failure, double value) {
    if (!holds) throw failure;
    return value;
}

double inverseOf(double x) {
    return valueIf(x != 0, division, 1 / x);
}

double logOf(bool holds, double x) {
    return valueIf(holds && !(x <= 0), silent, std::log(x));
}

double powerOf(double a, double b) {
    if (b == 0) return 1;
    return valueIf(a >= 0 || (a < 0 && b == std::floor(b)), wholePower, std::pow(a, b));
}

double numberPrefix(std::string_view token) {
    std::string digits;
    for (const char c : token) {
        if (!((c >= '0' && c <= '9') || (c == '.' && digits.find('.') == std::string::npos))) break;
        digits += c;
    }
    return std::strtod(digits.c_str(), nullptr);
}

}  // namespace

bool LiteralEvaluator::evaluate(std::string_view postfix, bool degrees, double& result, const Variables& variables) {
    degrees_ = degrees;
    stack_.clear();
    message_.clear();
    try {
        while (!postfix.empty()) {
            const std::size_t blank = postfix.find(' ');
            stack_.push_back(valueOf(postfix.substr(0, blank), variables));
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
    if (stack_.empty()) return false;
    result = pop();
    return true;
}

double LiteralEvaluator::valueOf(std::string_view token, const Variables& variables) {
    constexpr std::string_view names = "UVXYARBT";
    const auto startsWithOneOf = [&](std::string_view list) {
        return !token.empty() && list.find(token[0]) != std::string_view::npos;
    };
    if (startsWithOneOf("1234567890.,")) return numberPrefix(token);
    if (token.size() == 2 && token[0] == token[1] && startsWithOneOf(names)) return variables[names.find(token[0])];
    if (token.size() == 1 && startsWithOneOf("+-*/^")) {
        const double b = pop();
        const double a = pop();
        if (token == "+") return a + b;
        if (token == "-") return a - b;
        if (token == "*") return a * b;
        if (token == "/") return valueIf(b != 0, division, a / b);
        return powerOf(a, b);
    }
    if (functions.find(" " + std::string(token) + " ") == std::string_view::npos)
        throw expr::EvaluatorError(expr::badTokenNumber, "Bad token in Evaluate: " + std::string(token));
    return function(token, pop());
}

double LiteralEvaluator::function(std::string_view name, double x) {
    const double angle = degrees_ ? x * pi / 180 : x;
    const double sum = std::exp(x) + std::exp(-x);
    const double difference = std::exp(x) - std::exp(-x);
    const double above = x * x - 1;
    const double below = 1 - x * x;
    if (name == "(-)") return -x;
    if (name == "LOG") return valueIf(!(x <= 0), logarithm, std::log(x));
    if (name == "EXP") return std::exp(x);
    if (name == "ABS") return std::fabs(x);
    if (name == "INT") return std::floor(x);
    if (name == "SQR") return valueIf(!(x < 0), squareRoot, std::sqrt(x));
    if (name == "RND") return random_.next();
    if (name == "SIN") return std::sin(angle);
    if (name == "COS") return std::cos(angle);
    if (name == "TAN") return std::tan(angle);
    if (name == "SEC") return inverseOf(std::cos(angle));
    if (name == "CSEC") return inverseOf(std::sin(angle));
    if (name == "CTAN") return inverseOf(std::tan(angle));
    if (name == "ATAN") return std::atan(angle);
    if (name == "ACTAN") return std::atan(x) + 2 * q;
    if (name == "ASIN" && std::fabs(x) == 1) return x * pi / 2;
    if (name == "ASIN") return valueIf(!(below < 0), illegal, std::atan(x / std::sqrt(below)));
    if (name == "ACOS" && std::fabs(x) == 1) return x == 1 ? 0 : pi;
    if (name == "ACOS") return valueIf(!(below < 0), illegal, std::atan(-x / std::sqrt(below)) + 2 * q);
    const double secant = std::atan(x / std::sqrt(above));
    if (name == "ASEC") return valueIf(!(above <= 0), illegal, secant + Sgn(x - 1) * 2 * q);
    if (name == "ACSEC") return valueIf(!(above <= 0), illegal, secant + (Sgn(x) - 1) * 2 * q);
    if (name == "SINH") return difference / 2;
    if (name == "COSH") return sum / 2;
    if (name == "TANH") return difference / sum;
    if (name == "CTANH") return valueIf(difference != 0, silent, sum / difference);
    if (name == "SECH") return 2 / sum;
    if (name == "CSECH") return valueIf(difference != 0, silent, 2 / difference);
    if (name == "ASINH") return logOf(true, x + std::sqrt(x * x + 1));
    if (name == "ACOSH") return logOf(!(above < 0), x + std::sqrt(above));
    if (name == "ATANH") return logOf(x != 1, (x + 1) / (1 - x)) / 2;
    if (name == "ASECH") return logOf(x != 0 && !(below < 0), (std::sqrt(below) + 1) / x);
    if (name == "ACSECH") return logOf(x != 0, (Sgn(x) * std::sqrt(x * x + 1) + 1) / x);
    return logOf(x != 1, (x + 1) / (x - 1)) / 2;  // ACTANH
}

double LiteralEvaluator::pop() {
    if (stack_.empty()) throw expr::EvaluatorError(expr::popOnEmptyNumber, expr::popOnEmptyText);
    const double top = stack_.back();
    stack_.pop_back();
    return top;
}

}  // namespace tessaplot::tests
