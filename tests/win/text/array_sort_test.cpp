// ZelArraySort: what it leaves alone, the locale, shared and null strings.
// The order itself is checked in sort_order_test.
#include "array_support.h"

using namespace arraytest;

namespace {

class Sort : public ArrayTest {};

TEST_F(Sort, StringsFollowTheThreadsLocale) {
    // In Swedish a-umlaut is a letter after z; in English it sorts with a.
    const LCID previous = GetThreadLocale();
    HostArray array = Own(Strings({L"z", L"\x00E4", L"a"}, 1));
    ASSERT_TRUE(SetThreadLocale(MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT)));
    EXPECT_EQ(3, ZelArraySort(array, 0, HOST_TYPE_STRING));
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"\x00E4", L"z"}), TextsOf(array));
    ASSERT_TRUE(SetThreadLocale(MAKELCID(MAKELANGID(LANG_SWEDISH, SUBLANG_SWEDISH), SORT_DEFAULT)));
    EXPECT_EQ(3, ZelArraySort(array, 0, HOST_TYPE_STRING));
    SetThreadLocale(previous);
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"z", L"\x00E4"}), TextsOf(array));
}

TEST_F(Sort, LongStringsAndNullElements) {
    HostArray array = Own(Strings({L"b", nullptr, L"a", L""}, 0, HOST_TYPE_LONGSTRING));
    EXPECT_EQ(4, ZelArraySort(array, 0, HOST_TYPE_LONGSTRING));
    // No string reads as the empty text and ties with it.
    EXPECT_EQ((std::vector<std::wstring>{L"<null>", L"", L"a", L"b"}), TextsOf(array));
}

TEST_F(Sort, SharedHandlesKeepTheirCounts) {
    // One string in three slots of one array, as after appending to itself.
    HostArray array = Own(Strings({L"z", L"a"}));
    ASSERT_EQ(4, ZelArrayAppend(array, array, HOST_TYPE_STRING));
    HostArray more = Strings({L"m", L"z"});
    ASSERT_EQ(6, ZelArrayAppend(more, array, HOST_TYPE_STRING));
    HostArrayDestroy(more);
    const std::vector<HostStr> before = HandlesOf(array);
    const std::vector<int32_t> refs = RefsOf(before);
    EXPECT_EQ(6, ZelArraySort(array, 0, HOST_TYPE_STRING));
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"a", L"m", L"z", L"z", L"z"}), TextsOf(array));
    EXPECT_EQ(refs, RefsOf(before));
}

TEST_F(Sort, OneElementEmptyMultiDimensionalOrUnknown) {
    HostArray one = Own(Longs({4}, 9)), empty = Own(HostArrayCreate(HOST_TYPE_NUMBER)),
              wide = Own(TwoDimensional(HOST_TYPE_NUMBER));
    EXPECT_EQ(1, ZelArraySort(one, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(1, ZelArraySort(one, 7, 999));
    EXPECT_EQ((std::vector<int32_t>{4}), LongsOf(one));
    EXPECT_EQ(-1, ZelArraySort(empty, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArraySort(wide, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArraySort(DeadArray(), 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArraySort(0, 0, HOST_TYPE_STRING));
}

TEST_F(Sort, OtherDirectionsChangeNothing) {
    HostArray array = Own(Strings({L"c", L"a", L"b"}, 4));
    const std::vector<HostStr> handles = HandlesOf(array);
    for (int32_t direction : {2, -1, INT32_MAX}) {
        EXPECT_EQ(3, ZelArraySort(array, direction, HOST_TYPE_STRING)) << direction;
        EXPECT_EQ(handles, HandlesOf(array));
    }
}

TEST_F(Sort, FlagsHandlesAndUnknownTypesAreNotSorted) {
    for (int32_t type : {HOST_TYPE_BOOLEAN, HOST_TYPE_HANDLE}) {
        HostArray words = Own(Words(type, {3, 1, 2}));
        EXPECT_EQ(3, ZelArraySort(words, 0, type));
        EXPECT_EQ((std::vector<uint32_t>{3, 1, 2}), WordsOf(words, type));
    }
    HostArray numbers = Own(Longs({3, 1, 2}));
    EXPECT_EQ(3, ZelArraySort(numbers, 0, 4));
    // Numbers read as strings are all missing, so all equal: nothing moves.
    EXPECT_EQ(3, ZelArraySort(numbers, 0, HOST_TYPE_STRING));
    EXPECT_EQ((std::vector<int32_t>{3, 1, 2}), LongsOf(numbers));
}

} // namespace
