// Tree lines, the box, tab stops and which parts a request paints.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "outline/core/paint_flow.h"
#include "outline/core/paint_lines.h"
#include "outline/core/paint_tabs.h"

using namespace zk::lbx;

using namespace zk::lbx::paint;

namespace {

LineInput Lines(int32_t level, std::vector<bool> last, bool outline = true) {
    LineInput in;
    in.row = {0, 32, 300, 48};
    in.step = 24;
    in.level = level;
    in.lastChild = std::move(last);
    in.outline = outline;
    return in;
}

TEST(PaintLines, OwnLevelLineAndStub) {
    TreeLines t = PlanTreeLines(Lines(1, {false}));
    ASSERT_EQ(t.lines.size(), 2u);
    EXPECT_EQ(t.lines[0], (Segment{14, 32, 14, 48})); // a middle child: the whole row
    EXPECT_EQ(t.lines[1], (Segment{14, 40, 14 + 12 + 1, 40}));
    EXPECT_TRUE(t.dotted);
    EXPECT_EQ(t.colour, 0x808080u);
    t = PlanTreeLines(Lines(1, {true}, false));
    EXPECT_EQ(t.lines[0], (Segment{14, 32, 14, 40})); // the last child stops at the middle
    EXPECT_EQ(t.lines[1], (Segment{14, 40, 14 + 12 - 2, 40}));
    EXPECT_FALSE(t.dotted);
    EXPECT_EQ(t.colour, 0u);
}

TEST(PaintLines, AncestorsThatAreLastChildrenLeaveAGap) {
    // Level 3; the parent (level 2) is a last child, the grandparent not.
    const TreeLines t = PlanTreeLines(Lines(3, {false, true, false}));
    ASSERT_EQ(t.lines.size(), 3u);
    EXPECT_EQ(t.lines[2], (Segment{LbxLineX(24, 1, 0), 32, LbxLineX(24, 1, 0), 48}));
    for (const Segment &s : t.lines)
        EXPECT_NE(s.x0, LbxLineX(24, 2, 0));
    // A chain that breaks off (no parent) ends the walk.
    EXPECT_EQ(PlanTreeLines(Lines(3, {false})).lines.size(), 2u);
}

TEST(PaintLines, BoxOnlyInTheOutlineStyle) {
    LineInput in = Lines(2, {true, false});
    in.boxShown = true;
    TreeLines t = PlanTreeLines(in);
    ASSERT_TRUE(t.hasBox);
    const int32_t x = LbxLineX(24, 2, 0);
    EXPECT_EQ(t.box.x, x);
    EXPECT_EQ(t.box.y, 40);
    EXPECT_EQ(t.box.rect.left, x - 4);
    EXPECT_EQ(t.box.rect.bottom, 45);
    EXPECT_EQ(t.box.across, (Segment{x - 2, 40, x + 3, 40}));
    EXPECT_TRUE(t.box.down); // collapsed: a plus
    EXPECT_EQ(t.box.downBar, (Segment{x, 38, x, 43}));
    in.expanded = true;
    EXPECT_FALSE(PlanTreeLines(in).box.down);
    in.outline = false;
    EXPECT_FALSE(PlanTreeLines(in).hasBox);
}

TEST(PaintLines, BoxSidesCoverTheSquareOnce) {
    LineInput in = Lines(1, {false});
    in.boxShown = true;
    const TreeBox box = PlanTreeLines(in).box;
    std::map<std::pair<int, int>, int> hits;
    for (const Segment &s : box.sides)
        for (const Point &p : SegmentPoints(s))
            ++hits[{p.x, p.y}];
    EXPECT_EQ(hits.size(), 32u); // the 9 by 9 square's outer ring
    for (const auto &[point, count] : hits) {
        EXPECT_EQ(count, 1);
        const bool onEdge = point.first == box.rect.left || point.first == box.rect.right - 1 ||
                            point.second == box.rect.top || point.second == box.rect.bottom - 1;
        EXPECT_TRUE(onEdge);
    }
}

TEST(PaintLines, CheckerPatternAndLineDdaPoints) {
    EXPECT_TRUE(DottedPointDrawn(0, 1));
    EXPECT_TRUE(DottedPointDrawn(3, 2));
    EXPECT_FALSE(DottedPointDrawn(2, 2));
    EXPECT_FALSE(DottedPointDrawn(3, 5));
    EXPECT_TRUE(DottedPointDrawn(-1, 0));
    const std::vector<Point> down = SegmentPoints({5, 1, 5, 4});
    EXPECT_EQ(down, (std::vector<Point>{{5, 1}, {5, 2}, {5, 3}}));
    const std::vector<Point> left = SegmentPoints({3, 0, 1, 0});
    EXPECT_EQ(left, (std::vector<Point>{{3, 0}, {2, 0}}));
    EXPECT_TRUE(SegmentPoints({1, 1, 1, 1}).empty());
    EXPECT_TRUE(SegmentPoints({0, 0, 2, 2}).empty());
}

TEST(PaintTabs, StopsAfterTheTextStart) {
    const int32_t stops[] = {40, 100};
    const auto runs = LayoutTabs(u"a\tbb\tc\td", 10, 2, stops, 4);
    ASSERT_EQ(runs.size(), 4u);
    EXPECT_EQ(runs[0], (TextRun{0, 1, 10}));
    EXPECT_EQ(runs[1], (TextRun{2, 2, 50}));
    EXPECT_EQ(runs[2], (TextRun{5, 1, 110}));
    EXPECT_EQ(runs[3], (TextRun{7, 1, 150})); // past the last stop: the first stop's width on
    EXPECT_EQ(LayoutTabs(u"plain", 3, 2, stops, 4), (std::vector<TextRun>{{0, 5, 3}}));
    EXPECT_EQ(LayoutTabs(u"\t", 3, 2, stops, 4), (std::vector<TextRun>{{0, 0, 3}, {1, 0, 43}}));
}

TEST(PaintTabs, ClearedStopsUseTheDialogUnit) {
    const auto runs = LayoutTabs(u"a\tb\tc", 10, -1, nullptr, 6);
    ASSERT_EQ(runs.size(), 3u);
    EXPECT_EQ(runs[1].x, 12);
    EXPECT_EQ(runs[2].x, 24);
    EXPECT_EQ(TextAfterLastTab(u"a\tbc\tdef"), u"def");
    EXPECT_EQ(TextAfterLastTab(u"abc"), u"abc");
    EXPECT_EQ(TextAfterLastTab(u"abc\t"), u"");
}

// The parts a plan paints, by name.
std::string Parts(const PaintFlow &f) {
    const std::pair<bool, const char *> parts[] = {{f.fillRow, "fill"},           {f.focusOnFrame, "focus"},
                                                   {f.textAndPicture, "text"},    {f.lines, "lines"},
                                                   {f.inactiveFrame, "inactive"}, {f.focusMarkFrame, "mark"},
                                                   {f.focusMarkClear, "unmark"},  {f.focusOnFrameLate, "late"},
                                                   {f.focusOnRow, "row"},         {f.autoExtent, "extent"}};
    std::string out;
    for (const auto &[on, name] : parts)
        if (on)
            out += (out.empty() ? "" : " ") + std::string(name);
    return out;
}

TEST(PaintFlow, PartsByStyleActionStateAndItem) {
    const LbxRect row{0, 0, 100, 16};
    const uint32_t entire = kActionDrawEntire, select = kActionSelect, focus = kActionFocus;
    const uint32_t owed = LBX_ItemInactive | LBX_ItemFocusMark;
    const struct {
        uint32_t style, action, state;
        bool hasItem, hasNode;
        uint32_t flags;
        LbxRect row;
        const char *parts;
    } cases[] = {
        {LBX_StyleAutoExtent, entire, 0, true, true, 0, row, "fill text lines extent"},
        {LBX_StyleNoLines, entire, 0, true, true, 0, row, "fill text"},
        {0, entire, 0, true, false, 0, row, "fill text"},
        {0, select, 0, true, true, 0, row, "text lines"},
        {LBX_StyleNoHighlight, select, 0, true, true, 0, row, "fill text lines"},
        // Focus actions.
        {0, focus, kStateFocus, true, true, 0, row, "focus"},
        {LBX_StyleDropSelection, focus, kStateFocus, true, true, 0, row, "late"},
        {LBX_StyleShowInactive, focus, 0, true, true, 0, row, "text"},
        // A row that does not start at the left edge gets its focus frame twice.
        {LBX_StyleShowInactive, focus, kStateFocus, true, true, 0, {4, 0, 100, 16}, "text late row"},
        // Owed frames; a foreign row owes nothing and has no lines.
        {0, focus, 0, true, true, owed, row, "focus inactive unmark"},
        {0, select, kStateSelected, true, true, LBX_ItemFocusMark, row, "text lines mark"},
        {0, entire, kStateSelected, false, false, owed, row, "fill text"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << "style " << std::hex << c.style << " action " << c.action << " state "
                                        << c.state << " item " << c.hasItem << c.hasNode << " flags " << c.flags);
        EXPECT_EQ(Parts(PlanPaint(c.style, c.action, c.state, c.hasItem, c.hasNode, c.flags, c.row)), c.parts);
    }
}

} // namespace
