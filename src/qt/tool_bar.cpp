#include "qt/tool_bar.h"

#include <QAction>
#include <algorithm>

#include "qt/command_icon.h"
#include "qt/text.h"
#include "ui/toolbar_table.h"

namespace tessaplot::qt {

namespace {

constexpr QSize smallPictures(16, 16);
constexpr QSize largePictures(24, 24);

}  // namespace

ToolBar::ToolBar(const std::function<void(int button)>& press, QWidget* parent) : QToolBar(parent) {
    setObjectName("Toolbar1");
    setWindowTitle(tr("Toolbar"));
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);  // The one of the window would hide the bar for good.
    for (const ui::ToolbarButton& place : ui::toolbar()) {
        if (!place.command.empty())
            addButton(place, press);
        else if (!buttons_.empty())
            addSeparator();
    }
}

void ToolBar::addButton(const ui::ToolbarButton& place, const std::function<void(int button)>& press) {
    const QString hint = qString(place.hint);
    QAction* action = addAction(commandIcon(qString(place.command)), hint);
    action->setObjectName(QString("Toolbar1_%1").arg(place.index));
    action->setStatusTip(hint);
    action->setCheckable(std::ranges::find(ui::dragCommands, place.command) != ui::dragCommands.end());
    connect(action, &QAction::triggered, this, [press, index = place.index] { press(index); });
    buttons_.push_back({place.index, place.command, action});
}

void ToolBar::sync(const ui::frmF1& form) {
    for (const Button& button : buttons_) {
        button.action->setEnabled(form.isButtonEnabled(button.index));
        button.action->setChecked(button.command == form.dragCommand());
    }
}

void ToolBar::fitInto(int width) {
    setIconSize(largePictures);
    if (sizeHint().width() > width) setIconSize(smallPictures);
}

}  // namespace tessaplot::qt
