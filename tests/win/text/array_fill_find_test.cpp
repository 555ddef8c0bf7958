// ZelArrayFill* from index 0, and ZelArrayFind* from low upward.
#include "array_support.h"

using namespace arraytest;

namespace {

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
