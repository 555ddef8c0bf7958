// Process-wide state set up when the library loads: palette bitmaps, icon
// metrics and the map of the host's list class names.
#pragma once

#include <windows.h>

namespace zk {

extern int IconWidth, IconHeight;
extern const int SmallIconWidth, SmallIconHeight;

// Class palette images by index: 0 and unknown indices give the logo.
HBITMAP PaletteBitmap(int index);

// Whether a host class name is one of the built-in list or combo classes.
bool IsHostListClassName(const wchar_t *name);

// Start-up's first steps and shut-down's last: icon metrics, the bitmaps
// (a missing one stays null) and the class-name map.
void LoadProcessState(HINSTANCE instance);
void FreeProcessState();

} // namespace zk
