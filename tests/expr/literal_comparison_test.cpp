#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "expr/evaluator.h"
#include "expr/evaluator_error.h"
#include "expr/formula_math.h"
#include "expr/literal_evaluator.h"

namespace tessaplot::expr {
namespace {

const std::vector<std::string> functions = {"SIN",   "COS",   "TAN",   "SEC",   "CSEC",   "CTAN",  "ATAN", "LOG",
                                            "EXP",   "ABS",   "INT",   "RND",   "SQR",    "ASIN",  "ACOS", "ASEC",
                                            "ACSEC", "ACTAN", "SINH",  "COSH",  "TANH",   "CTANH", "SECH", "CSECH",
                                            "ASINH", "ACOSH", "ATANH", "ASECH", "ACSECH", "ACTANH"};
const std::vector<std::string> numbers = {"0",    "1", "2", "3", "0.5", ",5", "1.2.3", "10", "180", "0.3333333333",
                                          "1000", "."};
const std::vector<std::string> variables = {"U", "V", "X", "Y", "A", "R", "B", "T"};

/// Makes formulas, and texts that are none.
class FormulaMaker {
 public:
    explicit FormulaMaker(unsigned seed) : random_(seed) {}

    std::size_t below(std::size_t count) { return random_() % count; }

    const std::string& oneOf(const std::vector<std::string>& list) { return list[below(list.size())]; }

    /// A good formula, parts of which occur more than once.
    std::string infix(int depth = deepest) {
        if (depth == deepest) remembered_.clear();
        if (depth > 0 && depth < 4 && below(3) == 0 && !remembered_.empty()) return "(" + remembered_ + ")";
        std::string formula = newInfix(depth);
        if (depth > 0 && depth < 4 && below(3) == 0) remembered_ = formula;
        return formula;
    }

    /// A postfix text that is right most of the time.
    std::string postfix() {
        std::string text;
        std::size_t depth = 0;
        for (std::size_t count = 1 + below(14); count > 0; --count) {
            if (below(60) == 0) {
                text += oneOf({"+", "SIN", "", "sin", "XY", "(", "9999", "^"}) + " ";
            } else if (depth < 2 || below(5) < 2) {
                text += (below(2) ? twice(oneOf(variables)) : oneOf(numbers)) + " ";
                ++depth;
            } else if (below(2)) {
                text += (below(8) ? oneOf(functions) : "(-)") + " ";
            } else {
                text += std::string(1, "+-*/^"[below(5)]) + " ";
                --depth;
            }
        }
        if (below(10) == 0) text.pop_back();
        return text;
    }

    /// Any characters, most of them such as formulas have.
    std::string anyText() {
        std::string text;
        for (std::size_t count = below(12); count > 0; --count) {
            if (below(20) == 0)
                text += static_cast<char>(random_());
            else
                text += below(3)   ? std::string(1, "()+-*/^.,1 "[below(11)])
                        : below(2) ? oneOf(variables)
                                   : oneOf(functions);
        }
        return text;
    }

    double value() {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        constexpr double nan = std::numeric_limits<double>::quiet_NaN();
        constexpr double special[] = {0,  -0.0,   1,     -1,     2,   -2,      0.5,      -8, 90,
                                      45, 1e-300, 1e300, -1e300, 710, 0.12345, infinity, nan};
        if (below(3) == 0) return special[below(std::size(special))];
        return std::uniform_real_distribution<double>(-4, 4)(random_);
    }

 private:
    static std::string twice(const std::string& name) { return name + name; }

    std::string newInfix(int depth) {
        const std::size_t kind = depth == 0 ? below(2) : below(8);
        if (kind == 0) return oneOf(variables);
        if (kind == 1) return numbers[below(6)];
        if (kind == 2) return "(-" + infix(depth - 1) + ")";
        if (kind == 3) return oneOf(functions) + "(" + infix(depth - 1) + ")";
        if (kind == 4) return "(" + infix(depth - 1) + ")^" + (below(2) ? "2" : infix(0));
        const std::string left = "(" + infix(depth - 1) + ")";
        return left + "+-*/"[below(4)] + infix(depth - 1);
    }

    static constexpr int deepest = 5;
    std::string remembered_;
    std::mt19937 random_;
};

/// What an evaluation gave, as a text that tells every bit.
template <class Evaluate>
std::string outcomeOf(Evaluate evaluate) {
    double result = -99;
    std::string text;
    try {
        text = evaluate(result) ? "true " : "false ";
    } catch (const EvaluatorError& error) {
        text = std::to_string(error.number()) + " " + error.what();
    }
    const std::string bits = std::isnan(result) ? "nan" : std::to_string(std::bit_cast<std::uint64_t>(result));
    return text + bits + " ";
}

/// Holds both evaluators against each other, on the same random numbers.
class Comparison {
 public:
    Comparison() {
        context_.report = [this](std::string_view title, std::string_view text) {
            EXPECT_EQ(title, "Error");
            message_ = text;
        };
    }

