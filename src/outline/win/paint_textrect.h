// The text rectangle of a row, shared by the hit tests and the exports of
// painting.
#pragma once

#include <windows.h>

#include "outline/core/lbx.h"

namespace zk::lbx {

// `rect` holds the row's rectangle on entry and the text's on return (left,
// top, left + text width + 4, top + the larger of text and picture height).
// `dc` is a DC of the control; the item's font, or else the control's, is
// selected for the measure and the old one put back.
void LbxTextRect(HWND window, const LbxItem *item, const LbxChild *child, HDC dc, RECT *rect);

} // namespace zk::lbx
