// LbxComboBoxWndProc: an adopted combo box answers like the list box, and
// keeps its edit in step with the selected item.
#include "frame/win/host.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/row_exports.h"

namespace zk::lbx {

UINT ComboTwin(UINT message) {
    switch (message) {
    case 1027:
        return CB_ADDSTRING;
    case 1031:
        return CB_GETCURSEL;
    case 1032:
        return CB_GETLBTEXT;
    case 1033:
        return CB_GETLBTEXTLEN;
    case 1034:
        return CB_INSERTSTRING;
    case 1037:
        return CB_SELECTSTRING;
    case 1038:
        return CB_SETCURSEL;
    case 1040:
        return CB_GETITEMDATA;
    case 1041:
        return CB_SETITEMDATA;
    default:
        return message;
    }
}

namespace {

LRESULT ComboSetCurSel(const LbxChild &child, HWND window, WPARAM row, LPARAM lParam) {
    const LRESULT answer = CallBase(child, window, CB_SETCURSEL, row, lParam);
    if (!(child.style & LBX_StyleNoEditCopy) && child.editWindow) {
        LbxSyncComboEdit(window, static_cast<int32_t>(answer), static_cast<HWND>(child.editWindow), LbxBaseProc(child));
    }
    return answer;
}

LRESULT ComboDispatch(const LbxChild &child, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_DESTROY:
        ReleaseControl(window, child, true);
        return CallWindowProcW(LbxBaseProc(child), window, message, wParam, lParam);
    case WM_ERASEBKGND:
        return (child.runFlags & LBX_ChildNoErase) ? 1 : CallBase(child, window, message, wParam, lParam);
    case WM_SETFONT:
        return LbxSetFont(child, window, true, wParam, lParam);
    case WM_KEYDOWN:
        return LbxKeyDown(child, window, true, wParam, lParam);
    case WM_LBUTTONDOWN:
        if (HLOCAL parent = LbxParentHandle(GetParent(window))) {
            ParentFlags(parent, LBX_ParentFocusKnown, 0);
        }
        return BoxClick(child, window, true, message, wParam, lParam, false);
    case WM_LBUTTONDBLCLK:
        return BoxClick(child, window, true, message, wParam, lParam, false);
    case WM_CTLCOLOREDIT:
        if (HBRUSH brush = ComboEditColor(window, reinterpret_cast<HDC>(wParam))) {
            return reinterpret_cast<LRESULT>(brush);
        }
        return CallBase(child, window, message, wParam, lParam);
    case CB_ADDSTRING:
        return AddRow(window, -2, reinterpret_cast<const wchar_t *>(lParam),
                      RowFields::Colour(HostWinGetColor(window, 8)));
    case CB_INSERTSTRING:
        return AddRow(window, static_cast<int32_t>(wParam), reinterpret_cast<const wchar_t *>(lParam),
                      RowFields::Colour(HostWinGetColor(window, 8)));
    case ZKM_LbxAddRow:
        return BaseAddRow(child, window, true, CB_ADDSTRING, 0, lParam);
    case ZKM_LbxInsertRow:
        return BaseAddRow(child, window, true, CB_INSERTSTRING, wParam, lParam);
    case CB_GETCURSEL:
        return LbxCurSel(child, window, true, CB_GETCURSEL);
    case CB_GETLBTEXT:
    case ZKM_LbxGetText:
        return TextQuery(child, window, true, message, wParam, lParam);
    case CB_GETLBTEXTLEN:
        return LbxTextLength(child, window, true, message, wParam, lParam);
    case CB_SETCURSEL:
        return ComboSetCurSel(child, window, wParam, lParam);
    case CB_SELECTSTRING:
        return SelectString(child, window, true, wParam, lParam);
    case CB_GETITEMDATA:
    case CB_SETITEMDATA:
        return ItemData(child, window, true, message, wParam, lParam);
    case ZKM_LbxUserRecord:
        return UserRecord(window, wParam, lParam);
    case ZKM_LbxProbe:
        return 1;
    default:
        return CallBase(child, window, message, wParam, lParam);
    }
}

} // namespace

LRESULT CALLBACK LbxComboBoxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return ControlEntry(L"LbxComboBoxWndProc()", ComboDispatch, ComboTwin, window, message, wParam, lParam);
}

} // namespace zk::lbx
