// Small drawing pieces the controls share: lines, centred text, and the
// bevel, two nested one-pixel frames that make the raised or sunken edge of
// the library's controls (calendar caption, header and buttons, drop-down
// buttons, splitter bars).
#pragma once

#include <windows.h>

#include <string_view>

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

// A line from (x1, y1) to (x2, y2), the end point left out; the pen that
// was selected stays.
void Line(HDC dc, HPEN pen, int x1, int y1, int x2, int y2);

// Text on one line centred in a box, opaque on its own background colour.
// Nothing is drawn for no text.
void CentredText(HDC dc, std::u16string_view text, const RECT &box, COLORREF textColour, COLORREF backColour);

} // namespace zk
