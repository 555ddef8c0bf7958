// The model's rules: the recent list and the other-colour entry, the main
// colours, the menu index rules, roles and style bits.
#include <gtest/gtest.h>

#include "palette_fakes.h"

namespace {

using paltest::Palette;
using zk::pal::SPaletteColor;
using zk::pal::SPaletteMenu;
using Events = std::vector<std::string>;

std::unique_ptr<SPaletteMenu> Menu(const char16_t *text, uint16_t id) {
    return std::make_unique<SPaletteMenu>(text, id);
}

std::vector<uint32_t> Recent(const zk::pal::PaletteModel &m) {
    std::vector<uint32_t> colours;
    for (int32_t i = 0; i < m.RecentCount(); ++i)
        colours.push_back(m.GetColorItem(PALP_Recent, i)->colour);
    return colours;
}

TEST(PaletteRecent, EnablingTwiceAddsOneOtherColourEntryAndDisablingClearsTheList) {
    Palette p;
    EXPECT_EQ(p.model.InternalCount(), 1);
    EXPECT_EQ(p.model.GetMenuEntry(0)->text, u"Other Color...");
    EXPECT_EQ(p.model.GetMenuEntry(0)->id, 0);
    EXPECT_EQ(p.model.EnableRecent(1), 1);
    EXPECT_EQ(p.model.InternalCount(), 1);
    p.AddRecent(0x11);
    p.model.AddMenu(Menu(u"Auto", 5));
    EXPECT_EQ(p.model.GetMenuEntry(1)->text, u"Other Color...") << "after the application's entries";
    p.fx.Take();
    EXPECT_EQ(p.model.EnableRecent(0), 1);
    EXPECT_EQ(p.model.InternalCount(), 0);
    EXPECT_EQ(p.model.RecentCount(), 0);
    EXPECT_EQ(p.model.GetStyle() & PALS_EnableRecent, 0u);
    // ClearRecentColors with update, then the layout without it.
    EXPECT_EQ(p.fx.Take(), (Events{"layout", "fit", "inv window", "update", "layout", "fit", "inv window"}));
}

TEST(PaletteRecent, NewestFirstWithoutSearchAndTheOldestGoBeyondTheMaximum) {
    Palette p;
    for (uint32_t c : {1u, 2u, 2u, 3u})
        p.AddRecent(c);
    EXPECT_EQ(Recent(p.model), (std::vector<uint32_t>{3, 2, 2, 1}));
    EXPECT_EQ(p.model.SetRecentMax(1), 8);
    EXPECT_EQ(Recent(p.model), (std::vector<uint32_t>{3}));
    p.AddRecent(4);
    EXPECT_EQ(Recent(p.model), (std::vector<uint32_t>{4})) << "maximum 1: the one entry replaced";
    p.model.SetRecentMax(0);
    p.AddRecent(5);
    EXPECT_TRUE(Recent(p.model).empty()) << "maximum 0: inserted and deleted at once";
    EXPECT_EQ(p.model.SetRecentMax(300), 0);
    EXPECT_EQ(p.model.RecentMax(), 255);
    EXPECT_EQ(p.model.SetRecentMax(-1), 255);
    EXPECT_EQ(p.model.RecentMax(), 0);
}

TEST(PaletteRecent, ALowerMaximumPullsTheFocusBackAndClearingSendsItToTheFirstColour) {
    Palette p;
    for (uint32_t c : {1u, 2u, 3u, 4u})
        p.AddRecent(c);
    p.model.SetFocusCell(3, 2, 0);
    p.model.SetRecentMax(2);
    EXPECT_EQ(p.Focus(), (zk::pal::Hit{2, 1}));
    p.model.SetRecentMax(0);
    EXPECT_EQ(p.Focus(), (zk::pal::Hit{2, 1})) << "an emptied list leaves the focus as it was";
    p.model.SetRecentMax(5);
    p.AddRecent(7);
    p.model.SetFocusCell(0, 2, 0);
    p.fx.Take();
    p.model.ClearRecentColors();
    EXPECT_EQ(p.Focus(), (zk::pal::Hit{0, 0}));
    const Events events = p.fx.Take();
    ASSERT_GE(events.size(), 4u);
    EXPECT_EQ(Events(events.begin(), events.begin() + 4),
              (Events{"inv focus 2.0", "inv focus 0.0", "update", "notify 1"}))
        << "the old cell painted again where the layout still has it";
}

TEST(PaletteMain, AColourBeyondTheEndAppendsAndTheZoneGrowsOnlyAtTheNextLayout) {
    Palette p;
    const zk::Rect before = p.layout.Main();
    auto old = p.model.SetMainColor(18, std::make_unique<SPaletteColor>(0xABCDEF));
    EXPECT_EQ(old, nullptr);
    EXPECT_EQ(p.model.MainCount(), 9);
    EXPECT_EQ(p.model.GetColorItem(PALP_Main, 8)->colour, 0xABCDEFu);
    EXPECT_EQ(p.layout.Main(), before);
    EXPECT_EQ(p.fx.Take(), (Events{"inv [22,20,39,35]", "update"})) << "the new cell, from the old zone";
    old = p.model.SetMainColor(0, std::make_unique<SPaletteColor>(1));
    ASSERT_NE(old, nullptr);
    EXPECT_EQ(old->colour, 0x0000FFu);
    EXPECT_EQ(p.model.SetMainColor(-1, std::make_unique<SPaletteColor>(2)), nullptr);
    EXPECT_EQ(p.model.MainCount(), 9);
    p.model.LayoutChanged(0);
    EXPECT_EQ(p.layout.Main().Height(), 2 * 17 - 2);
    EXPECT_EQ(p.model.GetColorItem(PALP_Main, 9), nullptr);
    EXPECT_EQ(p.model.GetColorItem(2, 0), nullptr);
}

TEST(PaletteMenus, IndexRules) {
    Palette p;
    EXPECT_EQ(p.model.AddMenu(nullptr), -1);
    EXPECT_EQ(p.model.AddMenu(Menu(u"A", 1)), 0);
    p.model.InsertMenu(-1, Menu(u"never", 9));
    p.model.InsertMenu(7, Menu(u"C", 3));
    p.model.InsertMenu(1, Menu(u"B", 2));
    ASSERT_EQ(p.model.MenuCount(), 3);
    EXPECT_EQ(p.model.GetMenu(1)->text, u"B");
    EXPECT_EQ(p.model.GetMenu(2)->text, u"C");
    EXPECT_EQ(p.model.SetMenu(-1, Menu(u"x", 0)), nullptr);
    EXPECT_EQ(p.model.SetMenu(9, Menu(u"D", 4)), nullptr) << "capped at the count: appended";
    EXPECT_EQ(p.model.SetMenu(0, Menu(u"a", 1))->text, u"A");
    EXPECT_EQ(p.model.MenuCount(), 4);
    EXPECT_EQ(p.model.GetMenu(4), nullptr) << "the internal entry is not the application's";
    EXPECT_EQ(p.model.GetMenuEntry(4)->text, u"Other Color...");
    EXPECT_EQ(p.model.GetMenuEntry(5), nullptr);
    p.fx.Take();
    EXPECT_EQ(p.model.RemoveMenu(4), 0);
    EXPECT_EQ(p.fx.Take(), (Events{"layout", "fit", "inv window", "update"})) << "laid out all the same";
    EXPECT_EQ(p.model.RemoveMenu(0), 1);
    EXPECT_EQ(p.model.GetMenu(0)->text, u"B");
    p.model.ClearMenus();
    EXPECT_EQ(p.model.MenuCount(), 0);
    EXPECT_EQ(p.model.Counts().lines, 1);
}

TEST(PaletteRoles, ThreeRolesFollowRoleOneAndEachRedrawsItsArea) {
    Palette p;
    EXPECT_EQ(p.model.GetRoleColor(1), paltest::SysColor(5));
    EXPECT_EQ(p.model.GetRoleColor(3), paltest::SysColor(20));
    EXPECT_EQ(p.model.GetRoleColor(10), paltest::SysColor(13));
    EXPECT_EQ(p.model.GetRoleColor(12), 0xFFFFFFFFu);
    EXPECT_EQ(p.model.SetRoleColor(-1, 0, 1), 0xFFFFFFFFu);
    EXPECT_EQ(p.model.SetRoleColor(PALR_Background, 0x0102, 1), paltest::SysColor(5));
    for (int role : {PALR_GridBack, PALR_MenuBack, PALR_InnerBottomRight})
        EXPECT_EQ(p.model.GetRoleColor(role), 0x0102u) << role;
    EXPECT_EQ(p.model.SetRoleColor(PALR_MenuBack, 7, 0), 0x0102u) << "the colour in force before";
    EXPECT_EQ(p.model.GetRoleColor(PALR_MenuBack), 7u);
    EXPECT_EQ(p.model.IsDerivedRoleColor(PALR_GridBack), 1);
    EXPECT_EQ(p.model.IsDerivedRoleColor(PALR_MenuBack), 0);
    p.fx.Take();
    const struct {
        int role;
        Events events;
    } rows[] = {
        {PALR_GridBack, {"inv main"}}, // the empty recent zone marks nothing
        {PALR_Text, {"inv window"}},   {PALR_DisabledText, {"inv window"}}, {PALR_Frame, {"inv window"}},
        {PALR_MenuBack, {"inv menu"}}, {PALR_OuterTopLeft, {"inv frame"}},  {PALR_FocusInner, {"inv frame"}},
    };
    for (const auto &row : rows) {
        p.model.SetRoleColor(row.role, 1, 1);
        EXPECT_EQ(p.fx.Take(), row.events) << row.role;
    }
}

TEST(PaletteStyle, BitsAreFlagsOfOneAndSetStyleAssignsInOrder) {
    Palette p;
    EXPECT_EQ(p.model.GetStyle(), static_cast<uint32_t>(PALS_EnableRecent));
    EXPECT_EQ(p.model.SetStyle(PALS_AutoSize | PALS_KeepSelection | 0x100, 1),
              static_cast<uint32_t>(PALS_EnableRecent));
    EXPECT_EQ(p.fx.Take(), (Events{"inv window", "update"})) << "auto-size waits for the next layout";
    EXPECT_EQ(p.model.GetStyle(), static_cast<uint32_t>(PALS_EnableRecent | PALS_AutoSize | PALS_KeepSelection));
    p.model.SetStyle(PALS_DropDown, 2);
    EXPECT_EQ(p.model.Block().dropDown, 2) << "stored as given";
    EXPECT_EQ(p.model.GetStyle() & PALS_DropDown, 0u);
    p.model.SetStyle(PALS_EnableRecent, 0);
    EXPECT_EQ(p.model.Counts().lines, 0);
}

// The dialog is handed the first recent entry's reference as its colour:
// a number with no meaning as a colour, and 0 for an empty list.
TEST(PaletteApply, TheDialogsInitialColourIsTheFirstEntrysReference) {
    Palette p;
    EXPECT_EQ(p.model.DialogInitialColor(), 0u);
    p.AddRecent(0x123456);
    EXPECT_EQ(p.model.DialogInitialColor(),
              static_cast<uint32_t>(reinterpret_cast<uintptr_t>(p.model.GetColorItem(PALP_Recent, 0))));
    p.fx.Take();
    p.model.OtherColorChosen(0x00FF00);
    EXPECT_EQ(Recent(p.model), (std::vector<uint32_t>{0x00FF00, 0x123456}));
    EXPECT_EQ(p.Focus(), (zk::pal::Hit{2, 0}));
}

} // namespace
