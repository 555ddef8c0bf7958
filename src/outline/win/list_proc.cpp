// LbxListBoxWndProc: an adopted list box answers the list messages through
// its items, so host code that knows nothing of them sees an ordinary list.
#include "frame/win/host.h"
#include "outline/win/host_optional.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/row_exports.h"

namespace zk::lbx {

UINT ListTwin(UINT message) {
    switch (message) {
    case 1025:
        return LB_ADDSTRING;
    case 1026:
        return LB_INSERTSTRING;
    case 1032:
        return LB_GETSEL;
    case 1033:
        return LB_GETCURSEL;
    case 1034:
        return LB_GETTEXT;
    case 1035:
        return LB_GETTEXTLEN;
    case 1037:
        return LB_SELECTSTRING;
    case 1041:
        return LB_GETSELCOUNT;
    case 1042:
        return LB_GETSELITEMS;
    case 1043:
        return LB_SETTABSTOPS;
    case 1050:
        return LB_GETITEMDATA;
    case 1051:
        return LB_SETITEMDATA;
    default:
        return message;
    }
}

namespace {

LRESULT ListCreate(const LbxChild &child, HWND window, WPARAM wParam, LPARAM lParam) {
    // Designer attribute 225, index 1: "no" keeps the vertical bar hidden.
    if (!LbxHostDesignAttributeIs(window, 225, 1, L"no")) {
        ShowScrollBar(window, SB_VERT, TRUE);
    }
    const LRESULT result = CallBase(child, window, WM_CREATE, wParam, lParam);
    if (child.style & LBX_StyleWideExtent) {
        RECT frame{};
        GetWindowRect(window, &frame);
        SendMessageW(window, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(2 * (frame.right - frame.left)), 0);
    }
    return result;
}

LRESULT ListSetFocus(const LbxChild &child, HWND window, WPARAM wParam, LPARAM lParam) {
    HWND previous = reinterpret_cast<HWND>(wParam);
    if (previous && GetParent(previous) == GetParent(window)) {
        if (HLOCAL parent = LbxFindParent(window)) {
            ParentFlags(parent, LBX_ParentFocusKnown, 0);
        }
    }
    return CallBase(child, window, WM_SETFOCUS, wParam, lParam);
}

LRESULT ListGetSel(const LbxChild &child, HWND window, WPARAM row, LPARAM lParam) {
    LbxItem *item = LbxItemOf(LbxBaseRow(child, window, false, static_cast<int32_t>(row)));
    if (item && (item->flags & LBX_ItemDisabled)) {
        return 0;
    }
    return CallBase(child, window, LB_GETSEL, row, lParam);
}

LRESULT ListDispatch(const LbxChild &child, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        return ListCreate(child, window, wParam, lParam);
    case WM_DESTROY:
        ReleaseControl(window, child, false);
        return CallWindowProcW(LbxBaseProc(child), window, message, wParam, lParam);
    case WM_SETFOCUS:
        return ListSetFocus(child, window, wParam, lParam);
    case WM_ERASEBKGND:
        return (child.runFlags & LBX_ChildNoErase) ? 1 : CallBase(child, window, message, wParam, lParam);
    case WM_SETFONT:
        return LbxSetFont(child, window, false, wParam, lParam);
    case WM_SETREDRAW:
        ChildEdit(window, [&](LbxChild &c) {
            c.runFlags = wParam ? static_cast<uint16_t>(c.runFlags & ~LBX_ChildPaintOff)
                                : static_cast<uint16_t>(c.runFlags | LBX_ChildPaintOff);
        });
        return CallBase(child, window, message, wParam, lParam);
    case WM_KEYDOWN:
        return LbxKeyDown(child, window, false, wParam, lParam);
    case WM_KEYUP:
    case WM_LBUTTONUP:
        return ButtonUp(child, window, message, wParam, lParam);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        return BoxClick(child, window, false, message, wParam, lParam, true);
    case LB_ADDSTRING:
        return AddRow(window, -2, reinterpret_cast<const wchar_t *>(lParam),
                      RowFields::Colour(HostWinGetColor(window, 8)));
    case LB_INSERTSTRING:
        return AddRow(window, static_cast<int32_t>(wParam), reinterpret_cast<const wchar_t *>(lParam),
                      RowFields::Colour(HostWinGetColor(window, 8)));
    case ZKM_LbxAddRow:
        return BaseAddRow(child, window, false, LB_ADDSTRING, 0, lParam);
    case ZKM_LbxInsertRow:
        return BaseAddRow(child, window, false, LB_INSERTSTRING, wParam, lParam);
    case LB_GETSEL:
        return ListGetSel(child, window, wParam, lParam);
    case LB_GETCURSEL:
        return LbxCurSel(child, window, false, LB_GETCURSEL);
    case LB_GETTEXT:
    case ZKM_LbxGetText:
        return TextQuery(child, window, false, message, wParam, lParam);
    case LB_GETTEXTLEN:
        return LbxTextLength(child, window, false, message, wParam, lParam);
    case LB_SELECTSTRING:
        return SelectString(child, window, false, wParam, lParam);
    case LB_GETSELCOUNT:
    case LB_GETSELITEMS:
        return LbxSelection(child, window, message, wParam, lParam);
    case LB_SETTABSTOPS:
        return SetTabStops(window, child, wParam, lParam);
    case LB_GETITEMDATA:
    case LB_SETITEMDATA:
        return ItemData(child, window, false, message, wParam, lParam);
    case ZKM_LbxUserRecord:
        return UserRecord(window, wParam, lParam);
    case ZKM_LbxProbe:
        return 1;
    default:
        return CallBase(child, window, message, wParam, lParam);
    }
}

} // namespace

LRESULT CALLBACK LbxListBoxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return ControlEntry(L"LbxListBoxWndProc()", ListDispatch, ListTwin, window, message, wParam, lParam);
}

} // namespace zk::lbx
