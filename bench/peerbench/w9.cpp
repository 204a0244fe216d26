#include <chrono>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>

#include "peerbench/lit_surface.h"
#include "peerbench/work.h"

namespace tessaplot::bench {

namespace {

/// `tessaplot-cli render` of a lit surface to a picture of 1000 by 800 pixels: the whole process.
class RenderProcess : public Work {
 public:
    RenderProcess() : document_(writeLitSurface()), picture_(document_) { picture_.replace_extension(".png"); }
    ~RenderProcess() override {
        std::filesystem::remove(document_);
        std::filesystem::remove(picture_);
    }

    double run(std::string& check) override {
        const auto start = std::chrono::steady_clock::now();
        render();
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
        check = std::to_string(std::filesystem::file_size(picture_) / 1024) + " kB";
        return time.count();
    }

 private:
    void render() {
        std::vector<std::string> words{TESSAPLOT_CLI,     "render", document_.string(),
                                       picture_.string(), "--size", "1000x800"};
        std::vector<char*> arguments;
        for (std::string& word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        pid_t process = 0;
        int status = 1;
        if (posix_spawn(&process, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0 ||
            waitpid(process, &status, 0) != process || status != 0)
            throw std::runtime_error("tessaplot-cli cannot render the document");
    }

    std::filesystem::path document_;
    std::filesystem::path picture_;
};

}  // namespace

std::unique_ptr<Work> makeW9() {
    return std::make_unique<RenderProcess>();
}

}  // namespace tessaplot::bench
