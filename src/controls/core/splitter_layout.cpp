#include "controls/core/splitter_layout.h"

namespace zk::ctl {

Rect TileRect(const Rect &bar, const Rect &p, bool vertical) {
    if (vertical)
        return Rect{bar.left, p.top, bar.left + kBarThickness, p.bottom};
    return Rect{p.left, bar.top, p.right, bar.top + kBarThickness};
}

ChildRects ChildRectangles(int32_t p, const Rect &P, int32_t e, bool vertical) {
    if (vertical)
        return {Rect{P.left, P.top, p, P.bottom}, Rect{p + e, P.top, P.right, P.bottom}};
    return {Rect{P.left, P.top, P.right, p}, Rect{P.left, p + e, P.right, P.bottom}};
}

void SplitterDrag::Start(int32_t pos, int32_t nearEdge, int32_t parentLow, int32_t parentHigh, int32_t extent) {
    dragPos = dragStart = pos;
    dragOffset = pos - nearEdge;
    dragMin = parentLow + dragOffset - 1;
    dragMax = parentHigh + dragOffset + 1 - extent;
}

int32_t SplitterDrag::Clamp(int32_t pos) const {
    if (pos > dragMax)
        pos = dragMax;
    if (pos < dragMin)
        pos = dragMin;
    return pos;
}

Rect TrackerRect(const Rect &bar, int32_t shift, bool vertical, bool shortened, int32_t handleSize,
                 const Rect &parentScreen) {
    Rect band = vertical ? bar.Offset(shift, 0) : bar.Offset(0, shift);
    if (shortened) {
        if (vertical)
            band.bottom -= handleSize;
        else
            band.right -= handleSize;
    }
    return band.Intersect(parentScreen);
}

Rect HandleRect(const Rect &c, bool vertical, int32_t handleSize) {
    if (vertical)
        return Rect{c.left, c.bottom - handleSize, c.right, c.bottom};
    return Rect{c.right - handleSize, c.top, c.right, c.bottom};
}

} // namespace zk::ctl
