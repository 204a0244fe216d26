#include "expr/tokens.h"

#include "base/number_text.h"

namespace tessaplot::expr {

namespace {

struct NamedOperation {
    std::string_view token;
    Operation operation;
};

constexpr NamedOperation operations[] = {
#define TESSAPLOT_EXPR_NAMED(name, text) {text, Operation::name},
    TESSAPLOT_EXPR_BINARIES(TESSAPLOT_EXPR_NAMED) TESSAPLOT_EXPR_UNARIES(TESSAPLOT_EXPR_NAMED)
#undef TESSAPLOT_EXPR_NAMED
        {"RND", Operation::Rnd},
};

}  // namespace

std::optional<Operation> operationOf(std::string_view token) {
    for (const NamedOperation& named : operations)
        if (named.token == token) return named.operation;
    return std::nullopt;
}

bool isFunction(std::string_view token) {
    return operationOf(token) > Operation::Negate;
}

std::optional<int> variableOf(std::string_view token) {
    if (token.size() != 2 || token[0] != token[1]) return std::nullopt;
    const std::size_t index = variableNames.find(token[0]);
    if (index == std::string_view::npos) return std::nullopt;
    return static_cast<int>(index);
}

int priorityOf(std::string_view token) {
    if (token == "+" || token == "-") return 1;
    if (token == "*" || token == "/") return 2;
    if (token == unaryMinus) return 3;
    if (token == "^") return 4;
    // ASECH binds like a parenthesis: the function of all that follows it. Formulas rely on it.
    return isFunction(token) && token != "ASECH" ? 5 : 0;
}

double numberOf(std::string_view token) {
    bool pointSeen = false;
    std::size_t length = 0;
    for (; length < token.size(); ++length) {
        const char c = token[length];
        if (c == ',' || !isNumberCharacter(c) || (c == '.' && pointSeen)) break;
        pointSeen = pointSeen || c == '.';
    }
    return base::TextValue(token.substr(0, length));
}

}  // namespace tessaplot::expr
