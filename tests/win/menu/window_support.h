// What the window-utility tests share: a form of real controls, and the
// children of a window in Z order.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "zkharness.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace menutest {

inline std::wstring TextOf(HWND window) {
    wchar_t text[512] = {};
    GetWindowTextW(window, text, 512);
    return text;
}

// The first of `windows` in the Z order of their parent.
inline HWND FirstInZOrder(HWND parent, const std::vector<HWND> &windows) {
    for (HWND w = GetWindow(parent, GW_CHILD); w; w = GetWindow(w, GW_HWNDNEXT))
        for (HWND x : windows)
            if (w == x)
                return w;
    return nullptr;
}

inline void Fill(HWND list, UINT add, std::initializer_list<const wchar_t *> rows) {
    for (const wchar_t *row : rows)
        SendMessageW(list, add, 0, reinterpret_cast<LPARAM>(row));
}

// A click where a user's click lands: down and up at a client point.
inline LRESULT Click(HWND window, int x = 4, int y = 4) {
    const LRESULT down = SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    return down;
}

inline void Type(HWND edit, const wchar_t *text) {
    for (; *text; ++text)
        SendMessageW(edit, WM_CHAR, *text, 1);
}

} // namespace menutest
