// The keyboard of the control: which keys act, in which mode, and where
// they leave the focus.
#include <gtest/gtest.h>

#include <algorithm>

#include "ctl_control_fakes.h"

namespace {

using calctl::Control;
using caltest::Ymd;
using zk::cal::CDateTime;
using Events = std::vector<std::string>;
namespace k = zk::cal;

TEST(Keys, PageUpGoesForwardInTimeAndRepaintsTheCaption) {
    Control c(2024, 3, 31);
    EXPECT_TRUE(c.input.KeyDown(zk::kKeyPrior));
    EXPECT_EQ(c.Focus(), (Ymd{2024, 4, 30}));
    EXPECT_EQ(c.fx.Take(), (Events{"paint caption"}));
    EXPECT_TRUE(c.input.KeyDown(zk::kKeyNext));
    EXPECT_TRUE(c.input.KeyDown(zk::kKeyNext));
    EXPECT_EQ(c.Focus(), (Ymd{2024, 2, 29}));
    c.fx.ctrl = true;
    c.input.KeyDown(zk::kKeyNext);
    EXPECT_EQ(c.Focus(), (Ymd{2023, 3, 1})) << "a year back: the host rolls 29 February 2023 over";
}

TEST(Keys, CtrlPageUpOn29FebruaryTakesTheHostsRollOver) {
    Control c(2024, 2, 29);
    c.fx.ctrl = true;
    EXPECT_TRUE(c.input.KeyDown(zk::kKeyPrior));
    EXPECT_EQ(c.Focus(), (Ymd{2025, 3, 1})) << "29 February 2025 as the host builds it, not cut to the 28th";
    EXPECT_EQ(c.fx.Take(), (Events{"paint caption"}));
}

TEST(Keys, HomeAndEndWithTheirModifiers) {
    Control c(2024, 2, 14); // cells 4 to 32; the 14th is cell 17
    c.input.KeyDown(zk::kKeyHome);
    EXPECT_EQ(c.cal().FocusCell(), 14);
    c.input.KeyDown(zk::kKeyEnd);
    EXPECT_EQ(c.cal().FocusCell(), 20);
    c.fx.ctrl = true;
    c.input.KeyDown(zk::kKeyHome);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 2, 1}));
    c.input.KeyDown(zk::kKeyEnd);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 2, 29}));
    c.fx.shift = true;
    c.input.KeyDown(zk::kKeyHome);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 1, 1}));
    c.input.KeyDown(zk::kKeyEnd);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 12, 31}));
    EXPECT_EQ(c.cal().DisplayMonth(), 12);
}

TEST(Keys, ArrowsAndCharacters) {
    Control c(2024, 3, 15);
    c.input.KeyDown(zk::kKeyDown);
    c.input.KeyDown(zk::kKeyRight);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 23}));
    c.input.KeyDown(zk::kKeyUp);
    c.input.KeyDown(zk::kKeyLeft);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 15}));
    EXPECT_TRUE(c.input.Char(u'+'));
    EXPECT_TRUE(c.input.Char(u'+'));
    EXPECT_TRUE(c.input.Char(u'-'));
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 16}));
    c.cal().SetFocusDate(CDateTime(2023, 7, 1), 0, 1);
    EXPECT_TRUE(c.input.Char(u't'));
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 15})) << "today, by the host's clock";
    EXPECT_FALSE(c.input.Char(u'x'));
    EXPECT_FALSE(c.input.KeyDown(0x41)) << "keys the calendar leaves alone go to the default";
}

TEST(Keys, WithoutEnableKeyboardNothingActs) {
    Control c(2024, 3, 15);
    c.Style(CALS_EnableKeyboard, 0);
    EXPECT_FALSE(c.input.KeyDown(zk::kKeyRight));
    EXPECT_FALSE(c.input.Char(u'+'));
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 15}));
}

TEST(Keys, ReturnOnAFormDoesNothingAndClosesAPopUp) {
    Control c(2024, 3, 15);
    EXPECT_TRUE(c.input.KeyDown(zk::kKeyReturn));
    EXPECT_TRUE(c.fx.Take().empty());
    c.Style(CALS_PopUp, 1);
    EXPECT_TRUE(c.input.KeyDown(zk::kKeyEscape));
    const Events e = c.fx.Take();
    ASSERT_FALSE(e.empty());
    EXPECT_EQ(e.back(), "notify 8");
    EXPECT_EQ(std::count(e.begin(), e.end(), std::string("post select 19")), 0) << "nothing was pressed";
}

TEST(Keys, SelectionKeysNeedMultipleSelection) {
    Control c(2024, 3, 15);
    c.cal().ClearMarks(0);
    c.input.KeyDown(zk::kKeySpace);
    c.input.KeyDown(zk::kKeyInsert);
    EXPECT_EQ(c.cal().Marks().size(), 0u);
    c.Style(CALS_MultipleSelection, 1);
    c.input.KeyDown(zk::kKeyInsert);
    EXPECT_EQ(c.cal().IsMarked(CDateTime(2024, 3, 15)), 1);
    c.input.KeyDown(zk::kKeyDelete);
    EXPECT_EQ(c.cal().IsMarked(CDateTime(2024, 3, 15)), 0);
    c.input.KeyDown(zk::kKeySpace);
    EXPECT_EQ(c.cal().IsMarked(CDateTime(2024, 3, 15)), 1);
}

} // namespace
