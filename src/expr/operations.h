#pragma once

#include <cstdint>

// Every list of operations is made from these: the operation and the token that stands for it in a postfix text.
#define TESSAPLOT_EXPR_BINARIES(X) \
    X(Add, "+")                    \
    X(Subtract, "-")               \
    X(Multiply, "*")               \
    X(Divide, "/")                 \
    X(Power, "^")

#define TESSAPLOT_EXPR_UNARIES(X) \
    X(Negate, "(-)")              \
    X(Sin, "SIN")                 \
    X(Cos, "COS")                 \
    X(Tan, "TAN")                 \
    X(Sec, "SEC")                 \
    X(Csec, "CSEC")               \
    X(Ctan, "CTAN")               \
    X(Atan, "ATAN")               \
    X(Log, "LOG")                 \
    X(Exp, "EXP")                 \
    X(Abs, "ABS")                 \
    X(Int, "INT")                 \
    X(Sqr, "SQR")                 \
    X(Asin, "ASIN")               \
    X(Acos, "ACOS")               \
    X(Asec, "ASEC")               \
    X(Acsec, "ACSEC")             \
    X(Actan, "ACTAN")             \
    X(Sinh, "SINH")               \
    X(Cosh, "COSH")               \
    X(Tanh, "TANH")               \
    X(Ctanh, "CTANH")             \
    X(Sech, "SECH")               \
    X(Csech, "CSECH")             \
    X(Asinh, "ASINH")             \
    X(Acosh, "ACOSH")             \
    X(Atanh, "ATANH")             \
    X(Asech, "ASECH")             \
    X(Acsech, "ACSECH")           \
    X(Actanh, "ACTANH")

namespace tessaplot::expr {

/// What an evaluator can do with one or two numbers. RND takes an argument too, but does nothing with it.
enum class Operation : std::uint8_t {
#define TESSAPLOT_EXPR_ENUMERATOR(name, text) name,
    TESSAPLOT_EXPR_BINARIES(TESSAPLOT_EXPR_ENUMERATOR) TESSAPLOT_EXPR_UNARIES(TESSAPLOT_EXPR_ENUMERATOR) Rnd
#undef TESSAPLOT_EXPR_ENUMERATOR
};

constexpr bool isBinary(Operation operation) {
    return operation <= Operation::Power;
}

/// True for the functions whose result depends on whether angles are degrees.
constexpr bool takesAngle(Operation operation) {
    return operation >= Operation::Sin && operation <= Operation::Atan;
}

/// How an operation or a whole formula ends.
enum class Outcome : std::uint8_t {
    Value,
    /// The formula holds no token.
    Empty,
    ValueFailure,
    DivisionFailure,
    IllegalFailure,
    SquareRootFailure,
    LogarithmFailure,
    PowerFailure,
};

}  // namespace tessaplot::expr
