// ZelArrayAppend and ZelArrayCopy: elements of every type moved to another
// array, strings shared with a reference per slot.
#include "array_support.h"

using namespace arraytest;

namespace {

class Append : public ArrayTest {};
class Copy : public ArrayTest {};

TEST_F(Append, NumbersFollowTheDestinationsLast) {
    HostArray source = Longs({1, 2, 3}, 5), destination = Longs({9}, 2);
    EXPECT_EQ(4, ZelArrayAppend(source, destination, HOST_TYPE_NUMBER));
    EXPECT_EQ((Bounds{4, 2, 5}), BoundsOf(destination));
    EXPECT_EQ((std::vector<int32_t>{9, 1, 2, 3}), LongsOf(destination));
    EXPECT_EQ((std::vector<int32_t>{1, 2, 3}), LongsOf(source));
    HostArrayDestroy(source);
    HostArrayDestroy(destination);
}

TEST_F(Append, StringsAreSharedWithAReferenceEach) {
    HostArray source = Strings({L"a", L"b"}, -3), destination = Strings({L"x"}, 1);
    const std::vector<HostStr> handles = HandlesOf(source);
    EXPECT_EQ(3, ZelArrayAppend(source, destination, HOST_TYPE_STRING));
    EXPECT_EQ((Bounds{3, 1, 3}), BoundsOf(destination));
    EXPECT_EQ((std::vector<std::wstring>{L"x", L"a", L"b"}), TextsOf(destination));
    const std::vector<HostStr> appended = HandlesOf(destination);
    EXPECT_EQ(handles[0], appended[1]);
    EXPECT_EQ(handles[1], appended[2]);
    EXPECT_EQ((std::vector<int32_t>{2, 2}), RefsOf(handles));
    HostArrayDestroy(source);
    EXPECT_EQ((std::vector<int32_t>{1, 1}), RefsOf(handles));
    HostArrayDestroy(destination);
}

TEST_F(Append, EmptyDestinationFillsFromZero) {
    HostArray source = Strings({L"p", L"q"}, 7, HOST_TYPE_LONGSTRING);
    HostArray destination = HostArrayCreate(HOST_TYPE_LONGSTRING);
    EXPECT_EQ(2, ZelArrayAppend(source, destination, HOST_TYPE_LONGSTRING));
    EXPECT_EQ((Bounds{2, 0, 1}), BoundsOf(destination));
    EXPECT_EQ((std::vector<std::wstring>{L"p", L"q"}), TextsOf(destination));
    HostArrayDestroy(source);
    HostArrayDestroy(destination);
}

TEST_F(Append, OntoItselfDoublesTheArray) {
    HostArray array = Strings({L"a", L"b"}, 4);
    const std::vector<HostStr> handles = HandlesOf(array);
    EXPECT_EQ(4, ZelArrayAppend(array, array, HOST_TYPE_STRING));
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"b", L"a", L"b"}), TextsOf(array));
    EXPECT_EQ((std::vector<int32_t>{2, 2}), RefsOf(handles));
    HostArrayDestroy(array);
}

TEST_F(Append, FlagsHandlesAndDates) {
    for (int32_t type : {HOST_TYPE_BOOLEAN, HOST_TYPE_HANDLE}) {
        HostArray source = Words(type, {0, 1, 0xFFFFFFFFu}), destination = Words(type, {7}, -1);
        EXPECT_EQ(4, ZelArrayAppend(source, destination, type)) << type;
        EXPECT_EQ((std::vector<uint32_t>{7, 0, 1, 0xFFFFFFFFu}), WordsOf(destination, type)) << type;
        HostArrayDestroy(source);
        HostArrayDestroy(destination);
    }
    HostDateTime day{};
    HostDateConstruct(&day, 2021, 3, 4, 5, 6, 7);
    HostArray source = HostArrayCreate(HOST_TYPE_DATETIME), destination = HostArrayCreate(HOST_TYPE_DATETIME);
    HostArraySetBounds(source, 3, 2);
    HostArraySetDateTime(source, &day, 3);
    EXPECT_EQ(1, ZelArrayAppend(source, destination, HOST_TYPE_DATETIME));
    HostDateTime read{};
    HostArrayGetDateTime(destination, &read, 0);
    EXPECT_TRUE(SameRecord(day, read));
    HostArrayDestroy(source);
    HostArrayDestroy(destination);
}

TEST_F(Append, EmptySourceGivesZeroAndLeavesTheDestination) {
    HostArray source = HostArrayCreate(HOST_TYPE_NUMBER), destination = Longs({1, 2}, 3);
    EXPECT_EQ(0, ZelArrayAppend(source, destination, HOST_TYPE_NUMBER));
    EXPECT_EQ((Bounds{2, 3, 4}), BoundsOf(destination));
    HostArrayDestroy(source);
    HostArrayDestroy(destination);
}

