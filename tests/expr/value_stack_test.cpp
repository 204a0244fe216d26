#include "expr/value_stack.h"

#include <gtest/gtest.h>

#include "expr/evaluator_error.h"

namespace tessaplot::expr {
namespace {

TEST(ValueStack, keepsKindsAndReadsReferencesWhenTheyArePopped) {
    Cls13 stack;
    double variable = 1;
    stack.Push(std::string("SIN"));
    stack.Push(2.5);
    stack.Push(0.5F);
    stack.Push(std::int16_t{-1});
    stack.Push(Cls13::Reference{&variable});
    variable = 7;
    EXPECT_EQ(stack.GetPopValue(), Cls13::Value(7.0));
    variable = 8;
    EXPECT_EQ(stack.Pop(), Cls13::Value(8.0));
    EXPECT_EQ(stack.Pop(), Cls13::Value(std::int16_t{-1}));
    EXPECT_EQ(stack.Pop(), Cls13::Value(0.5F));
    EXPECT_EQ(stack.Pop(), Cls13::Value(2.5));
    EXPECT_EQ(stack.StackSize(), 1);
    EXPECT_EQ(stack.Pop(), Cls13::Value(std::string("SIN")));
}

TEST(ValueStack, growsAndKeepsItsContents) {
    Cls13 stack;
    for (int i = 0; i < 1000; ++i)
        stack.Push(static_cast<double>(i));
    EXPECT_EQ(stack.StackSize(), 1000);
    for (int i = 999; i >= 0; --i)
        EXPECT_EQ(stack.Pop(), Cls13::Value(static_cast<double>(i)));
}

TEST(ValueStack, refusesToGiveWhatItDoesNotHold) {
    Cls13 stack;
    stack.Push(1.0);
    stack.Pop();
    try {
        stack.Pop();
        FAIL();
    } catch (const EvaluatorError& error) {
        EXPECT_EQ(error.number(), 0x800403F3U);
        EXPECT_STREQ(error.what(), "Pop method invoked on empty stack");
    }
    try {
        stack.GetPopValue();
        FAIL();
    } catch (const EvaluatorError& error) {
        EXPECT_EQ(error.number(), 0x800403F4U);
        EXPECT_STREQ(error.what(), "GetPopValue method invoked on empty stack");
    }
    EXPECT_EQ(stack.StackSize(), 0);
}

}  // namespace
}  // namespace tessaplot::expr
