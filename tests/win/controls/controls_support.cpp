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
    const zkt::Announced made = zkt::CreateAnnounced(L"ZK:cSplitter:10", form, {x, 40, 3, 50}, 9, parameter);
    bar_ = made.hwnd;
    object_ = reinterpret_cast<zk::ctl::CSplitter *>(made.object);
}

SplitterForm::~SplitterForm() { zkt::PumpMessages(); }

void SplitterForm::SetChildren() const {
    ZelSplitSetChild(control(), 1, left);
    ZelSplitSetChild(control(), 2, right);
}

void SplitterForm::Mouse(UINT message, int x, int y) const {
    SendMessageW(bar_, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, zkt::ClientPoint(x, y));
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

} // namespace ctltest
