#pragma once

namespace tessaplot::gl {

/// Asks the system to back the memory that the program takes from now on with large pages, where it has any. Software
/// OpenGL fills tens of megabytes with pictures, and a program that ends after one of them spends much of its time on
/// the first touch of their small pages. To be called early, before there are threads; what cannot be had is left out.
void preferLargePages();

}  // namespace tessaplot::gl
