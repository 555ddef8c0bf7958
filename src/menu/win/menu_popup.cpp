#include "menu/win/menu_popup.h"

namespace zk::menu {
namespace {

bool IsOpenPopup(HWND window) {
    wchar_t name[16] = L"";
    return IsWindowVisible(window) && GetClassNameW(window, name, 16) && lstrcmpW(name, L"#32768") == 0;
}

BOOL CALLBACK FirstPopup(HWND window, LPARAM lParam) {
    if (!IsOpenPopup(window))
        return TRUE;
    *reinterpret_cast<HWND *>(lParam) = window;
    return FALSE;
}

BOOL CALLBACK RepaintPopup(HWND window, LPARAM lParam) {
    if (IsOpenPopup(window) &&
        reinterpret_cast<HMENU>(SendMessageW(window, MN_GETHMENU, 0, 0)) == reinterpret_cast<HMENU>(lParam))
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    return TRUE;
}

} // namespace

HWND GetTrackingMenu() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), FirstPopup, reinterpret_cast<LPARAM>(&found));
    return found;
}

void UpdatePopupItemText(HWND tracking, HMENU menu, int32_t) {
    if (tracking)
        EnumThreadWindows(GetCurrentThreadId(), RepaintPopup, reinterpret_cast<LPARAM>(menu));
}

} // namespace zk::menu
