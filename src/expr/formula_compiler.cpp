#include "expr/formula_compiler.h"

#include <bit>
#include <utility>

#include "base/failure.h"
#include "expr/formula_math.h"
#include "expr/tokens.h"

namespace tessaplot::expr {

namespace {

constexpr std::uint32_t noCell = UINT32_MAX;

// How many codes lie between those of an operation that differ in where its operands are.
constexpr std::uint32_t codesOfForm = 2;

/// The code of an operation whose operands are as in the given one of its forms, which count from 0.
Code codeOf(Operation operation, std::uint32_t form) {
    const auto index = static_cast<std::uint32_t>(operation);
    if (isBinary(operation)) return static_cast<Code>((3 * index + form) * codesOfForm);
    constexpr auto firstUnary = static_cast<std::uint32_t>(Operation::Negate);
    return static_cast<Code>(static_cast<std::uint32_t>(Code::NegateA) +
                             (2 * (index - firstUnary) + form) * codesOfForm);
}

Code keeping(Code code) {
    return static_cast<Code>(static_cast<std::uint32_t>(code) + 1);
}

}  // namespace

Program FormulaCompiler::compile(std::string_view postfix) {
    for (int variable = 0; variable < variableCount; ++variable)
        newCell(0, false);
    while (!postfix.empty() && !ended_) {
        const std::size_t blank = postfix.find(' ');
        addToken(postfix.substr(0, blank));
        postfix.remove_prefix(blank == std::string_view::npos ? postfix.size() : blank + 1);
    }
    if (!ended_) end(stack_.empty() ? Ending::Empty : Ending::Value);
    generate();
    return std::move(program_);
}

void FormulaCompiler::addToken(std::string_view token) {
    if (!token.empty() && isNumberCharacter(token.front())) {
        addNumber(token);
    } else if (const auto variable = variableOf(token)) {
        stack_.push_back(static_cast<Cell>(*variable));
    } else if (const auto operation = operationOf(token)) {
        addOperation(*operation);
    } else {
        end(Ending::BadToken, std::string(token));
    }
}

void FormulaCompiler::addNumber(std::string_view token) {
    try {
        stack_.push_back(constant(numberOf(token)));
    } catch (const base::Failure& failure) {
        end(Ending::NumberTooLarge, failure.what());
    }
}

void FormulaCompiler::addOperation(Operation operation) {
    if (stack_.size() < (isBinary(operation) ? 2U : 1U)) return end(Ending::PopOnEmpty);
    Cell right = isBinary(operation) ? pop() : 0;
    Cell left = pop();
    const bool isFactor = operation == Operation::Multiply || operation == Operation::Divide;
    if (isFactor && isConstant_[right] && isNegation(left)) {
        // (-a) * c is a * (-c) to the last bit, and the second negation costs nothing.
        left = steps_.back().left;
        right = constant(-program_.cells[right]);
    }
    stack_.push_back(resultOf(operation, left, right));
}

void FormulaCompiler::end(Ending ending, std::string text) {
    program_.ending = ending;
    program_.endingText = std::move(text);
    ended_ = true;
}

FormulaCompiler::Cell FormulaCompiler::pop() {
    const Cell top = stack_.back();
    stack_.pop_back();
    return top;
}

FormulaCompiler::Cell FormulaCompiler::constant(double value) {
    const auto [found, isNew] = constants_.try_emplace(std::bit_cast<std::uint64_t>(value));
    if (isNew) found->second = newCell(value, true);
    return found->second;
}

FormulaCompiler::Cell FormulaCompiler::newCell(double value, bool isConstant) {
    program_.cells.push_back(value);
    isConstant_.push_back(isConstant);
    return static_cast<Cell>(program_.cells.size() - 1);
}

FormulaCompiler::Cell FormulaCompiler::resultOf(Operation operation, Cell left, Cell right) {
    double value = 0;
    if (fold(operation, left, right, value)) return constant(value);
    if (operation == Operation::Rnd) {
        steps_.push_back({operation, left, right, newCell(0, false)});
        return steps_.back().result;
    }
    const auto [found, isNew] = results_.try_emplace({operation, left, right});
    if (isNew) {
        found->second = newCell(0, false);
        steps_.push_back({operation, left, right, found->second});
    }
    return found->second;
}

/// True if the operation has the same value whenever the formula is evaluated. One that fails must fail each time anew.
bool FormulaCompiler::fold(Operation operation, Cell left, Cell right, double& value) const {
    const std::vector<double>& cells = program_.cells;
    if (operation == Operation::Power && isConstant_[right] && cells[right] == 0) {
        value = 1;
        return true;
    }
    if (!isConstant_[left] || operation == Operation::Rnd || takesAngle(operation)) return false;
    if (!isBinary(operation)) return applyUnary(operation, cells[left], false, value) == Outcome::Value;
    return isConstant_[right] && applyBinary(operation, cells[left], cells[right], value) == Outcome::Value;
}

/// True for the result of the latest step, if that is a negation.
bool FormulaCompiler::isNegation(Cell cell) const {
    return !steps_.empty() && steps_.back().operation == Operation::Negate && steps_.back().result == cell;
}

/// Drops the negations that went into a factor. No other step may go: it could fail.
void FormulaCompiler::dropUnusedNegations() {
    std::vector<bool> isUsed(program_.cells.size(), false);
    for (const Step& step : steps_)
        isUsed[step.left] = isUsed[step.right] = true;
    for (const Cell cell : stack_)
        isUsed[cell] = true;
    std::erase_if(steps_,
                  [&](const Step& step) { return step.operation == Operation::Negate && !isUsed[step.result]; });
}

void FormulaCompiler::generate() {
    dropUnusedNegations();
    markKept();
    Cell accumulator = noCell;
    for (const Step& step : steps_) {
        Instruction instruction = instructionFor(step, accumulator);
        if (isKept_[step.result]) instruction.code = keeping(instruction.code);
        program_.instructions.push_back(instruction);
        accumulator = step.result;
    }
    if (program_.ending != Ending::Value) {
        program_.instructions.push_back({Code::Stop});
        return;
    }
    if (stack_.back() != accumulator) program_.instructions.push_back({Code::Load, stack_.back()});
    program_.instructions.push_back({Code::Finish});
}

/// Finds the results that are read from a cell, not only from the accumulator by the step that follows.
void FormulaCompiler::markKept() {
    isKept_.assign(program_.cells.size(), false);
    Cell accumulator = noCell;
    for (const Step& step : steps_) {
        const Instruction instruction = instructionFor(step, accumulator);
        isKept_[instruction.first] = true;
        isKept_[instruction.second] = true;
        accumulator = step.result;
    }
    if (program_.ending == Ending::Value && stack_.back() != accumulator) isKept_[stack_.back()] = true;
}

Instruction FormulaCompiler::instructionFor(const Step& step, Cell accumulator) const {
    const auto [operation, left, right, result] = step;
    const bool isLeft = left == accumulator;
    if (operation == Operation::Rnd) return {Code::Random, 0, 0, result};
    if (operation == Operation::Power && isConstant_[right] && program_.cells[right] == 2) {
        if (isLeft) return {Code::SquareA, 0, 0, result};
        return {Code::SquareC, left, 0, result};
    }
    if (!isBinary(operation)) {
        if (isLeft) return {codeOf(operation, 0), 0, 0, result};
        return {codeOf(operation, 1), left, 0, result};
    }
    if (right == accumulator) return {codeOf(operation, 1), left, 0, result};
    if (isLeft) return {codeOf(operation, 0), right, 0, result};
    return {codeOf(operation, 2), left, right, result};
}

}  // namespace tessaplot::expr
