// Focus movement across the zones, the key table and the drag machine,
// on the default palette: eight colours in two rows of seven, the
// other-colour line, no recent colours yet.
#include <gtest/gtest.h>

#include <algorithm>

#include "palette_fakes.h"

namespace {

using paltest::Palette;
using zk::pal::Hit;
using Events = std::vector<std::string>;
using zkt::Has;

bool Posted(const Events &events) {
    return std::any_of(events.begin(), events.end(), [](const std::string &e) { return e.rfind("post", 0) == 0; });
}

struct Step {
    uint32_t key;
    Hit after;
};

void Walk(Palette &p, Hit from, const std::vector<Step> &steps) {
    p.model.SetFocusCell(from.index, from.zone, 0);
    for (const Step &s : steps) {
        EXPECT_TRUE(p.input.KeyDown(s.key));
        EXPECT_EQ(p.Focus(), s.after) << "key " << s.key << " to " << s.after.zone << "." << s.after.index;
    }
}

TEST(PaletteKeys, ArrowsCrossTheZonesAndStopAtTheEnds) {
    Palette p;
    Walk(p, {0, 6},
         {{zk::kKeyRight, {0, 7}},
          {zk::kKeyRight, {1, 0}},
          {zk::kKeyRight, {1, 0}}, // the recent zone is empty: the focus stops
          {zk::kKeyLeft, {0, 7}},
          {zk::kKeyUp, {0, 0}},
          {zk::kKeyLeft, {0, 0}},
          {zk::kKeyUp, {0, 0}}});
    // In the last row VK_DOWN steps on into the next zone once past the last index.
    Walk(p, {0, 3}, {{zk::kKeyDown, {1, 0}}, {zk::kKeyUp, {0, 7}}, {zk::kKeyDown, {1, 0}}});
    p.AddRecent(0x11);
    p.AddRecent(0x22);
    Walk(p, {1, 0},
         {{zk::kKeyRight, {2, 0}},
          {zk::kKeyRight, {2, 1}},
          {zk::kKeyRight, {2, 1}},
          {zk::kKeyLeft, {2, 0}},
          {zk::kKeyLeft, {1, 0}},
          {zk::kKeyDown, {2, 0}},
          // A row of two recent colours back: through the one line to the main grid.
          {zk::kKeyUp, {0, 7}}});
}

TEST(PaletteKeys, ReturnAndSpaceChooseAMenuEntryOnly) {
    Palette p;
    p.model.AddMenu(std::make_unique<zk::pal::SPaletteMenu>(u"Auto", 5));
    p.fx.Take();
    EXPECT_TRUE(p.input.KeyDown(zk::kKeyReturn));
    EXPECT_FALSE(Posted(p.fx.Take())) << "zone 0 has nothing to choose";
    p.model.SetFocusCell(0, 1, 0);
    p.input.KeyDown(zk::kKeySpace);
    p.model.SetFocusCell(1, 1, 0);
    p.input.KeyDown(zk::kKeyReturn);
    const Events events = p.fx.Take();
    EXPECT_TRUE(Has(events, "post 24583 4660 5")) << "ZKM_PaletteCommand, the window, the id";
    EXPECT_TRUE(Has(events, "post 24583 4660")) << "id 0: the other-colour entry";
    EXPECT_FALSE(p.input.KeyDown('A'));
    EXPECT_TRUE(p.input.KeyDown(zk::kKeyEscape)) << "handled, but only a pop-up closes";
    EXPECT_FALSE(p.input.SysKeyDown(zk::kKeyUp));
    EXPECT_TRUE(p.fx.Take().empty());
}

TEST(PaletteDrag, FollowsThePointerAndSelectsOnRelease) {
    Palette p;
    const zk::Point a = p.Centre(0, 2), b = p.Centre(0, 4);
    p.input.LButtonDown(a.x, a.y);
    EXPECT_EQ(p.state, zk::pal::PALF_DragMain);
    EXPECT_EQ(p.fx.Take(),
              (Events{"inv focus 0.0", "inv focus 0.2", "update", "notify 1", "inv main", "update", "capture"}));
    p.input.MouseMove(b.x, b.y);
    EXPECT_EQ(p.Focus(), (Hit{0, 4}));
    p.input.MouseMove(p.layout.Frame().right - 1, 1); // in the frame, on no cell
    EXPECT_EQ(p.Focus(), (Hit{0, 4}));
    p.fx.Take();
    p.input.LButtonUp(b.x, b.y);
    EXPECT_EQ(p.fx.Take(), (Events{"release", "post select 0 4"}));
    EXPECT_EQ(p.state, 0);
}

TEST(PaletteDrag, ReleasingOutsideTheFramePostsNothing) {
    Palette p;
    const zk::Point a = p.Centre(0, 1);
    p.input.LButtonDown(a.x, a.y);
    p.input.MouseMove(300, 10);
    EXPECT_EQ(p.state, zk::pal::PALF_DragMain | zk::pal::PALF_Outside);
    p.input.LButtonUp(300, 10);
    const Events events = p.fx.Take();
    EXPECT_FALSE(Posted(events));
    EXPECT_EQ(events.back(), "release");
    EXPECT_EQ(p.state, 0);
}

TEST(PaletteDrag, TheOtherColourLinePostsSelectThenCommandZero) {
    Palette p;
    const zk::Point line = p.Centre(1, 0);
    p.input.LButtonDown(line.x, line.y);
    EXPECT_EQ(p.state, zk::pal::PALF_DragMenu);
    p.fx.Take();
    p.input.LButtonUp(line.x, line.y);
    EXPECT_EQ(p.fx.Take(), (Events{"release", "post select 1", "post 24583 4660"}));
    EXPECT_EQ(p.state, 0);
}

TEST(PaletteDrag, APressOnTheGroundBesideTheZonesStartsNoDrag) {
    Palette p;
    p.fx.focused = false;
    p.input.LButtonDown(1, 1);
    EXPECT_EQ(p.fx.Take(), (Events{"focus"})) << "the press takes the focus, nothing more";
    p.input.MouseMove(10, 10);
    p.input.LButtonUp(10, 10);
    EXPECT_FALSE(Posted(p.fx.Take()));
    p.input.LButtonDblClk(1, 1);
    p.input.LButtonDblClk(200, 1);
    EXPECT_EQ(p.fx.Take(), (Events{"post dblclk 0"})) << "in the frame, with the focus cell";
}

TEST(PaletteDropDown, NoCaptureAndAReleaseClosesThePopUp) {
    Palette p;
    p.model.SetStyle(PALS_DropDown, 1);
    const zk::Point a = p.Centre(0, 3);
    p.fx.Take();
    p.input.LButtonDown(a.x, a.y);
    EXPECT_FALSE(Has(p.fx.Take(), "capture"));
    p.input.LButtonUp(a.x, a.y);
    EXPECT_EQ(p.fx.Take(), (Events{"post select 0 3", "notify 8"}));
    p.input.LButtonDown(-5, 10);
    EXPECT_EQ(p.fx.Take(), (Events{"release", "notify 8"})) << "a press beside the pop-up";
    EXPECT_TRUE(p.input.KeyDown(zk::kKeyEscape));
    EXPECT_TRUE(p.input.SysKeyDown(zk::kKeyUp));
    EXPECT_EQ(p.fx.Take(), (Events{"notify 8", "notify 8"}));
}

TEST(PaletteFocus, LosingItPaintsTheFocusCellOrHidesThePopUp) {
    Palette p;
    p.input.FocusLost();
    EXPECT_EQ(p.fx.Take(), (Events{"inv focus 0.0", "notify 2"}));
    p.input.FocusGained();
    EXPECT_EQ(p.fx.Take(), (Events{"inv focus 0.0", "inv focus 0.0", "update", "notify 1"}));
    p.model.SetStyle(PALS_DropDown, 1);
    p.fx.Take();
    p.input.FocusLost();
    EXPECT_EQ(p.fx.Take(), (Events{"release", "hide", "notify 8", "notify 2"}));
    const zk::Point a = p.Centre(0, 3);
    p.input.LButtonDown(a.x, a.y);
    p.input.CancelMode();
    EXPECT_EQ(p.state, 0);
}

TEST(PaletteFocus, BeforeCreationTheFocusIsStoredQuietlyAndBadCellsAreRefused) {
    Palette p;
    p.fx.created = false;
    EXPECT_EQ(p.model.SetFocusCell(5, 0, 1), 1);
    EXPECT_TRUE(p.fx.Take().empty());
    p.fx.created = true;
    for (const Hit bad : {Hit{0, 8}, Hit{0, -1}, Hit{2, 0}, Hit{3, 0}, Hit{-2, 0}})
        EXPECT_EQ(p.model.SetFocusCell(bad.index, bad.zone, 1), 1);
    EXPECT_EQ(p.Focus(), (Hit{0, 5}));
    EXPECT_EQ(p.model.SetFocusCell(0, -1, 0), 1) << "zone -1: the present zone";
    EXPECT_EQ(p.Focus(), (Hit{0, 0}));
}

} // namespace
