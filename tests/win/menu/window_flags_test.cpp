// Field flags on a real form: required fields and the default button
// following what is typed and selected, the form-wide clears, read-only
// fields and path fields.
#include <algorithm>
#include <iterator>

#include "window_support.h"

using namespace menutest;

namespace {

// A form of three required fields, a drop-down list among them, and a
// default button that waits for them.
class RequiredForm : public ::testing::Test {
protected:
    void SetUp() override {
        Fill(list, LB_ADDSTRING, {L"one", L"two"});
        Fill(combo, CB_ADDSTRING, {L"red", L"green"});
        for (HWND field : {edit, list, combo})
            ASSERT_EQ(ZelWinSetFlags(field, WF_Required, 1), 1);
        ASSERT_EQ(ZelWinSetFlags(ok, WF_RequiredButton, 1), 1);
    }
    // Types into the edit, clicks the list's first row and selects the
    // combo's by its key, the way a user does on a closed drop-down list.
    void FillAll() {
        Type(edit, L"a"); // EN_CHANGE
        Click(list);      // LBN_SELCHANGE
        SetFocus(combo);
        SendMessageW(combo, WM_KEYDOWN, VK_DOWN, 0); // CBN_SELCHANGE
    }

    zkt::TestWindow form{320, 200, L"required fields"};
    HWND edit = form.AddEdit(1, {10, 10, 150, 22});
    HWND list = form.AddListBox(2, {10, 40, 150, 60});
    HWND combo = form.AddComboBox(3, {10, 110, 150, 120});
    HWND ok = form.AddButton(IDOK, {200, 10, 80, 24}, L"OK");
};

TEST_F(RequiredForm, TheDefaultButtonFollowsTheChangeNotifications) {
    EXPECT_TRUE(IsWindowEnabled(ok)) << "nothing has been decided before a field changes";
    EXPECT_EQ(ZelWinIsRequiredFieldNull(form), FirstInZOrder(form, {edit, list, combo}));

    Type(edit, L"a"); // EN_CHANGE
    EXPECT_FALSE(IsWindowEnabled(ok));
    EXPECT_EQ(ZelWinIsRequiredFieldNull(form), FirstInZOrder(form, {list, combo}));

    Click(list); // LBN_SELCHANGE
    EXPECT_EQ(SendMessageW(list, LB_GETCURSEL, 0, 0), 0);
    EXPECT_FALSE(IsWindowEnabled(ok));
    EXPECT_EQ(ZelWinIsRequiredFieldNull(form), combo);

    // Selecting by its key, the way a user does on a closed drop-down list.
    SetFocus(combo);
    SendMessageW(combo, WM_KEYDOWN, VK_DOWN, 0); // CBN_SELCHANGE
    ASSERT_NE(SendMessageW(combo, CB_GETCURSEL, 0, 0), CB_ERR);
    EXPECT_TRUE(IsWindowEnabled(ok));
    EXPECT_EQ(ZelWinIsRequiredFieldNull(form), nullptr);

    SendMessageW(edit, EM_SETSEL, 0, -1);
    SendMessageW(edit, WM_CHAR, VK_BACK, 1);
    EXPECT_FALSE(IsWindowEnabled(ok)) << "emptied again";
    EXPECT_EQ(ZelWinIsRequiredFieldNull(form), edit);
}

TEST_F(RequiredForm, AnEditableComboIsFilledByItsText) {
    HWND typed = form.AddComboBox(4, {170, 110, 120, 120}, CBS_DROPDOWN);
    ASSERT_EQ(ZelWinSetFlags(typed, WF_Required, 1), 1);
    FillAll();
    EXPECT_FALSE(IsWindowEnabled(ok));
    COMBOBOXINFO info{sizeof info};
    ASSERT_TRUE(GetComboBoxInfo(typed, &info));
    Type(info.hwndItem, L"x"); // CBN_EDITCHANGE, no selection
    EXPECT_TRUE(IsWindowEnabled(ok));
}

TEST_F(RequiredForm, FramesAreSearchedAndTheirButtonsFollow) {
    // A frame of the host: its children belong to the form.
    HWND frame = form.AddChild(L"Static", 5, {170, 50, 140, 100}, 0);
    ZkHostSetWinType(frame, HOST_WT_FRAME, HOST_WC_CONTAINER);
    HWND inner = CreateWindowExW(0, L"Edit", L"", WS_CHILD | WS_VISIBLE, 5, 5, 100, 22, frame, nullptr,
                                 GetModuleHandleW(nullptr), nullptr);
    HWND innerButton = CreateWindowExW(0, L"Button", L"Go", WS_CHILD | WS_VISIBLE, 5, 40, 60, 24, frame, nullptr,
                                       GetModuleHandleW(nullptr), nullptr);
    ASSERT_EQ(ZelWinSetFlags(inner, WF_Required, 1), 1);
    ASSERT_EQ(ZelWinSetFlags(innerButton, WF_RequiredButton, 1), 1);
    FillAll();
    EXPECT_EQ(ZelWinIsRequiredFieldNull(form), inner);
    EXPECT_FALSE(IsWindowEnabled(ok)) << "the frame's field is null";
    EXPECT_FALSE(IsWindowEnabled(innerButton));

    SetWindowTextW(inner, L"filled");
    Type(edit, L"b"); // a change on the form decides again
    EXPECT_TRUE(IsWindowEnabled(ok));
    EXPECT_TRUE(IsWindowEnabled(innerButton));
}

TEST(WindowFlags, FlagsAreKeptPerField) {
    zkt::TestWindow form;
    HWND edit = form.AddEdit(1, {10, 10, 100, 22});
    EXPECT_EQ(ZelWinGetFlags(edit), 0) << "no flags yet";
    EXPECT_EQ(ZelWinSetFlags(edit, WF_Required, 1), 1);
    EXPECT_EQ(ZelWinGetFlags(edit), WF_Required);
    EXPECT_EQ(ZelWinSetFlags(edit, WF_ShortenPath | WF_NoClear, 1), 1);
    EXPECT_EQ(ZelWinSetFlags(edit, WF_Required, 0), 1);
    EXPECT_EQ(ZelWinGetFlags(edit), WF_ShortenPath | WF_NoClear);
    EXPECT_EQ(GetPropW(edit, L"ZK:WinFlags") != nullptr, true);

    EXPECT_EQ(ZelWinSetFlags(nullptr, WF_Required, 1), 0);
    EXPECT_EQ(ZelWinGetFlags(nullptr), 0);
    DestroyWindow(edit);
    EXPECT_EQ(ZelWinGetFlags(edit), 0) << "the block went with the window";
    EXPECT_EQ(ZelWinSetFlags(edit, WF_Required, 1), 0);
}

TEST(WindowFlags, ClearAllFieldsByType) {
    zkt::TestWindow form(400, 300);
    HWND edit = form.AddEdit(1, {10, 10, 100, 22}, ES_AUTOHSCROLL, L"text");
    HWND memo = form.AddEdit(2, {10, 40, 100, 40}, ES_MULTILINE, L"lines");
    HWND kept = form.AddEdit(3, {10, 90, 100, 22}, ES_AUTOHSCROLL, L"kept");
    HWND list = form.AddListBox(4, {120, 10, 100, 60});
    HWND combo = form.AddComboBox(5, {120, 80, 100, 100}, CBS_DROPDOWN);
    HWND check = form.AddButton(6, {230, 10, 100, 20}, L"check", BS_AUTOCHECKBOX);
    HWND radio = form.AddButton(7, {230, 40, 100, 20}, L"radio", BS_AUTORADIOBUTTON);
    HWND picture = form.AddChild(L"Static", 8, {230, 70, 100, 20}, 0, L"picture");
    HWND button = form.AddButton(9, {230, 100, 100, 24}, L"button");
    ZkHostSetWinType(picture, HOST_WT_PICTURE, 0);
    Fill(list, LB_ADDSTRING, {L"a", L"b"});
    Fill(combo, CB_ADDSTRING, {L"a", L"b"});
    SendMessageW(combo, CB_SETCURSEL, 1, 0);
    SendMessageW(check, BM_SETCHECK, BST_CHECKED, 0);
    SendMessageW(radio, BM_SETCHECK, BST_CHECKED, 0);
    ASSERT_EQ(ZelWinSetFlags(kept, WF_NoClear, 1), 1);

    EXPECT_EQ(ZelWinClearAllFields(form), 7);
    EXPECT_EQ(TextOf(edit), L"");
    EXPECT_EQ(TextOf(memo), L"");
    EXPECT_EQ(TextOf(kept), L"kept");
    EXPECT_EQ(SendMessageW(list, LB_GETCOUNT, 0, 0), 0);
    EXPECT_EQ(SendMessageW(combo, CB_GETCOUNT, 0, 0), 0);
    EXPECT_EQ(TextOf(combo), L"");
    EXPECT_EQ(SendMessageW(check, BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_EQ(SendMessageW(radio, BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_EQ(TextOf(picture), L"");
    EXPECT_EQ(TextOf(button), L"button");

    EXPECT_EQ(ZelWinClearAllFields(nullptr), ZEL_INVALID_PARAMETER);
    EXPECT_EQ(ZelWinClearAllEditFlags(nullptr), ZEL_INVALID_PARAMETER);
}

TEST(WindowFlags, EditFlagsAreClearedUnlessTheFormSaysNo) {
    zkt::TestWindow form;
    HWND edits[] = {form.AddEdit(1, {10, 10, 100, 22}), form.AddEdit(2, {10, 40, 100, 40}, ES_MULTILINE)};
    HWND list = form.AddListBox(3, {120, 10, 100, 60});
    const auto modified = [&] {
        for (HWND e : edits)
            SendMessageW(e, EM_SETMODIFY, TRUE, 0);
    };
    modified();
    EXPECT_EQ(ZelWinClearAllEditFlags(form), 2) << "data fields only";
    for (HWND e : edits)
        EXPECT_EQ(SendMessageW(e, EM_GETMODIFY, 0, 0), FALSE);

    // The fields' own flags do not count; the form's does, for all of them.
    modified();
    ASSERT_EQ(ZelWinSetFlags(edits[0], WF_NoClearEdit, 1), 1);
    EXPECT_EQ(ZelWinClearAllEditFlags(form), 2);
    modified();
    ASSERT_EQ(ZelWinSetFlags(form, WF_NoClearEdit, 1), 1);
    EXPECT_EQ(ZelWinClearAllEditFlags(form), 0);
    EXPECT_EQ(SendMessageW(edits[1], EM_GETMODIFY, 0, 0), TRUE);
    (void)list;
}

TEST(WindowFlags, ReadOnlyFields) {
    zkt::TestWindow form;
    HWND check = form.AddButton(1, {10, 10, 100, 20}, L"check", BS_AUTOCHECKBOX | WS_TABSTOP);
    HWND edit = form.AddEdit(2, {10, 40, 100, 22}, WS_TABSTOP, L"some text");

    ASSERT_EQ(ZelWinSetFlags(check, WF_ReadOnly, 1), 1);
    EXPECT_EQ(GetWindowLongW(check, GWL_STYLE) & WS_TABSTOP, 0);
    EXPECT_FALSE(IsWindowEnabled(check));
    EXPECT_EQ(GetPropW(check, L"ES_READONLY"), reinterpret_cast<HANDLE>(1));
    EXPECT_EQ(Click(check), 1) << "the click is eaten";
    EXPECT_EQ(SendMessageW(check, BM_GETCHECK, 0, 0), BST_UNCHECKED);

    ASSERT_EQ(ZelWinSetFlags(edit, WF_ReadOnly, 1), 1);
    EXPECT_NE(GetWindowLongW(edit, GWL_STYLE) & ES_READONLY, 0);
    EXPECT_EQ(GetWindowLongW(edit, GWL_STYLE) & WS_TABSTOP, 0);
    EXPECT_EQ(Click(edit), 0) << "a data field keeps its clicks, to select its text";

    ASSERT_EQ(ZelWinSetFlags(check, WF_ReadOnly, 0), 1);
    EXPECT_NE(GetWindowLongW(check, GWL_STYLE) & WS_TABSTOP, 0);
    EXPECT_TRUE(IsWindowEnabled(check));
    EXPECT_EQ(GetPropW(check, L"ES_READONLY"), nullptr);
    ASSERT_EQ(ZelWinSetFlags(edit, WF_ReadOnly, 0), 1);
    EXPECT_EQ(GetWindowLongW(edit, GWL_STYLE) & ES_READONLY, 0);
}

TEST(WindowFlags, PathsAreShortenedToTheFieldsWidth) {
    zkt::TestWindow form;
    HWND edit = form.AddEdit(1, {10, 10, 160, 22});
    ASSERT_EQ(ZelWinSetFlags(edit, WF_ShortenPath, 1), 1);
    static const wchar_t kPath[] = L"C:\\Program Files\\Zelkova Kit\\Examples\\Forms\\Orders\\orders.frm";
    wchar_t given[std::size(kPath)];
    std::copy(std::begin(kPath), std::end(kPath), given);
    SetWindowTextW(edit, given);
    const std::wstring shown = TextOf(edit);
    EXPECT_EQ(shown.substr(0, 3), L"C:\\");
    EXPECT_NE(shown.find(L"..."), std::wstring::npos) << "shown: " << std::string(shown.begin(), shown.end());
    EXPECT_EQ(shown.substr(shown.size() - 11), L"\\orders.frm");
    EXPECT_EQ(std::wstring(given), kPath) << "the caller's text is left as it was";
    {
        HDC dc = GetDC(edit);
        HGDIOBJ old = SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(edit, WM_GETFONT, 0, 0)));
        SIZE size{};
        GetTextExtentPoint32W(dc, shown.c_str(), static_cast<int>(shown.size()), &size);
        SelectObject(dc, old);
        ReleaseDC(edit, dc);
        RECT client{};
        GetClientRect(edit, &client);
        EXPECT_LE(size.cx, client.right);
    }
    SetWindowTextW(edit, L"C:\\short\\");
    EXPECT_EQ(TextOf(edit), L"C:\\short") << "a final backslash is dropped";
}

} // namespace
