#include "commands.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "core/app_state.h"
#include "core/document.h"
#include "core/refresh.h"
#include "gl/offscreen_context.h"
#include "gl/replay.h"
#include "pictures/picture_file.h"
#include "pictures/picture_reader.h"
#include "report.h"

namespace tessaplot::cli {

namespace {

using base::Failure;
using base::FailureCode;

/// Messages go to standard error, one a line; what a person would be asked is left to the default.
platform::Answer tell(const platform::Message& message) {
    std::fprintf(stderr, "tessaplot-cli: %s\n", message.text.c_str());
    return platform::Desktop{}.askUser(message);
}

/// Opens the document as the window does.
void open(core::AppState& state, const std::filesystem::path& path, int width, int height) {
    state.desktop.ask = tell;
    state.desktop.showStatus = [](std::string_view text) { tell({{}, std::string(text)}); };
    state.desktop.loadPicture = pictures::readPicture;
    state.TheView.SetScreen(width, height);
    state.TheAxis.Show = true;
    if (core::LoadDocument(state, path) != core::LoadResult::Loaded)
        throw Failure(FailureCode::BadInput, "The file \"" + path.string() + "\" holds no known kind of document.");
}

void turn(core::AppState& state, const std::string& view) {
    if (view == "iso") state.ShownGraphs.setAngles(0, -30, 45);
    if (view == "front") state.ShownGraphs.setAngles(0, 0, 0);
    if (view == "right") state.ShownGraphs.setAngles(0, 0, 90);
    if (view == "top") state.ShownGraphs.setAngles(0, -90, 0);
}

/// Opens the document and turns and fits it as the options say.
void prepare(core::AppState& state, const std::filesystem::path& document, const RenderOptions& options) {
    open(state, document, options.width, options.height);
    turn(state, options.view);
    state.QuickDraw = options.quick;
    core::fitView(state);
}

std::filesystem::path picturePath(std::string pattern, const std::filesystem::path& document) {
    constexpr std::string_view placeholder = "{}";
    const std::string name = document.stem().string();
    for (std::size_t at = 0; (at = pattern.find(placeholder, at)) != std::string::npos; at += name.size())
        pattern.replace(at, placeholder.size(), name);
    return pattern;
}

/// Draws one document after the other with one context.
class PictureMaker {
 public:
    explicit PictureMaker(std::unique_ptr<gl::OffscreenContext> context) : context_(std::move(context)) {
        context_->makeCurrent();
        replay_.emplace();
    }

    void make(core::AppState& state, const std::filesystem::path& picture, const RenderOptions& options) {
        replay_->draw(core::recordDisplay(state), options.width, options.height);
        tellTrouble();
        const std::vector<std::uint8_t> pixels = replay_->readPixels();
        pictures::writePicture(picture, {pixels, replay_->width(), replay_->height(), 3});
    }

 private:
    void tellTrouble() {
        if (!std::exchange(told_, true) && !replay_->trouble().empty()) tell({{}, replay_->trouble()});
    }

    std::unique_ptr<gl::OffscreenContext> context_;
    std::optional<gl::Replay> replay_;
    bool told_ = false;
};

/// Ends the process and frees nothing: the system does that at once, what was drawn with takes milliseconds.
[[noreturn]] void leave(int status) {
    std::fflush(nullptr);
    std::_Exit(status);
}

void print(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
}

}  // namespace

core::Document readKnownDocument(const std::filesystem::path& path) {
    auto document = core::readDocument(core::readDocumentFile(path));
    if (!document)
        throw Failure(FailureCode::BadInput, "The file \"" + path.string() + "\" holds no known kind of document.");
    return *std::move(document);
}

void render(const RenderOptions& options) {
    auto preparedContext = gl::OffscreenContext::prepare();
    std::unique_ptr<core::AppState> state;
    std::unique_ptr<PictureMaker> maker;
    bool allDrawn = true;
    for (const std::filesystem::path& document : options.documents) {
        try {
            state = std::make_unique<core::AppState>();
            prepare(*state, document, options);
            if (!maker) maker = std::make_unique<PictureMaker>(preparedContext.get());
            maker->make(*state, picturePath(options.picture, document), options);
        } catch (const Failure& failure) {
            if (failure.code() == FailureCode::OpenGl) throw;
            tell({{}, failure.what()});
            allDrawn = false;
        }
    }
    leave(allDrawn ? EXIT_SUCCESS : EXIT_FAILURE);
}

void trace(const TraceOptions& options) {
    core::AppState state;
    const RenderOptions usual;
    open(state, options.document, usual.width, usual.height);
    core::fitView(state);
    if (options.graph != 0) {
        const auto& graphs = state.compiled.graphs;
        if (options.graph < 1 || options.graph > static_cast<int>(graphs.size()))
            throw Failure(FailureCode::BadInput, "There is no shown graph " + std::to_string(options.graph) +
                                                     ", the document shows " + std::to_string(graphs.size()) + ".");
        print(gl::toText(*graphs[static_cast<std::size_t>(options.graph) - 1]));
    } else if (options.frame) {
        print(gl::toText(*state.compiled.frame));
    } else if (options.legend) {
        print(gl::toText(*state.compiled.legends));
    } else {
        print("glNewList 900 GL_COMPILE\n");
        print(gl::toText(*state.compiled.list900));
        print("glEndList\n");
    }
}

void info(const std::filesystem::path& document) {
    const std::string tag = readKnownDocument(document).tag;
    core::AppState state;
    const RenderOptions usual;
    open(state, document, usual.width, usual.height);
    report(std::cout, tag, state);
}

void convert(const std::filesystem::path& from, const std::filesystem::path& to) {
    const core::Document document = readKnownDocument(from);
    const data::Scaling scaling = document.scaling.value_or(data::Scaling{});
    const data::GriddingChoice gridding = document.gridding.value_or(data::GriddingChoice{});
    core::DocumentParts parts{document.SceneMode, document.panel, {}, document.axis, scaling, gridding};
    for (const graphs::Cls9& graph : document.graphs)
        if (!graphs::listLabel(graph, document.SceneMode).empty()) parts.graphs.push_back(&graph);
    core::writeDocumentFile(to, core::documentText(parts));
}

}  // namespace tessaplot::cli
