// The message box: dialog 301 laid out for its text, icon and buttons, on
// the block that ZelMessageBox makes for it ("ZK:MsgBox").
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "frame/win/host.h"

namespace zk::menu {

inline constexpr wchar_t kMsgBoxProp[] = L"ZK:MsgBox";

// A button, made once by ZelMessageLoadButton; its address is its handle.
struct MsgButton {
    uint32_t result = 0;
    uint32_t controlId = 0; // set when shown
    std::wstring text;
};

// The button behind a handle, or null for 0 or a handle no live button has.
MsgButton *ButtonFromHandle(INT_PTR handle) noexcept;

struct MsgBoxBlock {
    const wchar_t *text;
    const wchar_t *caption;
    INT_PTR icon;
    HostArray buttons; // host numbers: button handles, + 1 for the default
    int32_t buttonCount;
    int32_t textLength;
    HBRUSH brush;
    COLORREF colour;
};

// The background of every box; white until the application sets it.
extern COLORREF MessageColour;

// The dialog procedure of dialog 301; WM_INITDIALOG takes the block's handle.
INT_PTR CALLBACK MsgBoxProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace zk::menu
