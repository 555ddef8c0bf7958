// A frame's bar: the top level of the frame's own menu structure, drawn
// from the structure (not from the platform menu), and the popups it opens.
// An MDI frame may show a ribbon bar instead: the same items as tabs on a
// taller band.
#include <vector>

#include "frames.h"
#include "zkhost.h"

namespace hostwin {
namespace {

constexpr const wchar_t *kBarClass = L"Marlo:MenuBar";
constexpr const wchar_t *kRibbonClass = L"Marlo:RibbonBar";
constexpr int kItemPadding = 6;
constexpr int kPictureGap = 4;

HostFrame *FrameOfBar(HWND bar) {
    HostFrame *frame = FindFrame(GetParent(bar));
    return frame && frame->bar == bar ? frame : nullptr;
}

// The rectangle of each top-level item, left to right.
std::vector<RECT> ItemRects(const HostFrame &frame, HDC dc) {
    std::vector<RECT> rects;
    const int height = frame.ribbon ? GetSystemMetrics(SM_CYMENU) + 4 : BarHeight(frame);
    int x = 2;
    for (const zkh::FrameItem &item : frame.structure.Top()) {
        RECT text{0, 0, 0, 0};
        const std::wstring label(item.text.begin(), item.text.end());
        DrawTextW(dc, label.c_str(), -1, &text, DT_SINGLELINE | DT_CALCRECT);
        int width = text.right + 2 * kItemPadding;
        if (item.picture.kind != zkh::PictureKind::None)
            width += item.picture.width + kPictureGap;
        rects.push_back(RECT{x, 0, x + width, height});
        x += width;
    }
    return rects;
}

void DrawPicture(HDC dc, const zkh::FramePicture &picture, int x, int top, int height) {
    const int y = top + (height > picture.height ? (height - picture.height) / 2 : 0);
    if (picture.kind == zkh::PictureKind::Icon) {
        DrawIconEx(dc, x, y, reinterpret_cast<HICON>(static_cast<uintptr_t>(picture.image)), picture.width,
                   picture.height, 0, nullptr, DI_NORMAL);
        return;
    }
    HDC memory = CreateCompatibleDC(dc);
    if (!memory)
        return;
    HGDIOBJ old = SelectObject(memory, reinterpret_cast<HBITMAP>(static_cast<uintptr_t>(picture.image)));
    if (picture.mask) {
        HDC maskDc = CreateCompatibleDC(dc);
        HGDIOBJ oldMask = SelectObject(maskDc, reinterpret_cast<HBITMAP>(static_cast<uintptr_t>(picture.mask)));
        const COLORREF text = SetTextColor(dc, RGB(0, 0, 0)), back = SetBkColor(dc, RGB(255, 255, 255));
        BitBlt(dc, x, y, picture.width, picture.height, memory, 0, 0, SRCINVERT);
        BitBlt(dc, x, y, picture.width, picture.height, maskDc, 0, 0, SRCAND);
        BitBlt(dc, x, y, picture.width, picture.height, memory, 0, 0, SRCINVERT);
        SetTextColor(dc, text);
        SetBkColor(dc, back);
        SelectObject(maskDc, oldMask);
        DeleteDC(maskDc);
    } else {
        BitBlt(dc, x, y, picture.width, picture.height, memory, 0, 0, SRCCOPY);
    }
    SelectObject(memory, old);
    DeleteDC(memory);
}

void Paint(HWND bar) {
    PAINTSTRUCT ps;
    HDC dc = BeginPaint(bar, &ps);
    if (!dc)
        return;
    RECT client{};
    GetClientRect(bar, &client);
    const HostFrame *frame = FrameOfBar(bar);
    const bool ribbon = frame && frame->ribbon;
    HBRUSH back = ribbon ? CreateSolidBrush(RGB(222, 232, 246)) : GetSysColorBrush(COLOR_MENU);
    FillRect(dc, &client, back);
    if (ribbon)
        DeleteObject(back);
    if (frame) {
        HGDIOBJ oldFont = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
        SetBkMode(dc, TRANSPARENT);
        const std::vector<RECT> rects = ItemRects(*frame, dc);
        const auto &items = frame->structure.Top();
        for (size_t i = 0; i < items.size() && i < rects.size(); ++i) {
            RECT r = rects[i];
            if (ribbon)
                FrameRect(dc, &r, GetSysColorBrush(COLOR_BTNSHADOW));
            int x = r.left + kItemPadding;
            if (items[i].picture.kind != zkh::PictureKind::None) {
                DrawPicture(dc, items[i].picture, x, r.top, r.bottom - r.top);
                x += items[i].picture.width + kPictureGap;
            }
            SetTextColor(dc, GetSysColor(items[i].enabled ? COLOR_MENUTEXT : COLOR_GRAYTEXT));
            RECT text{x, r.top, r.right, r.bottom};
            const std::wstring label(items[i].text.begin(), items[i].text.end());
            DrawTextW(dc, label.c_str(), -1, &text, DT_SINGLELINE | DT_VCENTER | DT_LEFT);
        }
        SelectObject(dc, oldFont);
    }
    EndPaint(bar, &ps);
}

int HitItem(HWND bar, POINT at) {
    const HostFrame *frame = FrameOfBar(bar);
    if (!frame)
        return -1;
    HDC dc = GetDC(bar);
    HGDIOBJ oldFont = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    const std::vector<RECT> rects = ItemRects(*frame, dc);
    SelectObject(dc, oldFont);
    ReleaseDC(bar, dc);
    for (size_t i = 0; i < rects.size(); ++i)
        if (PtInRect(&rects[i], at))
            return static_cast<int>(i);
    return -1;
}

LRESULT CALLBACK BarProc(HWND bar, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT:
        Paint(bar);
        return 0;
    case WM_LBUTTONDOWN: {
        const int item = HitItem(bar, POINT{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))});
        HostFrame *frame = FrameOfBar(bar);
        if (item >= 0 && frame)
            OpenBarItem(*frame, item);
        return 0;
    }
    default:
        return DefWindowProcW(bar, message, wParam, lParam);
    }
}

