// Window types of real windows, marks set by tests, the child walk, and the
// plain window operations with form units; field and list operations on
// real edits, list boxes, combo boxes and pictures.
#include <cmath>
#include <vector>

#include "host_test_util.h"
#include "zkharness.h"

using namespace hosttest;

namespace {

class HostWindows : public HostTest {};

INT_PTR CALLBACK QuietDialog(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

// A dialog of class #32770 from an in-memory template.
HWND MakeDialog(HWND parent, DWORD style) {
    struct alignas(4) Template {
        DLGTEMPLATE dialog;
        WORD menu, windowClass, title;
    } t{};
    t.dialog.style = style;
    t.dialog.cx = 80;
    t.dialog.cy = 40;
    return CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &t.dialog, parent, QuietDialog, 0);
}

std::vector<HWND> Walk(HWND form, uint32_t mask) {
    std::vector<HWND> found;
    for (HWND w = HostWinFirstChild(form, mask); w && found.size() < 100; w = HostWinNextChild(w, mask))
        found.push_back(w);
    return found;
}

// The children of form in Z order, whatever their type.
std::vector<HWND> ZOrder(HWND form) {
    std::vector<HWND> all;
    for (HWND w = GetWindow(form, GW_CHILD); w; w = GetWindow(w, GW_HWNDNEXT))
        all.push_back(w);
    return all;
}

std::vector<HWND> InZOrder(HWND form, std::vector<HWND> wanted) {
    std::vector<HWND> out;
    for (HWND w : ZOrder(form))
        for (HWND x : wanted)
            if (w == x)
                out.push_back(w);
    return out;
}

HostNumber Units(HWND window, int pixels, int axis) {
    HostNumber n{};
    HostPixelsToFormUnits(&n, window, pixels, axis);
    return n;
}

RECT RectInParent(HWND child) {
    RECT r{};
    GetWindowRect(child, &r);
    MapWindowPoints(nullptr, GetParent(child), reinterpret_cast<POINT *>(&r), 2);
    return r;
}

TEST_F(HostWindows, RealWindowsAreClassifiedByClassAndStyle) {
    zkt::TestWindow form;
    struct Case {
        HWND window;
        uint32_t type;
    } cases[] = {
        {form.hwnd(), HOST_WT_FORM},
        {form.AddListBox(1, {0, 0, 80, 60}), HOST_WT_LISTBOX},
        {form.AddComboBox(2, {0, 70, 80, 100}), HOST_WT_COMBOBOX},
        {form.AddEdit(4, {90, 0, 80, 20}), HOST_WT_DATAFIELD},
        {form.AddEdit(5, {90, 30, 80, 40}, ES_MULTILINE | WS_BORDER), HOST_WT_MULTILINE},
        {form.AddButton(6, {180, 0, 80, 20}, L"check", BS_AUTOCHECKBOX), HOST_WT_CHECKBOX},
        {form.AddButton(8, {180, 40, 80, 20}, L"radio", BS_AUTORADIOBUTTON), HOST_WT_RADIOBUTTON},
        {form.AddButton(10, {180, 80, 80, 20}, L"push"), 0},
        {form.AddChild(L"Static", 11, {180, 100, 80, 20}, SS_LEFT, L"label"), 0},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(HostWinType(c.window), c.type) << GetDlgCtrlID(c.window);
        EXPECT_EQ(HostWinClass(c.window), 0u);
    }

    HWND dialog = MakeDialog(nullptr, WS_POPUP | WS_CAPTION);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(HostWinType(dialog), HOST_WT_DIALOG);
    HWND inner = MakeDialog(form, WS_CHILD | DS_CONTROL);
    ASSERT_NE(inner, nullptr);
    EXPECT_EQ(HostWinType(inner), 0u) << "a dialog inside a form is no top-level dialog";
    DestroyWindow(inner);
    DestroyWindow(dialog);
    EXPECT_EQ(HostWinType(dialog), 0u);
    EXPECT_EQ(HostWinType(nullptr), 0u);
}

TEST_F(HostWindows, MarksOverrideTheClassificationUntilForgotten) {
    zkt::TestWindow form;
    HWND edit = form.AddEdit(1, {0, 0, 80, 20});
    ZkHostSetWinType(edit, HOST_WT_FRAMECHILD, HOST_WC_FRAMECHILD);
    EXPECT_EQ(HostWinType(edit), HOST_WT_FRAMECHILD);
    EXPECT_EQ(HostWinClass(edit), HOST_WC_FRAMECHILD);
    ZkHostSetWinType(edit, 0, 123);
    EXPECT_EQ(HostWinType(edit), HOST_WT_DATAFIELD);
    EXPECT_EQ(HostWinClass(edit), 0u);

    HWND gone = form.AddEdit(2, {0, 30, 80, 20});
    ZkHostSetWinType(gone, HOST_WT_PICTURE, 7);
    DestroyWindow(gone);
    EXPECT_EQ(HostWinType(gone), 0u);
    EXPECT_EQ(HostWinClass(gone), 0u);
}

TEST_F(HostWindows, NamesAreWhatTheApplicationCalledTheWindow) {
    zkt::TestWindow form;
    HWND edit = form.AddEdit(1, {0, 0, 80, 20});
    HostStr name = ZkHostStrMake(L"previous");
    HostStr previous = name;
    ZkHostSetWinName(edit, L"dfCustomer");
    ZkHostSetWinType(edit, HOST_WT_DATAFIELD, 0);
    ZkHostSetWinType(edit, 0, 0); // forgetting the type keeps the name
    EXPECT_EQ(HostWinGetName(edit, &name), 1);
    EXPECT_EQ(Text(name), L"dfCustomer");
    EXPECT_EQ(ZkHostStrRefs(previous), 0);
    EXPECT_EQ(HostWinGetName(nullptr, &name), 0);
    EXPECT_EQ(Text(name), L"");
    EXPECT_EQ(HostWinGetName(edit, nullptr), 0);
    ZkHostStrRelease(name);
}

TEST_F(HostWindows, TheChildWalkFiltersDirectChildrenByTypeInZOrder) {
    zkt::TestWindow form;
    HWND list = form.AddListBox(1, {0, 0, 80, 60});
    HWND edit = form.AddEdit(2, {90, 0, 80, 20});
    HWND label = form.AddChild(L"Static", 3, {90, 30, 80, 20}, SS_LEFT, L"label");
    HWND memo = form.AddEdit(4, {90, 60, 80, 40}, ES_MULTILINE);
    HWND check = form.AddButton(5, {180, 0, 80, 20}, L"check", BS_AUTOCHECKBOX);
    HWND group = form.AddChild(L"Static", 6, {180, 30, 100, 100}, SS_LEFT);
    HWND nested = CreateWindowExW(0, L"Edit", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, group, nullptr,
                                  GetModuleHandleW(nullptr), nullptr);
    ASSERT_NE(nested, nullptr);

    EXPECT_EQ(Walk(form, HOST_WT_DATAFIELD | HOST_WT_MULTILINE), InZOrder(form, {edit, memo}));
    EXPECT_EQ(Walk(form, HOST_WT_CHECKBOX), InZOrder(form, {check}));
    EXPECT_EQ(Walk(form, 0x7FFFFFFF), ZOrder(form)) << "the all-types mask takes untyped children too";

    ZkHostSetWinType(label, HOST_WT_LISTBOX, 0);
    EXPECT_EQ(Walk(form, HOST_WT_LISTBOX), InZOrder(form, {list, label}));
    EXPECT_EQ(Walk(group, HOST_WT_DATAFIELD), std::vector<HWND>{nested});
    EXPECT_EQ(HostWinFirstChild(nullptr, 0x7FFFFFFF), nullptr);
    EXPECT_EQ(HostWinNextChild(form, 0x7FFFFFFF), nullptr) << "a form is no child";
}

TEST_F(HostWindows, ControlsByIdAreFoundAmongDirectChildrenFirstThenDeeper) {
    zkt::TestWindow form;
    HWND group = form.AddChild(L"Static", 6, {0, 0, 100, 100}, SS_LEFT);
    HWND nested = CreateWindowExW(0, L"Edit", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, group,
                                  reinterpret_cast<HMENU>(7), GetModuleHandleW(nullptr), nullptr);
    HWND shadow = CreateWindowExW(0, L"Edit", L"", WS_CHILD | WS_VISIBLE, 0, 30, 50, 20, group,
                                  reinterpret_cast<HMENU>(6), GetModuleHandleW(nullptr), nullptr);
    ASSERT_NE(nested, nullptr);
    ASSERT_NE(shadow, nullptr);
    EXPECT_EQ(OrlGetDlgItemEx(form, 7), nested) << "a grandchild of another owner";
    EXPECT_EQ(OrlGetDlgItemEx(form, 6), group) << "the direct child before a deeper one";
    EXPECT_EQ(OrlGetDlgItemEx(form, 99), nullptr);
    EXPECT_EQ(OrlGetDlgItemEx(nullptr, 6), nullptr);
}

TEST_F(HostWindows, CentringOnTheParentOrTheWorkArea) {
    zkt::TestWindow form(320, 240);
    HWND child = form.AddChild(L"Static", 1, {0, 0, 100, 50}, SS_LEFT);
    ASSERT_EQ(HostWinCenter(child), 1);
    RECT r = RectInParent(child);
    EXPECT_EQ(r.left, 110);
    EXPECT_EQ(r.top, 95);

    HWND lone = CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 60, 40, nullptr, nullptr, GetModuleHandleW(nullptr),
                                nullptr);
    ASSERT_EQ(HostWinCenter(lone), 1);
    MONITORINFO info{};
    RECT frame{};
    info.cbSize = sizeof info;
    GetMonitorInfoW(MonitorFromWindow(lone, MONITOR_DEFAULTTONEAREST), &info);
    GetWindowRect(lone, &frame);
    EXPECT_EQ(frame.left, info.rcWork.left + (info.rcWork.right - info.rcWork.left - 60) / 2);
    EXPECT_EQ(frame.top, info.rcWork.top + (info.rcWork.bottom - info.rcWork.top - 40) / 2);
    DestroyWindow(lone);
    EXPECT_EQ(HostWinCenter(lone), 0);
}

