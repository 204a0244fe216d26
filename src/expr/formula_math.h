#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

#include "base/angle.h"
#include "expr/operations.h"

namespace tessaplot::expr {

// Every routine below writes `value` only when it returns Outcome::Value. A result beyond the range of a 64-bit float
// is an infinity or a not-a-number, as the C library and the processor give it.

inline Outcome yield(double result, double& value) {
    value = result;
    return Outcome::Value;
}

inline double signOf(double x) {
    if (x > 0) return 1;
    return x < 0 ? -1 : 0;
}

inline Outcome quotient(double left, double right, double& value) {
    return right == 0 ? Outcome::DivisionFailure : yield(left / right, value);
}

Outcome power(double base, double exponent, double& value);

/// `power` with an exponent of exactly 2, most often without the cost of a power.
///
/// The C library promises no correctly rounded power, so base * base alone would now and then differ in the last bit.
/// But its error is bounded (0.511 units in the last place plus 0.00003 for each binary order of the result, Arm
/// optimized routines, math/pow.c, which also is the power of glibc since 2.28 and of musl). So where the exact square
/// lies within 0.485 units of the product, no result but the product is possible; the rest, 3 in 100, ask the library.
inline Outcome square(double base, double& value) {
    constexpr std::uint64_t upperBits = 0xFFFFFFFFF8000000;
    const double product = base * base;
    const double upper = std::bit_cast<double>(std::bit_cast<std::uint64_t>(base) & upperBits);
    const double lower = base - upper;
    const double missing = (upper * upper - product) + (base + upper) * lower;
    const bool decided = product + 1.03 * missing == product && product > 0x1p-63 && product < 0x1p63;
    if (!decided) [[unlikely]] {
        double exact = 0;  // Not `value`, whose address would keep it in memory on the usual way too.
        const Outcome outcome = power(base, 2, exact);
        value = exact;
        return outcome;
    }
    return yield(product, value);
}

inline Outcome inverse(double x, double& value) {
    return quotient(1, x, value);
}

inline Outcome naturalLogarithm(double x, double& value) {
    return x <= 0 ? Outcome::LogarithmFailure : yield(std::log(x), value);
}

inline Outcome squareRoot(double x, double& value) {
    return x < 0 ? Outcome::SquareRootFailure : yield(std::sqrt(x), value);
}

inline Outcome arcSine(double x, double& value) {
    if (x == -1) return yield(-base::shortPi / 2, value);
    if (x == 1) return yield(base::shortPi / 2, value);
    const double rest = 1 - x * x;
    return rest < 0 ? Outcome::IllegalFailure : yield(std::atan(x / std::sqrt(rest)), value);
}

inline Outcome arcCosine(double x, double& value) {
    if (x == -1) return yield(base::shortPi, value);
    if (x == 1) return yield(0, value);
    const double rest = 1 - x * x;
    return rest < 0 ? Outcome::IllegalFailure : yield(std::atan(-x / std::sqrt(rest)) + 2 * std::atan(1.0), value);
}

/// `turns` is how often twice atan(1) is added: the part in which the arc secant and the arc cosecant differ.
inline Outcome arcSecant(double x, double turns, double& value) {
    const double rest = x * x - 1;
    return rest <= 0 ? Outcome::IllegalFailure
                     : yield(std::atan(x / std::sqrt(rest)) + turns * (2 * std::atan(1.0)), value);
}

inline Outcome hyperbolicQuotient(double dividend, double divisor, double& value) {
    return divisor == 0 ? Outcome::ValueFailure : yield(dividend / divisor, value);
}

inline Outcome areaLogarithm(double x, double& value) {
    return x <= 0 ? Outcome::ValueFailure : yield(std::log(x), value);
}

/// log(x + sqrt(radicand)), the areas whose argument is a sum.
inline Outcome areaOfSum(double x, double radicand, double& value) {
    return radicand < 0 ? Outcome::ValueFailure : areaLogarithm(x + std::sqrt(radicand), value);
}

/// log((sign * sqrt(radicand) + 1) / x), the areas whose argument is an inverse.
inline Outcome areaOfInverse(double x, double sign, double radicand, double& value) {
    if (x == 0 || radicand < 0) return Outcome::ValueFailure;
    return areaLogarithm((sign * std::sqrt(radicand) + 1) / x, value);
}

/// log((x + 1) / divisor) / 2, the areas whose argument is a quotient.
inline Outcome areaOfQuotient(double x, double divisor, double& value) {
    if (x == 1) return Outcome::ValueFailure;
    const Outcome outcome = areaLogarithm((x + 1) / divisor, value);
    if (outcome == Outcome::Value) value /= 2;
    return outcome;
}

/// One of the five operators with two operands.
[[gnu::always_inline]] inline Outcome applyBinary(Operation operation, double left, double right, double& value) {
    switch (operation) {
        case Operation::Add:
            return yield(left + right, value);
        case Operation::Subtract:
            return yield(left - right, value);
        case Operation::Multiply:
            return yield(left * right, value);
        case Operation::Divide:
            return quotient(left, right, value);
        default:
            return power(left, right, value);
    }
}

/// The negation or any function but RND. With `degrees` the trigonometric functions, and ATAN with them, take degrees.
[[gnu::always_inline]] inline Outcome applyUnary(Operation operation, double x, bool degrees, double& value) {
    const auto angle = [x, degrees] { return degrees ? base::degreesToRadians(x) : x; };
    switch (operation) {
        case Operation::Sin:
            return yield(std::sin(angle()), value);
        case Operation::Cos:
            return yield(std::cos(angle()), value);
        case Operation::Tan:
            return yield(std::tan(angle()), value);
        case Operation::Sec:
            return inverse(std::cos(angle()), value);
        case Operation::Csec:
            return inverse(std::sin(angle()), value);
        case Operation::Ctan:
            return inverse(std::tan(angle()), value);
        case Operation::Atan:
            return yield(std::atan(angle()), value);
        case Operation::Log:
            return naturalLogarithm(x, value);
        case Operation::Exp:
            return yield(std::exp(x), value);
        case Operation::Abs:
            return yield(std::fabs(x), value);
        case Operation::Int:
            return yield(std::floor(x), value);
        case Operation::Sqr:
            return squareRoot(x, value);
        case Operation::Asin:
            return arcSine(x, value);
        case Operation::Acos:
            return arcCosine(x, value);
        case Operation::Asec:
            return arcSecant(x, signOf(x - 1), value);
        case Operation::Acsec:
            return arcSecant(x, signOf(x) - 1, value);
        case Operation::Actan:
            return yield(std::atan(x) + 2 * std::atan(1.0), value);
        case Operation::Sinh:
            return yield((std::exp(x) - std::exp(-x)) / 2, value);
        case Operation::Cosh:
            return yield((std::exp(x) + std::exp(-x)) / 2, value);
        case Operation::Tanh:
            return yield((std::exp(x) - std::exp(-x)) / (std::exp(x) + std::exp(-x)), value);
        case Operation::Ctanh:
            return hyperbolicQuotient(std::exp(x) + std::exp(-x), std::exp(x) - std::exp(-x), value);
        case Operation::Sech:
            return yield(2 / (std::exp(x) + std::exp(-x)), value);
        case Operation::Csech:
            return hyperbolicQuotient(2, std::exp(x) - std::exp(-x), value);
        case Operation::Asinh:
            return areaOfSum(x, x * x + 1, value);
        case Operation::Acosh:
            return areaOfSum(x, x * x - 1, value);
        case Operation::Atanh:
            return areaOfQuotient(x, 1 - x, value);
        case Operation::Asech:
            return areaOfInverse(x, 1, 1 - x * x, value);
        case Operation::Acsech:
            return areaOfInverse(x, signOf(x), x * x + 1, value);
        case Operation::Actanh:
            return areaOfQuotient(x, x - 1, value);
        default:
            return yield(-x, value);
    }
}

}  // namespace tessaplot::expr
