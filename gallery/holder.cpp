#include "holder.h"

#include "capture.h"
#include "pictures.h"
#include "report.h"
#include "zklib.h"

namespace gallery {

HWND MakeHolder(const wchar_t *className, const wchar_t *title, int width, int height) {
    WNDCLASSW wc{};
    wc.lpfnWndProc = DefWindowProcW;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    wc.lpszClassName = className;
    RegisterClassW(&wc);
    return CreateWindowExW(0, className, title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, width, height, nullptr,
                           nullptr, wc.hInstance, nullptr);
}

HostControl MakeHostControl(const wchar_t *className, HWND parent, int x, int y, int width, int height, DWORD style,
                            int id) {
    HostControl c;
    c.window = CreateWindowExW(0, className, L"", style, x, y, width, height, parent,
                               parent ? reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)) : nullptr,
                               GetModuleHandleW(nullptr), nullptr);
    MSG m{};
    if (c.window && PeekMessageW(&m, c.window, ZKM_ControlCreate, ZKM_ControlCreate, PM_REMOVE))
        c.control = m.lParam;
    return c;
}

void ShowControl(Report &report, Pictures &pictures, const HostControl &c, const std::wstring &kind,
                 const std::wstring &name) {
    RedrawWindow(c.window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    pictures.Save(name, CaptureControl(c.window));
    report.Check(kind + L" shown: " + name, c.window ? L"yes" : L"no window", c.window != nullptr);
}

} // namespace gallery
