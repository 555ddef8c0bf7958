// The days painting walks as plain numbers agree with the model's own
// dates, keys and special rules, cell by cell, over many months.
#include <gtest/gtest.h>

#include "calendar/core/calendar_nav.h"
#include "ctl_control_fakes.h"

namespace {

using zk::cal::CDateTime;

TEST(CellDays, AgreeWithTheModelsDatesKeysAndRules) {
    for (int weekStart : {1, 2, 7}) {
        for (int month = 1; month <= 12; ++month) {
            caltest::Shown s(month == 1 ? 2000 : 2023, month);
            s.cal.SetWeekStart(weekStart);
            s.cal.RecalcCells(s.cal.DisplayYear(), month);
            s.cal.AssignStyleFlag(CALS_ShowSpecial, 1);
            s.cal.SetSpecialRule(zk::cal::SSpecialRule(SPECIAL_Weekly, CDateTime(2023, 1, 1), 3, 0, 1, 2), 1);
            s.cal.SetSpecialRule(zk::cal::SSpecialRule(SPECIAL_MonthWeekday, CDateTime(2023, 1, 1), 6, 2, 3, 4), 1);
            zk::cal::GridDay day = zk::cal::DayOfCell(s.cal, 0);
            for (int cell = 0; cell < 42; ++cell, day = zk::cal::NextGridDay(day)) {
                const CDateTime date = s.cal.CellToDate(cell);
                ASSERT_EQ(caltest::Parts(date), (caltest::Ymd{day.year, day.month, day.day}))
                    << month << " cell " << cell << " start " << weekStart;
                EXPECT_EQ(zk::cal::MidnightKey(day), date.KeyText());
                uint32_t t1 = 0, b1 = 0, t2 = 0, b2 = 0;
                EXPECT_EQ(s.cal.GetDaySpecial(day.year, day.month, day.day, s.cal.ColumnWeekday(cell % 7), &t1, &b1),
                          s.cal.GetCellSpecial(cell, &t2, &b2, -1, -1, nullptr));
                EXPECT_EQ(t1, t2);
                EXPECT_EQ(b1, b2);
            }
        }
    }
}

} // namespace
