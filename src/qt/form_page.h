#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "qt/form_control.h"
#include "ui/form.h"

class QGridLayout;

namespace tessaplot::qt {

/// A control that is shown, with its name in the form.
struct NamedControl {
    std::string name;
    FormControl shown;
};

/// A page of a form: its frames as group boxes from top to bottom, in as many columns as the height asks for.
class FormPage : public QWidget {
 public:
    FormPage(const ui::Page& page, const ui::Form& form, const FormAction& act, QWidget* parent);

    /// Shows anew what the form holds.
    void sync(const ui::Form& form);
    /// The first control that takes keys, in the order in which they stand; none if there is no such control.
    QWidget* firstControl() const;

 private:
    /// The controls of one frame, in the box that holds them.
    struct Group {
        QWidget* box;
        QGridLayout* grid;
        std::vector<NamedControl> controls;
    };

    void addGroup(const ui::Frame& frame, const ui::Form& form, const FormAction& act);
    void alignLabels();
    void layOutGroups();

    std::vector<Group> groups_;
};

}  // namespace tessaplot::qt
