// The message recorder and the sequence check.
#include "zkharness.h"

#include <gtest/gtest.h>

namespace {

using zkt::ExpectedMessage;
using zkt::RecordedMessage;

TEST(MessageRecorder, TellsSentFromPostedInOrder) {
    zkt::TestWindow window;
    zkt::pumpMessages();
    zkt::MessageRecorder recorder;
    recorder.watch(window);
    SendMessageW(window, WM_APP + 1, 1, 2);
    PostMessageW(window, WM_APP + 2, 3, 4);
    SendMessageW(window, WM_APP + 3, 5, 6);
    zkt::pumpMessages();
    EXPECT_TRUE(zkt::matchSequence(recorder.messages(),
                                   {{WM_APP + 1, zkt::sent | zkt::wparam | zkt::lparam, 1, 2},
                                    {WM_APP + 3, zkt::sent | zkt::wparam | zkt::lparam, 5, 6},
                                    {WM_APP + 2, zkt::posted | zkt::wparam | zkt::lparam, 3, 4}},
                                   zkt::commonNoise()));
    EXPECT_EQ(1, recorder.count(WM_APP + 2));
    EXPECT_EQ(1, recorder.count(WM_APP + 2, window));
}

TEST(MessageRecorder, SeesOnlyWatchedWindowsUnlessToldToWatchAll) {
    zkt::TestWindow window;
    HWND edit = window.addEdit(3, {5, 5, 80, 20});
    zkt::pumpMessages();
    zkt::MessageRecorder onlyEdit;
    onlyEdit.watch(edit);
    zkt::MessageRecorder everything;
    everything.watchAll();
    SendMessageW(window, WM_APP, 0, 0);
    SendMessageW(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"x"));
    PostThreadMessageW(GetCurrentThreadId(), WM_APP + 9, 0, 0);
    zkt::pumpMessages();
    EXPECT_EQ(0, onlyEdit.count(WM_APP));
    EXPECT_EQ(1, onlyEdit.count(WM_SETTEXT));
    // Two recorders on one thread each see a message once.
    EXPECT_EQ(1, everything.count(WM_APP, window));
    EXPECT_EQ(1, everything.count(WM_SETTEXT, edit));
    EXPECT_EQ(1, everything.count(WM_APP + 9));
    onlyEdit.clear();
    EXPECT_TRUE(onlyEdit.messages().empty());
}

TEST(MessageRecorder, RecordsWhatAControlSendsItsParent) {
    zkt::TestWindow window;
    HWND button = window.addButton(77, {5, 5, 80, 24}, L"OK");
    zkt::pumpMessages();
    zkt::MessageRecorder recorder;
    recorder.watch(window);
    SendMessageW(button, BM_CLICK, 0, 0);
    zkt::pumpMessages();
    const ExpectedMessage command{WM_COMMAND, zkt::sent | zkt::wparam | zkt::lparam,
                                  MAKEWPARAM(77, BN_CLICKED), reinterpret_cast<LPARAM>(button),
                                  window.hwnd()};
    EXPECT_EQ(1, recorder.count(WM_COMMAND));
    std::vector<RecordedMessage> commands;
    for (const RecordedMessage &m : recorder.messages()) {
        if (m.message == WM_COMMAND) {
            commands.push_back(m);
        }
    }
    EXPECT_TRUE(zkt::matchSequence(commands, {command}));
}

TEST(MessageRecorder, StopsRecordingWhenGone) {
    zkt::TestWindow window;
    {
        zkt::MessageRecorder recorder;
        recorder.watch(window);
        SendMessageW(window, WM_APP, 0, 0);
        EXPECT_EQ(1, recorder.count(WM_APP));
    }
    // The hooks are gone with the last recorder: sending must not touch it.
    SendMessageW(window, WM_APP, 0, 0);
    zkt::MessageRecorder later;
    later.watch(window);
    EXPECT_EQ(0, later.count(WM_APP));
}

// matchSequence on hand-made recordings.
HWND const kA = reinterpret_cast<HWND>(0x100);
HWND const kB = reinterpret_cast<HWND>(0x200);

std::vector<RecordedMessage> sample() {
    return {{kA, WM_SETFOCUS, 0, 0, false},
            {kA, WM_PAINT, 0, 0, true},
            {kB, WM_COMMAND, MAKEWPARAM(5, 1), 0x55, true}};
}

