// The marked-date exports on a calendar made without a window.
#include "calendar_support.h"

namespace {

using caltest::CalendarExports;
using caltest::Date;

TEST_F(CalendarExports, MarkAndAskOneDateAtItsMoment) {
    EXPECT_EQ(ZelCalIsDateMarked(control(), Date(2024, 3, 15)), 0);
    EXPECT_EQ(ZelCalMarkDate(control(), Date(2024, 3, 15), 1), 1);
    EXPECT_EQ(ZelCalMarkDate(control(), Date(2024, 3, 15), 1), 0) << "already marked";
    EXPECT_EQ(ZelCalIsDateMarked(control(), Date(2024, 3, 15)), 1);
    EXPECT_EQ(ZelCalMarkDate(control(), Date(2024, 3, 15), 7), 0) << "add is 0 or 1";
    EXPECT_EQ(ZelCalMarkDate(control(), Date(2024, 3, 15), 0), 1);
    EXPECT_EQ(ZelCalMarkDate(control(), Date(2024, 3, 15), 0), 0);
    EXPECT_EQ(ZelCalIsDateMarked(control(), Date(2024, 3, 15)), 0);
    const HostDateTime noon = Date(2024, 3, 15, 12, 0, 0);
    EXPECT_EQ(ZelCalMarkDate(control(), noon, 1), 1);
    EXPECT_EQ(ZelCalIsDateMarked(control(), noon), 1);
    EXPECT_EQ(ZelCalIsDateMarked(control(), Date(2024, 3, 15)), 0) << "the cell's midnight is not marked";
}

TEST_F(CalendarExports, NullDatesAndJunkLengthBits) {
    EXPECT_EQ(ZelCalMarkDate(control(), HostDateTime{}, 1), 0);
    EXPECT_EQ(ZelCalIsDateMarked(control(), HostDateTime{}), 0);
    HostDateTime junk = Date(2024, 3, 15);
    junk.length |= 0xF0;
    EXPECT_EQ(ZelCalMarkDate(control(), junk, 1), 1) << "only the low four bits of the length count";
    EXPECT_EQ(ZelCalIsDateMarked(control(), Date(2024, 3, 15)), 1);
    HostDateTime nullWithJunk{};
    nullWithJunk.length = 0x30;
    nullWithJunk.digits[0] = 0x41;
    EXPECT_EQ(ZelCalMarkDate(control(), nullWithJunk, 1), 0);
}

TEST_F(CalendarExports, MarkDatesCountsTheDatesThatChangedTheSet) {
    const HostArray dates = Own(HostArrayCreate(HOST_TYPE_DATETIME));
    const HostDateTime list[] = {Date(2024, 1, 1), Date(2024, 1, 2), Date(2024, 1, 1), HostDateTime{},
                                 Date(2024, 2, 29)};
    for (int i = 0; i < 5; ++i)
        HostArraySetDateTime(dates, &list[i], 3 + i);
    HostArraySetBounds(dates, 3, 7);
    EXPECT_EQ(ZelCalMarkDates(control(), dates, 1), 3);
    EXPECT_EQ(ZelCalIsDateMarked(control(), Date(2024, 2, 29)), 1);
    EXPECT_EQ(ZelCalMarkDates(control(), dates, 0), 3);
    EXPECT_EQ(ZelCalIsDateMarked(control(), Date(2024, 1, 2)), 0);
    EXPECT_EQ(ZelCalMarkDates(control(), Own(HostArrayCreate(HOST_TYPE_DATETIME)), 1), 0);
}

TEST_F(CalendarExports, GetMarkedWritesEveryDateAndEndsTheArray) {
    const HostArray dates = Own(HostArrayCreate(HOST_TYPE_DATETIME));
    const HostDateTime filler = Date(1999, 1, 1);
    for (int i = 0; i < 9; ++i)
        HostArraySetDateTime(dates, &filler, i);
    EXPECT_EQ(ZelCalGetMarked(control(), dates), 0);
    EXPECT_EQ(arraytest::BoundsOf(dates).count, 0) << "bounds 0 and -1 on an empty calendar";

    const HostDateTime marked[] = {Date(2024, 5, 1), Date(1980, 12, 31), Date(2024, 5, 2, 8, 30, 0)};
    for (const HostDateTime &d : marked)
        ASSERT_EQ(ZelCalMarkDate(control(), d, 1), 1);
    ASSERT_EQ(ZelCalGetMarked(control(), dates), 3);
    ASSERT_EQ(arraytest::BoundsOf(dates).count, 3);
    std::vector<std::wstring> got, expected;
    for (int i = 0; i < 3; ++i) {
        HostDateTime d{};
        HostArrayGetDateTime(dates, &d, i);
        got.push_back(caltest::Text(d));
        expected.push_back(caltest::Text(marked[i]));
    }
    std::sort(got.begin(), got.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(got, expected);
    EXPECT_EQ(ZelCalClearMarked(control()), 1);
    EXPECT_EQ(ZelCalGetMarked(control(), dates), 0);
    EXPECT_EQ(ZelCalClearMarked(control()), 1) << "clearing an empty set succeeds";
}

} // namespace
