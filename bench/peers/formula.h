#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

#include "peerbench/gen.h"

namespace tessaplot::bench {

constexpr const char* formula = "sin(x)*cos(y)+exp(-(x^2+y^2)/10)-sqrt(abs(x*y))/(1+x^2)";

/// W8 for a reader of formulas, with the answers of tessaplot-peerbench. A `Reader` is made from the text of the
/// formula and has `double at(double x, double y)`; reading the text is part of the work.
template <class Reader>
int serveFormula() {
    constexpr std::size_t samples = 1000000;
    constexpr std::uint64_t seed = 1008;
    Random random(seed);
    std::vector<double> xs(samples), ys(samples);
    for (std::size_t i = 0; i < samples; ++i) {
        xs[i] = random.between(-10, 10);
        ys[i] = random.between(-10, 10);
    }
    std::cout << "ready" << std::endl;
    for (std::string line; std::getline(std::cin, line);) {
        const auto start = std::chrono::steady_clock::now();
        Reader reader(formula);
        double sum = 0;
        for (std::size_t i = 0; i < samples; ++i)
            sum += reader.at(xs[i], ys[i]);
        const std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - start;
        std::printf("%.6f\tsum %.6f\n", spent.count(), sum);
        std::fflush(stdout);
    }
    return 0;
}

}  // namespace tessaplot::bench
