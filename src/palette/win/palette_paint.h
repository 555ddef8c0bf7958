// The pieces of the palette's off-screen paint. Every piece draws into a
// memory context with the pens and brushes of the twelve colour roles,
// made once per paint (frame/win/role_tools.h).
#pragma once

#include <windows.h>

#include "frame/win/gdi.h"
#include "frame/win/role_tools.h"
#include "palette/core/palette_layout.h"
#include "palette/core/palette_model.h"

namespace zk::pal {

// The roles' colours in force for a paint.
RoleTools PaintTools(const PaletteModel &model);

// What the pieces need to know of the control besides model and layout.
struct Look {
    bool disabled = false;      // text and outlines in role 7, no focus frame
    bool focused = false;       // the focus frame and its focus rectangle
    bool keepSelection = false; // the focus frame without the focus
};

// A colour zone (0 or 2): its ground, then each cell meeting `clip` with
// its two bevel passes and its colour.
void PaintGrid(HDC dc, const RoleTools &tools, const GridLayout &layout, const PaletteModel &model, int32_t zone,
               const Rect &clip, const Look &look);
// The menu zone: its ground and bevel, and the text of every line.
void PaintMenu(HDC dc, const RoleTools &tools, const GridLayout &layout, const PaletteModel &model, HFONT font,
               const Look &look);
// The focus frame: two lines in role 10 and one in role 9 around and over
// the focus cell's bevel, with the focus rectangle inside when focused.
void PaintFocus(HDC dc, const RoleTools &tools, const GridLayout &layout, const PaletteModel &model, const Look &look);

} // namespace zk::pal
