// Deleting the selection, selection and focus, drop-down, scrolling and the
// row under a point.
#include "listfn_fixture.h"

namespace {

using namespace listfntest;

std::vector<std::wstring> ListTexts(HWND list) {
    std::vector<std::wstring> out;
    for (int i = 0, n = static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0)); i < n; ++i) {
        out.push_back(Take(ZelListGetText(list, i)));
    }
    return out;
}

void Fill(HWND list, int rows) {
    for (int i = 0; i < rows; ++i) {
        ZelListAddValue(list, std::to_wstring(i).c_str(), i);
    }
}

struct MultiCase {
    Kind kind;
    DWORD style;
};

struct MultiSelect : ::testing::TestWithParam<MultiCase> {};
INSTANTIATE_TEST_SUITE_P(Lists, MultiSelect,
                         ::testing::Values(MultiCase{Kind::PlainList, LBS_MULTIPLESEL},
                                           MultiCase{Kind::PlainList, LBS_EXTENDEDSEL},
                                           MultiCase{Kind::AdoptedList, LBS_MULTIPLESEL},
                                           MultiCase{Kind::AdoptedList, LBS_EXTENDEDSEL}));

TEST_P(MultiSelect, DeleteSelectedTakesExactlyTheSelectedRows) {
    zkt::TestWindow form{400, 300};
    HWND list = MakeList(form, GetParam().kind, GetParam().style);
    Fill(list, 7);
    EXPECT_EQ(ZelListIsMultiSelect(list), 1);
    EXPECT_EQ(ZelListDeleteSelected(list), 0) << "nothing selected";
    for (int row : {5, 1, 3}) {
        SendMessageW(list, LB_SETSEL, TRUE, row);
    }
    EXPECT_EQ(ZelListDeleteSelected(list), 3);
    EXPECT_EQ(ListTexts(list), (std::vector<std::wstring>{L"0", L"2", L"4", L"6"}));

    SendMessageW(list, LB_SETSEL, TRUE, 0);
    SendMessageW(list, LB_SETSEL, TRUE, 3);
    EXPECT_EQ(ZelListClearSelection(list), 1);
    EXPECT_EQ(SendMessageW(list, LB_GETSELCOUNT, 0, 0), 0);
}

using SingleSelect = AnyList;
LISTFN_ALL_KINDS(SingleSelect);

TEST_P(SingleSelect, DeleteClearAndFocusOnTheCurrentRow) {
    Add({{L"a", 0}, {L"b", 0}, {L"c", 0}, {L"d", 0}});
    EXPECT_EQ(ZelListIsMultiSelect(list), 0);
    EXPECT_EQ(ZelListDeleteSelected(list), -1) << "no current row";
    EXPECT_EQ(ZelListSetFocusIndex(list, 2), 2);
    EXPECT_EQ(ZelListGetFocusIndex(list), 2);
    EXPECT_EQ(ZelListDeleteSelected(list), 1);
    EXPECT_EQ(RowTexts(), (std::vector<std::wstring>{L"a", L"b", L"d"}));
    ZelListSetFocusIndex(list, 0);
    EXPECT_EQ(ZelListClearSelection(list), 1);
    EXPECT_EQ(SendMessageW(list, combo ? CB_GETCURSEL : LB_GETCURSEL, 0, 0), -1);
    EXPECT_EQ(ZelListSetFocusIndex(list, 9), -1);
}

TEST(Focus, ASimpleMultiSelectListMovesOnlyTheCaret) {
    zkt::TestWindow form{400, 300};
    HWND list = MakeList(form, Kind::PlainList, LBS_MULTIPLESEL);
    Fill(list, 5);
    EXPECT_EQ(ZelListSetFocusIndex(list, 3), 0);
    EXPECT_EQ(ZelListGetFocusIndex(list), 3);
    EXPECT_EQ(SendMessageW(list, LB_GETSELCOUNT, 0, 0), 0);
}

TEST(Dropdown, StateFollowsTheFlag) {
    zkt::TestWindow form{400, 300};
    for (Kind kind : {Kind::PlainCombo, Kind::AdoptedCombo}) {
        HWND combo = MakeList(form, kind);
        ZelListAddValue(combo, L"a", 1);
        EXPECT_EQ(ZelListGetDropdownState(combo), 0);
        EXPECT_EQ(ZelListSetDropdownState(combo, 1), 1);
        EXPECT_EQ(ZelListGetDropdownState(combo), 1);
        EXPECT_EQ(ZelListSetDropdownState(combo, 0), 1);
        EXPECT_EQ(ZelListGetDropdownState(combo), 0);
        DestroyWindow(combo);
    }
}

struct Scrolled : ::testing::TestWithParam<Kind> {};
INSTANTIATE_TEST_SUITE_P(Lists, Scrolled, ::testing::Values(Kind::PlainList, Kind::AdoptedList),
                         [](const ::testing::TestParamInfo<Kind> &i) { return KindName(i.param); });

TEST_P(Scrolled, ScrollAndTheRowUnderAPoint) {
    zkt::TestWindow form{400, 300};
    HWND list = MakeList(form, GetParam());
    Fill(list, 50);
    zkt::pumpMessages();
    const int h = static_cast<int>(SendMessageW(list, LB_GETITEMHEIGHT, 0, 0));
    ASSERT_GT(h, 0);
    EXPECT_EQ(ZelListScroll(list, 10), 1);
    EXPECT_EQ(SendMessageW(list, LB_GETTOPINDEX, 0, 0), 10);
    EXPECT_EQ(ZelListGetIndexFromPoint(list, 5, 0), 10) << "the sum reaches 0 at once";
    EXPECT_EQ(ZelListGetIndexFromPoint(list, 5, h), 10);
    EXPECT_EQ(ZelListGetIndexFromPoint(list, 5, h + 1), 11);
    EXPECT_EQ(ZelListGetIndexFromPoint(list, 5, 3 * h + 2), 13);
    RECT frame{};
    GetWindowRect(list, &frame);
    const int w = frame.right - frame.left, ht = frame.bottom - frame.top;
    EXPECT_NE(ZelListGetIndexFromPoint(list, w + 1, ht + 1), -1);
    EXPECT_EQ(ZelListGetIndexFromPoint(list, w + 2, 5), -1);
    EXPECT_EQ(ZelListGetIndexFromPoint(list, 5, ht + 2), -1);
    // Below the last row of a short list.
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    Fill(list, 2);
    EXPECT_EQ(ZelListGetIndexFromPoint(list, 5, 2 * h), 1);
    EXPECT_EQ(ZelListGetIndexFromPoint(list, 5, 2 * h + 1), -1);
}

TEST(ComboPoint, AComboBoxHasNoRowUnderAPoint) {
    zkt::TestWindow form{400, 300};
    HWND combo = MakeList(form, Kind::PlainCombo);
    Fill(combo, 3);
    EXPECT_EQ(ZelListGetIndexFromPoint(combo, 1, 1), -1);
}

} // namespace
