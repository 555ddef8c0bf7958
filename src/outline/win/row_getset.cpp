// Reading and changing the colour, pictures and font of a row, and enabling
// or disabling it.
#include "frame/win/guard.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/pic.h"

namespace {

struct Row {
    HWND window = nullptr;
    bool combo = false;
    LbxItem *item = nullptr;
};

// The item of a row of an adopted control, read through the base procedure.
bool FindRow(HWND window, int32_t row, Row *out) {
    LbxChild child{};
    if (!LbxGetChildCopy(window, &child)) {
        return false;
    }
    out->window = window;
    out->combo = LbxControlKind(window) == LbxKind::Combo;
    out->item = LbxItemOf(LbxBaseRow(child, window, out->combo, row));
    return out->item != nullptr;
}

template <class R, class Body>
R Quiet(R failure, Body &&body) {
    return zk::Quietly(std::forward<Body>(body), [failure] { return failure; });
}

// Stores new fields through `store`, asks the parent for the row's height
// and applies it. False when the parent did not answer; *oldHeight is the
// row's height before (0 for a combo box, whose rows have no rectangle here).
bool Remeasure(const Row &r, int32_t row, bool lowWord, LONG *oldHeight, UINT *newHeight) {
    RECT rect{};
    if (!r.combo) {
        SendMessageW(r.window, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
    }
    *oldHeight = rect.bottom - rect.top;
    UINT height = 0;
    if (!LbxMeasureRow(r.window, r.combo, row, reinterpret_cast<std::uintptr_t>(r.item), &height)) {
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
    const bool combo = LbxControlKind(window) == LbxKind::Combo;
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

} // namespace

extern "C" {

int32_t ZKAPI ZelListGetColor(HWND window, int32_t row) {
    return Quiet(int32_t{-1}, [&] {
        Row r;
        return FindRow(window, row, &r) ? static_cast<int32_t>(r.item->color & 0x00FFFFFFu) : -1;
    });
}

int32_t ZKAPI ZelListSetColor(HWND window, int32_t row, COLORREF color) {
    return Quiet(int32_t{0}, [&] {
        Row r;
        if (!FindRow(window, row, &r)) {
            return 0;
        }
        r.item->color = color & 0x00FFFFFFu;
        LbxRedrawRow(window, r.combo, row, RDW_INVALIDATE);
        return 1;
    });
}

int32_t ZKAPI ZelListGetPicture(HWND window, int32_t row, ZelPicHandle *normal, ZelPicHandle *selected) {
    return Quiet(int32_t{-1}, [&] {
        Row r;
        if (!FindRow(window, row, &r)) {
            return -1;
        }
        if (normal) {
            *normal = zk::PicToHandle(r.item->picNormal);
        }
        if (selected) {
            *selected = zk::PicToHandle(r.item->picSelected);
        }
        return 0;
    });
}

int32_t ZKAPI ZelListSetPicture(HWND window, int32_t row, ZelPicHandle normal, ZelPicHandle selected) {
    return Quiet(int32_t{0}, [&] {
        PIC *normalPic = zk::PicFromHandle(normal);
        PIC *selectedPic = zk::PicFromHandle(selected);
        Row r;
        if ((normal && !normalPic) || (selected && !selectedPic) || !FindRow(window, row, &r)) {
            return 0;
        }
        r.item->picNormal = normalPic;
        r.item->picSelected = selectedPic;
        LONG oldHeight = 0;
        UINT newHeight = 0;
        if (Remeasure(r, row, true, &oldHeight, &newHeight) && static_cast<LONG>(newHeight) != oldHeight) {
            InvalidateRect(window, nullptr, TRUE);
        } else {
            LbxRedrawRow(window, r.combo, row, RDW_INVALIDATE);
        }
        return 1;
    });
}

INT_PTR ZKAPI ZelListGetFont(HWND window, int32_t row) {
    return Quiet(INT_PTR{-1}, [&] {
        Row r;
        return FindRow(window, row, &r) ? reinterpret_cast<INT_PTR>(r.item->font) : INT_PTR{-1};
    });
}

int32_t ZKAPI ZelListSetFont(HWND window, int32_t row, HFONT font) {
    return Quiet(int32_t{0}, [&] {
        Row r;
        if (!FindRow(window, row, &r)) {
            return 0;
        }
        r.item->font = font;
        LONG oldHeight = 0;
        UINT newHeight = 0;
        Remeasure(r, row, false, &oldHeight, &newHeight);
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        return 1;
    });
}

int32_t ZKAPI ZelListDisableItem(HWND window, int32_t row, COLORREF color) {
    return Quiet(int32_t{-1}, [&] { return EnableRow(window, row, color, true); });
}

int32_t ZKAPI ZelListEnableItem(HWND window, int32_t row, COLORREF color) {
    return Quiet(int32_t{-1}, [&] { return EnableRow(window, row, color, false); });
}

} // extern "C"
