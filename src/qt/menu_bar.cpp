#include "qt/menu_bar.h"

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QString>
#include <algorithm>

#include "qt/command_icon.h"
#include "qt/text.h"
#include "ui/mouse.h"

namespace tessaplot::qt {

namespace {

/// Makes the menus while it walks the table from top to bottom.
class MenuMaker {
 public:
    MenuMaker(QMenuBar& bar, const RunCommand& run) : bar_(&bar), run_(run) {}
    MenuMaker(QMenu& popup, const RunCommand& run) : run_(run), roots_(1), open_{&popup} {}

    std::vector<QAction*> make(std::span<const ui::MenuEntry> entries) {
        for (std::size_t i = 0; i < entries.size(); ++i)
            add(entries[i], i + 1 < entries.size() && entries[i + 1].depth > entries[i].depth);
        return std::move(commands_);
    }

 private:
    void add(const ui::MenuEntry& entry, bool hasEntries) {
        open_.resize(static_cast<std::size_t>(entry.depth) + roots_);
        if (open_.empty() || hasEntries)
            open_.push_back(addMenu(entry));
        else if (entry.name.empty())
            open_.back()->addSeparator();
        else
            addCommand(entry);
    }

    QMenu* addMenu(const ui::MenuEntry& entry) {
        const QString caption = qString(entry.caption);
        QMenu* menu = open_.empty() ? bar_->addMenu(caption) : open_.back()->addMenu(caption);
        menu->setObjectName(qString(entry.name));
        return menu;
    }

    void addCommand(const ui::MenuEntry& entry) {
        QAction* action = open_.back()->addAction(qString(entry.caption));
        action->setObjectName(qString(entry.name));
        action->setIcon(commandIcon(action->objectName()));
        action->setCheckable(std::ranges::find(ui::dragCommands, entry.name) != ui::dragCommands.end());
        action->setShortcut(QKeySequence::fromString(qString(entry.shortcut), QKeySequence::PortableText));
        action->setStatusTip(qString(entry.hint));
        action->setMenuRole(QAction::NoRole);
        QObject::connect(action, &QAction::triggered, action, [run = run_, name = entry.name] { run(name); });
        commands_.push_back(action);
    }

    QMenuBar* bar_ = nullptr;
    const RunCommand& run_;
    std::size_t roots_ = 0;     ///< Menus that are there before the first entry.
    std::vector<QMenu*> open_;  ///< The menu of each depth above the next entry.
    std::vector<QAction*> commands_;
};

}  // namespace

std::vector<QAction*> fillMenuBar(QMenuBar& bar, std::span<const ui::MenuEntry> entries, const RunCommand& run) {
    return MenuMaker(bar, run).make(entries);
}

std::vector<QAction*> fillPopupMenu(QMenu& popup, std::span<const ui::MenuEntry> entries, const RunCommand& run) {
    return MenuMaker(popup, run).make(entries);
}

}  // namespace tessaplot::qt
