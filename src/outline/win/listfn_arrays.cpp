// Filling a list from host arrays: one row per string, with a value per
// number when a second array is given.
#include "outline/win/lbx_exports.h"
#include "outline/win/listfn_target.h"

namespace zk::lbx {

namespace {

// A host custom list answers the list window inside it; that list takes its place.
HWND InnerList(HWND window) {
    if (HostWinType(window) == HOST_WT_CUSTOMLIST) {
        if (HWND inner = reinterpret_cast<HWND>(SendMessageW(window, HostMsgGetListWindow, 0, 0))) {
            return inner;
        }
    }
    return window;
}

void Painting(HWND window, HWND list, BOOL on) {
    SendMessageW(window, WM_SETREDRAW, on, 0);
    if (list != window) {
        SendMessageW(list, WM_SETREDRAW, on, 0);
    }
    if (on) {
        InvalidateRect(list, nullptr, TRUE);
    }
}

const wchar_t *ElementText(HostArray strings, int32_t index) {
    HostStr handle = 0;
    int32_t size = 0;
    const wchar_t *text = HostArrayGetString(strings, &handle, index) && handle ? HostStrLock(handle, &size) : nullptr;
    return text ? text : L"";
}

} // namespace

// The values come from `numbers` when `withValues` is set.
int32_t Populate(HWND window, HostArray strings, bool withValues, HostArray numbers) {
    if (!IsWindow(window)) {
        return ZEL_INVALID_PARAMETER;
    }
    LbxTarget t;
    const HWND list = InnerList(window);
    if (!TargetOf(list, &t)) {
        return ZEL_INVALID_PARAMETER;
    }
    int32_t low = 0, high = -1, numberLow = 0, numberHigh = -1;
    const int32_t count = HostArrayGetBounds(strings, &low, &high);
    if (withValues && HostArrayGetBounds(numbers, &numberLow, &numberHigh) != count) {
        return ZEL_INVALID_PARAMETER;
    }
    Painting(window, list, FALSE);
    HostListClear(window);
    for (int32_t k = 0; k < count; ++k) {
        const LRESULT added =
            t.Send(LB_ADDSTRING, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(ElementText(strings, low + k)));
        if (added < 0) {
            return static_cast<int32_t>(added); // painting stays off over the half-filled list
        }
        if (!withValues) {
            continue;
        }
        HostNumber number{};
        int32_t value = 0;
        if (!HostArrayGetNumber(numbers, &number, numberLow + k) || !HostNumberToLong(&number, &value) ||
            t.Send(LB_SETITEMDATA, CB_SETITEMDATA, static_cast<WPARAM>(added), static_cast<LPARAM>(value)) == LB_ERR) {
            Painting(window, list, TRUE);
            return -1;
        }
    }
    Painting(window, list, TRUE);
    return count;
}

} // namespace zk::lbx
