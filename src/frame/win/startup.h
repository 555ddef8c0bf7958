// Start-up and shut-down of the library, from one table (startup.cpp) of
// every window class it registers and every binding it makes, in the order
// start-up takes them.
#pragma once

#include <windows.h>

namespace zk {

// False when a start-up class cannot be registered.
bool InitInstance(HINSTANCE instance);
void ExitInstance();

// Registers a class of the table that waits for its first window (the
// inner classes of the controls); true when it is registered now or was
// before, by this copy of the library or another.
bool EnsureClass(const wchar_t *name);

} // namespace zk
