// The frame's shared mechanisms, linked beside the library: the guard of
// exported functions (string 48 for a null control, the row's words for an
// exception) with a real control, the string-return idiom with its retry
// loop, the retry dialog 201 through the exported ZelErrorRecovery, and the
// copy of window properties, which never answers for a window that no
// longer holds the property or no longer exists.
#include <functional>
#include <stdexcept>
#include <string>

#include "designer_win_test.h"
#include "frame/win/guard.h"
#include "frame/win/propcache.h"
#include "win_control.h"

using namespace designertest;

namespace {

// An export as a control family writes it.
int32_t GetColor(zk::CGenericControl *control, int32_t role) {
    return zk::GuardedControlText(L"ZelCalGetColor()", L"Unable to retrieve color for specified role.", -1, control,
                                  [&](zk::CGenericControl &c) -> int32_t {
                                      if (role < 0 || role > 3)
                                          throw zk::InvalidArgException();
                                      return static_cast<int32_t>(c.GetRoleColor(role));
                                  });
}

TEST(Guard, AnExceptionEndsWithTheFailureValueAndOneTraceLine) {
    const struct {
        std::function<int()> call;
        int failure;
        const wchar_t *trace;
    } cases[] = {
        {[] { return zk::Guarded(L"ZelSomething()", 52, -1, []() -> int { throw zk::MemoryException(); }); }, -1,
         L"ZelSomething() - Unhandled exception in function '%1'.\n"},
        // Standard exceptions are caught too.
        {[] { return zk::Guarded(L"F()", 52, 0, []() -> int { throw std::bad_alloc(); }); }, 0,
         L"F() - Unhandled exception in function '%1'.\n"},
        // Literal failure words are traced as given.
        {[] {
             return zk::GuardedText(L"ZelCalClearSpecial()", L"failed", 0, []() -> int { throw zk::UserException(); });
         },
         0, L"ZelCalClearSpecial() - failed\n"},
    };
    for (const auto &c : cases) {
        zkt::DebugOutputCapture capture;
        EXPECT_EQ(c.call(), c.failure);
        EXPECT_EQ(capture.text(), c.trace);
    }
}

TEST(Guard, ANullControlShowsStringFortyEightThenFailsWithoutRunningTheBody) {
    bool ran = false;
    zk::CGenericControl *none = nullptr;
    zkt::ExpectNullControlFailures({
        {L"ZelPalColorGet()", -1, L"Unhandled exception in function '%1'.",
         [&] {
             return zk::GuardedControl(L"ZelPalColorGet()", 52, -1, none, [&](zk::CGenericControl &) {
                 ran = true;
                 return 1;
             });
         }},
        {L"ZelCalGetColor()", -1, L"Unable to retrieve color for specified role.", [] { return GetColor(nullptr, 0); }},
    });
    EXPECT_FALSE(ran);
    zkt::DialogAnswerer answerer(IDOK);
    GetColor(nullptr, 0);
    ASSERT_EQ(answerer.answered(), 1) << "one box a call";
    EXPECT_EQ(answerer.dialogs()[0].caption, L"Zelkova Kit Library");
}

TEST(Guard, ABodyThatThrowsTracesItsWordsWithoutABox) {
    zkt::TestWindow parent;
    HWND window = MakeControl(kSubclassClass, parent);
    auto *control = static_cast<zk::CGenericControl *>(zk::Window::FromHandle(window));
    ASSERT_NE(control, nullptr);
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(GetColor(control, 1), static_cast<int32_t>(GetSysColor(COLOR_WINDOWTEXT)));
    EXPECT_EQ(capture.calls(), 0u);
    zkt::DialogAnswerer answerer(IDOK);
    EXPECT_EQ(GetColor(control, 9), -1);
    EXPECT_EQ(answerer.answered(), 0);
    EXPECT_EQ(capture.lines(),
              std::vector<std::wstring>{L"ZelCalGetColor() - Unable to retrieve color for specified role."});
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

struct DialogLook {
    bool seen = false;
    bool iconSet = false;
    bool closeGreyed = false;
    std::wstring closeText;
    RECT frame{};
    RECT retryBox{};
};

DialogLook look;

void Inspect(HWND dialog) {
    look.seen = true;
    look.iconSet = SendDlgItemMessageW(dialog, 202, STM_GETICON, 0, 0) != 0;
    HMENU system = GetSystemMenu(dialog, FALSE);
    look.closeGreyed = (GetMenuState(system, SC_CLOSE, MF_BYCOMMAND) & MF_GRAYED) != 0;
    wchar_t text[64] = {};
    GetMenuStringW(system, SC_CLOSE, text, 64, MF_BYCOMMAND);
    look.closeText = text;
    GetWindowRect(dialog, &look.frame);
    GetWindowRect(GetDlgItem(dialog, 203), &look.retryBox);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT *>(&look.retryBox), 2);
}

TEST(Recovery, RetryEndsWithOneAndShowsTheDialogAsBuilt) {
    look = {};
    zkt::DialogAnswerer answerer(203);
    answerer.SetInspector(Inspect);
    EXPECT_EQ(ZelErrorRecovery(L"Zelkova Kit"), ZEL_RECOVERY_RETRY);
    ASSERT_EQ(answerer.answered(), 1);
    const zkt::AnsweredDialog &dialog = answerer.dialogs()[0];
    EXPECT_EQ(dialog.caption, L"Zelkova Kit") << "the template's title is replaced by the caption";
    EXPECT_EQ(dialog.text(101), L"An error has occurred in your application.");
    EXPECT_EQ(dialog.text(203), L"&Retry");
    EXPECT_EQ(dialog.text(204), L"&Halt Application");
    EXPECT_TRUE(dialog.HasControl(202));
    ASSERT_TRUE(look.seen);
    EXPECT_TRUE(look.iconSet);
    EXPECT_TRUE(look.closeGreyed);
    EXPECT_EQ(look.closeText, L"&Close Alt+F4");
    // Dialog units of "MS Sans Serif" 8: the Retry button starts to the
    // right of the icon column and under the message.
    EXPECT_GT(look.retryBox.left, 30);
    EXPECT_GT(look.retryBox.top, 30);
}

TEST(Recovery, HaltEndsWithTwoAndANullCaptionGivesAnEmptyTitle) {
    zkt::DialogAnswerer answerer(204);
    EXPECT_EQ(ZelErrorRecovery(nullptr), ZEL_RECOVERY_HALT);
    ASSERT_EQ(answerer.answered(), 1);
    EXPECT_EQ(answerer.dialogs()[0].caption, L"");
}

void CancelFirst(HWND dialog) {
    PostMessageW(dialog, WM_CLOSE, 0, 0);
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

TEST(Recovery, CloseAndCancelDoNotEndTheDialog) {
    // Escape and the close box are not answers: only Retry or Halt end it.
    zkt::DialogAnswerer answerer(203);
    answerer.SetInspector(CancelFirst);
    EXPECT_EQ(ZelErrorRecovery(L"Zelkova Kit"), ZEL_RECOVERY_RETRY);
    EXPECT_EQ(answerer.answered(), 1);
}

} // namespace
