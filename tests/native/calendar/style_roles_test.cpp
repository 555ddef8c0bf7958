// Style bits: what counts as set, the order of assignment and its effects;
// colour roles: defaults, derivation, explicit colours and their redraws.
#include <gtest/gtest.h>

#include <utility>

#include <cstdio>

#include "calendar_fakes.h"
#include "frame/core/errors.h"

namespace {

using caltest::Shown;
using caltest::SysColor;
using Events = std::vector<std::string>;
using zk::cal::CDateTime;

constexpr uint32_t kAllBits = 0x1FFF;
constexpr uint32_t kDefaults =
    CALS_EnableButtons | CALS_EnableKeyboard | CALS_ShowFocus | CALS_SelectExtra | CALS_SelectSpecial | CALS_ShowExtra;

TEST(Style, AFlagCountsAboveZeroAutoSizeWhenNotZeroAndUnknownBitsAreIgnored) {
    Shown s(2024, 3, false);
    EXPECT_EQ(s.cal.GetStyle(), kDefaults);
    EXPECT_EQ(s.cal.SetStyle(0xFFFF0000u | kAllBits, -1), kDefaults) << "the old bits";
    EXPECT_EQ(s.cal.GetStyle(), uint32_t(CALS_AutoSize));
    EXPECT_EQ(s.cal.Flags().showGridlines, -1) << "stored as given";
    s.cal.SetStyle(kAllBits, 5);
    EXPECT_EQ(s.cal.GetStyle(), kAllBits);
    EXPECT_EQ(s.cal.SetStyle(0, 1), kAllBits);
}

TEST(Style, EffectsOfEveryFlagInTheirOrder) {
    Shown s(2024, 3);
    s.cal.SetFocusDate(CDateTime(2024, 3, 15), 0, 1);
    s.window.Take();
    s.cal.SetStyle(kAllBits, 1);
    // Alternate Buttons, Enable Buttons, Etched Look, Show Extra (set, Select
    // Extra on), Show Focus, Show Gridlines, Show Special (set, Select Special on).
    EXPECT_EQ(s.window.Take(),
              (Events{"inv buttons", "inv buttons", "inv window", "inv grid", "inv grid", "inv body", "inv grid"}));
    s.cal.SetStyle(kAllBits, 0);
    // ... then Multiple Selection cleared: the marks go and the focus date is
    // marked again (cell 19); Show Extra cleared moves no focus that is in the month.
    EXPECT_EQ(s.window.Take(), (Events{"inv buttons", "inv buttons", "inv window", "inv grid", "inv cell 19",
                                       "inv grid", "inv grid", "inv body", "inv grid"}));
}

TEST(Style, ShowExtraMovesTheFocusIntoTheMonthOrUnmarksExtraCells) {
    Shown s(2024, 3);
    s.cal.SetFocusCell(2, 0);
    s.cal.SetStyle(CALS_ShowExtra, 0);
    EXPECT_EQ(caltest::Parts(s.cal.GetFocusDate()), (caltest::Ymd{2024, 3, 1}));
    s.cal.SetStyle(CALS_ShowExtra, 1);
    s.cal.SetFocusCell(40, 0);
    s.cal.SetStyle(CALS_ShowExtra, 0);
    EXPECT_EQ(s.cal.FocusCell(), 35);
    EXPECT_EQ(caltest::Parts(s.cal.GetFocusDate()), (caltest::Ymd{2024, 3, 31}));

    s.cal.SetStyle(CALS_MultipleSelection, 1);
    s.cal.SetStyle(CALS_SelectExtra, 0);
    s.cal.MarkDate(CDateTime(2024, 4, 1), 1, 0, 0);
    s.window.Take();
    s.cal.SetStyle(CALS_ShowExtra, 1);
    EXPECT_EQ(s.window.Take(), (Events{"inv cell 36", "inv cell 36", "inv grid"})) << "Select Extra is off";
    EXPECT_EQ(s.cal.IsMarked(CDateTime(2024, 4, 1)), 0);
    EXPECT_EQ(s.cal.IsMarked(CDateTime(2024, 3, 31)), 1) << "the focus date's mark is no extra cell";
}

// The control frame keeps its own copy of some flags: it hears of every
// assignment, in the order of assignment.
TEST(Style, TheWindowHearsOfEveryFlagAssigned) {
    zk::cal::CalendarModel cal;
    Events heard;
    cal.OnFlagAssigned([&](uint32_t bit, int32_t value) {
        char text[32];
        std::snprintf(text, sizeof text, "flag %04X=%d", static_cast<unsigned>(bit), static_cast<int>(value));
        heard.push_back(text);
    });
    cal.SetStyle(0xF0000 | CALS_AutoSize | CALS_AlternateButtons | CALS_ShowFocus, 3);
    EXPECT_EQ(std::exchange(heard, {}), (Events{"flag 1000=3", "flag 0001=3", "flag 0200=3"}));
    cal.AssignStyleFlag(CALS_PopUp, -2);
    cal.AssignStyleFlag(0x2000, 1);
    EXPECT_EQ(heard, (Events{"flag 0002=-2"}));
    EXPECT_EQ(cal.Flags().popUp, -2);
}

TEST(Roles, DefaultsFollowTheSystemOrTheirRole) {
    zk::cal::CalendarModel cal;
    const int table[] = {-1, 5, -1, 15, 13, 15, 20, 16, 18, 8, -1, 17, 17, -1, 14, 6};
    for (int role = 0; role < 16; ++role) {
        SCOPED_TRACE(role);
        EXPECT_EQ(zk::cal::CalendarModel::RoleTableEntry(role), table[role] < 0 ? 0xFFFF : table[role]);
        if (table[role] >= 0) {
            EXPECT_EQ(cal.GetRoleColor(role), SysColor(table[role]));
        }
        EXPECT_EQ(cal.IsDerivedRoleColor(role), table[role] < 0 ? 1 : 0);
    }
    EXPECT_EQ(cal.GetRoleColor(CALR_Background), SysColor(5));
    EXPECT_EQ(cal.GetRoleColor(CALR_ExtraBack), SysColor(5));
    EXPECT_EQ(cal.GetRoleColor(CALR_WeekdayText), SysColor(8));
    EXPECT_EQ(cal.GetRoleColor(CALR_CaptionText), SysColor(8));
    // Derived roles follow an explicit colour of their role; the background follows none.
    cal.SetRoleColor(CALR_CellBack, 0x123456, 0);
    cal.SetRoleColor(CALR_CellText, 0x654321, 0);
    EXPECT_EQ(cal.GetRoleColor(CALR_ExtraBack), 0x123456u);
    EXPECT_EQ(cal.GetRoleColor(CALR_WeekdayText), 0x654321u);
    EXPECT_EQ(cal.GetRoleColor(CALR_CaptionText), 0x654321u);
    EXPECT_EQ(cal.GetRoleColor(CALR_Background), SysColor(5));
}

TEST(Roles, SetReturnsTheColourInForceBeforeAndEndsTheDefault) {
    zk::cal::CalendarModel cal;
    // A derived role gives what it followed: the cells' background, the system's window colour.
    EXPECT_EQ(cal.SetRoleColor(CALR_ExtraBack, 0xABCDEF, 0), SysColor(5));
    EXPECT_EQ(cal.GetRoleColor(CALR_ExtraBack), 0xABCDEFu);
    EXPECT_EQ(cal.IsDerivedRoleColor(CALR_ExtraBack), 0);
    EXPECT_EQ(cal.SetRoleColor(CALR_ExtraBack, 0x000001, 0), 0xABCDEFu);
    EXPECT_THROW(cal.GetRoleColor(16), zk::InvalidArgException);
    EXPECT_THROW(cal.SetRoleColor(-1, 0, 1), zk::InvalidArgException);
    EXPECT_THROW(cal.IsDerivedRoleColor(99), zk::InvalidArgException);
}

TEST(Roles, EachRoleRedrawsItsArea) {
    Shown s(2024, 3);
    const char *areas[] = {"window",  "grid", "grid",   "caption+header", "grid",   "buttons", "buttons", "buttons",
                           "buttons", "grid", "header", "grid",           "window", "caption", "grid",    "window"};
    for (int role = 0; role < 16; ++role) {
        s.cal.SetRoleColor(role, 1, 1);
        EXPECT_EQ(s.window.Take(), (Events{std::string("inv ") + areas[role]})) << "role " << role;
        s.cal.SetRoleColor(role, 2, 0);
        EXPECT_TRUE(s.window.Take().empty());
    }
    s.window.created = false;
    s.cal.SetRoleColor(0, 3, 1);
    EXPECT_TRUE(s.window.Take().empty());
}

TEST(Names, TheCaptionOrTheHeaderShowsNewNames) {
    Shown s(2024, 3);
    s.cal.MonthNamesChanged();
    s.cal.WeekdayNamesChanged();
    EXPECT_EQ(s.window.Take(), (Events{"inv caption", "update", "inv header", "update"}));
    s.window.created = false;
    s.cal.MonthNamesChanged();
    EXPECT_TRUE(s.window.Take().empty());
}

} // namespace
