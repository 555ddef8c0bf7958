// The tree lines of a row: which lines, where, in which colour and
// pattern, and the plus/minus box. Lines are drawn point by point the way
// LineDDA walks them: from the first point up to, not including, the last.
#pragma once

#include <cstdint>
#include <vector>

#include "outline/core/lbx.h"

namespace zk::lbx::paint {

inline constexpr uint32_t kPlainLineColour = 0x000000; // a tree without the outline style
inline constexpr uint32_t kOutlineLineColour = 0x808080;

struct Segment {
    int32_t x0, y0, x1, y1; // (x1, y1) itself is not drawn
    bool operator==(const Segment &) const = default;
};

// Outline lines are dotted: a point is drawn only where x + y is odd, a 50
// percent checker that lines up from row to row.
constexpr bool DottedPointDrawn(int32_t x, int32_t y) { return ((x ^ y) & 1) != 0; }

struct TreeBox {
    LbxRect rect{}; // LbxBoxRect at the node's line and the row's middle
    int32_t x = 0, y = 0;
    Segment sides[4]{}; // solid, clockwise from the top-left corner
    Segment across{};   // the minus bar, drawn with the DC's pen
    bool down = false;  // collapsed: the vertical bar as well
    Segment downBar{};
};

struct TreeLines {
    bool dotted = false;
    uint32_t colour = kPlainLineColour;
    std::vector<Segment> lines;
    bool hasBox = false;
    TreeBox box;
};

// What the walk up the tree needs of a node: for the node and each
// ancestor above it up to level 1, whether it is its parent's last child.
// lastChild[0] is the node's; the list ends early where a parent is
// missing, which ends the walk.
struct LineInput {
    LbxRect row{};
    int32_t step = 0;
    int32_t level = 0;
    std::vector<bool> lastChild;
    bool outline = false;  // LBX_StyleOutline
    bool boxShown = false; // the node has children, or LBX_ItemPlus
    bool expanded = false; // LBX_ItemExpanded
};

TreeLines PlanTreeLines(const LineInput &in);

// The points LineDDA visits on a horizontal or vertical segment.
struct Point {
    int32_t x, y;
    bool operator==(const Point &) const = default;
};
std::vector<Point> SegmentPoints(const Segment &s);

} // namespace zk::lbx::paint
