#pragma once

#include "gl/current_values.h"
#include "gl/display_list.h"

namespace tessaplot::gl {

/// The current values that the context is known to hold once the calls of a list are made. Appends the calls that bring
/// it to others.
class PassedValues {
 public:
    /// Keeps a reference to the calls.
    explicit PassedValues(DisplayList& calls) : calls_(calls) {}

    /// Makes `value` the context's current one.
    void pass(Attribute attribute, const Vertex& value);
    /// Makes all that is known of `current` the context's.
    void pass(const CurrentValues& current);

    /// Calls that were appended from elsewhere have left these values.
    void assume(const CurrentValues& left) { passed_ = left; }
    void forget(unsigned attributes = allAttributes) { passed_.forget(attributes); }

 private:
    DisplayList& calls_;
    CurrentValues passed_;
};

}  // namespace tessaplot::gl
