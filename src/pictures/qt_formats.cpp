#include "pictures/qt_formats.h"

#include <QtGlobal>

#include "pictures/formats.h"

extern "C" Q_DECL_EXPORT tessaplot::pictures::Formats tessaplotFormats();

tessaplot::pictures::Formats tessaplotFormats() {
    return {tessaplot::pictures::writeWithQt, tessaplot::pictures::readWithQt};
}
