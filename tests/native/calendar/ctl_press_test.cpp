// The press state machine: month buttons held and left, the grid pressed
// and dragged, releases, the timers, pop-up mode and losing the focus.
#include <gtest/gtest.h>

#include <algorithm>

#include "ctl_control_fakes.h"

namespace {

using calctl::Control;
using caltest::Ymd;
using Events = std::vector<std::string>;
namespace k = zk::cal;

using zkt::EventAt;
using zkt::Has;

TEST(PressGrid, APressInAPopUpReleasedOnTheSameCellSelectsThenClosesUp) {
    Control c(2024, 3, 15);
    c.Style(CALS_PopUp, 1);
    const auto p = c.Centre(25); // 21 March
    c.input.LButtonDown(p.x, p.y, 0);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 21}));
    EXPECT_EQ(c.state, k::CALF_GridDown);
    EXPECT_FALSE(Has(c.fx.Take(), "capture")) << "a pop-up does not take the capture";
    c.input.LButtonUp(p.x, p.y, 0);
    const Events e = c.fx.Take();
    ASSERT_NE(EventAt(e, "post select 25"), -1);
    EXPECT_LT(EventAt(e, "post select 25"), EventAt(e, "notify 8")) << "the selection is posted before the close";
    EXPECT_EQ(c.state, 0);
}

TEST(PressGrid, OnAFormThePressCapturesAndTheReleaseOnlySelects) {
    Control c(2024, 3, 15);
    const auto cell = c.layout.CellRect(10);
    c.input.LButtonDown(cell.right, cell.top + 2, 0); // the gap after cell 10
    EXPECT_TRUE(Has(c.fx.Take(), "capture"));
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 15})) << "a gap leaves the focus where it was";
    EXPECT_EQ(c.state, k::CALF_GridDown);
    c.input.LButtonUp(cell.right, cell.top + 2, 0);
    const Events e = c.fx.Take();
    EXPECT_TRUE(Has(e, "release"));
    EXPECT_TRUE(Has(e, "post select 19")) << "the release selects the focus cell";
    EXPECT_FALSE(Has(e, "notify 8"));
    c.Style(CALS_SelectExtra, 0);
    c.input.LButtonDown(c.Centre(2).x, c.Centre(2).y, 0);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 15})) << "an extra cell is not taken without Select Extra";
}

TEST(PressGrid, DraggingPastTheBottomMovesAWeekPerTick) {
    Control c(2024, 3, 15);
    const auto p = c.Centre(19);
    c.input.LButtonDown(p.x, p.y, 0);
    c.fx.Take();
    c.input.MouseMove(p.x, 130, 0);
    EXPECT_TRUE(c.state & k::CALF_Outside);
    EXPECT_EQ(c.fx.Take(), (Events{"stop 501", "start 500/75"}));
    for (int tick = 0; tick < 3; ++tick)
        EXPECT_TRUE(c.input.Timer(k::kTimerScrollDown));
    EXPECT_EQ(c.Focus(), (Ymd{2024, 4, 5}));
    c.input.MouseMove(p.x, -20, 0);
    EXPECT_EQ(c.fx.Take(), (Events{"stop 500", "start 501/75"}));
    c.input.MouseMove(p.x, 5, 0); // off the grid, inside the client
    EXPECT_EQ(c.fx.Take(), (Events{"stop 500", "stop 501"}));
    const auto q = c.Centre(30);
    c.input.MouseMove(q.x, q.y, 0);
    EXPECT_FALSE(c.state & k::CALF_Outside);
    EXPECT_EQ(c.cal().FocusCell(), 30) << "back on the grid the pointer takes the focus again";
    c.input.MouseMove(q.x, 130, 0);
    c.fx.Take();
    c.input.LButtonUp(q.x, 130, 0);
    EXPECT_FALSE(Has(c.fx.Take(), "post select 30")) << "a release outside the grid completes nothing";
    EXPECT_EQ(c.state, 0);
}

