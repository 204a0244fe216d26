#include "qt/form_page.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace tessaplot::qt {

namespace {

using ui::ControlKind;

/// Frames that are higher than this together stand in a further column.
constexpr int highestColumn = 540;

QWidget* makeBox(const std::string& caption, QWidget* parent) {
    if (caption.empty()) return new QWidget(parent);
    return new QGroupBox(shownCaption(caption), parent);
}

/// What stands together in a row: a widget, and the label before it, or above it if it is a list.
struct Unit {
    QWidget* label = nullptr;
    QWidget* field = nullptr;
};
using Row = std::vector<Unit>;

bool isList(const QWidget* field) {
    return qobject_cast<const QListWidget*>(field) != nullptr;
}

bool isPlainButton(const QWidget* field) {
    const auto* button = qobject_cast<const QPushButton*>(field);
    return button && !button->isFlat();
}

/// True for a field that makes use of more room than it needs.
bool spreads(const QWidget* field) {
    return field->sizePolicy().horizontalPolicy() != QSizePolicy::Fixed && !qobject_cast<const QLabel*>(field) &&
           !qobject_cast<const QAbstractButton*>(field);
}

/// A label names the widget that follows it, unless that has a caption of its own. Who hears the form rather than sees
/// it is told the last caption of the row for a widget without one.
Row unitsOf(const std::vector<NamedControl>& controls, const ui::Form& form) {
    Row units;
    QLabel* waiting = nullptr;
    QString said;
    for (const auto& [name, shown] : controls) {
        const ui::Control& control = form.control(name);
        const bool isLabel = control.kind == ControlKind::Label;
        const bool takesLabel = waiting && !isLabel && !shown.caption;
        if (waiting && !takesLabel) units.push_back({nullptr, waiting});
        if (takesLabel) waiting->setBuddy(shown.widget);
        if (control.caption.size() > 1) said = QString::fromStdString(control.caption).trimmed();
        QWidget* heard = shown.widget->focusProxy() ? shown.widget->focusProxy() : shown.widget;
        heard->setAccessibleName(said);
        QWidget* label = takesLabel ? waiting : shown.caption;
        waiting = isLabel ? qobject_cast<QLabel*>(shown.widget) : nullptr;
        if (!waiting) units.push_back({label, shown.widget});
    }
    if (waiting) units.push_back({nullptr, waiting});
    return units;
}

void placeUnit(QGridLayout& grid, const Unit& unit, int row, int column, int end) {
    if (unit.label && isList(unit.field)) {
        auto* stack = new QVBoxLayout;
        stack->addWidget(unit.label);
        stack->addWidget(unit.field);
        grid.addLayout(stack, row, column, 1, end - column);
        return;
    }
    if (unit.label) grid.addWidget(unit.label, row, column);
    const int first = unit.label ? column + 1 : column;
    const bool fixed = unit.field->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
    grid.addWidget(unit.field, row, first, 1, end - first, fixed ? Qt::AlignLeft : Qt::Alignment());
}

void placeButtons(QGridLayout& grid, const Row& buttons, int row, int columns) {
    auto* line = new QHBoxLayout;
    for (const Unit& unit : buttons)
        line->addWidget(unit.field);
    line->addStretch(1);
    // One on its own stands below the fields.
    const int first = buttons.size() == 1 ? 1 : 0;
    grid.addLayout(line, row, first, 1, columns - first);
}

/// Each unit takes a column for its label and one for its field; the last of a row takes what is left.
void placeRows(QGridLayout& grid, const std::vector<Row>& rows) {
    const std::size_t widest = std::ranges::max(rows, {}, &Row::size).size();
    const int columns = 2 * static_cast<int>(widest);
    bool anySpreads = false;
    bool anyLabel = false;
    for (int r = 0; r < static_cast<int>(rows.size()); ++r) {
        const Row& units = rows[static_cast<std::size_t>(r)];
        if (std::ranges::all_of(units, isPlainButton, &Unit::field)) {
            placeButtons(grid, units, r, columns);
            continue;
        }
        for (std::size_t u = 0; u < units.size(); ++u) {
            const int column = 2 * static_cast<int>(u);
            const bool last = u + 1 == units.size();
            placeUnit(grid, units[u], r, column, last ? columns : column + 2);
            anyLabel = anyLabel || units[u].label;
            if (!spreads(units[u].field)) continue;
            grid.setColumnStretch(column + 1, 1);
            anySpreads = true;
        }
    }
    // Fields that use no more room stay close to their labels.
    if (anyLabel && !anySpreads) grid.setColumnStretch(columns, 1);
}

/// The label in a cell of the grid that names a field; null for none.
QLabel* labelAt(const QGridLayout& grid, int row, int column) {
    const QLayoutItem* item = grid.itemAtPosition(row, column);
    auto* label = item ? qobject_cast<QLabel*>(item->widget()) : nullptr;
    return label && label->buddy() ? label : nullptr;
}

}  // namespace

