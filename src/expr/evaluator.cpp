#include "expr/evaluator.h"

#include <algorithm>
#include <bit>

#include "expr/infix_scanner.h"

namespace tessaplot::expr {

static_assert(std::bit_cast<std::uint64_t>(undefinedMarker) == 0x3FBF9A6B50B0F27C);

namespace {

/// What a person is told of a failure, empty for one that is never told.
std::string_view textOf(Outcome outcome) {
    switch (outcome) {
        case Outcome::DivisionFailure:
            return "Devision by zero.";
        case Outcome::IllegalFailure:
            return "The expression is illegal.";
        case Outcome::SquareRootFailure:
            return "The parameter of function SQR must larger than or equal to 0.";
        case Outcome::LogarithmFailure:
            return "The parameter of function LOG must larger than 0.";
        case Outcome::PowerFailure:
            return "A^B, B must be a long if A is negative.";
        default:
            return {};
    }
}

}  // namespace

Cls6::Cls6(EvaluatorContext& context) : context_(context) {
    cache_.front() = compile({});
}

bool Cls6::InfixToPostfix(std::string_view sExpression, std::string& sBuffer, std::int32_t& position) {
    InfixScanner scanner(sExpression, sBuffer);
    const bool good = scanner.scan();
    syntaxMessage_ = scanner.message();
    position = scanner.position();
    if (!good) report("Syntax Error", "Character " + std::to_string(position) + ":  " + syntaxMessage_);
    return good;
}

std::unique_ptr<Cls6::CachedFormula> Cls6::compile(std::string_view postfix) {
    return std::make_unique<CachedFormula>(CachedFormula{std::string(postfix), CompiledFormula(postfix)});
}

void Cls6::bringToFront(std::string_view postfix) {
    auto entry = std::find_if(cache_.begin(), cache_.end(),
                              [&](const auto& cached) { return cached && cached->postfix == postfix; });
    if (entry == cache_.end()) {
        --entry;
        *entry = compile(postfix);
    }
    std::rotate(cache_.begin(), entry, entry + 1);
}

bool Cls6::endWithout(Outcome outcome, double& result) const {
    if (outcome == Outcome::Empty) return false;
    if (context_.ShowEvalErrors && outcome != Outcome::ValueFailure) {
        report("Error", textOf(outcome));
        return false;
    }
    result = undefinedMarker;
    return true;
}

void Cls6::report(std::string_view title, std::string_view text) const {
    if (context_.report) context_.report(title, text);
}

}  // namespace tessaplot::expr
