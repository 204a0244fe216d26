#include "expr/infix_scanner.h"

#include <utility>
#include <variant>

#include "expr/tokens.h"

namespace tessaplot::expr {

namespace {

constexpr std::string_view operators = "+-*/^";
constexpr const char* operatorExpected = "Operator expected";
constexpr const char* operandExpected = "Operand expected";

// Only the letters of ASCII: what a formula may hold does not depend on a locale.
constexpr bool isNameCharacter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

constexpr char toUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

constexpr bool isBlank(char c) {
    return static_cast<unsigned char>(c) <= ' ';
}

template <class Predicate>
std::size_t endOfRun(std::string_view text, std::size_t from, Predicate belongs) {
    while (from < text.size() && belongs(text[from]))
        ++from;
    return from;
}

}  // namespace

bool InfixScanner::scan() {
    for (; at_ < formula_.size() && message_.empty(); ++at_)
        scanCharacter(formula_[at_]);
    if (message_.empty()) finish();
    return message_.empty();
}

void InfixScanner::scanCharacter(char c) {
    if (c == '(') {
        openGroup();
    } else if (c == ')') {
        closeGroup();
    } else if (operators.find(c) != std::string_view::npos) {
        scanOperator(c);
    } else if (isNumberCharacter(c)) {
        scanNumber();
    } else if (isNameCharacter(c)) {
        scanName();
    } else if (!isBlank(c)) {
        fault("Unexpected character encountered");
    }
}

void InfixScanner::openGroup() {
    if (!expectOperand()) return;
    if (last_ == Last::Sign || last_ == Last::Function) last_ = Last::Operator;
    stack_.Push(std::string(openParenthesis));
    ++parentheses_;
    position_ = static_cast<std::int32_t>(at_) + 1;
}

void InfixScanner::closeGroup() {
    if (last_ != Last::Operand) return fault(operandExpected);
    if (parentheses_ == 0) return fault("Closing parenthesis without matching open parenthesis");
    for (std::string token = popToken(); token != openParenthesis; token = popToken())
        append(token);
    --parentheses_;
    position_ = static_cast<std::int32_t>(at_) + 1;
}

void InfixScanner::scanOperator(char c) {
    if (last_ == Last::Operand)
        binaryOperator(std::string_view(&c, 1));
    else
        sign(c);
    if (message_.empty()) position_ = static_cast<std::int32_t>(at_) + 1;
}

void InfixScanner::binaryOperator(std::string_view token) {
    const int priority = priorityOf(token);
    while (stack_.StackSize() > 0 && priorityOf(topToken()) >= priority)
        append(popToken());
    stack_.Push(std::string(token));
    last_ = priority == 1 ? Last::Sign : Last::Operator;
}

void InfixScanner::sign(char c) {
    if (last_ == Last::Sign || (c != '-' && c != '+')) return fault(operandExpected);
    if (c == '-') stack_.Push(std::string(unaryMinus));
    last_ = Last::Sign;
}

void InfixScanner::scanNumber() {
    if (!expectOperand()) return;
    const std::size_t end = endOfRun(formula_, at_, isNumberCharacter);
    const std::string_view number = formula_.substr(at_, end - at_);
    const std::size_t mark = number.find_first_of(".,");
    if (mark != std::string_view::npos && number.find_first_of(".,", mark + 1) != std::string_view::npos)
        return fault("Operand contains multiple decimal points");
    if (number == "." || number == ",") return fault("Invalid operand");
    if (last_ == Last::Function) return fault("Open parenthesis expected");
    append(number);
    last_ = Last::Operand;
    at_ = end - 1;
    position_ = static_cast<std::int32_t>(at_);
}

void InfixScanner::scanName() {
    const std::size_t end = endOfRun(formula_, at_, isNameCharacter);
    std::string name(formula_.substr(at_, end - at_));
    for (char& c : name)
        c = toUpper(c);
    position_ = static_cast<std::int32_t>(at_);
    at_ = end - 1;
    if (!expectOperand()) return;
    if (isFunction(name)) {
        stack_.Push(std::move(name));
        last_ = Last::Function;
    } else if (name.size() == 1 && variableNames.find(name[0]) != std::string_view::npos) {
        append(name + name);
        last_ = Last::Operand;
    } else {
        fault("Undefined symbol : '" + name + "'");
    }
}

void InfixScanner::finish() {
    position_ = static_cast<std::int32_t>(formula_.size());
    if (last_ != Last::Start && last_ != Last::Operand) return fault(operandExpected);
    if (parentheses_ > 0) return fault("Closing parenthesis expected");
    while (stack_.StackSize() > 0)
        append(popToken());
    position_ = 0;
}

std::string InfixScanner::topToken() const {
    return std::get<std::string>(stack_.GetPopValue());
}

std::string InfixScanner::popToken() {
    return std::get<std::string>(stack_.Pop());
}

void InfixScanner::append(std::string_view token) {
    postfix_ += token;
    postfix_ += ' ';
}

bool InfixScanner::expectOperand() {
    if (last_ == Last::Operand) fault(operatorExpected);
    return last_ != Last::Operand;
}

}  // namespace tessaplot::expr
