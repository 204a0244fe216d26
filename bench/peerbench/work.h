#pragma once

#include <memory>
#include <string>

namespace tessaplot::bench {

/// One workload of the comparison with other programs: makes its input when constructed, does the work once a `run`.
class Work {
 public:
    virtual ~Work() = default;
    /// Returns the time of the work in milliseconds and writes a text that lets a reader check the result.
    virtual double run(std::string& check) = 0;
};

}  // namespace tessaplot::bench
