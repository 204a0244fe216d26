#pragma once

#include <QApplication>
#include <functional>

namespace tessaplot::qt {

/// The application object, which lets no failure cross the event loop: one that no command handled goes to the last
/// resort.
class Application : public QApplication {
 public:
    using LastResort = std::function<void(const char* message)>;

    Application(int& argc, char** argv);

    /// Hands over what is to be done with an unhandled failure; without it such a failure ends the program with
    /// status 1.
    void setLastResort(LastResort lastResort) { lastResort_ = std::move(lastResort); }

    bool notify(QObject* receiver, QEvent* event) override;

 private:
    void failed(const char* message);

    LastResort lastResort_;
};

}  // namespace tessaplot::qt
