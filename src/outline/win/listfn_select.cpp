// Deleting the selected rows of a list or combo box.
#include <algorithm>
#include <new>
#include <vector>

#include "outline/win/lbx_exports.h"
#include "outline/win/listfn_target.h"
#include "outline/win/win_rows.h"

namespace zk::lbx {

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

} // namespace zk::lbx
