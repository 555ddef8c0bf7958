// The retry dialog 201 through the exported ZelErrorRecovery.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>

#include "zkharness.h"
#include "zklib.h"

namespace {

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
