#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "base/color.h"

namespace tessaplot::ui {

/// The widgets that a form is made of; a ramp is a strip of colours that only shows.
enum class ControlKind { Label, TextBox, CheckBox, OptionButton, ComboBox, ListBox, ColorBox, Slider, Button, Ramp };

/// One entry of a combo or list box, with the colours, from left to right, that picture it.
struct Item {
    std::string text;
    std::vector<base::PackedColor> swatch = {};

    bool operator==(const Item&) const = default;
};

/// One control of a form: what it shows and what the user set. The caption of a text, combo, list or colour box, a
/// slider or a ramp stands before it; without one the label before it in its row is its name for the user.
struct Control {
    ControlKind kind = ControlKind::Label;
    std::string name;
    std::string caption;
    std::string text = {};         ///< Of a text box.
    bool on = false;               ///< Of a check box or option button.
    std::vector<Item> items = {};  ///< Of a combo or list box.
    int selected = -1;             ///< 0-based entry of a combo or list box, -1 for none.
    base::PackedColor color = 0;   ///< Of a colour box.
    double value = 0;              ///< Of a slider, from `minimum` to `maximum`.
    double minimum = 0;
    double maximum = 1;
    std::vector<base::PackedColor> ramp = {};  ///< Of a ramp: its colours from left to right.
    bool enabled = true;
    bool visible = true;
    std::string hint = {};
};

/// Controls that stand together under a caption; each row is read from left to right. Option buttons of a frame exclude
/// each other.
struct Frame {
    std::string caption;
    std::vector<std::vector<std::string>> rows;  ///< Names of controls.
};

/// A tab of a form; a form with one page shows no tabs.
struct Page {
    std::string caption;
    std::vector<Frame> frames;
};

/// A dialog as data with its logic, without a widget. The desktop shows it, hands in what the user does, and shows anew
/// what the form holds after each action, until the form is closed.
class Form {
 public:
    Form(std::string name, std::string caption);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& name() const { return name_; }
    const std::string& caption() const { return caption_; }
    const std::vector<Page>& pages() const { return pages_; }
    /// Names of the two buttons that every form ends with; one without a cancel name has OK alone.
    const std::string& okName() const { return okName_; }
    const std::string& cancelName() const { return cancelName_; }

    /// Throws SubscriptOutOfRange for a name that the form does not have.
    Control& control(std::string_view name);
    const Control& control(std::string_view name) const;

    /// The user's actions. One on a disabled or hidden control does nothing, nor does one that leaves it as it is.
    void setText(std::string_view name, std::string_view text);
    void setOn(std::string_view name, bool on);
    void select(std::string_view name, int entry);
    void slide(std::string_view name, double value);
    void click(std::string_view name);  ///< A button, or a colour box.

    /// OK and Cancel; `isOpen` tells whether the dialog stays.
    void accept();
    void cancel();
    bool isOpen() const { return open_; }

 protected:
    Control& add(Control control);
    void addPage(Page page);
    void nameButtons(std::string ok, std::string cancel);
    void close() { open_ = false; }

    /// After the user changed a control.
    virtual void changed(Control& control);
    /// After the user pressed a button or a colour box.
    virtual void pressed(Control& control);
    /// Checks and applies; closes the form if all is well.
    virtual void ok() = 0;
    virtual void dismissed();

 private:
    Control* usable(std::string_view name);
    void switchOffOthers(const Control& chosen);

    std::string name_;
    std::string caption_;
    std::string okName_ = "cmdOK";
    std::string cancelName_ = "cmdCancel";
    std::deque<Control> controls_;  ///< A deque, so that controls stay where they are while others are added.
    std::vector<Page> pages_;
    bool open_ = true;
};

}  // namespace tessaplot::ui
