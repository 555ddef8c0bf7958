// The meter: one window word and one procedure. The bar is painted by two
// opaque text calls, each clipped to its side of the fill edge with the
// colours swapped, so nothing is painted twice and nothing flickers.
#include "controls/core/meter_layout.h"
#include "controls/win/controls_bootstrap.h"
#include "controls/win/ctlcolor.h"
#include "frame/win/gdi.h"
#include "frame/win/prop_block.h"
#include "zkhost.h"

namespace zk::ctl {

namespace {

constexpr int kHostBackground = 5, kHostText = 8;

void PaintMeter(HWND window, HDC dc) {
    const COLORREF back = HostWinGetColor(window, kHostBackground);
    const COLORREF text = HostWinGetColor(window, kHostText);
    RECT client{};
    GetClientRect(window, &client);
    const WORD word = GetWindowWord(window, 0);
    if (word == kMeterNoValue) {
        const Brush brush = SolidBrush(back);
        FillRect(dc, &client, brush);
        return;
    }
    if (word > kMeterMost)
        return;
    const std::u16string label = MeterText(word);
    const auto *chars = reinterpret_cast<const wchar_t *>(label.c_str());
    const int count = static_cast<int>(label.size());
    SIZE extent{};
    GetTextExtentPoint32W(dc, chars, count, &extent);
    const MeterLayout layout(FromRECT(client), word, extent.cx, extent.cy);
    const RECT empty = ToRECT(layout.empty), filled = ToRECT(layout.filled);
    SetBkColor(dc, back);
    SetTextColor(dc, text);
    ExtTextOutW(dc, layout.text.x, layout.text.y, ETO_CLIPPED | ETO_OPAQUE, &empty, chars, count, nullptr);
    SetBkColor(dc, text);
    SetTextColor(dc, back);
    ExtTextOutW(dc, layout.text.x, layout.text.y, ETO_CLIPPED | ETO_OPAQUE, &filled, chars, count, nullptr);
}

} // namespace

LRESULT CALLBACK MeterProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE: {
        // The usual wParam 0 gives 0xFFFF: no value until the application sets one.
        WORD word = static_cast<WORD>(wParam - 1);
        if (!HasStoredProperties(reinterpret_cast<const CREATESTRUCTW *>(lParam)))
            word = kMeterDesignPercent;
        SetWindowWord(window, 0, word);
        return DefWindowProcW(window, message, wParam, lParam);
    }
    case WM_PAINT: {
        PaintDC dc(window);
        if (dc)
            PaintMeter(window, dc);
        return 0;
    }
    case WM_PRINTCLIENT:
        if (wParam)
            PaintMeter(window, reinterpret_cast<HDC>(wParam));
        return 0;
    default:
        if (IsControlColourMessage(message))
            return SendMessageW(GetParent(window), message, wParam, lParam);
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

} // namespace zk::ctl
