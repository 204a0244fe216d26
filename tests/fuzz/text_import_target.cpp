#include <string>

#include "base/failure.h"
#include "data/text_table.h"
#include "fuzz/property.h"
#include "fuzz/targets.h"

namespace tessaplot::fuzz {

namespace {

bool imports(data::DataPanel& panel, std::string_view bytes) {
    std::string message;
    try {
        return data::importText(panel, std::string(bytes)) && panel.CheckData(message);
    } catch (const base::Failure&) {
        return false;
    }
}

}  // namespace

void text_import(std::string_view bytes) {
    data::DataPanel panel;
    if (!imports(panel, bytes)) return;
    const std::string exported = data::exportText(panel);
    data::DataPanel again;
    require(data::importText(again, exported), "what was exported is imported");
    require(data::exportText(again) == exported, "import after export keeps the numbers");
}

}  // namespace tessaplot::fuzz
