// The array exports that change arrays: ZelArrayAppend and ZelArrayCopy
// (elements of every type moved to another array, strings shared with a
// reference per slot), ZelArrayDeleteItem and ZelArrayInsertItem (elements
// shifted inside one array, the range test, the types that cannot move),
// ZelArrayFill* from index 0, and ZelArrayFind* from low upward.
#include "array_support.h"

using namespace arraytest;

namespace {

class Append : public ArrayTest {};
class Copy : public ArrayTest {};

TEST_F(Append, NumbersFollowTheDestinationsLastOrStartAtZero) {
    HostArray source = Own(Longs({1, 2, 3}, 5)), destination = Own(Longs({9}, 2));
    EXPECT_EQ(4, ZelArrayAppend(source, destination, HOST_TYPE_NUMBER));
    EXPECT_EQ((Bounds{4, 2, 5}), BoundsOf(destination));
    EXPECT_EQ((std::vector<int32_t>{9, 1, 2, 3}), LongsOf(destination));
    EXPECT_EQ((std::vector<int32_t>{1, 2, 3}), LongsOf(source));
    HostArray empty = Own(HostArrayCreate(HOST_TYPE_NUMBER));
    EXPECT_EQ(3, ZelArrayAppend(source, empty, HOST_TYPE_NUMBER));
    EXPECT_EQ((Bounds{3, 0, 2}), BoundsOf(empty));
    EXPECT_EQ(0, ZelArrayAppend(Own(HostArrayCreate(HOST_TYPE_NUMBER)), destination, HOST_TYPE_NUMBER));
    EXPECT_EQ((Bounds{4, 2, 5}), BoundsOf(destination));
}

TEST_F(Append, StringsAreSharedWithAReferenceEach) {
    HostArray source = Strings({L"a", L"b"}, -3), destination = Own(Strings({L"x"}, 1));
    const std::vector<HostStr> handles = HandlesOf(source);
    EXPECT_EQ(3, ZelArrayAppend(source, destination, HOST_TYPE_STRING));
    EXPECT_EQ((Bounds{3, 1, 3}), BoundsOf(destination));
    EXPECT_EQ((std::vector<HostStr>{HandlesOf(destination)[0], handles[0], handles[1]}), HandlesOf(destination));
    EXPECT_EQ((std::vector<int32_t>{2, 2}), RefsOf(handles));
    HostArrayDestroy(source);
    EXPECT_EQ((std::vector<int32_t>{1, 1}), RefsOf(handles));
    // Onto itself the array doubles.
    EXPECT_EQ(6, ZelArrayAppend(destination, destination, HOST_TYPE_STRING));
    EXPECT_EQ((std::vector<std::wstring>{L"x", L"a", L"b", L"x", L"a", L"b"}), TextsOf(destination));
    EXPECT_EQ((std::vector<int32_t>{2, 2}), RefsOf(handles));
}

TEST_F(Append, FlagsHandlesAndDates) {
    for (int32_t type : {HOST_TYPE_BOOLEAN, HOST_TYPE_HANDLE}) {
        HostArray source = Own(Words(type, {0, 1, 0xFFFFFFFFu})), destination = Own(Words(type, {7}, -1));
        EXPECT_EQ(4, ZelArrayAppend(source, destination, type)) << type;
        EXPECT_EQ((std::vector<uint32_t>{7, 0, 1, 0xFFFFFFFFu}), WordsOf(destination, type)) << type;
    }
    HostDateTime day{}, read{};
    HostDateConstruct(&day, 2021, 3, 4, 5, 6, 7);
    HostArray source = Own(HostArrayCreate(HOST_TYPE_DATETIME)), destination = Own(HostArrayCreate(HOST_TYPE_DATETIME));
    HostArraySetBounds(source, 3, 2);
    HostArraySetDateTime(source, &day, 3);
    EXPECT_EQ(1, ZelArrayAppend(source, destination, HOST_TYPE_DATETIME));
    HostArrayGetDateTime(destination, &read, 0);
    EXPECT_TRUE(SameRecord(day, read));
}

TEST_F(Append, UnknownTypeMovesNothingButTheBoundsGrow) {
    for (int32_t type : {4, 300, 0, -5}) {
        HostArray source = Own(Longs({1, 2})), destination = Own(Longs({9}));
        EXPECT_EQ(3, ZelArrayAppend(source, destination, type)) << type;
        EXPECT_EQ((std::vector<int32_t>{9, kNull, kNull}), LongsOf(destination)) << type;
    }
}

TEST_F(Copy, IndicesAndBoundsAreTheSources) {
    HostArray source = Own(Longs({5, 6, 7, 8, 9}, 5)), destination = Own(Longs({1, 2, 3}));
    EXPECT_EQ(5, ZelArrayCopy(source, destination, HOST_TYPE_NUMBER));
    EXPECT_EQ((Bounds{5, 5, 9}), BoundsOf(destination));
    EXPECT_EQ((std::vector<int32_t>{5, 6, 7, 8, 9}), LongsOf(destination));
    for (int32_t type : {HOST_TYPE_BOOLEAN, HOST_TYPE_HANDLE}) {
        HostArray words = Own(Words(type, {3, 0, 1}, 1)), copy = Own(HostArrayCreate(type));
        EXPECT_EQ(3, ZelArrayCopy(words, copy, type));
        EXPECT_EQ((Bounds{3, 1, 3}), BoundsOf(copy));
        EXPECT_EQ((std::vector<uint32_t>{3, 0, 1}), WordsOf(copy, type));
    }
    // An unknown type copies only the bounds.
    HostArray other = Own(Longs({7}));
    EXPECT_EQ(5, ZelArrayCopy(source, other, 6));
    EXPECT_EQ((Bounds{5, 5, 9}), BoundsOf(other));
    EXPECT_EQ((std::vector<int32_t>(5, kNull)), LongsOf(other));
}

TEST_F(Copy, StringsAreSharedAndTheOldContentReleased) {
    HostArray source = Strings({L"a", L"b", L"c"}, -1), destination = Own(Strings({L"old1", L"old2"}, 10));
    const std::vector<HostStr> handles = HandlesOf(source), old = HandlesOf(destination);
    EXPECT_EQ(3, ZelArrayCopy(source, destination, HOST_TYPE_STRING));
    EXPECT_EQ(handles, HandlesOf(destination));
    EXPECT_EQ((Bounds{3, -1, 1}), BoundsOf(destination));
    EXPECT_EQ((std::vector<int32_t>{2, 2, 2}), RefsOf(handles));
    EXPECT_EQ((std::vector<int32_t>{0, 0}), RefsOf(old)) << "the destination's strings are gone";
    HostArrayDestroy(source);
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"b", L"c"}), TextsOf(destination));
    // Onto itself nothing changes; an empty source empties the destination.
    EXPECT_EQ(3, ZelArrayCopy(destination, destination, HOST_TYPE_STRING));
    EXPECT_EQ(handles, HandlesOf(destination));
    EXPECT_EQ((std::vector<int32_t>{1, 1, 1}), RefsOf(handles));
    EXPECT_EQ(0, ZelArrayCopy(Own(HostArrayCreate(HOST_TYPE_STRING)), destination, HOST_TYPE_STRING));
    EXPECT_EQ(1, HostArrayIsEmpty(destination));
}

