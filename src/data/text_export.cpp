#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "base/file.h"
#include "base/number_text.h"
#include "data/text_table.h"

namespace tessaplot::data {

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// A data text in the making: each token is followed by one blank.
class TokenLine {
 public:
    void token(std::string_view text) {
        text_ += text;
        text_ += ' ';
    }
    void integer(int value) { token(std::to_string(value)); }
    void number(double value) { token(base::generalText(value)); }
    std::string take() { return std::move(text_); }

 private:
    std::string text_;
};

std::string_view tagOf(DataKind kind) {
    switch (kind) {
        case DataKind::RegularSurface:
            return "R3";
        case DataKind::IrregularSurface:
            return "I3";
        case DataKind::RegularVolume:
            return "R4";
        case DataKind::IrregularVolume:
            return "I4";
        case DataKind::RegularCylindrical:
            return "R3c";
        case DataKind::IrregularCylindrical:
            return "I3c";
        case DataKind::RegularSpherical:
            return "R3s";
        case DataKind::IrregularSpherical:
            return "I3s";
    }
    return "";
}

/// The regular kind that gridding turns an irregular one into.
DataKind griddedKind(DataKind kind) {
    switch (kind) {
        case DataKind::IrregularSurface:
            return DataKind::RegularSurface;
        case DataKind::IrregularVolume:
            return DataKind::RegularVolume;
        case DataKind::IrregularCylindrical:
            return DataKind::RegularCylindrical;
        case DataKind::IrregularSpherical:
            return DataKind::RegularSpherical;
        default:
            throw base::Failure(base::FailureCode::BadInput, "Only irregular data can be gridded.");
    }
}

void appendSurfaceNodes(TokenLine& line, const ClsData& data, bool curvilinear) {
    const Array& first = curvilinear ? data.Reg3DA : data.Reg3DX;
    const Array& second = curvilinear ? data.Reg3DB : data.Reg3DY;
    const Array& third = curvilinear ? data.Reg3DD : data.Reg3DZ;
    for (int i = 0; i < data.StepsX; ++i)
        for (int j = 0; j < data.StepsY; ++j)
            for (const Array* column : {&first, &second, &third})
                line.number((*column)(i, j));
}

void appendVolumeNodes(TokenLine& line, const ClsData& data) {
    for (int i = 0; i < data.StepsX; ++i)
        for (int j = 0; j < data.StepsY; ++j)
            for (int k = 0; k < data.StepsZ; ++k)
                for (const Array* column : {&data.Reg4DX, &data.Reg4DY, &data.Reg4DZ, &data.Reg4DV})
                    line.number((*column)(i, j, k));
}

}  // namespace

std::vector<int> sizeBoxesOf(DataKind kind) {
    if (isIrregular(kind)) return {3};
    if (isVolume(kind)) return {1, 2, 4};
    return {1, 2};
}

std::string exportText(const DataPanel& panel) {
    TokenLine line;
    line.token(tagOf(panel.kind()));
    for (const int box : sizeBoxesOf(panel.kind()))
        line.token(panel.Text(box));
    const int columns = isVolume(panel.kind()) ? 4 : 3;
    const int rows = panel.dataRows();
    for (int row = 1; row <= rows; ++row)
        for (int column = 1; column <= columns; ++column)
            line.token(panel.cell(column, row));
    return line.take();
}

std::string exportGriddedText(const DataPanel& panel, const GriddingChoice& gridding,
                              const platform::Desktop& desktop) {
    TokenLine line;
    line.token(tagOf(griddedKind(panel.kind())));
    ClsData data;
    data.GetLattice(panel, gridding, desktop);
    line.integer(data.StepsX);
    line.integer(data.StepsY);
    if (data.DataDim == 2) {
        line.integer(data.StepsZ);
        appendVolumeNodes(line, data);
    } else {
        appendSurfaceNodes(line, data, isCurvilinear(panel.kind()));
    }
    return line.take();
}

std::string readTextFile(const std::filesystem::path& path) {
    std::string bytes = base::readFile(path);
    if (bytes.starts_with(byteOrderMark)) bytes.erase(0, byteOrderMark.size());
    return bytes;
}

void writeTextFile(const std::filesystem::path& path, std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() + 4);
    bytes += '"';
    bytes += text;
    bytes += '"';
    bytes += lineEnd;
    base::writeFile(path, bytes);
}

}  // namespace tessaplot::data
