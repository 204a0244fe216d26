#pragma once

#include <string>

namespace tessaplot::ui {

/// Where the entries of the Help menu lead: addresses of web pages or of files. An empty one greys its entry.
struct HelpTargets {
    std::string contents;
    std::string homePage;
    std::string customerSupport;
    std::string videoTutorials;
    std::string communityNews;
    std::string communityForum;
};

}  // namespace tessaplot::ui
