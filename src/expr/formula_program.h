#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "expr/operations.h"

namespace tessaplot::expr {

/// The instructions of the formula machine, which has one accumulator, where every result goes, and a table of cells.
/// The suffix tells where the operands are, the left one first: A in the accumulator, C in a cell.
enum class Code : std::uint32_t {
#define TESSAPLOT_EXPR_BINARY(name, text) name##AC, name##CA, name##CC,
    TESSAPLOT_EXPR_BINARIES(TESSAPLOT_EXPR_BINARY)
#undef TESSAPLOT_EXPR_BINARY
#define TESSAPLOT_EXPR_UNARY(name, text) name##A, name##C,
        TESSAPLOT_EXPR_UNARIES(TESSAPLOT_EXPR_UNARY)
#undef TESSAPLOT_EXPR_UNARY
    /// A power whose exponent is exactly 2.
    SquareAC,
    SquareCC,
    Random,
    /// Copies the accumulator to a cell.
    Keep,
    /// Copies a cell to the accumulator.
    Load,
    /// Ends with the accumulator as the value of the formula.
    Finish,
    /// Ends without a value.
    Stop,
};

/// One step of a program; `first` and `second` are the cells that it uses, in this order.
struct Instruction {
    Code code = Code::Stop;
    std::uint32_t first = 0;
    std::uint32_t second = 0;
};

/// What follows when every instruction of a program has been carried out.
enum class Ending : std::uint8_t { Value, Empty, BadToken, PopOnEmpty, NumberTooLarge };

/// A formula made ready for the machine.
struct Program {
    /// The last one is Finish or Stop.
    std::vector<Instruction> instructions;
    /// The variables in the order of an evaluator's arguments, then the constants and the results that are kept.
    std::vector<double> cells;
    /// Bit n is set if the formula reads variable n.
    std::uint32_t usedVariables = 0;
    Ending ending = Ending::Empty;
    /// The bad token, or the message about the number.
    std::string endingText;
};

}  // namespace tessaplot::expr
