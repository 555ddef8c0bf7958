// ZelArrayDeleteItem and ZelArrayInsertItem: elements shifted inside one
// array, the range test, and the types that cannot move.
#include "array_support.h"

using namespace arraytest;

namespace {

class Delete : public ArrayTest {};
class Insert : public ArrayTest {};

HostDateTime Day(int year) {
    HostDateTime d{};
    HostDateConstruct(&d, year, 2, 3, 4, 5, 6);
    return d;
}

TEST_F(Delete, StringInTheMiddleIsReleased) {
    HostArray array = Own(Strings({L"a", L"b", L"c", L"d"}, 3));
    const std::vector<HostStr> handles = HandlesOf(array);
    EXPECT_EQ(3, ZelArrayDeleteItem(array, 4, HOST_TYPE_STRING));
    EXPECT_EQ((Bounds{3, 3, 5}), BoundsOf(array));
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"c", L"d"}), TextsOf(array));
    EXPECT_EQ((std::vector<int32_t>{1, 0, 1, 1}), RefsOf(handles));
    HostArray only = Own(Strings({L"only"}, 6, HOST_TYPE_LONGSTRING));
    EXPECT_EQ(0, ZelArrayDeleteItem(only, 6, HOST_TYPE_LONGSTRING));
    EXPECT_EQ(1, HostArrayIsEmpty(only));
}

TEST_F(Delete, FirstAndLastOfEveryType) {
    HostArray numbers = Own(Longs({1, 2, 3}, -2));
    EXPECT_EQ(2, ZelArrayDeleteItem(numbers, -2, HOST_TYPE_NUMBER));
    EXPECT_EQ(1, ZelArrayDeleteItem(numbers, -1, HOST_TYPE_NUMBER));
    EXPECT_EQ((std::vector<int32_t>{2}), LongsOf(numbers));
    for (int32_t type : {HOST_TYPE_BOOLEAN, HOST_TYPE_HANDLE}) {
        HostArray words = Own(Words(type, {10, 20, 30}, 1));
        EXPECT_EQ(2, ZelArrayDeleteItem(words, 1, type));
        EXPECT_EQ((std::vector<uint32_t>{20, 30}), WordsOf(words, type));
        EXPECT_EQ((Bounds{2, 1, 2}), BoundsOf(words));
    }
    HostArray dates = Own(HostArrayCreate(HOST_TYPE_DATETIME));
    const HostDateTime a = Day(2000), b = Day(2001);
    HostDateTime read{};
    HostArraySetDateTime(dates, &a, 0);
    HostArraySetDateTime(dates, &b, 1);
    EXPECT_EQ(1, ZelArrayDeleteItem(dates, 0, HOST_TYPE_DATETIME));
    HostArrayGetDateTime(dates, &read, 0);
    EXPECT_TRUE(SameRecord(b, read));
}

