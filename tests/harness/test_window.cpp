#include "zkt_window.h"

#include <gtest/gtest.h>

namespace zkt {
namespace {

const wchar_t kClassName[] = L"ZkHarnessWindow";

// Registered on first use and kept for the life of the process: test windows
// come and go many times in one program.
ATOM windowClass(WNDPROC procedure) {
    static ATOM atom = 0;
    if (!atom) {
        WNDCLASSEXW wc{};
        wc.cbSize = sizeof wc;
        wc.style = CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS;
        wc.lpfnWndProc = procedure;
        wc.cbWndExtra = sizeof(void *);
        wc.hInstance = GetModuleHandleW(nullptr);
        wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
        wc.lpszClassName = kClassName;
        atom = RegisterClassExW(&wc);
    }
    return atom;
}

} // namespace

TestWindow::TestWindow(int clientWidth, int clientHeight, const wchar_t *title) {
    if (!windowClass(&TestWindow::windowProc)) {
        ADD_FAILURE() << "RegisterClassExW failed, error " << GetLastError();
        return;
    }
    const DWORD style = WS_OVERLAPPEDWINDOW;
    RECT frame{0, 0, clientWidth, clientHeight};
    AdjustWindowRectEx(&frame, style, FALSE, 0);
    window_ = CreateWindowExW(0, kClassName, title, style, 40, 40, frame.right - frame.left, frame.bottom - frame.top,
                              nullptr, nullptr, GetModuleHandleW(nullptr), this);
    if (!window_) {
        ADD_FAILURE() << "CreateWindowExW of the test window failed, error " << GetLastError();
        return;
    }
    // A decorated frame may differ from what AdjustWindowRectEx assumed:
    // correct by the difference so that the client size is exact.
    RECT client{};
    GetClientRect(window_, &client);
    const int dx = clientWidth - client.right;
    const int dy = clientHeight - client.bottom;
    if (dx || dy) {
        SetWindowPos(window_, nullptr, 0, 0, frame.right - frame.left + dx, frame.bottom - frame.top + dy,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    ShowWindow(window_, SW_SHOWNORMAL);
    UpdateWindow(window_);
}

TestWindow::~TestWindow() {
    if (window_ && IsWindow(window_)) {
        DestroyWindow(window_);
    }
}

LRESULT CALLBACK TestWindow::windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto *self = reinterpret_cast<TestWindow *>(GetWindowLongPtrW(window, 0));
    if (message == WM_NCCREATE) {
        self = static_cast<TestWindow *>(reinterpret_cast<CREATESTRUCTW *>(lParam)->lpCreateParams);
        SetWindowLongPtrW(window, 0, reinterpret_cast<LONG_PTR>(self));
    }
    if (self && self->handler_) {
        LRESULT result = 0;
        if (self->handler_(window, message, wParam, lParam, result)) {
            return result;
        }
    }
    if (message == WM_NCDESTROY && self) {
        // The object may outlive its window (DestroyWindow by the code under
        // test): it must not hold a dead handle.
        SetWindowLongPtrW(window, 0, 0);
        self->window_ = nullptr;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

HWND TestWindow::AddChild(const wchar_t *className, int id, Box box, DWORD style, const wchar_t *text, DWORD exStyle) {
    HWND child =
        CreateWindowExW(exStyle, className, text, WS_CHILD | WS_VISIBLE | style, box.x, box.y, box.width, box.height,
                        window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
    if (!child) {
        ADD_FAILURE() << "CreateWindowExW of a child failed, error " << GetLastError();
    }
    return child;
}

HWND TestWindow::AddListBox(int id, Box box, DWORD style) { return AddChild(L"ListBox", id, box, style); }

HWND TestWindow::AddComboBox(int id, Box box, DWORD style) { return AddChild(L"ComboBox", id, box, style); }

HWND TestWindow::AddEdit(int id, Box box, DWORD style, const wchar_t *text) {
    return AddChild(L"Edit", id, box, style, text);
}

HWND TestWindow::AddButton(int id, Box box, const wchar_t *text, DWORD style) {
    return AddChild(L"Button", id, box, style, text);
}

} // namespace zkt