FormPage::FormPage(const ui::Page& page, const ui::Form& form, const FormAction& act, QWidget* parent)
    : QWidget(parent) {
    for (const ui::Frame& frame : page.frames)
        addGroup(frame, form, act);
    sync(form);
    layOutGroups();
}

void FormPage::addGroup(const ui::Frame& frame, const ui::Form& form, const FormAction& act) {
    if (frame.rows.empty()) return;
    QWidget* box = makeBox(frame.caption, this);
    Group group{box, new QGridLayout(box), {}};
    std::vector<Row> rows;
    for (const std::vector<std::string>& names : frame.rows) {
        std::vector<NamedControl> controls;
        controls.reserve(names.size());
        for (const std::string& name : names)
            controls.push_back({name, makeFormControl(form.control(name), act, group.box)});
        rows.push_back(unitsOf(controls, form));
        std::ranges::move(controls, std::back_inserter(group.controls));
    }
    placeRows(*group.grid, rows);
    groups_.push_back(std::move(group));
}

void FormPage::sync(const ui::Form& form) {
    for (const Group& group : groups_) {
        bool anyVisible = false;
        for (const auto& [name, shown] : group.controls) {
            shown.sync(form.control(name));
            anyVisible = anyVisible || form.control(name).visible;
        }
        group.box->setVisible(anyVisible);
    }
}

/// Groups with as many columns have labels of one width in each, so that what follows stands in one line.
void FormPage::alignLabels() {
    std::map<std::pair<int, int>, std::vector<QWidget*>> labels;
    for (const Group& group : groups_) {
        const int columns = group.grid->columnCount();
        for (int row = 0; row < group.grid->rowCount(); ++row)
            for (int column = 0; column < columns; column += 2)
                if (QLabel* label = labelAt(*group.grid, row, column)) labels[{columns, column}].push_back(label);
    }
    for (const auto& [place, column] : labels) {
        int width = 0;
        for (const QWidget* label : column)
            width = std::max(width, label->sizeHint().width());
        for (QWidget* label : column)
            label->setMinimumWidth(width);
    }
}

void FormPage::layOutGroups() {
    alignLabels();
    int total = 0;
    for (const Group& group : groups_)
        if (!group.box->isHidden()) total += group.box->sizeHint().height();
    const int columns = (total + highestColumn - 1) / highestColumn;
    const int share = columns > 0 ? total / columns : 0;
    auto* row = new QHBoxLayout(this);
    QVBoxLayout* column = nullptr;
    int height = 0;
    for (const Group& group : groups_) {
        const int own = group.box->isHidden() ? 0 : group.box->sizeHint().height();
        if (!column || (height + own / 2 > share && height > 0 && row->count() < columns)) {
            if (column) column->addStretch(1);
            column = new QVBoxLayout;
            row->addLayout(column);
            height = 0;
        }
        column->addWidget(group.box);
        height += own;
    }
    if (column) column->addStretch(1);
}

QWidget* FormPage::firstControl() const {
    for (const Group& group : groups_)
        for (const auto& [name, shown] : group.controls)
            if (shown.widget->focusPolicy() != Qt::NoFocus && shown.widget->isEnabled() && !shown.widget->isHidden())
                return shown.widget;
    return nullptr;
}

}  // namespace tessaplot::qt
