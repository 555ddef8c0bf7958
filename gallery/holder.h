// A plain window that holds a page's controls while they are shown and
// photographed (top level, visible, in the face colour), and the controls
// on it as the host makes them.
#pragma once

#include <windows.h>

#include <string>

namespace gallery {

class Pictures;
class Report;

// Registers `className` (once) and makes the window at (40, 40).
HWND MakeHolder(const wchar_t *className, const wchar_t *title, int width, int height);

// A control as the host makes it: a window of the host's class, and the
// pointer its ZKM_ControlCreate announced (0 when none came).
struct HostControl {
    HWND window = nullptr;
    INT_PTR control = 0;
};
// A child of `parent` with control id `id`, or a top-level window when
// `parent` is null.
HostControl MakeHostControl(const wchar_t *className, HWND parent, int x, int y, int width, int height, DWORD style,
                            int id);

// Paints the control now, photographs it as `name`, and reports it shown
// ("<kind> shown: <name>").
void ShowControl(Report &report, Pictures &pictures, const HostControl &c, const std::wstring &kind,
                 const std::wstring &name);

} // namespace gallery
