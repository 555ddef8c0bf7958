// The message box, answered from a timer: the button pressed gives its
// result; the box is laid out, coloured and guarded against bad arguments.
#include <string>
#include <vector>

#include "window_support.h"

using namespace menutest;

namespace {

class MessageBoxes : public ::testing::Test {
protected:
    void TearDown() override {
        for (ZelMsgButton b : {yes, no, maybe})
            ZelMessageFreeButton(b);
        for (HostArray a : arrays)
            HostArrayDestroy(a);
    }

    // The host's array of button words; 0 leaves a place blank.
    HostArray Row(std::initializer_list<INT_PTR> words) {
        const HostArray array = HostArrayCreate(HOST_TYPE_NUMBER);
        int32_t index = 0;
        for (INT_PTR word : words) {
            HostNumber number{};
            HostNumberFromDouble(static_cast<double>(word), &number);
            HostArraySetNumber(array, &number, index++);
        }
        arrays.push_back(array);
        return array;
    }

    static RECT RectIn(HWND dialog, int id) {
        RECT r{};
        GetWindowRect(GetDlgItem(dialog, id), &r);
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT *>(&r), 2);
        return r;
    }

    ZelMsgButton yes = ZelMessageLoadButton(L"&Yes", 10);
    ZelMsgButton no = ZelMessageLoadButton(L"&No", 20);
    ZelMsgButton maybe = ZelMessageLoadButton(L"Perhaps later", 30);
    std::vector<HostArray> arrays;
};

TEST_F(MessageBoxes, ACustomButtonAnswersWithItsResult) {
    zkt::DialogAnswerer answer(std::vector<int>{4});
    EXPECT_EQ(ZelMessageBox(L"Save the changes?", L"Orders", MSGBOX_IconQuestion, Row({yes, no, maybe}), 3), 20);
    ASSERT_EQ(answer.answered(), 1);
    const zkt::AnsweredDialog &d = answer.dialogs()[0];
    EXPECT_EQ(d.caption, L"Orders");
    EXPECT_EQ(d.text(303), L"Save the changes?");
    EXPECT_EQ(d.text(3), L"&Yes");
    EXPECT_EQ(d.text(4), L"&No");
    EXPECT_EQ(d.text(5), L"Perhaps later");
}

TEST_F(MessageBoxes, TheOnlyButtonIsPressedByEsc) {
    zkt::DialogAnswerer answer(std::vector<int>{IDCANCEL});
    EXPECT_EQ(ZelMessageBox(L"Done.", L"Orders", 0, Row({maybe}), 1), 30);
    ASSERT_EQ(answer.answered(), 1);
    EXPECT_TRUE(answer.dialogs()[0].HasControl(2));
}

TEST_F(MessageBoxes, LayoutDefaultButtonColourAndMenu) {
    const COLORREF colour = RGB(255, 250, 205);
    EXPECT_EQ(ZelMessageSetBkgdColor(colour), 1);
    zkt::DialogAnswerer answer(std::vector<int>{6});
    answer.SetInspector([&](HWND dialog) {
        EXPECT_EQ(GetFocus(), GetDlgItem(dialog, 4)) << "the handle + 1 is the default button";
        const RECT a = RectIn(dialog, 3), b = RectIn(dialog, 4), d = RectIn(dialog, 6);
        EXPECT_EQ(a.top, b.top);
        EXPECT_EQ(a.top, d.top);
        EXPECT_EQ(a.right - a.left, d.right - d.left) << "one width for all";
        EXPECT_EQ(d.left - b.left, 2 * (b.left - a.left)) << "the blank place keeps its room";
        EXPECT_FALSE(GetDlgItem(dialog, 5));
        EXPECT_EQ(GetMenuState(GetSystemMenu(dialog, FALSE), SC_CLOSE, MF_BYCOMMAND), static_cast<UINT>(-1));
        HWND icon = GetDlgItem(dialog, 302);
        EXPECT_TRUE(IsWindowVisible(icon));
        EXPECT_NE(SendMessageW(icon, STM_GETICON, 0, 0), 0);
        EXPECT_LE(RectIn(dialog, 302).right, RectIn(dialog, 303).left) << "the text right of the icon";

        HDC dc = GetDC(dialog);
        const LRESULT brush =
            SendMessageW(dialog, WM_CTLCOLORDLG, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(dialog));
        EXPECT_NE(brush, 0);
        EXPECT_EQ(GetBkColor(dc), colour);
        // Buttons are left to the dialog manager: not the box's brush or colour.
        SetBkColor(dc, RGB(1, 2, 3));
        EXPECT_NE(SendMessageW(dialog, WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc),
                               reinterpret_cast<LPARAM>(GetDlgItem(dialog, 3))),
                  brush);
        EXPECT_NE(GetBkColor(dc), colour);
        ReleaseDC(dialog, dc);
    });
    EXPECT_EQ(ZelMessageBox(L"Ship the order?", L"Orders", MSGBOX_IconExclamation, Row({yes, no + 1, 0, maybe}), 4),
              30);
    EXPECT_EQ(answer.answered(), 1);
    ZelMessageSetBkgdColor(0x00FFFFFF);
}

