// ZelArrayAppend and ZelArrayCopy: elements of every type moved to another
// array, strings shared with a reference per slot.
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

} // namespace
