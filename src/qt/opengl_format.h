#pragma once

namespace tessaplot::qt {

/// Makes every context of the program one of the compatibility profile, without multisampling, that shares its objects
/// with the others. To be called before the application object is made.
void requestOpenGl();

/// Throws Failure (OpenGl) if the contexts that widgets get cannot draw the picture. To be called with an application
/// object, before such a widget is made: Qt does not survive a window with an OpenGL widget where there is no OpenGL.
void requireOpenGl();

}  // namespace tessaplot::qt
