#pragma once

#include "expr/formula_program.h"
#include "expr/random_sequence.h"

namespace tessaplot::expr {

/// How a run of a program ended.
struct RunResult {
    /// 0 unless the outcome is a value.
    double value = 0;
    /// Outcome::Empty says that the program ends without a value, anything but a value is the first failure on the way.
    Outcome outcome = Outcome::Empty;
};

/// Makes a program ready to run.
void linkProgram(Program& program);

/// Carries out the instructions of a linked program whose cells hold the values of the variables by now.
RunResult runProgram(Program& program, bool degrees, RandomSequence& random);

}  // namespace tessaplot::expr
