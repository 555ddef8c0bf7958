// Where the parts of the month lie: cell size, frame, rectangles, cells
// and their gaps, hit testing, arrows and gridlines.
#include <gtest/gtest.h>

#include "calendar/core/calendar_layout.h"

namespace {

using zk::Point;
using zk::Rect;
using zk::cal::ArrowCorners;
using zk::cal::MonthLayout;

MonthLayout Laid(int w, int h, int column = 8, int row = 12) {
    MonthLayout layout;
    layout.Compute(w, h, column, row);
    return layout;
}

TEST(LayoutMetrics, TheWorkedExample) {
    const MonthLayout l = Laid(140, 100);
    EXPECT_EQ(l.CellWidth(), 20) << "max(140 / 7 - 1, 8 * 2.5)";
    EXPECT_EQ(l.CellHeight(), 12) << "max(100 / 8 - 1, 12)";
    EXPECT_EQ(l.ButtonWidth(), 13);
    EXPECT_EQ(l.Frame(), (Rect{0, 0, 146, 103})) << "larger than the client: no offset";
    EXPECT_EQ(l.LeftButton(), (Rect{0, 0, 13, 12}));
    EXPECT_EQ(l.RightButton(), (Rect{127, 0, 140, 12}));
    EXPECT_EQ(l.Caption(), (Rect{13, 0, 126, 12})) << "one pixel short of the right button";
    EXPECT_EQ(l.WeekdayHeader(), (Rect{0, 13, 146, 25}));
    EXPECT_EQ(l.Grid(), (Rect{0, 26, 146, 103}));
    EXPECT_EQ(l.Body(), (Rect{0, 26, 140, 100}));
    EXPECT_EQ(l.WeekdayBand(), (Rect{0, 13, 140, 25}));
}

TEST(LayoutMetrics, CellsGrowWithTheWindowAndTheFrameIsCentred) {
    const MonthLayout l = Laid(400, 300);
    EXPECT_EQ(l.CellWidth(), 56);
    EXPECT_EQ(l.CellHeight(), 36);
    EXPECT_EQ(l.ButtonWidth(), 37) << "an even cell height gives an odd button";
    EXPECT_EQ(l.Frame(), (Rect{1, 2, 1 + 398, 2 + 295}));
    EXPECT_EQ(l.WeekdayHeader().left, 1);
    EXPECT_EQ(l.WeekdayHeader().top, 37) << "the header follows the caption, not the frame";
    EXPECT_EQ(l.Caption().left, 37) << "buttons and caption use the whole width";
    EXPECT_EQ(l.RightButton().right, 400);
    EXPECT_EQ(Laid(100, 100, 8, 13).ButtonWidth(), 13) << "an odd cell height is the button's width";
}

TEST(LayoutMetrics, TheFittedSizeLaysOutTheSameCells) {
    for (int row : {10, 12, 13, 17}) {
        const MonthLayout small = Laid(50, 40, 7, row);
        const MonthLayout fitted = Laid(small.FitWidth(), small.FitHeight(), 7, row);
        EXPECT_EQ(fitted.CellWidth(), small.CellWidth()) << row;
        EXPECT_EQ(fitted.CellHeight(), small.CellHeight()) << row;
        EXPECT_EQ(fitted.Frame().left, 1) << "two pixels to spare, one on each side";
    }
}

TEST(LayoutCells, RectanglesLeaveOnePixelGapsAndMinusOneIsEmpty) {
    const MonthLayout l = Laid(140, 100);
    EXPECT_EQ(l.CellRect(0), (Rect{0, 26, 20, 38}));
    EXPECT_EQ(l.CellRect(1), (Rect{21, 26, 41, 38}));
    EXPECT_EQ(l.CellRect(8), (Rect{21, 39, 41, 51}));
    EXPECT_EQ(l.CellRect(41), (Rect{126, 91, 146, 103})) << "the last cell ends on the grid's corner";
    EXPECT_TRUE(l.CellRect(-1).Empty());
    EXPECT_TRUE(l.CellRect(42).Empty());
}

TEST(LayoutCells, RangesOfRectangles) {
    const MonthLayout l = Laid(140, 100);
    auto range = [&](Rect r) {
        const auto s = l.CellRange(r);
        return std::pair(s.first, s.last);
    };
    EXPECT_EQ(range(l.Grid()), std::pair(0, 41));
    EXPECT_EQ(range(l.CellRect(9)), std::pair(9, 9));
    EXPECT_EQ(range(Rect{20, 26, 21, 38}), std::pair(0, 0)) << "a gap column belongs to the cell before";
    EXPECT_EQ(range(Rect{30, 40, 70, 60}), std::pair(8, 17)) << "first to last, whole rows between";
    EXPECT_EQ(range(Rect{0, 0, 140, 20}), std::pair(0, -1)) << "nothing of the grid";
    EXPECT_TRUE(l.CellRange(Rect{0, 0, 140, 26}).Empty());
    EXPECT_EQ(range(Rect{-50, -50, 500, 500}), std::pair(0, 41)) << "cut to the grid";
}

TEST(LayoutCells, HitTestKeepsTheFocusInGapsAndRefusesExtraCells) {
    const MonthLayout l = Laid(140, 100);
    // A month from cell 3 to 33.
    EXPECT_EQ(l.HitTestCell(25, 30, 10, true, 3, 33), 1);
    EXPECT_EQ(l.HitTestCell(20, 30, 10, true, 3, 33), 10) << "the gap between cells 0 and 1";
    EXPECT_EQ(l.HitTestCell(25, 38, 10, true, 3, 33), 10) << "the gap between rows";
    EXPECT_EQ(l.HitTestCell(60, 5, 10, true, 3, 33), 10) << "off the grid";
    EXPECT_EQ(l.HitTestCell(25, 30, 10, false, 3, 33), -1) << "cell 1 is an extra cell";
    EXPECT_EQ(l.HitTestCell(135, 95, 10, false, 3, 33), -1) << "cell 41 too";
    EXPECT_EQ(l.HitTestCell(70, 30, 10, false, 3, 33), 3);
}

TEST(LayoutArrows, PlainButtonsPointDownAndUp) {
    const Rect left{0, 0, 13, 12}, right{127, 0, 140, 12};
    // a = (12 - 4) / 3 = 2, b = 13 / 2 = 6.
    const auto down = ArrowCorners(left, true, false, false);
    EXPECT_EQ(down[0], (Point{4, 4}));
    EXPECT_EQ(down[1], (Point{6, 6})) << "the tip below the base: down";
    EXPECT_EQ(down[2], (Point{8, 4}));
    const auto up = ArrowCorners(right, false, false, false);
    EXPECT_EQ(up[0], (Point{131, 6}));
    EXPECT_EQ(up[1], (Point{133, 4})) << "the tip above the base: up";
    EXPECT_EQ(up[2], (Point{135, 6}));
    const auto pressed = ArrowCorners(left, true, true, false);
    EXPECT_EQ(pressed[1], (Point{7, 7})) << "pressed: one pixel down and right";
}

TEST(LayoutArrows, AlternateButtonsPointLeftAndRight) {
    const Rect left{0, 0, 13, 12}, right{127, 0, 140, 12};
    // a = (13 - 4) / 3 = 3, b = 12 / 2 = 6.
    const auto l = ArrowCorners(left, true, false, true);
    EXPECT_EQ(l[0], (Point{5, 6})) << "the tip";
    EXPECT_EQ(l[1], (Point{8, 9}));
    EXPECT_EQ(l[2], (Point{8, 3}));
    EXPECT_LT(l[0].x, l[1].x) << "left";
    const auto r = ArrowCorners(right, false, false, true);
    EXPECT_EQ(r[0], (Point{135, 6}));
    EXPECT_EQ(r[1], (Point{132, 9}));
    EXPECT_GT(r[0].x, r[1].x) << "right";
}

TEST(LayoutGridlines, RunThroughTheGaps) {
    const MonthLayout l = Laid(140, 100);
    for (int i = 1; i <= 6; ++i) {
        const int x = l.GridlineX(i);
        EXPECT_EQ(x, l.CellRect(i - 1).right) << i;
        EXPECT_EQ(x + 1, l.CellRect(i).left) << i;
    }
    for (int j = 1; j <= 5; ++j) {
        const int y = l.GridlineY(j);
        EXPECT_EQ(y, l.CellRect((j - 1) * 7).bottom) << j;
        EXPECT_EQ(y + 1, l.CellRect(j * 7).top) << j;
    }
}

} // namespace
