#include "ui/number_box.h"

#include <cmath>
#include <string>

#include "base/failure.h"
#include "base/number_text.h"

namespace tessaplot::ui {

namespace {

/// The plus of an exponent is no character of a box and would end the number.
std::string withoutPlus(std::string text) {
    std::erase(text, '+');
    return text;
}

/// The value of cleaned text. Nothing if it is out of range.
std::optional<double> valueOf(const std::string& cleaned) {
    try {
        return base::TextValue(cleaned);
    } catch (const base::Failure&) {
        return std::nullopt;
    }
}

}  // namespace

std::string boxText(double value) {
    return withoutPlus(base::shortestText(value));
}

std::string boxText(float value) {
    return withoutPlus(base::shortestText(value));
}

std::string proposedText(double value) {
    return withoutPlus(base::generalText(value));
}

bool isBlank(std::string_view text) {
    return text.find_first_not_of(' ') == std::string_view::npos;
}

std::optional<double> numberIn(std::string_view text) {
    std::string cleaned;
    if (isBlank(text) || !base::CleanNumberText(text, cleaned)) return std::nullopt;
    return valueOf(cleaned);
}

void tell(const platform::Desktop& desktop, std::string_view title, std::string_view text) {
    desktop.askUser({std::string(title), std::string(text)});
}

void tellIllegalData(const platform::Desktop& desktop) {
    tell(desktop, "Error", "Illegal data exist.");
}

void tellMissingEntry(const platform::Desktop& desktop) {
    tell(desktop, "Note", "Input all parameters please.");
}

std::optional<double> readNumber(Control& box, const platform::Desktop& desktop) {
    if (isBlank(box.text)) {
        tellMissingEntry(desktop);
        return std::nullopt;
    }
    std::string cleaned;
    const bool holdsNumber = base::CleanNumberText(box.text, cleaned);
    const std::optional<double> value = holdsNumber ? valueOf(cleaned) : std::nullopt;
    if (!value) {
        tellIllegalData(desktop);
        return std::nullopt;
    }
    box.text = cleaned;
    return value;
}

std::optional<int> readCount(Control& box, int least, int most, std::string_view message,
                             const platform::Desktop& desktop) {
    const std::optional<double> value = readNumber(box, desktop);
    if (!value) return std::nullopt;
    if (*value >= least && *value <= most && std::floor(*value) == *value) return static_cast<int>(*value);
    tell(desktop, "Error", message);
    return std::nullopt;
}

}  // namespace tessaplot::ui
