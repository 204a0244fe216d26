#include "graphs/texture.h"

#include <algorithm>
#include <cmath>
#include <system_error>
#include <utility>

#include "base/failure.h"
#include "base/file.h"
#include "graphs/image_scaling.h"
#include "graphs/letter_case.h"

namespace tessaplot::graphs {

namespace {

namespace fs = std::filesystem;
using base::Failure;
using base::FailureCode;

constexpr int largestSide = 256;
constexpr std::int64_t channels = 3;

/// The last three letters of a name, in capitals.
std::string kindOf(const std::string& name) {
    std::string kind = name.substr(name.size() - std::min<std::size_t>(3, name.size()));
    std::ranges::transform(kind, kind.begin(), upperCase);
    return kind;
}

bool isFile(const fs::path& path) {
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
}

/// Where the file of this name lies. Documents travel together with their textures, so the folder of the document
/// serves for names that were written on another machine too.
fs::path findFile(const std::string& name, const fs::path& documentFolder) {
    const fs::path named(name);
    const std::string withoutFolders = name.substr(name.find_last_of("/\\") + 1);
    for (const fs::path& candidate :
         {named.is_absolute() ? named : documentFolder / named, named, documentFolder / withoutFolders})
        if (isFile(candidate)) return candidate;
    throw Failure(FailureCode::FileUnreadable, "The picture \"" + name + "\" is not there.");
}

std::int32_t littleEndianInteger(std::string_view bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t k = 4; k-- > 0;)
        value = value << 8 | static_cast<unsigned char>(bytes[at + k]);
    return static_cast<std::int32_t>(value);
}

/// The pixels as a 24-bit bitmap holds them: the lowest row first, each padded to a multiple of four bytes; blue,
/// green, red. As many bytes as the pixels alone would need.
std::vector<std::uint8_t> bitmapBytes(const platform::Picture& picture) {
    const auto width = static_cast<std::size_t>(picture.width);
    const auto height = static_cast<std::size_t>(picture.height);
    const std::size_t rowBytes = (width * channels + 3) / 4 * 4;
    std::vector<std::uint8_t> bytes(rowBytes * height);
    for (std::size_t y = 0; y < height; ++y) {
        const std::uint8_t* from = picture.pixels.data() + (height - 1 - y) * width * channels;
        std::uint8_t* to = bytes.data() + y * rowBytes;
        for (std::size_t x = 0; x < width; ++x, from += channels, to += channels) {
            to[0] = from[2];
            to[1] = from[1];
            to[2] = from[0];
        }
    }
    bytes.resize(width * height * channels);
    return bytes;
}

/// The power of two that a side comes to.
int fittedSide(int side) {
    const double power = std::log(static_cast<double>(std::min(side, largestSide))) / std::log(2.0);
    return 1 << static_cast<int>(std::ceil(power));
}

}  // namespace

void Cls15::LoadBMP(const platform::Picture& picture) {
    const std::int64_t bytes = std::int64_t{picture.width} * picture.height * channels;
    if (picture.width < 1 || picture.height < 1 || std::cmp_not_equal(picture.pixels.size(), bytes))
        throw Failure(FailureCode::BadInput, "The picture \"" + FileName + "\" is empty.");
    ImgWidth = picture.width;
    ImgHeight = picture.height;
    FixPictureRGBA(bitmapBytes(picture));
}

void Cls15::FixPictureRGBA(const std::vector<std::uint8_t>& bitmap) {
    Data.assign(bitmap.size(), 0);
    const auto width = static_cast<std::size_t>(ImgWidth);
    const auto height = static_cast<std::size_t>(ImgHeight);
    // The rows are stepped through as one pixel shorter than they are, and their padding passes for pixels: a picture
    // whose width is no multiple of four slants a little, and the last pixels stay black.
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            const std::size_t idx = ((width - 1) * y + x) * channels;
            Data[idx] = bitmap[idx + 2];
            Data[idx + 1] = bitmap[idx + 1];
            Data[idx + 2] = bitmap[idx];
        }
    }
}

void Cls15::loadRaw(const fs::path& path) {
    constexpr std::size_t headerBytes = 8;
    const std::string bytes = base::readFile(path);
    if (bytes.size() < headerBytes)
        throw Failure(FailureCode::BadInput, "The picture \"" + FileName + "\" is too short to hold a size.");
    const std::int64_t width = littleEndianInteger(bytes, 0);
    const std::int64_t height = littleEndianInteger(bytes, 4);
    const auto held = static_cast<std::int64_t>(bytes.size() - headerBytes);
    if (width < 1 || height < 1 || width > held / channels || height > held / channels / width)
        throw Failure(FailureCode::BadInput, "The picture \"" + FileName + "\" does not hold the " +
                                                 std::to_string(width) + " by " + std::to_string(height) +
                                                 " pixels that it states.");
    ImgWidth = static_cast<int>(width);
    ImgHeight = static_cast<int>(height);
    const auto first = bytes.begin() + headerBytes;
    Data.assign(first, first + width * height * channels);
}

void Cls15::CreateMapImage(const fs::path& path, const platform::Desktop& desktop) {
    FileName = path.string();
    const std::string kind = kindOf(FileName);
    if (kind == "MOT")
        loadRaw(path);
    else if (kind == "BMP" || kind == "JPG" || kind == "GIF")
        LoadBMP(desktop.readPicture(path));
    else
        throw Failure(FailureCode::BadInput,
                      "The picture \"" + FileName + "\" is no BMP, JPG, GIF or MOT file by its name.");
}

void Cls15::ScaleImg() {
    const ImageSize fitted{fittedSide(ImgWidth), fittedSide(ImgHeight)};
    if (fitted.width == ImgWidth && fitted.height == ImgHeight) return;
    Data = scaledImage(Data, {ImgWidth, ImgHeight}, fitted, Components);
    ImgWidth = fitted.width;
    ImgHeight = fitted.height;
}

TextureImagePtr Cls15::finishedImage(const fs::path& path, const GraphContext& context) {
    if (context.textures != nullptr)
        if (TextureImagePtr known = context.textures->find(path)) return known;
    CreateMapImage(path, *context.desktop);
    ScaleImg();
    auto image = std::make_shared<gl::TextureImage>(gl::TextureImage{ImgWidth, ImgHeight, Components, std::move(Data)});
    if (context.textures != nullptr) context.textures->keep(path, image);
    return image;
}

bool Cls15::LoadGLTextures(gl::DisplayList& list, const std::string& name, const GraphContext& context) {
    if (name.empty() || context.desktop == nullptr) return false;
    try {
        TextureImg = finishedImage(findFile(name, context.documentFolder), context);
    } catch (const Failure& failure) {
        context.desktop->status(failure.what());
        return false;
    }
    list.glTexImage2D(TextureImg);
    list.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    list.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    return true;
}

}  // namespace tessaplot::graphs
