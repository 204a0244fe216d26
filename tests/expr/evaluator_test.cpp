#include "expr/evaluator.h"

#include <bit>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "expr/evaluator_error.h"

namespace tessaplot::expr {
namespace {

/// An evaluator with its context and its latest result.
struct Bench {
    EvaluatorContext context;
    Cls6 evaluator{context};
    double result = -99;

    bool evaluate(const std::string& postfix, bool degrees = false, double x = 0, double y = 0) {
        return evaluator.DoEvaluate(postfix, degrees, result, 1, 2, x, y, 5, 6, 7, 8);
    }

    double value(const std::string& formula, bool degrees = false, double x = 0) {
        std::string postfix;
        std::int32_t position = -1;
        EXPECT_TRUE(evaluator.InfixToPostfix(formula, postfix, position)) << formula;
        EXPECT_TRUE(evaluate(postfix, degrees, x)) << formula;
        return result;
    }
};

bool isMarker(double value) {
    return std::bit_cast<std::uint64_t>(value) == 0x3FBF9A6B50B0F27C;
}

TEST(Evaluator, evaluatesTheOddCasesOfItsNotation) {
    Bench bench;
    EXPECT_EQ(bench.value("-2^2"), -4);
    EXPECT_EQ(bench.value("1,5+2."), 3);
    EXPECT_EQ(bench.value("SIN(X)", true, 90), std::sin(90 * 3.1416 / 180));
    EXPECT_EQ(bench.value("asech(x)*2", false, 0.25), std::log((std::sqrt(1 - 0.25) + 1) / 0.5));
    EXPECT_EQ(bench.value("U+10*V+100*A+1000*R+10000*B+100000*T"), 876521);
    EXPECT_TRUE(bench.evaluate("1e5 2.5.1 + 0x1 +"));
    EXPECT_EQ(bench.result, 3.5);
}

TEST(Evaluator, refusesWhatIsNoPostfixTextButNotBeforeItGetsThere) {
    Bench bench;
    EXPECT_FALSE(bench.evaluate(""));
    const auto failureOf = [&](const std::string& postfix) -> std::string {
        try {
            bench.evaluate(postfix);
            return "none";
        } catch (const EvaluatorError& error) {
            return std::to_string(error.number() & 0xFFFFU) + " " + error.what();
        } catch (const base::Failure& failure) {
            return failure.code() == base::FailureCode::Overflow ? "overflow" : failure.what();
        }
    };
    EXPECT_EQ(failureOf("1 sin "), "1002 Bad token in Evaluate: sin");
    EXPECT_EQ(failureOf("1  2 "), "1002 Bad token in Evaluate: ");
    EXPECT_EQ(failureOf("1 + "), "1011 Pop method invoked on empty stack");
    EXPECT_EQ(failureOf(std::string(400, '9') + " "), "overflow");
    EXPECT_EQ(bench.result, -99);
    EXPECT_EQ(failureOf("1 0 / ) "), "none");
    EXPECT_TRUE(isMarker(bench.result));
}

TEST(Evaluator, followsTheTextAndTheVariablesOfEachCall) {
    Bench bench;
    const std::vector<std::string> formulas = {"XX 1 + ", "XX 2 + ", "XX 3 * ", "XX (-) ", "XX ABS ", "YY "};
    for (int round = 0; round < 3; ++round)
        for (const double x : {-2.0, 0.5})
            for (const std::string& formula : formulas) {
                const double expected[] = {x + 1, x + 2, x * 3, -x, std::fabs(x), 9};
                EXPECT_TRUE(bench.evaluate(formula, false, x, 9));
                EXPECT_EQ(bench.result, expected[&formula - formulas.data()]) << formula;
            }
    std::string changing = "XX 1 + ";
    bench.evaluate(changing);
    changing[3] = '4';
    bench.evaluate(changing);
    EXPECT_EQ(bench.result, 4);
    // The result may go to a variable of the same call.
    double x = 3;
    EXPECT_TRUE(bench.evaluator.DoEvaluate("XX XX * XX +", false, x, 0, 0, x, 0, 0, 0, 0, 0));
    EXPECT_EQ(x, 12);
}

TEST(Evaluator, drawsRandomNumbersFromOneSequence) {
    Bench bench;
    Cls6 other(bench.context);
    RandomSequence same;
    double sum = 0;
    for (int i = 0; i < 1000; ++i) {
        EXPECT_EQ(bench.value("RND(5)"), static_cast<double>(same.next()));
        double second = 0;
        EXPECT_TRUE(other.DoEvaluate("0 RND ", false, second, 0, 0, 0, 0, 0, 0, 0, 0));
        EXPECT_EQ(second, static_cast<double>(same.next()));
        EXPECT_TRUE(second >= 0 && second < 1);
        sum += second;
    }
    EXPECT_NEAR(sum / 1000, 0.5, 0.05);
}

TEST(Evaluator, evaluatesHugeFormulas) {
    Bench bench;
    std::string formula = "X";
    while (formula.size() < (1 << 20))
        formula += "+X/X";
    const std::size_t terms = formula.size() / 4;
    EXPECT_EQ(bench.value(formula, false, 3), 3 + static_cast<double>(terms));
    EXPECT_THROW(bench.value(std::string(1 << 20, '7')), base::Failure);
    EXPECT_EQ(bench.value("0." + std::string(1 << 20, '3')), 1 / 3.0);
}

}  // namespace
}  // namespace tessaplot::expr
