#include <bit>
#include <cmath>
#include <cstdint>
#include <string>

#include "base/failure.h"
#include "expr/evaluator.h"
#include "expr/literal_evaluator.h"
#include "fuzz/property.h"
#include "fuzz/targets.h"

namespace tessaplot::fuzz {

namespace {

constexpr tests::LiteralEvaluator::Variables values{0.5, -1.25, 3, 0.12345, 1e-3, 90, -2, 7};

/// What an evaluation gave, told to the bit.
template <class Evaluate>
std::string outcomeOf(Evaluate evaluate) {
    double result = -99;
    std::string text;
    try {
        text = evaluate(result) ? "a value " : "no value ";
    } catch (const base::Failure& failure) {
        text = failure.what();
    }
    return text + (std::isnan(result) ? "nan" : std::to_string(std::bit_cast<std::uint64_t>(result)));
}

/// The compiled form and the plain one give the same, for the same random numbers.
void evaluate(const std::string& postfix, bool degrees, bool showErrors) {
    std::string message;
    expr::EvaluatorContext context;
    context.ShowEvalErrors = showErrors;
    context.report = [&](std::string_view, std::string_view text) { message = text; };
    expr::Cls6 evaluator(context);
    expr::RandomSequence random;
    tests::LiteralEvaluator literal(showErrors, random);
    const auto& v = values;
    const std::string compiled = outcomeOf([&](double& result) {
        return evaluator.DoEvaluate(postfix, degrees, result, v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7]);
    });
    const std::string plain = outcomeOf([&](double& result) { return literal.evaluate(postfix, degrees, result, v); });
    require(compiled == plain, "compiled gives \"" + compiled + "\" and plain \"" + plain + "\"");
    require(message == literal.message(), "the messages are the same");
}

}  // namespace

void formula(std::string_view bytes) {
    expr::EvaluatorContext silent;
    expr::Cls6 scanner(silent);
    std::string postfix;
    std::int32_t position = 0;
    const bool good = scanner.InfixToPostfix(bytes, postfix, position);
    require(good == scanner.syntaxMessage().empty(), "a formula is good or has a message");
    for (const bool degrees : {false, true}) {
        evaluate(postfix, degrees, degrees);
        evaluate(std::string(bytes), degrees, !degrees);
    }
}

}  // namespace tessaplot::fuzz
