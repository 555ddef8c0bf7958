// Two nested one-pixel frames, the raised or sunken edge of the library's
// controls (calendar caption, header and buttons, drop-down buttons,
// splitter bars).
#pragma once

#include <windows.h>

namespace zk {

// Right and bottom are taken one pixel in. For each ring: the bottom-right
// colour from (right, top) down to (right, bottom) and left to (left - 1,
// bottom); then the top-left colour from (left, bottom - 1) up to (left,
// top) and right to (right, top); then the rectangle shrinks by one on
// every side. The outer ring first.
void DrawBevel(HDC dc, const RECT &rect, COLORREF outerTopLeft, COLORREF outerBottomRight, COLORREF innerTopLeft,
               COLORREF innerBottomRight);
// The same with pens the caller holds (solid, one pixel), for painting
// that has its pens made already.
void DrawBevel(HDC dc, const RECT &rect, HPEN outerTopLeft, HPEN outerBottomRight, HPEN innerTopLeft,
               HPEN innerBottomRight);

} // namespace zk
