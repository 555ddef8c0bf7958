// What the list benchmarks share: a form whose own procedure answers
// WM_MEASUREITEM with a fixed height (the plain owner-drawn baseline), list
// boxes of a given owner-draw style.
#pragma once

#include <windows.h>

#include <functional>

#include "bench.h"

inline constexpr DWORD kBenchListStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;

inline LRESULT CALLBACK BenchFormProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_MEASUREITEM) {
        reinterpret_cast<MEASUREITEMSTRUCT *>(lParam)->itemHeight = 16;
        return 1;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

inline HWND MakeBenchForm() {
    WNDCLASSW wc{};
    wc.lpfnWndProc = BenchFormProc;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.lpszClassName = L"ZkListBench";
    RegisterClassW(&wc);
    return CreateWindowW(wc.lpszClassName, L"bench", WS_OVERLAPPEDWINDOW, 0, 0, 500, 400, nullptr, nullptr,
                         wc.hInstance, nullptr);
}

// A list box with the default GUI font; ownerDraw is LBS_OWNERDRAWFIXED or
// LBS_OWNERDRAWVARIABLE.
inline HWND MakeBenchList(HWND form, int id, DWORD ownerDraw = LBS_OWNERDRAWVARIABLE) {
    HWND list = CreateWindowW(L"ListBox", L"", kBenchListStyle | ownerDraw, 0, 0, 200, 300, form,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
    SendMessageW(list, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
    return list;
}
