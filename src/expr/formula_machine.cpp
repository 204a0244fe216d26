#include "expr/formula_machine.h"

#include <iterator>

#include "expr/formula_math.h"

namespace tessaplot::expr {

// Each instruction ends with a jump of its own, from which the processor learns what follows what; a loop around a
// switch has but one, and takes a third longer for a usual formula. Hence the table of labels, which GCC and Clang both
// know.
Outcome runProgram(Program& program, bool degrees, RandomSequence& random, double& value) {
    // A label is no expression, so that the usual parentheses are impossible.
    // NOLINTBEGIN(bugprone-macro-parentheses)
    // clang-format off
#define TESSAPLOT_EXPR_LABELS(form) &&form, &&form##K,
#define TESSAPLOT_EXPR_BINARY(name, text) \
    TESSAPLOT_EXPR_LABELS(name##AC) TESSAPLOT_EXPR_LABELS(name##CA) TESSAPLOT_EXPR_LABELS(name##CC)
#define TESSAPLOT_EXPR_UNARY(name, text) TESSAPLOT_EXPR_LABELS(name##A) TESSAPLOT_EXPR_LABELS(name##C)
    static const void* const labels[] = {
        TESSAPLOT_EXPR_BINARIES(TESSAPLOT_EXPR_BINARY)
        TESSAPLOT_EXPR_UNARIES(TESSAPLOT_EXPR_UNARY)
        TESSAPLOT_EXPR_LABELS(SquareAC)
        TESSAPLOT_EXPR_LABELS(SquareCC)
        TESSAPLOT_EXPR_LABELS(Random)
        &&Load, &&Finish, &&Stop,
    };
#undef TESSAPLOT_EXPR_UNARY
#undef TESSAPLOT_EXPR_BINARY
#undef TESSAPLOT_EXPR_LABELS
    // clang-format on
    static_assert(std::size(labels) == static_cast<std::size_t>(Code::Stop) + 1);

    const Instruction* at = program.instructions.data();
    double* const cells = program.cells.data();
    double accumulator = 0;

#define TESSAPLOT_EXPR_GO() goto* labels[static_cast<std::uint32_t>(at->code)]
#define TESSAPLOT_EXPR_COMPUTE(...)                                                  \
    double result = 0;                                                               \
    if (const Outcome outcome = __VA_ARGS__; outcome != Outcome::Value) [[unlikely]] \
        return outcome;                                                              \
    accumulator = result
#define TESSAPLOT_EXPR_DO(form, ...)         \
    form : {                                 \
        TESSAPLOT_EXPR_COMPUTE(__VA_ARGS__); \
        ++at;                                \
        TESSAPLOT_EXPR_GO();                 \
    }                                        \
    form##K : {                              \
        TESSAPLOT_EXPR_COMPUTE(__VA_ARGS__); \
        cells[at->result] = result;          \
        ++at;                                \
        TESSAPLOT_EXPR_GO();                 \
    }
#define TESSAPLOT_EXPR_BINARY(name, text)                                                            \
    TESSAPLOT_EXPR_DO(name##AC, applyBinary(Operation::name, accumulator, cells[at->first], result)) \
    TESSAPLOT_EXPR_DO(name##CA, applyBinary(Operation::name, cells[at->first], accumulator, result)) \
    TESSAPLOT_EXPR_DO(name##CC, applyBinary(Operation::name, cells[at->first], cells[at->second], result))
#define TESSAPLOT_EXPR_UNARY(name, text)                                                  \
    TESSAPLOT_EXPR_DO(name##A, applyUnary(Operation::name, accumulator, degrees, result)) \
    TESSAPLOT_EXPR_DO(name##C, applyUnary(Operation::name, cells[at->first], degrees, result))
    // NOLINTEND(bugprone-macro-parentheses)

    TESSAPLOT_EXPR_GO();
    TESSAPLOT_EXPR_BINARIES(TESSAPLOT_EXPR_BINARY)
    TESSAPLOT_EXPR_UNARIES(TESSAPLOT_EXPR_UNARY)
    TESSAPLOT_EXPR_DO(SquareAC, square(accumulator, cells[at->first], result))
    TESSAPLOT_EXPR_DO(SquareCC, square(cells[at->first], cells[at->second], result))
    TESSAPLOT_EXPR_DO(Random, yield(random.next(), result))
Load:
    accumulator = cells[at->first];
    ++at;
    TESSAPLOT_EXPR_GO();
Finish:
    value = accumulator;
    return Outcome::Value;
Stop:
    return Outcome::Empty;
}

}  // namespace tessaplot::expr
