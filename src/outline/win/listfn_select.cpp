// Selection, focus, drop-down state, scrolling and the row under a point.
#include <algorithm>
#include <new>
#include <vector>

#include "outline/win/listfn_target.h"
#include "outline/win/win_rows.h"

namespace {

int32_t DeleteSelected(const LbxTarget &t) {
    if (t.combo) {
        const LRESULT selection = SendMessageW(t.window, CB_GETCURSEL, 0, 0);
        if (selection < 0) {
            return static_cast<int32_t>(selection);
        }
        SendMessageW(t.window, CB_DELETESTRING, static_cast<WPARAM>(selection), 0);
        return 1;
    }
    const LRESULT count = SendMessageW(t.window, LB_GETSELCOUNT, 0, 0);
    if (count < 1) {
        if (t.MultiSelect()) {
            return static_cast<int32_t>(count);
        }
        const LRESULT selection = SendMessageW(t.window, LB_GETCURSEL, 0, 0);
        const LRESULT deleted = SendMessageW(t.window, LB_DELETESTRING, static_cast<WPARAM>(selection), 0);
        return deleted < 0 ? static_cast<int32_t>(deleted) : 1;
    }
    SendMessageW(t.window, WM_SETREDRAW, FALSE, 0);
    std::vector<int> rows;
    try {
        rows.resize(static_cast<size_t>(count));
    } catch (const std::bad_alloc &) {
        SendMessageW(t.window, WM_SETREDRAW, TRUE, 0);
        return ZEL_NOT_ENOUGH_MEMORY;
    }
    const LRESULT got =
        SendMessageW(t.window, LB_GETSELITEMS, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(rows.data()));
    if (got < 0) {
        SendMessageW(t.window, WM_SETREDRAW, TRUE, 0);
        return -1;
    }
    rows.resize(static_cast<size_t>(std::min<LRESULT>(got, count)));
    std::sort(rows.begin(), rows.end());
    // Each deletion moves the later rows up by one: the k-th row (from 0)
    // to go now stands k places higher.
    int32_t deleted = 0;
    for (int row : rows) {
        if (SendMessageW(t.window, LB_DELETESTRING, static_cast<WPARAM>(row - deleted), 0) >= 0) {
            ++deleted;
        }
    }
    SendMessageW(t.window, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(t.window, nullptr, TRUE);
    return deleted;
}

} // namespace

extern "C" {

int32_t ZKAPI ZelListDeleteSelected(HWND window) { return LbxWithTarget(window, -1, DeleteSelected); }

int32_t ZKAPI ZelListClearSelection(HWND window) {
    return LbxWithTarget(window, -1, [](const LbxTarget &t) {
        if (t.combo) {
            SendMessageW(t.window, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        } else if (t.MultiSelect()) {
            SendMessageW(t.window, LB_SETSEL, FALSE, -1);
        } else {
            SendMessageW(t.window, LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        }
        return 1;
    });
}

int32_t ZKAPI ZelListIsMultiSelect(HWND window) {
    return zk::Quietly(
        [&] {
            LbxTarget t;
            return LbxTargetOf(window, &t) && t.MultiSelect() ? 1 : 0;
        },
        [] { return 0; });
}

int32_t ZKAPI ZelListGetFocusIndex(HWND window) {
    return LbxWithTarget(
        window, -1, [](const LbxTarget &t) { return static_cast<int32_t>(t.Send(LB_GETCARETINDEX, CB_GETCURSEL)); });
}

int32_t ZKAPI ZelListSetFocusIndex(HWND window, int32_t row) {
    return LbxWithTarget(window, -1, [&](const LbxTarget &t) {
        // Only a list of simple multiple selection has a caret apart from
        // its selection; an extended one moves the selection with it.
        const bool caret = !t.combo && (GetWindowLongW(t.window, GWL_STYLE) & LBS_MULTIPLESEL);
        if (caret) {
            return static_cast<int32_t>(SendMessageW(t.window, LB_SETCARETINDEX, static_cast<WPARAM>(row), FALSE));
        }
        return static_cast<int32_t>(t.Send(LB_SETCURSEL, CB_SETCURSEL, static_cast<WPARAM>(row)));
    });
}

int32_t ZKAPI ZelListGetDropdownState(HWND window) {
    return LbxWithTarget(window, -1, [](const LbxTarget &t) {
        return static_cast<int32_t>(SendMessageW(t.window, CB_GETDROPPEDSTATE, 0, 0));
    });
}

int32_t ZKAPI ZelListSetDropdownState(HWND window, int32_t flag) {
    return LbxWithTarget(window, -1, [&](const LbxTarget &t) {
        return static_cast<int32_t>(SendMessageW(t.window, CB_SHOWDROPDOWN, flag ? TRUE : FALSE, 0));
    });
}

int32_t ZKAPI ZelListScroll(HWND window, int32_t row) {
    return LbxWithTarget(window, 0, [&](const LbxTarget &t) {
        return t.Send(LB_SETTOPINDEX, CB_SETTOPINDEX, static_cast<WPARAM>(row)) == LB_ERR ? 0 : 1;
    });
}

int32_t ZKAPI ZelListGetIndexFromPoint(HWND window, int32_t x, int32_t y) {
    return zk::Quietly([&] { return LbxIndexFromPoint(window, x, y); }, [] { return int32_t{-1}; });
}

} // extern "C"
