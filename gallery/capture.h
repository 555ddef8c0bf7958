// Taking pictures of windows as they are on the screen.
#pragma once

#include <windows.h>

#include "bmpfile.h"

namespace gallery {

// The whole top-level window, title bar and children included. It must be
// visible and uncovered: the pixels come from the window's own surface.
Picture CaptureTopLevel(HWND window);

// The client area of one control, painted on demand through PrintWindow.
Picture CaptureControl(HWND control);

} // namespace gallery
