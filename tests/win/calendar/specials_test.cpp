// The special-rule exports on a calendar made without a window.
#include "calendar_support.h"

namespace {

using caltest::CalendarExports;
using caltest::Date;

TEST_F(CalendarExports, ADateRuleBeatsAWeeklyRuleOnTheSameDate) {
    const HostDateTime friday = Date(2024, 3, 15);
    EXPECT_EQ(ZelCalSpecialDate(control(), SPECIAL_Weekly, friday, 6, 0, 0x11, 0x12, 1), 1);
    EXPECT_EQ(ZelCalSpecialDate(control(), SPECIAL_Date, friday, 0, 0, 0x21, 0x22, 1), 1);
    uint32_t text = 0, back = 0;
    ASSERT_EQ(calendar->MatchSpecial(zk::cal::SSpecialRule(0, zk::cal::CDateTime(friday), 6, 3, 0, 0), &text, &back),
              1);
    EXPECT_EQ(text, 0x21u);
    EXPECT_EQ(back, 0x22u);
    EXPECT_EQ(ZelCalIsDateSpecial(control(), 99, friday, 6, 3), 1) << "the type asked plays no part";
    EXPECT_EQ(ZelCalIsDateSpecial(control(), SPECIAL_Date, Date(2024, 3, 22), 6, 4), 1) << "the weekly rule";
    EXPECT_EQ(ZelCalIsDateSpecial(control(), SPECIAL_Date, Date(2024, 3, 21), 5, 3), 0);
}

TEST_F(CalendarExports, ARuleAddedAgainReplacesTheFirst) {
    const HostDateTime d = Date(2024, 12, 25);
    EXPECT_EQ(ZelCalSpecialDate(control(), SPECIAL_YearDay, d, 0, 0, 1, 2, 1), 1);
    EXPECT_EQ(ZelCalSpecialDate(control(), SPECIAL_YearDay, Date(1990, 12, 25), 3, 3, 5, 6, 1), 1);
    EXPECT_EQ(calendar->Rules().size(), 1u);
    EXPECT_EQ(calendar->Rules().begin()->second.textColor, 5u);
    EXPECT_EQ(ZelCalSpecialDate(control(), SPECIAL_YearDay, d, 0, 0, 0, 0, 0), 1);
    EXPECT_EQ(ZelCalSpecialDate(control(), SPECIAL_YearDay, d, 0, 0, 0, 0, 0), 0) << "no longer there";
    EXPECT_EQ(ZelCalSpecialDate(control(), SPECIAL_YearDay, d, 0, 0, 0, 0, 3), 0) << "add is 0 or 1";
}

TEST_F(CalendarExports, RulesThatTakeAFieldFromANullDateFail) {
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(ZelCalSpecialDate(control(), SPECIAL_Date, HostDateTime{}, 0, 0, 1, 2, 1), 0);
    EXPECT_EQ(capture.text(), L"ZelCalSpecialDate() - Unable to add/remove date from special rule list.\n");
    capture.clear();
    EXPECT_EQ(ZelCalSpecialDate(control(), SPECIAL_Weekly, HostDateTime{}, 2, 0, 1, 2, 1), 1)
        << "a weekly rule needs no date";
    EXPECT_EQ(ZelCalIsDateSpecial(control(), 0, HostDateTime{}, 2, 0), 1);
    EXPECT_EQ(capture.calls(), 0u);
}

TEST_F(CalendarExports, GetSpecialsReportsEveryRuleAndLeavesTheTypeBounds) {
    ZelCalSpecialDate(control(), SPECIAL_Date, Date(2024, 7, 4), 0, 0, 1, 2, 1);
    ZelCalSpecialDate(control(), SPECIAL_MonthWeekday, Date(2024, 1, 1), 2, 1, 3, 4, 1);
    const HostArray types = Own(HostArrayCreate(HOST_TYPE_NUMBER)), dates = Own(HostArrayCreate(HOST_TYPE_DATETIME)),
                    weekdays = Own(HostArrayCreate(HOST_TYPE_NUMBER)), weeks = Own(HostArrayCreate(HOST_TYPE_NUMBER));
    HostArraySetBounds(types, 0, 9);
    HostArraySetBounds(weeks, 0, 9);
    ASSERT_EQ(ZelCalGetSpecials(control(), types, dates, weekdays, weeks), 2);
    EXPECT_EQ(arraytest::BoundsOf(types).count, 10) << "the type array keeps its bounds";
    EXPECT_EQ(arraytest::BoundsOf(dates).count, 2);
    EXPECT_EQ(arraytest::BoundsOf(weekdays).count, 2);
    EXPECT_EQ(arraytest::BoundsOf(weeks).count, 2);
    const int first = caltest::Long(types, 0) == SPECIAL_Date ? 0 : 1, second = 1 - first;
    EXPECT_EQ(caltest::Long(types, first), SPECIAL_Date);
    EXPECT_EQ(caltest::Long(types, second), SPECIAL_MonthWeekday);
    HostDateTime d{};
    HostArrayGetDateTime(dates, &d, first);
    EXPECT_EQ(caltest::Text(d), L"2024-07-04 00:00:00");
    HostArrayGetDateTime(dates, &d, second);
    EXPECT_EQ(caltest::Text(d), L"2024-01-01 00:00:00");
    EXPECT_EQ(caltest::Long(weekdays, second), 2);
    EXPECT_EQ(caltest::Long(weeks, second), 1);

    EXPECT_EQ(ZelCalClearSpecials(control()), 1);
    EXPECT_EQ(ZelCalGetSpecials(control(), types, dates, weekdays, weeks), 0);
    EXPECT_EQ(arraytest::BoundsOf(dates).count, 0);
    EXPECT_EQ(arraytest::BoundsOf(types).count, 10);
}

} // namespace
