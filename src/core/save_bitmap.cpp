#include "core/save_bitmap.h"

#include "base/file.h"
#include "scene/picture_output.h"

namespace tessaplot::core {

void SaveBitmap(const platform::Desktop& desktop, const std::filesystem::path& fileName, int width, int height) {
    const scene::BitmapShape shape = scene::bitmapShapeOf(width, height);
    base::writeFile(fileName, scene::bitmapFile(desktop.frame(shape.columns, shape.height), shape));
}

}  // namespace tessaplot::core
