#include "data_commands.h"

#include <array>
#include <cctype>
#include <cstdio>
#include <string_view>

#include "base/failure.h"
#include "base/number_text.h"
#include "commands.h"
#include "core/document.h"
#include "data/text_table.h"
#include "expr/evaluator.h"

namespace tessaplot::cli {

namespace {

using base::Failure;
using base::FailureCode;

void requireGoodData(data::DataPanel& panel) {
    std::string message;
    if (!panel.CheckData(message)) throw Failure(FailureCode::BadInput, message);
}

constexpr std::string_view variableNames = "UVXYARBT";

std::array<double, variableNames.size()> variableValues(const std::vector<std::string>& assignments) {
    std::array<double, variableNames.size()> values{};
    for (const std::string& assignment : assignments) {
        const std::size_t index =
            assignment.size() > 1 && assignment[1] == '='
                ? variableNames.find(static_cast<char>(std::toupper(static_cast<unsigned char>(assignment[0]))))
                : std::string_view::npos;
        if (index == std::string_view::npos)
            throw Failure(FailureCode::BadInput, "\"" + assignment +
                                                     "\" sets no variable; the variables are U, V, X, Y, A, R, B and "
                                                     "T, for example X=1.5");
        values[index] = base::TextValue(std::string_view(assignment).substr(2));
    }
    return values;
}

}  // namespace

void importData(const std::filesystem::path& text, const std::filesystem::path& document) {
    data::DataPanel panel;
    if (!data::importText(panel, data::readTextFile(text)))
        throw Failure(FailureCode::BadInput,
                      "The file \"" + text.string() + "\" does not begin with a tag such as R3, I3, R4 or I4.");
    scene::Cls3 axis;
    axis.SetDefault();
    const int mode = data::isVolume(panel.kind()) ? scene::mode4D : scene::mode3D;
    core::writeDocumentFile(document, core::documentText({mode, panel, {}, axis, {}, {}}));
}

void exportData(const std::filesystem::path& document, const std::filesystem::path& text) {
    core::Document opened = readKnownDocument(document);
    requireGoodData(opened.panel);
    data::writeTextFile(text, data::exportText(opened.panel));
}

void gridData(const std::filesystem::path& document, const std::filesystem::path& text, std::optional<int> method) {
    core::Document opened = readKnownDocument(document);
    requireGoodData(opened.panel);
    data::GriddingChoice gridding = opened.gridding.value_or(data::GriddingChoice{});
    if (method)
        (data::isVolume(opened.panel.kind()) ? gridding.VolumeGridMethod : gridding.SurfaceGridMethod) = *method;
    data::writeTextFile(text, data::exportGriddedText(opened.panel, gridding, {}));
}

bool evaluate(const EvalOptions& options) {
    const auto values = variableValues(options.variables);
    expr::EvaluatorContext context;
    context.report = [](std::string_view, std::string_view text) {
        std::fprintf(stderr, "%.*s\n", static_cast<int>(text.size()), text.data());
    };
    expr::Cls6 evaluator(context);
    std::string postfix;
    std::int32_t position = 0;
    if (!evaluator.InfixToPostfix(options.formula, postfix, position)) return false;
    double result = 0;
    if (!evaluator.DoEvaluate(postfix, options.degrees, result, values[0], values[1], values[2], values[3], values[4],
                              values[5], values[6], values[7]))
        throw Failure(FailureCode::BadInput, "The formula is empty.");
    std::printf("postfix: %s\nvalue: %.17g\n", postfix.c_str(), result);
    return true;
}

}  // namespace tessaplot::cli
