#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fuzz/inputs.h"
#include "fuzz/mutation.h"
#include "fuzz/targets.h"

namespace tessaplot::fuzz {

std::ostream& operator<<(std::ostream& out, const Target& target) {
    return out << target.name;
}

namespace {

namespace fs = std::filesystem;

bool readsDocuments(const Target& target) {
    return target.run == document || target.run == scene;
}

class Fuzz : public testing::TestWithParam<Target> {};

TEST_P(Fuzz, knownInputsAreReadOrRefused) {
    std::vector<fs::path> files = corpusOf(GetParam().name);
    ASSERT_FALSE(files.empty());
    std::ranges::copy(regressionsOf(GetParam().name), std::back_inserter(files));
    if (readsDocuments(GetParam()))
        std::ranges::copy_if(filesIn(TESSAPLOT_SAMPLES), std::back_inserter(files),
                             [](const fs::path& file) { return file.extension() == ".tsp"; });
    for (const fs::path& file : files)
        EXPECT_NO_THROW(GetParam().run(bytesOf(file))) << file;
}

/// A look at what lies near the known inputs; the fuzzers proper go further.
TEST_P(Fuzz, aSecondOfSpoiledInputsIsReadOrRefused) {
    Mutator mutator(bytesOf(corpusOf(GetParam().name)), 20);
    constexpr int most = 20000;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(1);
    for (int count = 0; count < most && std::chrono::steady_clock::now() < end && !HasFailure(); ++count) {
        const std::string input = mutator.next();
        EXPECT_NO_THROW(GetParam().run(input)) << "input " << count << ":\n" << testing::PrintToString(input);
    }
}

INSTANTIATE_TEST_SUITE_P(Targets, Fuzz, testing::ValuesIn(targets), testing::PrintToStringParamName());

}  // namespace
}  // namespace tessaplot::fuzz
