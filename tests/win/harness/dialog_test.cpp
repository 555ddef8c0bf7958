// Answering modal dialogs and message boxes on the test's own thread.
#include "zkharness.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr int kMessage = 101;
constexpr int kRetry = 203;
constexpr int kHalt = 204;

// An in-memory dialog shaped like the retry dialog: a message and buttons.
class DialogTemplate {
public:
    explicit DialogTemplate(const wchar_t *caption) {
        words_.resize(sizeof(DLGTEMPLATE) / 2);
        auto *head = reinterpret_cast<DLGTEMPLATE *>(words_.data());
        head->style = DS_MODALFRAME | DS_SETFONT | WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE;
        head->cx = 226;
        head->cy = 59;
        words_.push_back(0); // no menu
        words_.push_back(0); // standard class
        text(caption);
        words_.push_back(8);
        text(L"MS Sans Serif");
        item(kMessage, 0x0082, SS_LEFT, L"Something went wrong.", 38, 9, 180, 21);
        item(kRetry, 0x0080, BS_DEFPUSHBUTTON | WS_TABSTOP, L"&Retry", 38, 36, 40, 14);
        item(kHalt, 0x0080, BS_PUSHBUTTON | WS_TABSTOP, L"&Halt", 80, 36, 40, 14);
    }

    const DLGTEMPLATE *get() const { return reinterpret_cast<const DLGTEMPLATE *>(words_.data()); }

private:
    void text(const wchar_t *s) {
        do {
            words_.push_back(static_cast<WORD>(*s));
        } while (*s++);
    }

    void item(int id, WORD atom, DWORD style, const wchar_t *title, short x, short y, short cx, short cy) {
        if (words_.size() % 2) {
            words_.push_back(0); // items start on a DWORD boundary
        }
        const size_t at = words_.size();
        words_.resize(at + sizeof(DLGITEMTEMPLATE) / 2);
        auto *entry = reinterpret_cast<DLGITEMTEMPLATE *>(&words_[at]);
        entry->style = WS_CHILD | WS_VISIBLE | style;
        entry->x = x;
        entry->y = y;
        entry->cx = cx;
        entry->cy = cy;
        entry->id = static_cast<WORD>(id);
        words_.push_back(0xFFFF);
        words_.push_back(atom);
        text(title);
        words_.push_back(0); // no creation data
        reinterpret_cast<DLGTEMPLATE *>(words_.data())->cdit++;
    }

    std::vector<WORD> words_;
};

INT_PTR CALLBACK TestDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_INITDIALOG) {
        return TRUE;
    }
    if (message == WM_COMMAND) {
        switch (LOWORD(wParam)) {
        case kRetry:
            EndDialog(dialog, 1);
            return TRUE;
        case kHalt:
            EndDialog(dialog, 2);
            return TRUE;
        }
    }
    return FALSE;
}

INT_PTR ShowDialog(const wchar_t *caption, HWND owner = nullptr) {
    DialogTemplate tmpl(caption);
    return DialogBoxIndirectParamW(GetModuleHandleW(nullptr), tmpl.get(), owner, TestDialogProc, 0);
}

TEST(DialogAnswerer, AnswersAModalDialogAndRemembersWhatItShowed) {
    zkt::TestWindow owner;
    zkt::DialogAnswerer answerer(kHalt);
    EXPECT_EQ(2, ShowDialog(L"First", owner));
    ASSERT_EQ(1, answerer.answered());
    const zkt::AnsweredDialog &seen = answerer.dialogs()[0];
    EXPECT_EQ(L"First", seen.caption);
    EXPECT_EQ(kHalt, seen.button);
    EXPECT_EQ(L"Something went wrong.", seen.text(kMessage));
    EXPECT_EQ((std::vector<std::wstring>{L"Something went wrong."}), seen.StaticTexts());
    EXPECT_TRUE(seen.HasControl(kRetry));
    EXPECT_FALSE(seen.HasControl(999));
    EXPECT_TRUE(answerer.failures().empty());
    EXPECT_TRUE(IsWindowEnabled(owner)); // the owner is given back
}

TEST(DialogAnswerer, AnswersMessageBoxes) {
    zkt::DialogAnswerer answerer({IDOK, IDNO});
    EXPECT_EQ(IDOK, MessageBoxW(nullptr, L"Hello there", L"Box", MB_OK));
    EXPECT_EQ(IDNO, MessageBoxW(nullptr, L"Sure?", L"Question", MB_YESNO | MB_ICONQUESTION));
    ASSERT_EQ(2, answerer.answered());
    EXPECT_EQ(L"Box", answerer.dialogs()[0].caption);
    const auto texts = answerer.dialogs()[0].StaticTexts();
    EXPECT_NE(texts.end(), std::find(texts.begin(), texts.end(), L"Hello there"));
}

// Code that asks again and again, as a retry loop does, until cancelled.
void AskUntilCancelled(int &shown) {
    zkt::DialogAnswerer answerer(kRetry);
    answerer.SetMaxRepeats(3);
    for (shown = 1; shown < 20 && ShowDialog(L"loop") != IDCANCEL; ++shown) {
    }
}

TEST(DialogAnswerer, GivesUpOnARetryLoop) {
    int shown = 0;
    EXPECT_NONFATAL_FAILURE(AskUntilCancelled(shown), "dialog \"loop\" came after the 3 expected");
    EXPECT_EQ(4, shown);
}

} // namespace
