#pragma once

#include <cstdint>
#include <string>

#include "base/failure.h"

namespace tessaplot::expr {

/// What a stack or an evaluator refuses to do, with the error number by which it is known.
class EvaluatorError : public base::Failure {
 public:
    EvaluatorError(std::uint32_t number, const std::string& message)
        : Failure(base::FailureCode::BadInput, message), number_(number) {}
    std::uint32_t number() const { return number_; }

 private:
    std::uint32_t number_;
};

inline constexpr std::uint32_t badTokenNumber = 0x800403EA;
inline constexpr std::uint32_t popOnEmptyNumber = 0x800403F3;
inline constexpr std::uint32_t peekOnEmptyNumber = 0x800403F4;
inline constexpr const char* popOnEmptyText = "Pop method invoked on empty stack";
inline constexpr const char* peekOnEmptyText = "GetPopValue method invoked on empty stack";
inline constexpr const char* badTokenText = "Bad token in Evaluate: ";

}  // namespace tessaplot::expr
