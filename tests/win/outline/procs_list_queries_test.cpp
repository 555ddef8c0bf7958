// LbxListBoxWndProc: the list messages answered through items.
#include "model_fixture.h"

namespace {

using namespace outlinetest;

// A row put in past the engine, as rows added before adoption are.
LRESULT AddForeign(HWND list, const void *data) {
    return CallWindowProcW(BaseProc(list), list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(data));
}

const wchar_t kForeignText[] = L"foreign";

TEST_F(ListFixture, CurrentSelectionOfADisabledRowIsNone) {
    Add({L"a", L"b"});
    Send(list, LB_SETCURSEL, 1);
    EXPECT_EQ(Send(list, LB_GETCURSEL), 1);
    ZelListDisableItem(list, 1, 0);
    CallWindowProcW(BaseProc(list), list, LB_SETCURSEL, 1, 0);
    EXPECT_EQ(Send(list, LB_GETCURSEL), LB_ERR);
    EXPECT_EQ(Send(list, 1033), LB_ERR); // the old number
    EXPECT_EQ(Send(list, LB_GETSEL, 1), 0);
    EXPECT_EQ(Send(list, 1032, 1), 0);
}

TEST(ListSelection, CountsAndIndicesLeaveDisabledRowsOut) {
    zkt::TestWindow form;
    HWND list = form.AddListBox(kListId, {0, 0, 100, 150}, kListStyle | LBS_EXTENDEDSEL);
    ZelListSetStyle(list, LBX_StyleOwnerDraw, nullptr);
    for (const wchar_t *t : {L"a", L"b", L"c", L"d"}) {
        ZelListAddColor(list, t, 0);
    }
    Send(list, LB_SELITEMRANGE, TRUE, MAKELPARAM(0, 3));
    ZelListDisableItem(list, 1, 0);
    CallWindowProcW(BaseProc(list), list, LB_SETSEL, TRUE, 1);
    EXPECT_EQ(Send(list, LB_GETSELCOUNT), 3);
    int rows[8] = {-1, -1, -1, -1, -1, -1, -1, -1};
    EXPECT_EQ(Send(list, LB_GETSELITEMS, 8, reinterpret_cast<LPARAM>(rows)), 3);
    EXPECT_EQ(rows[0], 0);
    EXPECT_EQ(rows[1], 2);
    EXPECT_EQ(rows[2], 3);
    EXPECT_EQ(Send(list, 1042, 2, reinterpret_cast<LPARAM>(rows)), 2); // at most wParam of them
    AddForeign(list, kForeignText);
    Send(list, LB_SETSEL, TRUE, 4);
    EXPECT_EQ(Send(list, LB_GETSELCOUNT), LB_ERR);
    EXPECT_EQ(Send(list, 1041), LB_ERR);
    Send(list, LB_SETSEL, FALSE, -1);
    EXPECT_EQ(Send(list, LB_GETSELCOUNT), 0); // none selected: the list's own answer
}

TEST_F(ListFixture, TextsComeFromItemsOrForeignStrings) {
    Add({L"first", L"second"});
    AddForeign(list, kForeignText);
    EXPECT_EQ(RowText(list, 1), L"second");
    EXPECT_EQ(Send(list, LB_GETTEXTLEN, 1), 6);
    EXPECT_EQ(RowText(list, 2), L"foreign");
    EXPECT_EQ(Send(list, LB_GETTEXTLEN, 2), 7);
    wchar_t buffer[32] = {};
    EXPECT_EQ(Send(list, ZKM_LbxGetText, 0, reinterpret_cast<LPARAM>(buffer)), 5);
    EXPECT_STREQ(buffer, L"first");
    EXPECT_EQ(Send(list, LB_GETTEXTLEN, 7), LB_ERR); // past the end: the list answers
}

TEST_F(ListFixture, ItemDataIsTheItemsValue) {
    Add({L"a"});
    AddForeign(list, kForeignText);
    EXPECT_EQ(Send(list, 1051, 0, 5), 1);
    EXPECT_EQ(Send(list, 1050, 0), 5);
    EXPECT_EQ(Send(list, LB_GETITEMDATA, 1), reinterpret_cast<LRESULT>(kForeignText));
    EXPECT_EQ(Send(list, LB_SETITEMDATA, 1, 0), 1); // forwarded: the row's word becomes 0
    EXPECT_EQ(Send(list, LB_GETITEMDATA, 1), 0);
}

TEST_F(ListFixture, SelectStringFromAFlatRowComparesWholeTexts) {
    Add({L"apple", L"Bob", L"bobby", L"c"});
    EXPECT_EQ(Send(list, LB_SELECTSTRING, 0, reinterpret_cast<LPARAM>(L"BOBBY")), 2);
    EXPECT_EQ(Send(list, LB_GETCURSEL), 2);
    EXPECT_EQ(Send(list, 1037, 2, reinterpret_cast<LPARAM>(L"apple")), LB_ERR); // no wrap
}

TEST_F(ListFixture, SelectStringFromMinusOneSearchesTheOutlineRoot) {
    Add({L"apple"});
    EXPECT_EQ(GetPropW(list, L"ZK:LbxRootLow"), nullptr);
    EXPECT_EQ(Send(list, LB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(L"app")), LB_ERR);
    EXPECT_NE(GetPropW(list, L"ZK:LbxRootLow"), nullptr); // made on the way
}

TEST_F(ListFixture, TabStopsAreKeptInPixelsOrClearedToMinusOne) {
    int units[2] = {8, 20};
    Send(list, LB_SETTABSTOPS, 2, reinterpret_cast<LPARAM>(units)); // the list's answer depends on LBS_USETABSTOPS
    LbxChild child = ChildRecord(list);
    ASSERT_EQ(child.tabCount, 2);
    ASSERT_NE(child.tabStops, nullptr);
    const LONG unit = LOWORD(GetDialogBaseUnits());
    auto *stops = static_cast<int32_t *>(LocalLock(static_cast<HLOCAL>(child.tabStops)));
    EXPECT_EQ(stops[0], 8 * unit / 4);
    EXPECT_EQ(stops[1], 20 * unit / 4);
    LocalUnlock(static_cast<HLOCAL>(child.tabStops));
    Send(list, 1043, 0, 0);
    child = ChildRecord(list);
    EXPECT_EQ(child.tabCount, -1);
    EXPECT_EQ(child.tabStops, nullptr);
}

void ForgetFocus(HWND form) {
    EditParentRecord(form, [](LbxParent &p) { p.parentFlags = 0; });
}

// The list notifies its focus in any case; a focus that came from a sibling
// is known before that notification, which then restores nothing.
TEST_F(ListFixture, FocusFromASiblingIsKnownBeforeTheNotification) {
    HWND sibling = form.AddEdit(7, {250, 10, 100, 20});
    zkt::MessageRecorder recorder;
    recorder.watch(list);
    ForgetFocus(form);
    Send(list, WM_SETFOCUS, reinterpret_cast<WPARAM>(form.hwnd()));
    zkt::PumpMessages();
    EXPECT_EQ(recorder.count(LB_SETCARETINDEX), 1); // the first focus by an unknown route
    EXPECT_TRUE(ParentRecord(form).parentFlags & LBX_ParentFocusKnown);
    ForgetFocus(form);
    recorder.clear();
    Send(list, WM_SETFOCUS, reinterpret_cast<WPARAM>(sibling));
    zkt::PumpMessages();
    EXPECT_EQ(recorder.count(LB_SETCARETINDEX), 0);
    EXPECT_TRUE(ParentRecord(form).parentFlags & LBX_ParentFocusKnown);
}

} // namespace
