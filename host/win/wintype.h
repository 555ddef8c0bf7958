// Classification of real windows by their system class and style.
#pragma once

#include <windows.h>

#include <cstdint>

namespace hostwin {

enum class WinKind { None, ListBox, ComboBox, Edit, Button, Static, Dialog, Other };

// The system class of a window (None when it is no window).
WinKind KindOf(HWND window);
// The host type: a test's mark first, else what class and style say.
uint32_t TypeOf(HWND window);

} // namespace hostwin
