#include "form.h"

#include <algorithm>
#include <vector>

namespace gallery {
namespace {

const wchar_t kFormClass[] = L"ZkGalleryForm";

constexpr int kMargin = 12;
constexpr int kLabelWidth = 236;
constexpr int kValueWidth = 180;
constexpr int kMarkWidth = 34;
constexpr int kGap = 6;
constexpr int kColumnWidth = kLabelWidth + kValueWidth + kMarkWidth + 2 * kGap;
constexpr int kRowHeight = 21;
constexpr int kSectionHeight = 26;
constexpr int kClientWidth = 2 * kColumnWidth + 3 * kMargin;

// Marks carry their verdict in their control id, for WM_CTLCOLORSTATIC.
constexpr int kOkMarkBase = 3000;
constexpr int kFailMarkBase = 6000;
constexpr int kMarkRange = 3000;

int ColumnX(int column) { return kMargin + column * (kColumnWidth + kMargin); }

} // namespace

Form::~Form() {
    if (window_ && IsWindow(window_))
        DestroyWindow(window_);
    if (font_)
        DeleteObject(font_);
    if (bold_)
        DeleteObject(bold_);
}

bool Form::Create(HINSTANCE instance, const wchar_t *title) {
    instance_ = instance;
    WNDCLASSEXW cls{};
    cls.cbSize = sizeof(cls);
    cls.lpfnWndProc = Procedure;
    cls.hInstance = instance;
    cls.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    cls.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    cls.lpszClassName = kFormClass;
    if (!RegisterClassExW(&cls) && GetLastError() != ERROR_CLASS_ALREADY_EXISTS)
        return false;

    font_ = CreateFontW(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma");
    bold_ = CreateFontW(-12, 0, 0, 0, FW_BOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma");

    const DWORD style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
    RECT frame{0, 0, kClientWidth, 400};
    AdjustWindowRectEx(&frame, style, FALSE, 0);
    window_ = CreateWindowExW(0, kFormClass, title, style, 16, 16, frame.right - frame.left, frame.bottom - frame.top,
                              nullptr, nullptr, instance, nullptr);
    y_[0] = y_[1] = kMargin;
    return window_ != nullptr;
}

HWND Form::Child(const wchar_t *cls, const std::wstring &text, DWORD style, int x, int y, int width, int height, int id,
                 HFONT font) {
    HWND child = CreateWindowExW(0, cls, text.c_str(), WS_CHILD | WS_VISIBLE | style, x, y, width, height, window_,
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance_, nullptr);
    if (child)
        SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return child;
}

int Form::ColumnWidth() { return kColumnWidth; }

void Form::Column(int index) { column_ = std::clamp(index, 0, 1); }

void Form::Section(const std::wstring &title) {
    int &y = y_[column_];
    if (y > kMargin)
        y += 6;
    Child(L"STATIC", title, SS_LEFT | SS_NOPREFIX, ColumnX(column_), y + 4, kColumnWidth, 16, 0, bold_);
    y += kSectionHeight - 4;
    // an etched rule under the title
    Child(L"STATIC", L"", SS_ETCHEDHORZ, ColumnX(column_), y, kColumnWidth, 2, 0, font_);
    y += 4;
}

void Form::Row(const std::wstring &label, const std::wstring &value, bool ok) {
    int &y = y_[column_];
    const int x = ColumnX(column_);
    const int id = (ok ? kOkMarkBase : kFailMarkBase) + (nextId_++ % kMarkRange);
    Child(L"STATIC", label, SS_LEFT | SS_NOPREFIX | SS_ENDELLIPSIS, x, y + 3, kLabelWidth, 16, 0, font_);
    Child(L"EDIT", value, ES_READONLY | ES_AUTOHSCROLL | WS_BORDER, x + kLabelWidth + kGap, y, kValueWidth, 19, 0,
          font_);
    Child(L"STATIC", ok ? L"ok" : L"FAIL", SS_CENTER | SS_NOPREFIX, x + kLabelWidth + kValueWidth + 2 * kGap, y + 3,
          kMarkWidth, 16, id, bold_);
    y += kRowHeight;
}

RECT Form::Reserve(int height) {
    int &y = y_[column_];
    RECT area{ColumnX(column_), y, ColumnX(column_) + kColumnWidth, y + height};
    y += height + 4;
    return area;
}

void Form::Show() {
    RECT frame{0, 0, kClientWidth, std::max(y_[0], y_[1]) + kMargin};
    const DWORD style = static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_STYLE));
    AdjustWindowRectEx(&frame, style, FALSE, 0);
    SetWindowPos(window_, HWND_TOP, 0, 0, frame.right - frame.left, frame.bottom - frame.top, SWP_NOMOVE);
    ShowWindow(window_, SW_SHOWNORMAL);
    SetForegroundWindow(window_);
    SetActiveWindow(window_);
    UpdateWindow(window_);
}

void Form::NextPage() {
    std::vector<HWND> children;
    for (HWND child = GetWindow(window_, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    for (HWND child : children)
        DestroyWindow(child);
    y_[0] = y_[1] = kMargin;
    column_ = 0;
}

LRESULT CALLBACK Form::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CTLCOLORSTATIC: {
        const int id = GetDlgCtrlID(reinterpret_cast<HWND>(lParam));
        HDC dc = reinterpret_cast<HDC>(wParam);
        if (id >= kOkMarkBase && id < kFailMarkBase + kMarkRange) {
            SetTextColor(dc, id < kFailMarkBase ? RGB(0, 128, 0) : RGB(200, 0, 0));
            SetBkColor(dc, GetSysColor(COLOR_BTNFACE));
            return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
        }
        break;
    }
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

} // namespace gallery
