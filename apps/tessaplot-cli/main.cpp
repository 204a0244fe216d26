#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <new>
#include <string>

#include "commands.h"

namespace {

using namespace tessaplot;

constexpr int largestSide = 16384;

void addVersion(CLI::App& app) {
    app.set_version_flag("--version", "tessaplot-cli " TESSAPLOT_VERSION);
}

/// Takes "WxH" apart.
std::string parseSize(const std::string& text, cli::RenderOptions& options) {
    int used = 0;
    const bool read = std::sscanf(text.c_str(), "%5dx%5d%n", &options.width, &options.height, &used) == 2 &&
                      used == static_cast<int>(text.size());
    if (!read || options.width < 1 || options.height < 1 || options.width > largestSide ||
        options.height > largestSide)
        return "the size must read WxH, each from 1 to " + std::to_string(largestSide);
    return {};
}

void addRender(CLI::App& app, cli::RenderOptions& options) {
    CLI::App* command = app.add_subcommand("render", "Draw a document into a picture file");
    addVersion(*command);
    command->add_option("DOC", options.document, "The document")->required();
    command->add_option("OUT", options.picture, "The picture; its extension tells the format")->required();
    command
        ->add_option_function<std::string>("--size", [](const std::string&) {}, "Width and height in pixels")
        ->default_str("1000x800")
        ->type_name("WxH")
        ->check([&options](const std::string& text) { return parseSize(text, options); });
    command->add_option("--view", options.view, "Standard view")
        ->check(CLI::IsMember({"iso", "front", "right", "top"}));
    command->add_flag("--quick", options.quick, "Two samples a pixel instead of eight");
    command->callback([&options] { cli::render(options); });
}

void addTrace(CLI::App& app, cli::TraceOptions& options) {
    CLI::App* command = app.add_subcommand("trace", "Print the drawing operations of a document, one a line");
    addVersion(*command);
    command->add_option("DOC", options.document, "The document")->required();
    auto* graph = command->add_option("--graph", options.graph, "Only those of the Nth shown graph")
                      ->type_name("N")
                      ->check(CLI::PositiveNumber);
    auto* frame = command->add_flag("--frame", options.frame, "Only those of the axis frame");
    auto* legend = command->add_flag("--legend", options.legend, "Only those of the legends");
    graph->excludes(frame)->excludes(legend);
    frame->excludes(legend);
    command->callback([&options] { cli::trace(options); });
}

void addInfo(CLI::App& app, std::string& document) {
    CLI::App* command = app.add_subcommand("info", "Tell what a document holds");
    addVersion(*command);
    command->add_option("DOC", document, "The document")->required();
    command->callback([&document] { cli::info(document); });
}

struct ConvertPaths {
    std::string from;
    std::string to;
};

void addConvert(CLI::App& app, ConvertPaths& paths) {
    CLI::App* command = app.add_subcommand("convert", "Write a document of any generation in the newest one");
    addVersion(*command);
    command->add_option("IN", paths.from, "The document to read")->required();
    command->add_option("OUT", paths.to, "The document to write")->required();
    command->callback([&paths] { cli::convert(paths.from, paths.to); });
}

int failed(const char* message) {
    std::fprintf(stderr, "tessaplot-cli: %s\n", message);
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app("Tessaplot documents without a window", "tessaplot-cli");
    addVersion(app);
    app.require_subcommand(1);
    cli::RenderOptions renderOptions;
    cli::TraceOptions traceOptions;
    std::string infoDocument;
    ConvertPaths convertPaths;
    addRender(app, renderOptions);
    addTrace(app, traceOptions);
    addInfo(app, infoDocument);
    addConvert(app, convertPaths);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& wrongUsage) {
        return app.exit(wrongUsage) == 0 ? 0 : 2;
    } catch (const std::bad_alloc&) {
        return failed("There is not enough memory for this.");
    } catch (const std::exception& failure) {
        return failed(failure.what());
    }
    return 0;
}
