#include "qt/form_control.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "qt/swatch.h"
#include "qt/text.h"

namespace tessaplot::qt {

namespace {

using ui::Control;
using ui::ControlKind;
using ui::Form;

constexpr int boxCharacters = 13;
constexpr int sliderSteps = 1000;
constexpr QSize colorSize(56, 16);

/// A text box as wide as a number.
class NumberEdit : public QLineEdit {
 public:
    using QLineEdit::QLineEdit;

    QSize sizeHint() const override {
        const QSize plain = QLineEdit::sizeHint();
        return {fontMetrics().horizontalAdvance('0') * boxCharacters + 12, plain.height()};
    }
};

/// A list that is as high as its entries, within limits.
class EntryList : public QListWidget {
 public:
    using QListWidget::QListWidget;

    QSize sizeHint() const override {
        constexpr int fewest = 5;
        constexpr int most = 13;
        constexpr int widthBesideText = 24;
        const int row = count() > 0 ? sizeHintForRow(0) : fontMetrics().height() + 2;
        const int rows = std::clamp(count(), fewest, most);
        return {std::max(sizeHintForColumn(0) + widthBesideText, 150), rows * row + 2 * frameWidth()};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }
};

FormControl makeLabel(const Control&, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    return {label, nullptr, [label](const Control& control) { label->setText(qString(control.caption)); }};
}

FormControl makeTextBox(const Control& of, const FormAction& act, QWidget* parent) {
    auto* edit = new NumberEdit(parent);
    QObject::connect(edit, &QLineEdit::textEdited, edit, [act, name = of.name](const QString& text) {
        act([&](Form& form) { form.setText(name, text.toStdString()); });
    });
    return {edit, nullptr, [edit](const Control& control) {
                // Setting the same text again would move the cursor.
                if (const QString text = qString(control.text); text != edit->text()) edit->setText(text);
            }};
}

template <class Button>
FormControl makeSwitch(const Control& of, const FormAction& act, QWidget* parent) {
    auto* button = new Button(parent);
    QObject::connect(button, &QAbstractButton::toggled, button,
                     [act, name = of.name](bool on) { act([&](Form& form) { form.setOn(name, on); }); });
    return {button, nullptr, [button](const Control& control) {
                button->setText(shownCaption(control.caption));
                button->setChecked(control.on);
            }};
}

QIcon iconOf(const ui::Item& item) {
    return item.swatch.empty() ? QIcon() : swatchIcon(item.swatch, swatchSize);
}

FormControl makeComboBox(const Control& of, const FormAction& act, QWidget* parent) {
    auto* combo = new QComboBox(parent);
    combo->setIconSize(swatchSize);
    combo->setMaxVisibleItems(15);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    QObject::connect(combo, &QComboBox::currentIndexChanged, combo,
                     [act, name = of.name](int entry) { act([&](Form& form) { form.select(name, entry); }); });
    return {combo, nullptr, [combo, shown = std::vector<ui::Item>()](const Control& control) mutable {
                if (control.items != shown) {
                    combo->clear();
                    for (const ui::Item& item : control.items)
                        combo->addItem(iconOf(item), qString(item.text));
                    shown = control.items;
                }
                combo->setCurrentIndex(control.selected);
            }};
}

FormControl makeListBox(const Control& of, const FormAction& act, QWidget* parent) {
    auto* list = new EntryList(parent);
    list->setIconSize(swatchSize);
    list->setUniformItemSizes(true);
    QObject::connect(list, &QListWidget::currentRowChanged, list,
                     [act, name = of.name](int entry) { act([&](Form& form) { form.select(name, entry); }); });
    return {list, nullptr, [list, shown = std::vector<ui::Item>()](const Control& control) mutable {
                if (control.items != shown) {
                    list->clear();
                    for (const ui::Item& item : control.items)
                        new QListWidgetItem(iconOf(item), qString(item.text), list);
                    shown = control.items;
                    list->updateGeometry();
                }
                list->setCurrentRow(control.selected);
            }};
}

FormControl makeColorBox(const Control& of, const FormAction& act, QWidget* parent) {
    auto* box = new QPushButton(parent);
    box->setFlat(true);
    box->setAutoDefault(false);
    box->setIconSize(colorSize);
    box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    QObject::connect(box, &QPushButton::clicked, box,
                     [act, name = of.name] { act([&](Form& form) { form.click(name); }); });
    return {box, nullptr, [box](const Control& control) {
                box->setIcon(swatchIcon({control.color}, colorSize));
                box->setAccessibleDescription(colorOf(control.color).name());
            }};
}

FormControl makeButton(const Control& of, const FormAction& act, QWidget* parent) {
    auto* button = new QPushButton(parent);
    button->setAutoDefault(false);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    QObject::connect(button, &QPushButton::clicked, button,
                     [act, name = of.name] { act([&](Form& form) { form.click(name); }); });
    return {button, nullptr, [button](const Control& control) { button->setText(shownCaption(control.caption)); }};
}

int stepOf(const Control& control) {
    const double range = control.maximum - control.minimum;
    return range > 0 ? static_cast<int>(std::lround((control.value - control.minimum) / range * sliderSteps)) : 0;
}

/// A slider with its value beside it.
FormControl makeSlider(const Control& of, const FormAction& act, QWidget* parent) {
    auto* pane = new QWidget(parent);
    auto* slider = new QSlider(Qt::Horizontal, pane);
    slider->setObjectName(qString(of.name));
    slider->setRange(0, sliderSteps);
    slider->setSingleStep(sliderSteps / 100);
    slider->setPageStep(sliderSteps / 10);
    slider->setMinimumWidth(130);
    auto* value = new QLabel(pane);
    value->setMinimumWidth(value->fontMetrics().horizontalAdvance(QStringLiteral("-0.0000")));
    auto* row = new QHBoxLayout(pane);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(slider, 1);
    row->addWidget(value);
    pane->setFocusProxy(slider);
    QObject::connect(slider, &QSlider::valueChanged, slider, [act, name = of.name](int step) {
        act([&](Form& form) {
            const Control& control = form.control(name);
            form.slide(name, control.minimum + (control.maximum - control.minimum) * step / sliderSteps);
        });
    });
    return {pane, nullptr, [slider, value](const Control& control) {
                const QSignalBlocker quiet(slider);
                slider->setValue(stepOf(control));
                value->setText(QString::number(control.value, 'g', 4));
            }};
}

FormControl makeRamp(const Control&, QWidget* parent) {
    auto* strip = new RampStrip(parent);
    return {strip, nullptr, [strip](const Control& control) { strip->setRamp(control.ramp); }};
}

FormControl makeBare(const Control& control, const FormAction& act, QWidget* parent) {
    switch (control.kind) {
        case ControlKind::Label:
            return makeLabel(control, parent);
        case ControlKind::TextBox:
            return makeTextBox(control, act, parent);
        case ControlKind::CheckBox:
            return makeSwitch<QCheckBox>(control, act, parent);
        case ControlKind::OptionButton:
            return makeSwitch<QRadioButton>(control, act, parent);
        case ControlKind::ComboBox:
            return makeComboBox(control, act, parent);
        case ControlKind::ListBox:
            return makeListBox(control, act, parent);
        case ControlKind::ColorBox:
            return makeColorBox(control, act, parent);
        case ControlKind::Slider:
            return makeSlider(control, act, parent);
        case ControlKind::Button:
            return makeButton(control, act, parent);
        case ControlKind::Ramp:
            return makeRamp(control, parent);
    }
    return {};
}

bool showsOwnCaption(ControlKind kind) {
    return kind == ControlKind::Label || kind == ControlKind::CheckBox || kind == ControlKind::OptionButton ||
           kind == ControlKind::Button;
}

QLabel* makeCaption(const Control& control, QWidget* parent) {
    if (control.caption.empty() || showsOwnCaption(control.kind)) return nullptr;
    return new QLabel(parent);
}

}  // namespace

QString shownCaption(const std::string& caption) {
    return qString(caption).trimmed().replace('&', "&&");
}

FormControl makeFormControl(const Control& of, const FormAction& act, QWidget* parent) {
    QLabel* caption = makeCaption(of, parent);
    FormControl made = makeBare(of, act, parent);
    made.caption = caption;
    if (of.kind != ControlKind::Slider) made.widget->setObjectName(qString(of.name));
    if (caption) caption->setBuddy(made.widget);
    made.sync = [widget = made.widget, caption, bare = std::move(made.sync)](const Control& control) mutable {
        const QSignalBlocker quiet(widget);
        bare(control);
        widget->setEnabled(control.enabled);
        widget->setVisible(control.visible);
        widget->setToolTip(qString(control.hint));
        if (!caption) return;
        caption->setText(shownCaption(control.caption));
        caption->setEnabled(control.enabled);
        caption->setVisible(control.visible);
    };
    return made;
}

}  // namespace tessaplot::qt
