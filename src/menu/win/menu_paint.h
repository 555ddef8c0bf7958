// Owner-drawn menu items of the library: their size (WM_MEASUREITEM),
// their picture, text and check mark (WM_DRAWITEM), and the picture without
// its background that a plain item shows in its check-mark place.
#pragma once

#include <windows.h>

namespace zk::lbx {
struct PIC;
}

namespace zk::menu {

using lbx::PIC;

// Measures the item of a record; false when no record has its id (the
// message then goes on to the old procedure). Width and height are set to
// 0 first in either case.
bool MeasureMenuItem(HWND window, HLOCAL block, MEASUREITEMSTRUCT &item);

// Draws the item of a record (the item data is its menu); false when there
// is no record or no picture, and the old procedure is to draw.
bool DrawMenuItem(HLOCAL block, const DRAWITEMSTRUCT &item);

// A 32-bit bitmap of the picture with its background made transparent:
// the picture is drawn through its mask onto black, and black becomes
// transparent. Null for a picture with no size or when GDI fails.
HBITMAP MakeBackgroundlessBitmap(const PIC &picture);

} // namespace zk::menu
