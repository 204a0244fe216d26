#pragma once

#include <string>

namespace tessaplot::graphs {

/// Round numbers over a range: `count` + 1 of them from `first` on. A range without extent runs from 0 instead.
struct Scale {
    double lower = 0;  ///< The range that the numbers belong to.
    double span = 0;
    double step = 0;
    double first = 0;
    int count = -1;  ///< -1 for none: the range holds no positive finite extent.

    double number(int n) const { return n * step + first; }
};

/// The round numbers from `lower` to `upper`, 0.2, 0.5 or 1 times a power of ten apart.
Scale NiceScale(double lower, double upper);

/// The next integer that is not below `x`; an `x` less than 1e-7 above an integer stays as it is.
double CeilNear(double x);

/// The number of a scale as a label: up to three decimals where they are enough, else its general text.
std::string labelText(const Scale& scale, int n);

}  // namespace tessaplot::graphs
