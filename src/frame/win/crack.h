// Message crackers: the arguments of mouse and key messages as the
// controls' portable input takes them.
#pragma once

#include <windows.h>

#include <cstdint>

#include "frame/core/geometry.h"

namespace zk {

// The client point of a mouse message (signed: a captured mouse may lie
// left of or above the window).
inline Point MousePoint(LPARAM lParam) {
    return Point{static_cast<int16_t>(LOWORD(lParam)), static_cast<int16_t>(HIWORD(lParam))};
}
// The mouse-key bits of a mouse message (MK_LBUTTON, MK_SHIFT, MK_CONTROL...).
inline uint32_t MouseKeys(WPARAM wParam) { return static_cast<uint32_t>(wParam); }
// The virtual-key code of WM_KEYDOWN and WM_KEYUP, the character of WM_CHAR.
inline uint32_t KeyCode(WPARAM wParam) { return static_cast<uint32_t>(wParam); }
// The point of a message with screen coordinates, in the window's client area.
inline Point ClientPointFromScreen(HWND window, LPARAM lParam) {
    POINT p{static_cast<int16_t>(LOWORD(lParam)), static_cast<int16_t>(HIWORD(lParam))};
    ScreenToClient(window, &p);
    return Point{p.x, p.y};
}

} // namespace zk
