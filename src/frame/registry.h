// Process-wide state set up when the library loads: window classes, palette
// bitmaps, icon metrics and the map of the host's list class names.
#pragma once

#include <windows.h>

namespace zk {

extern int IconWidth, IconHeight;
extern const int SmallIconWidth, SmallIconHeight;

// The control object's maker for an outer class; the registry's window
// procedure hands WM_NCCREATE to it. Until a control family installs one, the
// class behaves as a plain window.
using ControlBootstrap = LRESULT (*)(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
void SetControlBootstrap(const wchar_t *className, ControlBootstrap bootstrap);

// Class palette images by index: 0 and unknown indices give the logo.
HBITMAP PaletteBitmap(int index);

// Whether a host class name is one of the built-in list or combo classes.
bool IsHostListClassName(const wchar_t *name);

// Start-up and shut-down of the library; false when a class cannot be registered.
bool InitInstance(HINSTANCE instance);
void ExitInstance();

} // namespace zk
