// The test window and its child controls.
#include "zkharness.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    return name;
}

TEST(TestWindow, HasTheRequestedClientSizeAndIsVisible) {
    zkt::TestWindow window(333, 177, L"size");
    ASSERT_TRUE(IsWindow(window.hwnd()));
    RECT client{};
    GetClientRect(window, &client);
    EXPECT_EQ(333, client.right);
    EXPECT_EQ(177, client.bottom);
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_EQ(static_cast<LONG>(WS_OVERLAPPEDWINDOW),
              GetWindowLongW(window, GWL_STYLE) & static_cast<LONG>(WS_OVERLAPPEDWINDOW));
    wchar_t title[32] = {};
    GetWindowTextW(window, title, 32);
    EXPECT_STREQ(L"size", title);
}

TEST(TestWindow, ChildControlsHaveClassIdParentAndBounds) {
    zkt::TestWindow window(400, 300);
    HWND list = window.AddListBox(11, {10, 10, 100, 120});
    HWND combo = window.AddComboBox(12, {120, 10, 100, 150});
    HWND edit = window.AddEdit(13, {230, 10, 100, 24}, ES_AUTOHSCROLL, L"abc");
    HWND button = window.AddButton(14, {10, 200, 80, 26}, L"Go");
    struct Expected {
        HWND hwnd;
        const wchar_t *cls;
        int id;
    } children[] = {{list, L"ListBox", 11}, {combo, L"ComboBox", 12}, {edit, L"Edit", 13}, {button, L"Button", 14}};
    for (const Expected &child : children) {
        ASSERT_TRUE(IsWindow(child.hwnd)) << child.id;
        EXPECT_EQ(ClassOf(child.hwnd), child.cls);
        EXPECT_EQ(child.id, GetDlgCtrlID(child.hwnd));
        EXPECT_EQ(window.hwnd(), GetParent(child.hwnd));
        EXPECT_TRUE(IsWindowVisible(child.hwnd));
    }
    RECT r{};
    GetWindowRect(edit, &r);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT *>(&r), 2);
    EXPECT_EQ(230, r.left);
    EXPECT_EQ(10, r.top);
    EXPECT_EQ(100, r.right - r.left);
    EXPECT_EQ(24, r.bottom - r.top);
    wchar_t text[16] = {};
    GetWindowTextW(edit, text, 16);
    EXPECT_STREQ(L"abc", text);
    // Default styles: the list notifies its parent, the combo is a drop list.
    EXPECT_TRUE(GetWindowLongW(list, GWL_STYLE) & LBS_NOTIFY);
    EXPECT_EQ(CBS_DROPDOWNLIST, GetWindowLongW(combo, GWL_STYLE) & 3);
}

} // namespace