TEST_F(MessageBoxes, LongTextsWrapWithinTheScreen) {
    std::wstring text;
    for (int i = 0; i < 60; ++i)
        text += L"word" + std::to_wstring(i) + L" ";
    zkt::DialogAnswerer answer(std::vector<int>{2});
    answer.SetInspector([&](HWND dialog) {
        const RECT t = RectIn(dialog, 303);
        EXPECT_LE(t.right - t.left, GetSystemMetrics(SM_CXFULLSCREEN) * 65 / 100);
        EXPECT_GT(t.bottom - t.top, 2 * HIWORD(GetDialogBaseUnits())) << "more than one line";
        EXPECT_FALSE(IsWindowVisible(GetDlgItem(dialog, 302))) << "no icon";
    });
    EXPECT_EQ(ZelMessageBox(text.c_str(), L"Long", 0, Row({yes}), 1), 10);
}

TEST_F(MessageBoxes, BadArgumentsShowNothing) {
    zkt::DialogAnswerer answer(IDCANCEL); // any box that came would be a failure below
    const HostArray row = Row({yes});
    EXPECT_EQ(ZelMessageBox(L"text", L"caption", 0, row, 0), 0);
    EXPECT_EQ(ZelMessageBox(nullptr, L"caption", 0, row, 1), 0);
    EXPECT_EQ(ZelMessageBox(L"text", nullptr, 0, row, 1), 0);
    EXPECT_EQ(ZelMessageBox(L"text", L"caption", 0x1234, row, 1), 0) << "no picture behind the handle";
    const ZelPicHandle bitmap = ZelPicLoad(PIC_LoadModule | PIC_FormatBitmap, L"ZKLIB.dll", L"FLDR");
    ASSERT_NE(bitmap, 0);
    EXPECT_EQ(ZelMessageBox(L"text", L"caption", bitmap, row, 1), 0) << "a bitmap is no icon";
    ZelPicFree(bitmap);
    EXPECT_EQ(answer.answered(), 0);

    EXPECT_EQ(ZelMessageLoadButton(nullptr, 1), 0);
    EXPECT_EQ(ZelMessageFreeButton(0), 0);
    const ZelMsgButton once = ZelMessageLoadButton(L"Once", 1);
    EXPECT_EQ(ZelMessageFreeButton(once), 1);
    EXPECT_EQ(ZelMessageFreeButton(once), 0);
}

TEST_F(MessageBoxes, APictureIcon) {
    const ZelPicHandle icon = ZelPicLoad(PIC_LoadModule | PIC_FormatIcon, L"ZKLIB.dll", L"ZK");
    ASSERT_NE(icon, 0);
    zkt::DialogAnswerer answer(std::vector<int>{2});
    answer.SetInspector([&](HWND dialog) {
        EXPECT_TRUE(IsWindowVisible(GetDlgItem(dialog, 302)));
        EXPECT_NE(SendMessageW(GetDlgItem(dialog, 302), STM_GETICON, 0, 0), 0);
    });
    EXPECT_EQ(ZelMessageBox(L"With a picture.", L"Icon", icon, Row({no}), 1), 20);
    ZelPicFree(icon);
}

} // namespace
