// Clicks on an outline list: the plus and minus box toggles through the
// application (posted ZKM_LbxToggle), the indent and the space right of the
// text swallow the click, the text selects as usual.
#include "frame/win/host.h"
#include "outline/win/lbx_metrics.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/win_rows.h"

extern "C" {
#include "zklib/listpaint.h" // ZelListGetTextRectangle, with the item painting
}

namespace zk::lbx {

namespace {

struct BoxHit {
    int32_t row = -1;
    RECT box{};
};

// Steps 1 to 5 of the hit test: the row under the point and the rectangle
// of its box. False when a step cannot finish.
bool FindBox(const LbxChild &child, HWND window, bool combo, LPARAM lParam, BoxHit *hit) {
    const int32_t x = LOWORD(lParam);
    const int32_t y = HIWORD(lParam);
    hit->row = IndexFromPoint(window, x, y);
    if (hit->row == -1) {
        return false;
    }
    RECT rowRect{};
    if (SendMessageW(window, LB_GETITEMRECT, static_cast<WPARAM>(hit->row), reinterpret_cast<LPARAM>(&rowRect)) ==
        LB_ERR) {
        return false;
    }
    LbxItem *item = LbxItemOf(LbxBaseRow(child, window, combo, hit->row));
    if (!item || !item->node) {
        return false;
    }
    TEXTMETRICW metrics{};
    if (!FontMetrics(window, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), &metrics)) {
        return false;
    }
    const int32_t step = child.indent * (metrics.tmAveCharWidth / 2);
    const LbxRect row{rowRect.left, rowRect.top, rowRect.right, rowRect.bottom};
    const LbxRect box = LbxBoxRect(LbxLineX(step, item->node->level, row.left), LbxMidY(row));
    hit->box = RECT{box.left, box.top, box.right, box.bottom};
    return true;
}

// The horizontal scroll offset in pixels, from the extent and the bar's position.
bool ScrollOffset(HWND window, int32_t *offset) {
    *offset = 0;
    const LRESULT extent = SendMessageW(window, LB_GETHORIZONTALEXTENT, 0, 0);
    if (extent == 0) {
        return true;
    }
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = 23; // range, page, position, track position
    if (!GetScrollInfo(window, SB_HORZ, &info)) {
        return false;
    }
    const double perUnit = static_cast<double>(extent) / static_cast<double>(info.nMax - info.nMin + 1);
    *offset = static_cast<int32_t>(perUnit * static_cast<double>(info.nPos - info.nMin));
    return true;
}

} // namespace

LRESULT BoxClick(const LbxChild &child, HWND window, bool combo, UINT message, WPARAM wParam, LPARAM lParam,
                 bool scrollCorrection) {
    auto forward = [&] { return CallBase(child, window, message, wParam, lParam); };
    if (!(child.style & LBX_StyleOutline)) {
        return forward();
    }
    BoxHit hit;
    if (!FindBox(child, window, combo, lParam, &hit)) {
        return forward();
    }
    int32_t top = 0, left = 0, bottom = 0, right = 0;
    if (!ZelListGetTextRectangle(window, hit.row, &top, &left, &bottom, &right)) {
        return forward();
    }
    POINT point{LOWORD(lParam), HIWORD(lParam)};
    if (scrollCorrection) {
        int32_t offset = 0;
        if (!ScrollOffset(window, &offset)) {
            return forward();
        }
        point.x += offset;
    }
    if (PtInRect(&hit.box, point)) {
        PostMessageW(window, ZKM_LbxToggle, static_cast<WPARAM>(hit.row), 0);
        return 0;
    }
    if (point.x < hit.box.left) {
        return 0; // a click in the indent does nothing
    }
    if (point.x <= right) {
        return forward();
    }
    return 0; // right of the text: the row is not selected
}

LRESULT ButtonUp(const LbxChild &child, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_LBUTTONUP && (child.style & LBX_StyleOutline)) {
        BoxHit hit;
        if (!FindBox(child, window, false, lParam, &hit)) {
            return CallBase(child, window, message, wParam, lParam);
        }
        POINT point{LOWORD(lParam), HIWORD(lParam)};
        if (PtInRect(&hit.box, point)) {
            return 0;
        }
    }
    if (LbxIsMultiSelect(window, false) || CallBase(child, window, LB_GETCURSEL, 0, 0) != LB_ERR) {
        PostMessageW(window, ZKM_LbxSelectDone, 0, 0);
    }
    return CallBase(child, window, message, wParam, lParam);
}

} // namespace zk::lbx
