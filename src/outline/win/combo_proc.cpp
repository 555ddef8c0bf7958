// LbxComboBoxWndProc: an adopted combo box answers like the list box, and
// keeps its edit in step with the selected item.
#include "frame/win/host.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/row_exports.h"

UINT LbxComboTwin(UINT message) {
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
    const LRESULT answer = LbxCallBase(child, window, CB_SETCURSEL, row, lParam);
    if (!(child.style & LBX_StyleNoEditCopy) && child.editWindow) {
        LbxSyncComboEdit(window, static_cast<int32_t>(answer), static_cast<HWND>(child.editWindow), LbxBaseProc(child));
    }
    return answer;
}

LRESULT ComboDispatch(const LbxChild &child, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_DESTROY:
        LbxReleaseControl(window, child, true);
        return CallWindowProcW(LbxBaseProc(child), window, message, wParam, lParam);
    case WM_ERASEBKGND:
        return (child.runFlags & LBX_ChildNoErase) ? 1 : LbxCallBase(child, window, message, wParam, lParam);
    case WM_SETFONT:
        return LbxSetFont(child, window, true, wParam, lParam);
    case WM_KEYDOWN:
        return LbxKeyDown(child, window, true, wParam, lParam);
    case WM_LBUTTONDOWN:
        if (HLOCAL parent = LbxParentHandle(GetParent(window))) {
            LbxParentFlags(parent, LBX_ParentFocusKnown, 0);
        }
        return LbxBoxClick(child, window, true, message, wParam, lParam, false);
    case WM_LBUTTONDBLCLK:
        return LbxBoxClick(child, window, true, message, wParam, lParam, false);
    case WM_CTLCOLOREDIT:
        if (HBRUSH brush = LbxComboEditColor(window, reinterpret_cast<HDC>(wParam))) {
            return reinterpret_cast<LRESULT>(brush);
        }
        return LbxCallBase(child, window, message, wParam, lParam);
    case CB_ADDSTRING:
        return LbxAddRow(window, -2, reinterpret_cast<const wchar_t *>(lParam),
                         LbxRowFields::Colour(HostWinGetColor(window, 8)));
    case CB_INSERTSTRING:
        return LbxAddRow(window, static_cast<int32_t>(wParam), reinterpret_cast<const wchar_t *>(lParam),
                         LbxRowFields::Colour(HostWinGetColor(window, 8)));
    case ZKM_LbxAddRow:
        return LbxBaseAddRow(child, window, true, CB_ADDSTRING, 0, lParam);
    case ZKM_LbxInsertRow:
        return LbxBaseAddRow(child, window, true, CB_INSERTSTRING, wParam, lParam);
    case CB_GETCURSEL:
        return LbxCurSel(child, window, true, CB_GETCURSEL);
    case CB_GETLBTEXT:
    case ZKM_LbxGetText:
        return LbxTextQuery(child, window, true, message, wParam, lParam);
    case CB_GETLBTEXTLEN:
        return LbxTextLength(child, window, true, message, wParam, lParam);
    case CB_SETCURSEL:
        return ComboSetCurSel(child, window, wParam, lParam);
    case CB_SELECTSTRING:
        return LbxSelectString(child, window, true, wParam, lParam);
    case CB_GETITEMDATA:
    case CB_SETITEMDATA:
        return LbxItemData(child, window, true, message, wParam, lParam);
    case ZKM_LbxUserRecord:
        return LbxUserRecord(window, wParam, lParam);
    case ZKM_LbxProbe:
        return 1;
    default:
        return LbxCallBase(child, window, message, wParam, lParam);
    }
}

} // namespace

LRESULT CALLBACK LbxComboBoxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return LbxControlEntry(L"LbxComboBoxWndProc()", ComboDispatch, LbxComboTwin, window, message, wParam, lParam);
}
