// Selection, focus, drop-down, scrolling, the row under a point and filling
// from host arrays.
#include "listfn_fixture.h"

namespace {

using namespace listfntest;

struct MultiSelect : ::testing::TestWithParam<std::pair<Kind, DWORD>> {};
INSTANTIATE_TEST_SUITE_P(Lists, MultiSelect,
                         ::testing::Values(std::pair{Kind::PlainList, DWORD(LBS_MULTIPLESEL)},
                                           std::pair{Kind::PlainList, DWORD(LBS_EXTENDEDSEL)},
                                           std::pair{Kind::AdoptedList, DWORD(LBS_MULTIPLESEL)},
                                           std::pair{Kind::AdoptedList, DWORD(LBS_EXTENDEDSEL)}));

TEST_P(MultiSelect, DeleteSelectedTakesExactlyTheSelectedRows) {
    zkt::TestWindow form{400, 300};
    HWND list = MakeList(form, GetParam().first, GetParam().second);
    Fill(list, 7);
    EXPECT_EQ(ZelListIsMultiSelect(list), 1);
    EXPECT_EQ(ZelListDeleteSelected(list), 0) << "nothing selected";
    for (int row : {5, 1, 3})
        SendMessageW(list, LB_SETSEL, TRUE, row);
    EXPECT_EQ(ZelListDeleteSelected(list), 3);
    std::wstring texts;
    for (int i = 0; i < 4; ++i)
        texts += Take(ZelListGetText(list, i));
    EXPECT_EQ(texts, L"0246");
    SendMessageW(list, LB_SETSEL, TRUE, 0);
    SendMessageW(list, LB_SETSEL, TRUE, 3);
    EXPECT_EQ(ZelListClearSelection(list), 1);
    EXPECT_EQ(SendMessageW(list, LB_GETSELCOUNT, 0, 0), 0);
    // In a plain simple multi-select list the focus moves the caret only, and
    // each row keeps its selection under a new text.
    if (GetParam() != std::pair{Kind::PlainList, DWORD(LBS_MULTIPLESEL)})
        return;
    SendMessageW(list, LB_SETSEL, TRUE, 1);
    EXPECT_EQ(ZelListSetFocusIndex(list, 3), 0);
    EXPECT_EQ(ZelListGetFocusIndex(list), 3);
    EXPECT_EQ(ZelListSetText(list, 1, L"one"), 0);
    EXPECT_EQ(ZelListSetText(list, 2, L"two"), 0);
    EXPECT_EQ(SendMessageW(list, LB_GETSELCOUNT, 0, 0), 1);
    EXPECT_GT(SendMessageW(list, LB_GETSEL, 1, 0), 0);
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
    EXPECT_EQ(CurSel(), -1);
    EXPECT_EQ(ZelListSetFocusIndex(list, 9), -1);
    if (!combo)
        return;
    EXPECT_EQ(ZelListGetIndexFromPoint(list, 1, 1), -1) << "a combo box has no row under a point";
    EXPECT_EQ(ZelListGetDropdownState(list), 0);
    EXPECT_EQ(ZelListSetDropdownState(list, 1), 1);
    EXPECT_EQ(ZelListGetDropdownState(list), 1);
    EXPECT_EQ(ZelListSetDropdownState(list, 0), 1);
    EXPECT_EQ(ZelListGetDropdownState(list), 0);
}

struct Scrolled : ::testing::TestWithParam<Kind> {};
INSTANTIATE_TEST_SUITE_P(Lists, Scrolled, ::testing::Values(Kind::PlainList, Kind::AdoptedList),
                         [](const ::testing::TestParamInfo<Kind> &i) { return KindName(i.param); });

TEST_P(Scrolled, ScrollAndTheRowUnderAPoint) {
    zkt::TestWindow form{400, 300};
    HWND list = MakeList(form, GetParam());
    Fill(list, 50);
    zkt::PumpMessages();
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
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    Fill(list, 2); // below the last row of a short list
    EXPECT_EQ(ZelListGetIndexFromPoint(list, 5, 2 * h), 1);
    EXPECT_EQ(ZelListGetIndexFromPoint(list, 5, 2 * h + 1), -1);
}

// An array from `low`; a number of kUnset is left null.
constexpr int32_t kUnset = INT32_MIN;
HostArray Strings(std::initializer_list<const wchar_t *> values, int32_t low) {
    HostArray array = HostArrayCreate(HOST_TYPE_STRING);
    HostArraySetBounds(array, low, low + static_cast<int32_t>(values.size()) - 1);
    for (const wchar_t *v : values)
        HostArraySetString(array, ZkHostStrMake(v), low++);
    return array;
}
HostArray Numbers(std::initializer_list<int32_t> values, int32_t low) {
    HostArray array = HostArrayCreate(HOST_TYPE_NUMBER);
    HostArraySetBounds(array, low, low + static_cast<int32_t>(values.size()) - 1);
    HostNumber n{};
    for (int32_t v : values) {
        if (v != kUnset)
            HostArraySetNumber(array, HostNumberFromLong(v, &n), low);
        ++low;
    }
    return array;
}

using Arrays = AnyList;
LISTFN_ALL_KINDS(Arrays);

TEST_P(Arrays, PopulateReplacesTheRowsInBoundOrderAndValuesMustMatch) {
    Add({{L"old", 1}});
    const HostArray shifted = Strings({L"x", L"y"}, 4), empty = HostArrayCreate(HOST_TYPE_STRING);
    EXPECT_EQ(ZelListArrayPopulate(list, shifted), 2);
    EXPECT_EQ(RowTexts(), (std::vector<std::wstring>{L"x", L"y"}));
    EXPECT_EQ(ZelListArrayPopulate(list, empty), 0);
    EXPECT_EQ(Count(), 0);
    const HostArray texts = Strings({L"a", L"b", L"c"}, 1), values = Numbers({100, -5, 7}, 0);
    const HostArray two = Numbers({1, 2}, 0), holed = Numbers({1, kUnset, 3}, 0);
    EXPECT_EQ(ZelListArrayPopulateValue(list, texts, values), 3);
    EXPECT_EQ(RowTexts(), (std::vector<std::wstring>{L"a", L"b", L"c"}));
    EXPECT_EQ(RowValues(), (std::vector<int32_t>{100, -5, 7}));
    EXPECT_EQ(ZelListArrayPopulateValue(list, texts, two), -87);
    EXPECT_EQ(Count(), 3) << "sizes are compared before anything changes";
    EXPECT_EQ(ZelListArrayPopulateValue(list, texts, holed), -1);
    EXPECT_EQ(RowTexts(), (std::vector<std::wstring>{L"a", L"b"})) << "the fill ends at the value it could not read";
    EXPECT_EQ(ZelListGetValue(list, 0), 1);
    for (HostArray a : {shifted, empty, texts, values, two, holed})
        HostArrayDestroy(a);
}

// A host custom list answers the list inside it, and that list is filled.
TEST(ArraysCustomList, TheInnerListTakesThePlace) {
    zkt::TestWindow form{400, 300};
    HWND inner = MakeList(form, Kind::PlainList);
    zkt::TestWindow custom{100, 100};
    custom.OnMessage([inner](HWND, UINT m, WPARAM, LPARAM, LRESULT &r) {
        if (m != HostMsgGetListWindow)
            return false;
        r = reinterpret_cast<LRESULT>(inner);
        return true;
    });
    ZkHostSetWinType(custom, HOST_WT_CUSTOMLIST, 0);
    SendMessageW(inner, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"old"));
    HostArray texts = Strings({L"p", L"q"}, 0);
    EXPECT_EQ(ZelListArrayPopulate(custom, texts), 2);
    EXPECT_EQ(SendMessageW(inner, LB_GETCOUNT, 0, 0), 2);
    EXPECT_EQ(Take(ZelListGetText(inner, 1)), L"q");
    ZkHostSetWinType(custom, 0, 0);
    HostArrayDestroy(texts);
}

} // namespace
