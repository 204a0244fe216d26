#include <chrono>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "expr/evaluator.h"
#include "peerbench/work.h"

namespace tessaplot::bench {

std::unique_ptr<Work> makeW8();

namespace {

constexpr const char* formula = "sin(x)*cos(y)+exp(-(x^2+y^2)/10)-sqr(abs(x*y))/(1+x^2)";
constexpr int samples = 1000000;
constexpr std::uint64_t seed = 1008;

/// The formula at a million points, one call of `DoEvaluate` for each; reading the formula is part of the work.
class FormulaWork : public Work {
 public:
    FormulaWork() {
        std::uint64_t state = seed;
        const auto draw = [&state] {
            state = state * 6364136223846793005U + 1442695040888963407U;
            return -10 + 20 * (static_cast<double>(state >> 11) * 0x1p-53);
        };
        for (int i = 0; i < samples; ++i) {
            xs_.push_back(draw());
            ys_.push_back(draw());
        }
    }

    double run(std::string& check) override {
        const auto start = std::chrono::steady_clock::now();
        const double sum = sumOfValues();
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
        char text[64];
        std::snprintf(text, sizeof text, "sum %.6f", sum);
        check = text;
        return taken.count();
    }

 private:
    double sumOfValues() const {
        expr::EvaluatorContext context;
        expr::Cls6 evaluator(context);
        std::string postfix;
        std::int32_t position = 0;
        if (!evaluator.InfixToPostfix(formula, postfix, position)) return 0;
        const double unused = 0;
        double value = 0;
        double sum = 0;
        for (std::size_t i = 0; i < xs_.size(); ++i) {
            evaluator.DoEvaluate(postfix, false, value, unused, unused, xs_[i], ys_[i], unused, unused, unused, unused);
            sum += value;
        }
        return sum;
    }

    std::vector<double> xs_;
    std::vector<double> ys_;
};

}  // namespace

std::unique_ptr<Work> makeW8() {
    return std::make_unique<FormulaWork>();
}

}  // namespace tessaplot::bench
