// The answerer of the retry dialog, against dialogs built here in the shape
// of dialog 201: it reads, photographs and answers them, and it ends a
// modal loop that it cannot answer instead of hanging.
#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

#include "retry.h"

namespace {

using gallery::RetryAnswerer;
using gallery::RetryDialogSeen;

// An in-memory dialog template: caption, one static and two buttons.
class Template {
public:
    Template() {
        DLGTEMPLATE head{};
        head.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE | DS_MODALFRAME;
        head.cdit = 3;
        head.x = 54;
        head.y = 70;
        head.cx = 226;
        head.cy = 59;
        Append(&head, sizeof(head));
        Word(0); // no menu
        Word(0); // the dialog class
        Text(L"Zelkova Kit");
        Item(0x0082, 101, L"An error has occurred in your application.", SS_LEFT, 38, 9, 180, 21);
        Item(0x0080, 203, L"&Retry", BS_DEFPUSHBUTTON | WS_TABSTOP, 38, 36, 70, 14);
        Item(0x0080, 204, L"&Halt Application", BS_PUSHBUTTON | WS_TABSTOP, 116, 36, 70, 14);
    }
    const DLGTEMPLATE *Get() const { return reinterpret_cast<const DLGTEMPLATE *>(bytes_.data()); }

private:
    void Append(const void *data, size_t size) {
        const auto *p = static_cast<const BYTE *>(data);
        bytes_.insert(bytes_.end(), p, p + size);
    }
    void Word(WORD w) { Append(&w, sizeof(w)); }
    void Text(const wchar_t *text) { Append(text, (wcslen(text) + 1) * sizeof(wchar_t)); }
    void Item(WORD atom, WORD id, const wchar_t *text, DWORD style, short x, short y, short cx, short cy) {
        while (bytes_.size() % 4)
            bytes_.push_back(0);
        DLGITEMTEMPLATE item{};
        item.style = WS_CHILD | WS_VISIBLE | style;
        item.x = x;
        item.y = y;
        item.cx = cx;
        item.cy = cy;
        item.id = id;
        Append(&item, sizeof(item));
        Word(0xFFFF);
        Word(atom);
        Text(text);
        Word(0); // no creation data
    }
    std::vector<BYTE> bytes_;
};

bool ignoreCommands = false;

INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_INITDIALOG)
        return TRUE;
    if (message == WM_COMMAND && !ignoreCommands) {
        if (LOWORD(wParam) == 203 || LOWORD(wParam) == 204) {
            EndDialog(dialog, LOWORD(wParam) == 203 ? 1 : 2);
            return TRUE;
        }
    }
    return FALSE;
}

// Takes out the WM_QUIT that a giving-up answerer leaves behind.
int DrainQuit() {
    MSG message;
    int code = -1;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT)
            code = static_cast<int>(message.wParam);
        else
            DispatchMessageW(&message);
    }
    return code;
}

TEST(GalleryRetryAnswerer, ReadsPhotographsAndAnswersRetry) {
    ignoreCommands = false;
    Template shape;
    RetryDialogSeen seen;
    INT_PTR result = 0;
    {
        RetryAnswerer answerer(0, 5000);
        ASSERT_TRUE(answerer.Armed());
        result = DialogBoxIndirectParamW(GetModuleHandleW(nullptr), shape.Get(), nullptr, DialogProc, 0);
        seen = answerer.Seen();
    }
    EXPECT_EQ(1, result);
    EXPECT_FALSE(seen.gaveUp);
    EXPECT_EQ(L"An error has occurred in your application.", seen.message);
    EXPECT_FALSE(seen.picture.Uniform());
    EXPECT_EQ(-1, DrainQuit());
}

TEST(GalleryRetryAnswerer, EndsTheModalLoopOfADialogThatIgnoresRetry) {
    ignoreCommands = true;
    Template shape;
    RetryDialogSeen seen;
    {
        RetryAnswerer answerer(0, 200);
        DialogBoxIndirectParamW(GetModuleHandleW(nullptr), shape.Get(), nullptr, DialogProc, 0);
        seen = answerer.Seen();
        EXPECT_FALSE(answerer.Armed());
    }
    ignoreCommands = false;
    EXPECT_EQ(1, seen.dialogs);
    EXPECT_TRUE(seen.gaveUp);
    EXPECT_EQ(3, DrainQuit());
}

TEST(GalleryRetryAnswerer, EndsAModalLoopThatShowsNoRetryDialog) {
    RetryDialogSeen seen;
    {
        RetryAnswerer answerer(0, 200);
        MessageBoxW(nullptr, L"not the retry dialog", L"Other", MB_OK);
        seen = answerer.Seen();
    }
    EXPECT_EQ(0, seen.dialogs);
    EXPECT_TRUE(seen.gaveUp);
    EXPECT_EQ(3, DrainQuit());
}

} // namespace
