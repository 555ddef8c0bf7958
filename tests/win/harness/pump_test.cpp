// The bounded message pumps.
#include "zkharness.h"

#include <gtest/gtest.h>

namespace {

struct PumpTest : ::testing::Test {
    void SetUp() override {
        zkt::PumpMessages();
        window.OnMessage([this](HWND, UINT message, WPARAM wParam, LPARAM, LRESULT &) {
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

TEST_F(PumpTest, DispatchesNoMoreThanTheBound) {
    for (int i = 0; i < 10; ++i) {
        PostMessageW(window, WM_APP, i, 0);
    }
    EXPECT_EQ(3, zkt::PumpMessages(3));
    EXPECT_EQ(3u, received.size());
    EXPECT_EQ(7, zkt::PumpMessages());
    EXPECT_EQ(10u, received.size());
}

TEST_F(PumpTest, PumpUntilStopsAsSoonAsThePredicateHolds) {
    for (int i = 0; i < 10; ++i) {
        PostMessageW(window, WM_APP, i, 0);
    }
    EXPECT_TRUE(zkt::PumpUntil([&] { return received.size() == 4; }));
    EXPECT_EQ(4u, received.size());
    zkt::PumpMessages();
}

} // namespace
