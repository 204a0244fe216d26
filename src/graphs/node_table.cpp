#include "graphs/emitters.h"

namespace tessaplot::graphs {

void requireGrid(const data::ClsData& data, int lastI, int lastJ) {
    for (const data::Array* array : {&data.Reg3DX, &data.Reg3DY, &data.Reg3DZ})
        static_cast<void>((*array)(lastI, lastJ));
}

NodeTable::NodeTable(const data::ClsData& data, int lastI, int lastJ) : lastI_(lastI), lastJ_(lastJ) {
    requireGrid(data, lastI, lastJ);
    nodes_.resize((static_cast<std::size_t>(lastI) + 1) * (static_cast<std::size_t>(lastJ) + 1));
    const auto x = data.Reg3DX.values();
    const auto y = data.Reg3DY.values();
    const auto z = data.Reg3DZ.values();
    auto node = nodes_.begin();
    for (std::size_t i = 0; i <= static_cast<std::size_t>(lastI); ++i)
        for (std::size_t j = 0; j <= static_cast<std::size_t>(lastJ); ++j)
            *node++ = {y[i + j * data.Reg3DY.strideJ()], z[i + j * data.Reg3DZ.strideJ()],
                       x[i + j * data.Reg3DX.strideJ()]};
}

}  // namespace tessaplot::graphs
