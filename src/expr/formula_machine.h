#pragma once

#include "expr/formula_program.h"
#include "expr/random_sequence.h"

namespace tessaplot::expr {

/// Carries out the instructions of a program whose cells hold the values of the variables by now. `value` is written
/// for Outcome::Value only; Outcome::Empty says that the program ends without a value, anything else is the first
/// failure on the way.
Outcome runProgram(Program& program, bool degrees, RandomSequence& random, double& value);

}  // namespace tessaplot::expr
