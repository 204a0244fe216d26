#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessaplot::base {

/// The number that the prefix of `text` gives: blanks are skipped wherever they stand, then an optional sign, digits
/// with at most one point and an exponent; the first other character ends it. No digits give 0. The decimal mark is
/// the point, whatever the locale. Throws Overflow for a number beyond the range of a 64-bit float.
double TextValue(std::string_view text);

/// `TextValue` rounded to the nearest integer, halves to even. Throws Overflow beyond 32 bits.
std::int32_t TextInteger(std::string_view text);

/// The nearest 32-bit integer, halves to even. Throws Overflow beyond 32 bits or for a not-a-number.
std::int32_t roundToInteger(double value);

/// General text of a number: at most 15 significant digits, no trailing zeros, an exponent such as in "1E+20" where
/// the plain form would be longer.
std::string generalText(double value);

/// The text that reads back as exactly `value` and is the shortest to do so.
std::string shortestText(double value);
std::string shortestText(float value);

/// A number as it goes into a document: blanks are dropped, a comma becomes a point, and any character that cannot
/// stand in a number or a formula makes the whole result empty.
std::string NumberToFileText(std::string_view text);

/// The strict reading of a count: takes "-1234567890Ee.", turns a comma into a point and stops at the first other
/// character. True if at least one character was taken; `result` is what was taken.
bool CheckNumberText(std::string_view text, std::string& result);

/// The lenient reading of a value: as `CheckNumberText`, but blanks are dropped, and an empty or blank text gives "0".
/// False only if a bad character stands first.
bool CleanNumberText(std::string_view text, std::string& result);

/// True for a text that `CleanNumberText` gives back as it is.
bool IsCleanNumberText(std::string_view text);

}  // namespace tessaplot::base
