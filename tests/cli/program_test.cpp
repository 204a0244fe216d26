#include <algorithm>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/document.h"
#include "run_program.h"

namespace tessaplot {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

std::string sample(const std::string& name) {
    return std::string(TESSAPLOT_SAMPLES) + "/" + name + ".tsp";
}

TEST(Program, aFolderOfDocumentsIsDrawnInOneRunAndABadOneDoesNotStopTheOthers) {
    const TemporaryFolder folder;
    const ProgramRun run = cli({"render", sample("sphere"), folder / "missing.tsp", sample("cylinder"), "--output",
                                folder / "small-{}.png", "--size", "40x30"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, testing::HasSubstr("missing.tsp"));
    for (const char* name : {"small-sphere.png", "small-cylinder.png"})
        EXPECT_TRUE(std::filesystem::exists(folder / name)) << name;
}

TEST(Program, wrongUsageAndFailuresHaveTheirOwnStatus) {
    const TemporaryFolder folder;
    for (const std::vector<std::string>& wrong :
         std::vector<std::vector<std::string>>{{},
                                               {"dance"},
                                               {"render", sample("sphere")},
                                               {"render", sample("sphere"), sample("sphere"), folder / "x.png"},
                                               {"render", sample("sphere"), sample("cylinder"), "-o", "x.png"},
                                               {"render", sample("sphere"), folder / "x.png", "--size", "10"},
                                               {"render", sample("sphere"), folder / "x.png", "--size", "10x0"},
                                               {"render", sample("sphere"), folder / "x.png", "--view", "below"},
                                               {"trace", sample("sphere"), "--frame", "--legend"},
                                               {"trace", sample("sphere"), "--graph", "0"},
                                               {"grid", sample("sphere"), folder / "x.txt", "--method", "6"}})
        EXPECT_EQ(cli(wrong).status, 2) << testing::PrintToString(wrong);
    put(folder / "text.tsp", "not a document");
    put(folder / "tag.tsp", std::string("\x08\0\x05\0", 4) + "D99 1");
    for (const std::vector<std::string>& failing :
         std::vector<std::vector<std::string>>{{"render", folder / "missing.tsp", folder / "x.png"},
                                               {"info", folder / "text.tsp"},
                                               {"info", folder / "tag.tsp"},
                                               {"convert", folder / "tag.tsp", folder / "y.tsp"},
                                               {"render", sample("sphere"), folder / "x.xyz"},
                                               {"render", sample("sphere"), folder / "no/x.png"},
                                               {"trace", sample("sphere"), "--graph", "2"},
                                               {"grid", sample("sphere"), folder / "x.txt"},
                                               {"import", folder / "text.tsp", folder / "y.tsp"},
                                               {"eval", ""},
                                               {"eval", "X", "Q=1"}}) {
        const ProgramRun run = cli(failing);
        EXPECT_EQ(run.status, 1) << testing::PrintToString(failing);
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
        EXPECT_EQ(run.out, "");
    }
    for (const char* command : {"render", "trace", "info", "convert", "import", "export", "grid", "eval"}) {
        EXPECT_EQ(cli({command, "--help"}).status, 0);
        EXPECT_THAT(cli({command, "--version"}).out, StartsWith("tessaplot-cli "));
    }
}

TEST(Program, tracesASceneAndItsParts) {
    const ProgramRun whole = cli({"trace", sample("grid_vertex")});
    EXPECT_THAT(whole.out, StartsWith("glNewList 900 GL_COMPILE\nglClear GL_ACCUM_BUFFER_BIT\n"));
    EXPECT_THAT(whole.out, EndsWith("glPopMatrix\nglEndList\n"));
    const std::string vertices = cli({"trace", sample("grid_vertex"), "--graph", "1"}).out;
    const std::string grid = cli({"trace", sample("grid_vertex"), "--graph", "2"}).out;
    EXPECT_THAT(vertices, HasSubstr("gluSphere 0.1 8 8\n"));
    EXPECT_THAT(grid, HasSubstr("glLineWidth 1\nglBegin GL_LINES\nglColor3d "));
    std::size_t samples = 0;
    for (std::size_t at = whole.out.find(vertices + grid); at != std::string::npos;
         at = whole.out.find(vertices + grid, at + 1))
        ++samples;
    EXPECT_EQ(samples, 8U) << "every sample tells the whole body";
}

TEST(Program, samplesAreWhatTheGeneratorWritesAndConvertKeepsThem) {
    const TemporaryFolder folder;
    ASSERT_EQ(runProgram(TESSAPLOT_SAMPLE_GENERATOR, {folder / ""}).status, 0);
    int found = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const auto kept = std::filesystem::path(TESSAPLOT_SAMPLES) / entry.path().filename();
        EXPECT_EQ(bytesOf(entry.path()), bytesOf(kept)) << kept << " is not what the generator writes";
        if (kept.extension() != ".tsp") continue;
        EXPECT_EQ(cli({"convert", kept.string(), folder / "again.tmp"}).status, 0);
        EXPECT_EQ(bytesOf(folder / "again.tmp"), bytesOf(kept));
        std::filesystem::remove(folder / "again.tmp");
        ++found;
    }
    EXPECT_GE(found, 3);
}

TEST(Program, convertsAnOldDocumentWithoutGraphs) {
    const TemporaryFolder folder;
    core::writeDocumentFile(folder / "old.tsp", "D1 1 1 1 2 1 2 3 4 5 6 22 1 name");
    ASSERT_EQ(cli({"convert", folder / "old.tsp", folder / "new.tsp"}).status, 0);
    EXPECT_THAT(core::readDocumentFile(folder / "new.tsp"), StartsWith("D41 0 1 1 2 1 2 3  4 5 6  0 "));
}

TEST(Program, numbersGoRoundThroughTextAndGridding) {
    const TemporaryFolder folder;
    std::string points = "I3\t9";
    for (int i = 0; i < 9; ++i)
        points += "\n" + std::to_string(i % 3) + "\t" + std::to_string(i / 3) + "\t" + std::to_string(i * i % 7);
    put(folder / "points.txt", points);
    ASSERT_EQ(cli({"import", folder / "points.txt", folder / "points.tsp"}).status, 0);
    EXPECT_EQ(cli({"grid", folder / "points.tsp", folder / "x.txt"}).status, 1) << "no lattice is set";
    EXPECT_THAT(cli({"export", folder / "points.tsp", folder / "x.txt"}).err, EndsWith("Illegal data exist.\n"));

    std::string document = core::readDocumentFile(folder / "points.tsp");
    const std::string empty = "D41 0 0 9       ";
    ASSERT_THAT(document, StartsWith(empty));
    core::writeDocumentFile(folder / "lattice.tsp", "D41 0 0 9 3 3 0 2 0 2 " + document.substr(empty.size()));
    ASSERT_EQ(cli({"grid", folder / "lattice.tsp", folder / "grid.txt"}).status, 0);
    EXPECT_EQ(bytesOf(folder / "grid.txt"), "\"R3 3 3 0 0 0 0 1 2 0 2 1 1 0 1 1 1 2 1 2 0 2 0 4 2 1 4 2 2 1 \"\r\n")
        << "nodes that lie on points have their values";
    ASSERT_EQ(cli({"export", folder / "lattice.tsp", folder / "again.txt"}).status, 0);
    EXPECT_EQ(bytesOf(folder / "again.txt"), "\"I3 9 0 0 0 1 0 1 2 0 4 0 1 2 1 1 2 2 1 4 0 2 1 1 2 0 2 2 1 \"\r\n");
    EXPECT_EQ(cli({"grid", folder / "lattice.tsp", folder / "x.txt", "--method", "5"}).status, 0);
}

TEST(Program, evaluatesFormulasWithSeventeenDigits) {
    const ProgramRun run = cli({"eval", "SIN(X)^2+1/3", "--degrees", "X=30"});
    EXPECT_THAT(run.out, StartsWith("postfix: XX SIN 2 ^ 1 3 / + \nvalue: 0.5833"));
    const ProgramRun faulty = cli({"eval", "X Y"});
    EXPECT_EQ(faulty.status, 1);
    EXPECT_EQ(faulty.err, "Character 2:  Operator expected\n");
    EXPECT_EQ(faulty.out, "");
}

}  // namespace
}  // namespace tessaplot
