#include "outline/win/win_rows.h"

#include "frame/win/host.h"
#include "outline/win/lbx_procs.h"

namespace zk::lbx {

int32_t WinRows::Insert(int32_t row, LbxItem *item) {
    return static_cast<int32_t>(
        SendMessageW(window_, ZKM_LbxInsertRow, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(item)));
}

int32_t WinRows::Delete(int32_t row) { return HostListDelete(window_, row); }

bool WinRows::BeginKeepItems() {
    keeping_ = LbxFindParent(window_);
    if (!keeping_ || !ParentFlags(keeping_, LBX_ParentKeepItems, 0)) {
        keeping_ = nullptr;
        return false;
    }
    return true;
}

void WinRows::EndKeepItems() {
    if (keeping_) {
        ParentFlags(keeping_, 0, LBX_ParentKeepItems);
        keeping_ = nullptr;
    }
}

bool WinRows::IsMultiSelect() { return LbxIsMultiSelect(window_, combo_); }

void WinRows::SetSel(int32_t row, bool select) { SendMessageW(window_, LB_SETSEL, select ? TRUE : FALSE, row); }

void WinRows::SetCurSel(int32_t row) {
    SendMessageW(window_, combo_ ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

void WinRows::SetCaret(int32_t row) { SendMessageW(window_, LB_SETCARETINDEX, static_cast<WPARAM>(row), 0); }

void WinRows::SetTopIndex(int32_t row) { SendMessageW(window_, LB_SETTOPINDEX, static_cast<WPARAM>(row), 0); }

int32_t WinRows::VisibleRange(int32_t *first, int32_t *last) { return LbxVisibleRange(window_, first, last); }

void WinRows::Redraw(bool on) { HostWinSetRedraw(window_, on ? 1 : 0); }

void WinRows::RedrawOnNoErase() {
    ChildEdit(window_, [](LbxChild &c) { c.runFlags |= LBX_ChildNoErase; });
    HostWinSetRedraw(window_, 1);
    ChildEdit(window_, [](LbxChild &c) { c.runFlags &= static_cast<uint16_t>(~LBX_ChildNoErase); });
}

int32_t LbxVisibleRange(HWND window, int32_t *first, int32_t *last) {
    if (ControlKind(window) != LbxKind::List) {
        return ZEL_INVALID_PARAMETER;
    }
    RECT frame{};
    GetWindowRect(window, &frame);
    const LONG height = frame.bottom - frame.top;
    const int32_t top = static_cast<int32_t>(SendMessageW(window, LB_GETTOPINDEX, 0, 0));
    int32_t row = top;
    LONG sum = 0;
    for (;;) {
        const LRESULT h = SendMessageW(window, LB_GETITEMHEIGHT, static_cast<WPARAM>(row), 0);
        // A height of 0 could never reach the window's: it ends the sum as a failed query does.
        if (h == LB_ERR || h <= 0) {
            break;
        }
        sum += static_cast<LONG>(h);
        if (sum >= height) {
            break;
        }
        ++row;
    }
    if (first) {
        *first = top;
    }
    if (last) {
        *last = row - 1;
    }
    return row - top;
}

int32_t IndexFromPoint(HWND window, int32_t x, int32_t y) {
    if (ControlKind(window) != LbxKind::List) {
        return -1;
    }
    RECT frame{};
    GetWindowRect(window, &frame);
    if (x < 0 || y < 0 || x > frame.right - frame.left + 1 || y > frame.bottom - frame.top + 1) {
        return -1;
    }
    const int32_t count = static_cast<int32_t>(SendMessageW(window, LB_GETCOUNT, 0, 0));
    LONG sum = 0;
    for (int32_t row = static_cast<int32_t>(SendMessageW(window, LB_GETTOPINDEX, 0, 0)); row < count; ++row) {
        const LRESULT h = SendMessageW(window, LB_GETITEMHEIGHT, static_cast<WPARAM>(row), 0);
        if (h == LB_ERR) {
            return -1;
        }
        sum += static_cast<LONG>(h);
        if (sum >= y) {
            return row;
        }
    }
    return -1;
}

int32_t LbxItemIndex(HWND window, bool combo, const LbxNode *node) {
    if (combo) {
        return static_cast<int32_t>(SendMessageW(window, CB_GETCURSEL, 0, 0));
    }
    if (!node || !node->item) {
        return -1;
    }
    const LRESULT top = SendMessageW(window, LB_GETTOPINDEX, 0, 0);
    return static_cast<int32_t>(
        SendMessageW(window, LB_FINDSTRINGEXACT, static_cast<WPARAM>(top), reinterpret_cast<LPARAM>(node->item)));
}

int32_t LbxFindString(const LbxChild &child, HWND window, bool combo, int32_t start, const wchar_t *text) {
    const int32_t count = HostListCount(window);
    if (count < 1 || !text) {
        return -1;
    }
    for (int32_t row = start + 1; row >= 0 && row < count; ++row) {
        LbxItem *item = LbxItemOf(LbxBaseRow(child, window, combo, row));
        if (item && lstrcmpiW(LbxW(item->text.c_str()), text) == 0) {
            return row;
        }
    }
    return -1;
}

} // namespace zk::lbx
