#include "graphs/over_scale.h"

#include "base/failure.h"

namespace tessaplot::graphs {

double overScale(double value, double scale) {
    if (scale == 0)
        throw base::Failure(base::FailureCode::DivisionByZero,
                            "A number cannot be brought to scene units: there is no scale before there are data.");
    return value / scale;
}

}  // namespace tessaplot::graphs
