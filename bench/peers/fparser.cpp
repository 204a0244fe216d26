#include <array>

#include <fparser.hh>

#include "peers/formula.h"

namespace {

class Reader {
 public:
    explicit Reader(const char* text) { parser_.Parse(text, "x,y"); }
    double at(double x, double y) {
        const std::array<double, 2> variables{x, y};
        return parser_.Eval(variables.data());
    }

 private:
    FunctionParser parser_;
};

}  // namespace

int main() {
    return tessaplot::bench::serveFormula<Reader>();
}
