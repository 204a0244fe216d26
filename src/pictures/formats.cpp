#include "pictures/formats.h"

#include <string>

#include <dlfcn.h>

#include "base/failure.h"

namespace tessaplot::pictures {

namespace {

namespace fs = std::filesystem;

/// An installed program never loads the module of a build folder.
fs::path findModule() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    const bool isBuilt = program.native().starts_with(TESSAPLOT_BUILD_FOLDER "/");
    const fs::path place = isBuilt ? fs::path(TESSAPLOT_BUILT_FORMATS)
                                   : program.parent_path() / ".." / TESSAPLOT_MODULE_FOLDER / TESSAPLOT_FORMATS_NAME;
    if (!program.empty() && fs::exists(place, error)) return place;
    throw base::Failure(base::FailureCode::FileUnreadable,
                        "The part of Tessaplot for pictures other than PNG (" TESSAPLOT_FORMATS_NAME ") is missing.");
}

Formats load() {
    const fs::path path = findModule();
    void* module = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* function = module != nullptr ? ::dlsym(module, "tessaplotFormats") : nullptr;
    if (function == nullptr)
        throw base::Failure(base::FailureCode::FileUnreadable,
                            "The module for pictures other than PNG cannot be loaded: " + std::string(::dlerror()));
    return reinterpret_cast<Formats (*)()>(function)();
}

}  // namespace

const Formats& formats() {
    static const Formats loaded = load();
    return loaded;
}

}  // namespace tessaplot::pictures
