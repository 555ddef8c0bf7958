// Creation, the property block, metrics, layout and size, and the colour
// roles of the frame answered by the model.
#include "palette/win/palette_window.h"

#include "frame/win/gdi.h"
#include "frame/win/prop_block.h"

namespace zk::pal {

LRESULT CColorPalette::OnCreate() {
    if (CGenericControl::WindowProc(WM_CREATE, CurrentMessage().wParam, CurrentMessage().lParam) == -1)
        return -1;
    stateFlags &= static_cast<uint16_t>(~kDragFlags);
    ApplyProperties(SPropPalette());
    FitWindow();
    model_.SetFocusCell(0, kZoneMain, 0);
    created = 1;
    return 0;
}

int CColorPalette::ApplyProperties(const SPropPalette &block) { return model_.ApplyProperties(block); }

void CColorPalette::SizeToFit(int autoSizeFlag) {
    if (autoSizeFlag != 1 || !GetSafeHwnd())
        return;
    SetWindowPos(GetSafeHwnd(), nullptr, 0, 0, layout_.FitWidth(), layout_.FitHeight(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    // Before creation ends the window does not lay out again on its own.
    if (created != 1)
        RecalcFrame();
}

// The frame's metrics are the palette's: the column width is the base
// width B, the row height the line height H.
void CColorPalette::RecalcMetrics() {
    CGenericControl::RecalcMetrics();
    RecalcFrame();
}

void CColorPalette::RecalcFrame() {
    layout_.Compute(ClientArea(), rowHeight, columnWidth, model_.Counts());
    frame = ToRECT(layout_.Frame());
}

COLORREF CColorPalette::GetRoleColor(int role) { return model_.GetRoleColor(role); }

COLORREF CColorPalette::SetRoleColor(int role, COLORREF colour, int redraw) {
    return model_.SetRoleColor(role, colour, redraw);
}

int CColorPalette::IsDerivedRoleColor(int role) { return model_.IsDerivedRoleColor(role); }

// ---- the form's wrapper -------------------------------------------------------------

LRESULT CDlgPalette::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_CREATE)
        return CColorPalette::WindowProc(message, wParam, lParam);
    if (CColorPalette::WindowProc(message, wParam, lParam) == -1)
        return -1;
    // A block that does not read to its end leaves the defaults in place.
    SPropPalette block;
    bool complete = false;
    if (LoadCreationBlock(GetSafeHwnd(), reinterpret_cast<const CREATESTRUCTW *>(lParam), kPropColorPalette, block,
                          &complete) &&
        complete)
        ApplyProperties(block);
    return 0;
}

} // namespace zk::pal
