// The month grid against the C++ library's calendar for every month from
// 1900 to 2100 and every week start, and the display and week-start effects.
#include <gtest/gtest.h>

#include "calendar_fakes.h"

namespace {

using caltest::Days;
using caltest::Parts;
using caltest::Shown;
using Events = std::vector<std::string>;
using zk::cal::CalendarModel;
using zk::cal::CDateTime;

TEST(Cells, EveryMonthOfTwoCenturiesForEveryWeekStart) {
    for (int weekStart = 1; weekStart <= 7; ++weekStart) {
        CalendarModel cal;
        cal.SetWeekStart(weekStart);
        for (int year = 1900; year <= 2100; ++year) {
            for (int month = 1; month <= 12; ++month) {
                cal.SetDisplayMonth(year, month, 0);
                const auto first = Days(year, month, 1);
                const int firstCell = (caltest::Weekday(first) - weekStart + 7) % 7;
                ASSERT_EQ(cal.FirstCell(), firstCell) << year << "-" << month << " start " << weekStart;
                ASSERT_EQ(cal.LastCell(), firstCell + caltest::MonthLength(year, month) - 1);
                for (int cell = 0; cell < zk::cal::kCellCount; ++cell) {
                    const auto day = first + std::chrono::days(cell - firstCell);
                    const CDateTime date = cal.CellToDate(cell);
                    ASSERT_EQ(Parts(date), Parts(day)) << "cell " << cell << " of " << year << "-" << month;
                    ASSERT_EQ(cal.DateToCell(date), cell);
                    ASSERT_EQ(cal.ColumnWeekday(cell % 7), caltest::Weekday(day));
                }
            }
        }
    }
}

TEST(Cells, ShowExtraDecidesWhichCellsHaveDates) {
    Shown s(2023, 2, false); // cells 3 to 30
    s.cal.SetStyle(CALS_ShowExtra, 0);
    EXPECT_EQ(s.cal.DateToCell(CDateTime(2023, 2, 28)), 30);
    EXPECT_EQ(s.cal.DateToCell(CDateTime(2023, 1, 31)), -1);
    EXPECT_EQ(s.cal.DateToCell(CDateTime(2023, 3, 1)), -1);
    s.cal.SetStyle(CALS_ShowExtra, 2);
    EXPECT_EQ(s.cal.DateToCell(CDateTime(2023, 3, 1)), -1) << "the range widens at 1 exactly";
    s.cal.SetStyle(CALS_ShowExtra, 1);
    EXPECT_EQ(s.cal.DateToCell(CDateTime(2023, 1, 29)), 0);
    EXPECT_EQ(s.cal.DateToCell(CDateTime(2023, 3, 11)), 41);
    EXPECT_EQ(s.cal.DateToCell(CDateTime(2023, 3, 12)), -1);
    EXPECT_EQ(s.cal.IsExtraCell(2), 1);
    EXPECT_EQ(s.cal.IsExtraCell(3), 0);
    EXPECT_EQ(s.cal.IsExtraCell(31), 1);
    EXPECT_EQ(s.cal.IsExtraCell(31, 0, 35), 0) << "a range of the caller's";
    EXPECT_EQ(s.cal.IsExtraCell(2, -1, 35), 1) << "-1 takes both ends from the object";
}

TEST(Cells, NoGridBeforeTheFirstMonth) {
    CalendarModel cal;
    EXPECT_EQ(cal.DateToCell(CDateTime(2024, 1, 1)), -1);
    EXPECT_TRUE(cal.CellToDate(10).IsNull());
    EXPECT_EQ(cal.FocusCell(), -1);
    EXPECT_EQ(cal.WeekStart(), 1);
}

TEST(DisplayMonth, AnotherMonthResetsTheFocusCellAndTellsTheWindow) {
    Shown s(2024, 3);
    s.cal.SetFocusCell(20, 0);
    s.window.Take();
    s.cal.SetDisplayMonth(2024, 3, 1);
    EXPECT_EQ(s.cal.FocusCell(), 20);
    EXPECT_TRUE(s.window.events.empty()) << "the same month changes nothing";
    s.cal.SetDisplayMonth(2024, 4, 1);
    EXPECT_EQ(s.cal.FocusCell(), -1);
    EXPECT_EQ(s.window.Take(), (Events{"inv caption", "inv grid", "notify 3"}));
    s.cal.SetDisplayMonth(2024, 5, 0);
    EXPECT_EQ(s.window.Take(), (Events{"notify 3"})) << "redraw 0 still notifies";
    s.window.created = false;
    s.cal.SetDisplayMonth(2024, 6, 1);
    EXPECT_TRUE(s.window.events.empty());
    EXPECT_EQ(s.cal.FirstCell(), 6);
}

TEST(WeekStart, OnlyACreatedControlRecalculatesAtOnce) {
    Shown s(2024, 3);
    s.cal.SetFocusCell(19, 0);
    s.window.Take();
    EXPECT_EQ(s.cal.SetWeekStart(2), 1);
    EXPECT_EQ(s.cal.FirstCell(), 4);
    EXPECT_EQ(s.cal.FocusCell(), 19) << "the focus cell keeps its number";
    EXPECT_EQ(s.window.Take(), (Events{"redraw"}));
    EXPECT_EQ(s.cal.SetWeekStart(3), 2);

    Shown later(2024, 3, false);
    later.cal.SetWeekStart(2);
    EXPECT_EQ(later.cal.FirstCell(), 5) << "as for a Sunday start";
    EXPECT_EQ(later.cal.ColumnWeekday(0), 2);
    later.cal.SetDisplayMonth(2024, 4, 0);
    EXPECT_EQ(later.cal.FirstCell(), 0);
}

} // namespace
