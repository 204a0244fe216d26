#include "base/failure.h"

namespace tessaplot::base {

void failSubscript(std::string_view array, std::int64_t index, std::int64_t lower, std::int64_t upper) {
    throw Failure(FailureCode::SubscriptOutOfRange, "Subscript out of range: " + std::string(array) + " has no index " +
                                                        std::to_string(index) + ", its limits are " +
                                                        std::to_string(lower) + " to " + std::to_string(upper) + ".");
}

}  // namespace tessaplot::base