TEST(PressGrid, WithoutATimerTheScrollRunsOnceAndWithoutTheKeyboardNotAtAll) {
    Control c(2024, 3, 15);
    c.fx.timersFail = true;
    const auto p = c.Centre(19);
    c.input.LButtonDown(p.x, p.y, 0);
    c.input.MouseMove(p.x, 150, 0);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 22}));
    Control d(2024, 3, 15);
    d.Style(CALS_EnableKeyboard, 0);
    d.input.LButtonDown(p.x, p.y, 0);
    d.input.MouseMove(p.x, 150, 0);
    d.input.Timer(k::kTimerScrollDown);
    EXPECT_EQ(d.Focus(), (Ymd{2024, 3, 15}));
}

TEST(PressGrid, MultipleSelectionTogglesWithTheMessagesKeysAndDoubleClicksArePosted) {
    Control c(2024, 3, 15);
    c.Style(CALS_MultipleSelection, 1);
    c.cal().ClearMarks(0);
    auto p = c.Centre(10);
    c.input.LButtonDown(p.x, p.y, 0);
    c.input.LButtonUp(p.x, p.y, 0);
    p = c.Centre(12);
    c.input.LButtonDown(p.x, p.y, zk::kMouseShift | zk::kMouseControl);
    c.input.LButtonUp(p.x, p.y, 0);
    EXPECT_EQ(c.cal().Marks().size(), 3u) << "6 to 8 March, from the anchor";
    c.fx.Take();
    c.input.LButtonDblClk(c.Centre(20).x, c.Centre(20).y, 0);
    EXPECT_TRUE(Has(c.fx.Take(), "post dblclk 20"));
    EXPECT_EQ(c.state, k::CALF_GridDown);
    c.input.LButtonDblClk(60, 5, 0); // the caption
    EXPECT_FALSE(Has(c.fx.Take(), "post dblclk 20"));
}

TEST(PressButton, AHeldMonthButtonStepsOnEachTickAndTheGridCatchesUpAfter) {
    Control c(2024, 3, 15);
    const auto r = c.layout.RightButton();
    c.input.LButtonDown(r.left + 2, 3, 0);
    EXPECT_EQ(c.state, k::CALF_RightDown);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 4, 15}));
    EXPECT_EQ(c.fx.Take(), (Events{"inv button right", "update", "capture", "start 503/250"}));
    c.shown.window.Take();
    for (int tick = 0; tick < 4; ++tick)
        c.input.Timer(k::kTimerMonthOn);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 8, 15}));
    EXPECT_EQ(std::count(c.fx.events.begin(), c.fx.events.end(), std::string("paint caption")), 4);
    for (const auto &e : c.shown.window.Take())
        EXPECT_EQ(e.rfind("notify", 0), 0u) << "while held the grid is not invalidated: " << e;
    c.fx.Take();
    c.input.LButtonUp(r.left + 2, 3, 0);
    const Events e = c.fx.Take();
    EXPECT_TRUE(Has(e, "inv button right"));
    EXPECT_TRUE(Has(e, "paint caption"));
    EXPECT_EQ(e.back(), "start 502/100");
    EXPECT_EQ(c.state, 0);
    c.input.Timer(k::kTimerCatchUp);
    EXPECT_EQ(c.fx.Take(), (Events{"inv window", "stop 502"}));
    EXPECT_FALSE(c.input.Timer(499)) << "other timers are not the calendar's";
    EXPECT_FALSE(c.input.Timer(507));
}

TEST(PressButton, CtrlStepsAYearAndLeavingStopsTheRepeatForGood) {
    Control c(2024, 3, 15);
    const auto l = c.layout.LeftButton();
    c.input.LButtonDown(l.left + 2, 3, zk::kMouseControl);
    EXPECT_EQ(c.Focus(), (Ymd{2023, 3, 15}));
    EXPECT_TRUE(Has(c.fx.Take(), "start 506/250"));
    c.input.MouseMove(60, 3, 0);
    EXPECT_EQ(c.fx.Take(), (Events{"stop 504", "stop 506", "inv button left", "update"}));
    c.input.MouseMove(60, 4, 0);
    EXPECT_FALSE(Has(c.fx.Take(), "inv button left")) << "the state did not change: no repaint";
    c.input.MouseMove(l.left + 3, 3, 0);
    EXPECT_EQ(c.fx.Take(), (Events{"inv button left", "update"})) << "pressed again, no timer";
    c.input.LButtonUp(l.left + 3, 3, 0);
    EXPECT_TRUE(Has(c.fx.Take(), "start 502/100"));
}

