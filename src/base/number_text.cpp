#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstring>
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

/// The number that `at[0]` to `at[7]` make if all of them are digits, the first of which lies in the lowest byte. Works
/// on all of them at once: joins them in pairs, then in fours, then all.
bool readEightDigits(const char* at, std::uint64_t& number) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, at, sizeof bytes);
    if (((bytes & (bytes + 0x0606060606060606)) & 0xF0F0F0F0F0F0F0F0) != 0x3030303030303030) return false;
    bytes = (bytes & 0x0F0F0F0F0F0F0F0F) * (1 + (10 << 8)) >> 8;
    bytes = (bytes & 0x00FF00FF00FF00FF) * (1 + (100 << 16)) >> 16;
    number = (bytes & 0x0000FFFF0000FFFF) * (1 + (10000ULL << 32)) >> 32;
    return true;
}

/// The value of an unsigned text of digits and at most one point, if its digits make a number below 2^53: that number
/// and the power of ten below it are exact then, and their quotient is rounded but once (W. D. Clinger, How to read
/// floating point numbers accurately, PLDI 1990). False for any other text.
bool readPlainDecimal(std::string_view text, double& value) {
    constexpr std::size_t longest = 19;
    constexpr std::array<double, longest> powersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8, 1e9,
                                                      1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18};
    if (FLT_EVAL_METHOD != 0 || text.size() > longest) return false;
    const char* const end = text.data() + text.size();
    std::uint64_t digits = 0;
    const auto take = [&digits, end](const char* at) {
        for (; at != end && isDigit(*at); ++at)
            digits = 10 * digits + static_cast<std::uint64_t>(*at - '0');
        return at;
    };
    const char* const point = take(text.data());
    const char* const places = point != end && *point == '.' ? point + 1 : point;
    const char* at = places;
    std::uint64_t eight = 0;
    if (std::endian::native == std::endian::little && end - at >= 8 && readEightDigits(at, eight)) {
        digits = digits * 100000000 + eight;
        at += 8;
    }
    if (take(at) != end || text.size() == static_cast<std::size_t>(places - point) || digits >= 1ULL << 53U)
        return false;
    value = static_cast<double>(digits) / powersOfTen[static_cast<std::size_t>(end - places)];
    return true;
}

template <class Float>
std::string toShortest(Float value) {
    char buffer[64];
    const auto written = std::to_chars(std::begin(buffer), std::end(buffer), value);
    return {buffer, written.ptr};
}

constexpr std::string_view fileCharacters = "-1234567890.+*/^()abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::array<bool, 256> isCountCharacter = [] {
    std::array<bool, 256> table{};
    for (const char c : std::string_view("-1234567890Ee."))
        table[static_cast<unsigned char>(c)] = true;
    return table;
}();

bool takesInCount(char c) {
    return isCountCharacter[static_cast<unsigned char>(c)];
}

}  // namespace

double TextValue(std::string_view text) {
    const bool negative = text.starts_with('-');
    double value = 0;
    if (readPlainDecimal(text.substr(negative ? 1 : 0), value)) return negative ? -value : value;
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
        else if (takesInCount(c))
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
        } else if (takesInCount(c)) {
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

bool IsCleanNumberText(std::string_view text) {
    // All of them are looked at, since a way out would be a branch for each.
    bool isClean = !text.empty();
    for (const char c : text)
        isClean &= takesInCount(c);
    return isClean;
}

}  // namespace tessaplot::base
