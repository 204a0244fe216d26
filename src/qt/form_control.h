#pragma once

#include <QString>
#include <functional>
#include <string>

#include "ui/form.h"

class QLabel;
class QWidget;

namespace tessaplot::qt {

/// Does one action of the user on a form, and afterwards shows anew what the form holds.
using FormAction = std::function<void(const std::function<void(ui::Form&)>&)>;

/// One control of a form as a widget that bears its name.
struct FormControl {
    QWidget* widget = nullptr;
    /// Stands before the widget; none for a control that shows its caption itself.
    QLabel* caption = nullptr;
    /// Brings the widget in line with the control without telling anybody.
    std::function<void(const ui::Control&)> sync;
};

/// Makes the widget of a control; what the user does to it goes to the form by way of `act`.
FormControl makeFormControl(const ui::Control& control, const FormAction& act, QWidget* parent);

/// A caption as widgets show it: without blanks round it, and with no character that stands for a key.
QString shownCaption(const std::string& caption);

}  // namespace tessaplot::qt