HINSTANCE BarInstance() {
    HMODULE m = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&BarProc), &m);
    return m;
}

bool RegisterBars() {
    static const bool registered = [] {
        for (const wchar_t *name : {kBarClass, kRibbonClass}) {
            WNDCLASSW wc{};
            if (GetClassInfoW(BarInstance(), name, &wc))
                continue;
            wc.lpfnWndProc = BarProc;
            wc.hInstance = BarInstance();
            wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
            wc.lpszClassName = name;
            if (!RegisterClassW(&wc))
                return false;
        }
        return true;
    }();
    return registered;
}

// Whether a popup holds one of the MDI window commands.
bool HoldsWindowCommand(HMENU menu) {
    const int count = GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) {
        const int32_t id = static_cast<int32_t>(GetMenuItemID(menu, i));
        if (id >= kWindowCommandFirst && id <= kWindowCommandLast)
            return true;
    }
    return false;
}

// The MDI children as the Windows menu lists them, added to the popup for
// the length of one tracking; the count of items added.
int AddChildEntries(const HostFrame &frame, HMENU popup) {
    int added = 0;
    for (int32_t id = kFirstChildId;; ++id) {
        const std::wstring text = WindowsMenuText(frame, id);
        if (text.empty())
            break;
        if (added == 0 && AppendMenuW(popup, MF_SEPARATOR, 0, nullptr))
            ++added;
        if (AppendMenuW(popup, MF_STRING, static_cast<UINT_PTR>(id), text.c_str()))
            ++added;
    }
    return added;
}

} // namespace

int BarHeight(const HostFrame &frame) {
    const int line = GetSystemMetrics(SM_CYMENU);
    return frame.ribbon ? 2 * line + 8 : line;
}

HWND CreateBar(HostFrame &frame, bool ribbon) {
    if (!RegisterBars())
        return nullptr;
    return CreateWindowExW(0, ribbon ? kRibbonClass : kBarClass, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, 0, 0,
                           0, 0, frame.window, nullptr, BarInstance(), nullptr);
}

void RepaintBar(const HostFrame &frame) {
    if (frame.bar)
        InvalidateRect(frame.bar, nullptr, TRUE);
}

bool IsWindowsMenu(const HostFrame &frame, HMENU menu) {
    if (frame.kind != HOST_FRAME_MDIFrame || !menu || !IsMenu(frame.ourMenu))
        return false;
    const int count = GetMenuItemCount(frame.ourMenu);
    for (int i = 0; i < count; ++i)
        if (GetSubMenu(frame.ourMenu, i) == menu)
            return HoldsWindowCommand(menu);
    return false;
}

std::wstring WindowsMenuText(const HostFrame &frame, int32_t id) {
    if (frame.kind != HOST_FRAME_MDIFrame || !frame.mdiClient || id < kFirstChildId || id > kFirstChildId + 0xFF)
        return {};
    HWND child = GetDlgItem(frame.mdiClient, id);
    if (!child)
        return {};
    wchar_t title[128] = L"";
    GetWindowTextW(child, title, 128);
    return L"&" + std::to_wstring(id - kFirstChildId + 1) + L" " + title;
}

bool OpenBarItem(HostFrame &frame, int position) {
    const auto &items = frame.structure.Top();
    if (position < 0 || static_cast<size_t>(position) >= items.size())
        return false;
    const zkh::FrameItem &item = items[static_cast<size_t>(position)];
    HWND window = frame.window;
    if (!item.submenu) {
        PostMessageW(window, WM_COMMAND, MAKEWPARAM(static_cast<WORD>(item.id), 0), 0);
        return true;
    }
    HMENU popup = reinterpret_cast<HMENU>(static_cast<uintptr_t>(item.submenu));
    if (!IsMenu(popup))
        return false;
    HDC dc = GetDC(frame.bar);
    HGDIOBJ oldFont = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    const std::vector<RECT> rects = ItemRects(frame, dc);
    SelectObject(dc, oldFont);
    ReleaseDC(frame.bar, dc);
    POINT at{rects[static_cast<size_t>(position)].left, rects[static_cast<size_t>(position)].bottom};
    ClientToScreen(frame.bar, &at);
    const int added = IsWindowsMenu(frame, popup) ? AddChildEntries(frame, popup) : 0;
    // The frame may go while its popup is open: nothing of it is used after.
    TrackPopupMenuEx(popup, TPM_LEFTALIGN | TPM_TOPALIGN | TPM_LEFTBUTTON, at.x, at.y, window, nullptr);
    for (int i = 0; i < added && IsMenu(popup); ++i)
        DeleteMenu(popup, static_cast<UINT>(GetMenuItemCount(popup) - 1), MF_BYPOSITION);
    return true;
}

} // namespace hostwin
