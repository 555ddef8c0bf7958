// The drawing steps of a row, each on a DC that the paint has prepared
// (font selected, colours set). The sums come from the core.
#pragma once

#include <windows.h>

#include <string_view>

#include "outline/core/lbx.h"
#include "outline/core/paint_layout.h"
#include "outline/win/pic.h"

namespace zk::lbx::paint {

inline RECT ToRect(const LbxRect &r) { return {r.left, r.top, r.right, r.bottom}; }
inline LbxRect FromRect(const RECT &r) { return {r.left, r.top, r.right, r.bottom}; }

// A row's text in `frame`, opaque, tabs expanded when the list has tab
// stops. False when the stops cannot be locked: the row is then forwarded.
bool DrawRowText(HDC dc, const LbxChild &child, std::u16string_view text, int32_t textX, int32_t textY,
                 const RECT &frame);

// The picture of a row (types 1 to 3; an empty picture paints nothing).
void DrawRowPicture(HDC dc, const PIC &pic, const LbxRect &row, uint32_t style, COLORREF background, int32_t gap,
                    int32_t indentPx);

// Tree lines and box of an item with a node (LbxDrawLines).
void DrawTreeLines(HDC dc, const LbxRect &row, const LbxChild &child, const LbxItem &item, int32_t step);

// Fills a rectangle with a solid brush; false when the brush cannot be made.
bool FillSolid(HDC dc, const RECT &rect, COLORREF colour);

// Width of a text in the DC's font; with tab expansion the part after the
// last tab only, 0 when the stops will not lock (LbxTextExtent).
int32_t TextExtent(HDC dc, const LbxChild &child, std::u16string_view text);

} // namespace zk::lbx::paint
