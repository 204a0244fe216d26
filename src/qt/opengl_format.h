#pragma once

namespace tessaplot::qt {

/// Makes every context of the program one of the compatibility profile, without multisampling, that shares its objects
/// with the others. To be called before the application object is made.
void requestOpenGl();

/// Why the current context cannot draw the picture; null if it can.
const char* reasonAgainstCurrentContext();

/// The same of the contexts that widgets will get. To be called with an application object, before such a widget is
/// made: Qt does not survive a window with an OpenGL widget where there is no OpenGL.
const char* reasonAgainstOpenGl();

}  // namespace tessaplot::qt
