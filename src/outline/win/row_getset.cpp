// Reading and changing the colour, pictures and font of a row, and enabling
// or disabling it.
#include "frame/win/guard.h"
#include "outline/win/lbx_exports.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/pic.h"

namespace zk::lbx {

// The item of a row of an adopted control, read through the base procedure.
bool FindRow(HWND window, int32_t row, FoundRow *out) {
    LbxChild child{};
    if (!LbxGetChildCopy(window, &child)) {
        return false;
    }
    out->window = window;
    out->combo = ControlKind(window) == LbxKind::Combo;
    out->item = LbxItemOf(LbxBaseRow(child, window, out->combo, row));
    return out->item != nullptr;
}

// Stores new fields through `store`, asks the parent for the row's height
// and applies it. False when the parent did not answer; *oldHeight is the
// row's height before (0 for a combo box, whose rows have no rectangle here).
bool Remeasure(const FoundRow &r, int32_t row, bool lowWord, LONG *oldHeight, UINT *newHeight) {
    RECT rect{};
    if (!r.combo) {
        SendMessageW(r.window, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
    }
    *oldHeight = rect.bottom - rect.top;
    UINT height = 0;
    if (!MeasureRow(r.window, r.combo, row, reinterpret_cast<std::uintptr_t>(r.item), &height)) {
        return false;
    }
    const LPARAM applied = lowWord && !r.combo ? static_cast<LPARAM>(LOWORD(height)) : static_cast<LPARAM>(height);
    SendMessageW(r.window, r.combo ? CB_SETITEMHEIGHT : LB_SETITEMHEIGHT, static_cast<WPARAM>(row), applied);
    *newHeight = static_cast<UINT>(applied);
    return true;
}

int32_t EnableRow(HWND window, int32_t row, COLORREF colour, bool disable) {
    LbxChild child{};
    if (!LbxGetChildCopy(window, &child)) {
        return -1;
    }
    const bool combo = ControlKind(window) == LbxKind::Combo;
    LbxItem *item = LbxItemOf(LbxBaseRow(child, window, combo, row));
    if (!item) {
        return -1;
    }
    if (LbxIsMultiSelect(window, combo)) {
        SendMessageW(window, LB_SETSEL, static_cast<WPARAM>(row), 0); // the request as it stands
    } else {
        SendMessageW(window, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    }
    if (!LbxIsItem(item)) {
        return -1;
    }
    if (disable) {
        item->flags |= LBX_ItemDisabled;
        item->color = (item->color & 0xFF000000u) | (colour & 0x00FFFFFFu);
    } else {
        item->flags &= ~LBX_ItemDisabled;
        item->color = colour & 0x00FFFFFFu;
    }
    RECT rect{};
    if (!combo &&
        SendMessageW(window, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect)) != LB_ERR) {
        InvalidateRect(window, &rect, TRUE);
    } else {
        InvalidateRect(window, nullptr, TRUE);
    }
    return row;
}

} // namespace zk::lbx
