// WM_SETFONT of adopted controls: every row is measured again, the only pass
// over all rows in the window procedures.
#include <vector>

#include "outline/core/lbx_tree.h"
#include "outline/win/lbx_metrics.h"
#include "outline/win/lbx_procs.h"

namespace zk::lbx {

namespace {

struct Height {
    int32_t row;
    UINT height;
};

} // namespace

LRESULT LbxSetFont(const LbxChild &child, HWND window, bool combo, WPARAM font, LPARAM redraw) {
    CallBase(child, window, WM_SETFONT, font, redraw);
    ChildEdit(window, [](LbxChild &c) { c.textHeight = 0; });
    if (combo) {
        TEXTMETRICW metrics{};
        if (FontMetrics(window, reinterpret_cast<HFONT>(font), &metrics)) {
            const LONG field = IsWin32Platform() ? metrics.tmHeight + 2 : metrics.tmHeight + metrics.tmHeight / 2;
            CallBase(child, window, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), field);
        }
    }
    const UINT setHeight = combo ? CB_SETITEMHEIGHT : LB_SETITEMHEIGHT;
    const int32_t count = static_cast<int32_t>(CallBase(child, window, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0));
    // Every row is measured first and the heights are applied after: the
    // parent's answer for a row does not depend on the others' heights. A
    // variable-height list box finds a row's rectangle by adding the heights
    // above it each time one is set, so the second loop stays as tight as the
    // list box allows, with painting off for it; the engine's redraw switch
    // says whether painting may be turned back on, as for the tree
    // operations, and a hidden list, or one whose painting someone else
    // turned off (the application freezing it), is left as it is.
    std::vector<Height> heights;
    heights.reserve(count > 0 ? static_cast<std::size_t>(count) : 0);
    for (int32_t row = 0; row < count; ++row) {
        const std::uintptr_t word = LbxBaseRow(child, window, combo, row);
        if (!LbxIsItem(word)) {
            break;
        }
        Height h{row, 0};
        if (MeasureRow(window, combo, row, word, &h.height)) {
            heights.push_back(h);
        }
    }
    const bool quiet = !combo && !heights.empty() && LbxOutlineRedraw && !(child.runFlags & LBX_ChildPaintOff) &&
                       (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE);
    if (quiet) {
        CallBase(child, window, WM_SETREDRAW, FALSE, 0);
    }
    for (const Height &h : heights) {
        CallBase(child, window, setHeight, static_cast<WPARAM>(h.row), static_cast<LPARAM>(h.height));
    }
    if (quiet) {
        CallBase(child, window, WM_SETREDRAW, TRUE, 0);
        if (redraw) {
            InvalidateRect(window, nullptr, TRUE);
        }
    }
    return 1;
}

} // namespace zk::lbx
