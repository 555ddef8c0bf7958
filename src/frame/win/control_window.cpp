#include "frame/win/control_window.h"

#include "frame/win/gdi.h"
#include "zkhost.h"

namespace zk {

void ControlWindow::SetNotifyWindow(HWND window) {
    if (window)
        notifyWindow = window;
}

void ControlWindow::ControlNotify(int code) {
    HWND window = GetSafeHwnd();
    if (!window || !notifyWindow)
        return;
    const auto id = static_cast<WORD>(GetDlgCtrlID(window) & 0xFFFF);
    PostMessageW(notifyWindow, WM_COMMAND, MAKEWPARAM(id, static_cast<WORD>(code)), reinterpret_cast<LPARAM>(window));
}

Rect ControlWindow::ClientArea() const {
    RECT client{};
    if (GetSafeHwnd())
        GetClientRect(GetSafeHwnd(), &client);
    return FromRECT(client);
}

void ControlWindow::PaintArea(HDC dc, const Rect &area) {
    buffer_.Paint(GetSafeHwnd(), dc, ClientArea(), area, [this](HDC off, const Rect &clip) { Paint(off, clip); });
}

void ControlWindow::PaintTo(HDC dc) {
    if (dc)
        PaintArea(dc, ClientArea());
}

LRESULT ControlWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT: {
        PaintDC dc(GetSafeHwnd());
        if (dc)
            PaintArea(dc, ClipBox(dc));
        return 0;
    }
    case WM_PRINTCLIENT:
        PaintTo(reinterpret_cast<HDC>(wParam));
        return 0;
    case WM_DESTROY:
        created = 0;
        buffer_.Free();
        return Default();
    default:
        return Window::WindowProc(message, wParam, lParam);
    }
}

// ---- ControlEffects ----------------------------------------------------------

void ControlWindow::Invalidate(const Rect &area, bool erase) {
    if (!GetSafeHwnd() || area.Empty())
        return;
    const RECT r = ToRECT(area);
    InvalidateRect(GetSafeHwnd(), &r, erase ? TRUE : FALSE);
}

void ControlWindow::InvalidateAll(bool erase) {
    if (GetSafeHwnd())
        InvalidateRect(GetSafeHwnd(), nullptr, erase ? TRUE : FALSE);
}

void ControlWindow::Update() {
    if (GetSafeHwnd())
        UpdateWindow(GetSafeHwnd());
}

void ControlWindow::Redraw() {
    if (GetSafeHwnd())
        RedrawWindow(GetSafeHwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void ControlWindow::PaintNow(const Rect &area) {
    ClientDC dc(GetSafeHwnd());
    if (dc)
        PaintArea(dc, area);
}

void ControlWindow::PostToSelf(uint32_t message, uintptr_t wParam, intptr_t lParam) {
    if (GetSafeHwnd())
        PostMessageW(GetSafeHwnd(), message, static_cast<WPARAM>(wParam), static_cast<LPARAM>(lParam));
}

bool ControlWindow::StartTimer(uint32_t id, uint32_t period) {
    return GetSafeHwnd() && SetTimer(GetSafeHwnd(), id, period, nullptr) != 0;
}

void ControlWindow::StopTimer(uint32_t id) {
    if (GetSafeHwnd())
        KillTimer(GetSafeHwnd(), id);
}

void ControlWindow::TakeCapture() {
    if (GetSafeHwnd())
        SetCapture(GetSafeHwnd());
}

void ControlWindow::DropCapture() {
    // Only a capture of this window's: another window's stays.
    if (HasCapture())
        ReleaseCapture();
}

bool ControlWindow::HasCapture() const { return GetSafeHwnd() && GetCapture() == GetSafeHwnd(); }

bool ControlWindow::HasFocus() const { return GetSafeHwnd() && GetFocus() == GetSafeHwnd(); }

void ControlWindow::TakeFocus() {
    if (GetSafeHwnd())
        SetFocus(GetSafeHwnd());
}

int32_t ControlWindow::FieldValidate(int32_t flag) { return HostFieldValidate(GetSafeHwnd(), flag, 0); }

void ControlWindow::Hide() {
    if (GetSafeHwnd())
        ShowWindow(GetSafeHwnd(), SW_HIDE);
}

bool ControlWindow::KeyDown(uint32_t virtualKey) const { return GetKeyState(static_cast<int>(virtualKey)) < 0; }

} // namespace zk
