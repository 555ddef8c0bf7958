// ZelArraySort: what it sorts and what it leaves alone.
#include "array_support.h"

using namespace arraytest;

namespace {

class Sort : public ArrayTest {};

TEST_F(Sort, NumbersBothWaysKeepingTheBounds) {
    HostArray array = Longs({5, -2, 9, 0, 3}, 3);
    EXPECT_EQ(5, ZelArraySort(array, ZEL_SORT_ASCENDING, HOST_TYPE_NUMBER));
    EXPECT_EQ((Bounds{5, 3, 7}), BoundsOf(array));
    EXPECT_EQ((std::vector<int32_t>{-2, 0, 3, 5, 9}), LongsOf(array));
    EXPECT_EQ(5, ZelArraySort(array, ZEL_SORT_DESCENDING, HOST_TYPE_NUMBER));
    EXPECT_EQ((std::vector<int32_t>{9, 5, 3, 0, -2}), LongsOf(array));
    EXPECT_EQ((Bounds{5, 3, 7}), BoundsOf(array));
    HostArrayDestroy(array);
}

TEST_F(Sort, NumbersEqualAsDoublesKeepTheirOrder) {
    // Different host numbers, one double: ties in both directions.
    const HostNumber a = Number(L"0.1000000000000000000001"), b = Number(L"0.1"),
                     c = Number(L"0.10000000000000000000001"), small = Number(L"0.05");
    ASSERT_FALSE(SameRecord(a, b));
    HostArray array = HostArrayCreate(HOST_TYPE_NUMBER);
    HostArraySetBounds(array, 10, 9);
    const HostNumber input[] = {a, b, small, c};
    for (int32_t i = 0; i < 4; ++i)
        HostArraySetNumber(array, &input[i], 10 + i);
    for (int32_t direction : {0, 1}) {
        EXPECT_EQ(4, ZelArraySort(array, direction, HOST_TYPE_NUMBER));
        HostNumber read[4];
        for (int32_t i = 0; i < 4; ++i)
            HostArrayGetNumber(array, &read[i], 10 + i);
        const int tie = direction == 0 ? 1 : 0; // where the three ties start
        EXPECT_TRUE(SameRecord(a, read[tie])) << direction;
        EXPECT_TRUE(SameRecord(b, read[tie + 1])) << direction;
        EXPECT_TRUE(SameRecord(c, read[tie + 2])) << direction;
        EXPECT_TRUE(SameRecord(small, read[direction == 0 ? 0 : 3])) << direction;
    }
    HostArrayDestroy(array);
}

TEST_F(Sort, DatesInTimeOrder) {
    HostDateTime days[3]{};
    HostDateConstruct(&days[0], 2001, 1, 1, 0, 0, 0);
    HostDateConstruct(&days[1], 1999, 12, 31, 23, 59, 59);
    HostDateConstruct(&days[2], 2000, 6, 15, 12, 0, 0);
    HostArray array = HostArrayCreate(HOST_TYPE_DATETIME);
    HostArraySetBounds(array, -1, 1);
    for (int32_t i = 0; i < 3; ++i)
        HostArraySetDateTime(array, &days[i], -1 + i);
    EXPECT_EQ(3, ZelArraySort(array, 0, HOST_TYPE_DATETIME));
    HostDateTime read{};
    for (int32_t i = 0; i < 3; ++i) {
        HostArrayGetDateTime(array, &read, -1 + i);
        EXPECT_TRUE(SameRecord(days[(i + 1) % 3], read)) << i;
    }
    HostArrayDestroy(array);
}

TEST_F(Sort, StringsIgnoreCaseAndKeepReferences) {
    HostArray array = Strings({L"pear", L"Apple", L"banana", L"apple", L"PEAR"}, -2);
    const std::vector<HostStr> handles = HandlesOf(array);
    EXPECT_EQ(5, ZelArraySort(array, 0, HOST_TYPE_STRING));
    EXPECT_EQ((std::vector<std::wstring>{L"Apple", L"apple", L"banana", L"pear", L"PEAR"}), TextsOf(array));
    EXPECT_EQ((std::vector<int32_t>{1, 1, 1, 1, 1}), RefsOf(handles));
    EXPECT_EQ(5, ZelArraySort(array, 1, HOST_TYPE_STRING));
    EXPECT_EQ((std::vector<std::wstring>{L"pear", L"PEAR", L"banana", L"Apple", L"apple"}), TextsOf(array));
    EXPECT_EQ((std::vector<int32_t>{1, 1, 1, 1, 1}), RefsOf(handles));
    HostArrayDestroy(array);
}

TEST_F(Sort, StringsFollowTheThreadsLocale) {
    // In Swedish a-umlaut is a letter after z; in English it sorts with a.
    const LCID previous = GetThreadLocale();
    HostArray array = Strings({L"z", L"\x00E4", L"a"}, 1);
    ASSERT_TRUE(SetThreadLocale(MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT)));
    EXPECT_EQ(3, ZelArraySort(array, 0, HOST_TYPE_STRING));
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"\x00E4", L"z"}), TextsOf(array));
    ASSERT_TRUE(SetThreadLocale(MAKELCID(MAKELANGID(LANG_SWEDISH, SUBLANG_SWEDISH), SORT_DEFAULT)));
    EXPECT_EQ(3, ZelArraySort(array, 0, HOST_TYPE_STRING));
    SetThreadLocale(previous);
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"z", L"\x00E4"}), TextsOf(array));
    HostArrayDestroy(array);
}

