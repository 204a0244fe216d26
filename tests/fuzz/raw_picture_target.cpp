#include "base/failure.h"
#include "fuzz/property.h"
#include "fuzz/targets.h"
#include "graphs/texture.h"

namespace tessaplot::fuzz {

void raw_picture(std::string_view bytes) {
    graphs::Cls15 texture;
    try {
        texture.CreateMapImage(fileWith(bytes, ".mot"), {});
    } catch (const base::Failure&) {
        return;
    }
    texture.ScaleImg();
    require(texture.ImgWidth >= 1 && texture.ImgWidth <= 256 && texture.ImgHeight >= 1 && texture.ImgHeight <= 256,
            "a texture has sides of 1 to 256");
    const auto pixels = static_cast<std::size_t>(texture.ImgWidth) * static_cast<std::size_t>(texture.ImgHeight);
    require(texture.Data.size() == 3 * pixels, "a texture has all its pixels");
}

}  // namespace tessaplot::fuzz
