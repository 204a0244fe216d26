#include <muParser.h>

#include "peers/formula.h"

namespace {

class Reader {
 public:
    explicit Reader(const char* text) {
        parser_.DefineVar("x", &x_);
        parser_.DefineVar("y", &y_);
        parser_.SetExpr(text);
    }
    double at(double x, double y) {
        x_ = x;
        y_ = y;
        return parser_.Eval();
    }

 private:
    double x_ = 0, y_ = 0;
    mu::Parser parser_;
};

}  // namespace

int main() {
    return tessaplot::bench::serveFormula<Reader>();
}
