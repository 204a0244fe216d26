#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "gl/display_list.h"
#include "graphs/graph_context.h"
#include "graphs/texture_cache.h"

namespace tessaplot::graphs {

/// Turns an image file into a texture.
class Cls15 {
 public:
    int Components = 3;
    GLenum GLFormat = GL_RGB;
    std::vector<std::uint8_t> Data;  ///< Red, green and blue of each pixel, tightly packed; the lowest row first.
    int ImgWidth = 0;
    int ImgHeight = 0;
    std::string FileName;
    TextureImagePtr TextureImg;  ///< What `LoadGLTextures` has handed to OpenGL.

    /// Makes the image of the file the present texture. False, with nothing emitted and the reason on the status line,
    /// if there is none: no name, no such file, no image in it. A name is looked for beside the document first, an
    /// absolute one where it says first.
    bool LoadGLTextures(gl::DisplayList& list, const std::string& name, const GraphContext& context);

    /// Loads the image by the last three letters of the name: BMP, JPG and GIF by the desktop, MOT raw (width and
    /// height as little-endian 32-bit integers, then red, green and blue of each pixel). Throws FileUnreadable or
    /// BadInput for a file that holds no such image, and for any other name.
    void CreateMapImage(const std::filesystem::path& path, const platform::Desktop& desktop);

    /// Takes over the pixels of a loaded picture.
    void LoadBMP(const platform::Picture& picture);

    /// Scales the image so that its sides are powers of two, 256 at most.
    void ScaleImg();

 private:
    void loadRaw(const std::filesystem::path& path);
    void FixPictureRGBA(const std::vector<std::uint8_t>& bitmap);
    TextureImagePtr finishedImage(const std::filesystem::path& path, const GraphContext& context);
};

}  // namespace tessaplot::graphs
