// The list exports of painting: indent, horizontal extent, text rectangle.
#include <algorithm>
#include <vector>

#include "frame/win/guard.h"
#include "outline/win/lbx_win.h"
#include "outline/win/paint_textrect.h"

using namespace zk::lbx;

namespace {

// A DC of a window with the window's font selected, released on every path.
class WindowDC {
public:
    explicit WindowDC(HWND window) : window_(window), dc_(GetDC(window)) {
        HFONT font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
        if (dc_ && font)
            old_ = SelectObject(dc_, font);
    }
    ~WindowDC() {
        if (!dc_)
            return;
        if (old_)
            SelectObject(dc_, old_);
        ReleaseDC(window_, dc_);
    }
    WindowDC(const WindowDC &) = delete;
    WindowDC &operator=(const WindowDC &) = delete;
    HDC get() const { return dc_; }

private:
    HWND window_;
    HDC dc_;
    HGDIOBJ old_ = nullptr;
};

// Widest right edge of the rows of an adopted list; false when a row holds no item.
bool WidestAdopted(HWND window, const LbxChild &child, HDC dc, int32_t first, int32_t last, int32_t pad,
                   int32_t &widest) {
    for (int32_t row = first; row <= last; ++row) {
        RECT rect{};
        LbxItem *item = LbxItemOf(LbxBaseRow(child, window, false, row));
        if (SendMessageW(window, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect)) == LB_ERR ||
            !item)
            return false;
        LbxTextRect(window, item, &child, dc, &rect);
        widest = std::max(widest, static_cast<int32_t>(rect.right) + pad);
    }
    return true;
}

// Widest text of a plain list; false when a text is empty or cannot be
// read or measured.
bool WidestPlain(HWND window, HDC dc, int32_t first, int32_t last, int32_t pad, int32_t &widest) {
    std::vector<wchar_t> buffer(512);
    for (int32_t row = first; row <= last; ++row) {
        const LRESULT length = SendMessageW(window, LB_GETTEXTLEN, static_cast<WPARAM>(row), 0);
        if (length <= 0)
            return false;
        if (static_cast<size_t>(length) + 1 > buffer.size())
            buffer.resize(static_cast<size_t>(length) + 1);
        const LRESULT read =
            SendMessageW(window, LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(buffer.data()));
        SIZE size{};
        if (read <= 0 || read > length || !GetTextExtentPoint32W(dc, buffer.data(), static_cast<int>(read), &size))
            return false;
        widest = std::max(widest, static_cast<int32_t>(size.cx) + pad);
    }
    return true;
}

int32_t SetScrollWidth(HWND window, int32_t row) {
    if (!window || !IsWindow(window) || ControlKind(window) != LbxKind::List)
        return ZEL_INVALID_PARAMETER;
    RECT bounds{};
    GetWindowRect(window, &bounds);
    const int32_t clientW = bounds.right - bounds.left - GetSystemMetrics(SM_CXVSCROLL);
    const auto current = static_cast<int32_t>(SendMessageW(window, LB_GETHORIZONTALEXTENT, 0, 0));
    int32_t widest = current;
    int32_t first = row, last = row;
    if (row < 0) {
        first = 0;
        last = static_cast<int32_t>(SendMessageW(window, LB_GETCOUNT, 0, 0)) - 1;
    }
    WindowDC dc(window);
    if (!dc.get())
        return ZEL_NOT_ENOUGH_MEMORY;
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc.get(), &metrics);
    const int32_t pad = metrics.tmAveCharWidth / 2;
    LbxChild child;
    if (LbxGetChildCopy(window, &child)) {
        if (!WidestAdopted(window, child, dc.get(), first, last, pad, widest))
            return ZEL_NOT_ENOUGH_MEMORY;
    } else if (!WidestPlain(window, dc.get(), first, last, pad, widest)) {
        return ZEL_FAILED;
    }
    if (widest > clientW && widest > current) {
        const LONG style = GetWindowLongW(window, GWL_STYLE);
        if (!(style & WS_HSCROLL)) {
            SetWindowLongW(window, GWL_STYLE, style | WS_HSCROLL);
            SCROLLINFO info{
                sizeof(info), SIF_RANGE | SIF_PAGE, 0, widest, static_cast<UINT>(std::max(clientW, 0)), 0, 0};
            SetScrollInfo(window, SB_HORZ, &info, FALSE);
            SetWindowPos(window, nullptr, 0, 0, 0, 0,
                         SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        }
        SendMessageW(window, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest), 0);
        SendMessageW(window, WM_HSCROLL, SB_LEFT, 0);
    }
    return 0;
}

int32_t GetTextRectangle(HWND window, int32_t row, int32_t *top, int32_t *left, int32_t *bottom, int32_t *right) {
    LbxChild child;
    if (!top || !left || !bottom || !right || !LbxGetChildCopy(window, &child) || ControlKind(window) != LbxKind::List)
        return 0;
    RECT rowRect{};
    if (SendMessageW(window, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rowRect)) == LB_ERR)
        return 0;
    const LbxItem *item = LbxItemOf(LbxBaseRow(child, window, false, row));
    if (!item)
        return 0;
    HDC dc = GetDC(window);
    if (!dc)
        return 0;
    RECT text = rowRect;
    LbxTextRect(window, item, &child, dc, &text);
    ReleaseDC(window, dc);
    *top = text.top;
    *left = text.left;
    *bottom = text.bottom;
    *right = std::min(text.right, rowRect.right);
    return 1;
}

} // namespace

extern "C" {

int32_t ZKAPI ZelListSetIndent(HWND window, int32_t indent) {
    if (!window || !IsWindow(window))
        return 0;
    return ChildEdit(window, [&](LbxChild &c) { c.indent = indent; }) ? 1 : 0;
}

int32_t ZKAPI ZelListSetScrollWidth(HWND window, int32_t row) {
    return zk::Quietly([&] { return SetScrollWidth(window, row); }, [] { return ZEL_NOT_ENOUGH_MEMORY; });
}

int32_t ZKAPI ZelListGetTextRectangle(HWND window, int32_t row, int32_t *top, int32_t *left, int32_t *bottom,
                                      int32_t *right) {
    return zk::Quietly([&] { return GetTextRectangle(window, row, top, left, bottom, right); }, [] { return 0; });
}

} // extern "C"
