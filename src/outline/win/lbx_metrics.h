// Font measures taken in a client DC of a control.
#pragma once

#include <windows.h>

namespace zk::lbx {

// The metrics of `font` selected into a client DC of `window`; false when
// no DC can be had.
bool FontMetrics(HWND window, HFONT font, TEXTMETRICW *metrics);

// Whether the platform id of GetVersionExW is 1 or 2 (the Windows families
// whose rows are measured four pixels tighter than their font).
bool IsWin32Platform();

} // namespace zk::lbx
