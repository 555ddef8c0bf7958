// LbxParentWndProc: measure, delete, compare, commands, edit colours, its end.
#include "model_fixture.h"

#include <algorithm>

#include "zkhost.h"

namespace {

using namespace outlinetest;

int FontHeight(HWND window, HFONT font) {
    return FontMetrics(window, font ? font : GetStockObject(SYSTEM_FONT)).tmHeight;
}

TEST_F(ListFixture, MeasureOfARowWithoutAnItemIsFourPixelsTighterThanItsFont) {
    MEASUREITEMSTRUCT request{ODT_LISTBOX, kListId, 0, 0, 0, 0};
    EXPECT_EQ(Send(form, WM_MEASUREITEM, kListId, reinterpret_cast<LPARAM>(&request)), 1);
    // Wine reports the NT platform id, one of the two tighter platforms.
    EXPECT_EQ(static_cast<int>(request.itemHeight), FontHeight(list, nullptr) - 4);
}

TEST_F(ListFixture, MeasureOfAnItemTakesItsFontAndRecordsTheTextHeight) {
    HFONT font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    Send(list, WM_SETFONT, reinterpret_cast<WPARAM>(font));
    Add({L"a"});
    LbxItem *item = ItemAt(list, 0);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->font, font);
    EXPECT_EQ(ChildRecord(list).textHeight, FontHeight(list, font));
    EXPECT_EQ(ChildRecord(list).bkColor, GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(Send(list, LB_GETITEMHEIGHT, 0), FontHeight(list, font));
}

// A list the application froze stays frozen through a font change: a
// selection change then draws no row (the list box draws owner-drawn rows
// at once, through the parent, rather than invalidating them).
TEST_F(ListFixture, FontChangeRemeasuresAFrozenListWithoutTurningPaintingOn) {
    Add({L"a", L"b"});
    zkt::PumpMessages();
    Send(list, WM_SETREDRAW, FALSE);
    Send(list, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 1);
    zkt::MessageRecorder recorder;
    recorder.watch(form);
    Send(list, LB_SETCURSEL, 1);
    EXPECT_EQ(recorder.count(WM_DRAWITEM), 0) << "painting came back on";
    Send(list, WM_SETREDRAW, TRUE);
    zkt::PumpMessages();
    recorder.clear();
    Send(list, LB_SETCURSEL, 0);
    EXPECT_GT(recorder.count(WM_DRAWITEM), 0);
}

TEST_F(ListFixture, CompareByItemTextWithoutCaseAndByStringsOtherwise) {
    Add({L"apple", L"BANANA"});
    COMPAREITEMSTRUCT c{ODT_LISTBOX, kListId, list, 0, RawData(list, 0), 1, RawData(list, 1), 0};
    EXPECT_LT(Send(form, WM_COMPAREITEM, kListId, reinterpret_cast<LPARAM>(&c)), 0);
    c.itemData2 = c.itemData1;
    EXPECT_EQ(Send(form, WM_COMPAREITEM, kListId, reinterpret_cast<LPARAM>(&c)), 0);
    static const wchar_t a[] = L"b", b[] = L"a";
    c.itemData1 = reinterpret_cast<ULONG_PTR>(a);
    c.itemData2 = reinterpret_cast<ULONG_PTR>(b);
    EXPECT_GT(Send(form, WM_COMPAREITEM, kListId, reinterpret_cast<LPARAM>(&c)), 0);
    c.itemID1 = static_cast<UINT>(-1);
    EXPECT_EQ(Send(form, WM_COMPAREITEM, kListId, reinterpret_cast<LPARAM>(&c)), 1);
}

TEST_F(ListFixture, DeleteUnderTheKeepBitFreesNothing) {
    Add({L"a", L"b"});
    LbxItem *item = ItemAt(list, 0);
    EditParentRecord(form, [](LbxParent &p) { p.parentFlags |= LBX_ParentKeepItems; });
    Send(list, LB_DELETESTRING, 0);
    EditParentRecord(form, [](LbxParent &p) { p.parentFlags &= ~LBX_ParentKeepItems; });
    EXPECT_EQ(item->self, item); // still alive
    EXPECT_EQ(Send(list, ZKM_LbxInsertRow, 0, reinterpret_cast<LPARAM>(item)), 0);
    EXPECT_EQ(RowText(list, 0), L"a");
}

TEST_F(ListFixture, FirstFocusOfASingleListMarksItsSelectedItem) {
    Add({L"a", L"b"});
    Send(list, LB_SETCURSEL, 1);
    Send(form, WM_COMMAND, MAKEWPARAM(kListId, LBN_SETFOCUS), reinterpret_cast<LPARAM>(list));
    EXPECT_TRUE(ZelListGetFlags(list, 1) & LBX_ItemFocusMark);
    EXPECT_TRUE(ParentRecord(form).parentFlags & LBX_ParentFocusKnown);
    // Losing the focus pays the mark back with a repaint.
    Send(form, WM_COMMAND, MAKEWPARAM(kListId, LBN_KILLFOCUS), reinterpret_cast<LPARAM>(list));
    EXPECT_FALSE(ZelListGetFlags(list, 1) & LBX_ItemFocusMark);
}

TEST_F(ListFixture, FirstFocusWithoutSelectionPostsTheCaret) {
    Add({L"a", L"b"});
    zkt::MessageRecorder recorder;
    recorder.watch(list);
    Send(form, WM_COMMAND, MAKEWPARAM(kListId, LBN_SETFOCUS), reinterpret_cast<LPARAM>(list));
    EXPECT_TRUE(ParentRecord(form).parentFlags & LBX_ParentFocusKnown);
    EXPECT_EQ(recorder.count(LB_SETCARETINDEX), 0); // not yet: it is posted
    zkt::PumpMessages();
    EXPECT_TRUE(zkt::MatchSequence(recorder.messages(),
                                   {{LB_GETCURSEL, zkt::sent}, {LB_SETCARETINDEX, zkt::posted | zkt::wparam, 0}},
                                   PaintNoise()));
}

TEST(ParentCommands, DropSelectionPostsTheDropAndRestoresFromTheCaret) {
    zkt::TestWindow form;
    HWND list = form.AddListBox(kListId, {0, 0, 100, 100}, kListStyle);
    ZelListSetStyle(list, LBX_StyleDropSelection | LBX_StyleShowInactive, nullptr);
    for (const wchar_t *t : {L"a", L"b", L"c"}) {
        ZelListAddColor(list, t, 0);
    }
    Send(list, LB_SETCURSEL, 2);
    Send(form, WM_COMMAND, MAKEWPARAM(kListId, LBN_SETFOCUS), reinterpret_cast<LPARAM>(list));
    zkt::PumpMessages();
    zkt::MessageRecorder recorder;
    recorder.watch(list);
    Send(form, WM_COMMAND, MAKEWPARAM(kListId, LBN_KILLFOCUS), reinterpret_cast<LPARAM>(list));
    EXPECT_TRUE(ZelListGetFlags(list, 2) & LBX_ItemInactive);
    EXPECT_EQ(Send(list, LB_GETCURSEL), 2); // the drop is posted
    zkt::PumpMessages();
    EXPECT_EQ(Send(list, LB_GETCURSEL), LB_ERR);
    EXPECT_TRUE(zkt::MatchSequence(recorder.messages(),
                                   {{LB_GETCURSEL, zkt::sent},
                                    {LB_GETITEMRECT, zkt::sent},
                                    {LB_GETCURSEL, zkt::sent},
                                    {LB_SETCURSEL, zkt::posted | zkt::wparam, static_cast<WPARAM>(-1)},
                                    {LB_GETCURSEL, zkt::sent}},
                                   PaintNoise()));
    Send(list, LB_SETCARETINDEX, 1);
    Send(form, WM_COMMAND, MAKEWPARAM(kListId, LBN_SETFOCUS), reinterpret_cast<LPARAM>(list));
    EXPECT_EQ(Send(list, LB_GETCURSEL), 1); // sent at once: the flag is known now
}

TEST_F(ComboFixture, FirstFocusPostsTheNextControlAndIsNotForwarded) {
    zkt::PumpMessages();
    zkt::MessageRecorder recorder;
    recorder.watch(form);
    EXPECT_EQ(Send(form, WM_COMMAND, MAKEWPARAM(kComboId, CBN_SETFOCUS), reinterpret_cast<LPARAM>(combo)), 1);
    EXPECT_TRUE(formCommands.empty());
    zkt::PumpMessages();
    // Only the command and what it posts: focus and activation traffic of a
    // busy system may reach the form meanwhile.
    EXPECT_TRUE(zkt::MatchNamed(
        recorder.messages(),
        {{WM_COMMAND, zkt::sent | zkt::lparam, 0, reinterpret_cast<LPARAM>(combo)},
         {WM_NEXTDLGCTL, zkt::posted | zkt::wparam | zkt::lparam, reinterpret_cast<WPARAM>(combo), 1}}));
    Send(form, WM_COMMAND, MAKEWPARAM(kComboId, CBN_SETFOCUS), reinterpret_cast<LPARAM>(combo));
    EXPECT_EQ(formCommands, std::vector<UINT>{CBN_SETFOCUS});
}

TEST_F(ComboFixture, SelectionChangeCopiesTheTextAndSendsTheHostSelect) {
    CallWindowProcW(BaseProc(combo), combo, CB_SETCURSEL, 1, 0);
    zkt::MessageRecorder recorder;
    recorder.watch(combo);
    EXPECT_EQ(Send(form, WM_COMMAND, MAKEWPARAM(kComboId, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo)), 1);
    EXPECT_EQ(EditText(), L"two");
    EXPECT_TRUE(formCommands.empty());
    EXPECT_EQ(recorder.count(HostMsgSelect, combo), 1);
}

TEST_F(ComboFixture, CloseUpPostsSelectDoneUnderTheExtendedUi) {
    zkt::MessageRecorder recorder;
    recorder.watch(combo);
    Send(form, WM_COMMAND, MAKEWPARAM(kComboId, CBN_CLOSEUP), reinterpret_cast<LPARAM>(combo));
    zkt::PumpMessages();
    EXPECT_EQ(recorder.count(ZKM_LbxSelectDone), 1); // adoption turned the extended interface on
    EXPECT_EQ(formCommands, std::vector<UINT>{CBN_CLOSEUP});
}

TEST_F(ComboFixture, EditColoursAreTheSelectedItemsOnTheBackgroundBrush) {
    Send(combo, CB_SETCURSEL, 0);
    HDC dc = GetDC(edit);
    const LRESULT brush = Send(form, WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(edit));
    EXPECT_EQ(brush, reinterpret_cast<LRESULT>(ChildRecord(combo).bkBrush));
    EXPECT_EQ(GetTextColor(dc), 0x0000FFu);
    EXPECT_EQ(GetBkColor(dc), ChildRecord(combo).bkColor);
    ReleaseDC(edit, dc);
}

TEST(ParentEnd, TheChildrenHearOfItAndTheRecordGoes) {
    auto *form = new zkt::TestWindow();
    HWND list = form->AddListBox(kListId, {0, 0, 100, 100}, kListStyle);
    HWND plain = form->AddListBox(kListId + 1, {0, 100, 100, 100});
    ZelListSetStyle(list, LBX_StyleOwnerDraw, nullptr);
    ZelListAddColor(list, L"a", 0);
    HWND window = *form;
    zkt::MessageRecorder recorder;
    recorder.watch(list);
    recorder.watch(plain);
    recorder.watch(window);
    delete form;
    EXPECT_EQ(recorder.count(ZKM_LbxParentGone, list), 1);
    EXPECT_EQ(recorder.count(ZKM_LbxParentGone, plain), 0);
    // The form hears of its end first, then the adopted child; the list's own end comes later.
    const auto &got = recorder.messages();
    auto at = [&](UINT message, HWND w) {
        return std::find_if(got.begin(), got.end(),
                            [&](const zkt::RecordedMessage &m) { return m.message == message && m.hwnd == w; }) -
               got.begin();
    };
    EXPECT_LT(at(WM_DESTROY, window), at(ZKM_LbxParentGone, list));
    EXPECT_LT(at(ZKM_LbxParentGone, list), at(WM_DESTROY, list));
}

} // namespace
