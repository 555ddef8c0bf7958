// A real top-level window for a test, and child controls on it.
#pragma once

#include <windows.h>

#include <functional>

namespace zkt {

// Position and size of a child, in client pixels of its parent.
struct Box {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

// Answers one message for the test window. Returns true when it has set
// `result`; false passes the message on to DefWindowProcW.
using MessageHandler = std::function<bool(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT &result)>;

// A visible WS_OVERLAPPEDWINDOW window with an exact client size and a white
// background, destroyed (with its children) when the object goes.
class TestWindow {
public:
    explicit TestWindow(int clientWidth = 320, int clientHeight = 240, const wchar_t *title = L"zk test");
    ~TestWindow();
    TestWindow(const TestWindow &) = delete;
    TestWindow &operator=(const TestWindow &) = delete;

    HWND hwnd() const { return window_; }
    operator HWND() const { return window_; }

    // The handler sees every message before the default processing.
    void OnMessage(MessageHandler handler) { handler_ = std::move(handler); }

    // Child controls, visible, with the given control id.
    HWND AddChild(const wchar_t *className, int id, Box box, DWORD style, const wchar_t *text = L"", DWORD exStyle = 0);
    HWND AddListBox(int id, Box box, DWORD style = LBS_NOTIFY | WS_VSCROLL | WS_BORDER);
    HWND AddComboBox(int id, Box box, DWORD style = CBS_DROPDOWNLIST | WS_VSCROLL);
    HWND AddEdit(int id, Box box, DWORD style = ES_AUTOHSCROLL | WS_BORDER, const wchar_t *text = L"");
    HWND AddButton(int id, Box box, const wchar_t *text, DWORD style = BS_PUSHBUTTON);

private:
    static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND window_ = nullptr;
    MessageHandler handler_;
};

} // namespace zkt
