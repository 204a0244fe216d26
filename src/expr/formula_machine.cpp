#include "expr/formula_machine.h"

#include "expr/formula_math.h"

namespace tessaplot::expr {

// A jump of its own at the end of every instruction, which the processor learns to foresee from what ran before, costs
// half of a loop around a switch. Hence the table of labels, an extension that GCC and Clang share.
Outcome runProgram(Program& program, bool degrees, RandomSequence& random, double& value) {
    static constexpr const void* labels[] = {
#define TESSAPLOT_EXPR_BINARY(name, text) &&name##AC, &&name##CA, &&name##CC,
        TESSAPLOT_EXPR_BINARIES(TESSAPLOT_EXPR_BINARY)
#undef TESSAPLOT_EXPR_BINARY
#define TESSAPLOT_EXPR_UNARY(name, text) &&name##A, &&name##C,
                TESSAPLOT_EXPR_UNARIES(TESSAPLOT_EXPR_UNARY)
#undef TESSAPLOT_EXPR_UNARY
            && SquareAC,
        &&SquareCC,
        &&Random,
        &&Keep,
        &&Load,
        &&Finish,
        &&Stop};

    const Instruction* at = program.instructions.data();
    double* const cells = program.cells.data();
    double accumulator = 0;

#define TESSAPLOT_EXPR_GO() goto* labels[static_cast<std::uint32_t>(at->code)]
#define TESSAPLOT_EXPR_NEXT() \
    ++at;                     \
    TESSAPLOT_EXPR_GO()
#define TESSAPLOT_EXPR_DO(label, ...)               \
    label : {                                       \
        double result = 0;                          \
        const Outcome outcome = __VA_ARGS__;        \
        if (outcome != Outcome::Value) [[unlikely]] \
            return outcome;                         \
        accumulator = result;                       \
        TESSAPLOT_EXPR_NEXT();                      \
    }
#define TESSAPLOT_EXPR_BINARY(name, text)                                                            \
    TESSAPLOT_EXPR_DO(name##AC, applyBinary(Operation::name, accumulator, cells[at->first], result)) \
    TESSAPLOT_EXPR_DO(name##CA, applyBinary(Operation::name, cells[at->first], accumulator, result)) \
    TESSAPLOT_EXPR_DO(name##CC, applyBinary(Operation::name, cells[at->first], cells[at->second], result))
#define TESSAPLOT_EXPR_UNARY(name, text)                                                  \
    TESSAPLOT_EXPR_DO(name##A, applyUnary(Operation::name, accumulator, degrees, result)) \
    TESSAPLOT_EXPR_DO(name##C, applyUnary(Operation::name, cells[at->first], degrees, result))

    TESSAPLOT_EXPR_GO();
    TESSAPLOT_EXPR_BINARIES(TESSAPLOT_EXPR_BINARY)
    TESSAPLOT_EXPR_UNARIES(TESSAPLOT_EXPR_UNARY)
    TESSAPLOT_EXPR_DO(SquareAC, square(accumulator, cells[at->first], result))
    TESSAPLOT_EXPR_DO(SquareCC, square(cells[at->first], cells[at->second], result))
    TESSAPLOT_EXPR_DO(Random, yield(random.next(), result))
Keep:
    cells[at->first] = accumulator;
    TESSAPLOT_EXPR_NEXT();
    TESSAPLOT_EXPR_DO(Load, yield(cells[at->first], result))
Finish:
    value = accumulator;
    return Outcome::Value;
Stop:
    return Outcome::Empty;
}

}  // namespace tessaplot::expr
