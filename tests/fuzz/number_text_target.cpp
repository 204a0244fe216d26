#include <cmath>
#include <cstring>
#include <string>

#include "base/failure.h"
#include "base/number_text.h"
#include "fuzz/property.h"
#include "fuzz/targets.h"

namespace tessaplot::fuzz {

namespace {

void readsBack(double value) {
    if (!std::isfinite(value)) return;
    require(base::TextValue(base::shortestText(value)) == value, "the shortest text reads back");
    const std::string general = base::generalText(value);
    require(base::NumberToFileText(general) == general, "a number goes into a document as it is");
    require(base::generalText(base::TextValue(general)) == general, "fifteen digits stay");
}

}  // namespace

void number_text(std::string_view bytes) {
    double value = 0;
    if (bytes.size() >= sizeof value) {
        std::memcpy(&value, bytes.data(), sizeof value);
        readsBack(value);
    }
    std::string once;
    std::string twice;
    if (base::CleanNumberText(bytes, once))
        require(base::CleanNumberText(once, twice) && once == twice, "a clean number is clean");
    if (base::CheckNumberText(bytes, once))
        require(base::CheckNumberText(once, twice) && once == twice, "a checked number is checked");
    once = base::NumberToFileText(bytes);
    require(base::NumberToFileText(once) == once, "the text for a file goes into a file");
    try {
        value = base::TextValue(bytes);
    } catch (const base::Failure&) {
        return;
    }
    readsBack(value);
    try {
        require(std::abs(base::TextInteger(bytes) - value) <= 0.5, "an integer is the nearest");
    } catch (const base::Failure&) {
        return;
    }
}

}  // namespace tessaplot::fuzz
