#include "artpanel.h"

namespace gallery {
namespace {

const wchar_t kArtClass[] = L"ZkGalleryArt";
constexpr int kCellWidth = 74;
constexpr int kImageBox = 48;    // a 24-pixel bitmap at twice its size
constexpr int kLabelHeight = 28; // two lines
constexpr int kCellHeight = kImageBox + 4 + kLabelHeight;
constexpr int kPadding = 6;

int PerRow(int clientWidth) {
    const int usable = clientWidth - 2 * kPadding;
    return usable >= kCellWidth ? usable / kCellWidth : 1;
}

} // namespace

ArtPanel::~ArtPanel() {
    for (Item &item : items_) {
        if (item.bitmap)
            DeleteObject(item.bitmap);
        if (item.icon)
            DestroyIcon(item.icon);
    }
}

int ArtPanel::HeightFor(int count, int width) {
    const int perRow = PerRow(width - 2 * GetSystemMetrics(SM_CXEDGE));
    const int rows = (count + perRow - 1) / perRow;
    return rows * kCellHeight + 2 * kPadding + 2 * GetSystemMetrics(SM_CXEDGE);
}

bool ArtPanel::Create(HWND parent, const RECT &area, HFONT font) {
    WNDCLASSEXW cls{};
    cls.cbSize = sizeof(cls);
    cls.lpfnWndProc = Procedure;
    cls.hInstance = GetModuleHandleW(nullptr);
    cls.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    cls.lpszClassName = kArtClass;
    if (!RegisterClassExW(&cls) && GetLastError() != ERROR_CLASS_ALREADY_EXISTS)
        return false;
    font_ = font;
    window_ = CreateWindowExW(WS_EX_CLIENTEDGE, kArtClass, L"", WS_CHILD | WS_VISIBLE, area.left, area.top,
                              area.right - area.left, area.bottom - area.top, parent, nullptr, cls.hInstance, this);
    return window_ != nullptr;
}

void ArtPanel::AddBitmap(const std::wstring &name, HBITMAP bitmap) {
    items_.push_back(Item{name, bitmap, nullptr, 0});
    if (window_)
        InvalidateRect(window_, nullptr, TRUE);
}

void ArtPanel::AddIcon(const std::wstring &name, HICON icon, int size) {
    items_.push_back(Item{name, nullptr, icon, size});
    if (window_)
        InvalidateRect(window_, nullptr, TRUE);
}

void ArtPanel::PaintItem(HDC dc, const Item &item, const RECT &cell) const {
    const int boxX = cell.left + (kCellWidth - kImageBox) / 2;
    const int boxY = cell.top;
    if (item.bitmap) {
        BITMAP info{};
        GetObjectW(item.bitmap, sizeof(info), &info);
        HDC source = CreateCompatibleDC(dc);
        HGDIOBJ old = SelectObject(source, item.bitmap);
        SetStretchBltMode(dc, COLORONCOLOR); // hard pixel edges
        StretchBlt(dc, boxX, boxY, 2 * info.bmWidth, 2 * info.bmHeight, source, 0, 0, info.bmWidth, info.bmHeight,
                   SRCCOPY);
        SelectObject(source, old);
        DeleteDC(source);
    } else if (item.icon) {
        const int offset = (kImageBox - item.size) / 2;
        DrawIconEx(dc, boxX + offset, boxY + offset, item.icon, item.size, item.size, 0, nullptr, DI_NORMAL);
    } else {
        // missing from the DLL: a red cross where the image should be
        HPEN pen = CreatePen(PS_SOLID, 2, RGB(200, 0, 0));
        HGDIOBJ oldPen = SelectObject(dc, pen);
        MoveToEx(dc, boxX, boxY, nullptr);
        LineTo(dc, boxX + kImageBox, boxY + kImageBox);
        MoveToEx(dc, boxX + kImageBox, boxY, nullptr);
        LineTo(dc, boxX, boxY + kImageBox);
        SelectObject(dc, oldPen);
        DeleteObject(pen);
    }
    // "CALDROPDOWN" and its kin are too wide for a cell: the drop-down
    // variants read as their base name over "DROPDOWN".
    std::wstring name = item.name;
    const size_t drop = name.find(L"DROPDOWN");
    if (drop != std::wstring::npos && drop > 0)
        name.insert(drop, L"\n");
    RECT label{cell.left, cell.top + kImageBox + 3, cell.right, cell.bottom};
    DrawTextW(dc, name.c_str(), -1, &label, DT_CENTER | DT_NOPREFIX | DT_NOCLIP);
}

void ArtPanel::Paint(HWND window, HDC dc) const {
    RECT client{};
    GetClientRect(window, &client);
    FillRect(dc, &client, GetSysColorBrush(COLOR_WINDOW));
    HGDIOBJ oldFont = SelectObject(dc, font_ ? static_cast<HGDIOBJ>(font_) : GetStockObject(DEFAULT_GUI_FONT));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    const int perRow = PerRow(client.right);
    for (size_t i = 0; i < items_.size(); ++i) {
        const int column = static_cast<int>(i) % perRow;
        const int row = static_cast<int>(i) / perRow;
        const RECT cell{kPadding + column * kCellWidth, kPadding + row * kCellHeight,
                        kPadding + (column + 1) * kCellWidth, kPadding + (row + 1) * kCellHeight};
        PaintItem(dc, items_[i], cell);
    }
    SelectObject(dc, oldFont);
}

LRESULT CALLBACK ArtPanel::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto *create = reinterpret_cast<CREATESTRUCTW *>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    }
    auto *panel = reinterpret_cast<ArtPanel *>(GetWindowLongPtrW(window, GWLP_USERDATA));
    switch (message) {
    case WM_ERASEBKGND:
        return 1; // Paint fills the whole client area
    case WM_PAINT: {
        PAINTSTRUCT paint;
        HDC dc = BeginPaint(window, &paint);
        if (panel)
            panel->Paint(window, dc);
        EndPaint(window, &paint);
        return 0;
    }
    case WM_PRINTCLIENT:
        if (panel)
            panel->Paint(window, reinterpret_cast<HDC>(wParam));
        return 0;
    case WM_NCDESTROY:
        if (panel)
            panel->window_ = nullptr;
        break;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

} // namespace gallery
