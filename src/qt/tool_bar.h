#pragma once

#include <QToolBar>
#include <functional>
#include <string_view>
#include <vector>

#include "ui/main_window.h"
#include "ui/toolbar_table.h"

namespace tessaplot::qt {

/// The toolbar, made from its table: a button for each command, a gap for each place without one.
class ToolBar : public QToolBar {
    Q_OBJECT

 public:
    /// `press` takes the number of a button.
    ToolBar(const std::function<void(int button)>& press, QWidget* parent);

    /// Enables the buttons as the logic says, and shows which drag mode is chosen.
    void sync(const ui::frmF1& form);

    /// Takes the large pictures if all buttons then fit into a window of that width, else the small ones.
    void fitInto(int width);

 private:
    struct Button {
        int index;
        std::string_view command;
        QAction* action;
    };

    void addButton(const ui::ToolbarButton& place, const std::function<void(int button)>& press);

    std::vector<Button> buttons_;
};

}  // namespace tessaplot::qt
