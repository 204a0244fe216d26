#pragma once

#include <memory>

#include "peerbench/work.h"

namespace tessaplot::bench {

std::unique_ptr<Work> makeW1();  ///< `Shepard` of 10,000 points, both columns, 100 by 100 nodes.
std::unique_ptr<Work> makeW2();  ///< `NDS` of 20,000 points, 200 by 200 nodes.
std::unique_ptr<Work> makeW3();  ///< `RBF` of 500 points, 100 by 100 nodes.
std::unique_ptr<Work> makeW4();  ///< `TPS` of 497 points, 100 by 100 nodes.

}  // namespace tessaplot::bench
