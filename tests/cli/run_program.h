#pragma once

#include <cstdlib>
#include <string>
#include <vector>

#include <sys/wait.h>

#include "base/files.h"

namespace tessaplot {

/// How a program ended and what it printed.
struct ProgramRun {
    int status = -1;
    std::string out;
    std::string err;
};

inline std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char c : text)
        result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return result + "'";
}

/// Runs a program to its end, without a display.
inline ProgramRun runProgram(const std::string& program, const std::vector<std::string>& arguments) {
    const TemporaryFolder folder;
    std::string command = "env -u DISPLAY -u WAYLAND_DISPLAY " + quoted(program);
    for (const std::string& argument : arguments)
        command += ' ' + quoted(argument);
    command += " >" + quoted(folder / "out") + " 2>" + quoted(folder / "err") + " </dev/null";
    const int ended = std::system(command.c_str());
    return {WIFEXITED(ended) ? WEXITSTATUS(ended) : -1, bytesOf(folder / "out"), bytesOf(folder / "err")};
}

inline ProgramRun cli(const std::vector<std::string>& arguments) {
    return runProgram(TESSAPLOT_CLI, arguments);
}

}  // namespace tessaplot
