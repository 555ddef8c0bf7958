#include "palette_support.h"

namespace paltest {

FormPalette::FormPalette(zkt::Box box, void *parameter) {
    form.onMessage([this](HWND, UINT message, WPARAM wParam, LPARAM, LRESULT &result) {
        if (message != WM_CTLCOLORLISTBOX || !listBrush)
            return false;
        SetTextColor(reinterpret_cast<HDC>(wParam), listText);
        result = reinterpret_cast<LRESULT>(listBrush);
        return true;
    });
    hwnd_ = CreateWindowExW(0, L"ZK:cPalette:10", L"", WS_CHILD | WS_VISIBLE, box.x, box.y, box.width, box.height, form,
                            reinterpret_cast<HMENU>(INT_PTR{7}), GetModuleHandleW(nullptr), parameter);
    MSG m{};
    if (hwnd_ && PeekMessageW(&m, hwnd_, ZKM_ControlCreate, ZKM_ControlCreate, PM_REMOVE))
        object_ = reinterpret_cast<zk::pal::CColorPalette *>(m.lParam);
    zkt::pumpMessages();
}

FormPalette::~FormPalette() {
    if (IsWindow(hwnd_))
        DestroyWindow(hwnd_);
    if (listBrush)
        DeleteObject(listBrush);
    zkt::pumpMessages();
}

zk::pal::PalHit FormPalette::Focus() const {
    int32_t zone = -9, index = -9;
    ZelPalFocusGet(control(), &zone, &index);
    return {zone, index};
}

zkt::Bitmap FormPalette::Paint() const {
    RECT client{};
    GetClientRect(hwnd_, &client);
    zkt::Bitmap picture(client.right, client.bottom);
    SendMessageW(hwnd_, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(picture.dc()), PRF_CLIENT);
    return picture;
}

zk::Rect FormPalette::Cell(int zone, int index) const {
    return layout().GetCellRect(zone, index, object_->Model().Counts());
}

void FormPalette::Mouse(UINT message, int x, int y) const {
    SendMessageW(hwnd_, message, message == WM_MOUSEMOVE ? MK_LBUTTON : 0,
                 MAKELPARAM(static_cast<WORD>(static_cast<short>(x)), static_cast<WORD>(static_cast<short>(y))));
}

void FormPalette::MouseAt(UINT message, int zone, int index) const {
    const zk::Rect r = Cell(zone, index);
    Mouse(message, (r.left + r.right) / 2, (r.top + r.bottom) / 2);
}

std::vector<Posted> FormPalette::Drain() {
    std::vector<Posted> out;
    MSG m{};
    for (int i = 0; i < 1000 && PeekMessageW(&m, nullptr, 0, 0, PM_REMOVE); ++i) {
        if (m.message != WM_PAINT && m.message != WM_TIMER)
            out.push_back({m.hwnd, m.message, m.wParam, m.lParam});
        DispatchMessageW(&m);
    }
    return out;
}

std::vector<int> FormPalette::Notifications(const std::vector<Posted> &posted) const {
    std::vector<int> codes;
    for (const Posted &p : posted)
        if (p.hwnd == form.hwnd() && p.message == WM_COMMAND && reinterpret_cast<HWND>(p.lParam) == hwnd_)
            codes.push_back(HIWORD(p.wParam));
    return codes;
}

} // namespace paltest
