// ZelArrayDeleteItem and ZelArrayInsertItem: elements shifted inside one
// array, the range test, and the types that cannot move.
#include "array_support.h"

using namespace arraytest;

namespace {

class Delete : public ArrayTest {};
class Insert : public ArrayTest {};

TEST_F(Delete, StringInTheMiddle) {
    HostArray array = Strings({L"a", L"b", L"c", L"d"}, 3);
    const std::vector<HostStr> handles = HandlesOf(array);
    EXPECT_EQ(3, ZelArrayDeleteItem(array, 4, HOST_TYPE_STRING));
    EXPECT_EQ((Bounds{3, 3, 5}), BoundsOf(array));
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"c", L"d"}), TextsOf(array));
    EXPECT_EQ(0, ZkHostStrRefs(handles[1])) << "the deleted string is released";
    EXPECT_EQ((std::vector<int32_t>{1, 0, 1, 1}), RefsOf(handles));
    HostArrayDestroy(array);
}

TEST_F(Delete, FirstAndLastOfEveryType) {
    HostArray numbers = Longs({1, 2, 3}, -2);
    EXPECT_EQ(2, ZelArrayDeleteItem(numbers, -2, HOST_TYPE_NUMBER));
    EXPECT_EQ((std::vector<int32_t>{2, 3}), LongsOf(numbers));
    EXPECT_EQ(1, ZelArrayDeleteItem(numbers, -1, HOST_TYPE_NUMBER));
    EXPECT_EQ((std::vector<int32_t>{2}), LongsOf(numbers));
    HostArrayDestroy(numbers);
    for (int32_t type : {HOST_TYPE_BOOLEAN, HOST_TYPE_HANDLE}) {
        HostArray words = Words(type, {10, 20, 30}, 1);
        EXPECT_EQ(2, ZelArrayDeleteItem(words, 1, type));
        EXPECT_EQ((std::vector<uint32_t>{20, 30}), WordsOf(words, type));
        EXPECT_EQ((Bounds{2, 1, 2}), BoundsOf(words));
        HostArrayDestroy(words);
    }
    HostArray dates = HostArrayCreate(HOST_TYPE_DATETIME);
    HostDateTime a{}, b{};
    HostDateConstruct(&a, 2000, 1, 1, 0, 0, 0);
    HostDateConstruct(&b, 2001, 2, 3, 4, 5, 6);
    HostArraySetDateTime(dates, &a, 0);
    HostArraySetDateTime(dates, &b, 1);
    EXPECT_EQ(1, ZelArrayDeleteItem(dates, 0, HOST_TYPE_DATETIME));
    HostDateTime read{};
    HostArrayGetDateTime(dates, &read, 0);
    EXPECT_TRUE(SameRecord(b, read));
    HostArrayDestroy(dates);
}

TEST_F(Delete, OnlyElementLeavesAnEmptyArray) {
    HostArray array = Strings({L"only"}, 6, HOST_TYPE_LONGSTRING);
    EXPECT_EQ(0, ZelArrayDeleteItem(array, 6, HOST_TYPE_LONGSTRING));
    EXPECT_EQ(1, HostArrayIsEmpty(array));
    HostArrayDestroy(array);
}

TEST_F(Delete, IndexOutsideTheBounds) {
    HostArray array = Longs({1, 2}, 5);
    EXPECT_EQ(-87, ZelArrayDeleteItem(array, 4, HOST_TYPE_NUMBER));
    EXPECT_EQ(-87, ZelArrayDeleteItem(array, 7, HOST_TYPE_NUMBER));
    EXPECT_EQ(-87, ZelArrayDeleteItem(array, INT32_MIN, HOST_TYPE_NUMBER));
    EXPECT_EQ(-87, ZelArrayDeleteItem(array, INT32_MAX, HOST_TYPE_NUMBER));
    EXPECT_EQ((std::vector<int32_t>{1, 2}), LongsOf(array));
    HostArrayDestroy(array);
}

