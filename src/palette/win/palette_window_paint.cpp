// One paint of the palette: the zones that meet the clip box, into the
// frame's off-screen buffer, which then copies the clip box once.
#include "palette/win/palette_paint.h"
#include "palette/win/palette_window.h"

namespace zk::pal {

void CColorPalette::TakePaintColours(HDC dc) {
    // The kept context starts each paint as a new one would: a notify
    // window that does not answer leaves black text.
    SetTextColor(dc, RGB(0, 0, 0));
    SetBkColor(dc, RGB(255, 255, 255));
    const auto brush = reinterpret_cast<HBRUSH>(SendMessageW(
        notifyWindow, WM_CTLCOLORLISTBOX, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(GetSafeHwnd())));
    LOGBRUSH described{};
    const COLORREF background =
        brush && GetObjectW(brush, sizeof described, &described) == sizeof described ? described.lbColor : 0;
    model_.SetRoleColor(PALR_Text, GetTextColor(dc), 0);
    model_.SetRoleColor(PALR_Background, background, 0);
}

void CColorPalette::Paint(HDC dc, const Rect &clip) {
    const SavedDC saved(dc);
    // Only the clip box is copied to the screen: drawing is held to it.
    IntersectClipRect(dc, clip.left, clip.top, clip.right, clip.bottom);
    TakePaintColours(dc);
    const RoleTools tools = PaintTools(model_);
    const RECT client = ToRECT(ClientArea());
    FillRect(dc, &client, tools.Brush(PALR_Background));
    Look look;
    look.disabled = (stateFlags & kStateDisabled) != 0;
    look.focused = HasFocus();
    look.keepSelection = model_.KeepSelection();
    if (layout_.Main().Intersects(clip))
        PaintGrid(dc, tools, layout_, model_, kZoneMain, clip, look);
    if (layout_.Menu().Intersects(clip))
        PaintMenu(dc, tools, layout_, model_, font, look);
    if (layout_.Recent().Intersects(clip))
        PaintGrid(dc, tools, layout_, model_, kZoneRecent, clip, look);
    PaintFocus(dc, tools, layout_, model_, look);
}

} // namespace zk::pal