TEST_F(Append, UnknownTypeMovesNothingButTheBoundsGrow) {
    for (int32_t type : {4, 300, 0, -5}) {
        HostArray source = Longs({1, 2}), destination = Longs({9});
        EXPECT_EQ(3, ZelArrayAppend(source, destination, type)) << type;
        EXPECT_EQ((std::vector<int32_t>{9, kNull, kNull}), LongsOf(destination)) << type;
        HostArrayDestroy(source);
        HostArrayDestroy(destination);
    }
}

TEST_F(Append, MultiDimensionalOrUnknownArraysFail) {
    HostArray flat = Longs({1}), wide = TwoDimensional(HOST_TYPE_NUMBER);
    EXPECT_EQ(-1, ZelArrayAppend(wide, flat, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArrayAppend(flat, wide, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArrayAppend(flat, DeadArray(), HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArrayAppend(0, flat, HOST_TYPE_NUMBER));
    EXPECT_EQ((Bounds{3, 0, 2}), BoundsOf(wide));
    EXPECT_EQ((Bounds{1, 0, 0}), BoundsOf(flat));
    HostArrayDestroy(flat);
    HostArrayDestroy(wide);
}

TEST_F(Copy, IndicesAndBoundsAreTheSources) {
    HostArray source = Longs({5, 6, 7, 8, 9}, 5), destination = Longs({1, 2, 3});
    EXPECT_EQ(5, ZelArrayCopy(source, destination, HOST_TYPE_NUMBER));
    EXPECT_EQ((Bounds{5, 5, 9}), BoundsOf(destination));
    EXPECT_EQ((std::vector<int32_t>{5, 6, 7, 8, 9}), LongsOf(destination));
    HostArrayDestroy(source);
    HostArrayDestroy(destination);
}

TEST_F(Copy, StringsAreSharedAndTheOldContentReleased) {
    HostArray source = Strings({L"a", L"b", L"c"}, -1), destination = Strings({L"old1", L"old2"}, 10);
    const std::vector<HostStr> handles = HandlesOf(source), old = HandlesOf(destination);
    EXPECT_EQ(3, ZelArrayCopy(source, destination, HOST_TYPE_STRING));
    EXPECT_EQ(handles, HandlesOf(destination));
    EXPECT_EQ((Bounds{3, -1, 1}), BoundsOf(destination));
    EXPECT_EQ((std::vector<int32_t>{2, 2, 2}), RefsOf(handles));
    EXPECT_EQ((std::vector<int32_t>{0, 0}), RefsOf(old)) << "the destination's strings are gone";
    HostArrayDestroy(source);
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"b", L"c"}), TextsOf(destination));
    HostArrayDestroy(destination);
}

TEST_F(Copy, OntoItselfChangesNothing) {
    HostArray array = Strings({L"a", L"b"}, 2);
    const std::vector<HostStr> handles = HandlesOf(array);
    EXPECT_EQ(2, ZelArrayCopy(array, array, HOST_TYPE_STRING));
    EXPECT_EQ(handles, HandlesOf(array));
    EXPECT_EQ((std::vector<int32_t>{1, 1}), RefsOf(handles));
    HostArrayDestroy(array);
}

TEST_F(Copy, EmptySourceEmptiesTheDestination) {
    HostArray source = HostArrayCreate(HOST_TYPE_STRING), destination = Strings({L"x", L"y"});
    EXPECT_EQ(0, ZelArrayCopy(source, destination, HOST_TYPE_STRING));
    EXPECT_EQ(1, HostArrayIsEmpty(destination));
    HostArrayDestroy(source);
    HostArrayDestroy(destination);
}

TEST_F(Copy, FlagsAndHandles) {
    for (int32_t type : {HOST_TYPE_BOOLEAN, HOST_TYPE_HANDLE}) {
        HostArray source = Words(type, {3, 0, 1}, 1), destination = HostArrayCreate(type);
        EXPECT_EQ(3, ZelArrayCopy(source, destination, type));
        EXPECT_EQ((Bounds{3, 1, 3}), BoundsOf(destination));
        EXPECT_EQ((std::vector<uint32_t>{3, 0, 1}), WordsOf(destination, type));
        HostArrayDestroy(source);
        HostArrayDestroy(destination);
    }
}

TEST_F(Copy, UnknownTypeCopiesOnlyTheBounds) {
    HostArray source = Longs({1, 2}, 4), destination = Longs({7});
    EXPECT_EQ(2, ZelArrayCopy(source, destination, 6));
    EXPECT_EQ((Bounds{2, 4, 5}), BoundsOf(destination));
    EXPECT_EQ((std::vector<int32_t>{kNull, kNull}), LongsOf(destination));
    HostArrayDestroy(source);
    HostArrayDestroy(destination);
}

TEST_F(Copy, MultiDimensionalOrUnknownArraysFail) {
    HostArray flat = Longs({1, 2}), wide = TwoDimensional(HOST_TYPE_NUMBER);
    EXPECT_EQ(-1, ZelArrayCopy(wide, flat, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArrayCopy(flat, wide, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArrayCopy(DeadArray(), flat, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArrayCopy(flat, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ((std::vector<int32_t>{1, 2}), LongsOf(flat));
    HostArrayDestroy(flat);
    HostArrayDestroy(wide);
}

} // namespace