TEST_F(HostWindows, RedrawOffStopsPaintingAndOnInvalidates) {
    zkt::TestWindow form;
    zkt::PumpMessages();
    ASSERT_EQ(HostWinSetRedraw(form, 0), 1);
    EXPECT_FALSE(IsWindowVisible(form)) << "WM_SETREDRAW FALSE hides the window from painting";
    ValidateRect(form, nullptr);
    ASSERT_EQ(HostWinSetRedraw(form, 1), 1);
    EXPECT_TRUE(IsWindowVisible(form));
    RECT update{};
    EXPECT_TRUE(GetUpdateRect(form, &update, FALSE)) << "turning painting on invalidates";
    EXPECT_EQ(HostWinSetRedraw(nullptr, 1), 0);
}

TEST_F(HostWindows, LocationAndSizeInFormUnitsComeBackToThePixel) {
    zkt::TestWindow form(400, 300);
    HWND child = form.AddChild(L"Static", 1, {0, 0, 10, 10}, SS_LEFT);
    for (int px = 0; px < 400; px += 37) {
        int py = 299 - px * 3 / 4;
        ASSERT_EQ(HostWinSetLocation(child, Units(form, px, 0), Units(form, py, 1)), 1);
        ASSERT_EQ(HostWinSetSize(child, Units(form, px + 1, 0), Units(form, py + 2, 1)), 1);
        RECT r = RectInParent(child);
        EXPECT_EQ(r.left, px);
        EXPECT_EQ(r.top, py);
        EXPECT_EQ(r.right - r.left, px + 1);
        EXPECT_EQ(r.bottom - r.top, py + 2);
    }
    HDC screen = GetDC(nullptr);
    int dpiX = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    double inches = 0;
    HostNumber n = Units(form, dpiX * 3, 0);
    HostNumberToDouble(&n, &inches);
    EXPECT_EQ(inches, 3.0) << "form units are inches of the screen";
    EXPECT_EQ(Units(form, 10, 2).length, 0) << "no third axis";
    HostNumber null{};
    EXPECT_EQ(HostWinSetLocation(child, null, Units(form, 1, 1)), 0);
    EXPECT_EQ(HostWinSetSize(child, Units(form, -5, 0), Units(form, 1, 1)), 0);
    EXPECT_EQ(HostWinSetLocation(nullptr, Units(form, 1, 0), Units(form, 1, 1)), 0);
}

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
