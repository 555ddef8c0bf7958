// A window of a class that is not the library's (a platform control such as
// "SysListView32") with a window object subclassed in from its very first
// message, so that the object sees WM_NCCREATE and WM_CREATE as the
// framework's own windows do.
#pragma once

#include <windows.h>

#include "frame/win/window.h"

namespace zk {

// CreateWindowExW with the library's instance; the object is subclassed in
// when the platform announces the new window to the thread's CBT hook. Null
// when the window was not made; PostNcDestroy has then run if the object
// had been attached.
HWND CreateSubclassed(Window &object, DWORD exStyle, const wchar_t *className, const wchar_t *title, DWORD style, int x,
                      int y, int width, int height, HWND parent, HMENU menuOrId, void *param = nullptr);

} // namespace zk
