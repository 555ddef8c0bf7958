#include "outline/win/lbx_adopted.h"

#include "outline/win/lbx_procs.h"

namespace zk::lbx {

LRESULT AdoptedControl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    HWND window = GetSafeHwnd();
    if (!ChildHandle(window))
        return Default();
    return kind_ == LbxKind::Combo ? LbxComboBoxWndProc(window, message, wParam, lParam)
                                   : LbxListBoxWndProc(window, message, wParam, lParam);
}

LRESULT AdoptedParent::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    HWND window = GetSafeHwnd();
    if (!LbxParentHandle(window))
        return Default();
    return LbxParentWndProc(window, message, wParam, lParam);
}

} // namespace zk::lbx
