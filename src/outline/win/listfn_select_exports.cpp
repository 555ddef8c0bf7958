// The selection, the focus row, the drop-down and scrolling of a list.
#include "outline/win/lbx_exports.h"
#include "outline/win/win_rows.h"

using namespace zk::lbx;

extern "C" {

int32_t ZKAPI ZelListDeleteSelected(HWND window) { return WithTarget(window, -1, DeleteSelected); }

int32_t ZKAPI ZelListClearSelection(HWND window) {
    return WithTarget(window, -1, [](const LbxTarget &t) {
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
            return TargetOf(window, &t) && t.MultiSelect() ? 1 : 0;
        },
        [] { return 0; });
}

int32_t ZKAPI ZelListGetFocusIndex(HWND window) {
    return WithTarget(window, -1,
                      [](const LbxTarget &t) { return static_cast<int32_t>(t.Send(LB_GETCARETINDEX, CB_GETCURSEL)); });
}

int32_t ZKAPI ZelListSetFocusIndex(HWND window, int32_t row) {
    return WithTarget(window, -1, [&](const LbxTarget &t) {
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
    return WithTarget(window, -1, [](const LbxTarget &t) {
        return static_cast<int32_t>(SendMessageW(t.window, CB_GETDROPPEDSTATE, 0, 0));
    });
}

int32_t ZKAPI ZelListSetDropdownState(HWND window, int32_t flag) {
    return WithTarget(window, -1, [&](const LbxTarget &t) {
        return static_cast<int32_t>(SendMessageW(t.window, CB_SHOWDROPDOWN, flag ? TRUE : FALSE, 0));
    });
}

int32_t ZKAPI ZelListScroll(HWND window, int32_t row) {
    return WithTarget(window, 0, [&](const LbxTarget &t) {
        return t.Send(LB_SETTOPINDEX, CB_SETTOPINDEX, static_cast<WPARAM>(row)) == LB_ERR ? 0 : 1;
    });
}

int32_t ZKAPI ZelListGetIndexFromPoint(HWND window, int32_t x, int32_t y) {
    return zk::Quietly([&] { return IndexFromPoint(window, x, y); }, [] { return int32_t{-1}; });
}

} // extern "C"
