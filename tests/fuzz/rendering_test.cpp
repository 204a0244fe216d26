#include <chrono>
#include <cstddef>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "base/failure.h"
#include "core/refresh.h"
#include "fuzz/inputs.h"
#include "fuzz/mutation.h"
#include "fuzz/small_document.h"
#include "gl/gl_calls.h"
#include "gl/offscreen_context.h"
#include "gl/replay.h"

namespace tessaplot::fuzz {
namespace {

/// Draws documents small, and fails with what OpenGL has to say.
class Rendering : public testing::Test {
 protected:
    /// False for bytes that do not open.
    bool draw(std::string_view bytes) {
        core::AppState state;
        int height = 30;
        state.TheView.SetScreen(40, height);
        state.QuickDraw = true;
        try {
            if (!openSmallDocument(state, bytes)) return false;
        } catch (const base::Failure&) {
            return false;
        }
        replay_.draw(core::recordDisplay(state), 40, height);
        gl::failOnErrors("a document");
        return true;
    }

 private:
    gl::OffscreenContext context_;
    gl::Replay replay_;
};

TEST_F(Rendering, everyDocumentThatOpensIsDrawnWithoutAnOpenGLError) {
    std::size_t drawn = 0;
    for (const auto& files : {corpusOf("scene"), regressionsOf("scene"), regressionsOf("rendering")})
        for (const std::filesystem::path& file : files)
            EXPECT_NO_THROW(drawn += draw(bytesOf(file)) ? 1U : 0U) << file;
    EXPECT_GE(drawn, corpusOf("scene").size());

    Mutator mutator(bytesOf(corpusOf("scene")), 7);
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(2);
    for (int count = 0; count < 5000 && std::chrono::steady_clock::now() < end && !HasFailure(); ++count) {
        const std::string input = mutator.next();
        EXPECT_NO_THROW(draw(input)) << testing::PrintToString(input);
    }
}

}  // namespace
}  // namespace tessaplot::fuzz
