// ZelDebugBeginTime, ZelDebugSetTime and ZelDebugEndTime through the
// library's exports: the report's lines to the debugger or in one box. The
// tick count is the system's, so spans are checked by their form; the
// host's clock is fixed. The exact figures are checked in the core's tests.
#include "diag_support.h"

using namespace diagwin;

namespace {

const std::wstring kClock = L" \\(10:20:30 PM\\)";

TEST_F(Diag, NothingToTimeWithoutABeginning) {
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(ZelDebugSetTime(L"early"), 0);
    EXPECT_EQ(ZelDebugEndTime(L"run", 0), 0);
    EXPECT_EQ(capture.calls(), 0u);
}

TEST_F(Diag, BeginAndEndGiveOneLineForTheTotal) {
    zkt::DebugOutputCapture capture;
    ASSERT_EQ(ZelDebugBeginTime(), 1);
    ASSERT_EQ(ZelDebugEndTime(L"run", 0), 1);
    const auto lines = capture.lines();
    ASSERT_EQ(lines.size(), 2u) << capture.text().c_str();
    EXPECT_TRUE(Matches(lines[0], L"Total run: " + kSpan)) << lines[0].c_str();
    EXPECT_EQ(lines[1], L"");
    // The run is over.
    EXPECT_EQ(ZelDebugSetTime(L"late"), 0);
    EXPECT_EQ(ZelDebugEndTime(L"run", 0), 0);
}

TEST_F(Diag, TheBoxShowsTheWholeReport) {
    ZelDebugSetFlags(DBG_MessageBox | DBG_ClockTime, 1);
    zkt::DebugOutputCapture capture;
    zkt::DialogAnswerer answerer(IDOK);
    ASSERT_EQ(ZelDebugBeginTime(), 1);
    ASSERT_EQ(ZelDebugSetTime(L"step"), 1);
    ASSERT_EQ(ZelDebugSetTime(L"last"), 1);
    ASSERT_EQ(ZelDebugEndTime(L"run", 0), 1);
    ASSERT_EQ(answerer.answered(), 1);
    EXPECT_EQ(answerer.dialogs()[0].caption, L"Performance Time");
    const auto texts = answerer.dialogs()[0].StaticTexts();
    ASSERT_FALSE(texts.empty());
    EXPECT_TRUE(Matches(texts.back(), L"Begin: \\(10:20:30 PM\\)\nstep: " + kSpan + kClock + L"\nlast: " + kSpan +
                                          kClock + L"\nTotal run: " + kSpan))
        << texts.back().c_str();
    EXPECT_EQ(capture.calls(), 0u);
}

TEST_F(Diag, ARunHoldsAt81Samples) {
    zkt::DebugOutputCapture capture;
    ASSERT_EQ(ZelDebugBeginTime(), 1);
    for (int i = 1; i < 81; ++i)
        ASSERT_EQ(ZelDebugSetTime((L"s" + std::to_wstring(i)).c_str()), 1) << i;
    EXPECT_EQ(ZelDebugSetTime(L"s81"), 0);
    EXPECT_EQ(ZelDebugSetTime(L"s82"), 0);
    ASSERT_EQ(ZelDebugEndTime(L"run", 0), 1);
    const auto lines = capture.lines();
    ASSERT_EQ(lines.size(), 82u);
    EXPECT_TRUE(Matches(lines[79], L"s80: " + kSpan));
    EXPECT_TRUE(Matches(lines[80], L"Total run: " + kSpan));
}

TEST_F(Diag, ClockTextsDoNotPileUpHostStrings) {
    ZelDebugSetFlags(DBG_ClockTime, 1);
    zkt::DebugOutputCapture capture;
    ASSERT_EQ(ZelDebugBeginTime(), 1);
    ASSERT_EQ(ZelDebugEndTime(L"warm", 0), 1);
    const int32_t live = ZkHostLiveStrings();
    ASSERT_EQ(ZelDebugBeginTime(), 1);
    for (int i = 0; i < 10; ++i)
        ASSERT_EQ(ZelDebugSetTime(L"s"), 1);
    ASSERT_EQ(ZelDebugEndTime(L"run", 0), 1);
    EXPECT_EQ(ZkHostLiveStrings(), live);
}

} // namespace
