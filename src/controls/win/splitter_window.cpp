// The splitter window: creation, the block of the form's wrapper, and its
// messages, handed to the drag, the children and the paint.
#include "controls/win/splitter_window.h"

#include "frame/win/crack.h"
#include "frame/win/prop_block.h"
#include "frame/win/propcache.h"
#include "frame/win/startup.h"
#include "zklib.h"

namespace zk::ctl {

CSplitter::CSplitter() { LoadArt(); }

bool CSplitter::Create(DWORD style, const RECT &rect, HWND parent, UINT id, void *param) {
    EnsureClass(kSplitterClass);
    return CreateEx(0, kSplitterClass, L"", style, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                    parent, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), param) != nullptr;
}

bool CSplitter::IsSplitter(HWND window) { return dynamic_cast<CSplitter *>(Window::FromHandle(window)) != nullptr; }

LRESULT CSplitter::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        return OnCreate();
    case WM_SETCURSOR:
        return OnSetCursor();
    case WM_LBUTTONDOWN:
        OnLButtonDown(MousePoint(lParam));
        return 0;
    case WM_MOUSEMOVE:
        if (state & kSplitterDragging)
            OnMouseMove(MousePoint(lParam));
        return 0;
    case WM_LBUTTONUP:
        if (state & kSplitterDragging)
            OnLButtonUp(MousePoint(lParam));
        return 0;
    case WM_CANCELMODE:
        return OnCancelMode();
    case WM_SHOWWINDOW:
        if (wParam)
            state &= static_cast<uint16_t>(~kSplitterHidden);
        else
            state |= kSplitterHidden;
        return Default();
    case WM_WINDOWPOSCHANGED: {
        const LRESULT result = Default();
        // Tiling moves the bar again, which comes back here.
        if (designMode == 1 && !resizing_)
            ResizeObjects();
        return result;
    }
    case ZKM_Refresh:
        FindChildren();
        return 0;
    case WM_DESTROY:
        // A bar that goes in the middle of a drag takes its band off the screen.
        if (state & kSplitterDragging)
            EndDrag();
        return ControlWindow::WindowProc(message, wParam, lParam);
    default:
        return ControlWindow::WindowProc(message, wParam, lParam);
    }
}

LRESULT CSplitter::OnCreate() {
    if (Default() == -1)
        return -1;
    HWND parent = GetParent(GetSafeHwnd());
    if (!notifyWindow)
        notifyWindow = parent;
    state = 0;
    const auto *create = reinterpret_cast<const CREATESTRUCTW *>(CurrentMessage().lParam);
    designMode = HasStoredProperties(create) ? 0 : 1;
    handleSize = GetSystemMetrics(Vertical() ? SM_CYHSCROLL : SM_CXVSCROLL);
    created = 1;
    if (parent)
        PropSet(parent, kSkipAccFrameProperty, reinterpret_cast<HANDLE>(1));
    if (designMode == 1)
        TileToParent();
    return 0;
}

Rect CSplitter::BarInParent() const {
    RECT bar{};
    GetWindowRect(GetSafeHwnd(), &bar);
    MapWindowPoints(nullptr, GetParent(GetSafeHwnd()), reinterpret_cast<POINT *>(&bar), 2);
    return FromRECT(bar);
}

Rect CSplitter::ParentClient() const {
    RECT client{};
    if (HWND parent = GetParent(GetSafeHwnd()))
        GetClientRect(parent, &client);
    return FromRECT(client);
}

// ---- the form's wrapper ----------------------------------------------------------

LRESULT CDlgSplitter::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_CREATE)
        return CSplitter::WindowProc(message, wParam, lParam);
    if (CSplitter::WindowProc(message, wParam, lParam) == -1)
        return -1;
    // The block lives on the form's item, not on the bar's.
    SPropSplitter block;
    HWND parent = GetParent(GetSafeHwnd());
    if (parent && LoadCreationBlock(parent, reinterpret_cast<const CREATESTRUCTW *>(lParam), kPropSplitter, block))
        props = block;
    return 0;
}

} // namespace zk::ctl
