#pragma once

#include <string_view>
#include <vector>

#include "data/data_kind.h"

namespace tessaplot::core {

/// How a kind of data stands in a document: its code and the panel's boxes in the order of their tokens.
struct DataFields {
    std::string_view code;
    std::vector<int> boxes;
};

inline DataFields dataFieldsOf(data::DataKind kind) {
    using data::DataKind;
    switch (kind) {
        case DataKind::RegularSurface:
            return {"1", {1, 2}};
        case DataKind::IrregularSurface:
            return {"0", {3, 4, 7, 1, 2, 5, 6}};
        case DataKind::RegularVolume:
            return {"2", {1, 2, 4}};
        case DataKind::IrregularVolume:
            return {"3", {3, 4, 7, 10, 1, 2, 5, 6, 8, 9}};
        case DataKind::RegularCylindrical:
            return {"4", {1, 2}};
        case DataKind::IrregularCylindrical:
            return {"5", {3, 4, 10, 1, 2, 8, 9}};
        case DataKind::RegularSpherical:
            return {"6", {1, 2}};
        case DataKind::IrregularSpherical:
            return {"7", {3, 4, 7, 1, 2, 5, 6}};
    }
    return {"1", {1, 2}};
}

}  // namespace tessaplot::core
