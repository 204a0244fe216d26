#include "qt/help_window.h"

#include <QFontMetrics>
#include <QUrl>

namespace tessaplot::qt {

namespace {

constexpr int columns = 90;
constexpr int lines = 40;
constexpr qreal margin = 12;

}  // namespace

HelpWindow::HelpWindow(QWidget* parent) : QTextBrowser(parent) {
    setWindowFlag(Qt::Window);
    setObjectName("Help");
    setWindowTitle(tr("Tessaplot Help"));
    setOpenExternalLinks(true);
    document()->setDocumentMargin(margin);
    resize(fontMetrics().averageCharWidth() * columns, fontMetrics().lineSpacing() * lines);
}

void HelpWindow::open(QWidget* parent, const QString& file) {
    auto* window = parent->findChild<HelpWindow*>("Help");
    if (window == nullptr) window = new HelpWindow(parent);
    window->setSource(QUrl::fromLocalFile(file));
    window->show();
    window->raise();
    window->activateWindow();
}

}  // namespace tessaplot::qt
