// Reading and changing the colour, pictures and font of a row, and enabling or disabling it.
#include "frame/win/guard.h"
#include "outline/win/lbx_exports.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/pic.h"

using namespace zk::lbx;

namespace {

template <class R, class Body>
R Quiet(R failure, Body &&body) {
    return zk::Quietly(std::forward<Body>(body), [failure] { return failure; });
}

} // namespace

extern "C" {

int32_t ZKAPI ZelListGetColor(HWND window, int32_t row) {
    return Quiet(int32_t{-1}, [&] {
        FoundRow r;
        return FindRow(window, row, &r) ? static_cast<int32_t>(r.item->color & 0x00FFFFFFu) : -1;
    });
}

int32_t ZKAPI ZelListSetColor(HWND window, int32_t row, COLORREF color) {
    return Quiet(int32_t{0}, [&] {
        FoundRow r;
        if (!FindRow(window, row, &r)) {
            return 0;
        }
        r.item->color = color & 0x00FFFFFFu;
        RedrawRow(window, r.combo, row, RDW_INVALIDATE);
        return 1;
    });
}

int32_t ZKAPI ZelListGetPicture(HWND window, int32_t row, ZelPicHandle *normal, ZelPicHandle *selected) {
    return Quiet(int32_t{-1}, [&] {
        FoundRow r;
        if (!FindRow(window, row, &r)) {
            return -1;
        }
        if (normal) {
            *normal = PicToHandle(r.item->picNormal);
        }
        if (selected) {
            *selected = PicToHandle(r.item->picSelected);
        }
        return 0;
    });
}

int32_t ZKAPI ZelListSetPicture(HWND window, int32_t row, ZelPicHandle normal, ZelPicHandle selected) {
    return Quiet(int32_t{0}, [&] {
        PIC *normalPic = PicFromHandle(normal);
        PIC *selectedPic = PicFromHandle(selected);
        FoundRow r;
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
            RedrawRow(window, r.combo, row, RDW_INVALIDATE);
        }
        return 1;
    });
}

INT_PTR ZKAPI ZelListGetFont(HWND window, int32_t row) {
    return Quiet(INT_PTR{-1}, [&] {
        FoundRow r;
        return FindRow(window, row, &r) ? reinterpret_cast<INT_PTR>(r.item->font) : INT_PTR{-1};
    });
}

int32_t ZKAPI ZelListSetFont(HWND window, int32_t row, HFONT font) {
    return Quiet(int32_t{0}, [&] {
        FoundRow r;
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
