#include <cstdlib>
#include <iostream>
#include <string>
#include <utility>

#include "core/document.h"
#include "gl/font_file.h"
#include "qt/application.h"
#include "qt/opengl_format.h"
#include "qt/program.h"

namespace {

constexpr const char* help =
    "Usage: tessaplot [DOCUMENT]\n"
    "\n"
    "Opens the document, or an empty one, in a window. All arguments together are one\n"
    "path, so that a path with blanks needs no quotes.\n"
    "\n"
    "  --help     show this text and exit\n"
    "  --version  show the version and exit\n"
    "\n"
    "Pictures without a window or a display are made by tessaplot-cli.\n";

/// The command line as it was typed: one path, which may hold blanks, and no options.
std::string commandLine(int argc, char** argv) {
    std::string line;
    for (int i = 1; i < argc; ++i)
        line += (i > 1 ? " " : "") + std::string(argv[i]);
    return line;
}

bool isSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

bool displayIsNamed() {
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet("QT_QPA_PLATFORM");
}

}  // namespace

int main(int argc, char** argv) {
    const std::string document = commandLine(argc, argv);
    if (document == "--help") {
        std::cout << help;
        return 0;
    }
    if (document == "--version") {
        std::cout << "tessaplot " TESSAPLOT_VERSION "\n";
        return 0;
    }
    if (!displayIsNamed()) {
        std::cerr << "tessaplot: there is no display; tessaplot-cli works without one.\n";
        return 1;
    }
    // Most of the start goes into the toolkit and the driver: what needs neither is done meanwhile.
    auto ahead = tessaplot::core::readAhead(document);
    const auto fonts = tessaplot::gl::prepareFonts();
    tessaplot::qt::requestOpenGl();
    int nameOnly = 1;  // The path may look like an option of Qt.
    tessaplot::qt::Application application(nameOnly, argv);
    return tessaplot::qt::runProgram(application, document, std::move(ahead));
}
