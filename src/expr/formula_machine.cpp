#include "expr/formula_machine.h"

#include <iterator>

#include "expr/formula_math.h"

namespace tessaplot::expr {

namespace {

// Each instruction ends with a jump of its own, from which the processor learns what follows what; a loop around a
// switch has but one, and takes a third longer for a usual formula. Hence the table of labels, which GCC and Clang both
// know. Instructions hold their labels, which only the function itself can tell: it does so for want of a program.
RunResult run(Program* program, bool degrees, RandomSequence* random, const void* const** targets) {
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
        TESSAPLOT_EXPR_LABELS(SquareA)
        TESSAPLOT_EXPR_LABELS(SquareC)
        TESSAPLOT_EXPR_LABELS(Random)
        &&Load, &&Finish, &&Stop,
    };
#undef TESSAPLOT_EXPR_UNARY
#undef TESSAPLOT_EXPR_BINARY
#undef TESSAPLOT_EXPR_LABELS
    // clang-format on
    static_assert(std::size(labels) == static_cast<std::size_t>(Code::Stop) + 1);

    if (program == nullptr) {
        *targets = labels;
        return {};
    }
    const Instruction* at = program->instructions.data();
    double* const cells = program->cells.data();
    double accumulator = 0;

#define TESSAPLOT_EXPR_GO() goto * at->target
#define TESSAPLOT_EXPR_COMPUTE(...)                                                  \
    double result = 0;                                                               \
    if (const Outcome outcome = __VA_ARGS__; outcome != Outcome::Value) [[unlikely]] \
        return {0, outcome};                                                         \
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
    TESSAPLOT_EXPR_DO(SquareA, square(accumulator, result))
    TESSAPLOT_EXPR_DO(SquareC, square(cells[at->first], result))
    TESSAPLOT_EXPR_DO(Random, yield(random->next(), result))
Load:
    accumulator = cells[at->first];
    ++at;
    TESSAPLOT_EXPR_GO();
Finish:
    return {accumulator, Outcome::Value};
Stop:
    return {};
}

}  // namespace

void linkProgram(Program& program) {
    const void* const* targets = nullptr;
    run(nullptr, false, nullptr, &targets);
    for (Instruction& instruction : program.instructions)
        instruction.target = targets[static_cast<std::size_t>(instruction.code)];
}

RunResult runProgram(Program& program, bool degrees, RandomSequence& random) {
    return run(&program, degrees, &random, nullptr);
}

}  // namespace tessaplot::expr
