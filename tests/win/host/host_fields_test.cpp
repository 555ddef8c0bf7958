// Field and list operations on real edits, list boxes, combo boxes and
// pictures.
#include "host_test_util.h"
#include "zkharness.h"

using namespace hosttest;

namespace {

class HostFields : public HostTest {};

void Fill(HWND window, bool combo, int count) {
    for (int i = 0; i < count; ++i) {
        std::wstring text = L"row " + std::to_wstring(i);
        SendMessageW(window, combo ? CB_ADDSTRING : LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
}

std::wstring WindowText(HWND window) {
    wchar_t text[256] = {};
    GetWindowTextW(window, text, 256);
    return text;
}

TEST_F(HostFields, NullAndClearOnEachKindOfField) {
    zkt::TestWindow form;
    HWND edit = form.AddEdit(1, {0, 0, 80, 20});
    HWND dropList = form.AddComboBox(3, {90, 0, 80, 100});
    HWND dropDown = form.AddComboBox(4, {90, 30, 80, 100}, CBS_DROPDOWN);
    HWND multi = form.AddListBox(5, {180, 0, 80, 80}, LBS_MULTIPLESEL);
    Fill(dropList, true, 3);
    Fill(dropDown, true, 3);
    Fill(multi, false, 3);
    for (HWND w : {edit, dropList, dropDown, multi})
        EXPECT_EQ(HostFieldIsNull(w), 1) << GetDlgCtrlID(w);
    SetWindowTextW(edit, L"text");
    SetWindowTextW(dropDown, L"typed");
    SendMessageW(dropList, CB_SETCURSEL, 1, 0);
    SendMessageW(multi, LB_SETSEL, TRUE, 1);
    for (HWND w : {edit, dropList, dropDown, multi}) {
        EXPECT_EQ(HostFieldIsNull(w), 0) << GetDlgCtrlID(w);
        EXPECT_EQ(HostFieldClear(w), 1);
    }
    EXPECT_EQ(WindowText(edit), L"");
    EXPECT_EQ(SendMessageW(dropList, CB_GETCOUNT, 0, 0), 0) << "a drop-down list loses its rows";
    EXPECT_EQ(WindowText(dropDown), L"");
    EXPECT_EQ(SendMessageW(dropDown, CB_GETCOUNT, 0, 0), 3) << "a drop-down keeps its rows";
    EXPECT_EQ(SendMessageW(multi, LB_GETCOUNT, 0, 0), 0);
    EXPECT_EQ(HostFieldClear(nullptr), 0);
}

TEST_F(HostFields, EditFlagOnEditsAndOtherFields) {
    zkt::TestWindow form;
    HWND edit = form.AddEdit(1, {0, 0, 80, 20});
    HWND combo = form.AddComboBox(2, {90, 0, 80, 100}, CBS_DROPDOWN);
    EXPECT_EQ(HostFieldSetEditFlag(edit, 1), 1);
    EXPECT_TRUE(SendMessageW(edit, EM_GETMODIFY, 0, 0));
    EXPECT_EQ(HostFieldSetEditFlag(edit, 0), 1);
    EXPECT_FALSE(SendMessageW(edit, EM_GETMODIFY, 0, 0));
    EXPECT_EQ(HostFieldSetEditFlag(combo, 1), 1);
    EXPECT_NE(GetPropW(combo, L"ZkHost:Edited"), nullptr);
    EXPECT_EQ(HostFieldSetEditFlag(combo, 0), 1);
    EXPECT_EQ(GetPropW(combo, L"ZkHost:Edited"), nullptr);
    EXPECT_EQ(HostFieldSetEditFlag(nullptr, 1), 0);
}

TEST_F(HostFields, PictureClearDropsTheImageOrTheText) {
    zkt::TestWindow form;
    HWND picture = form.AddChild(L"Static", 1, {0, 0, 32, 32}, SS_BITMAP);
    HWND label = form.AddChild(L"Static", 3, {80, 0, 80, 20}, SS_LEFT, L"caption");
    HBITMAP bitmap = CreateBitmap(8, 8, 1, 1, nullptr);
    SendMessageW(picture, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap));
    ASSERT_NE(SendMessageW(picture, STM_GETIMAGE, IMAGE_BITMAP, 0), 0);
    EXPECT_EQ(HostPictureClear(picture), 1);
    EXPECT_EQ(SendMessageW(picture, STM_GETIMAGE, IMAGE_BITMAP, 0), 0);
    EXPECT_EQ(HostPictureClear(label), 1);
    EXPECT_EQ(WindowText(label), L"");
    EXPECT_EQ(HostPictureClear(nullptr), 0);
    DeleteObject(bitmap);
}

TEST_F(HostFields, SingleSelectionListsAndComboBoxes) {
    zkt::TestWindow form;
    HWND list = form.AddListBox(1, {0, 0, 80, 80});
    HWND combo = form.AddComboBox(2, {90, 0, 80, 100});
    Fill(list, false, 4);
    Fill(combo, true, 4);
    for (HWND w : {list, combo}) {
        EXPECT_EQ(HostListGetSelection(w), -1);
        EXPECT_EQ(HostListSetSelection(w, 2), 1);
        EXPECT_EQ(HostListIsSelected(w, 2), 1);
        EXPECT_EQ(HostListIsSelected(w, 1), 0);
        EXPECT_EQ(HostListSetSelection(w, 4), 0) << "past the last row";
        EXPECT_EQ(HostListGetSelection(w), 2);
        EXPECT_EQ(HostListSetMultiSelection(w, 3, 0), 1) << "not the selected row: nothing changes";
        EXPECT_EQ(HostListGetSelection(w), 2);
        EXPECT_EQ(HostListSetMultiSelection(w, 2, 0), 1);
        EXPECT_EQ(HostListGetSelection(w), -1);
        EXPECT_EQ(HostListDelete(w, 0), 1);
        EXPECT_EQ(HostListDelete(w, 7), 0);
        EXPECT_EQ(HostListCount(w), 3);
        EXPECT_EQ(HostListClear(w), 1);
        EXPECT_EQ(HostListCount(w), 0);
    }
}

TEST_F(HostFields, MultipleSelectionLists) {
    zkt::TestWindow form;
    for (DWORD style : {DWORD(LBS_MULTIPLESEL), DWORD(LBS_EXTENDEDSEL)}) {
        HWND list = form.AddListBox(1, {0, 0, 80, 80}, style);
        Fill(list, false, 5);
        EXPECT_EQ(HostListSetMultiSelection(list, 3, 1), 1);
        EXPECT_EQ(HostListSetMultiSelection(list, 1, 1), 1);
        EXPECT_EQ(HostListIsSelected(list, 3), 1);
        EXPECT_EQ(HostListGetSelection(list), 1) << "the first selected row";
        EXPECT_EQ(HostListSetSelection(list, 4), 1);
        EXPECT_EQ(SendMessageW(list, LB_GETSELCOUNT, 0, 0), 1) << "only the row set";
        EXPECT_EQ(HostListSetSelection(list, -1), 1);
        EXPECT_EQ(HostListGetSelection(list), -1);
        EXPECT_EQ(HostListSetMultiSelection(list, 5, 1), 0);
        DestroyWindow(list);
    }
}

TEST_F(HostFields, ACustomListIsReachedThroughTheListItAnswers) {
    zkt::TestWindow form;
    HWND list = form.AddListBox(1, {0, 0, 80, 80});
    Fill(list, false, 3);
    // The test window itself plays the wrapper: it answers the list.
    form.OnMessage([&](HWND, UINT message, WPARAM, LPARAM, LRESULT &result) {
        if (message != HostMsgGetListWindow)
            return false;
        result = reinterpret_cast<LRESULT>(list);
        return true;
    });
    EXPECT_EQ(HostListCount(form), 0) << "not marked as a custom list";
    ZkHostSetWinType(form, HOST_WT_CUSTOMLIST, 0);
    EXPECT_EQ(HostListCount(form), 3);
    EXPECT_EQ(HostListSetSelection(form, 2), 1);
    EXPECT_EQ(SendMessageW(list, LB_GETCURSEL, 0, 0), 2);
    ZkHostSetWinType(form, 0, 0);
}

} // namespace