    /// Returns what both gave; they have to agree.
    std::string evaluate(const std::string& postfix, bool degrees, bool showErrors,
                         const tests::LiteralEvaluator::Variables& v) {
        context_.ShowEvalErrors = showErrors;
        message_.clear();
        tests::LiteralEvaluator literal(showErrors, random_);
        const std::string plain =
            outcomeOf([&](double& result) { return literal.evaluate(postfix, degrees, result, v); });
        const std::string compiled = outcomeOf([&](double& result) {
            return evaluator_.DoEvaluate(postfix, degrees, result, v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7]);
        });
        EXPECT_EQ(compiled + message_, plain + literal.message()) << postfix << (degrees ? "in degrees" : "");
        return compiled;
    }

 private:
    EvaluatorContext context_;
    RandomSequence random_;
    Cls6 evaluator_{context_};
    std::string message_;
};

TEST(LiteralComparison, aCompiledFormulaGivesTheBitsAndTheFailuresOfTheText) {
    FormulaMaker maker(1);
    Comparison comparison;
    EvaluatorContext silent;
    Cls6 scanner(silent);
    std::size_t values = 0;
    std::size_t refusals = 0;
    for (int count = 0; count < 20000 && !testing::Test::HasFailure(); ++count) {
        std::string postfix;
        std::int32_t position = 0;
        if (count % 2)
            ASSERT_TRUE(scanner.InfixToPostfix(maker.infix(), postfix, position)) << scanner.syntaxMessage();
        else
            postfix = maker.postfix();
        for (int sample = 0; sample < 5; ++sample) {
            tests::LiteralEvaluator::Variables v;
            for (double& value : v)
                value = maker.value();
            const std::string outcome = comparison.evaluate(postfix, maker.below(2) == 0, maker.below(4) == 0, v);
            values += outcome.starts_with("true") ? 1 : 0;
            refusals += outcome.starts_with("2147") ? 1 : 0;
        }
    }
    EXPECT_GT(values, 30000U);
    EXPECT_GT(refusals, 300U);
}

TEST(LiteralComparison, everyFunctionAgreesAtItsLimits) {
    Comparison comparison;
    const double next = std::nextafter(1.0, 2.0);
    const double before = std::nextafter(1.0, 0.0);
    for (const std::string& function : functions)
        for (const double x : {0.0, -0.0, 1.0, -1.0, next, -next, before, -before, 2.0, -2.0, 1e-300, -1e-300, 1e200,
                               -1e200, 800.0, -800.0})
            for (const int flags : {0, 1, 2, 3})
                comparison.evaluate("XX " + function + " ", (flags & 1) != 0, (flags & 2) != 0,
                                    {0, 0, x, 0, 0, 0, 0, 0});
}

TEST(LiteralComparison, whatTheScannerAcceptsNeverLacksAnOperand) {
    FormulaMaker maker(2);
    EvaluatorContext context;
    Cls6 evaluator(context);
    int accepted = 0;
    for (int count = 0; count < 100000; ++count) {
        const std::string text = maker.anyText();
        std::string postfix;
        std::int32_t position = 0;
        double result = 0;
        if (!evaluator.InfixToPostfix(text, postfix, position)) continue;
        ++accepted;
        EXPECT_NO_THROW(
            EXPECT_EQ(evaluator.DoEvaluate(postfix, false, result, 1, 2, 3, 4, 5, 6, 7, 8), !postfix.empty()))
            << text;
    }
    EXPECT_GT(accepted, 5000);
}

TEST(LiteralComparison, aSquareIsThePowerOfTheCLibrary) {
    std::mt19937_64 random(3);
    std::size_t hard = 0;
    for (int count = 0; count < 3000000; ++count) {
        // Any mantissa, and exponents on both sides of the range in which a product decides.
        const std::uint64_t exponent = count % 4 ? 1023 - 40 + random() % 80 : random() % 2047;
        const double base = std::bit_cast<double>((random() >> 12) | exponent << 52);
        double result = 0;
        ASSERT_EQ(square(base, result), Outcome::Value);
        volatile double two = 2;
        const double expected = std::pow(base, two);
        ASSERT_EQ(result, expected) << base;
        hard += expected != base * base ? 1 : 0;
    }
    EXPECT_GT(hard, 100U);
}

}  // namespace
}  // namespace tessaplot::expr
