#include "outline/core/paint_lines.h"

namespace zk::lbx::paint {
namespace {

TreeBox MakeBox(int32_t x, int32_t y, bool expanded) {
    TreeBox box;
    box.rect = LbxBoxRect(x, y);
    box.x = x;
    box.y = y;
    const int32_t l = box.rect.left, t = box.rect.top;
    const int32_t r = box.rect.right - 1, b = box.rect.bottom - 1;
    // Each side runs from corner to corner; as the last point of a side is
    // not drawn, the four together close the square once.
    box.sides[0] = {l, t, r, t};
    box.sides[1] = {r, t, r, b};
    box.sides[2] = {r, b, l, b};
    box.sides[3] = {l, b, l, t};
    box.across = {box.rect.left + 2, y, box.rect.right - 2, y};
    box.down = !expanded;
    box.downBar = {x, box.rect.top + 2, x, box.rect.bottom - 2};
    return box;
}

} // namespace

TreeLines PlanTreeLines(const LineInput &in) {
    TreeLines out;
    out.dotted = in.outline;
    out.colour = in.outline ? kOutlineLineColour : kPlainLineColour;
    if (in.level <= 0)
        return out;
    const LbxRect &r = in.row;
    const int32_t mid = LbxMidY(r);
    size_t up = 0;
    for (int32_t lvl = in.level; lvl >= 1 && up < in.lastChild.size(); --lvl, ++up) {
        const int32_t x = LbxLineX(in.step, lvl, r.left);
        const bool last = in.lastChild[up];
        if (lvl == in.level) {
            out.lines.push_back({x, r.top, x, last ? mid : r.bottom});
            const int32_t stubEnd = in.outline ? x + in.step / 2 + 1 : x + in.step / 2 - 2;
            out.lines.push_back({x, mid, stubEnd, mid});
            if (in.outline && in.boxShown) {
                out.hasBox = true;
                out.box = MakeBox(x, mid, in.expanded);
            }
        } else if (!last) {
            out.lines.push_back({x, r.top, x, r.bottom});
        }
    }
    return out;
}

std::vector<Point> SegmentPoints(const Segment &s) {
    std::vector<Point> points;
    const int32_t dx = s.x1 > s.x0 ? 1 : (s.x1 < s.x0 ? -1 : 0);
    const int32_t dy = s.y1 > s.y0 ? 1 : (s.y1 < s.y0 ? -1 : 0);
    if (dx != 0 && dy != 0)
        return points; // tree lines are straight; nothing else is asked of this
    int32_t x = s.x0, y = s.y0;
    while (x != s.x1 || y != s.y1) {
        points.push_back({x, y});
        x += dx;
        y += dy;
    }
    return points;
}

} // namespace zk::lbx::paint
