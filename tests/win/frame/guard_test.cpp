// The frame's shared mechanisms, linked beside the library: the guard of
// exported functions and the string-return idiom with its retry loop.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>

#include "frame/win/guard.h"
#include "zkharness.h"
#include "zkhostctl.h"

namespace {

// The frame's texts and dialog come from the library's resources.
class LibraryResources : public testing::Environment {
    // Nothing else in this program needs the DLL, so it is loaded here.
    void SetUp() override { zk::ModuleInstance = LoadLibraryW(L"ZKLIB.dll"); }
};
const auto *const resources = testing::AddGlobalTestEnvironment(new LibraryResources);

struct Control {
    int value;
};

TEST(Guard, AnExceptionEndsWithTheFailureValueAndOneTraceLine) {
    zkt::DebugOutputCapture capture;
    const int result = zk::Guarded(L"ZelSomething()", 52, -1, []() -> int { throw zk::MemoryException(); });
    EXPECT_EQ(result, -1);
    EXPECT_EQ(capture.text(), L"ZelSomething() - Unhandled exception in function '%1'.\n");
}

TEST(Guard, StandardExceptionsAreCaughtToo) {
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(zk::Guarded(L"F()", 52, 0, []() -> int { throw std::bad_alloc(); }), 0);
    EXPECT_EQ(capture.lines().size(), 1u);
}

TEST(Guard, LiteralFailureWordsAreTracedAsGiven) {
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(zk::GuardedText(L"ZelCalClearSpecial()", L"failed", 0, []() -> int { throw zk::UserException(); }), 0);
    EXPECT_EQ(capture.text(), L"ZelCalClearSpecial() - failed\n");
}

TEST(Guard, ANullControlShowsStringFortyEightThenFails) {
    zkt::DebugOutputCapture capture;
    zkt::DialogAnswerer answerer(IDOK);
    bool ran = false;
    Control *none = nullptr;
    const int result = zk::GuardedControl(L"ZelPalColorGet()", 52, -1, none, [&](Control &) {
        ran = true;
        return 1;
    });
    EXPECT_EQ(result, -1);
    EXPECT_FALSE(ran);
    ASSERT_EQ(answerer.answered(), 1);
    EXPECT_EQ(answerer.dialogs()[0].caption, L"Zelkova Kit Library");
    const auto texts = answerer.dialogs()[0].StaticTexts();
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts.back(), L"Function 'ZelPalColorGet()' unable to act because pointer to control instance is NULL.  "
                            L"This is likely due to interception of ZKM_ControlCreate in Brandle Builder.  "
                            L"Please remove any such lines from your application.");
    EXPECT_EQ(capture.text(), L"ZelPalColorGet() - Unhandled exception in function '%1'.\n");
}

TEST(Guard, ReportErrorWritesTheResourceTextAsItStands) {
    zkt::DebugOutputCapture capture;
    ZelReportError(52, L"ZelStrScanReverse()");
    EXPECT_EQ(capture.lines(),
              std::vector<std::wstring>{L"ZelStrScanReverse() - Unhandled exception in function '%1'."});
    capture.clear();
    ZelReportError(9999, L"F()");
    EXPECT_EQ(capture.text(), L"F() - \n") << "a missing text leaves the frame of the line";
}

class StringReturn : public testing::Test {
protected:
    void SetUp() override {
        live = ZkHostLiveStrings();
        ZkHostHaltReturns(1);
    }
    void TearDown() override {
        ZkHostFailAllocations(0);
        EXPECT_EQ(ZkHostLiveStrings(), live);
    }
    int live = 0;
};

TEST_F(StringReturn, RetryRepeatsTheSameSizeUntilTheHostGivesMemory) {
    zkt::DialogAnswerer answerer(std::vector<int>{203, 203});
    ZkHostFailAllocations(2);
    const int calls = ZkHostAllocCalls();
    const HostStr text = zk::StrFromChars(L"abc", 3);
    ASSERT_NE(text, 0u);
    EXPECT_EQ(answerer.answered(), 2) << "one dialog per failure";
    EXPECT_EQ(ZkHostAllocCalls() - calls, 3);
    EXPECT_EQ(ZkHostLastAllocSize(), 8);
    EXPECT_STREQ(zk::StrBuffer(text), L"abc");
    ZkHostStrRelease(text);
}

TEST_F(StringReturn, HaltCallsTheHostAndTriesAgainWhenItReturns) {
    zkt::DialogAnswerer answerer(204);
    const int halts = ZkHostHaltCount();
    ZkHostFailAllocations(1);
    const HostStr empty = ZelStrEmpty();
    ASSERT_NE(empty, 0u);
    EXPECT_EQ(ZkHostHaltCount() - halts, 1);
    EXPECT_EQ(answerer.answered(), 1);
    EXPECT_EQ(ZkHostLastAllocSize(), 2);
    EXPECT_STREQ(zk::StrBuffer(empty), L"");
    ZkHostStrRelease(empty);
}

TEST_F(StringReturn, FromTextGivesZeroWithoutAskingWhenTheHostRefuses) {
    zkt::DialogAnswerer answerer(203);
    ZkHostFailAllocations(1);
    EXPECT_EQ(ZelStrFromText(L"abc"), 0u);
    EXPECT_EQ(answerer.answered(), 0);
    const HostStr text = ZelStrFromText(L"abc");
    ASSERT_NE(text, 0u);
    EXPECT_EQ(ZkHostLastAllocSize(), 8);
    ZkHostStrRelease(text);
    const HostStr fromNull = ZelStrFromText(nullptr);
    ASSERT_NE(fromNull, 0u);
    EXPECT_STREQ(zk::StrBuffer(fromNull), L"");
    ZkHostStrRelease(fromNull);
}

} // namespace
