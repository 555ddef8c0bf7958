#include "menu/win/wait_cursor.h"

#include "frame/win/host.h"
#include "frame/win/startup.h"

namespace zk::menu {

namespace {

constexpr wchar_t kCaptureClass[] = L"Zel:MouseCapture";

int32_t WaitDepth = 0;
HCURSOR WaitCursor = nullptr;
HCURSOR WaitSavedCursor = nullptr;
HWND CaptureWindow = nullptr; // never shown, never destroyed

bool MakeCaptureWindow() {
    if (!EnsureClass(kCaptureClass))
        return false;
    CaptureWindow = CreateWindowExW(0, kCaptureClass, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                    ModuleInstance ? ModuleInstance : GetModuleHandleW(nullptr), nullptr);
    return CaptureWindow != nullptr;
}

// Without a mouse the cursor is shown in the middle of the screen while
// the wait lasts.
void WithoutMouse(bool on) {
    if (GetSystemMetrics(SM_MOUSEPRESENT))
        return;
    if (on)
        SetCursorPos(GetSystemMetrics(SM_CXSCREEN) / 2, GetSystemMetrics(SM_CYSCREEN) / 2);
    ShowCursor(on ? TRUE : FALSE);
}

} // namespace

int32_t SwitchWaitCursor(int32_t mode) {
    if (!WaitCursor)
        WaitCursor = LoadCursorW(nullptr, IDC_WAIT);
    switch (mode) {
    case WAIT_HostOff:
        if (--WaitDepth <= 0) {
            WaitDepth = 0;
            HostWaitCursor(0);
        }
        WithoutMouse(false);
        break;
    case WAIT_HostOn:
        if (WaitDepth == 0)
            HostWaitCursor(1);
        ++WaitDepth;
        WithoutMouse(true);
        break;
    case WAIT_PlainOn:
        WaitSavedCursor = SetCursor(WaitCursor);
        WithoutMouse(true);
        break;
    case WAIT_PlainOff:
        SetCursor(WaitSavedCursor);
        WithoutMouse(false);
        break;
    case WAIT_CaptureOn:
        if (!CaptureWindow && !MakeCaptureWindow()) {
            WaitDepth = 0;
            break;
        }
        if (WaitDepth == 0) {
            SetCapture(CaptureWindow);
            WaitSavedCursor = SetCursor(WaitCursor);
        }
        ++WaitDepth;
        WithoutMouse(true);
        break;
    case WAIT_CaptureOff:
        if (--WaitDepth <= 0) {
            SetCursor(WaitSavedCursor);
            ReleaseCapture();
            WaitDepth = 0;
        }
        WithoutMouse(false);
        break;
    default:
        break;
    }
    return WaitDepth;
}

} // namespace zk::menu
