// The library's own window properties, read through a process-wide copy.
// Under Wine every GetPropW is a round trip to the server (about 15 µs, far
// more on a busy machine), and the outline engine reads its records from
// properties several times per row it adds, measures or paints. Every
// property the library sets and removes goes through here, so the copy
// cannot disagree with the window; a window that is no longer valid drops
// its entries on the next read.
#pragma once

#include <windows.h>

namespace zk {

// The property's value: from the copy, or from the window on a first read.
HANDLE PropGet(HWND window, const wchar_t *name);
// SetPropW, and the copy follows when it succeeds.
bool PropSet(HWND window, const wchar_t *name, HANDLE value);
// RemovePropW; the copy forgets the name on the window.
HANDLE PropRemove(HWND window, const wchar_t *name);
// The copy forgets the name on the window, which keeps its property: for a
// property set under a name the application gives (ZelWinSetProp), whose
// text the copy must not keep.
void PropForget(HWND window, const wchar_t *name);

} // namespace zk
