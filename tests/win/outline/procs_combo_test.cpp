// LbxComboBoxWndProc: the edit kept in step, selection, texts, the field height.
#include "model_fixture.h"

namespace {

using namespace outlinetest;

TEST_F(ComboFixture, SetCurSelCopiesTheItemTextIntoTheEdit) {
    EXPECT_EQ(Send(combo, CB_SETCURSEL, 2), 2);
    EXPECT_EQ(EditText(), L"three");
    EXPECT_EQ(Send(combo, 1038, static_cast<WPARAM>(-1)), CB_ERR); // the old number
    EXPECT_EQ(EditText(), L"");
}

TEST_F(ComboFixture, ADisabledRowClearsTheEditAndTheSelection) {
    ZelListDisableItem(combo, 1, 0);
    EXPECT_EQ(Send(combo, CB_SETCURSEL, 1), 1);
    EXPECT_EQ(EditText(), L"");
    EXPECT_EQ(Send(combo, CB_GETCURSEL), CB_ERR);
}

TEST_F(ComboFixture, TextsAndDataThroughTheItems) {
    wchar_t text[16] = {};
    EXPECT_EQ(Send(combo, CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(text)), 3);
    EXPECT_STREQ(text, L"two");
    EXPECT_EQ(Send(combo, CB_GETLBTEXTLEN, 2), 5);
    EXPECT_EQ(Send(combo, 1041, 0, 99), 1);
    EXPECT_EQ(Send(combo, 1040, 0), 99);
    EXPECT_EQ(Send(combo, 1027, 0, reinterpret_cast<LPARAM>(L"four")), 3);
    EXPECT_EQ(Send(combo, CB_GETCOUNT), 4);
    EXPECT_EQ(Send(combo, 1031), CB_ERR);
}

TEST_F(ComboFixture, SetFontSetsTheFieldHeightAndMeasuresTheRows) {
    HFONT big = CreateFontW(-30, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma");
    const TEXTMETRICW tm = FontMetrics(combo, big);
    for (int row = 0; row < 3; ++row) {
        ItemAt(combo, row, true)->font = nullptr;
    }
    EXPECT_EQ(Send(combo, WM_SETFONT, reinterpret_cast<WPARAM>(big), 0), 1);
    // The field is set to the font's height + 2, read back as a plain combo box reads it.
    HWND plain = form.AddComboBox(kComboId + 1, {200, 10, 150, 200}, kComboStyle);
    Send(plain, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), tm.tmHeight + 2);
    EXPECT_EQ(Send(combo, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1)),
              Send(plain, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1)));
    EXPECT_GE(Send(combo, CB_GETITEMHEIGHT, 1), 30);
    DestroyWindow(combo);
    DeleteObject(big);
}

TEST_F(ComboFixture, AMousePressMakesTheFocusKnown) {
    EditParentRecord(form, [](LbxParent &p) { p.parentFlags = 0; });
    Send(combo, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    Send(combo, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_TRUE(ParentRecord(form).parentFlags & LBX_ParentFocusKnown);
    Send(combo, CB_SHOWDROPDOWN, FALSE);
}

TEST_F(ComboFixture, ItsEndFreesItemsAndBrush) {
    std::vector<ULONG_PTR> deleted;
    RecordDeletes(form, deleted);
    HBRUSH brush = static_cast<HBRUSH>(ChildRecord(combo).bkBrush);
    ASSERT_NE(brush, nullptr);
    DestroyWindow(combo);
    EXPECT_EQ(deleted, (std::vector<ULONG_PTR>{0, 0, 0}));
    LOGBRUSH info{};
    EXPECT_EQ(GetObjectW(brush, sizeof info, &info), 0); // deleted
}

} // namespace
