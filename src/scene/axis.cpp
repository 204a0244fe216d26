#include "scene/axis.h"

namespace tessaplot::scene {

void Cls3::SetDefault() {
    const int style = AxisStyle;
    *this = Cls3{};
    AxisStyle = style;
    Show = true;
}

}  // namespace tessaplot::scene
