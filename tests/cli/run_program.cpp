#include "run_program.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

#include <sys/wait.h>

namespace tessaplot {

namespace {

std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char c : text)
        result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return result + "'";
}

}  // namespace

std::string bytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

ProgramRun runProgram(const std::string& program, const std::vector<std::string>& arguments) {
    const TemporaryFolder folder;
    std::string command = "env -u DISPLAY -u WAYLAND_DISPLAY " + quoted(program);
    for (const std::string& argument : arguments)
        command += ' ' + quoted(argument);
    command += " >" + quoted(folder / "out") + " 2>" + quoted(folder / "err") + " </dev/null";
    const int ended = std::system(command.c_str());
    return {WIFEXITED(ended) ? WEXITSTATUS(ended) : -1, bytesOf(folder / "out"), bytesOf(folder / "err")};
}

ProgramRun cli(const std::vector<std::string>& arguments) {
    return runProgram(TESSAPLOT_CLI, arguments);
}

TemporaryFolder::TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "tessaplot-test-XXXXXX").string();
    if (mkdtemp(name.data()) != nullptr) path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace tessaplot