TEST_F(Delete, Failures) {
    HostArray array = Own(Longs({1, 2}, 5));
    for (int32_t index : {4, 7, INT32_MIN, INT32_MAX})
        EXPECT_EQ(-87, ZelArrayDeleteItem(array, index, HOST_TYPE_NUMBER)) << index;
    EXPECT_EQ((std::vector<int32_t>{1, 2}), LongsOf(array));
    HostArray empty = Own(HostArrayCreate(HOST_TYPE_NUMBER)), wide = Own(TwoDimensional(HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArrayDeleteItem(empty, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArrayDeleteItem(wide, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArrayDeleteItem(DeadArray(), 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArrayDeleteItem(0, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ((Bounds{3, 0, 2}), BoundsOf(wide));
}

TEST_F(Delete, BadTypeFailsOnlyWhenAMoveIsNeeded) {
    for (int32_t type : {4, 257, 0}) {
        HostArray array = Own(Longs({1, 2, 3}));
        EXPECT_EQ(-87, ZelArrayDeleteItem(array, 0, type)) << type;
        EXPECT_EQ((std::vector<int32_t>{1, 2, 3}), LongsOf(array)) << "nothing moved";
        EXPECT_EQ(2, ZelArrayDeleteItem(array, 2, type)) << "the last element needs no move";
        EXPECT_EQ((std::vector<int32_t>{1, 2}), LongsOf(array));
    }
}

TEST_F(Insert, ShiftsUpAndLeavesTheSlotEmpty) {
    HostArray array = Own(Strings({L"a", L"b", L"c"}, 2));
    const std::vector<HostStr> handles = HandlesOf(array);
    EXPECT_EQ(4, ZelArrayInsertItem(array, 2, HOST_TYPE_STRING));
    EXPECT_EQ((Bounds{4, 2, 5}), BoundsOf(array));
    EXPECT_EQ((std::vector<std::wstring>{L"<null>", L"a", L"b", L"c"}), TextsOf(array));
    EXPECT_EQ((std::vector<int32_t>{1, 1, 1}), RefsOf(handles));
    HostArray numbers = Own(Longs({1, 2, 3}, -1));
    EXPECT_EQ(4, ZelArrayInsertItem(numbers, 1, HOST_TYPE_NUMBER)); // at high: the last moves only
    EXPECT_EQ((Bounds{4, -1, 2}), BoundsOf(numbers));
    EXPECT_EQ((std::vector<int32_t>{1, 2, kNull, 3}), LongsOf(numbers));
    for (int32_t type : {HOST_TYPE_BOOLEAN, HOST_TYPE_HANDLE}) {
        HostArray words = Own(Words(type, {10, 20}));
        EXPECT_EQ(3, ZelArrayInsertItem(words, 1, type));
        EXPECT_EQ((std::vector<uint32_t>{10, 0, 20}), WordsOf(words, type));
    }
    HostArray dates = Own(HostArrayCreate(HOST_TYPE_DATETIME));
    const HostDateTime day = Day(1999);
    HostDateTime first{}, second{};
    HostArraySetDateTime(dates, &day, 0);
    EXPECT_EQ(2, ZelArrayInsertItem(dates, 0, HOST_TYPE_DATETIME));
    HostArrayGetDateTime(dates, &first, 0);
    HostArrayGetDateTime(dates, &second, 1);
    EXPECT_EQ(0, first.length);
    EXPECT_TRUE(SameRecord(day, second));
}

TEST_F(Insert, Failures) {
    HostArray array = Own(Longs({1, 2}, 3)), empty = Own(HostArrayCreate(HOST_TYPE_NUMBER));
    for (int32_t index : {2, 5 /* not after the last */, INT32_MIN})
        EXPECT_EQ(-87, ZelArrayInsertItem(array, index, HOST_TYPE_NUMBER)) << index;
    EXPECT_EQ(-87, ZelArrayInsertItem(empty, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ((std::vector<int32_t>{1, 2}), LongsOf(array));
    EXPECT_EQ(1, HostArrayIsEmpty(empty));
    // A bad type always fails.
    HostArray strings = Own(Strings({L"a", L"b"}));
    const std::vector<HostStr> handles = HandlesOf(strings);
    for (int32_t type : {4, 6, 1000, -1})
        EXPECT_EQ(-87, ZelArrayInsertItem(strings, 1, type)) << type;
    EXPECT_EQ(handles, HandlesOf(strings));
    EXPECT_EQ((std::vector<int32_t>{1, 1}), RefsOf(handles));
    HostArray wide = Own(TwoDimensional(HOST_TYPE_STRING));
    EXPECT_EQ(-1, ZelArrayInsertItem(wide, 0, HOST_TYPE_STRING));
    EXPECT_EQ(-1, ZelArrayInsertItem(DeadArray(), 0, HOST_TYPE_STRING));
    EXPECT_EQ((Bounds{3, 0, 2}), BoundsOf(wide));
}

TEST_F(Insert, ThenDeleteRestoresTheStrings) {
    HostArray array = Own(Strings({L"a", L"b", L"c", L"d", L"e"}, -10));
    const std::vector<HostStr> handles = HandlesOf(array);
    for (int32_t index = -10; index <= -6; ++index) {
        EXPECT_EQ(6, ZelArrayInsertItem(array, index, HOST_TYPE_STRING));
        EXPECT_EQ(5, ZelArrayDeleteItem(array, index, HOST_TYPE_STRING));
        EXPECT_EQ(handles, HandlesOf(array)) << index;
        EXPECT_EQ((std::vector<int32_t>{1, 1, 1, 1, 1}), RefsOf(handles)) << index;
    }
}

} // namespace
