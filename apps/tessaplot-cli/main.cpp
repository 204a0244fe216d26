#include <cstdio>
#include <exception>
#include <new>
#include <optional>
#include <string>

#include <CLI/CLI.hpp>

#include "commands.h"
#include "data_commands.h"

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
    if (!read || options.width < 1 || options.height < 1 || options.width > largestSide || options.height > largestSide)
        return "the size must read WxH, each from 1 to " + std::to_string(largestSide);
    return {};
}

/// Without a pattern the last of two files is the picture.
void takePicture(cli::RenderOptions& options) {
    auto& documents = options.documents;
    if (options.picture.empty()) {
        if (documents.size() != 2)
            throw CLI::ValidationError("render", "give a document and a picture, or several documents and --output");
        options.picture = documents.back().string();
        documents.pop_back();
    }
    if (documents.size() > 1 && options.picture.find("{}") == std::string::npos)
        throw CLI::ValidationError("--output", "must hold {} for more than one document");
}

void addRender(CLI::App& app, cli::RenderOptions& options) {
    CLI::App* command = app.add_subcommand("render", "Draw documents into picture files");
    addVersion(*command);
    command->add_option("DOC... [OUT]", options.documents, "The documents; without --output one, then the picture")
        ->required();
    command->add_option("-o,--output", options.picture,
                        "The pictures; {} stands for the name of the document, the extension tells the format: .png, "
                        ".bmp, .pdf or .jpg");
    command
        ->add_option_function<std::string>(
            "--size", [](const std::string&) {}, "Width and height in pixels")
        ->default_str("1000x800")
        ->type_name("WxH")
        ->check([&options](const std::string& text) { return parseSize(text, options); });
    command->add_option("--view", options.view, "Standard view")
        ->check(CLI::IsMember({"iso", "front", "right", "top"}));
    command->add_flag("--quick", options.quick, "Two samples a pixel instead of eight");
    command->callback([&options] {
        takePicture(options);
        cli::render(options);
    });
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

struct FilePair {
    std::string from;
    std::string to;
};

/// A command that reads one file and writes another.
CLI::App* addFileCommand(CLI::App& app, const char* name, const char* description, FilePair& files) {
    CLI::App* command = app.add_subcommand(name, description);
    addVersion(*command);
    command->add_option("IN", files.from, "The file to read")->required();
    command->add_option("OUT", files.to, "The file to write")->required();
    return command;
}

void addGrid(CLI::App& app, FilePair& files, int& method) {
    CLI::App* command = addFileCommand(app, "grid", "Write the lattice that gridding makes of irregular data", files);
    auto* option = command->add_option("--method", method, "Gridding method instead of the document's own")
                       ->type_name("N")
                       ->check(CLI::Range(1, 5) | CLI::Range(101, 103));
    command->callback([&files, &method, option] {
        cli::gridData(files.from, files.to, option->count() > 0 ? std::optional(method) : std::nullopt);
    });
}

void addEval(CLI::App& app, cli::EvalOptions& options) {
    CLI::App* command = app.add_subcommand("eval", "Evaluate a formula");
    addVersion(*command);
    command->add_option("FORMULA", options.formula, "The formula, for example \"SIN(X)+1\"")->required();
    command->add_option("VARIABLE", options.variables, "Values of variables, for example X=1.5");
    command->add_flag("--degrees", options.degrees, "Angles are degrees");
    command->callback([&options] {
        if (!cli::evaluate(options)) throw CLI::RuntimeError(1);
    });
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
    cli::EvalOptions evalOptions;
    FilePair files;
    int method = 0;
    addRender(app, renderOptions);
    addTrace(app, traceOptions);
    addInfo(app, infoDocument);
    addFileCommand(app, "convert", "Write a document of any generation in the newest one", files)->callback([&files] {
        cli::convert(files.from, files.to);
    });
    addFileCommand(app, "import", "Make a document of a text of numbers", files)->callback([&files] {
        cli::importData(files.from, files.to);
    });
    addFileCommand(app, "export", "Write the data of a document as text", files)->callback([&files] {
        cli::exportData(files.from, files.to);
    });
    addGrid(app, files, method);
    addEval(app, evalOptions);
    try {
        app.parse(argc, argv);
    } catch (const CLI::RuntimeError& told) {
        return told.get_exit_code();
    } catch (const CLI::ParseError& wrongUsage) {
        return app.exit(wrongUsage) == 0 ? 0 : 2;
    } catch (const std::bad_alloc&) {
        return failed("There is not enough memory for this.");
    } catch (const std::exception& failure) {
        return failed(failure.what());
    }
    return 0;
}
