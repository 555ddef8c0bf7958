// The bounded message pumps.
#include "zkharness.h"

#include <gtest/gtest.h>

namespace {

struct PumpTest : ::testing::Test {
    void SetUp() override {
        zkt::pumpMessages();
        window.onMessage([this](HWND, UINT message, WPARAM wParam, LPARAM, LRESULT &) {
            if (message == WM_APP) {
                received.push_back(static_cast<int>(wParam));
                return true;
            }
            return false;
        });
    }
    zkt::TestWindow window;
    std::vector<int> received;
};

TEST_F(PumpTest, DispatchesQueuedMessagesInOrderAndStopsWhenEmpty) {
    for (int i = 0; i < 5; ++i) {
        PostMessageW(window, WM_APP, i, 0);
    }
    EXPECT_EQ(5, zkt::pumpMessages());
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3, 4}), received);
    EXPECT_EQ(0, zkt::pumpMessages()); // empty queue: returns at once
}

TEST_F(PumpTest, DispatchesNoMoreThanTheBound) {
    for (int i = 0; i < 10; ++i) {
        PostMessageW(window, WM_APP, i, 0);
    }
    EXPECT_EQ(3, zkt::pumpMessages(3));
    EXPECT_EQ(3u, received.size());
    EXPECT_EQ(7, zkt::pumpMessages());
    EXPECT_EQ(10u, received.size());
}

TEST_F(PumpTest, PumpUntilStopsAsSoonAsThePredicateHolds) {
    for (int i = 0; i < 10; ++i) {
        PostMessageW(window, WM_APP, i, 0);
    }
    EXPECT_TRUE(zkt::pumpUntil([&] { return received.size() == 4; }));
    EXPECT_EQ(4u, received.size());
    zkt::pumpMessages();
}

TEST_F(PumpTest, PumpUntilGivesFalseWhenTheQueueRunsDry) {
    PostMessageW(window, WM_APP, 1, 0);
    EXPECT_FALSE(zkt::pumpUntil([&] { return received.size() == 2; }));
    EXPECT_EQ(1u, received.size());
}

TEST_F(PumpTest, PumpUntilWaitsBoundedlyForATimer) {
    bool fired = false;
    window.onMessage([&](HWND, UINT message, WPARAM, LPARAM, LRESULT &) {
        if (message == WM_TIMER) {
            fired = true;
            KillTimer(window, 7);
            return true;
        }
        return false;
    });
    SetTimer(window, 7, 20, nullptr);
    EXPECT_TRUE(zkt::pumpUntil([&] { return fired; }, 1000, 5000));
}

TEST_F(PumpTest, LeavesAQuitRequestInTheQueue) {
    PostMessageW(window, WM_APP, 1, 0);
    PostQuitMessage(5);
    zkt::pumpMessages();
    MSG msg{};
    ASSERT_TRUE(PeekMessageW(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(5u, msg.wParam);
}

} // namespace