TEST(MatchSequence, AcceptsTheSameSequence) {
    EXPECT_TRUE(zkt::matchSequence(sample(), {{WM_SETFOCUS, zkt::sent, 0, 0, kA},
                                              {WM_PAINT, zkt::posted},
                                              {WM_COMMAND, zkt::wparam | zkt::lparam,
                                               MAKEWPARAM(5, 1), 0x55, kB}}));
    EXPECT_TRUE(zkt::matchSequence({}, {}));
}

TEST(MatchSequence, ReportsTheFirstDifferenceReadably) {
    const auto result = zkt::matchSequence(
        sample(), {{WM_SETFOCUS}, {WM_PAINT}, {WM_COMMAND, zkt::sent}});
    ASSERT_FALSE(result);
    const std::string text = result.message();
    EXPECT_NE(std::string::npos, text.find("entry 2: expected WM_COMMAND sent")) << text;
    EXPECT_NE(std::string::npos, text.find("got message 2: WM_COMMAND posted wParam=0x10005"))
        << text;
    EXPECT_NE(std::string::npos, text.find("0: WM_SETFOCUS sent")) << text;
}

TEST(MatchSequence, ComparesParametersAndWindowOnlyWhenAsked) {
    EXPECT_FALSE(zkt::matchSequence(sample(), {{WM_SETFOCUS},
                                               {WM_PAINT},
                                               {WM_COMMAND, zkt::wparam, MAKEWPARAM(6, 1)}}));
    EXPECT_FALSE(zkt::matchSequence(sample(), {{WM_SETFOCUS},
                                               {WM_PAINT},
                                               {WM_COMMAND, zkt::lparam, 0, 0x56}}));
    EXPECT_FALSE(zkt::matchSequence(sample(), {{WM_SETFOCUS, 0, 0, 0, kB},
                                               {WM_PAINT},
                                               {WM_COMMAND}}));
    EXPECT_FALSE(zkt::matchSequence(sample(), {{WM_SETFOCUS, zkt::posted},
                                               {WM_PAINT},
                                               {WM_COMMAND}}));
}

TEST(MatchSequence, OptionalEntriesMayBeMissingOrPresent) {
    EXPECT_TRUE(zkt::matchSequence(sample(), {{WM_SETFOCUS},
                                              {WM_KILLFOCUS, zkt::optional},
                                              {WM_PAINT, zkt::optional},
                                              {WM_COMMAND},
                                              {WM_TIMER, zkt::optional}}));
    EXPECT_TRUE(zkt::matchSequence(sample(), {{WM_SETFOCUS}, {WM_COMMAND}}, {WM_PAINT}));
}

TEST(MatchSequence, MissingAndExtraMessagesFail) {
    const auto missing =
        zkt::matchSequence(sample(), {{WM_SETFOCUS}, {WM_PAINT}, {WM_COMMAND}, {WM_CLOSE}});
    ASSERT_FALSE(missing);
    EXPECT_NE(std::string::npos,
              std::string(missing.message()).find("expected WM_CLOSE, but the recording ended"));
    const auto extra = zkt::matchSequence(sample(), {{WM_SETFOCUS}, {WM_PAINT}});
    ASSERT_FALSE(extra);
    EXPECT_NE(std::string::npos,
              std::string(extra.message()).find("message 2 was not expected: WM_COMMAND"));
}

TEST(MatchSequence, IgnoredMessagesAreLeftOutOfTheRecording) {
    std::vector<RecordedMessage> noisy = sample();
    noisy.insert(noisy.begin() + 1, {kA, WM_NCHITTEST, 0, 0, false});
    noisy.push_back({kA, WM_SETCURSOR, 0, 0, false});
    EXPECT_FALSE(zkt::matchSequence(noisy, {{WM_SETFOCUS}, {WM_PAINT}, {WM_COMMAND}}));
    EXPECT_TRUE(zkt::matchSequence(noisy, {{WM_SETFOCUS}, {WM_PAINT}, {WM_COMMAND}},
                                   zkt::commonNoise()));
}

TEST(MessageName, NamesKnownMessagesAndNumbersOthers) {
    EXPECT_EQ("WM_COMMAND", zkt::messageName(WM_COMMAND));
    EXPECT_EQ("LB_ADDSTRING", zkt::messageName(LB_ADDSTRING));
    EXPECT_EQ("CB_SETCURSEL", zkt::messageName(CB_SETCURSEL));
    EXPECT_EQ("WM_NULL", zkt::messageName(0));
    EXPECT_EQ("0x6008", zkt::messageName(0x6008));
}

} // namespace
