// The focus by date and by cell, and which cells may be selected.
#include <gtest/gtest.h>

#include "calendar_fakes.h"

namespace {

using caltest::Parts;
using caltest::Record;
using caltest::Shown;
using caltest::Ymd;
using Events = std::vector<std::string>;
using zk::cal::CDateTime;
using zk::cal::SSpecialRule;

TEST(FocusDate, DropsTheTimeOfDayAndMovesTheSingleMark) {
    Shown s(2024, 3, false);
    s.cal.SetFocusDate(CDateTime(2024, 3, 10), 0, 1);
    EXPECT_EQ(s.cal.SetFocusDate(CDateTime(Record(2024, 3, 12, 18, 30, 0)), 0, 1), 1);
    EXPECT_EQ(s.cal.GetFocusDate().KeyText(), u"2024-03-12-00.00.00.000000");
    EXPECT_EQ(s.cal.FocusCell(), 16);
    EXPECT_EQ(s.cal.Marks().size(), 1u);
    EXPECT_EQ(s.cal.IsMarked(CDateTime(2024, 3, 12)), 1);
}

TEST(FocusDate, ADateOffTheGridBringsItsMonth) {
    Shown s(2024, 3);
    s.cal.SetFocusDate(CDateTime(2024, 3, 10), 0, 1);
    s.window.Take();
    s.cal.SetFocusDate(CDateTime(2024, 7, 4), 1, 1);
    EXPECT_EQ(s.cal.DisplayMonth(), 7);
    EXPECT_EQ(s.cal.FocusCell(), 4);
    EXPECT_EQ(s.window.Take(),
              (Events{"inv cell 14", "inv caption", "inv grid", "notify 3", "inv cell 4", "update", "notify 1"}));
    s.cal.SetFocusDate(CDateTime(2024, 7, 5), 0, 0);
    EXPECT_EQ(s.window.Take(), (Events{"notify 1"})) << "invalidate 0 asks for no cell";
}

TEST(FocusDate, ExtraSpecialAndMultipleSelectionDecideTheMark) {
    Shown s(2024, 3, false);
    s.cal.SetFocusDate(CDateTime(2024, 4, 2), 0, 1);
    EXPECT_EQ(s.cal.DisplayMonth(), 3) << "Show Extra puts 2 April on March's grid";
    EXPECT_EQ(s.cal.FocusCell(), 37);
    EXPECT_EQ(s.cal.IsMarked(CDateTime(2024, 4, 2)), 1);
    s.cal.SetStyle(CALS_SelectExtra, 0);
    s.cal.SetFocusDate(CDateTime(2024, 4, 3), 0, 1);
    EXPECT_EQ(s.cal.Marks().size(), 0u) << "an extra cell with Select Extra off";

    s.cal.SetSpecialRule(SSpecialRule(SPECIAL_Weekly, CDateTime(2024, 1, 1), 1, 0, 1, 2), 1);
    s.cal.SetStyle(CALS_SelectSpecial, 0);
    s.cal.SetStyle(CALS_ShowSpecial, 1);
    s.cal.SetFocusDate(CDateTime(2024, 3, 17), 0, 1); // a Sunday
    EXPECT_EQ(s.cal.Marks().size(), 0u) << "a special cell with Select Special off";
    s.cal.SetFocusDate(CDateTime(2024, 3, 18), 0, 1);
    EXPECT_EQ(s.cal.Marks().size(), 1u);

    s.cal.SetStyle(CALS_MultipleSelection, 1);
    s.cal.SetFocusDate(CDateTime(2024, 3, 20), 0, 1);
    EXPECT_EQ(s.cal.Marks().size(), 1u) << "multiple selection leaves the marks alone";
    EXPECT_EQ(s.cal.IsMarked(CDateTime(2024, 3, 20)), 0);
}

TEST(FocusCell, MovesTheMarkAndTheAnchor) {
    Shown s(2024, 3);
    s.cal.SetFocusDate(CDateTime(2024, 3, 10), 0, 1);
    s.window.Take();
    s.cal.SetFocusCell(20, 1);
    EXPECT_EQ(Parts(s.cal.GetFocusDate()), (Ymd{2024, 3, 16}));
    EXPECT_EQ(Parts(s.cal.GetAnchorDate()), (Ymd{2024, 3, 16}));
    EXPECT_EQ(s.cal.IsMarked(CDateTime(2024, 3, 10)), 0);
    EXPECT_EQ(s.window.Take(), (Events{"inv cell 14", "inv cell 14", "update", "inv cell 20", "update", "notify 1"}));
    for (int cell : {-1, 20, 42, -7})
        s.cal.SetFocusCell(cell, 1);
    EXPECT_EQ(s.cal.FocusCell(), 20) << "minus one, the same cell or no cell do nothing";
    EXPECT_TRUE(s.window.events.empty());
}

TEST(FocusCell, OntoAnExtraCellWithSelectExtraOffUnmarksAndMarksNothing) {
    Shown s(2024, 3);
    s.cal.SetFocusDate(CDateTime(2024, 3, 2), 0, 1);
    s.cal.SetStyle(CALS_SelectExtra, 0);
    s.window.Take();
    s.cal.SetFocusCell(3, 0); // 28 February
    EXPECT_EQ(Parts(s.cal.GetFocusDate()), (Ymd{2024, 2, 28}));
    EXPECT_EQ(s.cal.Marks().size(), 0u);
    EXPECT_EQ(Parts(s.cal.GetAnchorDate()), (Ymd{2024, 3, 15})) << "the anchor stays";
    EXPECT_EQ(s.window.Take(), (Events{"inv cell 6", "inv cell 6", "update", "inv cell 3", "notify 1"}));
}

TEST(FocusCell, WithMultipleSelectionOnlyTheCellsAreDrawn) {
    Shown s(2024, 3);
    s.cal.SetStyle(CALS_MultipleSelection, 1);
    s.cal.SetFocusCell(10, 0);
    s.window.Take();
    s.cal.SetFocusCell(11, 0);
    EXPECT_EQ(s.window.Take(), (Events{"inv cell 10", "update", "inv cell 11", "notify 1"}));
    EXPECT_EQ(s.cal.IsMarked(s.cal.CellToDate(11)), 0);
}

TEST(Selectable, ExtraAndSpecialCells) {
    Shown s(2024, 3, false);
    s.cal.SetSpecialRule(SSpecialRule(SPECIAL_MonthDay, CDateTime(2024, 1, 9), 0, 0, 1, 2), 1);
    EXPECT_EQ(s.cal.IsSelectableCell(2), 1) << "extra, Select Extra on";
    s.cal.SetStyle(CALS_SelectSpecial, 0);
    EXPECT_EQ(s.cal.IsSelectableCell(13), 1) << "without Show Special no cell is special";
    s.cal.SetStyle(CALS_ShowSpecial, 1);
    EXPECT_EQ(s.cal.IsSelectableCell(13), 0) << "the 9th";
    EXPECT_EQ(s.cal.IsSelectableCell(14), 1);
    s.cal.SetStyle(CALS_SelectExtra, 0);
    EXPECT_EQ(s.cal.IsSelectableCell(2), 0);
    EXPECT_EQ(s.cal.IsSelectableCell(41), 0);
}

TEST(Anchor, SwapHandsBackTheOldDate) {
    zk::cal::CalendarModel cal;
    EXPECT_EQ(cal.SwapAnchorDate(CDateTime(2000, 1, 2)).KeyText(), CDateTime(Record(2024, 3, 15, 13, 45, 10)).KeyText())
        << "the present at construction";
    EXPECT_EQ(Parts(cal.SwapAnchorDate(CDateTime(2000, 1, 3))), (Ymd{2000, 1, 2}));
}

} // namespace
