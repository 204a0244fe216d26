#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "expr/operations.h"

namespace tessaplot::expr {

/// The instructions of the formula machine, which has one accumulator, where every result goes, and a table of cells.
/// A suffix tells where the operands are, the left one first: A in the accumulator, C in a cell. The K that may follow
/// keeps the result in a cell as well.
enum class Code : std::uint32_t {
#define TESSAPLOT_EXPR_CODES(form) form, form##K,
#define TESSAPLOT_EXPR_BINARY(name, text) \
    TESSAPLOT_EXPR_CODES(name##AC) TESSAPLOT_EXPR_CODES(name##CA) TESSAPLOT_EXPR_CODES(name##CC)
#define TESSAPLOT_EXPR_UNARY(name, text) TESSAPLOT_EXPR_CODES(name##A) TESSAPLOT_EXPR_CODES(name##C)
    TESSAPLOT_EXPR_BINARIES(TESSAPLOT_EXPR_BINARY) TESSAPLOT_EXPR_UNARIES(TESSAPLOT_EXPR_UNARY)
    /// A power whose exponent is exactly 2.
    TESSAPLOT_EXPR_CODES(SquareA) TESSAPLOT_EXPR_CODES(SquareC) TESSAPLOT_EXPR_CODES(Random)
#undef TESSAPLOT_EXPR_UNARY
#undef TESSAPLOT_EXPR_BINARY
#undef TESSAPLOT_EXPR_CODES
    /// Copies a cell to the accumulator.
    Load,
    /// Ends with the accumulator as the value of the formula.
    Finish,
    /// Ends without a value.
    Stop,
};

/// One step of a program: the cells of its operands, in the order in which its code names them, and of its result.
struct Instruction {
    Code code = Code::Stop;
    std::uint32_t first = 0;
    std::uint32_t second = 0;
    std::uint32_t result = 0;
    /// Where the machine carries out the code; `linkProgram` sets it.
    const void* target = nullptr;
};

/// What follows when every instruction of a program has been carried out.
enum class Ending : std::uint8_t { Value, Empty, BadToken, PopOnEmpty, NumberTooLarge };

/// A formula made ready for the machine.
struct Program {
    /// The last one is Finish or Stop.
    std::vector<Instruction> instructions;
    /// The variables in the order of an evaluator's arguments, then the constants and the results that are kept.
    std::vector<double> cells;
    Ending ending = Ending::Empty;
    /// The bad token, or the message about the number.
    std::string endingText;
};

}  // namespace tessaplot::expr
