// The splitter's sums: where the bar lies once tiled to its parent, where
// its two children go on either side of it, how far a drag may go, the
// band drawn while dragging and the handle at the bar's far end. The axis
// of a vertical bar is x, of a horizontal bar y.
#pragma once

#include <cstdint>

#include "frame/core/geometry.h"

namespace zk::ctl {

// A tiled bar is this thick across its axis, whatever its block says.
inline constexpr int32_t kBarThickness = 6;

// Bits of the splitter's state word.
inline constexpr uint16_t kSplitterHidden = 0x0002;
inline constexpr uint16_t kSplitterDragging = 0x0004;

// The bar's rectangle in parent coordinates once tiled to the parent's
// client rectangle: a vertical bar keeps its left and spans the parent's
// height, a horizontal one keeps its top and spans the width.
Rect TileRect(const Rect &bar, const Rect &parentClient, bool vertical);

// The two children for a bar at p on the axis, e thick. A rectangle with
// no width or height is empty: its child is hidden.
struct ChildRects {
    Rect one, two;
};
ChildRects ChildRectangles(int32_t p, const Rect &parentClient, int32_t extent, bool vertical);

// A drag along the axis, in the bar's own client coordinates.
struct SplitterDrag {
    int32_t dragPos = 0;    // where the pointer is
    int32_t dragStart = 0;  // where the drag began
    int32_t dragOffset = 0; // the start less the bar's near edge
    int32_t dragMin = 0;    // lower limit of dragPos
    int32_t dragMax = 0;    // upper limit of dragPos

    // The press: the pointer at pos, the bar's near edge, the parent's
    // client area from low to high and the bar's extent on the axis.
    void Start(int32_t pos, int32_t nearEdge, int32_t parentLow, int32_t parentHigh, int32_t extent);
    // Above the maximum gives the maximum, then below the minimum the minimum.
    int32_t Clamp(int32_t pos) const;
    // Where the bar's near edge goes, in its own client coordinates.
    int32_t NearEdge() const { return dragPos - dragOffset; }
};

// The band on the screen: the bar's screen rectangle moved on the axis by
// shift, cut short at the far end by handleSize when `shortened`, within
// the parent's client area on the screen.
Rect TrackerRect(const Rect &barScreen, int32_t shift, bool vertical, bool shortened, int32_t handleSize,
                 const Rect &parentScreen);

// The black handle: handleSize long at the bar's far end (the bottom of a
// vertical bar, the right of a horizontal one), across the whole bar.
Rect HandleRect(const Rect &client, bool vertical, int32_t handleSize);

} // namespace zk::ctl
