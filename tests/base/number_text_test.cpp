#include "base/number_text.h"

#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "base/failure.h"

namespace tessaplot::base {
namespace {

struct Reading {
    const char* text;
    double value;
};

class PrefixReading : public testing::TestWithParam<Reading> {};

TEST_P(PrefixReading, takesTheNumericPrefix) {
    EXPECT_EQ(TextValue(GetParam().text), GetParam().value) << '"' << GetParam().text << '"';
}

INSTANTIATE_TEST_SUITE_P(Texts, PrefixReading,
                         testing::Values(Reading{"", 0}, Reading{"abc", 0}, Reading{".", 0}, Reading{"-", 0},
                                         Reading{"+5", 5}, Reading{"  -1.5e+2x", -150}, Reading{"12a", 12},
                                         Reading{"1 2 3", 123}, Reading{".5", 0.5}, Reading{"5.", 5},
                                         Reading{"1.2.3", 1.2}, Reading{"1e", 1}, Reading{"1e+", 1},
                                         Reading{"2E-3", 0.002}, Reading{"--1", 0}, Reading{"inf", 0},
                                         Reading{"nan", 0}, Reading{"0x10", 0}, Reading{"1,5", 1}, Reading{"1e-999", 0},
                                         Reading{"-0.0000001e-400", 0},
                                         Reading{"123456789012345678", 123456789012345678.0}));

TEST(NumberText, refusesNumbersBeyondTheRangeOfAFloat) {
    for (const char* text : {"1e999", "-1e400", "0.5e99999999999", "1E309"})
        EXPECT_THROW(TextValue(text), Failure) << text;
    EXPECT_THROW(TextValue(std::string(400, '9')), Failure);
    EXPECT_EQ(TextValue('.' + std::string(400, '0') + '1'), 0);
    EXPECT_THROW(TextInteger("3000000000"), Failure);
    EXPECT_THROW(roundToInteger(std::numeric_limits<double>::quiet_NaN()), Failure);
}

TEST(NumberText, roundsHalvesToEven) {
    EXPECT_EQ(TextInteger("0.5"), 0);
    EXPECT_EQ(TextInteger("1.5"), 2);
    EXPECT_EQ(TextInteger("-2.5"), -2);
}

TEST(NumberText, generalTextHasFifteenDigitsAndReadsBack) {
    EXPECT_EQ(generalText(1e20), "1E+20");
    EXPECT_EQ(generalText(0.1), "0.1");
    EXPECT_EQ(generalText(-0.5), "-0.5");
    std::mt19937_64 random(7);
    for (int i = 0; i < 20000; ++i) {
        const double value = std::ldexp(static_cast<double>(random()), static_cast<int>(random() % 240) - 180);
        char expected[64];
        std::snprintf(expected, sizeof expected, "%.15G", value);
        ASSERT_EQ(generalText(value), expected);
        ASSERT_EQ(TextValue(expected), std::strtod(expected, nullptr));
        ASSERT_EQ(TextValue(shortestText(value)), value);
    }
}

TEST(NumberText, fileTextDropsBlanksAndTurnsCommas) {
    EXPECT_EQ(NumberToFileText("1,5"), "1.5");
    EXPECT_EQ(NumberToFileText(" 1 2 "), "12");
    EXPECT_EQ(NumberToFileText("sin(x)^2"), "sin(x)^2");
    EXPECT_EQ(NumberToFileText("5%"), "");
    EXPECT_EQ(NumberToFileText("1\t2"), "");
}

TEST(NumberText, countsAreReadStrictlyAndValuesLeniently) {
    std::string result;
    EXPECT_TRUE(CheckNumberText("1,5x", result));
    EXPECT_EQ(result, "1.5");
    EXPECT_FALSE(CheckNumberText(" 5", result));
    EXPECT_FALSE(CheckNumberText("", result));
    EXPECT_TRUE(CleanNumberText(" 1 2a", result));
    EXPECT_EQ(result, "12");
    EXPECT_TRUE(CleanNumberText("  ", result));
    EXPECT_EQ(result, "0");
    EXPECT_FALSE(CleanNumberText("a1", result));
    EXPECT_FALSE(CleanNumberText(" +1", result));
}

}  // namespace
}  // namespace tessaplot::base
