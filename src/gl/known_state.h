#pragma once

#include <vector>

#include "gl/display_list.h"

namespace tessaplot::gl {

/// What a list is known to have set, so that setting the same again is seen to change nothing.
class KnownState {
 public:
    /// True if the operation sets state to what it is known to be; notes what it sets otherwise.
    bool isRepeated(const Operation& operation);
    /// True if a capability is known to be disabled.
    bool isDisabled(GLenum capability) const;
    void forget() { settings_.clear(); }

 private:
    struct Setting {
        Op op;
        double name;  ///< What is set, where one call sets many things.
        std::array<double, 2> values;
        bool operator==(const Setting&) const = default;
    };

    std::vector<Setting> settings_;
};

}  // namespace tessaplot::gl
