#include "base/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "base/failure.h"

namespace tessaplot::base {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

const char* skipDigits(const char* at, const char* end) {
    while (at != end && isDigit(*at))
        ++at;
    return at;
}

/// The end of the exponent that starts at `at`, or `at` itself if none stands there.
const char* skipExponent(const char* at, const char* end) {
    if (at == end || (*at != 'e' && *at != 'E')) return at;
    const char* digits = at + 1;
    if (digits != end && (*digits == '+' || *digits == '-')) ++digits;
    const char* last = skipDigits(digits, end);
    return last == digits ? at : last;
}

[[noreturn]] void failOverflow(std::string_view number) {
    constexpr std::size_t longest = 40;
    std::string shown(number.substr(0, longest));
    if (number.size() > longest) shown += "...";
    throw Failure(FailureCode::Overflow, "The number " + shown + " is out of range.");
}

/// True if the unsigned number [first, last) lies below 1, told by its decimal exponent alone.
bool isBelowOne(const char* first, const char* last) {
    const char* mark = std::find_if(first, last, [](char c) { return c == 'e' || c == 'E'; });
    const char* point = std::find(first, mark, '.');
    const char* leading = std::find_if(first, mark, [](char c) { return c != '0' && c != '.'; });
    const std::ptrdiff_t magnitude = leading < point ? point - leading : point + 1 - leading;
    int exponent = 0;
    if (mark != last) {
        const char* digits = mark[1] == '+' ? mark + 2 : mark + 1;
        if (std::from_chars(digits, last, exponent).ec == std::errc::result_out_of_range) return *digits == '-';
    }
    return magnitude + exponent <= 0;
}

/// Where the unsigned number that starts at `first` ends.
const char* numberEnd(const char* first, const char* end) {
    const char* at = skipDigits(first, end);
    if (at != end && *at == '.') at = skipDigits(at + 1, end);
    return skipExponent(at, end);
}

double valueWithoutBlanks(std::string_view text) {
    const char* at = text.data();
    const char* end = at + text.size();
    const bool negative = at != end && *at == '-';
    if (at != end && (*at == '-' || *at == '+')) ++at;
    // What starts otherwise is none of our numbers, but may be one to from_chars.
    if (at == end || (!isDigit(*at) && *at != '.')) return 0;
    double value = 0;
    if (std::from_chars(at, end, value).ec == std::errc::result_out_of_range) {
        const char* last = numberEnd(at, end);
        if (!isBelowOne(at, last)) failOverflow({at, static_cast<std::size_t>(last - at)});
    }
    return negative ? -value : value;
}

template <class Float>
std::string toShortest(Float value) {
    char buffer[64];
    const auto written = std::to_chars(std::begin(buffer), std::end(buffer), value);
    return {buffer, written.ptr};
}

constexpr std::string_view fileCharacters = "-1234567890.+*/^()abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view countCharacters = "-1234567890Ee.";

}  // namespace

double TextValue(std::string_view text) {
    if (text.find(' ') == std::string_view::npos) return valueWithoutBlanks(text);
    std::string joined(text);
    std::erase(joined, ' ');
    return valueWithoutBlanks(joined);
}

std::int32_t TextInteger(std::string_view text) {
    return roundToInteger(TextValue(text));
}

std::int32_t roundToInteger(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() && rounded <= std::numeric_limits<std::int32_t>::max()))
        failOverflow(generalText(value));
    return static_cast<std::int32_t>(rounded);
}

std::string generalText(double value) {
    // Larger numbers would be rounded to one that is out of range.
    constexpr double largest = 1.79769313486231E+308;
    if (std::isfinite(value)) value = std::clamp(value, -largest, largest);
    char buffer[64];
    const auto written = std::to_chars(std::begin(buffer), std::end(buffer), value, std::chars_format::general, 15);
    std::string text(buffer, written.ptr);
    std::replace(text.begin(), text.end(), 'e', 'E');
    return text;
}

std::string shortestText(double value) {
    return toShortest(value);
}

std::string shortestText(float value) {
    return toShortest(value);
}

std::string NumberToFileText(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (const char c : text) {
        if (c == ' ') continue;
        if (c == ',')
            result += '.';
        else if (fileCharacters.find(c) != std::string_view::npos)
            result += c;
        else
            return {};
    }
    return result;
}

bool CheckNumberText(std::string_view text, std::string& result) {
    result.clear();
    for (const char c : text) {
        if (c == ',')
            result += '.';
        else if (countCharacters.find(c) != std::string_view::npos)
            result += c;
        else
            break;
    }
    return !result.empty();
}

bool CleanNumberText(std::string_view text, std::string& result) {
    result.clear();
    bool stopped = false;
    for (const char c : text) {
        if (c == ' ') continue;
        if (c == ',') {
            result += '.';
        } else if (countCharacters.find(c) != std::string_view::npos) {
            result += c;
        } else {
            stopped = true;
            break;
        }
    }
    if (!result.empty()) return true;
    if (stopped) return false;
    result = "0";
    return true;
}

}  // namespace tessaplot::base
