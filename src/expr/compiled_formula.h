#pragma once

#include <string_view>

#include "expr/formula_machine.h"
#include "expr/formula_program.h"
#include "expr/random_sequence.h"

namespace tessaplot::expr {

/// A postfix text made ready for many evaluations, none of which touches text or allocates. An object keeps the values
/// of its last evaluation: give each thread one of its own.
class CompiledFormula {
 public:
    /// Never fails; what is wrong with the text shows at the evaluation, as if the text were read then.
    explicit CompiledFormula(std::string_view postfix);

    /// Sets the variables for the evaluations that follow; only those that the formula names are read.
    void assign(const double& U, const double& V, const double& X, const double& Y, const double& A, const double& R,
                const double& B, const double& T) {
        const std::uint32_t used = program_.usedVariables;
        double* cells = program_.cells.data();
        if (used & 1U) cells[0] = U;
        if (used & 2U) cells[1] = V;
        if (used & 4U) cells[2] = X;
        if (used & 8U) cells[3] = Y;
        if (used & 16U) cells[4] = A;
        if (used & 32U) cells[5] = R;
        if (used & 64U) cells[6] = B;
        if (used & 128U) cells[7] = T;
    }

    /// Evaluates the formula, with `degrees` taking angles in degrees. `result` is written for Outcome::Value only.
    /// Throws EvaluatorError for a bad token and for a missing operand, Failure (Overflow) for a number beyond the
    /// range of a 64-bit float, each if no failure comes before it in the order of the text.
    Outcome evaluate(bool degrees, RandomSequence& random, double& result) {
        const Outcome outcome = runProgram(program_, degrees, random, result);
        if (outcome == Outcome::Empty) [[unlikely]]
            throwUnlessEmpty();
        return outcome;
    }

 private:
    void throwUnlessEmpty() const;

    Program program_;
};

}  // namespace tessaplot::expr
