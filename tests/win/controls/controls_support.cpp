#include "controls_support.h"

namespace ctltest {

RECT InParent(HWND window) {
    RECT r{};
    GetWindowRect(window, &r);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT *>(&r), 2);
    return r;
}

SplitterForm::SplitterForm(void *parameter, int x) {
    left = form.AddChild(L"Static", 1, {0, 0, 90, 300}, WS_BORDER | SS_WHITERECT);
    right = form.AddChild(L"Static", 2, {110, 0, 290, 300}, WS_BORDER | SS_GRAYRECT);
    bar_ = CreateWindowExW(0, L"ZK:cSplitter:10", L"", WS_CHILD | WS_VISIBLE, x, 40, 3, 50, form,
                           reinterpret_cast<HMENU>(INT_PTR{9}), GetModuleHandleW(nullptr), parameter);
    MSG m{};
    if (bar_ && PeekMessageW(&m, bar_, ZKM_ControlCreate, ZKM_ControlCreate, PM_REMOVE))
        object_ = reinterpret_cast<zk::ctl::CSplitter *>(m.lParam);
    zkt::PumpMessages();
}

SplitterForm::~SplitterForm() { zkt::PumpMessages(); }

void SplitterForm::SetChildren() const {
    ZelSplitSetChild(control(), 1, left);
    ZelSplitSetChild(control(), 2, right);
}

void SplitterForm::Mouse(UINT message, int x, int y) const {
    SendMessageW(bar_, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, At(x, y));
}

zkt::Bitmap Printed(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    zkt::Bitmap picture(client.right, client.bottom);
    SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(picture.dc()), PRF_CLIENT);
    return picture;
}

zkt::Bitmap Screen(const RECT &area) {
    zkt::Bitmap picture(area.right - area.left, area.bottom - area.top);
    HDC screen = GetDC(nullptr);
    BitBlt(picture.dc(), 0, 0, picture.width(), picture.height(), screen, area.left, area.top, SRCCOPY);
    ReleaseDC(nullptr, screen);
    return picture;
}

bool SamePixels(const zkt::Bitmap &a, const zkt::Bitmap &b) {
    if (a.width() != b.width() || a.height() != b.height())
        return false;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.pixel(x, y) != b.pixel(x, y))
                return false;
    return true;
}

std::wstring Text(HWND window) {
    wchar_t text[256] = {};
    GetWindowTextW(window, text, 256);
    return text;
}

BindNewWindows::BindNewWindows() {
    outline = ZkHostDesignNewOutline();
    item = ZkHostDesignAddItem(outline, 0, 1);
    current = this;
    hook_ = SetWindowsHookExW(WH_CBT, &Hook, nullptr, GetCurrentThreadId());
}

BindNewWindows::~BindNewWindows() {
    UnhookWindowsHookEx(hook_);
    current = nullptr;
    ZkHostDesignFreeOutline(outline);
}

LRESULT CALLBACK BindNewWindows::Hook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && current)
        ZkHostDesignBindWindow(current->outline, current->item, reinterpret_cast<HWND>(wParam));
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

} // namespace ctltest
