// The copy of the library's window properties never answers for a window
// that no longer holds the property or no longer exists.
#include <windows.h>

#include <gtest/gtest.h>

#include "frame/win/propcache.h"
#include "zkharness.h"

namespace {

constexpr const wchar_t *kName = L"ZK:TestProp";

HANDLE Value(int n) { return reinterpret_cast<HANDLE>(static_cast<INT_PTR>(n)); }

TEST(PropCopy, FollowsSetAndRemoveAndReadsThroughOnAMiss) {
    zkt::TestWindow form;
    HWND window = form.AddListBox(1, {0, 0, 50, 50});
    EXPECT_EQ(zk::PropGet(window, kName), nullptr);
    ASSERT_TRUE(zk::PropSet(window, kName, Value(7)));
    EXPECT_EQ(zk::PropGet(window, kName), Value(7));
    EXPECT_EQ(GetPropW(window, kName), Value(7));
    ASSERT_TRUE(zk::PropSet(window, kName, Value(9)));
    EXPECT_EQ(zk::PropGet(window, L"ZK:TestProp"), Value(9)); // the same name from another literal
    EXPECT_EQ(zk::PropRemove(window, kName), Value(9));
    EXPECT_EQ(zk::PropGet(window, kName), nullptr);
    // Set from outside: read from the window and kept from then on.
    SetPropW(window, kName, Value(3));
    EXPECT_EQ(zk::PropGet(window, kName), Value(3));
    EXPECT_EQ(zk::PropRemove(window, kName), Value(3));
    EXPECT_EQ(zk::PropGet(nullptr, kName), nullptr);
    EXPECT_EQ(zk::PropGet(window, nullptr), nullptr);
}

TEST(PropCopy, ADestroyedWindowAnswersNothing) {
    zkt::TestWindow form;
    HWND window = form.AddListBox(2, {0, 0, 50, 50});
    ASSERT_TRUE(zk::PropSet(window, kName, Value(5)));
    DestroyWindow(window);
    EXPECT_EQ(zk::PropGet(window, kName), nullptr);
}

} // namespace
