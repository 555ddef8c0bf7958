#include "outline/win/lbx_adopted.h"

#include "outline/win/lbx_procs.h"

LRESULT LbxAdoptedControl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    HWND window = GetSafeHwnd();
    if (!LbxChildHandle(window))
        return Default();
    return kind_ == LbxKind::Combo ? LbxComboBoxWndProc(window, message, wParam, lParam)
                                   : LbxListBoxWndProc(window, message, wParam, lParam);
}

LRESULT LbxAdoptedParent::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    HWND window = GetSafeHwnd();
    if (!LbxParentHandle(window))
        return Default();
    return LbxParentWndProc(window, message, wParam, lParam);
}
