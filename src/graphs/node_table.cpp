#include "graphs/emitters.h"

namespace tessaplot::graphs {

namespace {

int checkedLastI(const data::ClsData& data, int lastI, int lastJ) {
    requireGrid(data, lastI, lastJ);
    return lastI;
}

}  // namespace

void requireGrid(const data::ClsData& data, int lastI, int lastJ) {
    for (const data::Array* array : {&data.Reg3DX, &data.Reg3DY, &data.Reg3DZ})
        static_cast<void>((*array)(lastI, lastJ));
}

NodeTable::NodeTable(const data::ClsData& data, int lastI, int lastJ)
    : GridTable(checkedLastI(data, lastI, lastJ), lastJ) {
    const auto x = data.Reg3DX.values();
    const auto y = data.Reg3DY.values();
    const auto z = data.Reg3DZ.values();
    auto node = begin();
    for (std::size_t i = 0; i <= static_cast<std::size_t>(lastI); ++i)
        for (std::size_t j = 0; j <= static_cast<std::size_t>(lastJ); ++j)
            *node++ = {y[i + j * data.Reg3DY.strideJ()], z[i + j * data.Reg3DZ.strideJ()],
                       x[i + j * data.Reg3DX.strideJ()]};
}

}  // namespace tessaplot::graphs
