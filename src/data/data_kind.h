#pragma once

#include <array>
#include <span>
#include <string_view>

namespace tessaplot::data {

/// The eight kinds of data, in the order of the panel's combo box; even values are regular, odd ones irregular.
enum class DataKind {
    RegularSurface = 0,
    IrregularSurface = 1,
    RegularVolume = 2,
    IrregularVolume = 3,
    RegularCylindrical = 4,
    IrregularCylindrical = 5,
    RegularSpherical = 6,
    IrregularSpherical = 7,
};

inline constexpr int dataKindCount = 8;

constexpr bool isIrregular(DataKind kind) {
    return static_cast<int>(kind) % 2 == 1;
}
constexpr bool isVolume(DataKind kind) {
    return kind == DataKind::RegularVolume || kind == DataKind::IrregularVolume;
}
constexpr bool isCylindrical(DataKind kind) {
    return kind == DataKind::RegularCylindrical || kind == DataKind::IrregularCylindrical;
}
constexpr bool isSpherical(DataKind kind) {
    return kind == DataKind::RegularSpherical || kind == DataKind::IrregularSpherical;
}
constexpr bool isCurvilinear(DataKind kind) {
    return isCylindrical(kind) || isSpherical(kind);
}

/// The panel's caption of a kind.
std::string_view captionOf(DataKind kind);

/// The grid's four column headers after "Index".
std::span<const std::string_view, 4> headersOf(DataKind kind);

/// The labels of the ten boxes of the panel; an empty label is a hidden box.
std::span<const std::string_view, 10> boxLabelsOf(DataKind kind);

}  // namespace tessaplot::data
