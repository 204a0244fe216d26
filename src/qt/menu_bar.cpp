#include "qt/menu_bar.h"

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QString>

namespace tessaplot::qt {

namespace {

QString qString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Makes the menus while it walks the table from top to bottom.
class MenuMaker {
 public:
    MenuMaker(QMenuBar& bar, const std::function<void(std::string_view)>& run) : bar_(bar), run_(run) {}

    void add(const ui::MenuEntry& entry, bool hasEntries) {
        open_.resize(static_cast<std::size_t>(entry.depth));
        if (entry.depth == 0 || hasEntries)
            open_.push_back(addMenu(entry));
        else if (entry.name.empty())
            open_.back()->addSeparator();
        else
            addCommand(entry);
    }

    std::vector<QAction*> commands;

 private:
    QMenu* addMenu(const ui::MenuEntry& entry) {
        const QString caption = qString(entry.caption);
        QMenu* menu = open_.empty() ? bar_.addMenu(caption) : open_.back()->addMenu(caption);
        menu->setObjectName(qString(entry.name));
        return menu;
    }

    void addCommand(const ui::MenuEntry& entry) {
        QAction* action = open_.back()->addAction(qString(entry.caption));
        action->setObjectName(qString(entry.name));
        action->setShortcut(QKeySequence::fromString(qString(entry.shortcut), QKeySequence::PortableText));
        action->setStatusTip(qString(entry.hint));
        action->setMenuRole(QAction::NoRole);
        QObject::connect(action, &QAction::triggered, &bar_, [run = run_, name = entry.name] { run(name); });
        commands.push_back(action);
    }

    QMenuBar& bar_;
    const std::function<void(std::string_view)>& run_;
    std::vector<QMenu*> open_;  ///< The menu of each depth above the next entry.
};

}  // namespace

std::vector<QAction*> fillMenuBar(QMenuBar& bar, std::span<const ui::MenuEntry> entries,
                                  const std::function<void(std::string_view)>& run) {
    MenuMaker maker(bar, run);
    for (std::size_t i = 0; i < entries.size(); ++i)
        maker.add(entries[i], i + 1 < entries.size() && entries[i + 1].depth > entries[i].depth);
    return maker.commands;
}

}  // namespace tessaplot::qt
