// The message recorder and the sequence check.
#include "zkharness.h"

#include <gtest/gtest.h>

namespace {

using zkt::ExpectedMessage;
using zkt::RecordedMessage;

TEST(MessageRecorder, TellsSentFromPostedInOrder) {
    zkt::TestWindow window;
    zkt::PumpMessages();
    zkt::MessageRecorder recorder;
    recorder.watch(window);
    SendMessageW(window, WM_APP + 1, 1, 2);
    PostMessageW(window, WM_APP + 2, 3, 4);
    SendMessageW(window, WM_APP + 3, 5, 6);
    zkt::PumpMessages();
    EXPECT_TRUE(zkt::MatchSequence(recorder.messages(),
                                   {{WM_APP + 1, zkt::sent | zkt::wparam | zkt::lparam, 1, 2},
                                    {WM_APP + 3, zkt::sent | zkt::wparam | zkt::lparam, 5, 6},
                                    {WM_APP + 2, zkt::posted | zkt::wparam | zkt::lparam, 3, 4}},
                                   zkt::CommonNoise()));
    EXPECT_EQ(1, recorder.count(WM_APP + 2));
    EXPECT_EQ(1, recorder.count(WM_APP + 2, window));
}

// matchSequence on hand-made recordings.
HWND const kA = reinterpret_cast<HWND>(0x100);
HWND const kB = reinterpret_cast<HWND>(0x200);

std::vector<RecordedMessage> sample() {
    return {{kA, WM_SETFOCUS, 0, 0, false}, {kA, WM_PAINT, 0, 0, true}, {kB, WM_COMMAND, MAKEWPARAM(5, 1), 0x55, true}};
}

TEST(MatchSequence, ReportsTheFirstDifferenceReadably) {
    const auto result = zkt::MatchSequence(sample(), {{WM_SETFOCUS}, {WM_PAINT}, {WM_COMMAND, zkt::sent}});
    ASSERT_FALSE(result);
    const std::string text = result.message();
    EXPECT_NE(std::string::npos, text.find("entry 2: expected WM_COMMAND sent")) << text;
    EXPECT_NE(std::string::npos, text.find("got message 2: WM_COMMAND posted wParam=0x10005")) << text;
    EXPECT_NE(std::string::npos, text.find("0: WM_SETFOCUS sent")) << text;
}

} // namespace
