// LbxParentWndProc: the parent of adopted lists paints, measures, frees and
// compares their rows, and steers focus and selection on their commands.
#include "frame/win/host.h"
#include "frame/win/propcache.h"
#include "outline/win/lbx_paint_entry.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/parent_parts.h"

namespace zk::lbx {

namespace {

// The children of the parent learn that it goes; then the record goes,
// and the parent's messages pass to its own procedure from here on.
LRESULT ParentDestroy(HWND window, const LbxParent &record, WPARAM wParam, LPARAM lParam) {
    for (HWND child = GetTopWindow(window); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (ChildHandle(child)) {
            SendMessageW(child, ZKM_LbxParentGone, 0, 0);
        }
    }
    const WNDPROC former = reinterpret_cast<WNDPROC>(record.parentProc);
    LocalFree(LbxParentHandle(window));
    zk::PropRemove(window, kLbxParentProp);
    return CallWindowProcW(former, window, WM_DESTROY, wParam, lParam);
}

LRESULT ParentDispatch(HWND window, const LbxParent &record, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC former = reinterpret_cast<WNDPROC>(record.parentProc);
    switch (message) {
    case WM_DRAWITEM: {
        LRESULT result = 0;
        if (LbxDrawItem(window, reinterpret_cast<const DRAWITEMSTRUCT *>(lParam), &result)) {
            return result;
        }
        break;
    }
    case WM_MEASUREITEM:
        if (ParentMeasure(window, reinterpret_cast<MEASUREITEMSTRUCT *>(lParam))) {
            return 1;
        }
        break;
    case WM_DELETEITEM:
        if (ParentDelete(window, record, reinterpret_cast<const DELETEITEMSTRUCT *>(lParam))) {
            return 1;
        }
        break;
    case WM_CHARTOITEM:
        return -1;
    case WM_COMPAREITEM: {
        LRESULT result = 0;
        if (ParentCompare(reinterpret_cast<const COMPAREITEMSTRUCT *>(lParam), &result)) {
            return result;
        }
        break;
    }
    case WM_COMMAND: {
        LRESULT result = 0;
        if (ParentCommand(window, HIWORD(wParam), reinterpret_cast<HWND>(lParam), &result)) {
            return result;
        }
        break;
    }
    case WM_CTLCOLOREDIT:
        if (HBRUSH brush = ComboEditColor(GetParent(reinterpret_cast<HWND>(lParam)), reinterpret_cast<HDC>(wParam))) {
            return reinterpret_cast<LRESULT>(brush);
        }
        break;
    case WM_DESTROY:
        return ParentDestroy(window, record, wParam, lParam);
    default:
        break;
    }
    return CallWindowProcW(former, window, message, wParam, lParam);
}

} // namespace

LRESULT CALLBACK LbxParentWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    LbxParent record{};
    if (!zk::LocalCopy(LbxParentHandle(window), &record)) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    try {
        return ParentDispatch(window, record, message, wParam, lParam);
    } catch (...) {
        ZelReportError(52, L"LbxParentWndProc()");
        return 0;
    }
}

} // namespace zk::lbx