TEST_F(Sort, LongStringsAndNullElements) {
    HostArray array = Strings({L"b", nullptr, L"a", L""}, 0, HOST_TYPE_LONGSTRING);
    EXPECT_EQ(4, ZelArraySort(array, 0, HOST_TYPE_LONGSTRING));
    // No string reads as the empty text and ties with it.
    EXPECT_EQ((std::vector<std::wstring>{L"<null>", L"", L"a", L"b"}), TextsOf(array));
    HostArrayDestroy(array);
}

TEST_F(Sort, SharedHandlesKeepTheirCounts) {
    // One string in three slots of one array, as after appending to itself.
    HostArray array = Strings({L"z", L"a"});
    ASSERT_EQ(4, ZelArrayAppend(array, array, HOST_TYPE_STRING));
    HostArray more = Strings({L"m", L"z"});
    ASSERT_EQ(6, ZelArrayAppend(more, array, HOST_TYPE_STRING));
    HostArrayDestroy(more);
    const std::vector<HostStr> before = HandlesOf(array);
    const std::vector<int32_t> refs = RefsOf(before);
    EXPECT_EQ(6, ZelArraySort(array, 0, HOST_TYPE_STRING));
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"a", L"m", L"z", L"z", L"z"}), TextsOf(array));
    EXPECT_EQ(refs, RefsOf(before));
    HostArrayDestroy(array);
}

TEST_F(Sort, OneElementEmptyMultiDimensionalOrUnknown) {
    HostArray one = Longs({4}, 9), empty = HostArrayCreate(HOST_TYPE_NUMBER), wide = TwoDimensional(HOST_TYPE_NUMBER);
    EXPECT_EQ(1, ZelArraySort(one, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(1, ZelArraySort(one, 7, 999));
    EXPECT_EQ((std::vector<int32_t>{4}), LongsOf(one));
    EXPECT_EQ(-1, ZelArraySort(empty, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArraySort(wide, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArraySort(DeadArray(), 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArraySort(0, 0, HOST_TYPE_STRING));
    HostArrayDestroy(one);
    HostArrayDestroy(empty);
    HostArrayDestroy(wide);
}

TEST_F(Sort, OtherDirectionsChangeNothing) {
    HostArray array = Strings({L"c", L"a", L"b"}, 4);
    const std::vector<HostStr> handles = HandlesOf(array);
    for (int32_t direction : {2, -1, INT32_MAX}) {
        EXPECT_EQ(3, ZelArraySort(array, direction, HOST_TYPE_STRING)) << direction;
        EXPECT_EQ(handles, HandlesOf(array));
    }
    HostArrayDestroy(array);
}

TEST_F(Sort, FlagsHandlesAndUnknownTypesAreNotSorted) {
    for (int32_t type : {HOST_TYPE_BOOLEAN, HOST_TYPE_HANDLE}) {
        HostArray words = Words(type, {3, 1, 2});
        EXPECT_EQ(3, ZelArraySort(words, 0, type));
        EXPECT_EQ((std::vector<uint32_t>{3, 1, 2}), WordsOf(words, type));
        HostArrayDestroy(words);
    }
    HostArray numbers = Longs({3, 1, 2});
    EXPECT_EQ(3, ZelArraySort(numbers, 0, 4));
    // Numbers read as strings are all missing, so all equal: nothing moves.
    EXPECT_EQ(3, ZelArraySort(numbers, 0, HOST_TYPE_STRING));
    EXPECT_EQ((std::vector<int32_t>{3, 1, 2}), LongsOf(numbers));
    HostArrayDestroy(numbers);
}

} // namespace
