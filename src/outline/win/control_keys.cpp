// Keys of adopted controls: type-ahead on the first character of the items'
// texts, and paging by the rows in view.
#include "outline/win/lbx_procs.h"
#include "outline/win/win_rows.h"

namespace zk::lbx {

namespace {

bool SameLetter(wchar_t a, wchar_t b) {
    return CharUpperW(reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(a))) ==
           CharUpperW(reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(b)));
}

// The row to start after: the caret in a multi-select list, else the
// current selection; a start on the last row counts as -1.
int32_t TypeAheadStart(const LbxChild &child, HWND window, bool combo, bool multi, int32_t count) {
    const LRESULT at = multi ? CallBase(child, window, LB_GETCARETINDEX, 0, 0)
                             : CallBase(child, window, combo ? CB_GETCURSEL : LB_GETCURSEL, 0, 0);
    const int32_t start = static_cast<int32_t>(at);
    return start == count - 1 ? -1 : start;
}

void TypeAhead(const LbxChild &child, HWND window, bool combo, wchar_t letter) {
    const bool multi = LbxIsMultiSelect(window, combo);
    const int32_t count = static_cast<int32_t>(CallBase(child, window, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0));
    if (count <= 0) {
        return;
    }
    const int32_t start = TypeAheadStart(child, window, combo, multi, count);
    int32_t row = start;
    for (int32_t tried = 0; tried < count; ++tried) {
        row = row + 1 >= count ? 0 : row + 1;
        if (row == start) {
            return;
        }
        LbxItem *item = LbxItemOf(LbxBaseRow(child, window, combo, row));
        if (!item) {
            return;
        }
        if (!item->text.empty() && SameLetter(static_cast<wchar_t>(item->text.c_str()[0]), letter)) {
            if (multi) {
                SendMessageW(window, LB_SETCARETINDEX, static_cast<WPARAM>(row), 0);
            } else {
                SendMessageW(window, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(row), 0);
            }
            return;
        }
    }
}

// VK_PRIOR and VK_NEXT of a list box: a page by the rows in view.
void Page(const LbxChild &child, HWND window, bool down) {
    const bool multi = LbxIsMultiSelect(window, false);
    const int32_t visible = LbxVisibleRange(window, nullptr, nullptr);
    const int32_t count = static_cast<int32_t>(CallBase(child, window, LB_GETCOUNT, 0, 0));
    const int32_t current =
        static_cast<int32_t>(CallBase(child, window, multi ? LB_GETCARETINDEX : LB_GETCURSEL, 0, 0));
    int32_t target = 0;
    if (down) {
        const int32_t from = current > 0 ? current : 0;
        target = from + visible - 1;
        if (target > count - 1) {
            target = count - 1;
        }
    } else {
        target = current + 1 - visible;
        if (target < 0) {
            target = 0;
        }
    }
    if (multi) {
        SendMessageW(window, LB_SETCARETINDEX, static_cast<WPARAM>(target), 0);
    } else {
        SendMessageW(window, LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        SendMessageW(window, LB_SETCURSEL, static_cast<WPARAM>(target), 0);
    }
}

} // namespace

LRESULT LbxKeyDown(const LbxChild &child, HWND window, bool combo, WPARAM key, LPARAM lParam) {
    const wchar_t letter = static_cast<wchar_t>(MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_CHAR));
    if (GetKeyState(VK_CONTROL) >= 0 && letter && IsCharAlphaNumericW(letter)) {
        TypeAhead(child, window, combo, letter);
    } else if (!combo && (key == VK_PRIOR || key == VK_NEXT)) {
        Page(child, window, key == VK_NEXT);
        return 1;
    }
    return CallBase(child, window, WM_KEYDOWN, key, lParam);
}

} // namespace zk::lbx
