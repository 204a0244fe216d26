#include "gl/glyph_font.h"

#include <algorithm>
#include <cmath>

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include "base/failure.h"

namespace tessaplot::gl {

namespace {

[[noreturn]] void failFont(const std::string& reason) {
    throw base::Failure(base::FailureCode::FileUnreadable, "Unable to create font: " + reason);
}

struct FontFile {
    std::string path;
    int faceIndex = 0;
};

using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;

FontFile findFont(const std::string& family) {
    FcConfig* config = FcConfigGetCurrent();
    if (config == nullptr) failFont("Fontconfig is not set up.");
    const Pattern wanted(FcPatternCreate(), FcPatternDestroy);
    FcPatternAddString(wanted.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
    FcPatternAddInteger(wanted.get(), FC_WEIGHT, FC_WEIGHT_REGULAR);
    FcPatternAddInteger(wanted.get(), FC_SLANT, FC_SLANT_ROMAN);
    FcPatternAddBool(wanted.get(), FC_SCALABLE, FcTrue);
    FcConfigSubstitute(config, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    const Pattern found(FcFontMatch(config, wanted.get(), &result), FcPatternDestroy);
    FcChar8* path = nullptr;
    if (!found || FcPatternGetString(found.get(), FC_FILE, 0, &path) != FcResultMatch)
        failFont("this machine has no fonts.");
    FontFile file{reinterpret_cast<const char*>(path), 0};
    FcPatternGetInteger(found.get(), FC_INDEX, 0, &file.faceIndex);
    return file;
}

/// Draws an outline of FreeType as short lines.
class OutlineReader {
 public:
    OutlineReader(GlyphOutline& outline, double unitsPerEm) : outline_(outline), unitsPerEm_(unitsPerEm) {}

    bool read(FT_Outline& source);

 private:
    static OutlineReader& of(void* user) { return *static_cast<OutlineReader*>(user); }
    static int moveTo(const FT_Vector* to, void* user);
    static int lineTo(const FT_Vector* to, void* user);
    static int conicTo(const FT_Vector* control, const FT_Vector* to, void* user);
    static int cubicTo(const FT_Vector* control1, const FT_Vector* control2, const FT_Vector* to, void* user);

    OutlinePoint point(const FT_Vector& v) const {
        return {static_cast<double>(v.x) / unitsPerEm_, static_cast<double>(v.y) / unitsPerEm_};
    }
    void append(const OutlinePoint& p);
    void closeContour();

    GlyphOutline& outline_;
    double unitsPerEm_;
    std::vector<OutlinePoint> contour_;
    OutlinePoint at_{};
};

/// The lines stay within this distance, in em squares, of the curve that they stand for.
constexpr double tolerance = 0.003;

/// How many lines a curve needs that strays by `deviation` from its chord.
int linesFor(double deviation) {
    return std::max(1, static_cast<int>(std::ceil(std::sqrt(deviation / tolerance))));
}

/// How far the middle one of three points is from a straight, even course.
double bend(const OutlinePoint& a, const OutlinePoint& b, const OutlinePoint& c) {
    return std::hypot(a[0] - 2 * b[0] + c[0], a[1] - 2 * b[1] + c[1]);
}

/// True for points that 32-bit floats might not tell apart.
bool coincide(const OutlinePoint& a, const OutlinePoint& b) {
    constexpr double nothing = 1e-6;
    return std::hypot(a[0] - b[0], a[1] - b[1]) < nothing;
}

int OutlineReader::moveTo(const FT_Vector* to, void* user) {
    of(user).closeContour();
    of(user).append(of(user).point(*to));
    return 0;
}

int OutlineReader::lineTo(const FT_Vector* to, void* user) {
    of(user).append(of(user).point(*to));
    return 0;
}

int OutlineReader::conicTo(const FT_Vector* control, const FT_Vector* to, void* user) {
    OutlineReader& self = of(user);
    const OutlinePoint p0 = self.at_;
    const OutlinePoint p1 = self.point(*control);
    const OutlinePoint p2 = self.point(*to);
    const int lines = linesFor(bend(p0, p1, p2) / 4);
    for (int i = 1; i <= lines; ++i) {
        const double t = static_cast<double>(i) / lines;
        const double s = 1 - t;
        self.append(
            {s * s * p0[0] + 2 * s * t * p1[0] + t * t * p2[0], s * s * p0[1] + 2 * s * t * p1[1] + t * t * p2[1]});
    }
    return 0;
}

int OutlineReader::cubicTo(const FT_Vector* control1, const FT_Vector* control2, const FT_Vector* to, void* user) {
    OutlineReader& self = of(user);
    const OutlinePoint p0 = self.at_;
    const OutlinePoint p1 = self.point(*control1);
    const OutlinePoint p2 = self.point(*control2);
    const OutlinePoint p3 = self.point(*to);
    const int lines = linesFor(std::max(bend(p0, p1, p2), bend(p1, p2, p3)) * 3 / 4);
    for (int i = 1; i <= lines; ++i) {
        const double t = static_cast<double>(i) / lines;
        const double s = 1 - t;
        const auto at = [&](std::size_t k) {
            return s * s * s * p0[k] + 3 * s * s * t * p1[k] + 3 * s * t * t * p2[k] + t * t * t * p3[k];
        };
        self.append({at(0), at(1)});
    }
    return 0;
}

void OutlineReader::append(const OutlinePoint& p) {
    if (contour_.empty() || !coincide(contour_.back(), p)) contour_.push_back(p);
    at_ = p;
}

/// Contours without an area are left out.
void OutlineReader::closeContour() {
    while (contour_.size() > 1 && coincide(contour_.back(), contour_.front()))
        contour_.pop_back();
    if (contour_.size() > 2) outline_.contours.push_back(std::move(contour_));
    contour_.clear();
}

bool OutlineReader::read(FT_Outline& source) {
    FT_Outline_Funcs calls{};
    calls.move_to = moveTo;
    calls.line_to = lineTo;
    calls.conic_to = conicTo;
    calls.cubic_to = cubicTo;
    if (FT_Outline_Decompose(&source, &calls, this) != 0) return false;
    closeContour();
    if (FT_Outline_Get_Orientation(&source) == FT_ORIENTATION_TRUETYPE)
        for (std::vector<OutlinePoint>& contour : outline_.contours)
            std::reverse(contour.begin(), contour.end());
    return true;
}

}  // namespace

/// A face of FreeType with its library.
struct GlyphFont::Face {
    FT_Library library = nullptr;
    FT_Face face = nullptr;
    std::string file;

    Face() = default;
    ~Face() {
        if (face != nullptr) FT_Done_Face(face);
        if (library != nullptr) FT_Done_FreeType(library);
    }
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;

    bool load(char32_t character, FT_Int32 flags) const {
        const FT_UInt glyph = FT_Get_Char_Index(face, character);
        return glyph != 0 && FT_Load_Glyph(face, glyph, flags) == 0;
    }
};

GlyphFont::GlyphFont(const std::string& family) : face_(std::make_unique<Face>()) {
    const FontFile file = findFont(family);
    face_->file = file.path;
    if (FT_Init_FreeType(&face_->library) != 0) failFont("FreeType does not start.");
    if (FT_New_Face(face_->library, file.path.c_str(), file.faceIndex, &face_->face) != 0)
        failFont("the file \"" + file.path + "\" is no font.");
    if (!FT_IS_SCALABLE(face_->face)) failFont("the font \"" + file.path + "\" has no outlines.");
}

GlyphFont::~GlyphFont() = default;
GlyphFont::GlyphFont(GlyphFont&&) noexcept = default;
GlyphFont& GlyphFont::operator=(GlyphFont&&) noexcept = default;

const std::string& GlyphFont::file() const {
    return face_->file;
}

GlyphOutline GlyphFont::outline(char32_t character) const {
    GlyphOutline outline;
    if (!face_->load(character, FT_LOAD_NO_SCALE)) return outline;
    const FT_GlyphSlot slot = face_->face->glyph;
    if (slot->format != FT_GLYPH_FORMAT_OUTLINE) return outline;
    const double unitsPerEm = face_->face->units_per_EM;
    outline.advance = static_cast<double>(slot->metrics.horiAdvance) / unitsPerEm;
    if (!OutlineReader(outline, unitsPerEm).read(slot->outline)) outline.contours.clear();
    return outline;
}

GlyphBitmap GlyphFont::bitmap(char32_t character, int height) const {
    constexpr int pixel = 64;
    FT_Size_RequestRec size{};
    size.type = FT_SIZE_REQUEST_TYPE_REAL_DIM;
    size.height = height * pixel;
    GlyphBitmap bitmap;
    if (FT_Request_Size(face_->face, &size) != 0) return bitmap;
    if (!face_->load(character, FT_LOAD_RENDER | FT_LOAD_TARGET_MONO)) return bitmap;
    const FT_GlyphSlot slot = face_->face->glyph;
    const FT_Bitmap& image = slot->bitmap;
    bitmap.width = static_cast<int>(image.width);
    bitmap.height = static_cast<int>(image.rows);
    bitmap.left = slot->bitmap_left;
    bitmap.bottom = slot->bitmap_top - bitmap.height;
    bitmap.advance = static_cast<int>(std::lround(static_cast<double>(slot->advance.x) / pixel));
    const int bytes = (bitmap.width + 7) / 8;
    for (int row = bitmap.height - 1; row >= 0; --row) {
        const unsigned char* first = image.buffer + static_cast<std::ptrdiff_t>(row) * image.pitch;
        bitmap.rows.insert(bitmap.rows.end(), first, first + bytes);
    }
    return bitmap;
}

}  // namespace tessaplot::gl
