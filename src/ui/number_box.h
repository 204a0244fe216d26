#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/desktop.h"
#include "ui/form.h"

namespace tessaplot::ui {

/// A number as it stands in a text box: it reads back as exactly this one.
std::string boxText(double value);
std::string boxText(float value);
/// A number as a text box proposes it, rounded for reading.
std::string proposedText(double value);

/// True for a text of blanks alone.
bool isBlank(std::string_view text);

/// The number that starts the text, read as by `readNumber` but without a message.
std::optional<double> numberIn(std::string_view text);

/// Shows a message with OK alone.
void tell(const platform::Desktop& desktop, std::string_view title, std::string_view text);

/// "Illegal data exist."
void tellIllegalData(const platform::Desktop& desktop);
/// "Input all parameters please."
void tellMissingEntry(const platform::Desktop& desktop);

/// The number in a text box, whose text becomes the cleaned one: blanks are dropped, a comma is a point, and the first
/// character that cannot stand in a number ends it. Nothing, after a message, for an empty box and for text without a
/// number or out of range.
std::optional<double> readNumber(Control& box, const platform::Desktop& desktop);

/// `readNumber` for a whole number from `least` to `most`; any other number is answered with `message`.
std::optional<int> readCount(Control& box, int least, int most, std::string_view message,
                             const platform::Desktop& desktop);

}  // namespace tessaplot::ui
