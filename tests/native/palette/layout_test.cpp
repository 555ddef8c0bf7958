// The layout's sums on a client 140 wide with line height 16 and base
// width 8 (zone width 133), the zones' odd heights, and the hit test
// against a plain scan of every cell.
#include <gtest/gtest.h>

#include "palette/core/palette_layout.h"

namespace {

using zk::Rect;
using zk::pal::GridLayout;
using zk::pal::Hit;
using zk::pal::ZoneCounts;

GridLayout Laid(ZoneCounts counts, int32_t width = 140) {
    GridLayout layout;
    layout.Compute({0, 0, width, 200}, 16, 8, counts);
    return layout;
}

TEST(PaletteLayout, EightColoursStretchOverSevenColumnsInTwoRows) {
    const GridLayout l = Laid({8, 1, 0});
    EXPECT_EQ(l.ZoneWidth(), 133);
    EXPECT_EQ(l.MainCellWidth(), 18) << "(133 - 7 + 1) / 7";
    EXPECT_EQ(l.RecentCellWidth(), 16) << "no recent colours: square";
    EXPECT_EQ(l.Columns(0), 7);
    EXPECT_EQ(l.Main(), (Rect{3, 3, 135, 35}));
    EXPECT_EQ(l.Menu(), (Rect{3, 37, 135, 52}));
    EXPECT_EQ(l.Recent(), (Rect{3, 54, 135, 52})) << "nothing in it: bottom = top - 2";
    EXPECT_EQ(l.Frame(), (Rect{0, 0, 138, 54})) << "height 32 + 15 - 2 + 9 + 1";
    EXPECT_EQ(l.FitWidth(), 141);
    EXPECT_EQ(l.FitHeight(), 57);
    EXPECT_EQ(l.GetColorCellRect(0, 6, 8), (Rect{117, 3, 134, 18}));
    EXPECT_EQ(l.GetColorCellRect(0, 7, 8), (Rect{3, 20, 20, 35}));
    EXPECT_EQ(l.GetColorCellRect(0, 8, 8), (Rect{22, 20, 39, 35})) << "the cell a new colour would take";
    EXPECT_TRUE(l.GetColorCellRect(0, 9, 8).Empty());
    EXPECT_TRUE(l.GetColorCellRect(0, -1, 8).Empty());
    EXPECT_TRUE(l.GetColorCellRect(1, 0, 8).Empty());
}

TEST(PaletteLayout, EmptyZonesHaveNegativeHeightsAndAddNothingToTheFrame) {
    const GridLayout l = Laid({8, 0, 0});
    EXPECT_EQ(l.Menu().Height(), -3);
    EXPECT_EQ(l.Recent().Height(), -2);
    EXPECT_EQ(l.Frame().Height() + 1, 32 - 3 - 2 + 9) << "bottom is top + height - 1";
    const GridLayout recent = Laid({8, 1, 3});
    EXPECT_EQ(recent.RecentCellWidth(), 43) << "three colours stretch over the row";
    EXPECT_EQ(recent.Recent(), (Rect{3, 54, 135, 69}));
    EXPECT_EQ(recent.Frame().Height() + 1, 32 + 15 + 15 + 9 + 1 + 1);
}

TEST(PaletteLayout, MenuLinesStepByHPlusThreeAndReachPastTheirZone) {
    const GridLayout l = Laid({8, 3, 2});
    EXPECT_EQ(l.Menu(), (Rect{3, 37, 135, 88})) << "H + 2 a line";
    EXPECT_EQ(l.GetMenuLineRect(2, 3), (Rect{3, 75, 135, 90})) << "H + 3 a line: two pixels past";
    EXPECT_EQ(l.Recent().top, 90) << "the recent zone starts where the last line still is";
    EXPECT_TRUE(l.GetMenuLineRect(3, 3).Empty());
    EXPECT_TRUE(l.GetMenuLineRect(-1, 3).Empty());
    const GridLayout five = Laid({8, 5, 2});
    EXPECT_EQ(five.GetMenuLineRect(4, 5), (Rect{3, 113, 135, 128}));
    EXPECT_EQ(five.Recent().top, 126);
    EXPECT_EQ(five.HitTest(10, 126, {8, 5, 2}), (Hit{1, 4})) << "the menu wins over the recent zone";
    EXPECT_EQ(five.HitTest(10, 128, {8, 5, 2}), (Hit{2, 0}));
}

TEST(PaletteLayout, ANarrowClientKeepsEightBaseWidthsAndBigFontsStillMakeAColumn) {
    const GridLayout narrow = Laid({20, 0, 0}, 30);
    EXPECT_EQ(narrow.ZoneWidth(), 64);
    EXPECT_EQ(narrow.Frame().Width(), 69);
    GridLayout huge;
    huge.Compute({0, 0, 40, 40}, 200, 1, {3, 1, 0});
    EXPECT_EQ(huge.Columns(0), 1);
    EXPECT_EQ(huge.Main().Height(), 3 * 201 - 2);
}

// The hit test against a scan of every cell of every zone in order, over
// every point of the client and around it.
TEST(PaletteLayout, HitTestFindsTheFirstCellHoldingThePoint) {
    for (const ZoneCounts counts :
         {ZoneCounts{8, 1, 0}, ZoneCounts{40, 5, 8}, ZoneCounts{0, 3, 1}, ZoneCounts{13, 0, 0}}) {
        const GridLayout l = Laid(counts);
        for (int32_t y = -3; y < 220; ++y) {
            for (int32_t x = -3; x < 145; ++x) {
                Hit scan;
                for (int32_t zone = 0; zone < 3 && scan.zone == -1; ++zone)
                    for (int32_t i = 0; i < counts.Of(zone) && scan.zone == -1; ++i)
                        if (l.GetCellRect(zone, i, counts).Contains(x, y))
                            scan = {zone, i};
                ASSERT_EQ(l.HitTest(x, y, counts), scan) << x << "," << y << " counts " << counts.main;
            }
        }
    }
}

// Painting walks only the cells whose pixels (right and bottom included)
// meet the clip box: it must not miss one.
TEST(PaletteLayout, CellsMeetingAnAreaMissNoCellThatPaintsThere) {
    const GridLayout l = Laid({40, 1, 0});
    const Rect areas[] = {{0, 0, 140, 200}, {20, 21, 21, 22}, {39, 0, 40, 1}, {58, 37, 60, 38}, {3, 3, 4, 4}};
    for (const Rect &area : areas) {
        const auto block = l.CellsMeeting(0, area, 40);
        for (int32_t i = 0; i < 40; ++i) {
            const Rect cell = l.GetColorCellRect(0, i, 40);
            const Rect painted{cell.left, cell.top, cell.right + 1, cell.bottom + 1};
            const int32_t row = i / l.Columns(0), column = i % l.Columns(0);
            const bool walked = row >= block.firstRow && row <= block.lastRow && column >= block.firstColumn &&
                                column <= block.lastColumn;
            if (painted.Intersects(area)) {
                EXPECT_TRUE(walked) << "cell " << i << " area " << area.left << "," << area.top;
            }
        }
    }
}

} // namespace