TEST_F(Copy, MultiDimensionalOrUnknownArraysFailForBoth) {
    HostArray flat = Own(Longs({1, 2})), wide = Own(TwoDimensional(HOST_TYPE_NUMBER));
    for (auto call : {ZelArrayCopy, ZelArrayAppend}) {
        EXPECT_EQ(-1, call(wide, flat, HOST_TYPE_NUMBER));
        EXPECT_EQ(-1, call(flat, wide, HOST_TYPE_NUMBER));
        EXPECT_EQ(-1, call(DeadArray(), flat, HOST_TYPE_NUMBER));
        EXPECT_EQ(-1, call(flat, 0, HOST_TYPE_NUMBER));
    }
    EXPECT_EQ((std::vector<int32_t>{1, 2}), LongsOf(flat));
    EXPECT_EQ((Bounds{3, 0, 2}), BoundsOf(wide));
}

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

class Fill : public ArrayTest {};
class Find : public ArrayTest {};

TEST_F(Fill, StringsAreNewAndUnsharedFromZero) {
    HostArray array = Own(Strings({L"o1", L"o2", L"o3", L"o4", L"o5"}, 2));
    const std::vector<HostStr> old = HandlesOf(array);
    EXPECT_NE(0, ZelArrayFillString(array, L"same", 3));
    EXPECT_EQ((Bounds{3, 0, 2}), BoundsOf(array));
    EXPECT_EQ((std::vector<std::wstring>{L"same", L"same", L"same"}), TextsOf(array));
    const std::vector<HostStr> handles = HandlesOf(array);
    EXPECT_NE(handles[0], handles[1]);
    EXPECT_EQ((std::vector<int32_t>{1, 1, 1}), RefsOf(handles)) << "unshared";
    EXPECT_EQ((std::vector<int32_t>{0, 0, 0, 0, 0}), RefsOf(old));
}

TEST_F(Fill, NumbersAndDates) {
    HostArray numbers = Own(Longs({1, 2}, 7));
    EXPECT_NE(0, ZelArrayFillNumber(numbers, Long(42), 4));
    EXPECT_EQ((Bounds{4, 0, 3}), BoundsOf(numbers));
    EXPECT_EQ((std::vector<int32_t>{42, 42, 42, 42}), LongsOf(numbers));
    HostDateTime day{};
    HostDateConstruct(&day, 2024, 2, 29, 12, 0, 0);
    HostArray dates = Own(HostArrayCreate(HOST_TYPE_DATETIME));
    EXPECT_NE(0, ZelArrayFillDateTime(dates, day, 2));
    for (int32_t i = 0; i < 2; ++i) {
        HostDateTime read{};
        HostArrayGetDateTime(dates, &read, i);
        EXPECT_TRUE(SameRecord(day, read));
    }
}

