// Moving the focus by cells, months, years and row ends, and the
// selection keys of Multiple Selection.
#include <gtest/gtest.h>

#include "calendar/core/calendar_nav.h"
#include "ctl_control_fakes.h"

namespace {

using calctl::Control;
using caltest::Ymd;
using zk::cal::CDateTime;

TEST(MoveFocus, WithoutExtraCellsTheMonthTurnsAtItsEdges) {
    Control c(2024, 1, 31); // January 2024: cells 1 to 31
    c.Style(CALS_ShowExtra, 0);
    ASSERT_EQ(c.cal().FocusCell(), 31);
    zk::cal::MoveFocus(c.cal(), 1);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 2, 1})) << "t - firstCell - 31 + 1 is 1";
    EXPECT_EQ(c.cal().DisplayMonth(), 2);
    EXPECT_EQ(c.cal().FocusCell(), 4);
    zk::cal::MoveFocus(c.cal(), -1);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 1, 31})) << "and back over the first";
    zk::cal::MoveFocus(c.cal(), -7 * 5);
    EXPECT_EQ(c.Focus(), (Ymd{2023, 12, 27})) << "five weeks up, into December of the year before";
}

TEST(MoveFocus, WithExtraCellsTheDisplayStaysUntilTheGridEnds) {
    Control c(2024, 1, 31);
    zk::cal::MoveFocus(c.cal(), 1);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 2, 1}));
    EXPECT_EQ(c.cal().DisplayMonth(), 1) << "the extra cell of the same display";
    EXPECT_EQ(c.cal().FocusCell(), 32);
    c.cal().SetFocusCell(35, 0);
    zk::cal::MoveFocus(c.cal(), 7);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 2, 11})) << "cell 42 is a week after cell 35";
    EXPECT_EQ(c.cal().DisplayMonth(), 2);
    c.cal().SetFocusCell(3, 0); // 31 January in February's grid
    zk::cal::MoveFocus(c.cal(), -7);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 1, 24}));
    EXPECT_EQ(c.cal().DisplayMonth(), 1);
}

TEST(StepMonth, CutsTheDayAndWrapsTheYear) {
    Control c(2024, 1, 31);
    zk::cal::StepMonth(c.cal(), true, 1);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 2, 29}));
    Control d(2024, 12, 31);
    zk::cal::StepMonth(d.cal(), true, 1);
    EXPECT_EQ(d.Focus(), (Ymd{2025, 1, 31}));
    zk::cal::StepMonth(d.cal(), false, 1);
    zk::cal::StepMonth(d.cal(), false, 1);
    EXPECT_EQ(d.Focus(), (Ymd{2024, 11, 30}));
}

TEST(RowEnds, HomeAndEndStopAtTheMonthWithoutExtraCells) {
    Control c(2024, 2, 26); // February 2024: cells 4 to 32
    EXPECT_EQ(zk::cal::RowEndCell(c.cal()), 34);
    c.Style(CALS_ShowExtra, 0);
    EXPECT_EQ(zk::cal::RowEndCell(c.cal()), 32) << "lowered to lastCell";
    c.cal().SetFocusCell(5, 0);
    EXPECT_EQ(zk::cal::RowStartCell(c.cal()), 4) << "raised to firstCell";
    c.Style(CALS_ShowExtra, 1);
    EXPECT_EQ(zk::cal::RowStartCell(c.cal()), 0);
}

class Selection : public testing::Test {
protected:
    Selection() { c.Style(CALS_MultipleSelection, 1); }
    bool Marked(int day) { return c.cal().IsMarked(CDateTime(2024, 3, day)) == 1; }
    Control c{2024, 3, 10};
};

TEST_F(Selection, ToggleMarksAndUnmarksTheFocus) {
    c.cal().ClearMarks(0);
    zk::cal::SelectToggle(c.cal(), false, false);
    EXPECT_TRUE(Marked(10));
    zk::cal::SelectToggle(c.cal(), false, false);
    EXPECT_FALSE(Marked(10));
    EXPECT_EQ(c.cal().Marks().size(), 0u);
}

TEST_F(Selection, ShiftTakesTheRangeFromTheAnchorAsTheAnchorIs) {
    c.cal().ClearMarks(0);
    zk::cal::SelectToggle(c.cal(), false, false); // 10 marked, the anchor
    c.cal().SetFocusCell(c.cal().FocusCell() + 3, 0);
    zk::cal::SelectToggle(c.cal(), false, true);
    EXPECT_EQ(c.cal().Marks().size(), 4u);
    EXPECT_TRUE(Marked(10) && Marked(13));
    // The anchor unmarked: the range is taken away, the rest kept with Ctrl.
    c.cal().MarkDate(CDateTime(2024, 3, 20), 1, 0, 1);
    c.cal().MarkDate(CDateTime(2024, 3, 10), 0, 0, 1);
    zk::cal::SelectToggle(c.cal(), true, true);
    EXPECT_FALSE(Marked(11) || Marked(13));
    EXPECT_TRUE(Marked(20));
}

TEST_F(Selection, AddAndRemoveKeepOthersOnlyWithCtrl) {
    c.cal().MarkDate(CDateTime(2024, 3, 2), 1, 0, 1);
    zk::cal::SelectAdd(c.cal(), true, false);
    EXPECT_TRUE(Marked(2) && Marked(10));
    zk::cal::SelectRemove(c.cal(), true, false);
    EXPECT_TRUE(Marked(2));
    EXPECT_FALSE(Marked(10));
    zk::cal::SelectAdd(c.cal(), false, false);
    EXPECT_FALSE(Marked(2));
    EXPECT_TRUE(Marked(10));
    EXPECT_EQ(c.cal().GetAnchorDate().KeyText(), CDateTime(2024, 3, 10).KeyText());
}

TEST_F(Selection, ToggleDoesNotMarkACellThatCannotBeSelected) {
    c.cal().ClearMarks(0);
    c.Style(CALS_ShowSpecial, 1);
    c.Style(CALS_SelectSpecial, 0);
    c.cal().SetSpecialRule(zk::cal::SSpecialRule(SPECIAL_Date, CDateTime(2024, 3, 10), 0, 0, 1, 2), 1);
    zk::cal::SelectToggle(c.cal(), false, false);
    EXPECT_FALSE(Marked(10));
}

} // namespace
