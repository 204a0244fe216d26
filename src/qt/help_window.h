#pragma once

#include <QString>
#include <QTextBrowser>

namespace tessaplot::qt {

/// Shows a page of the help, in HTML or Markdown, and those that it leads to.
class HelpWindow : public QTextBrowser {
    Q_OBJECT

 public:
    /// Shows the page in a window of its own, one for each parent.
    static void open(QWidget* parent, const QString& file);

 private:
    explicit HelpWindow(QWidget* parent);
};

}  // namespace tessaplot::qt
