#include "qt/application.h"

#include <QIcon>
#include <clocale>
#include <exception>

/// A linker drops the resources of a library that nobody names. The macro works outside of namespaces only.
static void keepResources() {
    Q_INIT_RESOURCE(resources);
}

namespace tessaplot::qt {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    keepResources();
    // Qt takes over the locale of the environment; numbers in text keep the decimal point.
    std::setlocale(LC_NUMERIC, "C");
    setApplicationName("tessaplot");
    setDesktopFileName("tessaplot");
    setWindowIcon(QIcon(":/tessaplot/packaging/tessaplot.svg"));
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        failed(failure.what());
    } catch (...) {
        failed("An unknown failure.");
    }
    return false;
}

void Application::failed(const char* message) {
    if (lastResort_)
        lastResort_(message);
    else
        exit(1);
}

}  // namespace tessaplot::qt
