// The bar's paint, off screen: the face, the edge lines along its length
// on the narrow sides, and the black handle. The colours are the system's;
// the block's colours are stored only.
#include "controls/win/splitter_window.h"

#include "frame/win/draw.h"

namespace zk::ctl {

void CSplitter::Paint(HDC dc, const Rect &) {
    const Rect client = ClientArea();
    const Brush face = SolidBrush(GetSysColor(COLOR_BTNFACE));
    {
        const Selected selected(dc, face);
        PatBlt(dc, client.left, client.top, client.Width(), client.Height(), PATCOPY);
    }
    if (props.bevelLines >= 1) {
        // The bevel's rings reach past both ends of the bar, so only their
        // sides along its length show: face and highlight at 0 and 1,
        // shadow and frame at extent - 2 and extent - 1.
        const RECT rings = Vertical() ? RECT{client.left, client.top - 2, client.right, client.bottom + 2}
                                      : RECT{client.left - 2, client.top, client.right + 2, client.bottom};
        DrawBevel(dc, rings, GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_WINDOWFRAME),
                  GetSysColor(COLOR_BTNHIGHLIGHT), GetSysColor(COLOR_BTNSHADOW));
    }
    if (props.displayHandle == 1) {
        const Rect handle = HandleRect(client, Vertical(), handleSize);
        PatBlt(dc, handle.left, handle.top, handle.Width(), handle.Height(), BLACKNESS);
    }
}

} // namespace zk::ctl
