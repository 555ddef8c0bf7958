#include "controls/core/spin_layout.h"

namespace zk::ctl {

SpinLayout::SpinLayout(const Rect &c) : client(c) {
    const int32_t h = c.Height();
    const int32_t t = h / 3;
    a = c.right - 2 * t;
    up = Rect{a, c.top, c.right, c.top + h / 2};
    down = Rect{a, c.bottom - h / 2, c.right, c.bottom};
    edit = Rect{-1, -1, -1 + c.Width() - 2 * t + 2, -1 + h + 2};
    mx = a + (c.right - a) / 2;
    my = c.top + h / 2;
    q = a + 1;
    s = (c.right - a - 6) / 2;
    const int32_t v = my - (my - s) / 2;
    upArrow = {Point{mx, v - 1 - s}, Point{a + 3, v - 1}, Point{c.right - 3, v - 1}};
    const int32_t w = my + (c.bottom - s - my) / 2;
    downArrow = {Point{a + 3, w}, Point{c.right - 3, w}, Point{mx, w + s}};
}

SpinButton SpinLayout::ButtonAt(Point p) const {
    if (up.Contains(p))
        return SpinButton::Up;
    if (down.Contains(p))
        return SpinButton::Down;
    return SpinButton::None;
}

} // namespace zk::ctl
