#pragma once

#include <filesystem>

#include "ui/help_targets.h"

namespace tessaplot::qt {

/// What stands beside the program: where it was installed or, for one that was not, in the folder it was built from.
struct Installation {
    std::filesystem::path samples;  ///< Folder of the sample documents; empty if there is none.
    /// Addresses from the file "help.ini" of the installation; without one there, the contents are the guide.
    ui::HelpTargets help;
};

/// Looks for what stands beside the running program, which must have an application object.
Installation findInstallation();

}  // namespace tessaplot::qt
