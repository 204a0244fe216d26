#include "data/data_kind.h"

namespace tessaplot::data {

namespace {

using Headers = std::array<std::string_view, 4>;
using Labels = std::array<std::string_view, 10>;

constexpr std::array<std::string_view, dataKindCount> captions{
    "Regular Surface (Cartesian)",  "Irregular Surface (Cartesian)", "Regular Volume (Cartesian)",
    "Irregular Volume (Cartesian)", "Regular Surface (Cylindrical)", "Irregular Surface (Cylindrical)",
    "Regular Surface (Spherical)",  "Irregular Surface (Spherical)",
};

constexpr std::array<Headers, dataKindCount> headers{{
    {"X", "Y", "Z", "Color"},
    {"X", "Y", "Z", "Color"},
    {"X", "Y", "Z", "V"},
    {"X", "Y", "Z", "V"},
    {"A", "R", "Z", "Color"},
    {"A", "R", "Z", "Color"},
    {"A", "B", "R", "Color"},
    {"A", "B", "R", "Color"},
}};

constexpr std::array<Labels, dataKindCount> labels{{
    {"Rows X", "Rows Y", "", "", "", "", "", "", "", ""},
    {"Min X", "Max X", "Points", "Rows X", "Min Y", "Max Y", "Rows Y", "", "", ""},
    {"Rows X", "Rows Y", "", "Rows Z", "", "", "", "", "", ""},
    {"Min X", "Max X", "Points", "Rows X", "Min Y", "Max Y", "Rows Y", "Min Z", "Max Z", "Rows Z"},
    {"Rows A", "Rows R", "", "", "", "", "", "", "", ""},
    {"Min A", "Max A", "Points", "Rows A", "", "", "", "Min Z", "Max Z", "Rows Z"},
    {"Rows A", "Rows B", "", "", "", "", "", "", "", ""},
    {"Min A", "Max A", "Points", "Rows A", "Min B", "Max B", "Rows B", "", "", ""},
}};

}  // namespace

std::string_view captionOf(DataKind kind) {
    return captions[static_cast<std::size_t>(kind)];
}

std::span<const std::string_view, 4> headersOf(DataKind kind) {
    return headers[static_cast<std::size_t>(kind)];
}

std::span<const std::string_view, 10> boxLabelsOf(DataKind kind) {
    return labels[static_cast<std::size_t>(kind)];
}

}  // namespace tessaplot::data
