#include <string>

#include <gtest/gtest.h>

#include "expr/evaluator.h"

namespace tessaplot::expr {
namespace {

struct Scan {
    std::string postfix;
    std::int32_t position = -1;
    std::string message;
    std::string box;
};

Scan scan(const std::string& formula) {
    Scan result;
    EvaluatorContext context;
    context.report = [&](std::string_view title, std::string_view text) {
        result.box = std::string(title) + "|" + std::string(text);
    };
    Cls6 evaluator(context);
    const bool good = evaluator.InfixToPostfix(formula, result.postfix, result.position);
    result.message = evaluator.syntaxMessage();
    EXPECT_EQ(good, result.message.empty());
    return result;
}

std::string postfixOf(const std::string& formula) {
    const Scan result = scan(formula);
    EXPECT_EQ(result.message, "") << formula;
    EXPECT_EQ(result.box, "") << formula;
    EXPECT_EQ(result.position, 0) << formula;
    return result.postfix;
}

std::string faultOf(const std::string& formula) {
    const Scan result = scan(formula);
    const std::string shown = "Character " + std::to_string(result.position) + ":  " + result.message;
    EXPECT_EQ(result.box, "Syntax Error|" + shown) << formula;
    return std::to_string(result.position) + " " + result.message;
}

TEST(InfixToPostfix, groupsByPriorityAndToTheLeft) {
    EXPECT_EQ(postfixOf("1+2*3-4"), "1 2 3 * + 4 - ");
    EXPECT_EQ(postfixOf("2^3^2"), "2 3 ^ 2 ^ ");
    EXPECT_EQ(postfixOf("8/4/2*(1-(2-3))"), "8 4 / 2 / 1 2 3 - - * ");
    EXPECT_EQ(postfixOf("sin(x)^2+Cos(u)*t"), "XX SIN 2 ^ UU COS TT * + ");
    EXPECT_EQ(postfixOf("V+A-R*b/y"), "VV AA + RR BB * YY / - ");
    EXPECT_EQ(postfixOf("\t1,5 +\n.5 "), "1,5 .5 + ");
    EXPECT_EQ(postfixOf(""), "");
    EXPECT_EQ(postfixOf(" \r\n"), "");
}

TEST(InfixToPostfix, takesASignWhereNoSignOrAdditiveOperatorStands) {
    EXPECT_EQ(postfixOf("-2^2"), "2 2 ^ (-) ");
    EXPECT_EQ(postfixOf("2*-3"), "2 3 (-) * ");
    EXPECT_EQ(postfixOf("2^-3^2"), "2 3 2 ^ (-) ^ ");
    EXPECT_EQ(postfixOf("-X*Y"), "XX (-) YY * ");
    EXPECT_EQ(postfixOf("+3"), "3 ");
    EXPECT_EQ(postfixOf("-(-3)"), "3 (-) (-) ");
    EXPECT_EQ(postfixOf("SIN -X"), "XX (-) SIN ");
    for (const char* formula : {"2+-3", "2--3"})
        EXPECT_EQ(faultOf(formula), "2 Operand expected") << formula;
    for (const char* formula : {"--3", "-+3"})
        EXPECT_EQ(faultOf(formula), "1 Operand expected") << formula;
}

TEST(InfixToPostfix, takesAnOperandNameAfterAFunctionName) {
    EXPECT_EQ(postfixOf("SIN X"), "XX SIN ");
    EXPECT_EQ(postfixOf("SIN COS X + 1"), "XX COS SIN 1 + ");
}

TEST(InfixToPostfix, leavesAsechWaitingForAllThatFollowsInItsGroup) {
    EXPECT_EQ(postfixOf("ASECH(X)+1"), "XX 1 + ASECH ");
    EXPECT_EQ(postfixOf("2*(ASECH(X)*3)+1"), "2 XX 3 * ASECH * 1 + ");
    EXPECT_EQ(postfixOf("ACSECH(X)+1"), "XX ACSECH 1 + ");
}

TEST(InfixToPostfix, reportsEveryFaultAtItsRunningPosition) {
    const std::pair<const char*, const char*> faults[] = {
        {"X Y", "2 Operator expected"},
        {"X1", "0 Operator expected"},
        {"1 2", "0 Operator expected"},
        {"12 (3)", "1 Operator expected"},
        {"1e5", "1 Operator expected"},
        {"(X)SIN(X)", "3 Operator expected"},
        {")", "1 Operand expected"},
        {"()", "1 Operand expected"},
        {"*2", "1 Operand expected"},
        {"1+*2", "2 Operand expected"},
        {"SIN*2", "0 Operand expected"},
        {"SIN", "3 Operand expected"},
        {"1 + ", "4 Operand expected"},
        {"2*", "2 Operand expected"},
        {"(1+2", "4 Closing parenthesis expected"},
        {"((", "2 Closing parenthesis expected"},
        {"(1))", "3 Closing parenthesis without matching open parenthesis"},
        {"1.2.3", "1 Operand contains multiple decimal points"},
        {"X+1,2.3", "2 Operand contains multiple decimal points"},
        {"2*.", "2 Invalid operand"},
        {",", "1 Invalid operand"},
        {"SIN 2", "0 Open parenthesis expected"},
        {"foo", "0 Undefined symbol : 'FOO'"},
        {"1+x_y", "2 Undefined symbol : 'X_Y'"},
        {"2*#", "2 Unexpected character encountered"},
        {"\xC3\xA4+1", "1 Unexpected character encountered"},
        {"X+s\xC3\xAFn(X)", "2 Undefined symbol : 'S'"},
        {"1\xC2\xA0+1", "0 Unexpected character encountered"},
    };
    for (const auto& [formula, fault] : faults)
        EXPECT_EQ(faultOf(formula), fault) << formula;
}

TEST(InfixToPostfix, appendsToTheTextAndForgetsAnEarlierFault) {
    EvaluatorContext context;
    Cls6 evaluator(context);
    std::string postfix = "1 ";
    std::int32_t position = -1;
    EXPECT_FALSE(evaluator.InfixToPostfix("(2*(X 3", postfix, position));
    EXPECT_EQ(postfix, "1 2 XX ");
    EXPECT_TRUE(evaluator.InfixToPostfix("4-5", postfix, position));
    EXPECT_EQ(postfix, "1 2 XX 4 5 - ");
    EXPECT_EQ(position, 0);
    EXPECT_EQ(evaluator.syntaxMessage(), "");
}

TEST(InfixToPostfix, readsHugeFormulasInOnePass) {
    const std::size_t depth = 100000;
    EXPECT_EQ(scan(std::string(depth, '(')).message, "Closing parenthesis expected");
    EXPECT_EQ(postfixOf(std::string(depth, '(') + "X" + std::string(depth, ')')), "XX ");
    EXPECT_EQ(scan(std::string(1 << 20, 'a')).position, 0);

    std::string formula = "X";
    while (formula.size() < (1 << 20))
        formula += "*-X^2";
    EXPECT_GT(postfixOf(formula).size(), formula.size());
}

}  // namespace
}  // namespace tessaplot::expr
