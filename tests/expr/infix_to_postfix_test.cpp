#include <string>

#include <gtest/gtest.h>

#include "expr/evaluator.h"

namespace tessaplot::expr {
namespace {

/// The postfix text, or the position and the message of the fault.
std::string scanned(const std::string& formula) {
    std::string box;
    std::string postfix;
    std::int32_t position = -1;
    EvaluatorContext context;
    context.report = [&](std::string_view title, std::string_view text) {
        box = std::string(title) + "|" + std::string(text);
    };
    Cls6 evaluator(context);
    const bool good = evaluator.InfixToPostfix(formula, postfix, position);
    const std::string message = evaluator.syntaxMessage();
    const std::string place = std::to_string(position);
    EXPECT_EQ(box, good ? "" : "Syntax Error|Character " + place + ":  " + message);
    EXPECT_TRUE(good == message.empty() && (!good || position == 0)) << formula.substr(0, 100);
    return good ? postfix : place + " " + message;
}

TEST(InfixToPostfix, isWrittenAsPrioritiesSignsAndFunctionsSay) {
    const std::pair<const char*, const char*> formulas[] = {
        {"1+2*3-4", "1 2 3 * + 4 - "},
        {"2^3^2", "2 3 ^ 2 ^ "},
        {"8/4/2*(1-(2-3))", "8 4 / 2 / 1 2 3 - - * "},
        {"sin(x)^2+Cos(u)*t", "XX SIN 2 ^ UU COS TT * + "},
        {"V+A-R*b/y", "VV AA + RR BB * YY / - "},
        {"\t1,5 +\n.5 ", "1,5 .5 + "},
        {"", ""},
        {" \r\n", ""},
        // A sign where no sign and no additive operator stands.
        {"-2^2", "2 2 ^ (-) "},
        {"2*-3", "2 3 (-) * "},
        {"2^-3^2", "2 3 2 ^ (-) ^ "},
        {"-X*Y", "XX (-) YY * "},
        {"+3", "3 "},
        {"-(-3)", "3 (-) (-) "},
        {"SIN -X", "XX (-) SIN "},
        // An operand's name after a function's.
        {"SIN X", "XX SIN "},
        {"SIN COS X + 1", "XX COS SIN 1 + "},
        // ASECH waits for all that follows in its group.
        {"ASECH(X)+1", "XX 1 + ASECH "},
        {"2*(ASECH(X)*3)+1", "2 XX 3 * ASECH * 1 + "},
        {"ACSECH(X)+1", "XX ACSECH 1 + "},
    };
    for (const auto& [formula, postfix] : formulas)
        EXPECT_EQ(scanned(formula), postfix) << formula;
}

TEST(InfixToPostfix, reportsEveryFaultAtItsRunningPosition) {
    const std::pair<const char*, const char*> faults[] = {
        {"2+-3", "2 Operand expected"},
        {"2--3", "2 Operand expected"},
        {"--3", "1 Operand expected"},
        {"-+3", "1 Operand expected"},
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
        EXPECT_EQ(scanned(formula), fault) << formula;
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
    EXPECT_EQ(scanned(std::string(depth, '(')), "100000 Closing parenthesis expected");
    EXPECT_EQ(scanned(std::string(depth, '(') + "X" + std::string(depth, ')')), "XX ");
    EXPECT_EQ(scanned(std::string(1 << 20, 'a')).substr(0, 20), "0 Undefined symbol :");
}

}  // namespace
}  // namespace tessaplot::expr
