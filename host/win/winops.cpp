// Plain window operations of the host: colours, centring, redraw,
// visibility and enabling.
#include "zkhost.h"

namespace {

// Where a window is centred: its owner's frame when it has a visible,
// restored owner; the parent's client area for a child; else the work
// area of its monitor.
RECT CentreArea(HWND window, bool child) {
    RECT area{};
    if (child) {
        HWND parent = GetParent(window);
        GetClientRect(parent, &area);
        return area;
    }
    HWND owner = GetWindow(window, GW_OWNER);
    if (owner && IsWindowVisible(owner) && !IsIconic(owner) && GetWindowRect(owner, &area))
        return area;
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info))
        return info.rcWork;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

} // namespace

extern "C" {

// Host colour indices are the system colour numbers: 5 the window
// background, 8 the window text. Other numbers give CLR_INVALID.
COLORREF ZKAPI HostWinGetColor(HWND window, int32_t index) {
    if (index < COLOR_SCROLLBAR || index > COLOR_MENUBAR)
        return CLR_INVALID;
    return GetSysColor(index);
}

int32_t ZKAPI HostWinCenter(HWND window) {
    if (!IsWindow(window))
        return 0;
    bool child = (GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD) != 0;
    RECT frame{};
    GetWindowRect(window, &frame);
    RECT area = CentreArea(window, child);
    int width = frame.right - frame.left, height = frame.bottom - frame.top;
    int x = area.left + (area.right - area.left - width) / 2;
    int y = area.top + (area.bottom - area.top - height) / 2;
    if (!child) {
        // Keep the frame on its monitor's work area where it fits.
        MONITORINFO info{};
        info.cbSize = sizeof info;
        if (GetMonitorInfoW(MonitorFromRect(&area, MONITOR_DEFAULTTONEAREST), &info)) {
            const RECT &work = info.rcWork;
            if (x + width > work.right)
                x = work.right - width;
            if (y + height > work.bottom)
                y = work.bottom - height;
            if (x < work.left)
                x = work.left;
            if (y < work.top)
                y = work.top;
        }
    }
    return SetWindowPos(window, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE) ? 1 : 0;
}

int32_t ZKAPI HostWinSetRedraw(HWND window, int32_t redraw) {
    if (!IsWindow(window))
        return 0;
    SendMessageW(window, WM_SETREDRAW, redraw ? TRUE : FALSE, 0);
    if (redraw)
        RedrawWindow(window, nullptr, nullptr, RDW_ERASE | RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN);
    return 1;
}

int32_t ZKAPI HostWinShow(HWND window) {
    if (!IsWindow(window))
        return 0;
    ShowWindow(window, SW_SHOW);
    return 1;
}

int32_t ZKAPI HostWinHide(HWND window) {
    if (!IsWindow(window))
        return 0;
    ShowWindow(window, SW_HIDE);
    return 1;
}

int32_t ZKAPI HostWinEnable(HWND window) {
    if (!IsWindow(window))
        return 0;
    EnableWindow(window, TRUE);
    return 1;
}

int32_t ZKAPI HostWinDisable(HWND window) {
    if (!IsWindow(window))
        return 0;
    EnableWindow(window, FALSE);
    return 1;
}

} // extern "C"
