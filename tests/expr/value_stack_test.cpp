#include "expr/value_stack.h"

#include <gtest/gtest.h>

#include "expr/evaluator_error.h"

namespace tessaplot::expr {
namespace {

TEST(ValueStack, keepsKindsAndReadsReferencesWhenTheyArePopped) {
    Cls13 stack;
    double variable = 1;
    stack.Push(std::string("SIN"));
    stack.Push(0.5F);
    for (int i = 0; i < 1000; ++i)
        stack.Push(static_cast<std::int16_t>(i));
    stack.Push(Cls13::Reference{&variable});
    variable = 7;
    EXPECT_EQ(stack.GetPopValue(), Cls13::Value(7.0));
    variable = 8;
    EXPECT_EQ(stack.Pop(), Cls13::Value(8.0));
    for (int i = 999; i >= 0; --i)
        EXPECT_EQ(stack.Pop(), Cls13::Value(static_cast<std::int16_t>(i)));
    EXPECT_EQ(stack.Pop(), Cls13::Value(0.5F));
    EXPECT_EQ(stack.StackSize(), 1);
    EXPECT_EQ(stack.Pop(), Cls13::Value(std::string("SIN")));
}

TEST(ValueStack, refusesToGiveWhatItDoesNotHold) {
    Cls13 stack;
    stack.Push(1.0);
    stack.Pop();
    const auto failureOf = [](const auto& take) -> std::string {
        try {
            take();
        } catch (const EvaluatorError& error) {
            return std::to_string(error.number()) + " " + error.what();
        }
        return "none";
    };
    EXPECT_EQ(failureOf([&] { stack.Pop(); }), "2147746803 Pop method invoked on empty stack");
    EXPECT_EQ(failureOf([&] { stack.GetPopValue(); }), "2147746804 GetPopValue method invoked on empty stack");
    EXPECT_EQ(stack.StackSize(), 0);
}

}  // namespace
}  // namespace tessaplot::expr
