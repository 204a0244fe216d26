#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "expr/compiled_formula.h"
#include "expr/random_sequence.h"

namespace tessaplot::expr {

/// The value that stands for "no value here": graphs leave out a sample with exactly this bit pattern.
inline constexpr double undefinedMarker = 0.12345;

/// What all evaluators of a program share.
struct EvaluatorContext {
    /// With it, most failures of an evaluation are reported and give no value, instead of the undefined marker.
    bool ShowEvalErrors = false;
    /// The one sequence that RND draws from.
    RandomSequence random;
    /// Shows a critical message with its title; may be left empty.
    std::function<void(std::string_view title, std::string_view text)> report;
};

/// The evaluator of formulas: turns a formula into postfix text once, then evaluates that text many times.
class Cls6 {
 public:
    /// The context must outlive the evaluator.
    explicit Cls6(EvaluatorContext& context);

    /// Appends the postfix text of `sExpression` to `sBuffer`, each token followed by one blank. Returns true and sets
    /// `position` to 0 if the formula is good. Otherwise reports "Character N:  message" under the title "Syntax
    /// Error", sets `position` to N and keeps the message. N counts characters from 1 and may be 0 for a fault too; the
    /// tokens that precede the fault are in `sBuffer` by then.
    bool InfixToPostfix(std::string_view sExpression, std::string& sBuffer, std::int32_t& position);

    /// The message of the last `InfixToPostfix`, empty if the formula was good.
    const std::string& syntaxMessage() const { return syntaxMessage_; }

    /// Evaluates the postfix text `sExpression`; with `bolDegree` SIN, COS, TAN, SEC, CSEC, CTAN and ATAN take degrees.
    /// False if the text is empty, and then `sngResult` stays as it is. A failure of an operation gives the undefined
    /// marker, or, if the context asks for it, a message and false. Throws EvaluatorError for a bad token or a missing
    /// operand, Failure (Overflow) for a number beyond the range of a 64-bit float.
    bool DoEvaluate(std::string_view sExpression, bool bolDegree, double& sngResult, const double& sngU,
                    const double& sngV, const double& sngX, const double& sngY, const double& sngA, const double& sngR,
                    const double& sngB, const double& sngT) {
        // Here and not in the source file, because passing so many arguments would cost a tenth of a short formula.
        if (cache_.front()->postfix != sExpression) [[unlikely]]
            bringToFront(sExpression);
        CompiledFormula& formula = cache_.front()->formula;
        formula.assign(sngU, sngV, sngX, sngY, sngA, sngR, sngB, sngT);
        const Outcome outcome = formula.evaluate(bolDegree, context_.random, sngResult);
        return outcome == Outcome::Value || endWithout(outcome, sngResult);
    }

 private:
    struct CachedFormula {
        std::string postfix;
        CompiledFormula formula;
    };

    static std::unique_ptr<CachedFormula> compile(std::string_view postfix);
    /// Puts the compiled form of `postfix` at the front of the cache.
    void bringToFront(std::string_view postfix);
    bool endWithout(Outcome outcome, double& result) const;
    void report(std::string_view title, std::string_view text) const;

    EvaluatorContext& context_;
    std::string syntaxMessage_;
    // Several, because the coordinates of a sample are often formulas evaluated in turn. The first is the last used and
    // always there.
    std::array<std::unique_ptr<CachedFormula>, 4> cache_;
};

}  // namespace tessaplot::expr