TEST_F(Fill, CountZeroOrLessEmpties) {
    for (int32_t count : {0, -1, INT32_MIN}) {
        HostArray strings = Own(Strings({L"a", L"b"}, 3));
        EXPECT_NE(0, ZelArrayFillString(strings, L"x", count)) << count;
        EXPECT_EQ(1, HostArrayIsEmpty(strings));
        HostArray numbers = Own(Longs({1}));
        EXPECT_NE(0, ZelArrayFillNumber(numbers, Long(5), count));
        EXPECT_EQ(1, HostArrayIsEmpty(numbers));
    }
}

TEST_F(Fill, ResultIsTheHostsAnswer) {
    // More elements than the reference host holds: it refuses the bounds,
    // and no string is made for slots that cannot be had.
    HostArray array = Own(HostArrayCreate(HOST_TYPE_STRING));
    const int32_t before = ZkHostAllocCalls();
    EXPECT_EQ(0, ZelArrayFillString(array, L"x", INT32_MAX));
    EXPECT_EQ(before, ZkHostAllocCalls());
}

TEST_F(Fill, MultiDimensionalNullTextOrUnknownArray) {
    HostArray wide = Own(TwoDimensional(HOST_TYPE_NUMBER)), strings = Own(Strings({L"keep"}));
    EXPECT_EQ(0, ZelArrayFillNumber(wide, Long(1), 2));
    EXPECT_EQ((Bounds{3, 0, 2}), BoundsOf(wide));
    EXPECT_EQ(0, ZelArrayFillDateTime(DeadArray(), HostDateTime{}, 2));
    EXPECT_EQ(-87, ZelArrayFillString(strings, nullptr, 2));
    EXPECT_EQ((std::vector<std::wstring>{L"keep"}), TextsOf(strings));
}

TEST_F(Find, StringsIgnoreCaseFromLowAndNumbersByValue) {
    HostArray array = Own(Strings({L"xyz", L"abc", L"ABC", nullptr}, 3));
    EXPECT_EQ(4, ZelArrayFindString(array, L"ABC"));
    EXPECT_EQ(3, ZelArrayFindString(array, L"XyZ"));
    EXPECT_EQ(6, ZelArrayFindString(array, L"")) << "no string reads as empty";
    EXPECT_EQ(-1, ZelArrayFindString(array, L"ab"));
    EXPECT_EQ(-1, ZelArrayFindString(array, L"abcd"));
    HostArray numbers = Own(Longs({5, -3, 5, 0}, 1));
    EXPECT_EQ(1, ZelArrayFindNumber(numbers, Long(5)));
    EXPECT_EQ(4, ZelArrayFindNumber(numbers, Long(0)));
    EXPECT_EQ(-1, ZelArrayFindNumber(numbers, Long(6)));
    EXPECT_EQ(2, ZelArrayFindNumber(numbers, Number(L"-3.000")));
    EXPECT_EQ(-1, ZelArrayFindString(numbers, L"1")) << "the wrong type finds nothing";
}

TEST_F(Find, DatesMatchToTheSecond) {
    HostDateTime base{}, later{};
    HostDateConstruct(&base, 2020, 5, 17, 13, 45, 10);
    HostDateConstruct(&later, 2020, 5, 17, 13, 45, 11);
    // A quarter of a second on: the same whole second.
    HostDateTime quarter{};
    quarter.length =
        static_cast<uint8_t>(HostNumberAddDouble(quarter.digits, base.digits, base.length, 0.25 / 86400.0));
    ASSERT_FALSE(SameRecord(base, quarter));
    HostArray array = Own(HostArrayCreate(HOST_TYPE_DATETIME));
    HostArraySetBounds(array, 4, 3);
    HostArraySetDateTime(array, &later, 4);
    HostArraySetDateTime(array, &quarter, 5);
    HostArraySetDateTime(array, &base, 6);
    EXPECT_EQ(5, ZelArrayFindDateTime(array, base));
    EXPECT_EQ(4, ZelArrayFindDateTime(array, later));
    HostDateTime other{};
    HostDateConstruct(&other, 2021, 5, 17, 13, 45, 10);
    EXPECT_EQ(-1, ZelArrayFindDateTime(array, other));
}

TEST_F(Find, EmptyMultiDimensionalUnknownOrNull) {
    HostArray empty = Own(HostArrayCreate(HOST_TYPE_STRING)), wide = Own(TwoDimensional(HOST_TYPE_STRING));
    EXPECT_EQ(-1, ZelArrayFindString(empty, L""));
    EXPECT_EQ(-1, ZelArrayFindString(wide, L""));
    EXPECT_EQ(-1, ZelArrayFindNumber(DeadArray(), Long(0)));
    EXPECT_EQ(-1, ZelArrayFindDateTime(0, HostDateTime{}));
    EXPECT_EQ(-87, ZelArrayFindString(empty, nullptr));
}

} // namespace
