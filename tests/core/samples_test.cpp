#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/files.h"
#include "base/number_text.h"
#include "core/document.h"
#include "core/refresh.h"
#include "data/text_table.h"
#include "gl/gl_calls.h"
#include "gl/offscreen_context.h"
#include "gl/replay.h"
#include "pictures/picture_reader.h"

namespace tessaplot::core {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> samples() {
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(TESSAPLOT_SAMPLES))
        if (entry.path().extension() == ".tsp") found.push_back(entry.path());
    return found;
}

/// Opens the document as a person sees it, and tells what stands on the status line.
void open(AppState& state, const fs::path& path) {
    state.desktop.loadPicture = pictures::readPicture;
    state.desktop.ask = [](const platform::Message& message) {
        ADD_FAILURE() << message.text;
        return platform::Answer::Ok;
    };
    ASSERT_EQ(LoadDocument(state, path), LoadResult::Loaded);
    EXPECT_EQ(state.ShownGraphs.Graphs.size(), state.List1.entries.size());
}

TEST(Samples, areDrawnWithoutAnOpenGLErrorAndSavedAsTheSameBytes) {
    const gl::OffscreenContext context;
    gl::Replay replay;
    const TemporaryFolder folder;
    for (const fs::path& sample : samples()) {
        SCOPED_TRACE(sample);
        AppState state;
        int height = 90;
        state.TheView.SetScreen(120, height);
        open(state, sample);
        const fs::path saved = folder / sample.filename().string();
        writeDocumentFile(saved, documentText(partsOf(state, state.ShownGraphs)));
        EXPECT_TRUE(bytesOf(saved) == bytesOf(sample));
        fitView(state);
        EXPECT_NO_THROW(replay.draw(recordDisplay(state), 120, height));
        EXPECT_NO_THROW(gl::failOnErrors("a sample"));
        EXPECT_EQ(replay.trouble(), "");
    }
}

TEST(Samples, keepTheirNumbersInADataText) {
    for (const fs::path& sample : samples()) {
        SCOPED_TRACE(sample);
        data::DataPanel panel = readDocument(readDocumentFile(sample))->panel;
        const data::DataPanel before = panel;
        std::string message;
        ASSERT_TRUE(panel.CheckData(message)) << message;
        data::DataPanel imported;
        ASSERT_TRUE(data::importText(imported, data::exportText(panel)));
        ASSERT_EQ(imported.dataRows(), before.dataRows());
        const int columns = data::isVolume(before.kind()) ? 4 : 3;
        for (int row = 1; row <= before.dataRows(); ++row)
            for (int column = 1; column <= columns; ++column)
                ASSERT_EQ(base::TextValue(imported.cell(column, row)), base::TextValue(before.cell(column, row)))
                    << "row " << row << ", column " << column;
    }
}

}  // namespace
}  // namespace tessaplot::core
