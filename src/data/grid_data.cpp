#include "base/failure.h"
#include "data/data_set.h"

namespace tessaplot::data {

void ClsData::Grid(DataKind, const GriddingChoice&, const platform::Desktop&) {
    if (DataType != 2) return;
    throw base::Failure(base::FailureCode::BadInput, "Irregular data cannot be gridded yet.");
}

}  // namespace tessaplot::data
