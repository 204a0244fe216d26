#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "data/data_panel.h"
#include "data/data_set.h"
#include "data/scaling.h"
#include "platform/desktop.h"

namespace tessaplot::data {

/// Slots of the table that the tokens of a data text are split into.
inline constexpr int textTokenSlots = 500000;

/// Reads a data text into the panel: a tag such as "R3" or "ICS" (its end counts, in either case), the size tokens, the
/// values row by row. Tokens end at each single blank, tab or line end. An unknown tag leaves the panel unchanged and
/// returns false. Throws SubscriptOutOfRange, with the panel unchanged, for more tokens or rows than the tables hold.
bool importText(DataPanel& panel, std::string text);

/// The panel's data as a data text: tag, sizes, cells; the colour column of surfaces is left out. Each token is
/// followed by one blank. The panel should have passed `CheckData`.
std::string exportText(const DataPanel& panel);

/// The lattice that gridding makes of the panel's irregular data as a data text of the regular form of the same data:
/// nodes in data units, angles in degrees. Throws Failure if the data cannot be gridded.
std::string exportGriddedText(const DataPanel& panel, const GriddingChoice& gridding, const platform::Desktop& desktop);

/// The boxes of the panel that hold the sizes of a data text, in the order of their tokens.
std::vector<int> sizeBoxesOf(DataKind kind);

/// The bytes of a data file, without a byte-order mark. Throws FileUnreadable.
std::string readTextFile(const std::filesystem::path& path);

/// Writes a data text as one quoted line. Throws FileUnwritable; the old file stays then.
void writeTextFile(const std::filesystem::path& path, std::string_view text);

}  // namespace tessaplot::data
