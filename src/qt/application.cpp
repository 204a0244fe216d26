#include "qt/application.h"

#include <clocale>
#include <exception>

namespace tessaplot::qt {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    // Qt takes over the locale of the environment; numbers in text keep the decimal point.
    std::setlocale(LC_NUMERIC, "C");
    setApplicationName("tessaplot");
    setDesktopFileName("tessaplot");
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
