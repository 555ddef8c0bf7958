// Values beside rows and the two searches, on all four kinds of list.
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
    EXPECT_EQ(RowTexts().size(), 3u);
}

TEST_P(Values, FindValueStartsAfterTheRowAndWrapsOnce) {
    Add({{L"a", 5}, {L"b", 7}, {L"c", 5}, {L"d", 9}});
    EXPECT_EQ(ZelListFindValue(list, 0, 5), 2);
    EXPECT_EQ(ZelListFindValue(list, 2, 5), 0) << "wraps past the end";
    EXPECT_EQ(ZelListFindValue(list, -1, 9), 3);
    EXPECT_EQ(ZelListFindValue(list, 3, 9), -1) << "coming back to the start row ends it";
    EXPECT_EQ(ZelListFindValue(list, -1, 42), -1);
    EXPECT_EQ(ZelListFindValue(list, 20, 7), 1) << "a start past the end wraps at once";
}

TEST_P(Values, ARowOfMinusOneSendsTheWalkBackToRowZero) {
    Add({{L"a", 3}, {L"b", -1}, {L"c", 4}});
    EXPECT_EQ(ZelListFindValue(list, 1, 4), 2);
    EXPECT_EQ(ZelListFindValue(list, 2, 3), 0);
    EXPECT_EQ(ZelListFindValue(list, 0, 4), -1) << "row 1 turns the walk back before row 2";
    EXPECT_EQ(ZelListFindValue(list, -1, -1), -1) << "-1 itself is never found";
    EXPECT_EQ(ZelListFindValue(list, 2, 9), -1) << "the walk round row 1 ends";
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

TEST(ValuesBadWindow, EveryExportAnswersItsFailure) {
    zkt::TestWindow form{200, 100};
    HWND button = form.addButton(1, {0, 0, 50, 20}, L"b");
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
