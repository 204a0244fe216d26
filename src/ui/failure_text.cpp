#include "ui/failure_text.h"

#include <new>

#include "base/failure.h"

namespace tessaplot::ui {

std::string failureText(const std::exception& failure) {
    const bool lacksMemory = dynamic_cast<const std::bad_alloc*>(&failure) != nullptr;
    return lacksMemory ? "There is not enough memory for this." : failure.what();
}

bool isCancelled(const std::exception& failure) {
    const auto* ours = dynamic_cast<const base::Failure*>(&failure);
    return ours != nullptr && ours->code() == base::FailureCode::Cancelled;
}

}  // namespace tessaplot::ui