TEST(PressButton, ReleasedOutsideNothingMoreHappensAndTheStepKeepsTheDayUncut) {
    Control c(2024, 3, 31);
    const auto l = c.layout.LeftButton();
    c.input.LButtonDown(l.left + 2, 3, 0);
    EXPECT_EQ(c.cal().DisplayMonth(), 2);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 2})) << "31 February is the host's 2 March, an extra cell of February";
    c.input.MouseMove(60, 50, 0);
    c.fx.Take();
    c.input.LButtonUp(60, 50, 0);
    const Events e = c.fx.Take();
    EXPECT_FALSE(Has(e, "start 502/100"));
    EXPECT_FALSE(Has(e, "paint caption"));
    EXPECT_EQ(c.state, 0);
    c.Style(CALS_EnableButtons, 0);
    c.input.LButtonDown(l.left + 2, 3, 0);
    EXPECT_EQ(c.state, 0) << "disabled buttons end the press";
    EXPECT_EQ(c.cal().DisplayMonth(), 2);
}

TEST(PressFocus, AFieldThatDoesNotValidateKeepsThePressAway) {
    Control c(2024, 3, 15);
    c.fx.focused = false;
    c.fx.validateAnswer = 0;
    const auto p = c.Centre(25);
    c.input.LButtonDown(p.x, p.y, 0);
    EXPECT_EQ(c.fx.Take(), (Events{"validate 1"}));
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 15}));
    c.fx.validateAnswer = 1;
    c.input.LButtonDown(p.x, p.y, 0);
    EXPECT_EQ(EventAt(c.fx.Take(), "focus"), 1);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 21}));
}

TEST(PressFocus, LosingTheFocusCancelsAtTheNextTick) {
    Control c(2024, 3, 15);
    const auto r = c.layout.RightButton();
    c.input.LButtonDown(r.left + 2, 3, 0);
    c.fx.Take();
    c.input.FocusLost();
    EXPECT_EQ(c.fx.Take(), (Events{"inv cell 15", "notify 2"})) << "15 April, after the first step";
    EXPECT_TRUE(c.input.CancelPending());
    EXPECT_TRUE(c.input.Timer(k::kTimerMonthOn));
    EXPECT_EQ(c.Focus(), (Ymd{2024, 4, 15})) << "the tick did not step";
    EXPECT_EQ(c.state & (k::CALF_LeftDown | k::CALF_RightDown), 0);
    const Events e = c.fx.Take();
    EXPECT_TRUE(Has(e, "release") && Has(e, "stop 503") && Has(e, "stop 506"));
    EXPECT_EQ(e.back(), "inv window");
    EXPECT_FALSE(c.input.CancelPending());
    c.input.Timer(k::kTimerMonthOn);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 5, 15})) << "ticks count again";
}

TEST(PressFocus, APopUpClosesUpOnAPressBesideItAndWhenItLosesTheFocus) {
    Control c(2024, 3, 15);
    c.Style(CALS_PopUp, 1);
    c.input.LButtonDown(-5, 40, 0);
    const Events beside = c.fx.Take();
    ASSERT_GE(beside.size(), 2u);
    EXPECT_EQ(beside[0], "release");
    EXPECT_EQ(beside[1], "notify 8");
    c.input.LButtonUp(-5, 40, 0);
    c.fx.Take();
    c.input.FocusLost();
    EXPECT_EQ(c.fx.Take(), (Events{"release", "hide", "notify 8", "notify 2"}));
    c.input.LButtonDown(c.Centre(3).x, c.Centre(3).y, 0);
    EXPECT_FALSE(c.input.CancelPending()) << "a press clears the cancel";
}

TEST(PressFocus, GainingTheFocusRedrawsTheFocusCellWithShowFocus) {
    Control c(2024, 3, 15);
    c.input.FocusGained();
    EXPECT_EQ(c.fx.Take(), (Events{"inv cell 19", "update"}));
    c.Style(CALS_ShowFocus, 0);
    c.input.FocusGained();
    EXPECT_TRUE(c.fx.Take().empty());
}

} // namespace
