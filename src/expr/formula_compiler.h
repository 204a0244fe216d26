#pragma once

#include <cstdint>
#include <map>
#include <string_view>
#include <tuple>
#include <vector>

#include "expr/formula_program.h"

namespace tessaplot::expr {

/// Turns a postfix text into a program of the formula machine. What evaluating the text token by token would give, the
/// program gives bit for bit: each value is computed once, in the order in which the text first asks for it.
class FormulaCompiler {
 public:
    /// Never fails: what the text gets wrong becomes the ending of the program, which all before it precedes.
    Program compile(std::string_view postfix);

 private:
    using Cell = std::uint32_t;

    /// An operation on cells and the cell that names its result; the right operand of a function is not used.
    struct Step {
        Operation operation;
        Cell left;
        Cell right;
        Cell result;
    };

    void addToken(std::string_view token);
    void addNumber(std::string_view token);
    void addOperation(Operation operation);
    void end(Ending ending, std::string text = {});

    Cell pop();
    Cell constant(double value);
    Cell newCell(double value, bool isConstant);
    Cell resultOf(Operation operation, Cell left, Cell right);
    bool fold(Operation operation, Cell left, Cell right, double& value) const;
    bool isNegation(Cell cell) const;

    void dropUnusedNegations();
    void generate();
    void markKept();
    Instruction instructionFor(const Step& step, Cell accumulator) const;

    Program program_;
    std::vector<Cell> stack_;
    std::vector<Step> steps_;
    // Both by cell.
    std::vector<bool> isConstant_;
    std::vector<bool> isKept_;
    std::map<std::uint64_t, Cell> constants_;
    std::map<std::tuple<Operation, Cell, Cell>, Cell> results_;
    bool ended_ = false;
};

}  // namespace tessaplot::expr
