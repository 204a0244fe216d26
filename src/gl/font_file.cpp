#include "gl/font_file.h"

#include <memory>
#include <system_error>

#include <fontconfig/fontconfig.h>

#include "base/failure.h"

namespace tessaplot::gl {

namespace {

using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;

}  // namespace

void failFont(const std::string& reason) {
    throw base::Failure(base::FailureCode::FileUnreadable, "Unable to create font: " + reason);
}

std::future<void> prepareFonts() {
    try {
        return std::async(std::launch::async, [] { FcInit(); });
    } catch (const std::system_error&) {
        return {};  // There is no further thread: who needs a font first waits.
    }
}

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

}  // namespace tessaplot::gl
