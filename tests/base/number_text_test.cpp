#include "base/number_text.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "base/failure.h"

namespace tessaplot::base {
namespace {

TEST(NumberText, aValueIsTheNumericPrefixOfItsText) {
    std::istringstream readings(
        "=0 abc=0 .=0 -=0 +5=5 12a=12 .5=0.5 5.=5 1.2.3=1.2 1e=1 1e+=1 2E-3=0.002 --1=0 inf=0 nan=0 0x10=0 1,5=1 "
        "1e-999=0 -0.0000001e-400=0 123456789012345678=123456789012345678");
    for (std::string reading; readings >> reading;) {
        const std::size_t end = reading.find('=');
        EXPECT_EQ(TextValue(reading.substr(0, end)), std::strtod(&reading[end + 1], nullptr)) << reading;
    }
    EXPECT_EQ(TextValue("  -1.5e+2x"), -150);
    EXPECT_EQ(TextValue("1 2 3"), 123);
    EXPECT_EQ(TextValue('.' + std::string(400, '0') + '1'), 0);
    for (const std::string& text : {std::string("1e999"), std::string("-1e400"), std::string("0.5e99999999999"),
                                    std::string("1E309"), std::string(400, '9')})
        EXPECT_THROW(TextValue(text), Failure) << text;
}

TEST(NumberText, integersRoundHalvesToEvenWithinTheirRange) {
    EXPECT_EQ(TextInteger("0.5"), 0);
    EXPECT_EQ(TextInteger("1.5"), 2);
    EXPECT_EQ(TextInteger("-2.5"), -2);
    EXPECT_THROW(TextInteger("3000000000"), Failure);
    EXPECT_THROW(roundToInteger(std::numeric_limits<double>::quiet_NaN()), Failure);
}

TEST(NumberText, generalTextHasFifteenDigitsAndReadsBack) {
    EXPECT_EQ(generalText(1e20), "1E+20");
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

TEST(NumberText, digitsAreReadAsTheLibraryReadsThem) {
    std::mt19937_64 random(5);
    for (int i = 0; i < 200000; ++i) {
        std::string text = random() % 2 == 0 ? "-" : "";
        for (std::size_t length = 1 + random() % 20; length > 0; --length)
            text += static_cast<char>('0' + random() % 10);
        if (random() % 8 != 0) text.insert(text.size() - random() % text.size(), ".");
        if (random() % 8 == 0) text[random() % text.size()] = "/:; ,-.\xB5"[random() % 8];
        std::string blankless = text;
        std::erase(blankless, ' ');
        char* end = nullptr;
        const double expected = std::strtod(blankless.c_str(), &end);
        ASSERT_EQ(TextValue(text), expected) << text;
        ASSERT_TRUE(end == blankless.c_str() || std::signbit(TextValue(text)) == std::signbit(expected)) << text;
    }
}

TEST(NumberText, textsAreCleanedForFilesCountsAndValues) {
    for (const auto& [text, kept] :
         {std::pair("1,5", "1.5"), {" 1 2 ", "12"}, {"sin(x)^2", "sin(x)^2"}, {"5%", ""}, {"1\t2", ""}})
        EXPECT_EQ(NumberToFileText(text), kept);
    std::string result;
    EXPECT_TRUE(CheckNumberText("1,5x", result));
    EXPECT_EQ(result, "1.5");
    EXPECT_FALSE(CheckNumberText(" 5", result) || CheckNumberText("", result));
    EXPECT_TRUE(CleanNumberText(" 1 2a", result));
    EXPECT_EQ(result, "12");
    EXPECT_TRUE(CleanNumberText("  ", result));
    EXPECT_EQ(result, "0");
    EXPECT_FALSE(CleanNumberText("a1", result) || CleanNumberText(" +1", result));
    for (const std::string text : {"", "1.5e-3", "1,5", " 1", "1a", "a1", "\xB5", "-"})
        EXPECT_EQ(IsCleanNumberText(text), CleanNumberText(text, result) && result == text) << text;
}

}  // namespace
}  // namespace tessaplot::base
