// Values, texts and the two searches on all four kinds of list.
#include "listfn_fixture.h"

namespace {

using namespace listfntest;

using Values = AnyList;
LISTFN_ALL_KINDS(Values);

TEST_P(Values, AddInsertReadAndChange) {
    EXPECT_EQ(ZelListAddValue(list, L"a", 10), 0);
    EXPECT_EQ(ZelListAddValue(list, L"c", -7), 1);
    EXPECT_EQ(ZelListInsertValue(list, 1, L"b", 20), 1);
    EXPECT_EQ(RowTexts(), (std::vector<std::wstring>{L"a", L"b", L"c"}));
    EXPECT_EQ(RowValues(), (std::vector<int32_t>{10, 20, -7}));
    EXPECT_NE(ZelListSetValue(list, 2, 30), -1);
    EXPECT_EQ(ZelListGetValue(list, 2), 30);
    // Past the end the list's own answers come through.
    EXPECT_EQ(ZelListGetValue(list, 3), -1);
    EXPECT_EQ(ZelListSetValue(list, 3, 1), -1);
    EXPECT_LT(ZelListInsertValue(list, 9, L"x", 1), 0);
    EXPECT_EQ(Count(), 3);
}

TEST_P(Values, FindValueStartsAfterTheRowWrapsOnceAndTurnsBackAtMinusOne) {
    Add({{L"a", 5}, {L"b", 7}, {L"c", 5}, {L"d", 9}});
    const struct {
        int32_t start, value, row;
    } plain[] = {{0, 5, 2}, {2, 5, 0}, {-1, 9, 3}, {3, 9, -1}, {-1, 42, -1}, {20, 7, 1}};
    for (const auto &c : plain)
        EXPECT_EQ(ZelListFindValue(list, c.start, c.value), c.row) << c.start << " " << c.value;
    // A row holding -1 sends the walk back to row 0; -1 itself is never found.
    SendMessageW(list, combo ? CB_RESETCONTENT : LB_RESETCONTENT, 0, 0);
    Add({{L"a", 3}, {L"b", -1}, {L"c", 4}});
    const struct { int32_t start, value, row; } turned[] = {{1, 4, 2}, {2, 3, 0}, {0, 4, -1}, {-1, -1, -1}, {2, 9, -1}};
    for (const auto &c : turned)
        EXPECT_EQ(ZelListFindValue(list, c.start, c.value), c.row) << c.start << " " << c.value;
}

TEST_P(Values, FindStringWholeTextWithoutCase) {
    Add({{L"Alpha", 0}, {L"beta", 0}, {L"ALPHA", 0}, {L"gamma", 0}});
    EXPECT_EQ(ZelListFindString(list, -1, L"alpha"), 0);
    EXPECT_EQ(ZelListFindString(list, 0, L"alpha"), 2);
    EXPECT_EQ(ZelListFindString(list, -1, L"alp"), -1);
    EXPECT_EQ(ZelListFindString(list, -1, nullptr), -1);
    // An adopted list does not wrap, not even from its last row; a plain one
    // searches as the platform does, round the end.
    EXPECT_EQ(ZelListFindString(list, 2, L"alpha"), IsAdopted(kind) ? -1 : 0);
    EXPECT_EQ(ZelListFindString(list, 3, L"alpha"), IsAdopted(kind) ? -1 : 0);
}

TEST_P(Values, TextsOfAnyLengthKeepValueAndSelectionAndFailEmpty) {
    std::wstring big(5000, L'x'); // far past any buffer a caller could size in advance
    big.back() = L'Z';
    Add({{L"first", 11}, {big.c_str(), 22}, {L"third", 33}});
    const int32_t liveBefore = ZkHostLiveStrings();
    EXPECT_EQ(Take(ZelListGetText(list, 1)), big);
    EXPECT_EQ(Take(ZelListGetText(list, 3)), L"") << "past the end";
    EXPECT_EQ(Take(ZelListGetText(list, -2)), L"");
    EXPECT_EQ(ZkHostLiveStrings(), liveBefore) << "no string is left behind on the failure path";
    SendMessageW(list, combo ? CB_SETCURSEL : LB_SETCURSEL, 1, 0);
    EXPECT_EQ(ZelListSetText(list, 1, L"2nd"), 0);
    EXPECT_EQ(ZelListSetText(list, 2, big.c_str()), 0);
    EXPECT_EQ(ZelListSetText(list, 0, nullptr), 0);
    EXPECT_EQ(RowTexts(), (std::vector<std::wstring>{L"", L"2nd", big}));
    EXPECT_EQ(RowValues(), (std::vector<int32_t>{11, 22, 33}));
    EXPECT_EQ(CurSel(), 1);
    EXPECT_EQ(ZelListSetText(list, 3, L"x"), -1);
    EXPECT_EQ(ZelListSetText(list, -1, L"x"), -1);
    EXPECT_EQ(Count(), 3);
}

// The adopted row keeps everything but its text; a longer text moves the
// row to a new item, which the tree node then names.
TEST(TextsAdopted, ALongerTextKeepsFlagsColourFontAndTreeLinks) {
    zkt::TestWindow form{400, 300};
    HWND list = MakeList(form, Kind::AdoptedList);
    ZelListSetStyle(list, LBX_StyleOutline | LBX_StyleUpperCase, nullptr);
    const ZelItemHandle top = ZelListLoadChild(list, ZelListGetRoot(list), 0, 0, L"top", 5, 0x0000000Au);
    ASSERT_NE(top, 0);
    ASSERT_NE(ZelListLoadChild(list, top, 0, 0, L"kid", 6, 0), 0);
    ASSERT_EQ(ZelListShowOutline(list, 1), 1);
    HFONT font = static_cast<HFONT>(GetStockObject(ANSI_FIXED_FONT));
    ZelListSetColor(list, 0, RGB(1, 2, 3));
    ZelListSetFont(list, 0, font);
    const int32_t flags = ZelListGetFlags(list, 0);
    EXPECT_EQ(ZelListSetText(list, 0, L"the top row"), 0);
    EXPECT_EQ(Take(ZelListGetItemText(top)), L"THE TOP ROW") << "the node names the new item, by the case rule";
    EXPECT_EQ(ZelListGetItemHandle(list, 0), top);
    EXPECT_EQ(ZelListGetFlags(list, 0), flags);
    EXPECT_EQ(ZelListGetValue(list, 0), 5);
    EXPECT_EQ(ZelListGetColor(list, 0), static_cast<int32_t>(RGB(1, 2, 3)));
    EXPECT_EQ(ZelListGetFont(list, 0), reinterpret_cast<INT_PTR>(font));
    EXPECT_EQ(ZelListGetParent(ZelListGetItemHandle(list, 1)), top);
}

TEST(ValuesBadWindow, EveryExportAnswersItsFailure) {
    zkt::TestWindow form{200, 100};
    HWND button = form.AddButton(1, {0, 0, 50, 20}, L"b");
    for (HWND bad : {HWND(nullptr), button}) {
        EXPECT_EQ(ZelListAddValue(bad, L"x", 1), -87);
        EXPECT_EQ(ZelListInsertValue(bad, 0, L"x", 1), -87);
        EXPECT_EQ(ZelListGetValue(bad, 0), -87);
        EXPECT_EQ(ZelListSetValue(bad, 0, 1), -87);
        EXPECT_EQ(ZelListFindValue(bad, -1, 1), -87);
        EXPECT_EQ(ZelListFindString(bad, -1, L"x"), -87);
        EXPECT_EQ(ZelListSetText(bad, 0, L"x"), -87);
        EXPECT_EQ(Take(ZelListGetText(bad, 0)), L"");
        EXPECT_EQ(ZelListDeleteSelected(bad), -87);
        EXPECT_EQ(ZelListClearSelection(bad), -87);
        EXPECT_EQ(ZelListIsMultiSelect(bad), 0);
        EXPECT_EQ(ZelListGetFocusIndex(bad), -87);
        EXPECT_EQ(ZelListSetFocusIndex(bad, 0), -87);
        EXPECT_EQ(ZelListGetDropdownState(bad), -87);
        EXPECT_EQ(ZelListSetDropdownState(bad, 1), -87);
        EXPECT_EQ(ZelListScroll(bad, 0), -87);
        EXPECT_EQ(ZelListGetIndexFromPoint(bad, 1, 1), -1);
        EXPECT_EQ(ZelListArrayPopulate(bad, 0), -87);
        EXPECT_EQ(ZelListArrayPopulateValue(bad, 0, 0), -87);
    }
}

} // namespace
