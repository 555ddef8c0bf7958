// Filling lists from host arrays, bounds from the low to the high one.
#include "listfn_fixture.h"

namespace {

using namespace listfntest;

HostArray Strings(std::initializer_list<const wchar_t *> values, int32_t low) {
    HostArray array = HostArrayCreate(HOST_TYPE_STRING);
    HostArraySetBounds(array, low, low + static_cast<int32_t>(values.size()) - 1);
    int32_t index = low;
    for (const wchar_t *v : values) {
        HostArraySetString(array, ZkHostStrMake(v), index++);
    }
    return array;
}

// Numbers from `low`; an element of kUnset is left null.
constexpr int32_t kUnset = INT32_MIN;
HostArray Numbers(std::initializer_list<int32_t> values, int32_t low) {
    HostArray array = HostArrayCreate(HOST_TYPE_NUMBER);
    HostArraySetBounds(array, low, low + static_cast<int32_t>(values.size()) - 1);
    int32_t index = low;
    for (int32_t v : values) {
        HostNumber n{};
        if (v != kUnset) {
            HostNumberFromLong(v, &n);
            HostArraySetNumber(array, &n, index);
        }
        ++index;
    }
    return array;
}

using Arrays = AnyList;
LISTFN_ALL_KINDS(Arrays);

TEST_P(Arrays, PopulateReplacesTheRowsByTheArrayInBoundOrder) {
    Add({{L"old", 1}});
    HostArray zeroBased = Strings({L"red", L"green", L"blue"}, 0);
    EXPECT_EQ(ZelListArrayPopulate(list, zeroBased), 3);
    EXPECT_EQ(RowTexts(), (std::vector<std::wstring>{L"red", L"green", L"blue"}));
    HostArray shifted = Strings({L"x", L"y"}, 4);
    EXPECT_EQ(ZelListArrayPopulate(list, shifted), 2);
    EXPECT_EQ(RowTexts(), (std::vector<std::wstring>{L"x", L"y"}));
    HostArray empty = HostArrayCreate(HOST_TYPE_STRING);
    EXPECT_EQ(ZelListArrayPopulate(list, empty), 0);
    EXPECT_TRUE(RowTexts().empty());
    for (HostArray a : {zeroBased, shifted, empty}) {
        HostArrayDestroy(a);
    }
}

TEST_P(Arrays, PopulateValueSetsValuesAndChecksSizes) {
    HostArray texts = Strings({L"a", L"b", L"c"}, 1);
    HostArray values = Numbers({100, -5, 7}, 0);
    EXPECT_EQ(ZelListArrayPopulateValue(list, texts, values), 3);
    EXPECT_EQ(RowTexts(), (std::vector<std::wstring>{L"a", L"b", L"c"}));
    EXPECT_EQ(RowValues(), (std::vector<int32_t>{100, -5, 7}));

    HostArray two = Numbers({1, 2}, 0);
    EXPECT_EQ(ZelListArrayPopulateValue(list, texts, two), -87);
    EXPECT_EQ(RowTexts().size(), 3u) << "sizes are compared before anything changes";

    HostArray holed = Numbers({1, kUnset, 3}, 0);
    EXPECT_EQ(ZelListArrayPopulateValue(list, texts, holed), -1);
    EXPECT_EQ(RowTexts(), (std::vector<std::wstring>{L"a", L"b"})) << "the fill ends at the value it could not read";
    EXPECT_EQ(ZelListGetValue(list, 0), 1);
    for (HostArray a : {texts, values, two, holed}) {
        HostArrayDestroy(a);
    }
}

// A host custom list answers the list inside it, and that list is filled.
TEST(ArraysCustomList, TheInnerListTakesThePlace) {
    zkt::TestWindow form{400, 300};
    HWND inner = MakeList(form, Kind::PlainList);
    zkt::TestWindow custom{100, 100};
    custom.onMessage([inner](HWND, UINT m, WPARAM, LPARAM, LRESULT &r) {
        if (m != HostMsgGetListWindow) {
            return false;
        }
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