TEST_F(Delete, EmptyMultiDimensionalOrUnknownArrays) {
    HostArray empty = HostArrayCreate(HOST_TYPE_NUMBER), wide = TwoDimensional(HOST_TYPE_NUMBER);
    EXPECT_EQ(-1, ZelArrayDeleteItem(empty, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArrayDeleteItem(wide, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArrayDeleteItem(DeadArray(), 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArrayDeleteItem(0, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ((Bounds{3, 0, 2}), BoundsOf(wide));
    HostArrayDestroy(empty);
    HostArrayDestroy(wide);
}

TEST_F(Delete, BadTypeFailsOnlyWhenAMoveIsNeeded) {
    for (int32_t type : {4, 257, 0}) {
        HostArray array = Longs({1, 2, 3});
        EXPECT_EQ(-87, ZelArrayDeleteItem(array, 0, type)) << type;
        EXPECT_EQ((std::vector<int32_t>{1, 2, 3}), LongsOf(array)) << "nothing moved";
        EXPECT_EQ(2, ZelArrayDeleteItem(array, 2, type)) << "the last element needs no move";
        EXPECT_EQ((std::vector<int32_t>{1, 2}), LongsOf(array));
        HostArrayDestroy(array);
    }
}

TEST_F(Insert, AtLowShiftsEverythingUpAndLeavesANullFirst) {
    HostArray array = Strings({L"a", L"b", L"c"}, 2);
    const std::vector<HostStr> handles = HandlesOf(array);
    EXPECT_EQ(4, ZelArrayInsertItem(array, 2, HOST_TYPE_STRING));
    EXPECT_EQ((Bounds{4, 2, 5}), BoundsOf(array));
    EXPECT_EQ((std::vector<std::wstring>{L"<null>", L"a", L"b", L"c"}), TextsOf(array));
    EXPECT_EQ((std::vector<int32_t>{1, 1, 1}), RefsOf(handles));
    HostArrayDestroy(array);
}

TEST_F(Insert, AtHighMovesTheLastOnly) {
    HostArray numbers = Longs({1, 2, 3}, -1);
    EXPECT_EQ(4, ZelArrayInsertItem(numbers, 1, HOST_TYPE_NUMBER));
    EXPECT_EQ((Bounds{4, -1, 2}), BoundsOf(numbers));
    EXPECT_EQ((std::vector<int32_t>{1, 2, kNull, 3}), LongsOf(numbers));
    HostArrayDestroy(numbers);
}

TEST_F(Insert, FlagsHandlesAndDatesClearTheSlot) {
    for (int32_t type : {HOST_TYPE_BOOLEAN, HOST_TYPE_HANDLE}) {
        HostArray words = Words(type, {10, 20});
        EXPECT_EQ(3, ZelArrayInsertItem(words, 1, type));
        EXPECT_EQ((std::vector<uint32_t>{10, 0, 20}), WordsOf(words, type));
        HostArrayDestroy(words);
    }
    HostArray dates = HostArrayCreate(HOST_TYPE_DATETIME);
    HostDateTime day{};
    HostDateConstruct(&day, 1999, 12, 31, 23, 59, 59);
    HostArraySetDateTime(dates, &day, 0);
    EXPECT_EQ(2, ZelArrayInsertItem(dates, 0, HOST_TYPE_DATETIME));
    HostDateTime first{}, second{};
    HostArrayGetDateTime(dates, &first, 0);
    HostArrayGetDateTime(dates, &second, 1);
    EXPECT_EQ(0, first.length);
    EXPECT_TRUE(SameRecord(day, second));
    HostArrayDestroy(dates);
}

TEST_F(Insert, OutsideTheBoundsOrEmpty) {
    HostArray array = Longs({1, 2}, 3), empty = HostArrayCreate(HOST_TYPE_NUMBER);
    EXPECT_EQ(-87, ZelArrayInsertItem(array, 2, HOST_TYPE_NUMBER));
    EXPECT_EQ(-87, ZelArrayInsertItem(array, 5, HOST_TYPE_NUMBER)) << "not after the last";
    EXPECT_EQ(-87, ZelArrayInsertItem(array, INT32_MIN, HOST_TYPE_NUMBER));
    EXPECT_EQ(-87, ZelArrayInsertItem(empty, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ((std::vector<int32_t>{1, 2}), LongsOf(array));
    EXPECT_EQ(1, HostArrayIsEmpty(empty));
    HostArrayDestroy(array);
    HostArrayDestroy(empty);
}

TEST_F(Insert, BadTypeAlwaysFails) {
    HostArray array = Strings({L"a", L"b"});
    const std::vector<HostStr> handles = HandlesOf(array);
    for (int32_t type : {4, 6, 1000, -1}) {
        EXPECT_EQ(-87, ZelArrayInsertItem(array, 1, type)) << type;
        EXPECT_EQ(handles, HandlesOf(array));
    }
    EXPECT_EQ((std::vector<int32_t>{1, 1}), RefsOf(handles));
    HostArrayDestroy(array);
}

TEST_F(Insert, MultiDimensionalOrUnknownArrays) {
    HostArray wide = TwoDimensional(HOST_TYPE_STRING);
    EXPECT_EQ(-1, ZelArrayInsertItem(wide, 0, HOST_TYPE_STRING));
    EXPECT_EQ(-1, ZelArrayInsertItem(DeadArray(), 0, HOST_TYPE_STRING));
    EXPECT_EQ((Bounds{3, 0, 2}), BoundsOf(wide));
    HostArrayDestroy(wide);
}

TEST_F(Insert, ThenDeleteRestoresTheStrings) {
    HostArray array = Strings({L"a", L"b", L"c", L"d", L"e"}, -10);
    const std::vector<HostStr> handles = HandlesOf(array);
    for (int32_t index = -10; index <= -6; ++index) {
        EXPECT_EQ(6, ZelArrayInsertItem(array, index, HOST_TYPE_STRING));
        EXPECT_EQ(5, ZelArrayDeleteItem(array, index, HOST_TYPE_STRING));
        EXPECT_EQ(handles, HandlesOf(array)) << index;
        EXPECT_EQ((std::vector<int32_t>{1, 1, 1, 1, 1}), RefsOf(handles)) << index;
    }
    HostArrayDestroy(array);
}

} // namespace
