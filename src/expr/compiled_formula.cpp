#include "expr/compiled_formula.h"

#include "base/failure.h"
#include "expr/evaluator_error.h"
#include "expr/formula_compiler.h"

namespace tessaplot::expr {

CompiledFormula::CompiledFormula(std::string_view postfix) : program_(FormulaCompiler().compile(postfix)) {
    linkProgram(program_);
}

void CompiledFormula::throwUnlessEmpty() const {
    switch (program_.ending) {
        case Ending::BadToken:
            throw EvaluatorError(badTokenNumber, badTokenText + program_.endingText);
        case Ending::PopOnEmpty:
            throw EvaluatorError(popOnEmptyNumber, popOnEmptyText);
        case Ending::NumberTooLarge:
            throw base::Failure(base::FailureCode::Overflow, program_.endingText);
        default:
            return;
    }
}

}  // namespace tessaplot::expr
