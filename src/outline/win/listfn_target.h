// The control a general list function works on: a list box or a combo box,
// adopted or not, and the message of its type for each request.
#pragma once

#include <windows.h>

#include <cstdint>

#include "frame/win/guard.h"
#include "outline/win/lbx_win.h"

namespace zk::lbx {

struct LbxTarget {
    HWND window = nullptr;
    bool combo = false;

    // LB_ on a list box, CB_ on a combo box.
    UINT Pick(UINT listMessage, UINT comboMessage) const { return combo ? comboMessage : listMessage; }
    LRESULT Send(UINT listMessage, UINT comboMessage, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(window, Pick(listMessage, comboMessage), wParam, lParam);
    }
    int32_t Count() const {
        const LRESULT n = Send(LB_GETCOUNT, CB_GETCOUNT);
        return n < 0 ? 0 : static_cast<int32_t>(n);
    }
    bool MultiSelect() const {
        return !combo && (GetWindowLongW(window, GWL_STYLE) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
    }
};

// A list box or combo box by the host's type, else by its class name. False
// for anything else, a destroyed window included.
inline bool TargetOf(HWND window, LbxTarget *out) {
    if (!IsWindow(window)) {
        return false;
    }
    switch (ControlKind(window)) {
    case LbxKind::List:
        *out = {window, false};
        return true;
    case LbxKind::Combo:
        *out = {window, true};
        return true;
    default:
        return false;
    }
}

// The body of a general list function on a list or combo box: -87 for any
// other window, `failure` for anything thrown.
template <class Body>
int32_t WithTarget(HWND window, int32_t failure, Body &&body) {
    return zk::Quietly(
        [&]() -> int32_t {
            LbxTarget target;
            if (!TargetOf(window, &target)) {
                return ZEL_INVALID_PARAMETER;
            }
            return body(target);
        },
        [failure] { return failure; });
}

// Adds (row -2) or inserts a row and sets its value: ZelListAddValue and
// ZelListInsertValue.
int32_t LbxAddValue(const LbxTarget &target, int32_t row, const wchar_t *text, int32_t value);

} // namespace zk::lbx
