// Marked dates: exact keys, ranges, clearing, and unmarking by style.
#include <gtest/gtest.h>

#include "calendar_fakes.h"

namespace {

using caltest::Record;
using caltest::Shown;
using Events = std::vector<std::string>;
using zk::cal::CDateTime;
using zk::cal::SSpecialRule;

TEST(Marks, AddRemoveAndTheirResults) {
    Shown s(2024, 3);
    const CDateTime d(2024, 3, 20);
    EXPECT_EQ(s.cal.MarkDate(d, 1, 1, 1), 1);
    EXPECT_EQ(s.window.Take(), (Events{"inv cell 24", "update"}));
    EXPECT_EQ(s.cal.MarkDate(d, 1, 1, 1), 0) << "already there";
    EXPECT_EQ(s.cal.MarkDate(d, 2, 1, 1), 0) << "add is 0 or 1";
    EXPECT_EQ(s.cal.MarkDate(d, -1, 1, 1), 0);
    EXPECT_TRUE(s.window.events.empty());
    EXPECT_EQ(s.cal.MarkDate(d, 0, 0, 1), 1);
    EXPECT_EQ(s.window.Take(), (Events{"inv cell 24"}));
    EXPECT_EQ(s.cal.MarkDate(d, 0, 1, 1), 0) << "not there";
    // Off the grid, without invalidation or without a window: stored quietly.
    EXPECT_EQ(s.cal.MarkDate(CDateTime(2030, 1, 1), 1, 1, 1), 1);
    EXPECT_EQ(s.cal.MarkDate(CDateTime(2024, 3, 21), 1, 1, 0), 1);
    s.window.created = false;
    EXPECT_EQ(s.cal.MarkDate(CDateTime(2024, 3, 22), 1, 1, 1), 1);
    EXPECT_TRUE(s.window.events.empty());
    EXPECT_EQ(s.cal.Marks().size(), 3u);
}

TEST(Marks, AreExactToTheMicrosecondAndNeverNull) {
    Shown s(2024, 3);
    const CDateTime noon(Record(2024, 3, 20, 12, 0, 0));
    EXPECT_EQ(s.cal.MarkDate(noon, 1, 0, 1), 1);
    EXPECT_EQ(s.cal.IsMarked(noon), 1);
    EXPECT_EQ(s.cal.IsMarked(s.cal.CellToDate(24)), 0) << "the cell's own date is midnight";
    EXPECT_EQ(s.cal.IsMarked(CDateTime(Record(2024, 3, 20, 12, 0, 0, 1))), 0);
    const CDateTime none(HostDateTime{});
    EXPECT_EQ(s.cal.MarkDate(none, 1, 1, 1), 0);
    EXPECT_EQ(s.cal.IsMarked(none), 0);
    EXPECT_EQ(s.cal.MarkRange(none, CDateTime(2024, 3, 3), 1, 0), 1);
    EXPECT_EQ(s.cal.Marks().size(), 1u);
}

TEST(Marks, ARangeTakesEveryDateWhicheverEndComesFirst) {
    Shown s(2024, 3, false);
    EXPECT_EQ(s.cal.MarkRange(CDateTime(2024, 3, 5), CDateTime(2024, 2, 25), 1, 1), 1);
    EXPECT_EQ(s.cal.Marks().size(), 10u);
    for (CDateTime d(2024, 2, 25); d.KeyText() <= CDateTime(2024, 3, 5).KeyText(); ++d)
        EXPECT_EQ(s.cal.IsMarked(d), 1);
    EXPECT_EQ(s.cal.IsMarked(CDateTime(2024, 2, 24)), 0);
    EXPECT_EQ(s.cal.IsMarked(CDateTime(2024, 3, 6)), 0);
    EXPECT_EQ(s.cal.MarkRange(CDateTime(2024, 3, 4), CDateTime(2024, 3, 4), 0, 0), 1);
    EXPECT_EQ(s.cal.Marks().size(), 9u);
}

TEST(Marks, ARangeInvalidatesTheCellsOnDisplayAndUpdatesOnce) {
    Shown s(2024, 3);
    s.cal.MarkRange(CDateTime(2024, 4, 5), CDateTime(2024, 4, 8), 1, 1);
    // 5 and 6 April are extra cells of March; 7 and 8 April are not on the grid.
    EXPECT_EQ(s.window.Take(), (Events{"inv cell 40", "inv cell 41", "update"}));
}

TEST(Marks, ClearRemovesEveryMarkAndRedrawsTheGridOnlyIfThereWereAny) {
    Shown s(2024, 3);
    EXPECT_EQ(s.cal.ClearMarks(1), 1);
    EXPECT_TRUE(s.window.events.empty());
    s.cal.MarkDate(CDateTime(2024, 3, 1), 1, 0, 0);
    s.cal.MarkDate(CDateTime(1999, 3, 1), 1, 0, 0);
    EXPECT_EQ(s.cal.ClearMarks(1), 1);
    EXPECT_TRUE(s.cal.Marks().empty());
    EXPECT_EQ(s.window.Take(), (Events{"inv grid", "update"}));
    s.cal.MarkDate(CDateTime(2024, 3, 1), 1, 0, 0);
    s.cal.ClearMarks(0);
    EXPECT_EQ(s.window.Take(), (Events{"inv grid"}));
}

TEST(Marks, ClearingSelectExtraUnmarksTheExtraCellsOnDisplay) {
    Shown s(2024, 3);
    s.cal.SetStyle(CALS_MultipleSelection, 1);
    s.cal.MarkRange(CDateTime(2024, 2, 27), CDateTime(2024, 3, 2), 1, 0);
    s.cal.MarkDate(CDateTime(2024, 4, 6), 1, 0, 0);
    s.cal.MarkDate(CDateTime(2024, 4, 7), 1, 0, 0); // not on the grid
    s.window.Take();
    s.cal.SetStyle(CALS_SelectExtra, 0);
    EXPECT_EQ(s.window.Take(), (Events{"inv cell 2", "inv cell 2", "inv cell 3", "inv cell 3", "inv cell 4",
                                       "inv cell 4", "inv cell 41", "inv cell 41"}));
    EXPECT_EQ(s.cal.Marks().size(), 3u) << "1 and 2 March and 7 April stay";
}

TEST(Marks, ClearingSelectSpecialUnmarksTheSpecialCellsOfTheMonth) {
    Shown s(2024, 3);
    s.cal.SetStyle(CALS_MultipleSelection | CALS_ShowSpecial, 1);
    s.cal.SetSpecialRule(SSpecialRule(SPECIAL_MonthDay, CDateTime(2024, 1, 2), 0, 0, 1, 2), 1);
    s.cal.MarkRange(CDateTime(2024, 2, 1), CDateTime(2024, 4, 3), 1, 0);
    s.window.Take();
    s.cal.SetStyle(CALS_SelectSpecial, 0);
    EXPECT_EQ(s.window.Take(), (Events{"inv cell 6", "inv cell 6"})) << "2 April is an extra cell and stays";
    EXPECT_EQ(s.cal.IsMarked(CDateTime(2024, 3, 2)), 0);
    EXPECT_EQ(s.cal.IsMarked(CDateTime(2024, 4, 2)), 1);
}

TEST(Marks, WithoutAWindowStyleChangesOnlyStoreButMultipleSelectionLeavesTheFocusMarked) {
    Shown s(2024, 3, false);
    s.cal.SetStyle(CALS_MultipleSelection, 1);
    s.cal.MarkDate(CDateTime(2024, 2, 28), 1, 0, 0);
    s.cal.SetStyle(CALS_SelectExtra, 0);
    EXPECT_EQ(s.cal.Marks().size(), 1u);
    s.cal.SetFocusDate(CDateTime(2024, 3, 9), 0, 1);
    s.cal.MarkRange(CDateTime(2024, 3, 1), CDateTime(2024, 3, 5), 1, 0);
    s.cal.SetStyle(CALS_MultipleSelection, 0);
    ASSERT_EQ(s.cal.Marks().size(), 1u);
    EXPECT_EQ(s.cal.IsMarked(CDateTime(2024, 3, 9)), 1);
}

} // namespace
