#include <cstdio>
#include <exception>
#include <iostream>
#include <map>
#include <memory>
#include <string>

#include "peerbench/gridding.h"
#include "peerbench/lit_surface.h"
#include "peerbench/work.h"

// Runs one workload beside other programs that do the same: prints `ready` when its input is made (`skip` for a
// workload it does not have), then answers each line `run` with the milliseconds of one run, a tab and a check of the
// result. `document FILE` writes the lit surface that W9 and W10 draw.

namespace tessaplot::bench {

// What the build found besides W1 to W4: WORKLOAD(5) WORKLOAD(8) ...
#define WORKLOAD(number) std::unique_ptr<Work> makeW##number();
TESSAPLOT_FURTHER_WORKLOADS
#undef WORKLOAD

namespace {

std::unique_ptr<Work> makeWork(const std::string& name) {
    std::map<std::string, std::unique_ptr<Work> (*)()> makers = {
        {"W1", makeW1}, {"W2", makeW2}, {"W3", makeW3}, {"W4", makeW4}};
#define WORKLOAD(number) makers["W" #number] = makeW##number;
    TESSAPLOT_FURTHER_WORKLOADS
#undef WORKLOAD
    const auto found = makers.find(name);
    return found == makers.end() ? nullptr : found->second();
}

int serve(const std::string& name) {
    const std::unique_ptr<Work> work = makeWork(name);
    if (!work) {
        std::cout << "skip" << std::endl;
        return 0;
    }
    std::cout << "ready" << std::endl;
    for (std::string line; std::getline(std::cin, line);) {
        if (line != "run") continue;
        std::string check;
        const double milliseconds = work->run(check);
        std::cout << std::to_string(milliseconds) << '\t' << check << std::endl;
    }
    return 0;
}

}  // namespace

}  // namespace tessaplot::bench

int main(int argc, char** argv) {
    const bool wantsDocument = argc == 3 && std::string(argv[1]) == "document";
    if (argc != 2 && !wantsDocument) {
        std::fputs("usage: tessaplot-peerbench W1\n       tessaplot-peerbench document FILE\n", stderr);
        return 2;
    }
    try {
        if (wantsDocument) {
            tessaplot::bench::writeLitSurface(argv[2]);
            return 0;
        }
        return tessaplot::bench::serve(argv[1]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
