// The messages every control of the calendar family handles alike.
#include "frame/win/gdi.h"
#include "frame/win/generic_control.h"

namespace zk {

namespace {

// The default font: MS Sans Serif, bold, 8 points on this screen.
HFONT MakeDefaultFont(HWND window) {
    int pixelsPerInch = 96;
    if (ClientDC dc(window); dc)
        pixelsPerInch = GetDeviceCaps(dc, LOGPIXELSY);
    const int height = (-8 * pixelsPerInch) / 72; // truncated toward zero
    return CreateFontW(height, 0, 0, 0, FW_BOLD, 0, 0, 0, 0, 0, 0, 0, VARIABLE_PITCH | FF_SWISS, L"MS Sans Serif");
}

} // namespace

LRESULT CGenericControl::OnCreate() {
    if (Default() == -1)
        return -1;
    if (!notifyWindow)
        notifyWindow = GetParent(GetSafeHwnd());
    if (HFONT made = MakeDefaultFont(GetSafeHwnd())) {
        if (font)
            DeleteObject(font);
        font = made;
        SendMessageW(GetSafeHwnd(), WM_SETFONT, reinterpret_cast<WPARAM>(font), 0);
    }
    stateFlags = 0;
    ApplyGenericBlock(SPropGeneric());
    return 0;
}

void CGenericControl::ReplaceFont(HFONT given) {
    LOGFONTW description{};
    if (!given || !GetObjectW(given, sizeof description, &description))
        GetObjectW(GetStockObject(SYSTEM_FONT), sizeof description, &description);
    // A copy of its own: the caller keeps, and may delete, what it gave.
    if (HFONT copy = CreateFontIndirectW(&description)) {
        if (font)
            DeleteObject(font);
        font = copy;
    }
}

LRESULT CGenericControl::OnSetFont(HFONT given) {
    ReplaceFont(given);
    RecalcMetrics();
    if (created == 1) {
        SizeToFit(autoSize);
        InvalidateAll(true);
        Update();
    }
    return 0;
}

LRESULT CGenericControl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        return OnCreate();
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(font);
    case WM_SETFONT:
        return OnSetFont(reinterpret_cast<HFONT>(wParam));
    case WM_ENABLE: {
        const LRESULT result = Default();
        if (wParam)
            stateFlags &= static_cast<uint16_t>(~kStateDisabled);
        else
            stateFlags |= kStateDisabled;
        InvalidateAll(true);
        Update();
        return result;
    }
    case WM_SHOWWINDOW: {
        const LRESULT result = Default();
        if (wParam)
            stateFlags &= static_cast<uint16_t>(~kStateHidden);
        else
            stateFlags |= kStateHidden;
        return result;
    }
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_SYSKEYDOWN:
        if (wParam == VK_UP && popUp == 1) {
            ControlNotify(kNotifyClosePopup);
            return 0;
        }
        return Default();
    case WM_WINDOWPOSCHANGED: {
        const LRESULT result = Default();
        if (created == 1)
            RecalcMetrics();
        return result;
    }
    case WM_ERASEBKGND:
        return 1; // all painting is done in WM_PAINT
    default:
        return ControlWindow::WindowProc(message, wParam, lParam);
    }
}

} // namespace zk
