// Taking pictures of windows as they are on the screen.
#pragma once

#include <windows.h>

#include "bmpfile.h"

namespace gallery {

// The whole top-level window, title bar and children included. It must be
// visible and uncovered: the pixels come from the window's own surface,
// repainted first unless `repaint` is false (a popup menu repainted whole
// draws its selected item as a plain one).
Picture CaptureTopLevel(HWND window, bool repaint = true);

// The client area of one control, painted on demand through PrintWindow.
Picture CaptureControl(HWND control);

} // namespace gallery
