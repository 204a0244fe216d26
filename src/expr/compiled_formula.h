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

    /// Sets the variables for the evaluations that follow.
    void assign(double U, double V, double X, double Y, double A, double R, double B, double T) {
        double* cells = program_.cells.data();
        cells[0] = U;
        cells[1] = V;
        cells[2] = X;
        cells[3] = Y;
        cells[4] = A;
        cells[5] = R;
        cells[6] = B;
        cells[7] = T;
    }

    /// Evaluates the formula, with `degrees` taking angles in degrees. `result` is written for Outcome::Value only.
    /// Throws EvaluatorError for a bad token and for a missing operand, Failure (Overflow) for a number beyond the
    /// range of a 64-bit float, each if no failure comes before it in the order of the text.
    Outcome evaluate(bool degrees, RandomSequence& random, double& result) {
        const RunResult ended = runProgram(program_, degrees, random);
        if (ended.outcome == Outcome::Value) [[likely]]
            result = ended.value;
        else if (ended.outcome == Outcome::Empty)
            throwUnlessEmpty();
        return ended.outcome;
    }

 private:
    void throwUnlessEmpty() const;

    Program program_;
};

}  // namespace tessaplot::expr
