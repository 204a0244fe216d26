#include "pictures/png_file.h"

#include <csetjmp>
#include <string>

#include <png.h>

#include "base/failure.h"
#include "base/file.h"

namespace tessaplot::pictures {

namespace {

/// On a dense wire mesh it takes less than half the time of zlib's own choice for a file a tenth larger.
constexpr int fastCompression = 1;
/// Each row as its difference to the one above: in our pictures about as small as the best of all filters row by row,
/// which takes twice as long.
constexpr int filter = PNG_FILTER_UP;
constexpr std::size_t chunkBytes = 1U << 16U;
constexpr int bitsPerChannel = 8;

void append(png_structp png, png_bytep bytes, std::size_t count) {
    static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<const char*>(bytes), count);
}

/// A writer of libpng.
struct Writer {
    png_structp png = nullptr;
    png_infop info = nullptr;

    Writer() : png(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr)) {
        if (png != nullptr) info = png_create_info_struct(png);
    }
    ~Writer() { png_destroy_write_struct(&png, &info); }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
};

/// False if libpng gives up, which it does by a long jump: nothing here may need a destructor.
bool encode(const Writer& writer, const Pixels& pixels, std::string& file) {
    if (writer.info == nullptr || setjmp(png_jmpbuf(writer.png)) != 0) return false;
    png_set_write_fn(writer.png, &file, append, nullptr);
    png_set_IHDR(writer.png, writer.info, static_cast<png_uint_32>(pixels.width),
                 static_cast<png_uint_32>(pixels.height), bitsPerChannel,
                 pixels.channels == 3 ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGB_ALPHA, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_compression_level(writer.png, fastCompression);
    png_set_compression_buffer_size(writer.png, chunkBytes);
    png_set_filter(writer.png, PNG_FILTER_TYPE_BASE, filter);
    png_write_info(writer.png, writer.info);
    const std::size_t row = static_cast<std::size_t>(pixels.width) * static_cast<std::size_t>(pixels.channels);
    for (std::size_t from = 0; from < pixels.bytes.size(); from += row)
        png_write_row(writer.png, &pixels.bytes[from]);
    png_write_end(writer.png, nullptr);
    return true;
}

}  // namespace

void writePng(const std::filesystem::path& path, const Pixels& pixels) {
    std::string file;
    if (!encode(Writer(), pixels, file))
        throw base::Failure(base::FailureCode::FileUnwritable,
                            "The picture \"" + path.string() + "\" cannot be written: it cannot be made a PNG file.");
    base::writeFile(path, file);
}

}  // namespace tessaplot::pictures
