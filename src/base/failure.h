#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tessaplot::base {

enum class FailureCode {
    SubscriptOutOfRange,
    DivisionByZero,
    Overflow,
    FileUnreadable,
    FileUnwritable,
    BadInput,
    Cancelled,
    OpenGl,
};

/// What the numeric, array and file layers cannot do: one exception type with a code and a message for a person.
class Failure : public std::runtime_error {
 public:
    Failure(FailureCode code, const std::string& message) : std::runtime_error(message), code_(code) {}
    FailureCode code() const { return code_; }

 private:
    FailureCode code_;
};

/// Throws SubscriptOutOfRange with a message that names the array, the index and the bounds.
[[noreturn]] void failSubscript(std::string_view array, std::int64_t index, std::int64_t lower, std::int64_t upper);

}  // namespace tessaplot::base
