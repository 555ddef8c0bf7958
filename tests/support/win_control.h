// What the Windows tests of the library's controls share: the messages a
// control posts, taken from the queue; a control made by a host class with
// the pointer it announced; a design item holding a stored block for the
// windows made meanwhile; and the exports' answer to a null control.
#pragma once

#include <windows.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <vector>

#include "zkhost.h"
#include "zkt_bitmap.h"
#include "zkt_pump.h"
#include "zkt_window.h"

namespace zkt {

struct Posted {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

// Takes what is queued on this thread, in order, and dispatches it; paints
// and timers are dispatched but not listed.
std::vector<Posted> DrainQueue();
// The codes of the WM_COMMAND notifications that `control` posted to
// `notify` (to any window when it is null), in order.
std::vector<int> NotificationCodes(const std::vector<Posted> &posted, HWND notify, HWND control);

// A client point as a mouse message's lParam, negative coordinates kept.
inline LPARAM ClientPoint(int x, int y) {
    return MAKELPARAM(static_cast<WORD>(static_cast<short>(x)), static_cast<WORD>(static_cast<short>(y)));
}
// The client area as the window paints it for WM_PRINTCLIENT.
Bitmap PrintClient(HWND window);

// A visible child of a control class on `parent`, and the pointer that its
// ZKM_ControlCreate announced (0 when none was queued).
struct Announced {
    HWND hwnd = nullptr;
    LPARAM object = 0;
};
Announced CreateAnnounced(const wchar_t *className, HWND parent, Box box, int id, void *parameter = nullptr);

// A test form with one control of a host class on it, made as the host
// makes it (control id 7). The form answers WM_CTLCOLORLISTBOX with
// listBrush (deleted with the form) and listText once a brush is set; the
// control is destroyed with the object.
class ControlForm {
public:
    ControlForm(const wchar_t *className, Box box, void *parameter);
    ~ControlForm();
    ControlForm(const ControlForm &) = delete;
    ControlForm &operator=(const ControlForm &) = delete;

    HWND hwnd() const { return made_.hwnd; }
    LPARAM announced() const { return made_.object; }

    TestWindow form{420, 320};
    HBRUSH listBrush = nullptr;
    COLORREF listText = 0;

private:
    Announced made_;
};

// A design item for the length of a scope: every window made meanwhile on
// this thread (of one class, when named) is bound to it before its first
// message.
class StoredBlockItem {
public:
    // Binds only windows of the class when one is named.
    explicit StoredBlockItem(const wchar_t *className = nullptr);
    ~StoredBlockItem();
    StoredBlockItem(const StoredBlockItem &) = delete;
    StoredBlockItem &operator=(const StoredBlockItem &) = delete;

    // Stores a block's bytes under a property name as the designer leaves
    // them: the host hands back one byte less than it was given, then the
    // terminator.
    bool Store(const wchar_t *property, std::vector<uint8_t> bytes);

    HostOutline outline = 0;
    HostItem item = 0;
    // A host window's creation parameter: bit 0 of byte 4 says that
    // properties were stored.
    uint8_t parameter[8] = {0, 0, 0, 0, 1, 0, 0, 0};

private:
    static LRESULT CALLBACK Bind(int code, WPARAM wParam, LPARAM lParam);
    const wchar_t *className_;
    HHOOK hook_ = nullptr;
    static inline StoredBlockItem *current_ = nullptr;
};

// An export called with a null control: the box of string 48 naming the
// function, the row's failure value, and its words in the debugger output
// (none when words is null).
struct NullControlCall {
    const wchar_t *name; // with its parentheses, as the box and the trace name it
    int64_t failure;
    const wchar_t *words;
    std::function<int64_t()> call;
};
void ExpectNullControlFailures(const std::vector<NullControlCall> &calls);

// A control's pop-up form on a test window that is its notify window, with
// an edit beside it: MakePopup creates the control and gives it the window;
// the window goes at the end of the test if it is still there.
template <class Control>
class PopupTest : public ::testing::Test {
protected:
    void SetUp() override {
        edit = notify.AddEdit(9, {10, 10, 80, 20});
        popup = new Control(); // owned by its window once created
        ASSERT_TRUE(MakePopup(*popup));
        window = popup->GetSafeHwnd();
    }
    void TearDown() override {
        if (IsWindow(window))
            DestroyWindow(window);
        PumpMessages();
    }
    virtual bool MakePopup(Control &control) = 0;

    TestWindow notify;
    HWND edit = nullptr;
    Control *popup = nullptr;
    HWND window = nullptr;
};

} // namespace zkt
